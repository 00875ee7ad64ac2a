// Counting the pictures in 20,000 directories with 200,000 files in memory: against find, which
// counts the same names, and how long the directory selector leaves its user waiting meanwhile.
// Prints one line a figure.
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "albums/modPictureFiles.h"
#include "controls/directories/DirectoryTree.h"
#include "settings/modNEBSlideShow.h"
#include "support/MediaTypes.h"
#include "support/files/modHostFiles.h"
#include "windows/import/frmDirSelect.h"

using namespace neb;

namespace {

constexpr int Rounds = 7;
constexpr const char* Names[] = {"/a.jpg", "/b.JPG", "/c.jpeg",    "/d.png", "/e.TIF",
                                 "/f.psd", "/g.wmf", "/notes.txt", "/h.gif", "/a.jpg.bak"};

void MakeTree(const QString& Root) {
    for (int I = 0; I < 20000; ++I) {
        QString Dir = Root + u'/' + QString::number(I / 100);
        if (I % 100 > 0) Dir += u'/' + QString::number(I % 100);
        MakeDirs(Dir);
        for (const char* Name : Names) WriteFile(Dir + QString::fromLatin1(Name), {});
    }
}

void MakeFlat(const QString& Dir) {
    MakeDirs(Dir);
    for (int I = 0; I < 200000; ++I) WriteFile(Dir + QStringLiteral("/%1.jpg").arg(I), {});
}

struct Timed {
    double Ms = 0;
    int Count = 0;
};

// The middle of several times.
template <class Work>
Timed Median(Work Count) {
    std::vector<double> Times;
    Timed Result;
    for (int I = 0; I < Rounds; ++I) {
        QElapsedTimer Clock;
        Clock.start();
        Result.Count = Count();
        Times.push_back(static_cast<double>(Clock.nsecsElapsed()) / 1e6);
    }
    std::sort(Times.begin(), Times.end());
    Result.Ms = Times[Rounds / 2];
    return Result;
}

Timed RunFind(const QString& Dir, const QString& Test) {
    const QString Line =
        QStringLiteral("find '%1' -type f %2 -printf '\\n' | wc -l").arg(Dir, Test);
    return Median([&] {
        QProcess Shell;
        Shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), Line});
        Shell.waitForFinished(-1);
        return Shell.readAllStandardOutput().trimmed().toInt();
    });
}

// One test of each ending, or one expression for all: whichever find does faster.
Timed FastestFind(const QString& Dir) {
    QStringList Endings, Each;
    for (const QString& Extension : PictureExtensions()) Endings << Extension.mid(1);
    for (const QString& Ending : Endings) Each << QStringLiteral("-iname '*.%1'").arg(Ending);
    const Timed ByName =
        RunFind(Dir, QStringLiteral("\\( %1 \\)").arg(Each.join(QStringLiteral(" -o "))));
    const Timed ByExpression = RunFind(
        Dir,
        QStringLiteral("-regextype posix-extended -iregex '.*\\.(%1)'").arg(Endings.join(u'|')));
    return ByName.Ms < ByExpression.Ms ? ByName : ByExpression;
}

Timed RunCount(const QString& Dir) {
    return Median([&] {
        JobState Count;
        return CountGraphicFiles(Dir, true, Count);
    });
}

// The longest time between two turns of the window's own work.
class Gaps : public QTimer {
  public:
    Gaps() {
        connect(this, &QTimer::timeout, this, [this] { Look(); });
        mClock.start();
        start(1);
    }
    double Longest() {
        Look();
        return mLongest;
    }

  private:
    void Look() {
        mLongest = std::max(mLongest, static_cast<double>(mClock.nsecsElapsed()) / 1e6);
        mClock.restart();
    }
    QElapsedTimer mClock;
    double mLongest = 0;
};

// Goes to the directory in the window, and measures until the count is there and Ms more.
void MeasureWindow(const char* What, const QString& Dir, bool Recurse, int Ms) {
    const auto Window = NewForm<frmDirSelect>();
    Window->ShowModeless();
    QElapsedTimer Settled;
    for (Settled.start(); Settled.elapsed() < 500;) QApplication::processEvents();
    const auto& Label = *Window->findChild<QLabel*>(QStringLiteral("lblDirSummary"));
    Gaps Waits;
    QElapsedTimer Clock;
    Clock.start();
    if (Recurse) Window->findChild<QCheckBox*>()->click();
    Window->findChild<DirectoryTree*>()->SetPath(Dir);
    while (!Label.text().endsWith(QStringLiteral("detected."))) QApplication::processEvents();
    const auto Counted = Clock.elapsed();
    for (Clock.start(); Clock.elapsed() < Ms;) QApplication::processEvents();
    std::printf("%-44s %6.1f ms at most without an answer (limit 100), %lld ms until \"%s\"\n",
                What, Waits.Longest(), static_cast<long long>(Counted), qPrintable(Label.text()));
    Window->Unload();
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication App(argc, argv);
    const QTemporaryDir Memory(QStringLiteral("/dev/shm/bench_count-XXXXXX"));
    AppPathCache = Memory.path() + u'/';
    const QString Tree = Memory.filePath(QStringLiteral("tree"));
    const QString Flat = Memory.filePath(QStringLiteral("flat"));
    MakeTree(Tree);
    const Timed Find = FastestFind(Tree), Own = RunCount(Tree);
    if (Find.Count != Own.Count) {
        std::fprintf(stderr, "find counts %d, the program %d\n", Find.Count, Own.Count);
        return 1;
    }
    std::printf("%-44s %6.2f (limit 2)   (%.1f / %.1f ms, %d pictures)\n",
                "counting 200,000 files in 20,000 dirs / find", Own.Ms / Find.Ms, Own.Ms, Find.Ms,
                Own.Count);
    MeasureWindow("the window, the same count", Tree, true, 1000);
    MakeFlat(Flat);
    MeasureWindow("the window, 200,000 files in one directory", Flat, false, 3000);
    return 0;
}
