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
#include "support/Texts.h"

namespace neb {
namespace effects {
namespace {

using namespace Qt::StringLiterals;

struct EffectRow {
    int Number;
    const char* Name;
    effects::Recipe Recipe;
};

constexpr WipeForm kMirror{.FlipX = true};
constexpr WipeForm kDown{.Turned = true};
constexpr WipeForm kUp{.FlipY = true, .Turned = true};
constexpr WipeForm kIn{.Backwards = true};

// The speed test relies on 118 and 121 being heavy, 56 and 1 of middle weight, 70 and 85 light.
const std::vector<EffectRow> kRows = {
    {1, QT_TR_NOOP("Cross Fade"), CrossFade()},
    {2, QT_TR_NOOP("Wipe Right"), Wipe(Straight)},
    {3, QT_TR_NOOP("Push Left"), Push(Heading::Left)},
    {4, QT_TR_NOOP("Iris Circle Out"), Wipe(Circle)},
    {5, QT_TR_NOOP("Blinds Horizontal"),
     Wipe(Blinds, {.Count = 12, .SoftBits = 12, .Turned = true})},
    {6, QT_TR_NOOP("Zoom In"),
     Zoom({.OldTo = {-75, -75, 250, 250},
           .OldOnTop = true,
           .Fades = true,
           .FadeFrom = 20,
           .FadeTo = 90})},
    {7, QT_TR_NOOP("Doors Open"), DoorsOpen(true)},
    {8, QT_TR_NOOP("Cloud Dissolve"), CloudDissolve(5, 12)},
    {9, QT_TR_NOOP("Wipe Corner Top Left"), Wipe(Diagonal)},
    {10, QT_TR_NOOP("Cover Left"), Cover(Heading::Left)},
    {11, QT_TR_NOOP("Clock Wipe"), Wipe(Clock)},
    {12, QT_TR_NOOP("Checkerboard"), Wipe(Checker, {.Count = 12})},
    {13, QT_TR_NOOP("Fade Through Black"), FadeThrough(0xFF000000u)},
    {14, QT_TR_NOOP("Cube Turn Left"), CubeTurn({})},
    {15, QT_TR_NOOP("Iris Diamond Out"), Wipe(Diamond)},
    {16, QT_TR_NOOP("Mosaic"), Mosaic(6)},
    {17, QT_TR_NOOP("Split Vertical Out"), Wipe(Centre)},
    {18, QT_TR_NOOP("Uncover Right"), Uncover(Heading::Right)},
    {19, QT_TR_NOOP("Spiral In"), Wipe(Spiral, {.Count = 10, .SoftBits = 9})},
    {20, QT_TR_NOOP("Page Turn Left"), PageTurn({-1, 0})},
    {21, QT_TR_NOOP("Wipe Left"), Wipe(Straight, kMirror)},
    {22, QT_TR_NOOP("Wipe Down"), Wipe(Straight, kDown)},
    {23, QT_TR_NOOP("Wipe Up"), Wipe(Straight, kUp)},
    {24, QT_TR_NOOP("Push Right"), Push(Heading::Right)},
    {25, QT_TR_NOOP("Iris Circle In"), Wipe(Circle, kIn)},
    {26, QT_TR_NOOP("Dot Dissolve"), DotDissolve(12)},
    {27, QT_TR_NOOP("Cube Turn Down"), CubeTurn({.Upright = false, .Mirrored = true})},
    {28, QT_TR_NOOP("Swing Doors"), SwingDoors({})},
    {29, QT_TR_NOOP("Clock Wipe Counterclockwise"), Wipe(Clock, kMirror)},
    {30, QT_TR_NOOP("Iris Diamond In"), Wipe(Diamond, kIn)},
    {31, QT_TR_NOOP("Spiral Out"), Wipe(Spiral, {.Count = 10, .SoftBits = 9, .Backwards = true})},
    {32, QT_TR_NOOP("Blinds Vertical"), Wipe(Blinds, {.Count = 12, .SoftBits = 12})},
    {33, QT_TR_NOOP("Card Flip Up"), CardFlip({.Upright = false})},
    {34, QT_TR_NOOP("Grow From the Middle"), Zoom({.NewFrom = {50, 50, 0, 0}, .Shaded = true})},
    {35, QT_TR_NOOP("Split Vertical In"), Wipe(Centre, kIn)},
    {36, QT_TR_NOOP("Push Up"), Push(Heading::Up)},
    {37, QT_TR_NOOP("Split Horizontal In"), Wipe(Centre, {.Turned = true, .Backwards = true})},
    {38, QT_TR_NOOP("Push Down"), Push(Heading::Down)},
    {39, QT_TR_NOOP("Carousel Left"), Carousel({})},
    {40, QT_TR_NOOP("Fan Wipe"), Wipe(Fan)},
    {41, QT_TR_NOOP("Clock Wipe Two Hands"), Wipe(Clock, {.Count = 2})},
    {42, QT_TR_NOOP("Card Flip"), CardFlip({})},
    {43, QT_TR_NOOP("Comb Vertical"), Wipe(Comb, {.Count = 16, .SoftBits = 9, .Turned = true})},
    {44, QT_TR_NOOP("Block Dissolve"), BlockDissolve(32, 11)},
    {45, QT_TR_NOOP("Carousel Right"), Carousel({.Mirrored = true})},
    {46, QT_TR_NOOP("Iris Star"), Wipe(Star, {.Count = 5})},
    {47, QT_TR_NOOP("Blinds Diagonal"), Wipe(BlindsAslant, {.Count = 16, .SoftBits = 11})},
    {48, QT_TR_NOOP("Cover Down"), Cover(Heading::Down)},
    {49, QT_TR_NOOP("Wave Wipe Down"), Wipe(Waves, {.Count = 5, .Turned = true})},
    {50, QT_TR_NOOP("Stretch Right"), Zoom({.OldTo = {100, 0, 0, 100}, .NewFrom = {0, 0, 0, 100}})},
    {51, QT_TR_NOOP("Book Leaf"), BookLeaf({})},
    {52, QT_TR_NOOP("Random Bars Vertical"), Wipe(RandomBars, {.Count = 96, .SoftBits = 11})},
    {53, QT_TR_NOOP("Iris Star In"), Wipe(Star, {.Count = 5, .Backwards = true})},
    {54, QT_TR_NOOP("Tiles Turn"), TurningTiles(9, Diagonal)},
    {55, QT_TR_NOOP("Iris Heart"), Wipe(Heart)},
    {56, QT_TR_NOOP("Dark to Bright Dissolve"), LightDissolve(false)},
    {57, QT_TR_NOOP("Map Fold"), MapFold({})},
    {58, QT_TR_NOOP("Iris Box Out"), Wipe(Box)},
    {59, QT_TR_NOOP("Rings"), Wipe(Rings, {.Count = 8, .SoftBits = 11})},
    {60, QT_TR_NOOP("Iris Box In"), Wipe(Box, kIn)},
    {61, QT_TR_NOOP("Brush Strokes"), Wipe(Brush, {.Count = 6, .SoftBits = 9})},
    {62, QT_TR_NOOP("Wave Wipe Right"), Wipe(Waves, {.Count = 3})},
    {63, QT_TR_NOOP("Billboard Turn"), PrismsTurn({})},
    {64, QT_TR_NOOP("Doors Close"), DoorsClose(true)},
    {65, QT_TR_NOOP("Growing Dots"), Wipe(Halftone, {.Count = 30})},
    {66, QT_TR_NOOP("Burn Away"), Burn(6)},
    {67, QT_TR_NOOP("Rain Drops"), Wipe(RainDrops, {.Count = 40, .SoftBits = 11})},
    {68, QT_TR_NOOP("Fade Through White"), FadeThrough(0xFFFFFFFFu)},
    {69, QT_TR_NOOP("Slats Turn"), SlatsTurn({.Upright = false})},
    {70, QT_TR_NOOP("Split Horizontal Out"), Wipe(Centre, kDown)},
    {71, QT_TR_NOOP("Honeycomb"), Wipe(Honey, {.Count = 18, .SoftBits = 11})},
    {72, QT_TR_NOOP("Comb Horizontal"), Wipe(Comb, {.Count = 12, .SoftBits = 9})},
    {73, QT_TR_NOOP("Basket Weave"), Wipe(Weave, {.Count = 12})},
    {74, QT_TR_NOOP("Zoom Out"),
     Zoom({.NewFrom = {-75, -75, 250, 250}, .Fades = true, .FadeFrom = 10, .FadeTo = 80})},
    {75, QT_TR_NOOP("Page Turn Up"), PageTurn({0, -1})},
    {76, QT_TR_NOOP("Sweep Corner"), Wipe(Sweep)},
    {77, QT_TR_NOOP("Simple Fade"), SimpleFade()},
    {78, QT_TR_NOOP("Iris Cross"), Wipe(Cross)},
    {79, QT_TR_NOOP("Strips From Both Sides"), SlidingStrips(8)},
    {80, QT_TR_NOOP("Shrink to the Corner"),
     Zoom({.OldTo = {100, 0, 0, 0}, .OldOnTop = true, .Shaded = true})},
    {81, QT_TR_NOOP("Roll Up"), RollUp()},
    {82, QT_TR_NOOP("Swirl Wipe"), Wipe(Swirl, {.Count = 3})},
    {83, QT_TR_NOOP("Falling Columns"), FallingColumns(10)},
    {84, QT_TR_NOOP("Quarters Part"), QuartersPart()},
    {85, QT_TR_NOOP("Uncover Left"), Uncover(Heading::Left)},
    {86, QT_TR_NOOP("Unroll Down"), UnrollDown()},
    {87, QT_TR_NOOP("Cover Up"), Cover(Heading::Up)},
    {88, QT_TR_NOOP("Blinds in Turn"), Wipe(BlindsInTurn, {.Count = 16, .SoftBits = 11})},
    {89, QT_TR_NOOP("Uncover Corner"), Uncover(Heading::DownLeft)},
    {90, QT_TR_NOOP("Squeeze Up"), Zoom({.OldTo = {0, 0, 100, 0}, .NewFrom = {0, 100, 100, 0}})},
    {91, QT_TR_NOOP("Snake"), Wipe(Snake, {.Count = 7, .SoftBits = 9})},
    {92, QT_TR_NOOP("Fall Back"), FallBack({.Upright = false, .Mirrored = true})},
    {93, QT_TR_NOOP("Blur Dissolve"), BlurDissolve()},
    {94, QT_TR_NOOP("Saw Tooth Wipe"), Wipe(Teeth, {.Count = 9})},
    {95, QT_TR_NOOP("Unfold From the Middle"), Zoom({.NewFrom = {0, 50, 100, 0}, .Shaded = true})},
    {96, QT_TR_NOOP("Fade Through Old Photograph"), FadeThroughOldPrint()},
    {97, QT_TR_NOOP("Random Bars Horizontal"),
     Wipe(RandomBars, {.Count = 64, .SoftBits = 11, .Turned = true})},
    {98, QT_TR_NOOP("Zoom Through"),
     Zoom({.OldTo = {-60, -60, 220, 220},
           .NewFrom = {27, 27, 46, 46},
           .Fades = true,
           .FadeFrom = 25,
           .FadeTo = 75,
           .Mirrored = true})},
    {99, QT_TR_NOOP("Mosaic Ring"), MosaicRing()},
    {100, QT_TR_NOOP("Iris of Light"), ShiningWipe(Circle, {.SoftBits = 12})},
    {101, QT_TR_NOOP("Film Burn"), FilmBurn()},
    {102, QT_TR_NOOP("Sunrise"), Sunrise()},
    {103, QT_TR_NOOP("Cube Turn Right"), CubeTurn({.Mirrored = true})},
    {104, QT_TR_NOOP("Peel From the Middle"), PageTurn({-4, 3, true})},
    {105, QT_TR_NOOP("Light Bloom"), LightBloom()},
    {106, QT_TR_NOOP("Cube Turn Up"), CubeTurn({.Upright = false})},
    {107, QT_TR_NOOP("Paper Soak"), PaperSoak(7)},
    {108, QT_TR_NOOP("Tiles Fly Apart"), TilesFlyApart(12)},
    {109, QT_TR_NOOP("Page Turn Right"), PageTurn({1, 0})},
    {110, QT_TR_NOOP("Tiles Fall"), TilesFall(18)},
    {111, QT_TR_NOOP("Tiles Fly In"), TilesFlyIn(10)},
    {112, QT_TR_NOOP("Tiles Turn at Random"), TurningTiles(14, nullptr)},
    {113, QT_TR_NOOP("Tiles Shrink Away"), TilesShrink(12)},
    {114, QT_TR_NOOP("Puzzle"), TilesSlide(8)},
    {115, QT_TR_NOOP("Bright to Dark Dissolve"), LightDissolve(true)},
    {116, QT_TR_NOOP("Spin Away"), SpinAway()},
    {117, QT_TR_NOOP("Spin In"), SpinIn()},
    {118, QT_TR_NOOP("Water Ring"), WaterRing(6)},
    {119, QT_TR_NOOP("Swing From the Corner"), SwingFromCorner()},
    {120, QT_TR_NOOP("Swirl Zoom"), SwirlZoom(3)},
    {121, QT_TR_NOOP("Twirl"), Twirl(4)},
    {122, QT_TR_NOOP("Wave Across"), WaveAcross(3)},
    {123, QT_TR_NOOP("Rain on the Pond"), RainRings(7)},
    {124, QT_TR_NOOP("Page Turn Corner"), PageTurn({-4, -3})},
    {125, QT_TR_NOOP("Lens Passing"), LensPass()},
    {126, QT_TR_NOOP("Curtain"), Curtain(6)},
    {127, QT_TR_NOOP("Wall of Light"), ShiningWipe(Straight, {.SoftBits = 12})},
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
    return tr(Row ? Row->Name : QT_TR_NOOP("Plain Change"));
}

QString EffectEngine(int Number) {
    const effects::EffectRow* Row = effects::FindRow(Number);
    return Row ? QString::fromLatin1(Row->Recipe.EngineName) : QString();
}

}  // namespace neb
