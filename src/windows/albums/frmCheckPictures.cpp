#include "windows/albums/frmCheckPictures.h"

#include <QClipboard>
#include <QGuiApplication>

#include "albums/transfer/DiscProgress.h"
#include "controls/fields/Icons.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Services.h"
#include "ui_frmCheckPictures.h"

namespace neb {
namespace {

constexpr int WholeBar = 1000;

// One or Many with the number in it.
QString Counted(int Number, const QString& One, const QString& Many) {
    return Number == 1 ? One : Many.arg(Grouped(Number));
}

QString Headline(const PicturesChecked& Checked) {
    if (!Checked.Found.empty())
        return Counted(static_cast<int>(Checked.Found.size()),
                       QObject::tr("One file is not as it should be."),
                       QObject::tr("%1 files are not as they should be."));
    if (!Checked.IsWhole) return QObject::tr("Nothing was found until then.");
    return Counted(Checked.Files, QObject::tr("All is well: the one file is as it was stored."),
                   QObject::tr("All is well: %1 files are as they were stored."));
}

QStringList Notes(const PicturesChecked& Checked) {
    QStringList Lines;
    if (!Checked.IsWhole) Lines << QObject::tr("Stopped; not all was checked.");
    Lines << Headline(Checked);
    if (Checked.NewLists > 0)
        Lines << Counted(Checked.NewLists,
                         QObject::tr("One album had no check sums and could not be compared; they "
                                     "are kept from now on."),
                         QObject::tr("%1 albums had no check sums and could not be compared; they "
                                     "are kept from now on."));
    if (Checked.WithoutLists > 0)
        Lines << Counted(Checked.WithoutLists,
                         QObject::tr("One album has no check sums and could not be compared."),
                         QObject::tr("%1 albums have no check sums and could not be compared."));
    return Lines;
}

}  // namespace

frmCheckPictures::frmCheckPictures() : mUi(std::make_unique<Ui::frmCheckPictures>()) {
    mUi->setupUi(this);
    mUi->cmdStop->setIcon(ThemeIcon(QStringLiteral("cancel")));
    On(mUi->cmdStop, &QPushButton::clicked, &frmCheckPictures::Stop);
    On(mUi->cmdCopy, &QPushButton::clicked, &frmCheckPictures::Copy);
    On(mUi->cmdClose, &QPushButton::clicked, &frmCheckPictures::Close);
}

frmCheckPictures::~frmCheckPictures() = default;

void frmCheckPictures::Form_Activate() {
    if (!mAt) Check();
}

bool frmCheckPictures::Form_Unload() {
    if (IsRunning()) Stop();
    return !IsRunning();
}

// Esc stops what is under way, and closes what is over.
void frmCheckPictures::CloseRequested() {
    if (IsRunning())
        Stop();
    else
        Unload();
}

void frmCheckPictures::Check() {
    mAt = Going();
    const auto Lists = ReadOnlyDB ? SumsLists::LeftAlone : SumsLists::PutRight;
    try {
        const PicturesChecked Checked = CheckAllPictures(
            *DBEngine, Lists, [this](const SumsProgress& Now) { return Show(Now); });
        mAt->Over = true;
        ShowResult(Checked);
    } catch (const Fault& Problem) {
        mAt->Over = true;
        ShowFault(Problem.Text());
    }
}

bool frmCheckPictures::Show(const SumsProgress& Now) {
    const double Ticks = TheServices().Time->Ticks();
    if (Now.Bytes > 0 && !mAt->FirstByte) mAt->FirstByte = Ticks;
    if (mAt->Rate.IsDue() && !mAt->Stopped && Now.OfFiles > 0) {
        const double Seconds = mAt->FirstByte ? (Ticks - *mAt->FirstByte) / 1000 : 0;
        mUi->pgbCheck->setMaximum(WholeBar);
        mUi->pgbCheck->setValue(
            Now.OfBytes > 0
                ? static_cast<int>(std::min(Now.Bytes, Now.OfBytes) * WholeBar / Now.OfBytes)
                : WholeBar);
        mUi->lblProgress->setText(SumsText(Now) + TimeLeftText(Now.Bytes, Now.OfBytes, Seconds));
    }
    DoEvents();
    return !mAt->Stopped;
}

void frmCheckPictures::ShowResult(const PicturesChecked& Checked) {
    QStringList Lines;
    for (const PictureFinding& Each : Checked.Found) Lines << Each.Line();
    mUi->lblProgress->setText(Notes(Checked).join(u'\n'));
    mUi->txtFound->setPlainText(Lines.join(u'\n'));
    mUi->pgbCheck->setMaximum(WholeBar);
    if (Checked.IsWhole) mUi->pgbCheck->setValue(WholeBar);
    mUi->cmdStop->setEnabled(false);
    mUi->cmdCopy->setEnabled(!Lines.isEmpty());
    mUi->cmdClose->setFocus();
}

void frmCheckPictures::ShowFault(const QString& Text) {
    mUi->lblProgress->setText(tr("The check could not be finished."));
    mUi->txtFound->setPlainText(Text);
    mUi->pgbCheck->setMaximum(WholeBar);
    mUi->cmdStop->setEnabled(false);
    mUi->cmdCopy->setEnabled(true);
    mUi->cmdClose->setFocus();
}

void frmCheckPictures::Stop() {
    if (!IsRunning()) return;
    mAt->Stopped = true;
    mUi->cmdStop->setEnabled(false);
    mUi->lblProgress->setText(tr("Stopping ..."));
}

void frmCheckPictures::Copy() {
    QGuiApplication::clipboard()->setText(mUi->txtFound->toPlainText());
}

}  // namespace neb
