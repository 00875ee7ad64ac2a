// Tiles: the picture is cut into tiles that turn over one after another, the new picture on their
// backs. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"
#include "effects/reveals/WipeShapes.h"

namespace neb::effects {

// Count: tiles along the longer side. Order: a wipe's shape, read at the tiles' middles; null
// for a scattered order.
Recipe TurningTiles(int Count, WipeShape Order);

}  // namespace neb::effects
