// Any decoder's sound as stereo at 44100 frames a second, whatever its rate and channels. The
// feeder of the voices reads through it; stereo at that rate passes unchanged.
#pragma once

#include <memory>
#include <vector>

#include "sound/decoding/SoundDecoder.h"
#include "sound/decoding/SoundFormat.h"

struct SRC_STATE_tag;

namespace neb {

class StereoReader {
  public:
    explicit StereoReader(std::unique_ptr<SoundDecoder> Decoder);
    StereoReader(const StereoReader&) = delete;
    StereoReader& operator=(const StereoReader&) = delete;

    double Duration() const;  // seconds
    // Up to so many frames of two samples. Fewer at the end alone, then 0.
    int Read(float* Into, int MaxFrames);
    bool AtEnd() const { return Left() == 0; }
    // Whether the end is followed by the start, to the sample and without a seam: the frames of the
    // decoder go on into the converter as if they were one long row. A sound without frames ends
    // all the same.
    void SetRepeat(bool On) { mRepeat = On; }
    // Seconds from one start to the next: the duration, or less once a damaged end has been found.
    double Round() const;
    // At the end before all the frames were there that the decoder had announced.
    bool EndedEarly() const { return AtEnd() && mEnd < mDecoder->Frames(); }
    // To a place in seconds, 0 to Duration(); the nearest frame of the decoder.
    void Seek(double Seconds);
    std::unique_ptr<SoundDecoder> TakeDecoder() { return std::move(mDecoder); }

  private:
    struct Closer {
        void operator()(SRC_STATE_tag* Converter) const;
    };
    static long Supply(void* Reader, float** Piece);
    qint64 OutputFrames(qint64 Source) const;
    qint64 Left() const;
    int ReadStereo(float* Into, int MaxFrames);
    void BeginAgain();
    int Convert(float* Into, int MaxFrames);
    void PassUnheard(qint64 Source);

    std::unique_ptr<SoundDecoder> mDecoder;
    std::unique_ptr<SRC_STATE_tag, Closer> mConverter;  // none for 44100 frames a second
    std::vector<float> mRaw;                            // as decoded
    std::vector<float> mStereo;                         // what the converter reads from
    bool mRepeat = false;
    // In frames of the decoder:
    qint64 mStart = 0;   // where this round began
    qint64 mPassed = 0;  // in the rounds before it, since reading began
    qint64 mNext = 0;    // to be decoded next
    qint64 mEnd;
    qint64 mDone = 0;  // frames delivered since reading began
};

}  // namespace neb
