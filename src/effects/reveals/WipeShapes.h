// The shapes of the wipes: for each place in the picture the moment at which it turns. A new
// shape is a class that fills rows, one line here, and its use a row of the catalogue.
#pragma once

#include "effects/drawing/Fixed.h"
#include "effects/reveals/RevealMap.h"

namespace neb::effects {

struct WipePlace {
    int X, Y;           // the pixel
    int Width, Height;  // the picture, at least 1 by 1
    int Count;          // what the shape makes of it: stripes, cells, hands, teeth
};

// A shape made for one size of pictures.
class WipeRows {
  public:
    virtual ~WipeRows() = default;
    // The moments of a row, each 0 up to RevealMap::Levels - 1.
    virtual void Fill(int Y, std::int16_t* Row) const = 0;
    // True when every row is like the first.
    virtual bool OneRow() const { return false; }
};

// Which shape: something that makes it for a size, or nothing.
class WipeShape {
  public:
    using Maker = std::unique_ptr<WipeRows> (*)(QSize Size, int Count);

    constexpr WipeShape(Maker By) : mMake(By) {}
    constexpr WipeShape(std::nullptr_t) {}
    explicit operator bool() const { return mMake != nullptr; }
    std::unique_ptr<WipeRows> Make(QSize Size, int Count) const { return mMake(Size, Count); }
    // The moment of a single place, for what has only few of them.
    int operator()(const WipePlace& P) const;

  private:
    Maker mMake = nullptr;
};

// WipeShapes.cpp: straight edges
extern const WipeShape Straight;      // from the left to the right
extern const WipeShape Diagonal;      // from the top left corner to the bottom right one
extern const WipeShape Centre;        // from the upright line in the middle to both sides
extern const WipeShape Diamond;       // from the middle outwards
extern const WipeShape Box;           // from the middle outwards
extern const WipeShape Cross;         // the four arms first, the corners last
extern const WipeShape Blinds;        // Count: slats, each from its left edge
extern const WipeShape BlindsInTurn;  // the slats to the left begin first
extern const WipeShape BlindsAslant;  // Count: slats, from the top left corner
extern const WipeShape RandomBars;    // Count: bars in a scattered order
extern const WipeShape Waves;         // an edge of Count waves, left to right
extern const WipeShape Teeth;         // an edge of Count teeth, left to right

// WipeShapesRound.cpp: about the middle
extern const WipeShape Circle;  // outwards
extern const WipeShape Star;    // outwards; Count: points
extern const WipeShape Heart;   // outwards
extern const WipeShape Rings;   // Count: rings, each outwards, the inner ones begin first
extern const WipeShape Clock;   // Count: hands, the first at twelve
extern const WipeShape Fan;     // from twelve to both sides
extern const WipeShape Sweep;   // a quarter circle about the top left corner
extern const WipeShape Swirl;   // Count: hands bent with the distance from the middle

// WipeShapesCells.cpp: cells and lanes
extern const WipeShape Checker;   // Count: cells along the longer side
extern const WipeShape Comb;      // Count: teeth, in turn from the left and the right
extern const WipeShape Snake;     // Count: lanes, walked to and fro
extern const WipeShape Spiral;    // Count: cells along the longer side, walked inwards
extern const WipeShape Weave;     // Count: bands along the longer side, over and under
extern const WipeShape Halftone;  // Count: growing dots along the longer side, left to right
extern const WipeShape Honey;     // Count: six-sided cells along the longer side, outwards

// WipeShapesPaint.cpp: as if by hand and weather
extern const WipeShape Brush;      // Count: strokes, to and fro from the top down
extern const WipeShape RainDrops;  // Count: growing drops at scattered places

}  // namespace neb::effects
