#include "controls/forms/ScreenPointer.h"

#include <QGuiApplication>

namespace neb {

Pointer ScreenPointer() {
    const QCursor* Override = QGuiApplication::overrideCursor();
    return Override && Override->shape() == Qt::WaitCursor ? Pointer::Hourglass : Pointer::Default;
}

void SetScreenPointer(Pointer Shape) {
    if (Shape == ScreenPointer()) return;
    if (Shape == Pointer::Hourglass)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

}  // namespace neb
