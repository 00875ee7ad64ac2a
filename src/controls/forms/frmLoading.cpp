#include "controls/forms/frmLoading.h"

#include "controls/forms/Progress.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "ui_frmLoading.h"

namespace neb {
frmLoading::frmLoading() : mUi(std::make_unique<Ui::frmLoading>()) {
    mUi->setupUi(this);
    connect(mUi->cmdStop, &QPushButton::clicked, this, &frmLoading::AskAbort);
}

frmLoading::~frmLoading() = default;

void frmLoading::Form_Load() {
    SupportsAbort(false);
}

void frmLoading::SupportsAbort(bool Supported) {
    Load();
    mUi->cmdStop->setEnabled(Supported);
    mUi->cmdStop->setToolTip(Supported ? tr("Stop and keep what has been read so far (Esc)")
                                       : tr("This cannot be stopped"));
}

void frmLoading::ShowProgressMeter(ProgressParent& Parent) {
    const auto Held = HoldIfForm(Parent);
    mParent = &Parent;
    ShowModal();
}

void frmLoading::LoadSlide(ProgressParent& AltParent) {
    mAltParent = &AltParent;
    AltParent.DoActivity();
}

QProgressBar* frmLoading::pgbLoadingProgress() const {
    return mUi->pgbLoadingProgress;
}

void frmLoading::ShowPicture(const QImage& Picture) {
    mPicture = Picture;
}

void frmLoading::ShowCount(int Number, int Count) {
    mUi->wdgWords->ShowCount(Number, Count);
}

void frmLoading::Refresh() {
    mUi->wdgWords->Follow(*mUi->pgbLoadingProgress);
    if (!mPaintRate.IsDue()) return;
    mUi->Picture1->setPixmap(QPixmap::fromImage(mPicture));
    if (isVisible()) repaint();
}

void frmLoading::Form_Activate() {
    if (mActivated) return;
    mActivated = true;
    if (mParent) mParent->DoActivity();
    Unload();  // the worker may have done it already
}

bool frmLoading::Form_Unload() {
    mAltParent = nullptr;
    mParent = nullptr;
    return true;
}

void frmLoading::AskAbort() {
    if (!mUi->cmdStop->isEnabled() || !mParent) return;
    const double Asked = TheServices().Time->Ticks();
    const bool Stops = AskYesNo(tr("Are you sure you want to Abort the current process?"),
                                tr("Abort Confirmation"));
    mUi->wdgWords->Skip(TheServices().Time->Ticks() - Asked);
    if (Stops && mParent) mParent->DoAbort();
}

}  // namespace neb
