// A picture on a roll: the old one is rolled up like a poster, or the new one rolled out like a
// carpet. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

Recipe RollUp();      // from the bottom, its white back outside
Recipe UnrollDown();  // from the top

}  // namespace neb::effects
