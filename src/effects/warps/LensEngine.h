// A large round lens that passes over the picture from the left and leaves the new one behind it.
// Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

Recipe LensPass();

}  // namespace neb::effects
