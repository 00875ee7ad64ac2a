// Until files can be decoded: no sound can be played. Goes when the decoders come.
#include "platform/sound/SoundDecoder.h"
#include "support/Fault.h"

namespace neb {

[[gnu::weak]] std::unique_ptr<SoundDecoder> OpenSound(const QString& Path) {
    throw Fault(QStringLiteral("The sound cannot be played."), Path);
}

}  // namespace neb
