// The locked processes that have not been waited for. One that hangs would be left behind by a
// program that ends: they end with it. For LockedProcess alone.
#pragma once

#include <sys/types.h>

namespace neb {

void NoteLiving(pid_t Pid);
// Before it is waited for: its number may be another's then.
void ForgetLiving(pid_t Pid);

}  // namespace neb
