// A picture in half its size, a quarter and so on, made once, so that a picture drawn small is
// read neither with gaps nor pixel by pixel. Used by the engines that make pictures smaller.
#pragma once

#include <memory>
#include <vector>

#include "effects/Engine.h"

namespace neb::effects {

class HalvedPictures {
  public:
    // Across, Down: the directions in which it gets smaller; with neither there is the picture
    // alone. The picture must outlive this.
    HalvedPictures(const Picture& Full, bool Across, bool Down);

    int LastLevel() const { return static_cast<int>(mLevels.size()) - 1; }
    // Level 0 is the picture itself; each further one has half the pixels (rounded up) in each
    // direction, each the mean of those in its place.
    const Picture& Level(int Number) const { return mLevels[static_cast<std::size_t>(Number)]; }
    bool IsHalvedAcross() const { return mAcross; }
    bool IsHalvedDown() const { return mDown; }

  private:
    void Add();

    bool mAcross, mDown;
    std::vector<Picture> mLevels;
    std::vector<std::unique_ptr<QRgb[]>> mBits;
};

}  // namespace neb::effects
