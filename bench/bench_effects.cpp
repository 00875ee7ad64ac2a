// The time of a frame of each transition at 1920x1080 on one thread, as a multiple of copying one
// frame in memory, over twenty frames spread evenly over the way. Prints the table and its sums.
//   bench_effects [NUMBER ...]   only these
#include <QElapsedTimer>
#include <QImage>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"

using namespace neb;

namespace {

const QSize kSize(1920, 1080);
constexpr int kFrames = 20;

struct Timing {
    int Number;
    double Mean, Worst;  // of a frame, in copies
    double Prepare;      // ms
};

QImage Scene(std::uint32_t Seed) {
    QImage P(kSize, QImage::Format_RGB32);
    for (int Y = 0; Y < P.height(); ++Y) {
        auto* Row = reinterpret_cast<QRgb*>(P.scanLine(Y));
        for (int X = 0; X < P.width(); ++X) {
            Seed = Seed * 1664525u + 1013904223u;
            const int Grain = static_cast<int>(Seed >> 28);
            Row[X] = qRgb(X * 200 / P.width() + Grain, Y * 200 / P.height() + Grain, 100 + Grain);
        }
    }
    return P;
}

template <typename Work>
double Milliseconds(Work&& Do) {
    QElapsedTimer Timer;
    Timer.start();
    Do();
    return static_cast<double>(Timer.nsecsElapsed()) * 1e-6;
}

double Median(std::vector<double> Values) {
    std::sort(Values.begin(), Values.end());
    return Values[Values.size() / 2];
}

double CopyTime(const QImage& From, QImage& To) {
    std::vector<double> Times;
    for (int I = 0; I < 9; ++I)
        Times.push_back(Milliseconds([&] {
            std::memcpy(To.bits(), From.constBits(), static_cast<std::size_t>(From.sizeInBytes()));
        }));
    return Median(Times);
}

// The copies are made right before the frames, so that a busier machine slows both.
Timing Measure(int Number, const QImage& Old, const QImage& New, QImage& Out) {
    Timing T{Number, 0, 0, 0};
    std::unique_ptr<Transition> Made;
    T.Prepare = Milliseconds([&] { Made = std::make_unique<Transition>(Number, Old, New); });
    Made->Draw(0.5, Out);
    const double Copy = CopyTime(Old, Out);
    for (int I = 0; I < kFrames; ++I) {
        const auto Frame = [&] { Made->Draw((I + 0.5) / kFrames, Out); };
        const double Copies = std::min(Milliseconds(Frame), Milliseconds(Frame)) / Copy;
        T.Mean += Copies / kFrames;
        T.Worst = std::max(T.Worst, Copies);
    }
    return T;
}

void PrintSums(const std::vector<Timing>& All) {
    std::vector<double> Means;
    for (const Timing& T : All) Means.push_back(T.Mean);
    std::sort(Means.begin(), Means.end());
    std::printf("%zu effects: median %.2f, nine in ten at most %.2f, most %.2f copies of a frame\n",
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
    const QImage Old = Scene(1), New = Scene(2);
    QImage Out(kSize, QImage::Format_RGB32);
    std::printf("one copy of a frame: %.2f ms\n", CopyTime(Old, Out));
    std::vector<Timing> All;
    for (const int Number : Wanted(Count, Arguments)) {
        All.push_back(Measure(Number, Old, New, Out));
        const Timing& T = All.back();
        std::printf("%4d %-28s %-14s mean %6.2f  worst %6.2f  prepared in %6.1f ms\n", Number,
                    qPrintable(EffectName(Number)), qPrintable(EffectEngine(Number)), T.Mean,
                    T.Worst, T.Prepare);
    }
    PrintSums(All);
}
