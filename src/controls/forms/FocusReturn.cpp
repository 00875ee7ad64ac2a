#include "controls/forms/FocusReturn.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

namespace neb {
namespace {

constexpr int MostMs = 250;
constexpr int StepMs = 2;

}  // namespace

// Under X the keyboard comes back some moments later. A progress window that comes and goes in
// between gets in its way: then no window has it, and the keys of the menus are dead.
void AwaitFocus() {
    if (QGuiApplication::platformName() != u"xcb") return;
    QElapsedTimer Since;
    Since.start();
    while (!QApplication::activeWindow() && !Since.hasExpired(MostMs)) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(StepMs);
    }
}

}  // namespace neb
