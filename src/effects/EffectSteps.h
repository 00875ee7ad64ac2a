// The steps in which a show takes a transition from the old picture to the new one. Read by the
// transition view, by the rehearsal and by the stage of films.
#pragma once

#include <algorithm>

namespace neb {

// Percent: of a step, 1 to 100. The last step brings the new picture.
constexpr int EffectStepCount(int Percent) {
    return (100 + Percent - 1) / Percent;
}
// Step: from 0, the old picture.
constexpr double EffectProgress(int Step, int Percent) {
    return std::min(1.0, Step * Percent / 100.0);
}

}  // namespace neb
