#include "sound/workers/SoundCrashes.h"

#include "support/files/modHostFiles.h"

namespace neb {

SoundCrashes::Crashed SoundCrashes::Now(const QString& Path) {
    return {FileSize(Path), FileTime(Path), 0};
}

// Nobody waits in the lock for a folder that does not answer.
bool SoundCrashes::IsGivenUp(const QString& Path) const {
    std::unique_lock Lock(mLock);
    const auto Found = mByPath.find(Path);
    if (Found == mByPath.end() || Found->second.Times < MostCrashes) return false;
    const Crashed Then = Found->second;
    Lock.unlock();
    const Crashed Its = Now(Path);
    return Its.Size == Then.Size && Its.Time == Then.Time;
}

void SoundCrashes::Note(const QString& Path) {
    const Crashed Its = Now(Path);
    const std::lock_guard Lock(mLock);
    Crashed& Known = mByPath[Path];
    const bool IsSame = Known.Size == Its.Size && Known.Time == Its.Time;
    Known = {Its.Size, Its.Time, IsSame ? Known.Times + 1 : 1};
}

}  // namespace neb
