// Page turns: the old picture is a sheet that curls up over a round edge and is drawn away,
// paper-white on its back, with a shadow on the new one below. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

struct PageForm {
    // The direction in which the sheet is drawn away, in any unit: (-1, 0) is to the left.
    int X = -1, Y = 0;
    // The sheet is cut through the middle, and its other half drawn away the other way.
    bool FromMiddle = false;
};

Recipe PageTurn(PageForm Form);

}  // namespace neb::effects
