// Decodes sounds in this very process, for tests that have no use for a door. A program that links
// this brings all decoders along.
#pragma once

#include "sound/workers/SoundReading.h"

namespace neb {

class SoundsHere : public SoundReader {
  public:
    std::unique_ptr<SoundDecoder> Open(const QString& Path) override;
    SongTags Tags(const QString& Path) override;
};

}  // namespace neb
