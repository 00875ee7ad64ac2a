// One file or recording on its way into the mix: its state, its place, its volume, and the frames
// that were decoded ahead. Three threads meet here, each with its own calls: the window's steers,
// the feeder's decodes, the device's mixes. None holds up another for more than microseconds.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "sound/decoding/StereoReader.h"
#include "sound/mixing/FadingTail.h"
#include "sound/mixing/Ramp.h"
#include "sound/mixing/StereoRing.h"

namespace neb {

class SoundVoice {
  public:
    using DecoderReturn = std::function<void(std::unique_ptr<SoundDecoder>)>;

    // At its start and not running. Return gets the decoder when the voice goes.
    SoundVoice(std::unique_ptr<SoundDecoder> Decoder, int Hundredths, DecoderReturn Return = {});
    ~SoundVoice();
    SoundVoice(const SoundVoice&) = delete;
    SoundVoice& operator=(const SoundVoice&) = delete;

    // The window's calls; those of SoundGraph, whose promises they keep.
    void Run();
    void Halt();
    bool IsRunning() const;
    void PutVolume(int Hundredths);
    int Volume() const;
    double Duration() const { return mDuration; }
    double Position() const;
    void PutPosition(double Seconds);
    // Whether the end is followed by the start, without a gap; one that is at its end begins again.
    void PutRepeat(bool On);
    void Release();  // fades out what sounds, and is over then

    // Decodes a piece when there is room for one; false when there was nothing to do.
    bool Feed();
    int Buffered() const;  // frames decoded ahead

    // Adds the next frames; true when there was sound in them.
    bool Mix(float* Into, int Frames);
    bool IsOver() const;  // released and silent

  private:
    struct Order {
        quint64 Number;
        std::optional<double> Seek;
        bool Repeat;
    };
    std::optional<Order> NextOrder();
    void Take(const Order& For, int Frames);
    double Place() const;
    void BeginRounds();
    void EndRounds();
    void EndWithRound();
    void FadeOutEnd();
    void BreakOff();
    bool CanSound() const;
    void BeginToSound();
    void Play(float* Into, int Frames);
    void PlayEven(float* Into, int Frames);
    int Playable() const;
    void Starve(float* Into, int Frames);
    void SetPlace(double Seconds);

    // Known to the feeder alone.
    StereoReader mReader;
    std::vector<float> mPiece;

    const double mDuration;
    const DecoderReturn mReturn;
    mutable std::mutex mMutex;  // guards what follows
    StereoRing mRing;
    FadingTail mTail;
    Ramp mGain;
    Ramp mFade{1};
    std::optional<double> mSeek;    // that the feeder has yet to carry out
    quint64 mOrder = 0;             // counts the seeks, so that what was decoded before is dropped
    double mBase = 0;               // seconds, where it was put
    qint64 mPlayed = 0;             // frames handed out since
    double mRound;                  // seconds from one start to the next
    std::optional<qint64> mEndsAt;  // frames handed out at the end of the last round
    int mVolume;
    bool mRepeat = false;
    bool mRunning = false;
    bool mSounding = false;  // the last frame handed out was of the file
    bool mAllFed = false;    // nothing follows what is in the ring
    bool mAtEnd = false;
    bool mReleased = false;
};

}  // namespace neb
