// Light, fire and water along the edge between the pictures: paper that burns away or soaks, a
// ring of light that opens, light that leaks in. Used by the catalogue.
#pragma once

#include "effects/reveals/WipeEngine.h"

namespace neb::effects {

// The old picture chars and burns away in patches, Count along the longer side.
Recipe Burn(int Count);
// A wipe whose edge shines.
Recipe ShiningWipe(WipeShape Shape, WipeForm Form);
// Warm light leaks in from the right, as onto a film, and takes the old picture with it.
Recipe FilmBurn();
// Night falls over the old picture, and the sun rises over the new one.
Recipe Sunrise();
// Light blossoms out of the bright places of the old picture.
Recipe LightBloom();
// The new picture soaks through the paper of the old one, darker at the wet rim.
Recipe PaperSoak(int Drops);

}  // namespace neb::effects
