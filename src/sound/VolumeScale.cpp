#include "sound/VolumeScale.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "support/modNumbers.h"

namespace neb {
namespace {

constexpr double AStep = 25;
constexpr int SilentVolume = -10000;
// Where a straight line to silence goes on as steeply as the steps do: a volume of 34.7.
constexpr double Bend = 2000 / (AStep * std::numbers::ln10);

}  // namespace

int HundredthsOfVolume(int Value) {
    if (Value <= 0) return SilentVolume;
    if (Value >= Bend) return CInt((Value - 100) * AStep);
    return CInt((Bend - 100) * AStep + 2000 * std::log10(Value / Bend));
}

int VolumeOfHundredths(int Hundredths) {
    int Nearest = 0;
    for (int Value = 1; Value <= 100; ++Value)
        if (std::abs(HundredthsOfVolume(Value) - Hundredths) <
            std::abs(HundredthsOfVolume(Nearest) - Hundredths))
            Nearest = Value;
    return Nearest;
}

}  // namespace neb
