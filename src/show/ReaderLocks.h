// How far all processes are locked that read foreign files: one place that knows both the readers
// of pictures and those of sounds. Used by nebctl and the About window.
#pragma once

#include "pictures/workers/ReadingLocked.h"
#include "sound/workers/SoundsLocked.h"

namespace neb {

// Starts one of each kind that has none. Throws Fault where that fails.
inline std::vector<NamedLock> ReaderLocks() {
    std::vector<NamedLock> All = TheLockedReading().Reports();
    All.push_back({QStringLiteral("Sounds"), TheLockedSounds().Report()});
    return All;
}

}  // namespace neb
