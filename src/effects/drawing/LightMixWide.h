// What MixLightByMoments is made of: a row mixed one pixel at a time, or with the vectors of the
// machine, equal to the bit. Used by LightMix and its tests.
#pragma once

#include <array>
#include <cstdint>

#include "effects/drawing/Pixels.h"
#include "effects/drawing/WideVectors.h"

namespace neb::effects {

// What is added to the roots of a row, over and over.
using LightGrains = std::array<float, 8>;

// What the moments of a row are held against: the edge has passed one when it is 2^SoftBits ahead.
struct LightFront {
    int Edge, SoftBits;
};

// Pixels in a row, from one at which the grains begin anew.
struct LightRow {
    QRgb* Out;
    const QRgb *Old, *New;
    const std::int16_t* Moments;
    int Count;
    LightRow Behind(int Done) const {
        return {Out + Done, Old + Done, New + Done, Moments + Done, Count - Done};
    }
};

// The grains of the row Y of the picture.
const LightGrains& LightGrainsOf(int Y);
void MixLightOneByOne(const LightRow& Row, const LightFront& F, const LightGrains& G);

#ifdef NEB_EIGHT_AT_A_TIME
// Each mixes as many as it can, from the first on, and says how many: all but the last fifteen at
// most, and a multiple of eight. Asked for where HasWideVectors.
int MixLightByEight(const LightRow& Row, const LightFront& F, const LightGrains& G);
// All but the last 31 at most. Where HasWidestVectors.
int MixLightBySixteen(const LightRow& Row, const LightFront& F, const LightGrains& G);
#endif

}  // namespace neb::effects
