#include "Tone.h"

#include <algorithm>
#include <cmath>

namespace neb::demo {
namespace {

constexpr double Pi = 3.14159265358979323846;
constexpr double HalfTone = 1.0594630943592953;  // the twelfth root of two

size_t FramesOf(double Seconds, int Rate) {
    return static_cast<size_t>(std::lround(Seconds * Rate));
}

// From 0 to 1 without a corner at either end.
double Smooth(double Share) {
    const double X = std::clamp(Share, 0.0, 1.0);
    return X * X * (3 - 2 * X);
}

// A point on the unit circle that goes on by the same angle at each step and sinks meanwhile.
class Turner {
  public:
    Turner(double Turns, double Shrink)
        : mCos(SineOfTurn(Turns + 0.25) * Shrink), mSin(SineOfTurn(Turns) * Shrink) {}

    double Next() {
        const double X = mX * mCos - mY * mSin;
        mY = mX * mSin + mY * mCos;
        mX = X;
        return mY;
    }

  private:
    double mCos, mSin;
    double mX = 1, mY = 0;
};

void AddPartial(const Partial& Wave, const Note& One, int Rate, std::vector<double>& Tone) {
    const double Turns = Frequency(One.Pitch) * Wave.Ratio / Rate;
    if (Turns > 0.45) return;  // above what this rate can hold
    Turner Point(Turns, Wave.Fade > 0 ? 1 - 1 / (Wave.Fade * Rate) : 1);
    for (double& Sample : Tone) Sample += Wave.Level * Point.Next();
}

void Shape(const Note& One, int Rate, std::vector<double>& Tone) {
    for (size_t I = 0; I < Tone.size(); ++I) {
        const double At = static_cast<double>(I) / Rate;
        const double Left = (One.Length + One.By->Release - At) / One.By->Release;
        Tone[I] *= Smooth(At / One.By->Attack) * Smooth(Left);
    }
}

}  // namespace

Stereo::Stereo(int SamplesPerSec, double Seconds)
    : Rate(SamplesPerSec), Left(FramesOf(Seconds, SamplesPerSec)), Right(Left.size()) {}

double SineOfTurn(double Turn) {
    double X = Turn - std::floor(Turn + 0.5);
    if (X > 0.25) X = 0.5 - X;
    if (X < -0.25) X = -0.5 - X;
    X *= 2 * Pi;
    double Term = X;
    double Sum = X;
    for (int N = 2; N < 20; N += 2) {
        Term *= -X * X / (N * (N + 1));
        Sum += Term;
    }
    return Sum;
}

double Frequency(int Pitch) {
    double Hertz = 440;
    for (; Pitch > 69; --Pitch) Hertz *= HalfTone;
    for (; Pitch < 69; ++Pitch) Hertz /= HalfTone;
    return Hertz;
}

void Play(const Note& One, Stereo& Into) {
    const size_t First = FramesOf(One.At, Into.Rate);
    if (First >= Into.Left.size()) return;
    std::vector<double> Tone(
        std::min(FramesOf(One.Length + One.By->Release, Into.Rate), Into.Left.size() - First));
    for (const Partial& Wave : One.By->Partials) AddPartial(Wave, One, Into.Rate, Tone);
    Shape(One, Into.Rate, Tone);
    const double Level = One.Level * One.By->Level;
    for (size_t I = 0; I < Tone.size(); ++I) {
        Into.Left[First + I] += Tone[I] * Level * (1 - One.Pan) / 2;
        Into.Right[First + I] += Tone[I] * Level * (1 + One.Pan) / 2;
    }
}

}  // namespace neb::demo
