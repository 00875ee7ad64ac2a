#include "effects/EffectCatalogue.h"

#include <array>
#include <vector>

#include "effects/reveals/DissolveEngine.h"
#include "effects/reveals/GlowEngine.h"
#include "effects/reveals/WipeEngine.h"
#include "effects/solids/FlyingTilesEngine.h"
#include "effects/solids/PageEngine.h"
#include "effects/solids/PerspectiveEngine.h"
#include "effects/solids/RollEngine.h"
#include "effects/solids/SpinEngine.h"
#include "effects/solids/TilesEngine.h"
#include "effects/warps/LensEngine.h"
#include "effects/warps/RippleEngine.h"
#include "effects/warps/WaveEngine.h"
#include "effects/whole/BlurEngine.h"
#include "effects/whole/FadeEngine.h"
#include "effects/whole/MosaicEngine.h"
#include "effects/whole/SlideEngine.h"
#include "effects/whole/ZoomEngine.h"

namespace neb {
namespace effects {
namespace {

using namespace Qt::StringLiterals;

struct EffectRow {
    int Number;
    QString Name;
    effects::Recipe Recipe;
};

constexpr WipeForm kMirror{.FlipX = true};
constexpr WipeForm kDown{.Turned = true};
constexpr WipeForm kUp{.FlipY = true, .Turned = true};
constexpr WipeForm kIn{.Backwards = true};

// The speed test relies on 118 and 121 being heavy, 56 and 1 of middle weight, 70 and 85 light.
const std::vector<EffectRow> kRows = {
    {1, u"Cross Fade"_s, CrossFade()},
    {2, u"Wipe Right"_s, Wipe(Straight)},
    {3, u"Push Left"_s, Push(Heading::Left)},
    {4, u"Iris Circle Out"_s, Wipe(Circle)},
    {5, u"Blinds Horizontal"_s, Wipe(Blinds, {.Count = 12, .SoftBits = 12, .Turned = true})},
    {6, u"Zoom In"_s,
     Zoom({.OldTo = {-75, -75, 250, 250},
           .OldOnTop = true,
           .Fades = true,
           .FadeFrom = 20,
           .FadeTo = 90})},
    {7, u"Doors Open"_s, DoorsOpen(true)},
    {8, u"Cloud Dissolve"_s, CloudDissolve(5, 12)},
    {9, u"Wipe Corner Top Left"_s, Wipe(Diagonal)},
    {10, u"Cover Left"_s, Cover(Heading::Left)},
    {11, u"Clock Wipe"_s, Wipe(Clock)},
    {12, u"Checkerboard"_s, Wipe(Checker, {.Count = 12})},
    {13, u"Fade Through Black"_s, FadeThrough(0xFF000000u)},
    {14, u"Cube Turn Left"_s, CubeTurn({})},
    {15, u"Iris Diamond Out"_s, Wipe(Diamond)},
    {16, u"Mosaic"_s, Mosaic(6)},
    {17, u"Split Vertical Out"_s, Wipe(Centre)},
    {18, u"Uncover Right"_s, Uncover(Heading::Right)},
    {19, u"Spiral In"_s, Wipe(Spiral, {.Count = 10, .SoftBits = 9})},
    {20, u"Page Turn Left"_s, PageTurn({-1, 0})},
    {21, u"Wipe Left"_s, Wipe(Straight, kMirror)},
    {22, u"Wipe Down"_s, Wipe(Straight, kDown)},
    {23, u"Wipe Up"_s, Wipe(Straight, kUp)},
    {24, u"Push Right"_s, Push(Heading::Right)},
    {25, u"Iris Circle In"_s, Wipe(Circle, kIn)},
    {26, u"Dot Dissolve"_s, DotDissolve(12)},
    {27, u"Cube Turn Down"_s, CubeTurn({.Upright = false, .Mirrored = true})},
    {28, u"Swing Doors"_s, SwingDoors({})},
    {29, u"Clock Wipe Counterclockwise"_s, Wipe(Clock, kMirror)},
    {30, u"Iris Diamond In"_s, Wipe(Diamond, kIn)},
    {31, u"Spiral Out"_s, Wipe(Spiral, {.Count = 10, .SoftBits = 9, .Backwards = true})},
    {32, u"Blinds Vertical"_s, Wipe(Blinds, {.Count = 12, .SoftBits = 12})},
    {33, u"Card Flip Up"_s, CardFlip({.Upright = false})},
    {34, u"Grow From the Middle"_s, Zoom({.NewFrom = {50, 50, 0, 0}, .Shaded = true})},
    {35, u"Split Vertical In"_s, Wipe(Centre, kIn)},
    {36, u"Push Up"_s, Push(Heading::Up)},
    {37, u"Split Horizontal In"_s, Wipe(Centre, {.Turned = true, .Backwards = true})},
    {38, u"Push Down"_s, Push(Heading::Down)},
    {39, u"Carousel Left"_s, Carousel({})},
    {40, u"Fan Wipe"_s, Wipe(Fan)},
    {41, u"Clock Wipe Two Hands"_s, Wipe(Clock, {.Count = 2})},
    {42, u"Card Flip"_s, CardFlip({})},
    {43, u"Comb Vertical"_s, Wipe(Comb, {.Count = 16, .SoftBits = 9, .Turned = true})},
    {44, u"Block Dissolve"_s, BlockDissolve(32, 11)},
    {45, u"Carousel Right"_s, Carousel({.Mirrored = true})},
    {46, u"Iris Star"_s, Wipe(Star, {.Count = 5})},
    {47, u"Blinds Diagonal"_s, Wipe(BlindsAslant, {.Count = 16, .SoftBits = 11})},
    {48, u"Cover Down"_s, Cover(Heading::Down)},
    {49, u"Wave Wipe Down"_s, Wipe(Waves, {.Count = 5, .Turned = true})},
    {50, u"Stretch Right"_s, Zoom({.OldTo = {100, 0, 0, 100}, .NewFrom = {0, 0, 0, 100}})},
    {51, u"Book Leaf"_s, BookLeaf({})},
    {52, u"Random Bars Vertical"_s, Wipe(RandomBars, {.Count = 96, .SoftBits = 11})},
    {53, u"Iris Star In"_s, Wipe(Star, {.Count = 5, .Backwards = true})},
    {54, u"Tiles Turn"_s, TurningTiles(9, Diagonal)},
    {55, u"Iris Heart"_s, Wipe(Heart)},
    {56, u"Dark to Bright Dissolve"_s, LightDissolve(false)},
    {57, u"Map Fold"_s, MapFold({})},
    {58, u"Iris Box Out"_s, Wipe(Box)},
    {59, u"Rings"_s, Wipe(Rings, {.Count = 8, .SoftBits = 11})},
    {60, u"Iris Box In"_s, Wipe(Box, kIn)},
    {61, u"Brush Strokes"_s, Wipe(Brush, {.Count = 6, .SoftBits = 9})},
    {62, u"Wave Wipe Right"_s, Wipe(Waves, {.Count = 3})},
    {63, u"Billboard Turn"_s, PrismsTurn({})},
    {64, u"Doors Close"_s, DoorsClose(true)},
    {65, u"Growing Dots"_s, Wipe(Halftone, {.Count = 30})},
    {66, u"Burn Away"_s, Burn(6)},
    {67, u"Rain Drops"_s, Wipe(RainDrops, {.Count = 40, .SoftBits = 11})},
    {68, u"Fade Through White"_s, FadeThrough(0xFFFFFFFFu)},
    {69, u"Slats Turn"_s, SlatsTurn({.Upright = false})},
    {70, u"Split Horizontal Out"_s, Wipe(Centre, kDown)},
    {71, u"Honeycomb"_s, Wipe(Honey, {.Count = 18, .SoftBits = 11})},
    {72, u"Comb Horizontal"_s, Wipe(Comb, {.Count = 12, .SoftBits = 9})},
    {73, u"Basket Weave"_s, Wipe(Weave, {.Count = 12})},
    {74, u"Zoom Out"_s,
     Zoom({.NewFrom = {-75, -75, 250, 250}, .Fades = true, .FadeFrom = 10, .FadeTo = 80})},
    {75, u"Page Turn Up"_s, PageTurn({0, -1})},
    {76, u"Sweep Corner"_s, Wipe(Sweep)},
    {77, u"Simple Fade"_s, SimpleFade()},
    {78, u"Iris Cross"_s, Wipe(Cross)},
    {79, u"Strips From Both Sides"_s, SlidingStrips(8)},
    {80, u"Shrink to the Corner"_s,
     Zoom({.OldTo = {100, 0, 0, 0}, .OldOnTop = true, .Shaded = true})},
    {81, u"Roll Up"_s, RollUp()},
    {82, u"Swirl Wipe"_s, Wipe(Swirl, {.Count = 3})},
    {83, u"Falling Columns"_s, FallingColumns(10)},
    {84, u"Quarters Part"_s, QuartersPart()},
    {85, u"Uncover Left"_s, Uncover(Heading::Left)},
    {86, u"Unroll Down"_s, UnrollDown()},
    {87, u"Cover Up"_s, Cover(Heading::Up)},
    {88, u"Blinds in Turn"_s, Wipe(BlindsInTurn, {.Count = 16, .SoftBits = 11})},
    {89, u"Uncover Corner"_s, Uncover(Heading::DownLeft)},
    {90, u"Squeeze Up"_s, Zoom({.OldTo = {0, 0, 100, 0}, .NewFrom = {0, 100, 100, 0}})},
    {91, u"Snake"_s, Wipe(Snake, {.Count = 7, .SoftBits = 9})},
    {92, u"Fall Back"_s, FallBack({.Upright = false, .Mirrored = true})},
    {93, u"Blur Dissolve"_s, BlurDissolve()},
    {94, u"Saw Tooth Wipe"_s, Wipe(Teeth, {.Count = 9})},
    {95, u"Unfold From the Middle"_s, Zoom({.NewFrom = {0, 50, 100, 0}, .Shaded = true})},
    {96, u"Fade Through Old Photograph"_s, FadeThroughOldPrint()},
    {97, u"Random Bars Horizontal"_s,
     Wipe(RandomBars, {.Count = 64, .SoftBits = 11, .Turned = true})},
    {98, u"Zoom Through"_s,
     Zoom({.OldTo = {-60, -60, 220, 220},
           .NewFrom = {27, 27, 46, 46},
           .Fades = true,
           .FadeFrom = 25,
           .FadeTo = 75,
           .Mirrored = true})},
    {99, u"Mosaic Ring"_s, MosaicRing()},
    {100, u"Iris of Light"_s, ShiningWipe(Circle, {.SoftBits = 12})},
    {101, u"Film Burn"_s, FilmBurn()},
    {102, u"Sunrise"_s, Sunrise()},
    {103, u"Cube Turn Right"_s, CubeTurn({.Mirrored = true})},
    {104, u"Peel From the Middle"_s, PageTurn({-4, 3, true})},
    {105, u"Light Bloom"_s, LightBloom()},
    {106, u"Cube Turn Up"_s, CubeTurn({.Upright = false})},
    {107, u"Paper Soak"_s, PaperSoak(7)},
    {108, u"Tiles Fly Apart"_s, TilesFlyApart(12)},
    {109, u"Page Turn Right"_s, PageTurn({1, 0})},
    {110, u"Tiles Fall"_s, TilesFall(18)},
    {111, u"Tiles Fly In"_s, TilesFlyIn(10)},
    {112, u"Tiles Turn at Random"_s, TurningTiles(14, nullptr)},
    {113, u"Tiles Shrink Away"_s, TilesShrink(12)},
    {114, u"Puzzle"_s, TilesSlide(8)},
    {115, u"Bright to Dark Dissolve"_s, LightDissolve(true)},
    {116, u"Spin Away"_s, SpinAway()},
    {117, u"Spin In"_s, SpinIn()},
    {118, u"Water Ring"_s, WaterRing(6)},
    {119, u"Swing From the Corner"_s, SwingFromCorner()},
    {120, u"Swirl Zoom"_s, SwirlZoom(3)},
    {121, u"Twirl"_s, Twirl(4)},
    {122, u"Wave Across"_s, WaveAcross(3)},
    {123, u"Rain on the Pond"_s, RainRings(7)},
    {124, u"Page Turn Corner"_s, PageTurn({-4, -3})},
    {125, u"Lens Passing"_s, LensPass()},
    {126, u"Curtain"_s, Curtain(6)},
    {127, u"Wall of Light"_s, ShiningWipe(Straight, {.SoftBits = 12})},
};

const EffectRow* FindRow(int Number) {
    static const auto Index = [] {
        std::array<const EffectRow*, std::size_t(EffectCount()) + 1> At{};
        for (const EffectRow& Row : kRows) At.at(static_cast<std::size_t>(Row.Number)) = &Row;
        return At;
    }();
    if (Number < 1 || Number > EffectCount()) return nullptr;
    return Index[static_cast<std::size_t>(Number)];
}

}  // namespace

const Recipe* FindRecipe(int Number) {
    const EffectRow* Row = FindRow(Number);
    return Row ? &Row->Recipe : nullptr;
}

}  // namespace effects

bool EffectIsKnown(int Number) {
    return effects::FindRow(Number) != nullptr;
}

QString EffectName(int Number) {
    const effects::EffectRow* Row = effects::FindRow(Number);
    return Row ? Row->Name : QStringLiteral("Plain Change");
}

QString EffectEngine(int Number) {
    const effects::EffectRow* Row = effects::FindRow(Number);
    return Row ? QString::fromLatin1(Row->Recipe.EngineName) : QString();
}

}  // namespace neb
