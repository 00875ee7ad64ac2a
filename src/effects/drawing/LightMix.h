// Mixing two pictures as light adds up, by the squares of their values: two projectors that fade
// over, one dimmed while the other brightens. Used by the fades and the dissolves by brightness.
#pragma once

#include "effects/drawing/Pixels.h"

namespace neb::effects {

// Mixes a whole row, the row Y of the picture: a pixel begins to turn where the edge passes its
// moment and has turned 2^SoftBits later, SoftBits up to 14, slow at both ends. What lies between
// two values is scattered over neighbouring pixels, so that soft skies show no steps. The
// pixels are opaque. Out may be Old or New.
void MixLightByMoments(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                       int Edge, int SoftBits, int Y, int Count);

}  // namespace neb::effects
