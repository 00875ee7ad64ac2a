// Has sounds decoded by locked processes, a sound a process: one that breaks down takes no other
// along. The reader of the program. Safe on any thread.
#pragma once

#include "sound/workers/SoundCrashes.h"
#include "sound/workers/SoundReading.h"
#include "support/locked/LockedPool.h"

namespace neb {

enum class SoundTalk : std::uint32_t;

class SoundsLocked : public SoundReader {
  public:
    SoundsLocked();
    // Another program in its place, and less time for it; for tests.
    SoundsLocked(const QString& ProgramPath, const QByteArray& Role, double Patience = 1);

    std::unique_ptr<SoundDecoder> Open(const QString& Path) override;
    SongTags Tags(const QString& Path) override;
    void WarmUp() override { mPool.WarmUp(); }
    // How far the processes are locked. Throws Fault where none can be started.
    LockReport Report() { return mPool.Report(); }

  private:
    class Line;
    class Sound;
    template <class Taker>
    std::unique_ptr<Line> Asked(const QString& Path, SoundTalk What, Taker Take);

    const double mPatience;
    LockedPool mPool;
    SoundCrashes mCrashes;
};

// The one of the program.
SoundsLocked& TheLockedSounds();

}  // namespace neb
