// The time until the main window is on the screen, against empty main windows of the toolkit in a
// program that links nothing else; and until its home shows 50 albums. Each run is a process of its
// own; medians count.
//   bench_start                   measures all
//   bench_start --program FOLDER  the program until its window is on the screen, then the end
//   bench_start --home FOLDER     the program until its home is painted, then the end
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <chrono>
#include <cstdio>

#include "BenchAlbum.h"
#include "controls/forms/NebApplication.h"
#include "program/DesktopServices.h"
#include "program/frmNEBSlideShow.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"

namespace {

constexpr int Runs = 41;
constexpr int Albums = 50, Slides = 40;
constexpr int SettleMs = 50;  // the display server tidies up after the last run

// As it is after some years: albums with pictures, and a machine that has been measured.
void MakeLibrary(const QString& Folder) {
    using namespace neb;
    SetDocumentsPath(Folder);
    MakeDirs(DBPath());
    clsDBEngine Engine;
    Engine.SetDBPath(DBPath());
    Engine.InitializeDB();
    QImage Picture(1024, 768, QImage::Format_RGB32);
    Picture.fill(Qt::darkGreen);
    for (int I = 0; I < Albums; ++I) {
        const std::int32_t AlbumID = MakeBenchAlbum(Engine, Slides);
        clsNEBAlbum& Album = *Engine.GetAlbum(AlbumID);
        Album.AlbumName += QStringLiteral(", %1").arg(I);
        const QString Cover = SlidesFolder(Engine.DBPath(), AlbumID);
        Picture.save(Cover + FileStem(Album.Slides.front()->SlideID) + QStringLiteral(".jpg"));
    }
    Engine.FinalizeDB();
    clsSettings Settings = OpenSettings();
    PutNumber(Settings, Setting::Timeout, 10);
    Settings.Save();
}

int ShowHome(neb::frmNEBSlideShow& Window) {
    if (!Window.Form_Load({})) return 1;
    QApplication::processEvents();
    std::_Exit(0);
}

// The window is shown before anything is loaded, and painted by the first yield.
int ShowProgram(int argc, char** argv) {
    neb::NebApplication App(argc, argv);
    const neb::DesktopServices Services;
    neb::SetDocumentsPath(QString::fromLocal8Bit(argv[2]));
    neb::frmNEBSlideShow Window;
    if (qstrcmp(argv[1], "--home") == 0) return ShowHome(Window);
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
    if (argc > 2) return ShowProgram(argc, argv);
    const QGuiApplication App(argc, argv);
    const QTemporaryDir Documents;
    MakeLibrary(Documents.path());
    const QString Itself = QCoreApplication::applicationFilePath();
    const QString Beside = QCoreApplication::applicationDirPath() + QStringLiteral("/");
    std::vector<double> Bare, Bars, Program, Homes;
    for (int I = 0; I < Runs; ++I) {
        Bare.push_back(RunSeconds(Beside + QStringLiteral("bench_empty_window"), {}));
        Bars.push_back(
            RunSeconds(Beside + QStringLiteral("bench_empty_window"), {QStringLiteral("--bars")}));
        Program.push_back(RunSeconds(Itself, {QStringLiteral("--program"), Documents.path()}));
        Homes.push_back(RunSeconds(Itself, {QStringLiteral("--home"), Documents.path()}));
    }
    const double Ours = Median(Program), WithBars = Median(Bars), Least = Median(Bare);
    std::printf("Main window on the screen: %.1f ms (median of %d)\n", Ours * 1000, Runs);
    std::printf("  window with a menu of one word: %.1f ms, ratio %.2f (limit 1.3)\n",
                WithBars * 1000, Ours / WithBars);
    std::printf("  window without a letter of text: %.1f ms, ratio %.2f (limit 1.5)\n",
                Least * 1000, Ours / Least);
    const double Home = Median(Homes);
    std::printf("Home of %d albums painted: %.1f ms, ratio %.2f to the window with a menu\n",
                Albums, Home * 1000, Home / WithBars);
    return 0;
}
