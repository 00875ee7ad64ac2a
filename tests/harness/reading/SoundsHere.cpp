// The tests that play, measure or name sounds decode them in their own process, as PicturesHere.cpp
// does it with pictures. Compiled into each test program that opens any.
#include "sound/workers/SoundsHere.h"

namespace neb::harness {
namespace {

[[maybe_unused]] const bool DecodesHere = [] {
    if (qEnvironmentVariableIntValue("NEB_TEST_WORKERS") == 1) return false;
    static SoundsHere Reader;
    SetSoundReader(&Reader);
    return true;
}();

}  // namespace
}  // namespace neb::harness
