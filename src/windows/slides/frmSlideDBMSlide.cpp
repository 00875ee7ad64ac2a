// The slide that the slide manager shows, and what the user does with it: its fields and its
// picture are changed, it is saved and deleted, and many are imported.
#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalBlocker>

#include "albums/SlideSave.h"
#include "controls/forms/Tell.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/formats/PictureFaults.h"
#include "settings/modNEBSlideShow.h"
#include "support/MediaTypes.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modDEValidation.h"
#include "support/modFUFL.h"
#include "ui_frmSlideDBM.h"
#include "windows/frame/modUserInput.h"
#include "windows/frame/modWindowState.h"
#include "windows/import/frmDirSelect.h"
#include "windows/import/frmImportFilter.h"
#include "windows/printing/frmPrintSheet.h"
#include "windows/printing/frmPrintSlide.h"
#include "windows/slides/PicturePlace.h"
#include "windows/slides/SlideChoice.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {
namespace {

constexpr quint32 BadFileName = 52;
// What is smaller is done at once: a thread of its own would hold up the walk through an album.
constexpr qint64 QuickBytes = 2'000'000, QuickPixels = 4'000'000;

BoxRequest LoadProblem(const Fault& Problem) {
    const bool NoAccess = Problem.Number() == BadFileName || Problem.Number() == FaultCannotOpen;
    const QString What = NoAccess ? tr("Error Loading the File.  Make sure that you have access "
                                       "permissions to it.")
                                  : Problem.What();
    return {.Text = What + tr("\nAn Error occured while attempting to Load the graphic for the "
                              "current slide.\nDouble Slick on the Slide Spaceholder to browse "
                              "for it."),
            .Title = tr("Error Loading Slide")};
}

}  // namespace

// What is to be said about it, if anything.
std::optional<BoxRequest> frmSlideDBM::ShowSlide() {
    const std::int32_t Album = Lists().AlbumID(), Slide = Lists().SlideID();
    clsNEBAlbum* Found = DBEngine->GetAlbum(Album);
    if (!Found) return Refuse(tr("Could not find the album."));
    mInHand.MoveTo(Album, Slide);
    const clsNEBSlide* Stored = Found->GetSlide(Slide);
    if (!Stored) return Refuse(tr("Could not find the slide."));
    mInHand.Take(Album, *Stored);
    Answer<ReadyPicture> Ready = LoadStored();
    ShowPicture(Ready ? *Ready : ReadyPicture());
    ShowFields();
    if (Ready) return {};
    return Ready.Refusal();
}

void frmSlideDBM::ShowNew() {
    mInHand.TakeNew(Lists().AlbumID());
    ShowPicture({});
    ShowFields();
    mUi->cmdDelete->setEnabled(false);
}

void frmSlideDBM::ShowFields() {
    const QSignalBlocker Quiet(mUi->txtDscr);
    mUi->txtDscr->setText(mInHand.Caption());
    mUi->txtDscr->setCursorPosition(0);
    mUi->chkOverride->setChecked(mInHand.Override());
    mUi->chkRepeat->setChecked(mInHand.Repeat());
    ShowSound(mInHand.HasSound());
    ShowChanged(false);
}

void frmSlideDBM::ShowChanged(bool Changed) {
    mUi->cmdSave->setEnabled(Changed);
    mUi->cmdCancel->setEnabled(Changed);
}

// Whether what was made of the slide has been dealt with. Without an album there is nowhere to save
// it.
bool frmSlideDBM::MayLeave() {
    const auto Question = tr("Are you sure you want to discard the changes to the current slide?");
    const auto Title = tr("Discard Changes Confirmation");
    if (!mInHand.IsChanged()) return true;
    BringToFront(*this);
    if (mUi->cboAlbum->currentIndex() < 0) return AskYesNo(Question, Title);
    const BoxAnswer Answered = AskSave(Question, Title);
    return Answered == BoxAnswer::Save ? SaveInHand() : Answered == BoxAnswer::Discard;
}

frmSlideDBM::ReadyPicture frmSlideDBM::MakeReady(ImgX Whole, QSize LargestScreen) {
    QImage OnScreen = PictureView::ForScreens(Whole.Picture(), LargestScreen);
    return {std::move(Whole), std::move(OnScreen)};
}

Answer<frmSlideDBM::ReadyPicture> frmSlideDBM::LoadGraphic(const QString& Path) {
    const auto Read = [Path, Largest = PictureView::LargestScreen()] {
        ImgX Loaded;
        Loaded.Load(Path);
        return MakeReady(std::move(Loaded), Largest);
    };
    try {
        const PointerScope Working(Pointer::Hourglass);
        const bool Stored = !HoldsSeparator(mInHand.PictureName());
        return Stored && FileSize(Path) < QuickBytes ? Read() : Aside(Read).get();
    } catch (const Fault& Problem) {
        return LoadProblem(Problem);
    }
}

