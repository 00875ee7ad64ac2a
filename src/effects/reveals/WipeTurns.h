// Directions and distances of whole rows of pixels at a time, for the round shapes of the wipes.
// Only sums, products, quotients and roots of floats, each of which has one right answer, so that
// every machine and vector width gives the same. Used by the files of the shapes alone.
#pragma once

#include <cstdint>

namespace neb::effects {

// Places are doubled: the middle of pixel X is 2 * X + 1, so that the middle of a picture is whole.
struct Middle {
    int X, Y;
};

// For the pixels First up to First + Count - 1 of row Y the direction from About, clockwise from
// twelve, 0..65535 over the full turn; with BothSides as seen on the right alone.
void FindTurns(int First, int Count, int Y, Middle About, bool BothSides, std::uint16_t* Turns);

// For the pixels of row Y the distance from About, times Scale, at most Levels - 1.
void FindDistances(int Count, int Y, Middle About, float Scale, std::int16_t* Distances);

// The roots of Squares, times Scale, at most Levels - 1.
void FindRoots(int Count, const int* Squares, float Scale, std::int16_t* Roots);

}  // namespace neb::effects
