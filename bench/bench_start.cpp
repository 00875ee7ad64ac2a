// The time until the main window is on the screen, against empty main windows of the toolkit in a
// program that links nothing else. Each run is a process of its own; medians count.
//   bench_start            measures both
//   bench_start --program  the program until its window is on the screen, then the end
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <chrono>
#include <cstdio>

#include "controls/forms/NebApplication.h"
#include "program/DesktopServices.h"
#include "program/frmNEBSlideShow.h"
#include "settings/modNEBSlideShow.h"

namespace {

constexpr int Runs = 41;
constexpr int SettleMs = 50;  // the display server tidies up after the last run

// The window is shown before anything is loaded, and painted by the first yield.
int ShowProgram(int argc, char** argv) {
    neb::NebApplication App(argc, argv);
    const neb::DesktopServices Services;
    neb::SetDocumentsPath(QString::fromLocal8Bit(argv[2]));
    neb::frmNEBSlideShow Window;
    neb::SetDoEventsHook([] { std::_Exit(0); });
    Window.Form_Load({});
    return 1;
}

double RunSeconds(const QString& Program, const QStringList& Arguments) {
    using namespace std::chrono;
    QThread::msleep(SettleMs);
    const auto Start = steady_clock::now();
    if (QProcess::execute(Program, Arguments) != 0) std::puts("a run has failed");
    return duration<double>(steady_clock::now() - Start).count();
}

double Median(std::vector<double>& Values) {
    std::nth_element(Values.begin(), Values.begin() + Runs / 2, Values.end());
    return Values[Runs / 2];
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 2 && qstrcmp(argv[1], "--program") == 0) return ShowProgram(argc, argv);
    const QCoreApplication App(argc, argv);
    const QTemporaryDir Documents;
    const QString Itself = QCoreApplication::applicationFilePath();
    const QString Beside = QCoreApplication::applicationDirPath() + QStringLiteral("/");
    std::vector<double> Bare, Bars, Program;
    for (int I = 0; I < Runs; ++I) {
        Bare.push_back(RunSeconds(Beside + QStringLiteral("bench_empty_window"), {}));
        Bars.push_back(
            RunSeconds(Beside + QStringLiteral("bench_empty_window"), {QStringLiteral("--bars")}));
        Program.push_back(RunSeconds(Itself, {QStringLiteral("--program"), Documents.path()}));
    }
    const double Ours = Median(Program), WithBars = Median(Bars), Least = Median(Bare);
    std::printf("Main window on the screen: %.1f ms (median of %d)\n", Ours * 1000, Runs);
    std::printf("  window with a menu of one word: %.1f ms, ratio %.2f (limit 1.5)\n",
                WithBars * 1000, Ours / WithBars);
    std::printf("  window without a letter of text: %.1f ms, ratio %.2f (limit 1.5)\n",
                Least * 1000, Ours / Least);
    return 0;
}
