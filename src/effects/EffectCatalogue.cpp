#include "effects/EffectCatalogue.h"

#include <array>
#include <vector>

#include "effects/DissolveEngine.h"
#include "effects/FadeEngine.h"
#include "effects/FlyingTilesEngine.h"
#include "effects/GlowEngine.h"
#include "effects/LensEngine.h"
#include "effects/MosaicEngine.h"
#include "effects/PageEngine.h"
#include "effects/PerspectiveEngine.h"
#include "effects/RippleEngine.h"
#include "effects/SlideEngine.h"
#include "effects/SpinEngine.h"
#include "effects/TilesEngine.h"
#include "effects/WaveEngine.h"
#include "effects/WipeEngine.h"
#include "effects/ZoomEngine.h"

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
    {6, u"Zoom In"_s, Zoom({.OldTo = {-75, -75, 250, 250}, .OldOnTop = true, .Fades = true})},
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
    {20, u"Page Turn Left"_s, PageTurn(-1, 0)},
    {21, u"Wipe Left"_s, Wipe(Straight, kMirror)},
    {22, u"Wipe Down"_s, Wipe(Straight, kDown)},
    {23, u"Wipe Up"_s, Wipe(Straight, kUp)},
    {24, u"Push Right"_s, Push(Heading::Right)},
    {25, u"Iris Circle In"_s, Wipe(Circle, kIn)},
    {26, u"Dot Dissolve"_s, DotDissolve(12)},
    {28, u"Swing Doors"_s, SwingDoors({})},
    {30, u"Iris Diamond In"_s, Wipe(Diamond, kIn)},
    {32, u"Blinds Vertical"_s, Wipe(Blinds, {.Count = 12, .SoftBits = 12})},
    {34, u"Grow From the Middle"_s, Zoom({.NewFrom = {50, 50, 0, 0}})},
    {36, u"Push Up"_s, Push(Heading::Up)},
    {38, u"Push Down"_s, Push(Heading::Down)},
    {40, u"Fan Wipe"_s, Wipe(Fan)},
    {42, u"Card Flip"_s, CardFlip({})},
    {44, u"Block Dissolve"_s, BlockDissolve(32, 11)},
    {46, u"Iris Star"_s, Wipe(Star, {.Count = 5})},
    {48, u"Cover Down"_s, Cover(Heading::Down)},
    {50, u"Stretch Right"_s, Zoom({.OldTo = {100, 0, 0, 100}, .NewFrom = {0, 0, 0, 100}})},
    {52, u"Random Bars Vertical"_s, Wipe(RandomBars, {.Count = 96, .SoftBits = 11})},
    {54, u"Tiles Turn"_s, TurningTiles(9, Diagonal)},
    {56, u"Dark to Bright Dissolve"_s, LightDissolve(false)},
    {58, u"Iris Box Out"_s, Wipe(Box)},
    {60, u"Iris Box In"_s, Wipe(Box, kIn)},
    {62, u"Wave Wipe Right"_s, Wipe(Waves, {.Count = 4})},
    {64, u"Doors Close"_s, DoorsClose(true)},
    {66, u"Burn Away"_s, Burn(6)},
    {68, u"Fade Through White"_s, FadeThrough(0xFFFFFFFFu)},
    {70, u"Split Horizontal Out"_s, Wipe(Centre, kDown)},
    {72, u"Comb Horizontal"_s, Wipe(Comb, {.Count = 12, .SoftBits = 9})},
    {74, u"Zoom Out"_s, Zoom({.NewFrom = {-75, -75, 250, 250}, .Fades = true})},
    {76, u"Sweep Corner"_s, Wipe(Sweep)},
    {78, u"Iris Cross"_s, Wipe(Cross)},
    {80, u"Shrink to the Corner"_s, Zoom({.OldTo = {100, 0, 0, 0}, .OldOnTop = true})},
    {82, u"Swirl Wipe"_s, Wipe(Swirl, {.Count = 3})},
    {85, u"Uncover Left"_s, Uncover(Heading::Left)},
    {88, u"Blinds in Turn"_s, Wipe(BlindsInTurn, {.Count = 16, .SoftBits = 11})},
    {91, u"Snake"_s, Wipe(Snake, {.Count = 7, .SoftBits = 9})},
    {94, u"Saw Tooth Wipe"_s, Wipe(Teeth, {.Count = 9})},
    {97, u"Random Bars Horizontal"_s,
     Wipe(RandomBars, {.Count = 64, .SoftBits = 11, .Turned = true})},
    {100, u"Iris of Light"_s, ShiningWipe(Circle, {.SoftBits = 12})},
    {103, u"Cube Turn Right"_s, CubeTurn({.Mirrored = true})},
    {106, u"Cube Turn Up"_s, CubeTurn({.Upright = false})},
    {108, u"Tiles Fly Apart"_s, TilesFlyApart(12)},
    {109, u"Page Turn Right"_s, PageTurn(1, 0)},
    {110, u"Tiles Fall"_s, TilesFall(12)},
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
    {123, u"Rain on the Pond"_s, RainRings(9)},
    {124, u"Page Turn Corner"_s, PageTurn(-4, -3)},
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
