#include "sound/workers/SoundReading.h"

#include <atomic>

#include "sound/workers/SoundsLocked.h"
#include "support/Fault.h"

namespace neb {
namespace {

std::atomic<SoundReader*> Chosen = nullptr;

}  // namespace

SoundReader& TheSoundReader() {
    SoundReader* const Other = Chosen;
    return Other ? *Other : TheLockedSounds();
}

void SetSoundReader(SoundReader* Other) {
    Chosen = Other;
}

std::unique_ptr<SoundDecoder> OpenSound(const QString& Path) {
    return TheSoundReader().Open(Path);
}

SongTags ReadSongTags(const QString& Path) try {
    return TheSoundReader().Tags(Path);
} catch (const Fault&) {
    return {};
}

}  // namespace neb
