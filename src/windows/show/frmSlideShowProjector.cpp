#include "windows/show/frmSlideShowProjector.h"

#include <QKeyEvent>

#include "controls/forms/ScreenPointer.h"
#include "controls/picture/XShow.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "show/captions/ShowLayout.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "ui_frmSlideShowProjector.h"
#include "windows/handling/ShowHands.h"
#include "windows/show/ShowBox.h"
#include "windows/show/frmPopup.h"
#include "windows/show/modSlideShows.h"

namespace neb {
namespace {

constexpr int RightButton = 2;

struct MenuCommand {
    const char16_t* Word;
    ShowCommand Command;
};

constexpr MenuCommand MenuCommands[] = {
    {u"GOTOEND", ShowCommand::Last},      {u"GOTOSTART", ShowCommand::First},
    {u"NEXT", ShowCommand::Next},         {u"PLAY", ShowCommand::PlayPause},
    {u"PREVIOUS", ShowCommand::Previous}, {u"STOP", ShowCommand::StopRestart},
};

// The normal pointer comes back however the scope is left.
struct HourglassUntilEnd {
    HourglassUntilEnd() { SetScreenPointer(Pointer::Hourglass); }
    ~HourglassUntilEnd() { SetScreenPointer(Pointer::Default); }
};

}  // namespace

frmSlideShowProjector::frmSlideShowProjector(ShowWorld World)
    : mUi(std::make_unique<Ui::frmSlideShowProjector>()),
      mRun(*this, World),
      Timer1(new QTimer(this)),
      Timer2(new QTimer(this)) {
    mUi->setupUi(this);
    mHands = std::make_unique<ShowHands>(*this, mRun, World.Engine);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(100);
    Timer1->setTimerType(Qt::PreciseTimer);
    Timer2->setObjectName(QStringLiteral("Timer2"));
    Timer2->setInterval(1000);
    connect(Timer1, &QTimer::timeout, this, &frmSlideShowProjector::Timer1_Timer);
    connect(Timer2, &QTimer::timeout, this, &frmSlideShowProjector::Timer2_Timer);
    PrepareControls();
    ConnectHands();
}

frmSlideShowProjector::~frmSlideShowProjector() = default;

void frmSlideShowProjector::PrepareControls() {
    QPalette Dark;
    Dark.setColor(QPalette::Window, Qt::black);
    Dark.setColor(QPalette::WindowText, Qt::white);
    setPalette(Dark);
    setAutoFillBackground(true);
    setFocusProxy(mUi->Show1);
    mUi->Show1->setAttribute(Qt::WA_NoMousePropagation);
    mUi->lblCaption->setAttribute(Qt::WA_NoMousePropagation);
    connect(mUi->Show1, &XShow::EffectEnded, mUi->Show1, &XShow::StopEffect);
    connect(mUi->Show1, &XShow::PictureCame, this, &frmSlideShowProjector::PictureCame);
    connect(mUi->Show1, &XShow::PictureFailed, this, [this] { mRun.PictureFailed(); });
    connect(mUi->Show1, &XShow::PictureLate, this, [this] { mRun.PictureLate(); });
    connect(mUi->Show1, &XShow::SurfaceMouseDown, this,
            [this](int Button) { SurfaceMouseDown(Button); });
}

void frmSlideShowProjector::ConnectHands() {
    connect(mUi->Show1, &XShow::SurfaceClick, mHands.get(), &ShowHands::Click);
    connect(mUi->lblCaption, &CaptionLabel::RightPressed, this,
            [this] { SurfaceMouseDown(RightButton); });
    connect(mHands.get(), &ShowHands::LeaveAsked, this, &frmSlideShowProjector::Leave);
    connect(mHands.get(), &ShowHands::CaptionsAsked, this, &frmSlideShowProjector::SwitchCaptions);
    connect(mHands.get(), &ShowHands::MenuAsked, this,
            [this](const QPoint& At) { ShowPopupMenu(mapToGlobal(At)); });
}

void frmSlideShowProjector::LoadSlideShow(std::int32_t SlideShowID) {
    mRun.SlideShowID = SlideShowID;
    ShowModal();
    if (mSaveFault) std::rethrow_exception(std::exchange(mSaveFault, nullptr));
}

void frmSlideShowProjector::Form_Load() {
    mRun.Load();
    mDesk.emplace(*this, mRun);
    connect(&*mDesk, &ShowDesk::SlideIsUp, this, &frmSlideShowProjector::SaySlide);
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
    mUi->Show1->ForgetPicture();
    mUi->Show1->StopEffect();
    mDesk.reset();
    mRun.End();
    if (mRun.ResumeValid()) SaveNextSlideSeq();
    LogFrames();
    return true;
}

// Who looks for the cause of a show that jerks wants it; who has watched one does not.
void frmSlideShowProjector::LogFrames() {
    const QString Text = mUi->Show1->Frames().Text();
    if (DebugMode && !Text.isEmpty()) LogMessage(QStringLiteral("Information"), Text);
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

void frmSlideShowProjector::showEvent(QShowEvent* Event) {
    Form::showEvent(Event);
    mHands->Attach();
}

// In a window that is too low for both they stay where they were.
void frmSlideShowProjector::ResizeControls() {
    if (isMinimized()) return;
    mUi->Show1->SetShowOptionA(true);
    mUi->Show1->SetShowOptionB(true);
    mUi->Show1->SetShowOptionC(true);
    const CaptionSpace Space = CaptionSpaceIn(size());
    const int Fitting = mUi->lblCaption->FitTo(Space.Width, Space.ScreenHeight, Space.MostHeight);
    const int LabelHeight = mUi->lblCaption->isHidden() ? 0 : Fitting;
    const std::optional<int> Left = PictureHeightIn(height(), LabelHeight);
    const int PictureHeight = Left.value_or(mUi->Show1->height());
    const int LabelTop = Left.value_or(mUi->lblCaption->y());
    const int Width = width() > 0 ? width() : mUi->Show1->width();
    mUi->Show1->setGeometry(0, 0, Width, PictureHeight);
    mUi->lblCaption->setGeometry(0, LabelTop, Width, LabelHeight);
}

void frmSlideShowProjector::keyPressEvent(QKeyEvent* Event) {
    mHands->Press(*Event);
}

void frmSlideShowProjector::Do(ShowCommand Command) {
    mHands->Do(Command);
}

void frmSlideShowProjector::Leave() {
    if (mRun.Timer1On()) mUi->Show1->StopEffect();
    Unload();
}

void frmSlideShowProjector::SwitchCaptions() {
    mUi->lblCaption->setVisible(mUi->lblCaption->isHidden());
    ResizeControls();
}

void frmSlideShowProjector::mousePressEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::RightButton) SurfaceMouseDown(RightButton);
}

