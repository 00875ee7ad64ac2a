// Stereo frames that wait to be heard, first in first out, in memory that is taken once. Voices
// guard it with their own lock.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace neb {

class StereoRing {
  public:
    explicit StereoRing(int Frames) : mFrames(Frames), mSamples(2 * static_cast<size_t>(Frames)) {}

    int Count() const { return mCount; }
    int Room() const { return mFrames - mCount; }
    void Clear() { mCount = 0; }
    // Only the oldest so many are left.
    void Keep(int Frames) { mCount = std::min(mCount, Frames); }
    // Two samples; Index counts from the oldest frame.
    float* Frame(int Index) {
        return &mSamples[2 * static_cast<size_t>((mFirst + Index) % mFrames)];
    }
    // The oldest frames that lie side by side in memory.
    int Contiguous() const { return std::min(mCount, mFrames - mFirst); }
    void Drop(int Frames) {
        mFirst = (mFirst + Frames) % mFrames;
        mCount -= Frames;
    }
    // No more frames than there is room for.
    void Push(const float* From, int Frames) {
        while (Frames > 0) {
            const int At = (mFirst + mCount) % mFrames;
            const int Part = std::min(Frames, mFrames - At);
            const std::ptrdiff_t Samples = std::ptrdiff_t{2} * Part;
            std::copy_n(From, Samples, &mSamples[2 * static_cast<size_t>(At)]);
            From += Samples;
            Frames -= Part;
            mCount += Part;
        }
    }

  private:
    int mFrames;
    std::vector<float> mSamples;
    int mFirst = 0;
    int mCount = 0;
};

}  // namespace neb
