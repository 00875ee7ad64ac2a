// Fades: one picture into the other, at once or by way of a colour. Used by the catalogue.
#pragma once

#include "effects/Engine.h"

namespace neb::effects {

Recipe CrossFade();
Recipe FadeThrough(QRgb Colour);

}  // namespace neb::effects
