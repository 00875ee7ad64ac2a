#include "controls/forms/StandOver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QThread>
#include <QWindow>

namespace neb {
namespace {

constexpr int MostMs = 250;
constexpr int StepMs = 2;

// The toolkit does not look who gets the keyboard while a list is up, such as the one of the names
// in a file dialog, which Enter closes together with the dialog: no key would be taken any more.
void TakeMissedWindow() {
    const QWindow* Has = QGuiApplication::focusWindow();
    for (QWidget* Each : QApplication::topLevelWidgets()) {
        if (!Has || !Each->isVisible() || Each->windowHandle() != Has) continue;
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        return QApplication::setActiveWindow(Each);
        QT_WARNING_POP
    }
}

}  // namespace

QWidget* WindowInUse() {
    if (QWidget* Modal = QApplication::activeModalWidget()) return Modal;
    if (QWidget* Active = QApplication::activeWindow()) return Active;
    for (QWidget* Each : QApplication::topLevelWidgets())
        if (qobject_cast<QMainWindow*>(Each) && Each->isVisible()) return Each;
    return nullptr;
}

void StandOver(QWidget& Window, const QWidget* Below) {
    QWindow* Under = Below ? Below->window()->windowHandle() : nullptr;
    if (!Under) return;
    Window.winId();  // makes its handle, if that is not there
    if (Under != Window.windowHandle()) Window.windowHandle()->setTransientParent(Under);
}

bool IsOutOfReach(const QWidget& Control) {
    const QWidget* Modal = QApplication::activeModalWidget();
    return Modal && Modal != &Control && !Modal->isAncestorOf(&Control);
}

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
    if (!QApplication::activeWindow()) TakeMissedWindow();
}

}  // namespace neb
