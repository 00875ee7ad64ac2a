// Water and whirls: a ring of waves runs outwards from the middle, drops fall on a pond, or the
// picture is wound up about the middle, the new picture in the wake. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

// Waves: how many there are in the ring.
Recipe WaterRing(int Waves);
// Drops: how many fall, one after another.
Recipe RainRings(int Drops);
// Eighths: how far the middle is turned, in eighths of a turn; below 0 the other way.
Recipe Twirl(int Eighths);
// The old picture is wound up and comes nearer; the new one unwinds from there and settles.
Recipe SwirlZoom(int Eighths);

}  // namespace neb::effects
