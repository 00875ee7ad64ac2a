// Pictures as flat panels turning in space, seen in true perspective: a cube, a card that is
// turned over, a double door, a carousel, a leaf of a book. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

struct Turning {
    bool Upright = true;    // the axis stands upright; else it lies level
    bool Mirrored = false;  // the other way round
};

Recipe CubeTurn(Turning T);  // to the left; level: upwards
Recipe CardFlip(Turning T);
Recipe SwingDoors(Turning T);  // the old picture swings open in two wings
Recipe Carousel(Turning T);    // both pictures stand on a ring that turns to the left
Recipe BookLeaf(Turning T);    // half of the old picture turns over and bears half of the new
Recipe MapFold(Turning T);     // the old picture folds up to the left
Recipe PrismsTurn(Turning T);  // three-sided columns turn one after the other
Recipe SlatsTurn(Turning T);   // square bars turn one after the other
Recipe FallBack(Turning T);    // the old picture falls over away from the viewer, to the left end

}  // namespace neb::effects
