// The slide manager's controls, its two lists, the sound of its slide, and how it follows other
// windows. What else stands on the screen and what the user does with it is in
// frmSlideDBMSlide.cpp.
#include "windows/slides/frmSlideDBM.h"

#include <QAbstractItemView>

#include "albums/SlideSave.h"
#include "controls/fields/CaptionCount.h"
#include "controls/fields/Icons.h"
#include "controls/fields/KeyFilter.h"
#include "controls/fields/ToolBar.h"
#include "controls/forms/Tell.h"
#include "controls/forms/modTwips.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "sound/workers/SoundReading.h"
#include "support/Services.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modCharacters.h"
#include "support/modDEValidation.h"
#include "ui_frmSlideDBM.h"
#include "windows/frame/Openers.h"
#include "windows/frame/modWindowState.h"
#include "windows/slides/ClipPlayer.h"
#include "windows/slides/PicturePlace.h"
#include "windows/slides/SlideChoice.h"

namespace neb {
namespace {

const WindowMemory Memory{QStringLiteral("frmSlideDBM"), 7200, 7815};
constexpr int LeastWidth = 7695;  // twips; the least height is that of the controls
constexpr char Title[] = QT_TR_NOOP("Slide Manager");

}  // namespace

frmSlideDBM::frmSlideDBM() : mUi(std::make_unique<Ui::frmSlideDBM>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    mPlace = new PicturePlace(*mUi->stkPicture, *mUi->imgSlide, *mUi->flxMsg);
    mPlayer = new ClipPlayer(*mUi->cmdPlaySound);
    SetUpButtons();
    SetUpTurns();
    SetUpFields();
    SetUpToolBar();
    LoadIcons();
    mUi->lytMain->addStrut(ToPixels(LeastWidth) - 2 * mUi->lytMain->contentsMargins().left());
}

frmSlideDBM::~frmSlideDBM() = default;

void frmSlideDBM::SetUpButtons() {
    const std::pair<QPushButton*, void (frmSlideDBM::*)()> Buttons[] = {
        {mUi->cmdNew, &frmSlideDBM::New},
        {mUi->cmdSave, &frmSlideDBM::Save},
        {mUi->cmdDelete, &frmSlideDBM::Delete},
        {mUi->cmdCancel, &frmSlideDBM::Cancel},
        {mUi->cmdClose, &frmSlideDBM::Close},
        {mUi->cmdPrev, &frmSlideDBM::Previous},
        {mUi->cmdNext, &frmSlideDBM::Next},
        {mUi->cmdRecord, &frmSlideDBM::Record},
        {mUi->cmdSoundFile, &frmSlideDBM::ChooseSound},
        {mUi->cmdPlaySound, &frmSlideDBM::HearSound},
        {mUi->cmdClearSound, &frmSlideDBM::DropSound},
        {mUi->cmdPicture, &frmSlideDBM::ChoosePicture},
    };
    for (const auto& [Button, Do] : Buttons) On(Button, &QPushButton::clicked, Do);
}

void frmSlideDBM::SetUpTurns() {
    const std::pair<QPushButton*, void (*)(ImgX&)> Turns[] = {
        {mUi->cmdRotate1, [](ImgX& Picture) { Picture.Rotate(-90); }},
        {mUi->cmdRotate2, [](ImgX& Picture) { Picture.Rotate(90); }},
        {mUi->cmdFlip1, [](ImgX& Picture) { Picture.Flip(0); }},
        {mUi->cmdFlip2, [](ImgX& Picture) { Picture.Flip(1); }},
    };
    for (const auto& [Button, Operation] : Turns)
        connect(Button, &QPushButton::clicked, this,
                [this, Do = Operation] { Command([this, Do] { Turn(Do); }); });
}

void frmSlideDBM::SetUpFields() {
    mUi->fldKeeping->SetKey(Qt::ALT | Qt::Key_Z);
    On(mPlace, &PicturePlace::Opened, &frmSlideDBM::ChoosePicture);
    On(mUi->cboAlbum, &QComboBox::currentIndexChanged, &frmSlideDBM::AlbumChosen);
    On(mUi->cboSlides, &QComboBox::currentIndexChanged, &frmSlideDBM::SlideChosen);
    On(mUi->txtDscr, &QLineEdit::textChanged, &frmSlideDBM::CaptionTyped);
    for (QCheckBox* Box : {mUi->chkOverride, mUi->chkRepeat})
        On(Box, &QCheckBox::clicked, &frmSlideDBM::PlayingSet);
    new KeyFilter(mUi->txtDscr, &FixQuoteKey);
    new CaptionCount(mUi->txtDscr);
    for (QComboBox* Box : {mUi->cboAlbum, mUi->cboSlides})
        Box->view()->setAccessibleName(Box->accessibleName());
}

void frmSlideDBM::SetUpToolBar() {
    const struct {
        const char *Name, *Caption, *ToolTip, *IconName, *Keys;
        bool On;
    } Tools[] = {
        {"mnuImport", QT_TR_NOOP("Import Graphics"),
         QT_TR_NOOP("Import the graphics of a directory into the album"), "import-directory",
         "Ctrl+O", !ReadOnlyDB},
        {"mnuPrintSlide", QT_TR_NOOP("Print Slide"), QT_TR_NOOP("Print this slide"), "print",
         "Ctrl+P", true},
        {"mnuPrintSlideSheet", QT_TR_NOOP("Print Slide Sheet"),
         QT_TR_NOOP("Print a sheet of this slide"), "print-sheet", "", true},
        {"mnuExit", QT_TR_NOOP("Exit"), QT_TR_NOOP("Close this window"), "exit", "", true},
    };
    for (const auto& Each : Tools) {
        const QString Name = QString::fromLatin1(Each.Name);
        mUi->abrMenu->AddTool(Name, tr(Each.Caption), tr(Each.ToolTip),
                              QString::fromLatin1(Each.IconName),
                              QKeySequence(QString::fromLatin1(Each.Keys)));
        mUi->abrMenu->SetToolEnabled(Name, Each.On);
    }
    connect(mUi->abrMenu, &ToolBar::ToolClicked, this,
            [this](const QString& Name) { Command([&] { ToolClicked(Name); }); });
}

void frmSlideDBM::LoadIcons() {
    const std::pair<QPushButton*, const char*> Icons[] = {
        {mUi->cmdNew, "new"},
        {mUi->cmdSave, "save"},
        {mUi->cmdDelete, "delete"},
        {mUi->cmdCancel, "cancel"},
        {mUi->cmdPrev, "slide-previous"},
        {mUi->cmdNext, "slide-next"},
        {mUi->cmdRecord, "record"},
        {mUi->cmdSoundFile, "open"},
        {mUi->cmdClearSound, "sound-remove"},
        {mUi->cmdPicture, "album"},
        {mUi->cmdRotate1, "rotate-left"},
        {mUi->cmdRotate2, "rotate-right"},
        {mUi->cmdFlip1, "flip-horizontal"},
        {mUi->cmdFlip2, "flip-vertical"},
    };
    for (const auto& [Button, Name] : Icons)
        Button->setIcon(ThemeIcon(QString::fromLatin1(Name), palette()));
    mPlayer->ShowButton();
}

void frmSlideDBM::changeEvent(QEvent* Event) {
    Form::changeEvent(Event);
    if (Event->type() == QEvent::PaletteChange) LoadIcons();
}

// Loaded inside its frame, to which its size belongs.
void frmSlideDBM::LoadSlideMgr(std::int32_t AlbumID, std::int32_t SlideID) {
    const auto Held = shared_from_this();
    // once it stands in front, no other window does
    const std::int32_t Wanted = AlbumID != 0 ? AlbumID : AlbumInHand();
    NoteAlbumInHand(Wanted);
    if (TheOpeners().ShowAsChild)
        TheOpeners().ShowAsChild(*this);
    else
        ShowModeless();
    for (QWidget* Each : std::initializer_list<QWidget*>{
             mUi->txtDscr, mUi->cmdNew, mUi->cmdSave, mUi->cmdDelete, mUi->cmdCancel, mUi->cmdFlip1,
             mUi->cmdFlip2, mUi->cmdRotate1, mUi->cmdRotate2, mUi->cmdPicture, mUi->cmdRecord,
             mUi->cmdSoundFile, mUi->fldKeeping})
        Each->setEnabled(!ReadOnlyDB);
    if (Wanted != 0) GoToSlide(Wanted, SlideID);
}

void frmSlideDBM::GoToSlide(std::int32_t AlbumID, std::int32_t SlideID) {
    Command([&] {
        Form_Activate();  // the albums are listed by the first one
        if (!IsLoaded() || !Lists().ChooseAlbum(AlbumID)) return;
        ShowAlbum(Cause::Program);
        if (SlideID != 0 && Lists().ChooseSlide(SlideID)) ShowChosen(Cause::Program);
    });
}

void frmSlideDBM::Form_Load() {
    ShowNew();
    RestoreWindow(*this, Memory);
}

void frmSlideDBM::Form_Activate() {
    if (mStage != Stage::Opening) return;
    mStage = Stage::Open;
    Lists().ListAlbums();
    if (mUi->cboAlbum->count() > 0) return mUi->cboAlbum->setFocus();
    MsgBox(tr("You must first create an album."));
    Unload();
}

bool frmSlideDBM::Form_QueryUnload() {
    return !IsBusy() && MayLeave();
}

bool frmSlideDBM::Form_Unload() {
    if (IsBusy()) return false;
    mPlayer->Stop();
    SaveWindow(*this, Memory);
    return true;
}

SlideLists frmSlideDBM::Lists() const {
    return {*mUi->cboAlbum, *mUi->cboSlides};
}

void frmSlideDBM::AlbumChosen() {
    NoteAlbumInHand(HeldAlbum());
    ShowAlbum(Cause::User);
}

void frmSlideDBM::ShowAlbumName() {
    const QString Name = mUi->cboAlbum->currentText();
    setWindowTitle(Lists().AlbumID() == 0
                       ? tr(Title)
                       : tr(Title) + QStringLiteral(" - ") + InOwnDirection(Name));
}

void frmSlideDBM::LoadAlbumSlides(Cause Why) {
    const Answer<> Listed = Lists().ListSlides();
    if (Why != Cause::OtherWindow) Tell(Listed);
}

void frmSlideDBM::ShowAlbum(Cause Why) {
    if (mUi->cboAlbum->currentIndex() < 0) Lists().ChooseAlbumAt(0);
    ShowAlbumName();
    if (mUi->cboAlbum->count() == 0) return;
    LoadAlbumSlides(Why);
    if (mUi->cboSlides->count() == 0) return;
    Lists().ChooseSlideAt(0);
    ShowChosen(Why);
}

void frmSlideDBM::ShowChosen(Cause Why) {
    if (mUi->cboAlbum->currentIndex() < 0) return;
    mUi->cmdDelete->setEnabled(!ReadOnlyDB);
    if (Why == Cause::User && mInHand.IsChanged() && !MayShowChosen()) return;
    if (mUi->cboSlides->currentIndex() < 1) return ShowNew();
    const std::optional<BoxRequest> Problem = ShowSlide();
    if (Problem && Why != Cause::OtherWindow) ShowBox(*Problem);
}

// The lists go back to the slide whose changes the user wants to keep, from another album, too.
void frmSlideDBM::BackToEdited() {
    if (Lists().AlbumID() != mInHand.AlbumID() && Lists().ChooseAlbum(mInHand.AlbumID())) {
        ShowAlbumName();
        LoadAlbumSlides(Cause::User);
    }
    Lists().ChooseSlide(mInHand.SlideID());
}

// The lists stand at the slide that the question is about, and where it is saved, until that has
// been answered; then at the chosen one again.
bool frmSlideDBM::MayShowChosen() {
    const std::int32_t Album = Lists().AlbumID(), Slide = Lists().SlideID();
    BackToEdited();
    if (!MayLeave()) return false;
    if (Lists().AlbumID() != Album && Lists().ChooseAlbum(Album)) {
        ShowAlbumName();
        LoadAlbumSlides(Cause::User);
    }
    Lists().ChooseSlide(Slide);
    return true;
}

// Whatever was to be heard before is over.
void frmSlideDBM::ShowSound(bool HasSound) {
    mPlayer->Stop();
    for (QWidget* Each :
         std::initializer_list<QWidget*>{mUi->chkOverride, mUi->chkRepeat, mUi->cmdClearSound})
        Each->setEnabled(HasSound && !ReadOnlyDB);
    using Sound = SlideInHand::Sound;
    const Sound Is = mInHand.SoundState();
    mUi->cmdPlaySound->setEnabled(HasSound && Is != Sound::Cleared);
    mUi->lblSound->setText(Is == Sound::Cleared    ? tr("The sound goes with the next save.")
                           : Is == Sound::Recorded ? tr("A new recording, not yet saved.")
                           : Is == Sound::Chosen   ? tr("A new sound, not yet saved.")
                           : mInHand.HasSound()    ? tr("This slide has a sound.")
                                                   : tr("This slide has no sound."));
}

void frmSlideDBM::Record() {
    if (ReadOnlyDB) return;
    mPlayer->Stop();  // the microphone would hear it
    const std::optional<QByteArray> Recorded = RecordSound();
    if (!Recorded || !IsLoaded()) return;
    mInHand.Record(*Recorded);
    ShowSound(true);
    ShowChanged(true);
}

void frmSlideDBM::ChooseSound() {
    if (ReadOnlyDB) return;
    const QString Path = AskForSound();
    if (!Path.isEmpty() && IsLoaded()) TakeSoundFile(Path);
}

// What cannot be played is told, and is not taken.
void frmSlideDBM::TakeSoundFile(const QString& Path) {
    const QByteArray Read = Aside([Path] {
                                OpenSound(Path);
                                return ReadFile(Path);
                            }).get();
    mInHand.ChooseSound(Read, SoundEnding(Path));
    ShowSound(true);
    ShowChanged(true);
}

void frmSlideDBM::DropSound() {
    if (ReadOnlyDB) return;
    mInHand.ClearSound();
    ShowSound(true);
    ShowChanged(true);
}

// A sound that is not yet saved is in no file of its own.
void frmSlideDBM::HearSound() {
    if (mPlayer->IsPlaying()) return mPlayer->Stop();
    const bool Stored = mInHand.SoundState() == SlideInHand::Sound::AsStored;
    const QString Path = Stored ? StoredSound(DBEngine->DBPath(), mInHand) : HeardSound();
    const auto Opened = Aside([Stored, Path, Bytes = mInHand.NewSound()] {
        if (!Stored) ReplaceFile(Path, Bytes);
        return ClipPlayer::Open(Path);
    });
    Answer<ClipPlayer::Sound> Sound = Opened.get();
    if (Tell(Sound)) mPlayer->Play(*Sound);
}

// What the user is in the middle of stays on the screen: it can be saved as before, or as a new
// slide where its own, or its album, has gone.
void frmSlideDBM::ReceiveEvent(const QString& ObjectType, const QString& EventType,
                               const EventKeys& EventData) {
    static const struct {
        QLatin1String EventType;
        void (frmSlideDBM::*Follow)(const EventKeys& Keys);
    } Events[] = {
        {QLatin1String("Delete"), &frmSlideDBM::FollowDelete},
        {QLatin1String("Insert"), &frmSlideDBM::FollowAlbums},
        {QLatin1String("Update"), &frmSlideDBM::FollowUpdate},
        {QLatin1String("Add Slides"), &frmSlideDBM::FollowAddSlides},
        {QLatin1String("Delete Slides"), &frmSlideDBM::FollowDeleteSlides},
    };
    if (ObjectType != u"Album" || mStage == Stage::Opening) return;
    for (const auto& Row : Events)
        if (EventType == Row.EventType) (this->*Row.Follow)(EventData);
}

// The slide in hand has gone, or the album.
void frmSlideDBM::LoseOwn() {
    mInHand.MoveTo(Lists().AlbumID(), 0);
    mUi->cmdDelete->setEnabled(false);
    if (!mInHand.IsChanged()) ShowNew();
}

void frmSlideDBM::FollowDelete(const EventKeys& Keys) {
    const bool Shown = Keys.at(0) == Lists().AlbumID();
    Lists().RemoveAlbum(Keys.at(0));
    if (!Shown) return;
    Lists().Clear();
    ShowAlbumName();
    LoseOwn();
}

void frmSlideDBM::FollowAlbums(const EventKeys&) {
    const bool Stands = Lists().ListAlbums();
    if (!Stands) Lists().Clear();
    ShowAlbumName();
    if (!Stands) LoseOwn();
}

void frmSlideDBM::FollowUpdate(const EventKeys& Keys) {
    FollowAlbums(Keys);
    FollowAddSlides(Keys);
}

void frmSlideDBM::FollowAddSlides(const EventKeys& Keys) {
    const std::int32_t Shown = Lists().SlideID();
    if (Lists().AlbumID() == 0 || Keys.at(0) != Lists().AlbumID()) return;
    LoadAlbumSlides(Cause::OtherWindow);
    const std::int32_t Own = Shown != 0 ? Shown : mInHand.GoneID();
    mInHand.MoveTo(Lists().AlbumID(), Lists().ChooseSlide(Own) ? Own : 0);
    mUi->cmdDelete->setEnabled(!mInHand.IsNew() && !ReadOnlyDB);
    if (!mInHand.IsChanged()) ShowChosen(Cause::OtherWindow);
}

void frmSlideDBM::FollowDeleteSlides(const EventKeys& Keys) {
    const std::int32_t Gone = Keys.at(1);
    if (Lists().AlbumID() == 0 || Keys.at(0) != Lists().AlbumID() || Gone == 0) return;
    const bool Shown = Gone == Lists().SlideID();
    Lists().RemoveSlide(Gone);
    if (Shown) LoseOwn();
}

}  // namespace neb
