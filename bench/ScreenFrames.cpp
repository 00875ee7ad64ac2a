#include "ScreenFrames.h"

#include <QImage>
#include <QThread>
#include <cstdio>

#include "BenchScene.h"
#include "FrameTimes.h"
#include "db/modTables.h"
#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"
#include "effects/XShowBands.h"

namespace neb {
namespace {

const QSize kScreen(3840, 2160);
constexpr int kRounds = 5;
constexpr std::size_t kSlowest = 8;
// What a refresh leaves, and what nine in ten of all and every single frame may take, in ms; how
// many times as fast two threads are at the least.
constexpr double kRefresh = 16, kLongest = 25, kLeastFactor = 1.8;
constexpr std::array<const char*, 4> kLevelNames{"", "Lite", "Normal", "Intense"};

struct Measured {
    int Number;
    std::uint8_t Level;
    double Worst, Mean;  // ms of a frame
};

// As a new database classes them.
std::vector<std::uint8_t> Levels() {
    EffectStatRows Rows;
    ReadEffectStats(
        Rows, [](RecordFile) -> std::optional<RecordBytes> { return std::nullopt; },
        QStringLiteral(NEB_SOURCE_DIR "/assets/"));
    std::vector<std::uint8_t> Out(static_cast<std::size_t>(EffectCount()) + 1, 1);
    ClassifyByTime(Rows, Out, EffectCount(), 0);
    return Out;
}

struct Stage {
    QImage Old = BenchScene(kScreen, 1), New = BenchScene(kScreen, 2);
    QImage Out{kScreen, QImage::Format_RGB32};
};

Measured Measure(int Number, std::uint8_t Level, Stage& On) {
    const Transition T(Number, On.Old, On.New);
    const FrameTimes Times = LeastTimes(kRounds, [&](double P) { DrawInBands(T, P, On.Out); });
    return {Number, Level, WorstOf(Times), SumOf(Times) / kMoments};
}

double ThreadFactor(int Number, Stage& On) {
    const Transition T(Number, On.Old, On.New);
    const FrameTimes Many = LeastTimes(kRounds, [&](double P) { DrawInBands(T, P, On.Out); });
    return SumOf(LeastTimes(kRounds, [&](double P) { T.Draw(P, On.Out); })) / SumOf(Many);
}

bool Kept(bool Keeps) {
    std::printf("  %s\n", Keeps ? "kept" : "OVER");
    return Keeps;
}

bool PrintWorst(const char* Whose, const std::vector<Measured>& All, double Limit) {
    const auto& Worst = *std::max_element(
        All.begin(), All.end(), [](const auto& A, const auto& B) { return A.Worst < B.Worst; });
    std::printf("%-8s %3zu effects, worst frame %6.2f ms (%d %s), limit %.0f", Whose, All.size(),
                Worst.Worst, Worst.Number, qPrintable(EffectName(Worst.Number)), Limit);
    return Kept(Worst.Worst <= Limit);
}

bool PrintLevel(std::uint8_t Level, const std::vector<Measured>& All) {
    std::vector<Measured> Those;
    for (const Measured& M : All)
        if (M.Level == Level) Those.push_back(M);
    return Those.empty() || PrintWorst(kLevelNames[Level], Those, Level < 3 ? kRefresh : kLongest);
}

bool PrintMost(std::vector<Measured> All) {
    std::sort(All.begin(), All.end(),
              [](const auto& A, const auto& B) { return A.Worst < B.Worst; });
    const double Most = All[(All.size() * 9 + 9) / 10 - 1].Worst;
    std::printf("nine in ten of all, worst frame at most %.2f ms, limit %.0f", Most, kRefresh);
    return Kept(Most <= kRefresh);
}

bool PrintSlowest(std::vector<Measured> All, Stage& On) {
    std::sort(All.begin(), All.end(), [](const auto& A, const auto& B) { return A.Mean > B.Mean; });
    All.resize(std::min(All.size(), kSlowest));
    bool Good = true;
    for (const Measured& M : All) {
        const double Factor = ThreadFactor(M.Number, On);
        std::printf("%4d %-28s worst %6.2f  mean %6.2f ms, %.2f times as fast as one thread",
                    M.Number, qPrintable(EffectName(M.Number)), M.Worst, M.Mean, Factor);
        Good = Kept(Factor >= kLeastFactor) && Good;
    }
    return Good;
}

}  // namespace

bool PrintScreenFrames(const std::vector<int>& Numbers) {
    const int Threads = QThread::idealThreadCount();
    std::printf(
        "frames of %dx%d on %d threads, by the clock: %zu moments, of each the least of %d\n",
        kScreen.width(), kScreen.height(), Threads, kMoments, kRounds);
    Stage On;
    const auto LevelOf = Levels();
    std::vector<Measured> All;
    for (const int N : Numbers) All.push_back(Measure(N, LevelOf[static_cast<std::size_t>(N)], On));
    bool Good = true;
    for (const std::uint8_t Level : {1, 2, 3}) Good = PrintLevel(Level, All) && Good;
    Good = PrintMost(All) && Good;
    Good = PrintWorst("all", All, kLongest) && Good;
    Good = PrintSlowest(All, On) && Good;
    if (Threads < 2) std::printf("the limits are those of two threads\n");
    return Good || Threads < 2;
}

}  // namespace neb
