#include "controls/forms/StandOver.h"

#include <QApplication>
#include <QMainWindow>
#include <QWindow>

namespace neb {

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

}  // namespace neb
