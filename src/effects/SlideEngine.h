// Slides: whole pictures that move, by rows and runs copied at once. A push moves both, a cover
// the new one over the old, an uncover the old one away. Used by the catalogue.
#pragma once

#include "effects/Engine.h"

namespace neb::effects {

enum class Heading { Left, Right, Up, Down };

Recipe Push(Heading Way);
Recipe Cover(Heading Way);    // the new picture moves in, with a soft shadow before it
Recipe Uncover(Heading Way);  // the old picture moves out, with a soft shadow behind it

// The old picture parts in the middle and its halves move out, or the halves of the new one
// move in and meet. Across: the halves move left and right, else up and down.
Recipe DoorsOpen(bool Across);
Recipe DoorsClose(bool Across);

}  // namespace neb::effects
