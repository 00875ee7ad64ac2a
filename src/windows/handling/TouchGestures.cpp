#include "windows/handling/TouchGestures.h"

#include <QGuiApplication>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTouchEvent>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace neb {
namespace {

// Of the window's width: how far a finger goes in a swipe at least, and in a tap at most.
constexpr int SwipePart = 20;
constexpr int TapPart = 70;

QPoint PlaceOf(const QTouchEvent& Touch) {
    return Touch.points().front().position().toPoint();
}

}  // namespace

TouchGestures::TouchGestures(QWidget& Window, std::function<bool(const QPoint& At)> Mine)
    : mWindow(Window), mMine(std::move(Mine)) {
    mHold.setSingleShot(true);
    connect(&mHold, &QTimer::timeout, this, [this] {
        Spoil();
        Q_EMIT Held(mFrom);
    });
}

void TouchGestures::Attach() {
    if (QWindow* Native = mWindow.windowHandle()) Native->installEventFilter(this);
}

// What is accepted here is not made into a click besides.
bool TouchGestures::eventFilter(QObject*, QEvent* Event) {
    const QEvent::Type Type = Event->type();
    if (Type == QEvent::TouchBegin) {
        if (!Begin(static_cast<QTouchEvent&>(*Event))) return false;
    } else if (mFinger == Finger::Up) {
        return false;
    } else if (Type == QEvent::TouchUpdate) {
        Move(static_cast<QTouchEvent&>(*Event));
    } else if (Type == QEvent::TouchEnd) {
        End(static_cast<QTouchEvent&>(*Event));
    } else if (Type == QEvent::TouchCancel) {
        Spoil();
        mFinger = Finger::Up;
    } else {
        return false;
    }
    Event->accept();
    return true;
}

bool TouchGestures::Begin(const QTouchEvent& Touch) {
    Spoil();
    mFrom = PlaceOf(Touch);
    const bool IsScreen = Touch.device()->type() == QInputDevice::DeviceType::TouchScreen;
    mFinger = IsScreen && mMine(mFrom) ? Finger::Down : Finger::Up;
    if (mFinger == Finger::Up) return false;
    if (Touch.points().size() > 1)
        Spoil();
    else
        mHold.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
    return true;
}

void TouchGestures::Move(const QTouchEvent& Touch) {
    if (Touch.points().size() > 1) return Spoil();
    if (!IsTap(PlaceOf(Touch) - mFrom)) mHold.stop();
}

void TouchGestures::End(const QTouchEvent& Touch) {
    mHold.stop();
    if (std::exchange(mFinger, Finger::Up) == Finger::Spoiled) return;
    const QPoint Way = PlaceOf(Touch) - mFrom;
    const ShowCommand Command = IsTap(Way) ? CommandOfTap() : CommandOfSwipe(Way);
    if (Command != ShowCommand::None) Q_EMIT Made(Command);
}

void TouchGestures::Spoil() {
    mHold.stop();
    mFinger = Finger::Spoiled;
}

bool TouchGestures::IsTap(const QPoint& Way) const {
    return Way.manhattanLength() <= mWindow.width() / TapPart;
}

ShowCommand TouchGestures::CommandOfTap() const {
    if (mFrom.x() * 3 < mWindow.width()) return ShowCommand::Previous;
    return mFrom.x() * 3 < mWindow.width() * 2 ? ShowCommand::Click : ShowCommand::Next;
}

// As a page is turned: to the left for the next one.
ShowCommand TouchGestures::CommandOfSwipe(const QPoint& Way) const {
    const bool IsLevel = qAbs(Way.x()) > 2 * qAbs(Way.y());
    if (!IsLevel || qAbs(Way.x()) * SwipePart < mWindow.width()) return ShowCommand::None;
    return Way.x() < 0 ? ShowCommand::Next : ShowCommand::Previous;
}

}  // namespace neb
