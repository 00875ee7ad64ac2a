// Mountain ranges, one behind the other in the haze: the background of several pictures.
#pragma once

#include <vector>

#include "Picture.h"

namespace neb::demo {

struct Range {
    float Base, High;  // foot and reach of the outline, in heights of the picture
    float Often;       // peaks to a height of the picture, about
    float Rough;       // 0 rolling hills, 1 jagged rock
    Rgb Colour, Mist;  // at the ridge and at the foot
    float Depth;       // how far below the ridge the mist has taken over
    float Relief;      // how much the light shows the slopes, 0 to 1
    std::uint32_t Seed;
};

// The ridge's y at a place.
float RidgeAt(const Range& Hills, float X);
// Paints the range over what is there; light comes from LightX.
void PaintRange(Picture& Target, const Range& Hills, float LightX);

}  // namespace neb::demo
