// Moments that change softly from place to place, reckoned on a grid of every fourth pixel and
// read smoothly between: clouds, the brightness of a picture, ways from a point. Used by the
// dissolves and by the engines that light the edge between two pictures.
#pragma once

#include <QSize>
#include <cstdint>
#include <functional>
#include <vector>

#include "effects/drawing/Engine.h"

namespace neb::effects {

class SoftField {
  public:
    static constexpr int Levels = 1 << 14;  // moments run from 0 to Levels - 1
    static constexpr int Step = 4;
    // Fills the values, 0 or more and below 2^24, of the grid's row for the row Y of the picture:
    // the one for column X of the picture is Row[X / Step].
    using RowMaker = std::function<void(int Y, int Count, int* Row)>;

    SoftField(QSize Size, const RowMaker& MakeRow);

    // Spreads each value over its neighbours Reach pixels around; Times: the softer the more.
    void Blur(int Reach, int Times);
    // Adds another field of the same size, Parts of it to one of this.
    void Add(const SoftField& Other, int Parts);
    // Turns values into moments in which equal areas have each moment, so that a change goes on
    // evenly; Backwards: from the highest value to the lowest. Comes once, last, before reading.
    void EvenOut(bool Backwards = false);

    // The moments of one row of the picture, Width of them.
    void FillRow(int Y, std::int16_t* Row) const;

  private:
    int* Line(int Y) { return mPoints.data() + std::size_t(Y) * std::size_t(mAcross); }

    int mWidth, mAcross, mDown;
    std::vector<int> mPoints;             // until they are evened out
    std::vector<std::uint16_t> mMoments;  // from then on
};

// Drifting clouds, Count along the longer side; not yet evened out.
SoftField MakeClouds(QSize Size, int Count);
// How bright a picture is, in means over every fourth pixel; not yet evened out.
SoftField MakeBrightness(const Picture& P);
// A part of the longer side in pixels, at least one grid step.
int PartOf(QSize Size, int Divisor);

}  // namespace neb::effects
