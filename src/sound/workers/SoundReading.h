// All that the program has done with the bytes of sound files: behind a locked door, by processes
// that can do nothing else. Used by all that plays, measures or names sounds; any thread may call.
#pragma once

#include <QString>
#include <memory>

#include "sound/decoding/SongTags.h"
#include "sound/decoding/SoundDecoder.h"

namespace neb {

class SoundReader {
  public:
    virtual ~SoundReader() = default;
    // Both throw Fault, with a sentence and the path.
    virtual std::unique_ptr<SoundDecoder> Open(const QString& Path) = 0;
    virtual SongTags Tags(const QString& Path) = 0;
    // So that the next sound begins at once; returns at once.
    virtual void WarmUp() {}
};

// The one of the program, unless a test has put another in its place.
SoundReader& TheSoundReader();
// Null: the program's own again. No sound may be open.
void SetSoundReader(SoundReader* Other);

// Throws Fault, with a sentence and the path, for what cannot be played at all. A sound whose
// decoder breaks down later ends there.
std::unique_ptr<SoundDecoder> OpenSound(const QString& Path);
// Nothing for a file that says nothing, cannot be read or is no song. Never throws.
SongTags ReadSongTags(const QString& Path);

}  // namespace neb
