// The single measures by which a process gives up what it does not need, each as far as the kernel
// has it. For LockedRoom alone.
#pragma once

#include "support/locked/LockedRoom.h"

namespace neb {

// Each answers with whether, or how far, the kernel went along.
struct OwnSpaces {
    bool Root = false, Network = false;
};
// Namespaces (user, mount, network, IPC) with a network that leads nowhere. The root stays until
// LeaveFiles: libraries are still being loaded. One thread.
OwnSpaces EnterOwnSpaces();
// An empty root in place of the present one; only after EnterOwnSpaces gave one.
bool LeaveFiles();
bool GiveUpNewPrivileges();
// The version of Landlock by which all files, and what else it knows, are closed; 0: none.
int CloseByLandlock();
// No file opened, none written, no core, no locked memory; no rights left from EnterOwnSpaces.
bool SetLimits();
// The number of system calls that are left; 0 where the kernel has no filter. Any other ends the
// process.
int FilterSystemCalls(const LockNeeds& Needs);

}  // namespace neb
