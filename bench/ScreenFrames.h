// Whether the transitions keep up with a screen of 3840x2160 at 60 Hz, drawn as a show draws them:
// single frames on all the machine's threads, against what a refresh leaves them. Used by
// bench_effects.
#pragma once

#include <vector>

namespace neb {

// Prints the figures of these transitions, by level, with their limits; false when one is over.
// The limits are those of two threads and hold where the machine has them; where many other
// programs run, give this one precedence (chrt -f 10), for it measures by the clock.
bool PrintScreenFrames(const std::vector<int>& Numbers);

}  // namespace neb
