// Bends pictures in rings about a point: every pixel reads at another distance and another angle,
// both told for each distance. Used by the engines of ripples, swirls and lenses.
#pragma once

#include <cstdint>

#include "effects/warps/WarpEngine.h"

namespace neb::effects {

// Where the pixels at one distance read, and what they show.
struct Ring {
    int Distance;    // pixels of One
    int Angle;       // of One turn
    int Weight = 0;  // of the new picture, of One
    int Light = 0;   // as of a WarpNode
};

class PolarEngine : public WarpEngine {
  protected:
    PolarEngine(QSize Size, Bend How);

    int Reach() const { return mReach; }  // pixels from the middle to the corners
    // Distance in pixels, from 0 up to beyond the corners. OfNew: of the new picture; weights and
    // light are taken from the old one's ring.
    virtual Ring RingAt(int Distance, int Progress, bool OfNew) const = 0;
    // The point about which the rings lie, in halves of a pixel.
    struct Point {
        int X, Y;
    };
    virtual Point CentreAt(int Progress) const;

    void Prepare(const Frame& F) const override;
    void FillLine(const Frame& F, int Y, int Bits, WarpNode* Nodes, int Count) const override;

    QSize mSize;

  private:
    void FindRims(const Frame& F) const;

    int mReach;
    bool mApart;
    std::uint64_t mMark;  // no other engine has the same
};

}  // namespace neb::effects
