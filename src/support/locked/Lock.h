// The single measures by which a process gives up what it does not need, each as far as the kernel
// has it. For LockedRoom alone.
#pragma once

#include "support/locked/LockedRoom.h"

namespace neb {

// A build for the search of faults, which a filter of system calls and limits of memory would end:
// its own watchman reads files, and takes terabytes of address space.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool IsWatchedBuild = true;
#elif defined(__has_feature)
inline constexpr bool IsWatchedBuild = __has_feature(address_sanitizer);
#else
inline constexpr bool IsWatchedBuild = false;
#endif

// Each answers with whether, or how far, the kernel went along.
struct OwnSpaces {
    bool Root = false, Network = false;
};
// Namespaces (user, mount, network, IPC, host name) with a network that leads nowhere. The root
// stays until LeaveFiles: libraries are still being loaded. One thread.
OwnSpaces EnterOwnSpaces();
// An empty root in place of the present one; only after EnterOwnSpaces gave one.
bool LeaveFiles();
// Neither by a program that it starts nor by the rights that came with EnterOwnSpaces; and no core
// with what was in a picture is left to anybody.
bool GiveUpNewPrivileges();
// The version of Landlock by which all files, and what else it knows, are closed; 0: none.
int CloseByLandlock();
// No file opened, none written, no locked memory, no further process. Those of memory and time
// come from the program with each piece of work.
bool SetLimits(const LockNeeds& Needs);
// The number of system calls that are left; 0 where the kernel has no filter. Any other ends the
// process.
int FilterSystemCalls(const LockNeeds& Needs);

}  // namespace neb
