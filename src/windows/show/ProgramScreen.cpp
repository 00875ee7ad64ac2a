#include "windows/show/ProgramScreen.h"

#include <QApplication>
#include <QMainWindow>

namespace neb {

QScreen* ProgramScreen() {
    for (const QWidget* Window : QApplication::topLevelWidgets())
        if (qobject_cast<const QMainWindow*>(Window) && Window->isVisible())
            return Window->screen();
    const QWidget* Active = QApplication::activeWindow();
    return Active ? Active->screen() : QGuiApplication::primaryScreen();
}

}  // namespace neb
