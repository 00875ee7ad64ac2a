#include "controls/picture/ScreenRefresh.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "support/Services.h"

namespace neb {
namespace {

// A window that nobody sees hears nothing from the desktop; its transitions come to their end all
// the same.
constexpr int UnheardMs = 100;

double Now() {
    return TheServices().Time->Ticks();
}

bool DesktopTells() {
    static const bool Tells = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    return Tells;
}

}  // namespace

ScreenRefresh::ScreenRefresh(QWidget& View) : mView(View) {
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, &ScreenRefresh::OnTimer);
}

void ScreenRefresh::WaitUntil(double Due) {
    Begin(Wait::ForTime, Due);
}

// What follows upon the frame before is asked for at once: the desktop then tells when that one has
// been taken. After a longer rest it has nothing to tell, and would answer too soon.
void ScreenRefresh::WaitForRefresh(double Due, double Period) {
    mPeriod = Period;
    if (!DesktopTells()) return WaitUntil(Due);
    mDue = Due;
    if (Due - Now() > Period || !Ask()) Begin(Wait::ForAsking, Due);
}

void ScreenRefresh::Stop() {
    mTimer.stop();
    mWait = Wait::None;
}

// The timer counts whole milliseconds; the rest of the wait goes round the event loop, so that
// a hundred steps do not add up to a hundred roundings.
void ScreenRefresh::Begin(Wait For, double Due) {
    mWait = For;
    mDue = Due;
    mTimer.start(std::max(0, static_cast<int>(std::floor(mDue - Now()))));
}

void ScreenRefresh::OnTimer() {
    if (mWait == Wait::ForDesktop) return Reach(false);
    if (Now() < mDue) return Begin(mWait, mDue);
    if (mWait != Wait::ForAsking || !Ask()) Reach(false);
}

// False when nobody would answer.
bool ScreenRefresh::Ask() {
    QWindow* Window = mView.window()->windowHandle();
    if (!Window || !Window->isExposed()) return false;
    if (mWindow != Window) {
        if (mWindow) mWindow->removeEventFilter(this);
        Window->installEventFilter(this);
        mWindow = Window;
    }
    mWait = Wait::ForDesktop;
    mTimer.start(UnheardMs);
    Window->requestUpdate();
    return true;
}

// The whole window need not be painted for it: the view draws its own frame.
bool ScreenRefresh::eventFilter(QObject* Watched, QEvent* Event) {
    if (Event->type() != QEvent::UpdateRequest || mWait != Wait::ForDesktop)
        return QObject::eventFilter(Watched, Event);
    if (Now() < mDue - mPeriod / 2)
        Begin(Wait::ForTime, mDue);  // the frame before has not even been handed over
    else
        Reach(true);
    return true;
}

void ScreenRefresh::Reach(bool Told) {
    Stop();
    Q_EMIT Reached(Told);
}

}  // namespace neb
