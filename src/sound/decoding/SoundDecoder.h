// A sound file as a row of samples: WAV and MP3, told apart by what is in them, never by their
// names. The players read it on a thread of their own.
#pragma once

#include <QtGlobal>
#include <memory>

namespace neb {

class SoundDecoder {
  public:
    virtual ~SoundDecoder() = default;
    virtual int Rate() const = 0;       // frames a second, kLeastRate to 1000000
    virtual int Channels() const = 0;   // 1 to 8, in the order of WAV files
    virtual qint64 Frames() const = 0;  // the whole length, exact from the start
    // Up to so many frames of interleaved samples, -1 to 1. Fewer at the end alone, then 0. What a
    // damaged MP3 leaves out is silence, so that reading gives Frames() in all; any other damaged
    // file may end sooner. Never throws.
    virtual qint64 Read(float* Into, qint64 MaxFrames) = 0;
    virtual void Seek(qint64 Frame) = 0;  // 0 to Frames(), exact; beyond them, their ends
};

class SoundBytes;
struct SongTags;

// These in this very process; SoundReading.h is the way to have it done behind a locked door.
// Throws Fault, with a sentence and no file, for what cannot be played at all.
std::unique_ptr<SoundDecoder> DecodeSound(std::unique_ptr<SoundBytes> Bytes);
// Nothing for what says nothing or is no song.
SongTags DecodeTags(std::unique_ptr<SoundBytes> Bytes);

}  // namespace neb
