#include "pictures/notes/PictureTurn.h"

namespace neb {
namespace {

constexpr PictureTurn UprightTurns[] = {{false, 0}, {true, 0},  {false, 2}, {true, 2},
                                        {true, 3},  {false, 1}, {true, 1},  {false, 3}};

}  // namespace

PictureTurn PictureTurn::ToUpright(int Orientation) {
    return UprightTurns[Orientation - 1];
}

// A mirror changes the way round of the turn before it.
PictureTurn PictureTurn::Then(PictureTurn Next) const {
    const int Before = Next.Mirrored ? 4 - Quarters : Quarters;
    return {Mirrored != Next.Mirrored, (Before + Next.Quarters) % 4};
}

}  // namespace neb
