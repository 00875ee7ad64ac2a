// The window: its start and end, settings, size, keys, mouse and menu. What is shown when is in
// frmSlideShowProjectorShow.cpp.
#include "presentation/frmSlideShowProjector.h"

#include <QKeyEvent>
#include <QScreen>

#include "db/clsDBEngine.h"
#include "platform/XShow.h"
#include "presentation/ProgramScreen.h"
#include "presentation/ShowSettings.h"
#include "presentation/frmPopup.h"
#include "presentation/modSlideShows.h"
#include "shell/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/modTwips.h"
#include "support/windows/ScreenPointer.h"
#include "ui_frmSlideShowProjector.h"

namespace neb {
namespace {

constexpr int LeastPictureTwips = 200;
constexpr int RightButton = 2;
using Command = void (frmSlideShowProjector::*)();

struct KeyCommand {
    Command Run;
    int Key;
    bool AutomaticOnly = false;
};

constexpr KeyCommand Keys[] = {
    {&frmSlideShowProjector::NextSlide, Qt::Key_Up},
    {&frmSlideShowProjector::PreviousSlide, Qt::Key_Down},
    {&frmSlideShowProjector::NextSlide, Qt::Key_W},
    {&frmSlideShowProjector::NextSlide, Qt::Key_8},
    {&frmSlideShowProjector::PreviousSlide, Qt::Key_S},
    {&frmSlideShowProjector::PreviousSlide, Qt::Key_2},
    {&frmSlideShowProjector::PlayPause, Qt::Key_P, true},
    {&frmSlideShowProjector::StopRestart, Qt::Key_R},
};

struct MenuCommand {
    const char16_t* Word;
    Command Run;
};

constexpr MenuCommand MenuCommands[] = {
    {u"GOTOEND", &frmSlideShowProjector::GotoEnd},
    {u"GOTOSTART", &frmSlideShowProjector::GotoStart},
    {u"NEXT", &frmSlideShowProjector::NextSlide},
    {u"PLAY", &frmSlideShowProjector::PlayPause},
    {u"PREVIOUS", &frmSlideShowProjector::PreviousSlide},
    {u"STOP", &frmSlideShowProjector::StopRestart},
    {u"PREFERENCES", &frmSlideShowProjector::EditPreferences},
};

// The normal pointer comes back however the scope is left.
struct HourglassUntilEnd {
    HourglassUntilEnd() { SetScreenPointer(Pointer::Hourglass); }
    ~HourglassUntilEnd() { SetScreenPointer(Pointer::Default); }
};

}  // namespace

frmSlideShowProjector::frmSlideShowProjector()
    : mUi(std::make_unique<Ui::frmSlideShowProjector>()),
      mSound(std::make_shared<SilentShowSound>()),
      Timer1(new QTimer(this)),
      Timer2(new QTimer(this)) {
    mUi->setupUi(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(100);
    Timer2->setObjectName(QStringLiteral("Timer2"));
    Timer2->setInterval(1000);
    connect(Timer1, &QTimer::timeout, this, &frmSlideShowProjector::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &frmSlideShowProjector::Timer2_Timer);
    PrepareControls();
}

frmSlideShowProjector::~frmSlideShowProjector() = default;

// The pointer is hidden by the window alone: menus and boxes over it have their own, and it is
// back by itself when the window goes.
void frmSlideShowProjector::PrepareControls() {
    QPalette Dark;
    Dark.setColor(QPalette::Window, Qt::black);
    Dark.setColor(QPalette::WindowText, Qt::white);
    setPalette(Dark);
    setAutoFillBackground(true);
    setCursor(Qt::BlankCursor);
    mUi->Show1->setAttribute(Qt::WA_NoMousePropagation);
    mUi->lblCaption->setAttribute(Qt::WA_NoMousePropagation);
    connect(mUi->Show1, &XShow::EffectEnded, mUi->Show1, &XShow::StopEffect);
    connect(mUi->Show1, &XShow::SurfaceClick, this, &frmSlideShowProjector::SurfaceClick);
    connect(mUi->Show1, &XShow::SurfaceMouseDown, this,
            [this](int Button) { SurfaceMouseDown(Button); });
}

void frmSlideShowProjector::LoadSlideShow(std::int32_t SlideShowID) {
    mSlideShowID = SlideShowID;
    ShowModal();
    if (mSaveFault) std::rethrow_exception(std::exchange(mSaveFault, nullptr));
}

void frmSlideShowProjector::Form_Load() {
    InitEffectTables();
    mSound = TheShowSoundMaker()();
    mScreenStaysOn.emplace(tr("A slide show is running"));
    LoadSettings();
}

void frmSlideShowProjector::Form_Activate() {
    if (mStarted) return;
    mStarted = true;
    activateWindow();  // the keys are the show's, with or without a window manager
    PlayPause();
}

void frmSlideShowProjector::InitEffectTables() {
    mEffects = EffectTables();
    if (DBEngine) DBEngine->ClassifyEffects(mEffects.EffectLevels, EffectPlaces);
}

void frmSlideShowProjector::LoadSettings() {
    CurrentSlideShowID = 0;
    CurrentSlideSeq = 0;
    const clsSettings Settings = OpenSettings();
    const ShowSettings Read = ReadShowSettings(Settings, AlbumID, mSlideShowID);
    mResumeSeq = Read.ResumeSeq;
    mResumeValid = Read.ResumeValid;
    SlideTimeout = Read.SlideTimeout;
    mSettings = ReadEffectSettings(Settings, 0);
    ReadEffectSelections(Settings, mEffects);
    mSoundFields.SlideInterval = SlideTimeout;
    FillScreen();
    DoEvents();
    ResizeControls();
    DoEvents();
}

void frmSlideShowProjector::ReloadEffectSettings() {
    const clsSettings Settings = OpenSettings();
    mSettings = ReadEffectSettings(Settings, 1);
    ReadEffectSelections(Settings, mEffects);
}

// A desktop without a window manager takes the size from the window itself.
void frmSlideShowProjector::FillScreen() {
    const QScreen* Screen = ProgramScreen();
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    if (Screen) setGeometry(Screen->geometry());
    setWindowState(Qt::WindowFullScreen);
}

bool frmSlideShowProjector::Form_Unload() {
    const HourglassUntilEnd Pointer;
    SetTimers(false, false);
    mUi->Show1->StopEffect();
    mScreenStaysOn.reset();
    try {
        mSound->StopSound();
    } catch (const Fault&) {
        // the sound is released in any case
    }
    mSound = std::make_shared<SilentShowSound>();
    if (mResumeValid) SaveNextSlideSeq();
    return true;
}

// The window must close even when the place cannot be kept; the opener hears of it afterwards.
void frmSlideShowProjector::SaveNextSlideSeq() {
    try {
        neb::SaveNextSlideSeq(CurrentSlideSeq);
    } catch (const Fault&) {
        mSaveFault = std::current_exception();
    }
}

void frmSlideShowProjector::resizeEvent(QResizeEvent* Event) {
    Form::resizeEvent(Event);
    ResizeControls();
}

// The caption gets the lines that it needs, up to a third of the window; the picture the rest.
void frmSlideShowProjector::ResizeControls() {
    if (isMinimized()) return;
    mUi->Show1->SetShowOptionA(true);
    mUi->Show1->SetShowOptionB(true);
    mUi->Show1->SetShowOptionC(true);
    const int LabelHeight = mUi->lblCaption->FitTo(width(), height(), height() / 3);
    int PictureHeight = mUi->Show1->height();
    int LabelTop = mUi->lblCaption->y();
    if (ToTwips(LabelHeight) + LeastPictureTwips < ToTwips(height()))
        LabelTop = PictureHeight = height() - LabelHeight;
    const int Width = width() > 0 ? width() : mUi->Show1->width();
    mUi->Show1->setGeometry(0, 0, Width, PictureHeight);
    mUi->lblCaption->setGeometry(0, LabelTop, Width, LabelHeight);
}

void frmSlideShowProjector::keyPressEvent(QKeyEvent* Event) {
    if (Event->key() == Qt::Key_Escape) {
        if (Timer1->isActive()) mUi->Show1->StopEffect();
        Unload();
        return;
    }
    const auto* Found = std::find_if(std::begin(Keys), std::end(Keys), [&](const KeyCommand& Row) {
        return Row.Key == Event->key();
    });
    if (Found == std::end(Keys)) return;
    if (!Found->AutomaticOnly || mProgressionMethod == 0) (this->*Found->Run)();
}

void frmSlideShowProjector::mouseReleaseEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::LeftButton) SurfaceClick();
}

