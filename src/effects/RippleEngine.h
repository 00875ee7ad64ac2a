// Water: a ring of waves runs outwards from the middle, the new picture in its wake; or the
// picture is wound up about the middle and unwinds as the new one. Used by the catalogue.
#pragma once

#include "effects/Engine.h"

namespace neb::effects {

// Waves: how many there are in the ring.
Recipe WaterRing(int Waves);
// Quarters: how far the middle is turned, in quarter turns; below 0 the other way.
Recipe Twirl(int Quarters);

}  // namespace neb::effects
