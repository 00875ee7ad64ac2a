// Cloth and waves: a swell runs over the picture from the left, the new one in its wake; or the old
// picture hangs as a curtain that is drawn to both sides in folds. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

// Waves: how many crests the swell has.
Recipe WaveAcross(int Waves);
// Folds: of each of the two halves.
Recipe Curtain(int Folds);

}  // namespace neb::effects
