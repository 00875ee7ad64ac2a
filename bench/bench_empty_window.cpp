// What bench_start compares with: a main window of the toolkit, painted once.
//   bench_empty_window          nothing in it at all, not a letter of text
//   bench_empty_window --bars   with a menu of one word and a status bar
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <cstdlib>

int main(int argc, char** argv) {
    QApplication App(argc, argv);
    QMainWindow Window;
    if (argc > 1) {
        Window.menuBar()->addMenu(QStringLiteral("&File"));
        Window.statusBar();
    }
    Window.resize(1000, 700);
    Window.show();
    QApplication::processEvents();
    std::_Exit(0);
}
