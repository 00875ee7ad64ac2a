// The slide that the slide manager shows: its fields, its picture, and what the user changes.
#include <QDragEnterEvent>
#include <QMimeData>

#include "albums/SlideSave.h"
#include "albums/modPictureFiles.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "pictures/formats/PictureFaults.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"
#include "ui_frmSlideDBM.h"
#include "windows/recorder/frmSoundRecorder.h"
#include "windows/slides/frmSlideDBM.h"

namespace neb {
namespace {

constexpr quint32 BadFileName = 52;
// What is smaller is done at once: a thread of its own would hold up the walk through an album.
constexpr qint64 QuickBytes = 2'000'000, QuickPixels = 4'000'000;

QString Placeholder() {
    return AppPath() + QStringLiteral("NoSlide.bmp");
}

QString ProblemText(const Fault& Problem) {
    return Problem.Number() == BadFileName || Problem.Number() == FaultCannotOpen
               ? QStringLiteral(
                     "Error Loading the File.  Make sure that you have access "
                     "permissions to it.")
               : Problem.What();
}

// The first picture among what is dragged; empty when there is none.
QString DraggedPicture(const QMimeData& Data) {
    for (const QUrl& Url : Data.urls())
        if (Url.isLocalFile() && IsPictureName(Url.toLocalFile())) return Url.toLocalFile();
    return {};
}

QString TemporarySound() {
    return DBEngine->DBPath() + QStringLiteral("Temp/tmp.wav");
}

// What was recorded. The recorder may report a recording though nothing was said into it: then
// there is nothing to keep, an earlier recording of another slide least of all.
std::optional<QByteArray> RecordSound() {
    try {
        DeleteFile(TemporarySound());
        const auto Recorder = NewForm<frmSoundRecorder>();
        Recorder->SetSoundSavePath(TemporarySound());
        Recorder->ShowModal();
        if (Recorder->SoundRecorded() && FileExists(TemporarySound()))
            return ReadFile(TemporarySound());
    } catch (const Fault&) {
        // the recorder has said so in its own window
    }
    return {};
}

}  // namespace

void frmSlideDBM::ShowSlide() {
    clsNEBAlbum* Album = DBEngine->GetAlbum(AlbumID());
    if (!Album) return Report(QStringLiteral("Could not find the album."));
    mCurrentAlbumID = AlbumID();
    mCurrentSlideID = SlideID();
    const clsNEBSlide* Slide = Album->GetSlide(mCurrentSlideID);
    if (!Slide) return Report(QStringLiteral("Could not find the slide."));
    const clsNEBSlide Stored = *Slide;  // it may go while a box is open
    ShowStoredPicture(Stored.SlideLoc);
    mUi->txtDscr->setText(Stored.SlideText);
    mUi->txtDscr->setCursorPosition(0);
    ShowSound(Stored);
    SetClean();
}

void frmSlideDBM::ShowStoredPicture(const QString& SlideLoc) {
    mSlideLoc = SlideLoc;
    if (SlideLoc.isEmpty()) {
        LoadGraphic(Placeholder());
        return Report(QStringLiteral("The Current Slide Appears to be Corrupt."));
    }
    const QString Path = SlidePath(DBEngine->DBPath(), AlbumID(), SlideLoc);
    if (FileExists(Path)) {
        LoadGraphic(Path);
        return;
    }
    LoadGraphic(Placeholder());
    Report(QStringLiteral("The graphic for the current slide appears to have been deleted.\n"
                          "Double Slick on the Slide Spaceholder to browse for it."),
           QStringLiteral("Slide Missing"));
}

void frmSlideDBM::ClearSound() {
    mSoundLoc.clear();
    mRecording.clear();
    for (QCheckBox* Box : {mUi->chkOverride, mUi->chkRepeat}) {
        Box->setChecked(false);
        Box->setEnabled(false);
    }
    mUi->cmdClearSound->setEnabled(false);
    mSoundRecorded = mSoundCleared = false;
    TellSound();
}

void frmSlideDBM::ShowSound(const clsNEBSlide& Slide) {
    ClearSound();
    if (Slide.SoundTrackLoc.isEmpty()) return;
    mSoundLoc = Slide.SoundTrackLoc;
    mUi->chkOverride->setChecked(Slide.Override);
    mUi->chkRepeat->setChecked(Slide.Repeat);
    for (QWidget* Each :
         std::initializer_list<QWidget*>{mUi->chkOverride, mUi->chkRepeat, mUi->cmdClearSound})
        Each->setEnabled(!ReadOnlyDB);
    TellSound();
}

void frmSlideDBM::TellSound() {
    const QString Text = mSoundCleared          ? tr("The sound goes with the next save.")
                         : mSoundRecorded       ? tr("A new recording, not yet saved.")
                         : !mSoundLoc.isEmpty() ? tr("This slide has a sound.")
                                                : tr("This slide has no sound.");
    mUi->lblSound->setText(Text);
}

// The name of the picture stays: a new slide saved without one has passed the check for years.
void frmSlideDBM::ClearSlideFields() {
    LoadGraphic(Placeholder());
    mCurrentAlbumID = AlbumID();
    mCurrentSlideID = 0;
    mUi->txtDscr->clear();
    ClearSound();
    mUi->cmdDelete->setEnabled(false);
    SetClean();
}

void frmSlideDBM::SetClean() {
    mUi->cmdSave->setEnabled(false);
    mUi->cmdCancel->setEnabled(false);
    mDirty = false;
}

void frmSlideDBM::MarkDirty() {
    if (ReadOnlyDB) return;
    mUi->cmdSave->setEnabled(true);
    mUi->cmdCancel->setEnabled(true);
    mDirty = true;
}

bool frmSlideDBM::AskDiscard() {
    return AskYesNo(
        QStringLiteral("Are you sure you want to discard the changes to the current slide?"),
        QStringLiteral("Discard Changes Confirmation"));
}

frmSlideDBM::ReadyPicture frmSlideDBM::MakeReady(ImgX Whole, QSize LargestScreen) {
    QImage OnScreen = PictureView::ForScreens(Whole.Picture(), LargestScreen);
    return {std::move(Whole), std::move(OnScreen)};
}

bool frmSlideDBM::LoadGraphic(const QString& Path) {
    const bool IsPlaceholder = Path == Placeholder();
    mPictureEdited = false;
    const auto Read = [Path, Largest = PictureView::LargestScreen()] {
        ImgX Loaded;
        Loaded.Load(Path);
        return MakeReady(std::move(Loaded), Largest);
    };
    ReadyPicture Loaded;
    try {
        const bool Stored = !HoldsSeparator(mSlideLoc) && FileSize(Path) < QuickBytes;
        const PointerScope Working(Pointer::Hourglass);
        Loaded = IsPlaceholder || Stored ? Read() : Aside(Read).get();
    } catch (const Fault& Problem) {
        if (!IsPlaceholder) {
            LoadGraphic(Placeholder());
            Report(
                ProblemText(Problem) +
                    QStringLiteral("\nAn Error occured while attempting to Load the graphic for "
                                   "the current slide.\nDouble Slick on the Slide Spaceholder to "
                                   "browse for it."),
                QStringLiteral("Error Loading Slide"));
            return false;
        }
    }
    mUi->stkPicture->setCurrentWidget(IsPlaceholder ? static_cast<QWidget*>(mUi->flxMsg)
                                                    : mUi->imgSlide);
    ShowPicture(Loaded);
    return true;
}

void frmSlideDBM::ShowPicture(const ReadyPicture& Ready) {
    mUi->imgSlide->SetPicture(Ready.OnScreen);
    FitMessage();
    if (qint64(mPicture.Width()) * mPicture.Height() < QuickPixels) {
        mPicture = Ready.Whole;
        return;
    }
    Aside([Before = std::exchange(mPicture, Ready.Whole)] { return Before.Width(); });
}

bool frmSlideDBM::HasPicture() const {
    return mUi->stkPicture->currentWidget() == mUi->imgSlide;
}

// The placeholder is no picture of the user's: it is not turned, and so never stored.
void frmSlideDBM::Edit(void (*Operation)(ImgX& Picture)) {
    if (ReadOnlyDB || mWorking || !HasPicture()) return;
    const auto Held = shared_from_this();
    auto Turn = [Operation, Largest = PictureView::LargestScreen(), Turned = mPicture]() mutable {
        Operation(Turned);
        return MakeReady(std::move(Turned), Largest);
    };
    ShowPicture(Aside(std::move(Turn)).get());
    mPictureEdited = true;
    MarkDirty();
}

void frmSlideDBM::ChoosePicture() {
    if (ReadOnlyDB || mWorking) return;
    const auto Held = shared_from_this();
    const QString Path = TheServices().Dialogs->OpenFile(
        tr("Choose a Picture"), HoldsSeparator(mSlideLoc) ? GetFilePath(mSlideLoc) : QString(),
        PictureFilters());
    if (!Path.isEmpty() && IsLoaded()) TakePicture(Path);
}

void frmSlideDBM::TakePicture(const QString& Path) {
    mSlideLoc = AbsolutePath(Path);
    LoadGraphic(mSlideLoc);
    MarkDirty();
}

void frmSlideDBM::dragEnterEvent(QDragEnterEvent* Event) {
    if (IsFree() && !ReadOnlyDB && !DraggedPicture(*Event->mimeData()).isEmpty())
        Event->acceptProposedAction();
}

void frmSlideDBM::dropEvent(QDropEvent* Event) {
    const QString Path = DraggedPicture(*Event->mimeData());
    if (Path.isEmpty() || ReadOnlyDB || !IsFree()) return;
    Event->acceptProposedAction();
    // a box about the picture waits until the drag is over, so that the source is not held up
    const auto Take = [this, Path] {
        const auto Held = shared_from_this();
        if (IsFree()) TakePicture(Path);
    };
    QMetaObject::invokeMethod(this, Take, Qt::QueuedConnection);
}

void frmSlideDBM::Record() {
    if (ReadOnlyDB) return;
    const std::optional<QByteArray> Recorded = RecordSound();
    if (!Recorded || !IsLoaded()) return;
    mRecording = *Recorded;
    mSoundRecorded = true;
    for (QWidget* Each :
         std::initializer_list<QWidget*>{mUi->chkOverride, mUi->chkRepeat, mUi->cmdClearSound})
        Each->setEnabled(true);
    TellSound();
    MarkDirty();
}

void frmSlideDBM::DropSound() {
    if (ReadOnlyDB) return;
    mSoundCleared = true;
    TellSound();
    MarkDirty();
}

void frmSlideDBM::New() {
    if (mDirty && !AskDiscard()) return;
    const Guard Quiet(mIgnoreClick);
    mUi->cboSlides->setCurrentIndex(mUi->cboSlides->count() > 0 ? 0 : -1);
    ClearSlideFields();
}

// The question was asked: the move that follows does not ask again.
void frmSlideDBM::GoTo(int (*Step)(int Index, int Last)) {
    if (mDirty && !AskDiscard()) return;
    const int Index = Step(mUi->cboSlides->currentIndex(), mUi->cboSlides->count() - 1);
    if (Index < 0) return;
    const Guard Asked(mCancelling);
    SelectSlideIndex(Index);
}

void frmSlideDBM::Next() {
    GoTo(&NextSlideIndex);
}

void frmSlideDBM::Previous() {
    GoTo(&PreviousSlideIndex);
}

// Without an album there is nothing stored to come back.
void frmSlideDBM::Cancel() {
    if (mUi->cboAlbum->currentIndex() < 0) return ClearSlideFields();
    const Guard Cancelling(mCancelling);
    cboSlides_Click();
}

}  // namespace neb
