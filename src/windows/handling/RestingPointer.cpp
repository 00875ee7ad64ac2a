#include "windows/handling/RestingPointer.h"

#include <QMouseEvent>
#include <QPointingDevice>
#include <QWidget>
#include <QWindow>
#include <utility>

namespace neb {

RestingPointer::RestingPointer(QWidget& Window, std::function<bool()> InUse)
    : mWindow(Window), mInUse(std::move(InUse)) {
    mTimer.setSingleShot(true);
    mTimer.setInterval(RestAfter);
    connect(&mTimer, &QTimer::timeout, this, &RestingPointer::Rest);
    mWindow.setCursor(Qt::BlankCursor);
}

void RestingPointer::Attach() {
    mPlace = QCursor::pos();
    if (QWindow* Native = mWindow.windowHandle()) Native->installEventFilter(this);
}

void RestingPointer::Wake() {
    mWindow.setCursor(Qt::ArrowCursor);
    mTimer.start();
}

void RestingPointer::Rest() {
    if (mInUse()) return mTimer.start();
    mWindow.setCursor(Qt::BlankCursor);
    Q_EMIT Rested();
}

bool RestingPointer::eventFilter(QObject*, QEvent* Event) {
    if (Event->type() == QEvent::MouseMove) OnMove(*static_cast<QMouseEvent*>(Event));
    if (Event->type() == QEvent::Leave) Q_EMIT Left();
    return false;
}

// A window that comes up under the pointer is told of it as of a move; and fingers have no pointer.
void RestingPointer::OnMove(const QMouseEvent& Move) {
    if (Move.device()->type() == QInputDevice::DeviceType::TouchScreen) return;
    const QPoint Now = Move.globalPosition().toPoint();
    if (std::exchange(mPlace, Now) == Now) return;
    Wake();
    Q_EMIT Moved(Move.position().toPoint());
}

}  // namespace neb
