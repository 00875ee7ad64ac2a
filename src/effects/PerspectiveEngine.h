// Pictures as flat panels turning in space, seen in true perspective: a cube, a card that is
// turned over, a double door. Used by the catalogue.
#pragma once

#include "effects/Engine.h"

namespace neb::effects {

struct Turning {
    bool Upright = true;    // the axis stands upright; else it lies level
    bool Mirrored = false;  // the other way round
};

Recipe CubeTurn(Turning T);  // to the left; level: upwards
Recipe CardFlip(Turning T);
Recipe SwingDoors(Turning T);  // the old picture swings open in two wings

}  // namespace neb::effects