Answer<frmSlideDBM::ReadyPicture> frmSlideDBM::LoadStored() {
    Answer<QString> Path = StoredPicture(DBEngine->DBPath(), mInHand);
    return Path ? LoadGraphic(*Path) : Path.Refusal();
}

// One without pixels leaves the place to its message.
void frmSlideDBM::ShowPicture(const ReadyPicture& Ready) {
    mPlace->Show(Ready.OnScreen);
    LetGo(mInHand.SetPicture(Ready.OnScreen.isNull() ? std::nullopt : std::optional(Ready.Whole)));
}

void frmSlideDBM::LetGo(std::optional<ImgX> Before) {
    if (!Before || qint64(Before->Width()) * Before->Height() < QuickPixels) return;
    Aside([Before = std::move(Before)] { return Before->Width(); });
}

void frmSlideDBM::CaptionTyped() {
    if (ReadOnlyDB) return;
    mInHand.SetCaption(mUi->txtDscr->text());
    ShowChanged(true);
}

void frmSlideDBM::PlayingSet() {
    if (ReadOnlyDB) return;
    mInHand.SetPlaying(mUi->chkOverride->isChecked(), mUi->chkRepeat->isChecked());
    ShowChanged(true);
}

// The message is no picture of the user's: it is not turned, and so never stored.
void frmSlideDBM::Turn(void (*Operation)(ImgX& Picture)) {
    if (ReadOnlyDB || !mInHand.Picture()) return;
    auto Work = [Operation, Largest = PictureView::LargestScreen(),
                 Turned = *mInHand.Picture()]() mutable {
        Operation(Turned);
        return MakeReady(std::move(Turned), Largest);
    };
    const ReadyPicture Ready = Aside(std::move(Work)).get();
    mPlace->Show(Ready.OnScreen);
    LetGo(mInHand.Turn(Ready.Whole));
    ShowChanged(true);
}

void frmSlideDBM::ChoosePicture() {
    if (ReadOnlyDB) return;
    const QString Path = AskForPicture(mInHand.PictureName());
    if (!Path.isEmpty() && IsLoaded()) TakePicture(Path);
}

void frmSlideDBM::TakePicture(const QString& Path) {
    mInHand.ChoosePicture(AbsolutePath(Path));
    Answer<ReadyPicture> Ready = LoadGraphic(mInHand.PictureName());
    ShowPicture(Ready ? *Ready : ReadyPicture());
    ShowChanged(true);
    Tell(Ready);
}

// Whether no other window holds the user's attention.
bool frmSlideDBM::IsFree() const {
    const QWidget* Modal = QApplication::activeModalWidget();
    return IsLoaded() && !IsBusy() && !ReadOnlyDB && (!Modal || Modal == this);
}

void frmSlideDBM::dragEnterEvent(QDragEnterEvent* Event) {
    if (IsFree() && !DraggedFile(*Event->mimeData()).isEmpty()) Event->acceptProposedAction();
}

void frmSlideDBM::TakeDragged(const QString& Path) {
    if (IsPictureName(Path))
        TakePicture(Path);
    else
        TakeSoundFile(Path);
}

void frmSlideDBM::dropEvent(QDropEvent* Event) {
    const QString Path = DraggedFile(*Event->mimeData());
    if (Path.isEmpty() || !IsFree()) return;
    Event->acceptProposedAction();
    // a box about the file waits until the drag is over, so that the source is not held up
    const auto Take = [this, Path] {
        if (IsFree()) Command([&] { TakeDragged(Path); });
    };
    QMetaObject::invokeMethod(this, Take, Qt::QueuedConnection);
}

void frmSlideDBM::New() {
    if (!MayLeave()) return;
    Lists().ChooseSlideAt(mUi->cboSlides->count() > 0 ? 0 : -1);
    ShowNew();
}

void frmSlideDBM::GoTo(int (*Step)(int Index, int Last)) {
    if (!MayLeave()) return;
    const int Index = Step(mUi->cboSlides->currentIndex(), mUi->cboSlides->count() - 1);
    if (Index < 0) return;
    Lists().ChooseSlideAt(Index);
    ShowChosen(Cause::Program);
}

void frmSlideDBM::Next() {
    GoTo(&NextSlideIndex);
}

void frmSlideDBM::Previous() {
    GoTo(&PreviousSlideIndex);
}

// Without an album there is nothing stored to come back.
void frmSlideDBM::Cancel() {
    if (mUi->cboAlbum->currentIndex() < 0) return ShowNew();
    ShowChosen(Cause::Program);
}

