// Ever smaller versions of a picture, each half as wide and high as the one before: what large
// tiles and blurred pictures are drawn from. Used by the mosaics and the blur.
#pragma once

#include <vector>

#include "effects/drawing/Engine.h"

namespace neb::effects {

class Pyramid {
  public:
    // Level 0 is the picture itself, which must outlive this; Highest: the last level wanted, 0 or
    // more. A pixel of level L is the mean of 2^L by 2^L pixels; a side that does not come out
    // even repeats its last pixels.
    Pyramid(const Picture& P, int Highest);

    int Highest() const { return static_cast<int>(mLevels.size()); }
    Picture Level(int L) const { return L == 0 ? mWhole : mLevels[std::size_t(L) - 1].View(); }
    // Spreads each pixel of all levels but 0 over its neighbours, so that none shows when they are
    // drawn large.
    void Soften();

  private:
    struct Image {
        int Width, Height;
        std::vector<QRgb> Pixels;
        Picture View() const { return {Pixels.data(), Width, Width, Height}; }
    };
    static Image Half(const Picture& P);
    static void SoftenLevel(Image& Level);

    Picture mWhole;
    std::vector<Image> mLevels;
};

// Reads a row of Width pixels Count = up to Width * 2^Shift pixels long, smoothly between the
// middles of its pixels; Shift 1 to 7.
void Enlarge(QRgb* Out, const QRgb* Row, int Width, int Shift, int Count);

// The level at which a picture of this size is Parts pixels long along its longer side.
int LevelOfParts(QSize Size, int Parts);

}  // namespace neb::effects
