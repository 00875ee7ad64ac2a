#include "sound/RecordingLevel.h"

#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr int AsItComes = 50;
constexpr double StepsPerDecibel = 4;
constexpr int Silence = 128;

char Amplified(char Sample, double Gain) {
    const int Swing = static_cast<std::uint8_t>(Sample) - Silence;
    const double Most = Silence - 1, Least = -Silence;
    return static_cast<char>(std::lround(std::clamp(Swing * Gain, Least, Most)) + Silence);
}

}  // namespace

double RecordingLevel::GainOf(int Volume) {
    return std::pow(10.0, (Volume - AsItComes) / StepsPerDecibel / 20);
}

void RecordingLevel::Begin(int Volume) {
    mStretches = {{0, GainOf(Volume)}};
}

void RecordingLevel::ChangeAt(std::int32_t Byte, int Volume) {
    mStretches.push_back({Byte, GainOf(Volume)});
}

void RecordingLevel::Apply(QByteArray& Samples, std::int32_t First) const {
    const auto End = First + static_cast<std::int32_t>(Samples.size());
    for (size_t I = 0; I < mStretches.size(); ++I) {
        const std::int32_t Next = I + 1 < mStretches.size() ? mStretches[I + 1].From : End;
        const std::int32_t From = std::max(First, mStretches[I].From), To = std::min(End, Next);
        for (std::int32_t Byte = From; Byte < To; ++Byte)
            Samples[Byte - First] = Amplified(Samples[Byte - First], mStretches[I].Gain);
    }
}

}  // namespace neb
