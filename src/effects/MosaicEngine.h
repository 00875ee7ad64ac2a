// Mosaic: the old picture falls into ever larger tiles of one colour, and the new one comes
// together from them. Used by the catalogue.
#pragma once

#include "effects/Engine.h"

namespace neb::effects {

// Largest: the largest tile, in hundredths of the longer side.
Recipe Mosaic(int Largest);

}  // namespace neb::effects
