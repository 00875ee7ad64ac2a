// A recording in memory as a row of samples, for playing it like a file. The program's sound
// devices use it.
#pragma once

#include <QByteArray>

#include "sound/decoding/SoundDecoder.h"
#include "sound/devices/SoundDevices.h"

namespace neb {

class PcmDecoder : public SoundDecoder {
  public:
    // 8 bits unsigned or 16 bits signed, 1 to 8 channels; an unfinished last frame is dropped.
    // Throws Fault for any other format.
    PcmDecoder(const WaveFormat& Format, QByteArray Bytes);

    int Rate() const override { return mRate; }
    int Channels() const override { return mChannels; }
    qint64 Frames() const override;
    qint64 Read(float* Into, qint64 MaxFrames) override;
    void Seek(qint64 Frame) override { mNext = Frame; }

  private:
    QByteArray mBytes;
    int mRate;
    int mChannels;
    int mSampleBytes;
    qint64 mNext = 0;  // frame
};

}  // namespace neb
