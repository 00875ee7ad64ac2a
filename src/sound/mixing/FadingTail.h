// The last few milliseconds of a sound that was broken off, fading out while whatever comes next
// begins. Voices use it at each pause, jump and release.
#pragma once

#include <algorithm>
#include <vector>

namespace neb {

class FadingTail {
  public:
    explicit FadingTail(int Frames) : mSamples(2 * static_cast<size_t>(Frames)) {}

    bool IsOver() const { return mAt == mEnd; }
    // Begins a tail of so many frames, at most as many as it was made for; Next(float*) gives the
    // sound as it would have gone on, frame by frame. What is left of an earlier tail stays in.
    template <class NextFrame>
    void Begin(int Frames, NextFrame&& Next) {
        MoveToFront();
        for (int I = 0; I < Frames; ++I) {
            float Frame[2];
            Next(Frame);
            const float Level = 1 - static_cast<float>(I + 1) / static_cast<float>(Frames + 1);
            mSamples[2 * static_cast<size_t>(I)] += Frame[0] * Level;
            mSamples[2 * static_cast<size_t>(I) + 1] += Frame[1] * Level;
        }
        mEnd = std::max(mEnd, 2 * static_cast<size_t>(Frames));
    }
    // Adds the next frames; true when there were any.
    bool MixInto(float* Into, int Frames) {
        const size_t Part = std::min(2 * static_cast<size_t>(Frames), mEnd - mAt);
        for (size_t I = 0; I < Part; ++I) Into[I] += mSamples[mAt + I];
        mAt += Part;
        return Part > 0;
    }

  private:
    void MoveToFront() {
        std::copy(mSamples.begin() + static_cast<std::ptrdiff_t>(mAt),
                  mSamples.begin() + static_cast<std::ptrdiff_t>(mEnd), mSamples.begin());
        mEnd -= mAt;
        mAt = 0;
        std::fill(mSamples.begin() + static_cast<std::ptrdiff_t>(mEnd), mSamples.end(), 0.F);
    }

    std::vector<float> mSamples;
    size_t mAt = 0;  // samples
    size_t mEnd = 0;
};

}  // namespace neb
