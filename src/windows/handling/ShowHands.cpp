#include "windows/handling/ShowHands.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>

#include "controls/speech/SpokenRole.h"
#include "show/ShowRun.h"

namespace neb {
namespace {

bool IsStep(ShowCommand Command) {
    return Command == ShowCommand::Next || Command == ShowCommand::Previous;
}

bool IsUp(const QWidget* Shown, const QPoint& At) {
    return Shown->isVisible() && Shown->geometry().contains(At);
}

QWidget* BlackSheet(QWidget& Window) {
    auto* Sheet = new QWidget(&Window);
    Sheet->setObjectName(QStringLiteral("BlackSheet"));
    Sheet->setAccessibleName(ShowHands::tr("Black screen"));
    SpeakAs(*Sheet, QAccessible::Notification);  // it is said as it comes up
    Sheet->setAutoFillBackground(true);
    Sheet->setPalette(Qt::black);
    Sheet->setVisible(false);
    return Sheet;
}

}  // namespace

struct ShowHands::Row {
    ShowCommand Command;
    void (ShowHands::*Do)();
    void (ShowRun::*Run)();
    bool LeavesBlack;  // the screen stays black while this is done
    bool LeavesCard = false;
};

const ShowHands::Row ShowHands::Rows[] = {
    {ShowCommand::Next, nullptr, &ShowRun::NextSlide, false},
    {ShowCommand::Previous, nullptr, &ShowRun::PreviousSlide, false},
    {ShowCommand::First, nullptr, &ShowRun::GotoStart, false},
    {ShowCommand::Last, nullptr, &ShowRun::GotoEnd, false},
    {ShowCommand::PlayPause, &ShowHands::PlayPause, nullptr, true, true},
    {ShowCommand::Pause, &ShowHands::Pause, nullptr, true},
    {ShowCommand::StopRestart, nullptr, &ShowRun::StopRestart, false},
    {ShowCommand::Stop, &ShowHands::Stop, nullptr, false},
    {ShowCommand::Goto, &ShowHands::OpenGoto, nullptr, true},
    {ShowCommand::Black, &ShowHands::DoBlack, nullptr, true},
    {ShowCommand::Captions, &ShowHands::CaptionsAsked, nullptr, true},
    {ShowCommand::Card, &ShowHands::OpenCard, nullptr, true},
    {ShowCommand::Menu, &ShowHands::OpenMenu, nullptr, true},
    {ShowCommand::Click, &ShowHands::Click, nullptr, true, true},
    {ShowCommand::Leave, &ShowHands::LeaveAsked, nullptr, true},
};

ShowHands::ShowHands(QWidget& Window, ShowRun& Run, const clsDBEngine* Engine)
    : mWindow(Window),
      mRun(Run),
      mEngine(Engine),
      mPointer(Window, [this] { return WantsPointer(); }),
      mFingers(Window, [this](const QPoint& At) { return WantsFinger(At); }),
      mUnderBlack(Run),
      mUnderCard(Run),
      mBlack(BlackSheet(Window)),
      mLine(new PlaceLine(Window, Run, [this] { return Captions(); })),
      mNotice(new WordsOfFailure(Window)),
      mCard(new KeyCard(Window)),
      mField(new GotoField(Window, [this] { return Captions(); })) {
    mFollow.setSingleShot(true);
    mWindow.installEventFilter(this);
    connect(&mFollow, &QTimer::timeout, this, &ShowHands::TellFailure);
    connect(&mPointer, &RestingPointer::Moved, mLine, &PlaceLine::Follow);
    connect(&mPointer, &RestingPointer::Left, mLine, &PlaceLine::hide);
    connect(&mPointer, &RestingPointer::Rested, mLine, &PlaceLine::hide);
    connect(&mFingers, &TouchGestures::Made, this, &ShowHands::Do);
    connect(&mFingers, &TouchGestures::Held, this, &ShowHands::MenuAsked);
    connect(mLine, &PlaceLine::Chosen, this, &ShowHands::Goto);
    connect(mField, &GotoField::Chosen, this, &ShowHands::Goto);
}

void ShowHands::Attach() {
    mPointer.Attach();
    mFingers.Attach();
}

// The window may come to another screen, where the line comes again with the pointer; and boxes
// come over it and go.
bool ShowHands::eventFilter(QObject* On, QEvent* Event) {
    const QEvent::Type Is = Event->type();
    if (Is == QEvent::Resize) {
        mBlack->setGeometry(mWindow.rect());
        mLine->hide();
    }
    if (Is == QEvent::WindowBlocked || Is == QEvent::WindowUnblocked) mFollow.start();
    return QObject::eventFilter(On, Event);
}

ShowCaptions ShowHands::Captions() const {
    return {mEngine, mRun.AlbumID, mRun.SlideShowID};
}

bool ShowHands::IsRunning() const {
    return mRun.State().PlayCommand == u"Pause";
}

// A show that stops later keeps its last picture up, and needs no words.
bool ShowHands::HasFailed() const {
    return mRun.State().PlayCommand == u"Play" && mRun.CurrentFile().isEmpty();
}

// A box says the same, or what is to be done now; words that peep out behind it only confuse.
bool ShowHands::IsUnderABox() const {
    const QWidget* Box = QApplication::activeModalWidget();
    return Box && Box != &mWindow;
}

bool ShowHands::WantsPointer() const {
    return mCard->isVisible() || mField->isVisible() || mNotice->isVisible() ||
           QApplication::activePopupWidget();
}

bool ShowHands::WantsFinger(const QPoint& At) const {
    return !mCard->isVisible() && !mField->isVisible() && !IsUp(mLine, At) &&
           !QApplication::activePopupWidget();
}

// A key that is held down steps on and on, but does not flicker between black and back.
void ShowHands::Press(const QKeyEvent& Key) {
    const ShowCommand Command = CommandOf(Key);
    if (Key.isAutoRepeat() && !IsStep(Command)) return;
    const bool Closes = Command == ShowCommand::Leave || Command == ShowCommand::Card;
    if (Closes && CloseCard()) return;
    Do(Command);
}

// What is asked for behind the card or the black screen is wanted on the screen.
void ShowHands::Do(ShowCommand Command) {
    if (Command == ShowCommand::Space)
        Command = mRun.IsManual() ? ShowCommand::Next : ShowCommand::PlayPause;
    const auto* Found = std::ranges::find(Rows, Command, &Row::Command);
    if (Found == std::end(Rows)) return;
    if (!Found->LeavesCard) CloseCard();
    if (!Found->LeavesBlack) LiftBlack();
    if (Found->Run) return (mRun.*Found->Run)();
    (this->*Found->Do)();
}

void ShowHands::Click() {
    if (mField->isVisible()) return mField->Close();
    if (CloseCard() || LiftBlack()) return;
    if (mRun.IsManual()) mRun.NextSlide();
}

bool ShowHands::CloseCard() {
    if (mCard->isHidden()) return false;
    mCard->hide();
    mUnderCard.End();
    return true;
}

bool ShowHands::LiftBlack() {
    if (mBlack->isHidden()) return false;
    mBlack->hide();
    mUnderBlack.End();
    return true;
}

void ShowHands::Goto(std::int32_t SlideSeq) {
    LiftBlack();
    mRun.GotoSlide(SlideSeq);
}

// Whoever says "go on" to a black screen or a card gets a show that runs.
void ShowHands::PlayPause() {
    const bool HadCard = CloseCard(), WasBlack = LiftBlack();
    if (mRun.IsManual()) return;
    if (!(HadCard || WasBlack) || !IsRunning()) mRun.PlayPause();
}

// One that waits under a black screen stays halted when that goes.
void ShowHands::Pause() {
    if (mRun.IsManual()) return;
    mUnderBlack.Forget();
    if (IsRunning()) mRun.PlayPause();
}

void ShowHands::Stop() {
    if (mRun.State().StopCommand == u"Stop") mRun.StopRestart();
}

void ShowHands::OpenGoto() {
    mPointer.Wake();
    mField->OpenAt(mRun.Memory().CurrentSlideSeq);
}

// The show waits behind it: nobody sees its slides go by, and no music plays to a black screen.
void ShowHands::DoBlack() {
    if (LiftBlack()) return;
    mUnderBlack.Begin();
    mBlack->setGeometry(mWindow.rect());
    mBlack->show();
    mBlack->raise();
}

void ShowHands::OpenCard() {
    mUnderCard.Begin();
    mPointer.Wake();
    mCard->OpenFor(mRun.IsManual());
}

void ShowHands::OpenMenu() {
    Q_EMIT MenuAsked(mWindow.rect().center());
}

void ShowHands::TellFailure() {
    mLine->update();
    if (!mWindow.isVisible() || !HasFailed() || IsUnderABox()) return mNotice->hide();
    mPointer.Wake();
    mNotice->Say(mTrouble.isEmpty() ? tr("There is no picture to show.") : mTrouble);
}

}  // namespace neb