void frmSlideShowProjector::mouseReleaseEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::LeftButton) mHands->Click();
}

void frmSlideShowProjector::SurfaceMouseDown(int Button) {
    if (Button & RightButton) ShowPopupMenu(QCursor::pos());
}

void frmSlideShowProjector::StopMe() {
    mRun.StopMe();
    setEnabled(false);
}

void frmSlideShowProjector::ReStartMe() {
    setEnabled(true);
    mRun.ReStartMe();
}

void frmSlideShowProjector::ShowPopupMenu(const QPoint& GlobalPlace) {
    const auto Held = shared_from_this();
    auto Popup = NewForm<frmPopup>();
    Popup->SetEntries(State(), mRun.IsManual(), mRun.Memory().CurrentSlideSeq != 0);
    if (ReadOnlyDB) Popup->mnuPreferences->setEnabled(false);
    Popup->PopupMenu(GlobalPlace);
    const QString Word = Popup->SelectedCommand().toUpper();
    Popup.reset();
    if (IsLoaded()) RunCommand(Word);
}

void frmSlideShowProjector::RunCommand(const QString& Word) {
    if (Word == u"EXIT") Unload();
    if (Word == u"PREFERENCES") EditPreferences();
    for (const MenuCommand& Row : MenuCommands)
        if (Word == Row.Word) return Do(Row.Command);
}

void frmSlideShowProjector::EditPreferences() {
    mRun.EditPreferences(EditSlideShowPreferences);
    if (mDesk) mDesk->FollowScreen();
}

void frmSlideShowProjector::ShowCaption(const QString& Text) {
    mUi->lblCaption->setText(Text);
    mHands->FollowShow();
    if (mDesk) mDesk->FollowSlide();
}

bool frmSlideShowProjector::ShowPicture(const QString& Path, const EffectChoice& Choice) {
    XShow& Show = *mUi->Show1;
    if (Show.IsRunning()) Show.StopEffect();
    ResizeControls();
    if (Choice.EffectDelay) Show.SetEffectDelay(*Choice.EffectDelay);
    if (Choice.EffectStep) Show.SetEffectStep(*Choice.EffectStep);
    Show.SetShowOptionD(true);
    const XShow::Arrival Is = Show.AskForPicture(Path);
    if (Is == XShow::Arrival::Unreadable) return false;
    if (Choice.EffectNumber) Show.SetEffectNumber(*Choice.EffectNumber);
    if (Is == XShow::Arrival::Here) Show.RunEffect();
    return true;
}

// The caption first: the picture is fitted to the room that it leaves.
void frmSlideShowProjector::PictureCame() {
    if (!mRun.PictureCame()) return;
    ResizeControls();
    mUi->Show1->RunEffect();
}

void frmSlideShowProjector::Prefetch(const QString& Path) {
    mUi->Show1->Prefetch(Path);
}

void frmSlideShowProjector::SetTimer1(bool On) {
    On&& IsLoaded() ? Timer1->start() : Timer1->stop();
    mHands->FollowShow();
    if (!mDesk) return;
    mDesk->FollowState(On);
    SayState();
}

// To those who hear the show: the picture has the keys, and what has them is read when it changes.
void frmSlideShowProjector::SaySlide() {
    const QString Place =
        tr("Slide %1 of %2").arg(mRun.Memory().CurrentSlideSeq).arg(mRun.SlideCount());
    const QString Caption = mUi->lblCaption->ShownText();
    mSaid = Caption.isEmpty() ? Place : tr("%1: %2").arg(Place, Caption);
    SayState();
}

void frmSlideShowProjector::SayState() {
    if (mSaid.isEmpty()) return;  // nothing is up yet
    const bool IsPaused = State().PlayCommand == u"Resume";
    const QString Words = IsPaused ? tr("Paused. %1").arg(mSaid) : mSaid;
    if (mUi->Show1->accessibleName() != Words) mUi->Show1->setAccessibleName(Words);
}

void frmSlideShowProjector::SetTimer2(bool On) {
    On&& IsLoaded() ? Timer2->start() : Timer2->stop();
}

void frmSlideShowProjector::TickAfter(int Milliseconds) {
    QTimer::singleShot(Milliseconds, Qt::PreciseTimer, this, [this] { Timer1_Timer(); });
}

// The box comes up out of the event loop, never inside a tick or a step: a timer does not tick
// while its own work waits in a box.
void frmSlideShowProjector::Tell(const QString& Message) {
    mHands->Note(Message);
    ResizeControls();
    TellLater(*this, Message);
}

}  // namespace neb
