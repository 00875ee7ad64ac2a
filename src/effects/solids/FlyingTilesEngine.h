// Pictures that come apart into tiles, or together from them: the tiles burst away, fall, fly in,
// shrink or slide over the picture behind them. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

// Count: tiles along the longer side.
Recipe TilesFlyApart(int Count);
Recipe TilesFall(int Count);
Recipe TilesFlyIn(int Count);
Recipe TilesShrink(int Count);
Recipe TilesSlide(int Count);

}  // namespace neb::effects
