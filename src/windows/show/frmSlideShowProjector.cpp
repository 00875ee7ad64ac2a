#include "windows/show/frmSlideShowProjector.h"

#include <QKeyEvent>

#include "controls/forms/ScreenPointer.h"
#include "controls/forms/modTwips.h"
#include "controls/picture/XShow.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "support/Fault.h"
#include "ui_frmSlideShowProjector.h"
#include "windows/show/ShowBox.h"
#include "windows/show/frmPopup.h"
#include "windows/show/modSlideShows.h"

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

frmSlideShowProjector::frmSlideShowProjector(ShowWorld World)
    : mUi(std::make_unique<Ui::frmSlideShowProjector>()),
      mRun(*this, std::move(World)),
      Timer1(new QTimer(this)),
      Timer2(new QTimer(this)) {
    mUi->setupUi(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(100);
    Timer1->setTimerType(Qt::PreciseTimer);
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
    mRun.SlideShowID = SlideShowID;
    ShowModal();
    if (mSaveFault) std::rethrow_exception(std::exchange(mSaveFault, nullptr));
}

void frmSlideShowProjector::Form_Load() {
    mRun.Load();
    mDesk.emplace(*this, mRun);
    DoEvents();
    ResizeControls();
    DoEvents();
}

void frmSlideShowProjector::Form_Activate() {
    if (!State().PlayCommand.isEmpty()) return;  // it has begun
    activateWindow();  // the keys are the show's, with or without a window manager
    PlayPause();
}

bool frmSlideShowProjector::Form_Unload() {
    const HourglassUntilEnd Pointer;
    mUi->Show1->StopEffect();
    mDesk.reset();
    mRun.End();
    if (mRun.ResumeValid()) SaveNextSlideSeq();
    return true;
}

// The window must close even when the place cannot be kept; the opener hears of it afterwards.
void frmSlideShowProjector::SaveNextSlideSeq() {
    try {
        KeepPlace(mRun.AlbumID, mRun.SlideShowID, mRun.ResumeSeq(), mRun.Memory().CurrentSlideSeq);
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
        if (mRun.Timer1On()) mUi->Show1->StopEffect();
        Unload();
        return;
    }
    const auto* Found = std::find_if(std::begin(Keys), std::end(Keys), [&](const KeyCommand& Row) {
        return Row.Key == Event->key();
    });
    if (Found == std::end(Keys)) return;
    if (!Found->AutomaticOnly || !mRun.IsManual()) (this->*Found->Run)();
}

void frmSlideShowProjector::mouseReleaseEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::LeftButton) SurfaceClick();
}

void frmSlideShowProjector::SurfaceClick() {
    if (mRun.IsManual()) NextSlide();
}

void frmSlideShowProjector::SurfaceMouseDown(int Button) {
    if (Button & RightButton) ShowPopupMenu();
}

void frmSlideShowProjector::StopMe() {
    mRun.StopMe();
    setEnabled(false);
}

void frmSlideShowProjector::ReStartMe() {
    setEnabled(true);
    mRun.ReStartMe();
}

void frmSlideShowProjector::ShowPopupMenu() {
    const auto Held = shared_from_this();
    auto Popup = NewForm<frmPopup>();
    Popup->SetEntries(State(), mRun.IsManual(), mRun.Memory().CurrentSlideSeq != 0);
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

void frmSlideShowProjector::EditPreferences() {
    mRun.EditPreferences(EditSlideShowPreferences);
    if (mDesk) mDesk->FollowScreen();
}

void frmSlideShowProjector::ShowCaption(const QString& Text) {
    mUi->lblCaption->setText(Text);
    if (mDesk) mDesk->FollowSlide();
}

bool frmSlideShowProjector::ShowPicture(const QString& Path, const EffectChoice& Choice) {
    XShow& Show = *mUi->Show1;
    if (Show.IsRunning()) Show.StopEffect();
    ResizeControls();
    if (Choice.EffectDelay) Show.SetEffectDelay(*Choice.EffectDelay);
    if (Choice.EffectStep) Show.SetEffectStep(*Choice.EffectStep);
    Show.SetShowOptionD(true);
    try {
        Show.LoadPicture(Path);
    } catch (const Fault&) {
        return false;
    }
    if (Choice.EffectNumber) Show.SetEffectNumber(*Choice.EffectNumber);
    Show.RunEffect();
    return true;
}

void frmSlideShowProjector::Prefetch(const QString& Path) {
    mUi->Show1->Prefetch(Path);
}

void frmSlideShowProjector::SetTimer1(bool On) {
    On&& IsLoaded() ? Timer1->start() : Timer1->stop();
    if (mDesk) mDesk->FollowState(On);
}

void frmSlideShowProjector::SetTimer2(bool On) {
    On&& IsLoaded() ? Timer2->start() : Timer2->stop();
}

void frmSlideShowProjector::Tell(const QString& Message) {
    ResizeControls();
    TellOnce(Message);
}

}  // namespace neb
