// How far all processes are locked that read foreign files: one place that knows both the readers of
// pictures and those of sounds. Used by nebctl and the About window.
#pragma once

#include <vector>

#include "support/locked/LockedPool.h"

namespace neb {

// Starts one of each kind that has none. Throws Fault where that fails.
std::vector<NamedLock> ReaderLocks();

}  // namespace neb
