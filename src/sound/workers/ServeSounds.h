// Decodes sounds for the program, behind the door, until the program is gone. The entry of the
// processes that do it; a test puts hostile decoders there.
#pragma once

#include <functional>
#include <memory>

#include "sound/decoding/SongTags.h"
#include "sound/decoding/SoundBytes.h"
#include "sound/decoding/SoundDecoder.h"
#include "support/locked/LockedRoom.h"

namespace neb {

struct SoundDecoders {
    std::function<std::unique_ptr<SoundDecoder>(std::unique_ptr<SoundBytes>)> Open = DecodeSound;
    std::function<SongTags(std::unique_ptr<SoundBytes>)> Tags = DecodeTags;
};
[[noreturn]] void ServeSounds(LockedRoom& Room, const SoundDecoders& Decoders);

}  // namespace neb
