// The processor time of a frame of each transition at 1920x1080 on one thread, as a multiple of
// copying one frame in memory, over twenty frames spread evenly over the way. Prints the table and
// its sums.
//   bench_effects [NUMBER ...]   only these
// The caches are emptied before each frame and before each copy, for in a show every frame goes on
// to the screen and comes from new pictures. The column "warm" has the same of frames and copies
// that follow one another in the cache, "taken" the allocations of all frames after the first. Then
// the most expensive of them are drawn as a show draws them, on two threads, against one, and all
// of them at the size of a large screen. Ends with 1 where a limit there is not kept.
#include <QImage>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <thread>
#include <vector>

#include "BenchScene.h"
#include "FrameTimes.h"
#include "ScreenFrames.h"
#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"
#include "effects/XShowBands.h"
#include "effects/memory/AllocationCount.h"

using namespace neb;

namespace {

const QSize kSize(1920, 1080);
constexpr int kFrames = 20;
constexpr std::size_t kThreaded = 8;  // so many are drawn on several threads

struct Timing {
    int Number;
    double Mean, Worst;  // of a frame, in copies
    double Warm;         // mean with everything in the cache
    double Prepare;      // ms
    int Taken;           // allocations in all frames after the first
};

// Of this process: on one thread the time that goes by, less what other programs take of it.
template <typename Work>
double ProcessorMilliseconds(Work&& Do) {
    const std::clock_t Start = std::clock();
    Do();
    return static_cast<double>(std::clock() - Start) * 1000 / CLOCKS_PER_SEC;
}

double Median(std::vector<double> Values) {
    std::sort(Values.begin(), Values.end());
    return Values[Values.size() / 2];
}

// Pushes all else out of the caches.
void EmptyCaches() {
    static std::vector<char> Ballast(std::size_t{96} << 20);
    static char Turn = 0;
    std::memset(Ballast.data(), ++Turn, Ballast.size());
}

template <typename Work>
double Cold(Work&& Do) {
    EmptyCaches();
    return ProcessorMilliseconds(Do);
}

struct CopyTimes {
    double Cold, Warm;
};

CopyTimes TimeCopies(const QImage& From, QImage& To) {
    const auto Copy = [&] {
        std::memcpy(To.bits(), From.constBits(), static_cast<std::size_t>(From.sizeInBytes()));
    };
    std::vector<double> ColdTimes, WarmTimes;
    for (int I = 0; I < 9; ++I) ColdTimes.push_back(Cold(Copy));
    for (int I = 0; I < 9; ++I) WarmTimes.push_back(ProcessorMilliseconds(Copy));
    return {Median(ColdTimes), Median(WarmTimes)};
}

// The copies are made right before the frames, so that a busier machine slows both.
Timing Measure(int Number, const QImage& Old, const QImage& New, QImage& Out) {
    Timing T{Number, 0, 0, 0, 0, 0};
    std::unique_ptr<Transition> Made;
    T.Prepare =
        ProcessorMilliseconds([&] { Made = std::make_unique<Transition>(Number, Old, New); });
    Made->Draw(0.5, Out);
    const CopyTimes Copy = TimeCopies(Old, Out);
    const int Before = neb::effectstest::AllocationsOfThisThread();
    for (int I = 0; I < kFrames; ++I) {
        const auto Frame = [&] { Made->Draw((I + 0.5) / kFrames, Out); };
        const double Copies = std::min(Cold(Frame), Cold(Frame)) / Copy.Cold;
        T.Mean += Copies / kFrames;
        T.Worst = std::max(T.Worst, Copies);
        T.Warm += ProcessorMilliseconds(Frame) / Copy.Warm / kFrames;
    }
    T.Taken = neb::effectstest::AllocationsOfThisThread() - Before;
    return T;
}

// How many times faster frames are on all cores than on one thread.
double ThreadFactor(int Number, const QImage& Old, const QImage& New, QImage& Out) {
    const Transition T(Number, Old, New);
    const FrameTimes One = LeastTimes(9, [&](double P) { T.Draw(P, Out); });
    return SumOf(One) / SumOf(LeastTimes(9, [&](double P) { DrawInBands(T, P, Out); }));
}

// The same of plain arithmetic: what the machine has to give beside all else that runs on it.
double PossibleFactor() {
    const auto Reckon = [] {
        volatile double Sum = 1;
        for (int I = 0; I < 30000000; ++I) Sum = Sum * 0.999 + 1;
    };
    const double One = Milliseconds([&] { Reckon(), Reckon(); });
    const double Two = Milliseconds([&] {
        std::thread Other(Reckon);
        Reckon();
        Other.join();
    });
    return One / Two;
}

void PrintThreads(std::vector<Timing> All, const QImage& Old, const QImage& New, QImage& Out) {
    std::sort(All.begin(), All.end(),
              [](const Timing& A, const Timing& B) { return A.Mean > B.Mean; });
    All.resize(std::min(All.size(), kThreaded));
    std::printf("two threads that only reckon are %.2f times as fast as one\n", PossibleFactor());
    for (const Timing& T : All)
        std::printf("%4d %-28s on %d threads %.2f times as fast as on one\n", T.Number,
                    qPrintable(EffectName(T.Number)), QThread::idealThreadCount(),
                    ThreadFactor(T.Number, Old, New, Out));
}

void PrintSums(const char* How, const std::vector<Timing>& All, double Timing::*What) {
    std::vector<double> Means;
    for (const Timing& T : All) Means.push_back(T.*What);
    std::sort(Means.begin(), Means.end());
    std::printf("%s: %zu effects: median %.2f, nine in ten at most %.2f, most %.2f copies\n", How,
                Means.size(), Means[Means.size() / 2], Means[(Means.size() * 9 + 9) / 10 - 1],
                Means.back());
}

std::vector<int> Wanted(int Count, char** Arguments) {
    std::vector<int> Out;
    for (int I = 1; I < Count; ++I) Out.push_back(std::atoi(Arguments[I]));
    for (int N = 1; N <= EffectCount() && Count < 2; ++N)
        if (EffectIsKnown(N)) Out.push_back(N);
    return Out;
}

}  // namespace

int main(int Count, char** Arguments) {
    const QImage Old = BenchScene(kSize, 1), New = BenchScene(kSize, 2);
    QImage Out(kSize, QImage::Format_RGB32);
    const CopyTimes Copy = TimeCopies(Old, Out);
    std::printf("one copy of a frame: %.2f ms, %.2f ms in the cache\n", Copy.Cold, Copy.Warm);
    std::vector<Timing> All;
    for (const int Number : Wanted(Count, Arguments)) {
        All.push_back(Measure(Number, Old, New, Out));
        const Timing& T = All.back();
        std::printf(
            "%4d %-28s %-14s mean %6.2f  worst %6.2f  warm %6.2f  prepared in %6.1f ms"
            "  taken %d\n",
            Number, qPrintable(EffectName(Number)), qPrintable(EffectEngine(Number)), T.Mean,
            T.Worst, T.Warm, T.Prepare, T.Taken);
    }
    PrintSums("from memory", All, &Timing::Mean);
    PrintSums("in the cache", All, &Timing::Warm);
    PrintThreads(All, Old, New, Out);
    return PrintScreenFrames(Wanted(Count, Arguments)) ? 0 : 1;
}
