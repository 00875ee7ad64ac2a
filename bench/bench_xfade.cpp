// The processor time of a frame of some transitions at 1920x1080 on one thread, against the filter
// xfade of ffmpeg doing its like: planar RGB, one thread, both pictures made once and then looped
// in memory. What ffmpeg takes for the same graph without xfade is taken off, so that the filter
// alone counts. Each time is the least of some runs.
#include <sys/resource.h>

#include <QCoreApplication>
#include <QImage>
#include <QProcess>
#include <algorithm>
#include <cstdio>
#include <ctime>

#include "BenchScene.h"
#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"

using namespace neb;

namespace {

const QSize kSize(1920, 1080);
constexpr int kFrames = 100, kRuns = 3;

struct Match {
    const char* Theirs;
    int Ours;
};
constexpr Match kMatches[] = {{"fade", 77},     {"fade", 1},       {"wipeleft", 21},
                              {"slideleft", 3}, {"circleopen", 4}, {"dissolve", 26},
                              {"radial", 11},   {"zoomin", 6},     {"pixelize", 16}};

double ChildSeconds() {
    rusage Use{};
    getrusage(RUSAGE_CHILDREN, &Use);
    return static_cast<double>(Use.ru_utime.tv_sec) +
           1e-6 * static_cast<double>(Use.ru_utime.tv_usec);
}

// One picture, then the same over and over.
QString Source(const char* Maker) {
    return QStringLiteral("%1=size=%2x%3:rate=25:duration=0.04,format=gbrp,loop=loop=%4:size=1")
        .arg(QLatin1String(Maker))
        .arg(kSize.width())
        .arg(kSize.height())
        .arg(kFrames + 10);
}

// Joins the two sources; Between is what becomes of them.
double FilterSeconds(const QString& Between) {
    const QString Graph = Source("testsrc2") + QStringLiteral("[a];") + Source("smptehdbars") +
                          QStringLiteral("[b];") + Between;
    const QStringList Words{QStringLiteral("-v"),
                            QStringLiteral("error"),
                            QStringLiteral("-nostdin"),
                            QStringLiteral("-filter_threads"),
                            QStringLiteral("1"),
                            QStringLiteral("-filter_complex_threads"),
                            QStringLiteral("1"),
                            QStringLiteral("-filter_complex"),
                            Graph,
                            QStringLiteral("-threads"),
                            QStringLiteral("1"),
                            QStringLiteral("-frames:v"),
                            QString::number(kFrames),
                            QStringLiteral("-pix_fmt"),
                            QStringLiteral("gbrp"),
                            QStringLiteral("-f"),
                            QStringLiteral("null"),
                            QStringLiteral("-")};
    const double Before = ChildSeconds();
    QProcess Program;
    Program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Program.start(QStringLiteral("ffmpeg"), Words);
    if (!Program.waitForFinished(-1) || Program.exitCode() != 0) return -1;
    return ChildSeconds() - Before;
}

template <typename Work>
double Least(Work&& Do) {
    double Best = Do();
    for (int Run = 1; Run < kRuns; ++Run) Best = std::min(Best, Do());
    return Best;
}

double TheirSeconds(const char* Name) {
    // The whole run lies within the transition.
    const QString Between = QStringLiteral("[a][b]xfade=transition=%1:duration=%2:offset=0")
                                .arg(QLatin1String(Name))
                                .arg(kFrames / 25.0);
    return Least([&] { return FilterSeconds(Between); });
}

template <typename Work>
double OurSeconds(Work&& DrawFrame) {
    return Least([&] {
        const std::clock_t Start = std::clock();
        for (int I = 0; I < kFrames; ++I) DrawFrame((I + 0.5) / kFrames);
        return static_cast<double>(std::clock() - Start) / CLOCKS_PER_SEC;
    });
}

double EffectSeconds(int Number, const QImage& Old, const QImage& New) {
    QImage Out = Old.copy();
    const Transition T(Number, Old, New);
    return OurSeconds([&](double Progress) { T.Draw(Progress, Out); });
}

}  // namespace

int main(int Count, char** Arguments) {
    const QCoreApplication App(Count, Arguments);
    const QImage Old = BenchScene(kSize, 1), New = BenchScene(kSize, 2);
    const double Empty = Least([] { return FilterSeconds(QStringLiteral("[b]nullsink;[a]null")); });
    if (Empty < 0) {
        std::fprintf(stderr, "bench_xfade: ffmpeg cannot be run.\n");
        return 1;
    }
    std::printf("ffmpeg without the filter: %.2f ms a frame, taken off below\n",
                Empty * 1000 / kFrames);
    for (const Match& M : kMatches) {
        const double Theirs = (TheirSeconds(M.Theirs) - Empty) * 1000 / kFrames;
        const double Ours = EffectSeconds(M.Ours, Old, New) * 1000 / kFrames;
        std::printf("%-11s %7.2f ms   %4d %-22s %6.2f ms   %5.1f times less\n", M.Theirs, Theirs,
                    M.Ours, qPrintable(EffectName(M.Ours)), Ours, Theirs / Ours);
    }
}
