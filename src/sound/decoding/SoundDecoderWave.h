// WAV and its relatives (AIFF, AU, CAF, FLAC, Ogg) through libsndfile. Made by OpenSound alone.
#pragma once

#include <memory>

#include "sound/decoding/SoundDecoderCounted.h"
#include "sound/decoding/SoundDecoderSource.h"

struct sf_private_tag;

namespace neb {

class WaveSound : public CountedSound {
  public:
    // Throws Fault for what is damaged, unknown or has more than eight channels.
    explicit WaveSound(std::unique_ptr<SoundSource> Source);
    ~WaveSound() override;

  protected:
    qint64 Decode(float* Into, qint64 MaxFrames) override;
    bool MoveTo(qint64 Frame) override;

  private:
    struct Closer {
        void operator()(sf_private_tag* File) const;
    };
    struct Shape;
    Shape Open();
    bool IsThere(qint64 Frame);
    // Decodes up to so many frames unheard; how many there were.
    qint64 Skip(qint64 MaxFrames);

    std::unique_ptr<SoundSource> mSource;
    std::unique_ptr<sf_private_tag, Closer> mFile;
    bool mCanSeek = false;
};

}  // namespace neb
