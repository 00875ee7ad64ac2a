// A sound file's bytes, read where the rights of the user are. Used by those who open sounds.
#pragma once

#include "sound/decoding/SoundBytes.h"
#include "support/files/modHostFiles.h"

namespace neb {

class SoundFile : public SoundBytes {
  public:
    explicit SoundFile(const QString& Path) : mReader(Path) {}  // throws Fault

    qint64 Length() const override { return mReader.Length(); }
    qint64 ReadAt(qint64 At, char* Into, qint64 MaxLength) override;

  private:
    HostReader mReader;
};

}  // namespace neb
