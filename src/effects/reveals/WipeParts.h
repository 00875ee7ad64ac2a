// What the shapes of the wipes are put together from: levels, stripes and rows made of a table
// of columns. Used by the files of the shapes alone.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "effects/drawing/Fixed.h"
#include "effects/reveals/WipeShapes.h"

namespace neb::effects {

constexpr int kLevels = RevealMap::Levels;
using MomentLine = std::vector<std::int16_t>;

// A shape of class Rows, made from a size and a count.
template <typename Rows>
std::unique_ptr<WipeRows> MakeShape(QSize Size, int Count) {
    return std::make_unique<Rows>(Size, Count);
}

// The middle of pixel I of Length, as a moment; alike from both ends.
inline int Level(int I, int Length) {
    return static_cast<int>((2 * std::int64_t{I} + 1) * (kLevels - 1) / (2 * std::int64_t{Length}));
}

// Part of Whole as a moment.
inline int LevelOf(std::int64_t Part, std::int64_t Whole) {
    if (Whole <= 0) return 0;
    return static_cast<int>(std::clamp<std::int64_t>(Part * (kLevels - 1) / Whole, 0, kLevels - 1));
}

// How far pixel I of Length is from the middle, as a moment.
inline int SideLevel(int I, int Length) {
    return LevelOf(std::abs(2 * I + 1 - Length), Length);
}

// So many moments for a unit of doubled places that the corners are the farthest from the middle.
inline float LevelsPerUnit(QSize Size) {
    const std::int64_t W = Size.width(), H = Size.height();
    return static_cast<float>(kLevels - 1) / static_cast<float>(Root((W * W + H * H) * 65536)) *
           256.0f;
}

// Which of Count nearly equal parts of Length pixel I is in.
inline int PartAt(int I, int Length, int Count) {
    return static_cast<int>(std::int64_t{I} * Count / Length);
}

// Where pixel I is in its part, 0..One-1 from edge to edge.
inline int WithinPart(int I, int Length, int Count) {
    return static_cast<int>(((2 * std::int64_t{I} + 1) * Count % (2 * Length)) * One /
                            (2 * std::int64_t{Length}));
}

// One value for each of Length pixels.
template <typename Of>
MomentLine MakeLine(int Length, Of&& At) {
    MomentLine Out;
    Out.reserve(static_cast<std::size_t>(Length));
    for (int I = 0; I < Length; ++I) Out.push_back(static_cast<std::int16_t>(At(I)));
    return Out;
}

// A phase of 0..One-1 as a moment that rises to the end of the turn but for its last part, Fall
// of One up to a quarter, in which it comes down again: so that no hard edge stays behind where
// one turn meets the next.
class SoftSaw {
  public:
    explicit SoftSaw(int Fall)
        : mMoments(MakeLine(kLevels, [&](int I) {
              const int Phase = I * (One / kLevels);
              return std::min(LevelOf(Phase, One - Fall), LevelOf(One - Phase, Fall));
          })) {}
    int At(int Phase) const { return mMoments[static_cast<std::size_t>(Phase / (One / kLevels))]; }

  private:
    MomentLine mMoments;
};

}  // namespace neb::effects
