// Looking at a scene of panels: for each line of the view which panel it shows and where.
// Used by the perspective engine.
#pragma once

#include "effects/solids/PanelScene.h"

namespace neb::effects {

// What one line of the view, a column or a row, shows.
struct ViewLine {
    const HalfSizes* Source = nullptr;  // null: nothing but what is behind
    int Panel = -1;                     // which panel, and which side of it
    int U = 0;                          // place in the picture along the turning, of One
    int Du = One;                       // how much of it comes to a pixel
    int Zoom = One;                     // picture per pixel across the turning
    int Cover = 0;                      // 0..256
    int Shade = 0;
};

// Lines holds one for each of Length pixels along the turning, Eye is the viewer's distance of One.
// Mirrored: the other way round.
void FindLines(const PanelScene& S, std::int64_t Eye, ViewLine* Lines, int Length, bool Mirrored);

// The place in the picture for a pixel across the turning, for a view of Size pixels.
inline int PlaceAcross(int Place, int Size, int Zoom) {
    const std::int64_t Off = std::int64_t{2 * Place + 1 - Size} * Zoom / 2;
    return static_cast<int>(Off + (std::int64_t{Size} << 15) - One / 2);
}

// The places of one row from those of the first row and the way from row to row.
void PlacesDown(int* V, const int* Start, const int* Step, int Y, int Count);

}  // namespace neb::effects