void frmSlideShowProjector::SurfaceClick() {
    if (mProgressionMethod == 1) NextSlide();
}

void frmSlideShowProjector::SurfaceMouseDown(int Button) {
    if (Button & RightButton) ShowPopupMenu();
}

void frmSlideShowProjector::StopMe() {
    mResumeAfterRestart = Timer1->isActive();
    if (mResumeAfterRestart) PlayPause();
    setEnabled(false);
}

void frmSlideShowProjector::ReStartMe() {
    setEnabled(true);
    if (std::exchange(mResumeAfterRestart, false)) PlayPause();
}

void frmSlideShowProjector::ShowPopupMenu() {
    const auto Held = shared_from_this();
    auto Popup = NewForm<frmPopup>();
    Popup->SetEntries(mState, mProgressionMethod != 0, CurrentSlideSeq != 0);
    if (ReadOnlyDB) Popup->mnuPreferences->setEnabled(false);
    Popup->PopupMenu(QCursor::pos());
    const QString Word = Popup->SelectedCommand().toUpper();
    Popup.reset();
    if (IsLoaded()) RunCommand(Word);
}

void frmSlideShowProjector::RunCommand(const QString& Word) {
    if (Word == u"EXIT") Unload();
    for (const MenuCommand& Row : MenuCommands)
        if (Word == Row.Word) return (this->*Row.Run)();
}

// A slide whose time comes from its track keeps that time.
void frmSlideShowProjector::EditPreferences() {
    const bool Running = Timer1->isActive();
    if (Running) PlayPause();
    const double Before = SlideTimeout;
    EditSlideShowPreferences();
    if (Before == mSoundFields.SlideInterval) mSoundFields.SlideInterval = SlideTimeout;
    ReloadEffectSettings();
    if (Running) PlayPause();
}

}  // namespace neb
