// Light along the edge of a wipe: paper that burns away, a ring of light that opens. Used by the
// catalogue.
#pragma once

#include "effects/WipeEngine.h"

namespace neb::effects {

// The old picture chars and burns away in patches, Count along the longer side.
Recipe Burn(int Count);
// A wipe whose edge shines.
Recipe ShiningWipe(WipeShape Shape, WipeForm Form);

}  // namespace neb::effects
