// Dissolves: the pictures change place by place, in scattered dots and blocks, in drifting
// clouds, or by how bright a place is. Used by the catalogue.
#pragma once

#include "effects/reveals/RevealMap.h"

namespace neb::effects {

Recipe DotDissolve(int SoftBits);
// Blocks of a scattered order, Count of them along the longer side.
Recipe BlockDissolve(int Count, int SoftBits);
// Count: clouds along the longer side.
Recipe CloudDissolve(int Count, int SoftBits);
// The dark places of the new picture come first, or the bright ones.
Recipe LightDissolve(bool BrightFirst);

}  // namespace neb::effects
