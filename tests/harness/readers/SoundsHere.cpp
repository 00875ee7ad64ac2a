// Has a test program decode sounds by itself: a process for each would be most of what a test takes.
// By processes behind their door, as the program does it, with NEB_TEST_WORKERS=1.
#include "sound/workers/SoundsHere.h"

#include <cstdlib>

namespace {

neb::SoundsHere Here;
const bool IsPut = [] {
    if (!std::getenv("NEB_TEST_WORKERS")) neb::SetSoundReader(&Here);
    return true;
}();

}  // namespace
