// Whole pictures that turn: into the distance, out of it, or about a corner as on a nail. Used by
// the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

// The old picture turns and shrinks to the middle.
Recipe SpinAway();
// The new picture comes from there, turning the other way.
Recipe SpinIn();
// The old picture swings out of view about its upper left corner.
Recipe SwingFromCorner();

}  // namespace neb::effects
