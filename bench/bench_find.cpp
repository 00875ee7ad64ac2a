// Find Graphics over a tree of 200,000 files in 20,000 directories, in memory and warm, against
// `find` with the same name test, and the longest time for which its window did not answer. The
// second figure of a line has `find` print size and date of each match as well, as the list shows
// them.
//   bench_find [directories [files each]]
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "albums/GraphicsSearch.h"
#include "controls/directories/Drives.h"
#include "controls/forms/NebApplication.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "support/Services.h"
#include "support/files/modHostFiles.h"
#include "windows/import/frmFindGraphics.h"

using namespace neb;

namespace {

constexpr int Runs = 5;

class OneDrive : public DriveList {
  public:
    explicit OneDrive(const QString& Path) : mPath(Path) { TheServices().Drives = this; }
    QStringList Drives() const override { return {mPath}; }
    bool IsReady(const QString&) const override { return true; }

  private:
    QString mPath;
};

// Three levels of directories; of ten files one begins with "holiday", one is no picture.
void MakeTree(const QString& Root, int Directories, int Files) {
    for (int D = 0; D < Directories; ++D) {
        QString Path = Root;
        if (D >= 20) Path += QStringLiteral("/d%1").arg(D % 20);
        if (D >= 400) Path += QStringLiteral("/e%1").arg(D / 20 % 20);
        Path += (D < 20    ? QStringLiteral("/d%1")
                 : D < 400 ? QStringLiteral("/e%1")
                           : QStringLiteral("/f%1"))
                    .arg(D < 20    ? D
                         : D < 400 ? D / 20
                                   : D / 400);
        MakeDirs(Path);
        for (int F = 0; F < Files; ++F) {
            const char* Name = F == 0 ? "/holiday%1.JPG" : F == 1 ? "/notes%1.txt" : "/IMG_%1.jpg";
            WriteFile(Path + QString::fromLatin1(Name).arg(F * Directories + D), "x");
        }
    }
}

struct Answering {
    double LongestGap = 0;  // milliseconds
    double Seconds = 0;
    int Rows = 0;
};

// Presses "Search" in the shown window; a timer of no interval tells when events are taken.
Answering SearchInWindow(const QString& Filter) {
    const auto Window = NewForm<frmFindGraphics>();
    Window->ShowModeless();
    Window->findChild<QLineEdit*>(QStringLiteral("txtFilter"))->setText(Filter);
    QElapsedTimer Time;
    Answering Result;
    qint64 Last = 0;
    QTimer Beat;
    const auto Note = [&] {
        const qint64 Now = Time.nsecsElapsed();
        Result.LongestGap = std::max(Result.LongestGap, static_cast<double>(Now - Last) / 1e6);
        Last = Now;
    };
    QObject::connect(&Beat, &QTimer::timeout, &Beat, Note);
    DoEvents();
    Beat.start(0);
    Time.start();
    Window->findChild<QPushButton*>(QStringLiteral("cmdSearch"))->click();
    Result.Seconds = static_cast<double>(Time.nsecsElapsed()) / 1e9;
    DoEvents();  // the last rows are painted here
    Note();
    Result.Rows = Window->findChild<FlexGrid*>(QStringLiteral("flxResults"))->Rows();
    Window->Unload();
    return Result;
}

QString NameTest(const QString& Mask) {
    QStringList Types;
    for (const QString& Entry : GraphicTypes())
        for (const QString& Type : Entry.split(u'/'))
            Types << QStringLiteral("-iname '*.%1'").arg(Type);
    const QString Names = Mask == u"*.*" ? QString() : QStringLiteral("-iname '%1' ").arg(Mask);
    return QStringLiteral("-type f ") + Names + QStringLiteral("\\( ") +
           Types.join(QStringLiteral(" -o ")) + QStringLiteral(" \\)");
}

double FindSeconds(const QString& Root, const QString& Mask, const char* Print) {
    const QString Command = QStringLiteral("find '%1' %2 %3 > /dev/null")
                                .arg(Root, NameTest(Mask), QString::fromLatin1(Print));
    QElapsedTimer Time;
    Time.start();
    if (std::system(qPrintable(Command)) != 0) std::puts("find failed");
    return static_cast<double>(Time.nsecsElapsed()) / 1e9;
}

double Median(std::vector<double> Values) {
    std::sort(Values.begin(), Values.end());
    return Values[Values.size() / 2];
}

void Compare(const QString& Root, const QString& Filter) {
    std::vector<double> Ours, Plain, Facts;
    double Gap = 0;
    int Rows = 0;
    for (int I = 0; I < Runs; ++I) {
        Plain.push_back(FindSeconds(Root, NormalFilter(Filter), "-print"));
        Facts.push_back(FindSeconds(Root, NormalFilter(Filter), "-printf '%f\\t%h\\t%s\\t%t\\n'"));
        const Answering Each = SearchInWindow(Filter);
        Ours.push_back(Each.Seconds);
        Gap = std::max(Gap, Each.LongestGap);
        Rows = Each.Rows;
    }
    std::printf(
        "%-8s %6d rows  %6.0f ms   %.2f x find (limit 2)   %.2f x with size and date   "
        "longest without an answer %.0f ms (limit 100)\n",
        qPrintable(NormalFilter(Filter)), Rows, Median(Ours) * 1000, Median(Ours) / Median(Plain),
        Median(Ours) / Median(Facts), Gap);
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    NebApplication App(argc, argv);
    const int Directories = argc > 1 ? std::atoi(argv[1]) : 20000;
    const int Files = argc > 2 ? std::atoi(argv[2]) : 10;
    const QTemporaryDir Documents;
    SetDocumentsPath(Documents.path() + u'/');
    clsDBEngine Engine;
    Engine.SetDBPath(Documents.path());
    DBEngine = &Engine;
    const QTemporaryDir Tree(FolderExists(QStringLiteral("/dev/shm"))
                                 ? QStringLiteral("/dev/shm/neb-find-XXXXXX")
                                 : QString());
    MakeTree(Tree.path(), Directories, Files);
    const OneDrive Drives(Tree.path());
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    std::printf("Find Graphics in %d files and %d directories (middle of %d runs)\n",
                Directories * Files, Directories, Runs);
    for (const char* Filter : {"holiday", "nothing", ""}) Compare(Tree.path(), QString(Filter));
    return 0;
}
