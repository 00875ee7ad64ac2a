// Draws a step of a transition on all the machine's cores; the same bits as on one. Used by the
// transition view and by the stage of films.
#pragma once

#include "effects/Transition.h"

namespace neb {

void DrawInBands(const Transition& T, double Progress, QImage& Out);

}  // namespace neb
