#include "windows/transfer/frmTransferProgress.h"

#include <QScopeGuard>
#include <algorithm>

#include "controls/fields/Icons.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "ui_frmTransferProgress.h"

namespace neb {
namespace {

constexpr int WholeBar = 1000;

int PartOfBar(const TransferProgress& Now) {
    if (Now.OfBytes > 0)
        return static_cast<int>(std::min(Now.Bytes, Now.OfBytes) * WholeBar / Now.OfBytes);
    if (Now.OfPictures < 1) return 0;
    return std::min(Now.Pictures, Now.OfPictures) * WholeBar / Now.OfPictures;
}

}  // namespace

frmTransferProgress::frmTransferProgress() : mUi(std::make_unique<Ui::frmTransferProgress>()) {
    mUi->setupUi(this);
    mUi->cmdStop->setIcon(ThemeIcon(QStringLiteral("cancel")));
    On(mUi->cmdStop, &QPushButton::clicked, &frmTransferProgress::AskStop);
}

frmTransferProgress::~frmTransferProgress() = default;

void frmTransferProgress::ShowOver(std::function<void()> Work) {
    mWork = std::move(Work);
    ShowModal();
}

void frmTransferProgress::Form_Activate() {
    if (!mWork) return;
    const auto Work = std::exchange(mWork, {});
    {
        mAt = Going();
        const auto Over = qScopeGuard([this] { mAt.reset(); });
        Work();
    }
    Unload();
}

// The end of the program takes the windows with it: the transfer is to end first.
bool frmTransferProgress::Form_Unload() {
    if (IsRunning()) Stop();
    return !IsRunning();
}

bool frmTransferProgress::Show(const TransferProgress& Now) {
    const bool Turns = mAt->Stage != Now.At;
    mAt->Stage = Now.At;
    const double Seconds = SecondsSinceFirstByte(Now);
    if (mAt->Rate.IsDue() || Turns) {
        Paint(Now);
        if (!mAt->Stopped) mUi->lblProgress->setText(ProgressText(Now, Seconds));
    }
    DoEvents();
    return !mAt->Stopped;
}

bool frmTransferProgress::Show(const QString& Line, int Percent) {
    if (mAt->Rate.IsDue()) {
        mUi->pgbTransfer->setMaximum(WholeBar);
        mUi->pgbTransfer->setValue(std::clamp(Percent, 0, 100) * WholeBar / 100);
        if (!mAt->Stopped) mUi->lblProgress->setText(Line);
    }
    DoEvents();
    return !mAt->Stopped;
}

double frmTransferProgress::SecondsSinceFirstByte(const TransferProgress& Now) {
    const double Ticks = TheServices().Time->Ticks();
    if (Now.Bytes > 0 && !mAt->FirstByte) mAt->FirstByte = Ticks;
    return mAt->FirstByte ? (Ticks - *mAt->FirstByte) / 1000 : 0;
}

void frmTransferProgress::Paint(const TransferProgress& Now) {
    const bool Known = Now.At == TransferProgress::Stage::Copying;
    mUi->pgbTransfer->setMaximum(Known ? WholeBar : 0);
    mUi->pgbTransfer->setValue(PartOfBar(Now));
    mUi->cmdStop->setEnabled(!mAt->Stopped && Now.At != TransferProgress::Stage::Writing);
}

void frmTransferProgress::AskStop() {
    if (!IsRunning() || !mUi->cmdStop->isEnabled()) return;
    if (AskYesNo(tr("Are you sure you want to Abort the current process?"),
                 tr("Abort Confirmation"), BoxAnswer::No) &&
        IsRunning())
        Stop();
}

void frmTransferProgress::Stop() {
    mAt->Stopped = true;
    mUi->cmdStop->setEnabled(false);
    mUi->lblProgress->setText(tr("Stopping ..."));
}

}  // namespace neb
