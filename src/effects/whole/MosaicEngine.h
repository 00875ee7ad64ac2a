// Mosaics: the old picture falls into ever larger tiles of one colour, and the new one comes
// together from them, everywhere at once or from the middle outwards. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

// Largest: the largest tile, in hundredths of the longer side.
Recipe Mosaic(int Largest);
// Tiles are halved and doubled in a ring that spreads from the middle.
Recipe MosaicRing();

}  // namespace neb::effects
