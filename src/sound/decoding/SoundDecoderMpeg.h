// MP3, and the older layers of the same family, through libmpg123. Made by OpenSound alone.
#pragma once

#include <memory>

#include "sound/decoding/SoundDecoderCounted.h"
#include "sound/decoding/SoundDecoderFrames.h"
#include "sound/decoding/SoundDecoderSource.h"

struct mpg123_handle_struct;

namespace neb {

class MpegSound : public CountedSound {
  public:
    // The parts of the source, one at least. Rate and channels are those of the first; what
    // differs is converted. Throws Fault when they hold no sound.
    MpegSound(std::unique_ptr<SoundSource> Source, std::vector<MpegPart> Parts);
    ~MpegSound() override;

  protected:
    qint64 Decode(float* Into, qint64 MaxFrames) override;
    bool MoveTo(qint64 Frame) override;

  private:
    struct Part {
        std::vector<SoundPiece> Pieces;
        qint64 Start;  // frames
    };
    bool Prepare();
    void Measure(std::vector<MpegPart> Parts);
    bool Open(const std::vector<SoundPiece>& Pieces);
    bool Enter(size_t Index);
    qint64 EndOf(size_t Index) const;

    std::unique_ptr<SoundSource> mSource;
    mpg123_handle_struct* mHandle;
    std::vector<Part> mParts;
    size_t mOpen = 0;  // the part that the handle is in
    qint64 mAt = 0;    // frames
};

}  // namespace neb
