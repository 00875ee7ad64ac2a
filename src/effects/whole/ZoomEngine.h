// Pictures that grow, shrink, stretch and are squeezed: each picture is drawn into a frame of its
// own that moves between the whole view and another place. Used by the catalogue.
#pragma once

#include "effects/drawing/Engine.h"

namespace neb::effects {

// A place in hundredths of the view's width and height; the whole view unless told otherwise.
struct ZoomPlace {
    int X = 0, Y = 0, Width = 100, Height = 100;
};

struct ZoomForm {
    ZoomPlace OldTo = {};            // where the old picture goes
    ZoomPlace NewFrom = {};          // where the new one comes from
    bool OldOnTop = false;           // which of the two lies over the other
    bool Fades = false;              // the upper one comes or goes through glass
    int FadeFrom = 0, FadeTo = 100;  // of the way, in hundredths
    bool Shaded = false;             // the upper one throws a soft shadow
    bool Mirrored = false;           // pictures fill the view, mirrored beyond their sides
};

Recipe Zoom(ZoomForm Form);

}  // namespace neb::effects
