// The soft shadow that a sheet throws on the picture beneath it: darkest along its edge, gone at
// its reach. Used by the engines in which pictures or parts of them lie over one another.
#pragma once

#include <QRgb>
#include <cstdint>

#include "effects/drawing/Engine.h"

namespace neb::effects {

// Whole pixels of the frame, the second ones not included; may lie outside of it.
struct Area {
    int X0, Y0, X1, Y1;
};

// For the frames of one size that one thread draws at a time.
class Shadow {
  public:
    explicit Shadow(QSize Frame);
    // Darkens the pixels X0..X1 of row Y (Row is its pixel 0) that lie about the sheet, not
    // those under it. Depth: the darkness at its edge, 0..256.
    void Fall(QRgb* Row, int Y, int X0, int X1, const Area& Sheet, int Depth) const;

  private:
    int mReach;
    const std::uint16_t* mRising;  // towards the sheet
    const std::uint16_t* mFalling;
};

// The depth of the shadow of a sheet that comes, or, with what is left of its way, of one that
// goes: it is there at once but not with a jump.
int ShadowDepth(int Progress);

}  // namespace neb::effects
