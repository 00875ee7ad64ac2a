// Slides: whole pictures or parts of them that move. A push moves both pictures, a cover the new
// one over the old, an uncover the old one away. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

enum class Heading { Left, Right, Up, Down, UpLeft, DownLeft };

Recipe Push(Heading Way);
Recipe Cover(Heading Way);    // the new picture moves in, with a soft shadow before it
Recipe Uncover(Heading Way);  // the old picture moves out, with a soft shadow behind it

// Lanes of the new picture slide in over the old one, from the left and the right in turn.
Recipe SlidingStrips(int Count);
// Columns of the new picture come down over the old one, one after the other; up to 24.
Recipe FallingColumns(int Count);
// The quarters of the old picture move out to the corners.
Recipe QuartersPart();

// The old picture parts in the middle and its halves move out, or the halves of the new one
// move in and meet. Across: the halves move left and right, else up and down.
Recipe DoorsOpen(bool Across);
Recipe DoorsClose(bool Across);

}  // namespace neb::effects
