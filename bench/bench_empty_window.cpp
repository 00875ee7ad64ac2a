// What bench_start compares with: an empty main window of the toolkit, painted once.
#include <QApplication>
#include <QMainWindow>
#include <cstdlib>

int main(int argc, char** argv) {
    QApplication App(argc, argv);
    QMainWindow Window;
    Window.resize(1000, 700);
    Window.show();
    QApplication::processEvents();
    std::_Exit(0);
}
