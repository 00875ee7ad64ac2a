// Any decoder's sound as stereo at 44100 frames a second, whatever its rate and channels. The
// feeder of the voices reads through it; stereo at that rate passes unchanged.
#pragma once

#include <memory>
#include <vector>

#include "platform/sound/SoundDecoder.h"
#include "platform/sound/SoundFormat.h"
#include "platform/sound/StereoResampler.h"

namespace neb {

class StereoReader {
  public:
    explicit StereoReader(std::unique_ptr<SoundDecoder> Decoder);

    double Duration() const;  // seconds
    // Up to so many frames of two samples. Fewer at the end alone, then 0.
    int Read(float* Into, int MaxFrames);
    bool AtEnd() const { return mEnded; }
    // At the end before all the frames were there that the decoder had announced.
    bool EndedEarly() const { return mEndedEarly; }
    // To a place in seconds, 0 to Duration(); the nearest frame of the decoder.
    void Seek(double Seconds);
    std::unique_ptr<SoundDecoder> TakeDecoder() { return std::move(mDecoder); }

  private:
    int ReadStereo(float* Into, int MaxFrames);
    void Supply();
    void Begin(qint64 SourceFrame);
    int Deliver(float* Into, int MaxFrames);

    std::unique_ptr<SoundDecoder> mDecoder;
    std::unique_ptr<StereoResampler> mResampler;  // none for 44100 frames a second
    std::vector<float> mRaw;                      // as decoded
    std::vector<float> mStereo;
    qint64 mSourceLeft = 0;  // announced frames of the decoder that were not read yet
    qint64 mLeft = 0;        // frames to deliver at most
    bool mEnded = false;
    bool mEndedEarly = false;
};

}  // namespace neb
