#include "windows/import/frmQuickShow.h"

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/Tell.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "ui_ImportForm.h"
#include "windows/albums/modAlbumNames.h"
#include "windows/frame/modBroadcast.h"
#include "windows/frame/modWindowState.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmQuickShow"), 6540};
constexpr std::int32_t Automatic = 0;  // ProgressionMethod

}  // namespace

frmQuickShow::frmQuickShow() : ImportForm(Memory) {
    setObjectName(QStringLiteral("frmQuickShow"));
    setWindowTitle(QStringLiteral("Quick Show"));
    mUi->cmdImport->setText(tr("Sa&ve"));  // Alt+S opens a menu of the main window
    mUi->cmdImport->setAccessibleName(tr("Save"));
    mUi->cmdImport->setToolTip(
        QStringLiteral("Create an Album and Slide Show from the Selected Pictures"));
    KeepQuotesClean(*mUi->txtName);
}

// The folder's own name is what most people would type. Whoever begins anew with another folder
// gets that one's name; a name that was typed stays.
void frmQuickShow::DirectoryChosen(const QString& Directory) {
    const bool Typed = !mUi->txtName->text().isEmpty() && mUi->txtName->text() != mProposedName;
    if (Typed || mUi->flxSelected->Rows() > 0 || mUi->flxNonSelected->Rows() > 0) return;
    mProposedName = ConvertQuotes(GetFileName(Directory.chopped(1)));
    mUi->txtName->setText(mProposedName);
}

// The show runs when both windows, this one and the one of the progress, have gone.
void frmQuickShow::Import() {
    const auto Held = shared_from_this();
    if (mUi->txtName->text().isEmpty()) {
        MsgBox(QStringLiteral("You must specify a name for the new slideshow."));
        return;
    }
    mUi->txtName->setText(ConvertQuotes(mUi->txtName->text()));
    if (!HasSelection()) return;
    if (DBEngine->FindAlbum(0, mUi->txtName->text())) {
        MsgBox(QStringLiteral("Album Name is already in use."),
               QStringLiteral("Invalid Album Name"), BoxIcon::Critical);
        return;
    }
    RunImport();
    if (std::exchange(mRunWhenClosed, false)) RunSlideShow(mAlbumID, mAlbumName, mSlideShowID);
}

void frmQuickShow::StartOperation() {
    const auto Held = shared_from_this();
    mAlbumName = mUi->txtName->text();
    SetScreenPointer(Pointer::Hourglass);
    mAlbumID = 0;
    clsNEBSlideShow* SlideShow = MakeAlbum() ? MakeSlideShow() : nullptr;
    if (SlideShow && FillSlideShow(*SlideShow)) {
        mRunWhenClosed = true;
        BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Insert"), this, {mAlbumID});
    }
    EndOperation();
    if (mRunWhenClosed) Unload();
}

bool frmQuickShow::MakeAlbum() {
    if (!Tell(NewAlbum(*DBEngine, mAlbumID, ConvertQuotes(mAlbumName)))) {
        MsgBox(QStringLiteral("Failed to save album."));
        return false;
    }
    if (!DBEngine->GetAlbum(mAlbumID)) {
        MsgBox(QStringLiteral("Failed to load album after save."));
        return false;
    }
    return true;
}

clsNEBSlideShow* frmQuickShow::MakeSlideShow() {
    clsNEBAlbum* Album = DBEngine->GetAlbum(mAlbumID);
    mSlideShowID = 0;
    const bool Saved =
        Album->SaveSlideShow(mSlideShowID, ConvertQuotes(mAlbumName), Automatic, *DBEngine);
    clsNEBSlideShow* SlideShow = Saved ? Album->GetSlideShow(mSlideShowID) : nullptr;
    if (SlideShow) return SlideShow;
    MsgBox(Saved ? QStringLiteral("Failed to load slide show after save.")
                 : QStringLiteral("Failed to save slide show."));
    DropMadeAlbum();
    return nullptr;
}

// Nothing of a half-made show stays: a picture that fails takes the album with it.
bool frmQuickShow::FillSlideShow(clsNEBSlideShow& SlideShow) {
    int Number = 1;
    const auto AddDetail = [&](int Row, PictureImport::Outcome Outcome, std::int32_t SlideID) {
        if (Outcome == PictureImport::Outcome::Entered) SlideShow.SaveDetail(SlideID, Row + 1, {});
        ++Number;
    };
    QString Problem;
    try {
        if (ImportRows(*DBEngine->GetAlbum(mAlbumID), AddDetail)) return true;
    } catch (const std::exception& Reason) {
        Problem = QStringLiteral("Failed to save slide #%1\n").arg(Number) +
                  QString::fromUtf8(Reason.what());
    }
    DropMadeAlbum();
    SetScreenPointer(Pointer::Default);
    if (!Problem.isEmpty()) MsgBox(Problem);
    return false;
}

void frmQuickShow::DropMadeAlbum() {
    if (DBEngine) DropAlbum(*DBEngine, mAlbumID);  // at the end of the program it has gone
    mAlbumID = 0;
    mSlideShowID = 0;
}

void frmQuickShow::Form_Load() {
    if (!ImportDir().isEmpty()) DirectoryChosen(WithSeparator(ImportDir()));
    ImportForm::Form_Load();
}

}  // namespace neb
