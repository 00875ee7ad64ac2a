// The shapes of the wipes: for a place in the picture the moment at which it turns. Each is a
// plain function, so that a new shape is a function and its use a row of the catalogue.
#pragma once

#include "effects/Fixed.h"
#include "effects/RevealMap.h"

namespace neb::effects {

struct WipePlace {
    int X, Y;           // the pixel
    int Width, Height;  // the picture, at least 1 by 1
    int Count;          // what the shape makes of it: stripes, cells, hands, teeth
};

// The moment of a place, 0 up to RevealMap::Levels - 1.
using WipeShape = int (*)(const WipePlace& P);

int Straight(const WipePlace& P);  // from the left to the right
int Diagonal(const WipePlace& P);  // from the top left corner to the bottom right one
int Centre(const WipePlace& P);    // from the upright line in the middle to both sides
int Circle(const WipePlace& P);    // from the middle outwards
int Diamond(const WipePlace& P);
int Box(const WipePlace& P);
int Cross(const WipePlace& P);         // the four arms first, the corners last
int Star(const WipePlace& P);          // Count: points
int Clock(const WipePlace& P);         // Count: hands, the first at twelve
int Fan(const WipePlace& P);           // from twelve to both sides
int Sweep(const WipePlace& P);         // a quarter circle about the top left corner
int Swirl(const WipePlace& P);         // hands bent with the distance from the middle
int Blinds(const WipePlace& P);        // Count: slats, each from its left edge
int BlindsInTurn(const WipePlace& P);  // the slats to the left begin first
int Comb(const WipePlace& P);          // Count: teeth, in turn from the left and the right
int Checker(const WipePlace& P);       // Count: cells along the longer side
int RandomBars(const WipePlace& P);    // Count: bars in a scattered order
int Spiral(const WipePlace& P);        // Count: cells along the longer side, walked inwards
int Snake(const WipePlace& P);         // Count: lanes, walked to and fro
int Waves(const WipePlace& P);         // an edge of Count waves, left to right
int Teeth(const WipePlace& P);         // an edge of Count teeth, left to right

}  // namespace neb::effects
