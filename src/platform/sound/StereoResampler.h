// Turns stereo of any rate into stereo at the rate of the mixer, by windowed sinc interpolation: in
// tune and without an echo of what the new rate cannot hold. The library for the device has a
// converter, too, but its tables go with the device, and its lengths are not exact.
#pragma once

#include <QtGlobal>
#include <vector>

namespace neb {

class StereoResampler {
  public:
    explicit StereoResampler(int FromRate);

    // Frames before the first and after the last one wanted that have a part in the sound there.
    int Reach() const { return mReach; }
    // Forgets all. History: how many of the frames to be pushed next, at most Reach(), come before
    // the place at which the output begins; the place before the history is silence.
    void Restart(int History);
    void Push(const float* Frames, int Count);
    void PushSilence(int Count);
    // Output frames; fewer when those pushed so far do not reach.
    int Pull(float* Into, int MaxFrames);

  private:
    void Compute(float* Into, const float* First, double Phase) const;
    void Compact();

    int mRate;
    int mReach;
    std::vector<float> mRows;   // the coefficients, a row a phase
    std::vector<float> mInput;  // two samples a frame
    qint64 mFirst = 0;          // the source frame that mInput begins with
    qint64 mNext = 0;           // the output frame that is next
};

}  // namespace neb
