// What the slide manager keeps: the save and the deletion of a slide, and the import of many.
#include <QApplication>

#include "albums/SlideSave.h"
#include "albums/modPictureFiles.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "ui_frmSlideDBM.h"
#include "windows/frame/modUserInput.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmImportFilter.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {
namespace {

void SayMissing(const char* Text) {
    MsgBox(QString::fromLatin1(Text), QStringLiteral("Missing Slide"), BoxIcon::Information);
}

// The slide under its number, a new one when it is 0, with the caption. Null after a box.
clsNEBSlide* SlideToSave(clsNEBAlbum& Album, std::int32_t& SlideID, const QString& Caption) {
    if (SlideID == 0) Album.SaveSlide(SlideID, Caption, {}, {}, false, false, *DBEngine);
    clsNEBSlide* Slide = SlideID != 0 ? Album.GetSlide(SlideID) : nullptr;
    if (Slide)
        Slide->SlideText = Caption;
    else
        MsgBox(SlideID == 0 ? QStringLiteral("Failed to save slide.")
                            : QStringLiteral("Could not find the slide."));
    return Slide;
}

}  // namespace

bool frmSlideDBM::ConfirmCaption() {
    if (!mUi->txtDscr->text().trimmed().isEmpty()) return true;
    return AskYesNo(QStringLiteral("Are you sure you want to save the slide without a caption?\n"
                                   "NOTE: It may be hard to tell slides apart in the combo\n"
                                   "without captions."),
                    QStringLiteral("Missing Caption Confirmation"));
}

bool frmSlideDBM::HasPictureToSave() {
    if (mSlideLoc.isEmpty()) {
        SayMissing("You must first select the picture you want to use for this slide.");
        return false;
    }
    if (FileExists(SlidePath(DBEngine->DBPath(), AlbumID(), mSlideLoc))) return true;
    SayMissing(
        "The currently selected slide cannot be found.\n"
        "You must select a new picture you want to use for this slide.");
    return false;
}

SlideEdits frmSlideDBM::Edits() const {
    SlideEdits Made;
    Made.Jpeg = JpegToStore(mSlideLoc, mPictureEdited ? &mPicture : nullptr);
    Made.SoundLoc = mSoundLoc;
    Made.SoundCleared = mSoundCleared;
    if (mSoundRecorded) Made.Recording = mRecording;
    Made.Override = mUi->chkOverride->isChecked();
    Made.Repeat = mUi->chkRepeat->isChecked();
    return Made;
}

// A fault on the way leaves the changes on the screen, to be saved again. A new slide is in the
// album by then: it is chosen, so that the next save completes it and makes no second one.
void frmSlideDBM::StoreFiles(std::int32_t AlbumID, clsNEBSlide& Slide, const SlideEdits& Made) try {
    const PointerScope Working(Pointer::Hourglass);
    StorePicture(*DBEngine, AlbumID, Slide, Made);
    StoreSound(*DBEngine, AlbumID, Slide, Made);
} catch (const Fault&) {
    mCurrentAlbumID = AlbumID;
    mCurrentSlideID = Slide.SlideID;
    LoadAlbumSlides();
    const Guard Quiet(mIgnoreClick);
    ComboBoxList List = Slides();
    ComboSelectByData(List, mCurrentSlideID, 0);
    mUi->cmdDelete->setEnabled(true);
    throw;
}

// The picture is made before anything is changed, so that the rest is done in one go; what went
// wrong with it comes up in its turn.
void frmSlideDBM::Save() {
    if (ReadOnlyDB || !ConfirmCaption()) return;
    mUi->txtDscr->setText(CleanText(mUi->txtDscr->text()));
    if (!HasPictureToSave()) return;
    SlideEdits Made = Edits();
    if (Made.Jpeg) Made.Jpeg = [Ready = Aside(Made.Jpeg)] { return Ready.get(); };
    const std::int32_t Album = AlbumID();
    clsNEBAlbum* Found = DBEngine->GetAlbum(Album);
    if (!Found) {
        MsgBox(QStringLiteral("Could not find the album."));
        return;
    }
    std::int32_t Slide = SlideID();
    clsNEBSlide* Stored = SlideToSave(*Found, Slide, mUi->txtDscr->text());
    if (!Stored) return;
    StoreFiles(Album, *Stored, Made);
    BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Add Slides"), this, {Album, Slide});
    SetClean();
    LoadAlbumSlides();
    SelectSlide(Slide);
    SetClean();
}

void frmSlideDBM::Delete() {
    if (ReadOnlyDB) return;
    if (mUi->cboSlides->currentIndex() < 1) return cboSlides_Click();
    if (!AskYesNo(QStringLiteral("Are you sure you want to delete the selected slide defintion?\n"
                                 "WARNING: If you procede the slide will be deleted from all\n"
                                 "Slide Shows that use it?"),
                  QStringLiteral("Delete Confirmation")))
        return;
    const std::int32_t Album = AlbumID(), Slide = SlideID();
    clsNEBAlbum* Found = DBEngine->GetAlbum(Album);
    if (!Found) {
        MsgBox(QStringLiteral("Could not find the album."));
        return;
    }
    Found->DeleteSlide(Slide, *DBEngine);
    Found->SortSlides();
    BroadcastEvent(QStringLiteral("Album"), QStringLiteral("Delete Slides"), this, {Album, Slide});
    MsgBox(QStringLiteral("Slide Deleted Successfully."), QStringLiteral("Delete Successful"),
           BoxIcon::Information);
    SetClean();
    SelectAlbumIndex(mUi->cboAlbum->findData(Album));
    New();
}

void frmSlideDBM::ToolClicked(const QString& Name) {
    if (mWorking) return;
    const auto Held = shared_from_this();
    if (Name == u"mnuImport") Import();
    if (Name == u"mnuExit") Unload();
}

void frmSlideDBM::Import() {
    if (mUi->cboAlbum->currentIndex() < 0) {
        MsgBox(QStringLiteral("You must first select an album to import into."),
               QStringLiteral("Missing User Input"), BoxIcon::Information);
        return;
    }
    ImportFromDirectory();
    if (IsLoaded()) cboAlbum_Click();
}

void frmSlideDBM::ImportFromDirectory() {
    const auto Selector = NewForm<frmDirSelect>();
    const QString Chosen = Selector->SelectDirectory();
    if (Chosen.isEmpty() || !IsLoaded()) return;
    const QString Directory = WithSeparator(Chosen);
    if (IsReservedForAlbums(Directory, DBEngine->DBPath())) return;
    const auto Filter = NewForm<frmImportFilter>();
    Filter->SetRecurseDir(Selector->RecurseDir());
    Filter->SetImportDir(Directory);
    Filter->SetAlbumID(AlbumID());
    Filter->SetAlbumName(mUi->cboAlbum->currentText());
    if (Filter->Aborted()) return;
    try {
        Filter->ShowModal();
    } catch (const Fault&) {
        // what came in before it has come in
    }
}

// Whether no other window holds the user's attention.
bool frmSlideDBM::IsFree() const {
    const QWidget* Modal = QApplication::activeModalWidget();
    return IsLoaded() && !mWorking && (!Modal || Modal == this);
}

}  // namespace neb
