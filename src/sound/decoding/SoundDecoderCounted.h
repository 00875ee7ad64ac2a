// What all decoders have in common: no sample beyond the length that was told, none louder than
// full, and places that are always within the sound. Each format's decoder derives from it.
#pragma once

#include "sound/decoding/SoundDecoder.h"

namespace neb {

class CountedSound : public SoundDecoder {
  public:
    int Rate() const override { return mRate; }
    int Channels() const override { return mChannels; }
    qint64 Frames() const override { return mFrames; }
    qint64 Read(float* Into, qint64 MaxFrames) override;
    void Seek(qint64 Frame) override;

  protected:
    // Up to so many frames from where it stands; 0 at the end or when nothing more can be had.
    virtual qint64 Decode(float* Into, qint64 MaxFrames) = 0;
    // Makes Decode() go on at a frame, 0 to Frames(); false when it cannot.
    virtual bool MoveTo(qint64 Frame) = 0;

    int mRate = 0;
    int mChannels = 0;
    qint64 mFrames = 0;

  private:
    qint64 mPlace = 0;
};

}  // namespace neb
