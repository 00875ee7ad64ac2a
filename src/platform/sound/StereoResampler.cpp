#include "platform/sound/StereoResampler.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/sound/SoundFormat.h"

namespace neb {
namespace {

constexpr int Phases = 512;        // rows of coefficients from one frame to the next
constexpr int HalfWidth = 32;      // zero crossings on each side
constexpr double Sharpness = 8.5;  // of the Kaiser window: some 85 dB
constexpr double Cutoff = 0.955;   // of the lower of the two rates' halves

double Bessel(double X) {
    double Sum = 1, Term = 1;
    for (int K = 1; K < 40; ++K) {
        Term *= (X / (2 * K)) * (X / (2 * K));
        Sum += Term;
    }
    return Sum;
}

double Sinc(double X) {
    if (X == 0) return 1;
    return std::sin(std::numbers::pi * X) / (std::numbers::pi * X);
}

// The part that a frame at this distance (in frames of the source) has in the sound.
double Weight(double Distance, double Reach, double Band) {
    const double Part = Distance / Reach;
    if (std::abs(Part) >= 1) return 0;
    return Band * Sinc(Band * Distance) * Bessel(Sharpness * std::sqrt(1 - Part * Part)) /
           Bessel(Sharpness);
}

// A constant comes out as the same constant at every phase.
void Normalise(float* Row, int Taps) {
    double Sum = 0;
    for (int I = 0; I < Taps; ++I) Sum += static_cast<double>(Row[I]);
    for (int I = 0; I < Taps; ++I) Row[I] = static_cast<float>(static_cast<double>(Row[I]) / Sum);
}

std::vector<float> MakeRows(int Reach, double Band) {
    const int Taps = 2 * Reach;
    std::vector<float> Rows(static_cast<size_t>(Taps) * (Phases + 1));
    for (int Phase = 0; Phase <= Phases; ++Phase) {
        float* const Row = &Rows[static_cast<size_t>(Phase) * static_cast<size_t>(Taps)];
        for (int I = 0; I < Taps; ++I) {
            const double Distance = I - (Reach - 1) - static_cast<double>(Phase) / Phases;
            Row[I] = static_cast<float>(Weight(Distance, Reach, Band));
        }
        Normalise(Row, Taps);
    }
    return Rows;
}

}  // namespace

StereoResampler::StereoResampler(int FromRate) : mRate(FromRate) {
    const double Lower = std::min(1.0, static_cast<double>(kMixRate) / FromRate);
    mReach = static_cast<int>(std::ceil(HalfWidth / Lower));
    mRows = MakeRows(mReach, Cutoff * Lower);
    Restart(0);
}

void StereoResampler::Restart(int History) {
    mInput.clear();
    mNext = 0;
    mFirst = -mReach;
    PushSilence(std::max(0, mReach - History));
}

void StereoResampler::Push(const float* Frames, int Count) {
    mInput.insert(mInput.end(), Frames, Frames + 2 * static_cast<std::ptrdiff_t>(Count));
}

void StereoResampler::PushSilence(int Count) {
    mInput.insert(mInput.end(), 2 * static_cast<size_t>(Count), 0.F);
}

int StereoResampler::Pull(float* Into, int MaxFrames) {
    const qint64 End = mFirst + static_cast<qint64>(mInput.size() / 2);
    int Done = 0;
    for (; Done < MaxFrames; ++Done, ++mNext, Into += 2) {
        const qint64 Place = mNext * mRate / kMixRate;
        if (Place + mReach >= End) break;
        const double Phase = static_cast<double>(mNext * mRate % kMixRate) / kMixRate;
        Compute(Into, &mInput[2 * static_cast<size_t>(Place - mReach + 1 - mFirst)], Phase);
    }
    Compact();
    return Done;
}

// Between the two nearest rows, whose difference is small.
void StereoResampler::Compute(float* Into, const float* First, double Phase) const {
    const size_t Taps = 2 * static_cast<size_t>(mReach);
    const double Row = Phase * Phases;
    const auto Lower = static_cast<size_t>(Row);
    const auto Between = static_cast<float>(Row - static_cast<double>(Lower));
    const float* const A = &mRows[Lower * Taps];
    const float* const B = A + Taps;
    float Left = 0, Right = 0;
    for (size_t I = 0; I < Taps; ++I) {
        const float Part = A[I] + (B[I] - A[I]) * Between;
        Left += First[2 * I] * Part;
        Right += First[2 * I + 1] * Part;
    }
    Into[0] = Left;
    Into[1] = Right;
}

void StereoResampler::Compact() {
    const qint64 Needless = mNext * mRate / kMixRate - mReach + 1 - mFirst;
    const qint64 Dropped = std::min(Needless, static_cast<qint64>(mInput.size() / 2));
    if (Dropped <= 0) return;
    mInput.erase(mInput.begin(), mInput.begin() + 2 * static_cast<std::ptrdiff_t>(Dropped));
    mFirst += Dropped;
}

}  // namespace neb
