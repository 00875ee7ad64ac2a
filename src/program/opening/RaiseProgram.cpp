#include "program/opening/RaiseProgram.h"

#include <QApplication>
#include <QWidget>

namespace neb {
namespace {

constexpr char TokenName[] = "XDG_ACTIVATION_TOKEN";

void Restore(QWidget& Window) {
    if (Window.isMinimized()) Window.setWindowState(Window.windowState() & ~Qt::WindowMinimized);
}

}  // namespace

// The toolkit takes the token from where a started program finds it; it is good for once.
void RaiseProgram(QWidget& Main, const QByteArray& Token) {
    if (!Main.isVisible()) return;
    if (!Token.isEmpty()) qputenv(TokenName, Token);
    Restore(Main);
    QWidget* Over = QApplication::activeModalWidget();
    QWidget& Top = Over ? *Over->window() : Main;
    Restore(Top);
    Top.raise();
    Top.activateWindow();
    qunsetenv(TokenName);
}

}  // namespace neb
