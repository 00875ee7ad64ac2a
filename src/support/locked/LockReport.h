// How far a process is locked: the kernel gives what it has. Told by nebctl sandbox and in the
// About window, so that nobody believes in a lock that is not there.
#pragma once

#include <cstdint>

namespace neb {

struct LockReport {
    int SystemCalls = 0;           // that are allowed; 0: all of them, the kernel has no filter
    int Landlock = 0;              // version of the kernel's; 0: there is none, or it is not on
    bool EmptyRoot = false;        // a root directory of its own without a file
    bool OwnNetwork = false;       // a network of its own without a way out
    bool NoNewPrivileges = false;  // no program that it could start has more rights than it
    bool Limits = false;  // no file can be opened or written, no core left; memory and time end

    bool operator==(const LockReport&) const = default;

    // In one number, for a message.
    std::int64_t Packed() const {
        return std::int64_t(EmptyRoot) | std::int64_t(OwnNetwork) << 1 |
               std::int64_t(NoNewPrivileges) << 2 | std::int64_t(Limits) << 3 |
               std::int64_t(SystemCalls & 0xFFFF) << 8 | std::int64_t(Landlock & 0xFF) << 24;
    }
    static LockReport Of(std::int64_t Packed) {
        const auto Has = [Packed](int Bit) { return (Packed >> Bit & 1) != 0; };
        return {static_cast<int>(Packed >> 8 & 0xFFFF),
                static_cast<int>(Packed >> 24 & 0xFF),
                Has(0),
                Has(1),
                Has(2),
                Has(3)};
    }

    // Whether the system itself stands before files, network and processes.
    bool IsLocked() const { return SystemCalls > 0 && NoNewPrivileges && Limits; }
    // Whether all is there that the program can ask of a kernel.
    bool IsFull() const { return IsLocked() && Landlock > 0 && EmptyRoot && OwnNetwork; }
};

}  // namespace neb
