// The time until the main window is on the screen and the program is ready, against an empty
// main window of the toolkit. Each is a process of its own; the least of several runs counts.
//   bench_start            measures both
//   bench_start --empty    an empty window, then the end
//   bench_start --program  the program on a new database, then the end
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "shell/main/DesktopServices.h"
#include "shell/main/frmNEBSlideShow.h"
#include "shell/modNEBSlideShow.h"
#include "support/windows/NebApplication.h"

namespace {

constexpr int Runs = 15;

int ShowEmpty(int argc, char** argv) {
    QApplication App(argc, argv);
    QMainWindow Window;
    Window.resize(1000, 700);
    Window.show();
    QApplication::processEvents();
    return 0;
}

int ShowProgram(int argc, char** argv) {
    QTemporaryDir Documents;
    neb::NebApplication App(argc, argv);
    const neb::DesktopServices Services;
    neb::SetDocumentsPath(Documents.path());
    neb::frmNEBSlideShow Window;
    Window.Form_Load({});
    QApplication::processEvents();
    return 0;
}

double RunSeconds(const char* Program, const char* Mode) {
    using namespace std::chrono;
    const auto Start = steady_clock::now();
    QProcess::execute(QString::fromLocal8Bit(Program), {QString::fromLatin1(Mode)});
    return duration<double>(steady_clock::now() - Start).count();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && qstrcmp(argv[1], "--empty") == 0) return ShowEmpty(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "--program") == 0) return ShowProgram(argc, argv);
    double Empty = 1e9, Program = 1e9;
    for (int I = 0; I < Runs; ++I) {
        Empty = std::min(Empty, RunSeconds(argv[0], "--empty"));
        Program = std::min(Program, RunSeconds(argv[0], "--program"));
    }
    std::printf("Start, window on the screen (best of %d)\n", Runs);
    std::printf("  empty window %.0f ms, program %.0f ms: ratio %.2f (limit 1.5)\n", Empty * 1000,
                Program * 1000, Program / Empty);
    return 0;
}
