// The bytes of a sound's file, wherever they come from: a file, or whoever has it open. Used by
// SoundSource alone, made by those who open sounds.
#pragma once

#include <QtGlobal>

namespace neb {

class SoundBytes {
  public:
    virtual ~SoundBytes() = default;
    virtual qint64 Length() const = 0;  // when it was opened
    // Up to so many bytes from a place: at least one where there is any, 0 at the end and where
    // nothing can be read. Never throws.
    virtual qint64 ReadAt(qint64 At, char* Into, qint64 MaxLength) = 0;
};

}  // namespace neb
