// The processor time of a frame of some transitions at 1920x1080 on one thread, against the filter
// xfade of ffmpeg doing its like: planar RGB, one thread, both pictures made once and then looped
// in memory. What ffmpeg takes for the same graph without xfade is taken off, so that the filter
// alone counts. Both sides run by turns, and each time is the least of some runs. Ends with 1 where
// a limit is not kept; where many other programs run, they disturb less under chrt -f 10.
#include <sys/resource.h>

#include <QCoreApplication>
#include <QImage>
#include <QProcess>
#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

#include "BenchScene.h"
#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"

using namespace neb;

namespace {

const QSize kSize(1920, 1080);
constexpr int kFrames = 100, kRuns = 5;

struct Match {
    const char* Theirs;
    int Ours;
    double TimesLess = 4;  // wanted
};
constexpr Match kMatches[] = {{"fade", 77},     {"fade", 1},       {"wipeleft", 21, 6},
                              {"slideleft", 3}, {"circleopen", 4}, {"dissolve", 26},
                              {"radial", 11},   {"zoomin", 6},     {"pixelize", 16}};
constexpr std::size_t kCount = std::size(kMatches);
using Seconds = std::array<double, kCount>;

double SecondsOf(const timeval& T) {
    return static_cast<double>(T.tv_sec) + 1e-6 * static_cast<double>(T.tv_usec);
}

double ProcessorSeconds(int Whose) {
    rusage Use{};
    getrusage(Whose, &Use);
    return SecondsOf(Use.ru_utime) + SecondsOf(Use.ru_stime);
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
    const double Before = ProcessorSeconds(RUSAGE_CHILDREN);
    QProcess Program;
    Program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Program.start(QStringLiteral("ffmpeg"), Words);
    if (!Program.waitForFinished(-1) || Program.exitCode() != 0) return -1;
    return ProcessorSeconds(RUSAGE_CHILDREN) - Before;
}

double TheirSeconds(const char* Name) {
    // The whole run lies within the transition.
    return FilterSeconds(QStringLiteral("[a][b]xfade=transition=%1:duration=%2:offset=0")
                             .arg(QLatin1String(Name))
                             .arg(kFrames / 25.0));
}

double OurSeconds(const Transition& T, QImage& Out) {
    const double Before = ProcessorSeconds(RUSAGE_THREAD);
    for (int I = 0; I < kFrames; ++I) T.Draw((I + 0.5) / kFrames, Out);
    return ProcessorSeconds(RUSAGE_THREAD) - Before;
}

struct Measured {
    double Empty = 1e9;  // ffmpeg without the filter
    Seconds Theirs, Ours;
};

void RunOnce(const std::vector<Transition>& Transitions, QImage& Out, Measured& Least) {
    Least.Empty = std::min(Least.Empty, FilterSeconds(QStringLiteral("[b]nullsink;[a]null")));
    for (std::size_t I = 0; I < kCount; ++I) {
        Least.Theirs[I] = std::min(Least.Theirs[I], TheirSeconds(kMatches[I].Theirs));
        Least.Ours[I] = std::min(Least.Ours[I], OurSeconds(Transitions[I], Out));
    }
}

Measured MeasureAll() {
    const QImage Old = BenchScene(kSize, 1), New = BenchScene(kSize, 2);
    QImage Out = Old.copy();
    std::vector<Transition> Transitions;
    for (const Match& M : kMatches) Transitions.emplace_back(M.Ours, Old, New);
    Measured Least;
    Least.Theirs.fill(1e9);
    Least.Ours.fill(1e9);
    for (int Run = 0; Run < kRuns && Least.Empty > 0; ++Run) RunOnce(Transitions, Out, Least);
    return Least;
}

}  // namespace

int main(int Count, char** Arguments) {
    const QCoreApplication App(Count, Arguments);
    const Measured Least = MeasureAll();
    if (Least.Empty < 0) {
        std::fprintf(stderr, "bench_xfade: ffmpeg cannot be run.\n");
        return 1;
    }
    const double Frame = 1000.0 / kFrames;
    std::printf("ffmpeg without the filter: %.2f ms a frame, taken off below\n",
                Least.Empty * Frame);
    bool Good = true;
    for (std::size_t I = 0; I < kCount; ++I) {
        const Match& M = kMatches[I];
        const double Theirs = (Least.Theirs[I] - Least.Empty) * Frame, Ours = Least.Ours[I] * Frame;
        const bool Keeps = Theirs >= M.TimesLess * Ours;
        std::printf("%-11s %7.2f ms   %4d %-22s %6.2f ms   %5.1f times less, %.0f wanted  %s\n",
                    M.Theirs, Theirs, M.Ours, qPrintable(EffectName(M.Ours)), Ours, Theirs / Ours,
                    M.TimesLess, Keeps ? "kept" : "OVER");
        Good = Good && Keeps;
    }
    return Good ? 0 : 1;
}