bool frmSlideDBM::ConfirmCaption() const {
    if (!mUi->txtDscr->text().trimmed().isEmpty()) return true;
    return AskYesNo(tr("Are you sure you want to save the slide without a caption?\n"
                       "NOTE: It may be hard to tell slides apart in the combo\n"
                       "without captions."),
                    tr("Missing Caption Confirmation"), BoxAnswer::Yes);
}

// A fault on the way leaves the changes on the screen, to be saved again. A new slide is in the
// album by then: it is chosen, so that the next save completes it and makes no second one.
Answer<Announcement> frmSlideDBM::Store(const SlideInHand::JpegMaker& Jpeg) try {
    const PointerScope Working(Pointer::Hourglass);
    return SaveSlide(*DBEngine, this, mInHand, Jpeg);
} catch (...) {
    LoadAlbumSlides(Cause::Program);
    Lists().ChooseSlide(mInHand.SlideID());
    mUi->cmdDelete->setEnabled(true);
    throw;
}

// The picture is made before anything is changed, so that the rest is done in one go; what went
// wrong with it comes up in its turn.
bool frmSlideDBM::SaveInHand() {
    if (ReadOnlyDB || !ConfirmCaption()) return false;
    mUi->txtDscr->setText(CleanText(mUi->txtDscr->text()));
    mInHand.MoveTo(Lists().AlbumID(), Lists().SlideID());
    if (!Tell(CheckPicture(DBEngine->DBPath(), mInHand))) return false;
    SlideInHand::JpegMaker Jpeg = mInHand.Jpeg(mUi->fldKeeping->Keeping());
    if (Jpeg) Jpeg = [Ready = Aside(Jpeg)] { return Ready.get(); };
    Answer<Announcement> Saved = Store(Jpeg);
    if (!Tell(Saved)) return false;
    Saved->Now();
    ShowChanged(false);
    LoadAlbumSlides(Cause::Program);
    Lists().ChooseSlide(mInHand.SlideID());
    ShowChosen(Cause::Program);
    return true;
}

bool frmSlideDBM::ConfirmDelete() const {
    return AskYesNo(tr("Are you sure you want to delete the selected slide defintion?\n"
                       "WARNING: If you procede the slide will be deleted from all\n"
                       "Slide Shows that use it?"),
                    tr("Delete Confirmation"));
}

void frmSlideDBM::Delete() {
    if (ReadOnlyDB) return;
    if (mUi->cboSlides->currentIndex() < 1) return SlideChosen();
    if (!ConfirmDelete()) return;
    const std::int32_t Album = Lists().AlbumID();
    Answer<Announcement> Deleted = DeleteSlide(*DBEngine, this, Album, Lists().SlideID());
    if (!Tell(Deleted)) return;
    Deleted->Now();
    MsgBox(tr("Slide Deleted Successfully."), tr("Delete Successful"), BoxIcon::Information);
    mInHand.TakeNew(Album);
    Lists().ChooseAlbum(Album);
    ShowAlbum(Cause::Program);
    New();
}

void frmSlideDBM::ToolClicked(const QString& Name) {
    if (Name == u"mnuImport") Import();
    if (Name == u"mnuPrintSlide") PrintCurrentSlide();
    if (Name == u"mnuPrintSlideSheet") PrintCurrentSheet();
    if (Name == u"mnuExit") Unload();
}

QString frmSlideDBM::FileToPrint() const {
    const QString& Name = mInHand.PictureName();
    if (Name.isEmpty()) return {};
    if (HoldsSeparator(Name) || mUi->cboAlbum->currentIndex() >= 0)
        return SlidePath(DBEngine->DBPath(), Lists().AlbumID(), Name);
    MsgBox(tr("You must first select an album to print from."), tr("Missing User Input"),
           BoxIcon::Information);
    return {};
}

void frmSlideDBM::PrintCurrentSlide() {
    const QString Path = FileToPrint();
    if (!Path.isEmpty()) NewForm<frmPrintSlide>()->PrintSlide(Path);
}

void frmSlideDBM::PrintCurrentSheet() {
    const QString Path = FileToPrint();
    if (!Path.isEmpty()) NewForm<frmPrintSheet>()->PrintSlide(Path, mUi->txtDscr->text());
}

void frmSlideDBM::Import() {
    if (mUi->cboAlbum->currentIndex() < 0) {
        MsgBox(tr("You must first select an album to import into."), tr("Missing User Input"),
               BoxIcon::Information);
        return;
    }
    ImportFromDirectory();
    if (IsLoaded()) AlbumChosen();
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
    Filter->SetAlbumID(Lists().AlbumID());
    Filter->SetAlbumName(mUi->cboAlbum->currentText());
    if (Filter->Aborted()) return;
    try {
        Filter->ShowModal();
    } catch (const Fault&) {
        // what came in before it has come in
    }
}

}  // namespace neb
