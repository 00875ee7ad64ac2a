// Fades: one picture into the other, at once or by way of a colour. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

Recipe CrossFade();   // as light adds up, the middle a little before the corners
Recipe SimpleFade();  // byte by byte, for machines on which the finer one would stutter
Recipe FadeThrough(QRgb Colour);
// The colours leave the old picture as in an old brown photograph and come back in the new one.
Recipe FadeThroughOldPrint();

}  // namespace neb::effects
