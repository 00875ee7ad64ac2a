// Sheets: parts of the two pictures that move over a picture that lies still, copied by whole
// runs, with soft shadows about them. Used by the slides, which say where the sheets are.
#pragma once

#include <array>

#include "effects/drawing/Shadow.h"

namespace neb::effects {

enum class Side { Old, New, None };

struct Sheet {
    Side From;    // Old or New
    Area Part;    // of that picture
    int Dx, Dy;   // how far it has moved, in 1/256 of a pixel
    int Depth;    // of its shadow, 0..256
    bool Filled;  // fills the pixels at its rim though it covers but a part of them
};

// What a frame shows. No two sheets lie over each other; those that share a row stand in it from
// the left to the right. Without a picture that lies still the sheets fill the frame.
struct Arrangement {
    Side Still = Side::None;
    std::array<Sheet, 24> Sheets{};
    int Count = 0;
    void Add(const Sheet& S) { Sheets[static_cast<std::size_t>(Count++)] = S; }
};

void DrawSheets(const Frame& F, const Arrangement& A, int Y0, int Y1);

// How far a sheet has come on a way of Length pixels, in 1/256 of a pixel: gently off and gently
// to rest. Where it is slow it moves by parts of a pixel, else by whole ones, which stay crisp.
int Travelled(int Length, int Progress);

}  // namespace neb::effects
