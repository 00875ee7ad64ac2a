// Wipes: the new picture comes out from behind an edge that walks over the old one. Every shape
// can be turned and mirrored. Used by the catalogue.
#pragma once

#include "effects/reveals/WipeShapes.h"

namespace neb::effects {

struct WipeForm {
    int Count = 1;
    int SoftBits = 10;       // see RevealMap
    bool FlipX = false;      // mirrored left to right
    bool FlipY = false;      // mirrored top to bottom
    bool Turned = false;     // columns and rows change places, before mirroring
    bool Backwards = false;  // what came last comes first
};

Recipe Wipe(WipeShape Shape, WipeForm Form = {});

// The map of a wipe, for engines that draw its edge in their own way.
RevealMap MakeWipeMap(QSize Size, WipeShape Shape, const WipeForm& Form);

}  // namespace neb::effects
