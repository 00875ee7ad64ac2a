#include "sound/workers/SoundsHere.h"

#include "sound/workers/SoundFile.h"
#include "support/Fault.h"

namespace neb {

std::unique_ptr<SoundDecoder> SoundsHere::Open(const QString& Path) {
    auto Bytes = std::make_unique<SoundFile>(Path);
    try {
        return DecodeSound(std::move(Bytes));
    } catch (const Fault& Reason) {
        throw Fault(Reason.What(), Path, Reason.Number());
    }
}

SongTags SoundsHere::Tags(const QString& Path) {
    return DecodeTags(std::make_unique<SoundFile>(Path));
}

}  // namespace neb
