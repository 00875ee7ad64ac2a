// The old picture goes out of focus while the new one comes into it. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

Recipe BlurDissolve();

}  // namespace neb::effects
