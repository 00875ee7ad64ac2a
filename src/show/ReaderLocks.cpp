#include "show/ReaderLocks.h"

#include "pictures/workers/ReadingLocked.h"
#include "sound/workers/SoundsLocked.h"

namespace neb {

std::vector<NamedLock> ReaderLocks() {
    std::vector<NamedLock> All = TheLockedReading().Reports();
    All.push_back({QStringLiteral("Sounds"), TheLockedSounds().Report()});
    return All;
}

}  // namespace neb
