#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>

#include "support/locked/Lock.h"

namespace neb {
namespace {

// As the kernel's interface has them, which is newer than the headers of many systems.
constexpr long CreateRuleset = 444, RestrictSelf = 446;
constexpr unsigned AskForVersion = 1;

struct Ruleset {
    std::uint64_t Files = 0, Network = 0, Scopes = 0;
};

// What each version of the kernel's knows for the first time.
constexpr struct {
    int Version;
    Ruleset Adds;
} Steps[] = {
    {1, {0x1FFF, 0, 0}},  // all that one can do to a file or a folder by its name
    {2, {0x2000, 0, 0}},  // into another folder
    {3, {0x4000, 0, 0}},  // cut to a length
    {4, {0, 0x3, 0}},     // TCP: bind, connect
    {5, {0x8000, 0, 0}},  // ioctl of a device
    {6, {0, 0, 0x3}},     // sockets without a file, signals
};

Ruleset AllOf(int Version) {
    Ruleset All;
    for (const auto& [Since, Adds] : Steps) {
        if (Since > Version) continue;
        All.Files |= Adds.Files;
        All.Network |= Adds.Network;
        All.Scopes |= Adds.Scopes;
    }
    return All;
}

}  // namespace

int CloseByLandlock() {
    const auto Version =
        static_cast<int>(::syscall(CreateRuleset, nullptr, size_t(0), AskForVersion));
    if (Version < 1) return 0;
    // What an older kernel does not know is zero, as it wants it.
    const Ruleset All = AllOf(Version);
    const auto Rules = static_cast<int>(::syscall(CreateRuleset, &All, sizeof(All), 0U));
    if (Rules < 0) return 0;
    const bool Closed = ::syscall(RestrictSelf, Rules, 0U) == 0;
    ::close(Rules);
    return Closed ? Version : 0;
}

}  // namespace neb
