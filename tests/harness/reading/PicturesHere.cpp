// The tests that read pictures do so in their own process, where starting another one for each of
// them would take most of the time; with NEB_TEST_WORKERS=1 the program's own way is taken, behind
// the locked door. Compiled into each test program that reads any.
#include <QtGlobal>

#include "pictures/workers/HostHere.h"
#include "pictures/workers/ReadingHere.h"

namespace neb::harness {
namespace {

[[maybe_unused]] const bool ReadsHere = [] {
    if (qEnvironmentVariableIntValue("NEB_TEST_WORKERS") == 1) return false;
    static HostHere Host;
    static ReadingHere Reader;
    SetDecodeHost(Host);
    SetPictureReader(&Reader);
    return true;
}();

}  // namespace
}  // namespace neb::harness
