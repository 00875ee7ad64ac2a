#include "effects/reveals/WipeShapes.h"

#include <gtest/gtest.h>

#include "effects/drawing/Fixed.h"
#include "effects/reveals/WipeEngine.h"
#include "effects/reveals/WipeTurns.h"

using namespace neb::effects;

namespace {

struct Named {
    const char* Name;
    WipeShape Shape;
    int Count;
    int Step;  // the most by which pixels side by side may differ; 0: it has hard edges
};

// The edges of all but those with upright and level seams fade from pixel to pixel.
const Named kShapes[] = {
    {"Straight", Straight, 1, 60},
    {"Diagonal", Diagonal, 1, 60},
    {"Centre", Centre, 1, 60},
    {"Diamond", Diamond, 1, 60},
    {"Box", Box, 1, 90},
    {"Cross", Cross, 1, 90},
    {"Blinds", Blinds, 12, 0},
    {"BlindsInTurn", BlindsInTurn, 16, 0},
    {"Aslant", BlindsAslant, 16, 1400},
    {"RandomBars", RandomBars, 96, 0},
    {"Waves", Waves, 3, 60},
    {"Teeth", Teeth, 9, 120},
    {"Circle", Circle, 1, 50},
    {"Star", Star, 5, 120},
    {"Heart", Heart, 1, 400},
    {"Rings", Rings, 8, 1400},
    {"Clock", Clock, 2, 0},
    {"Fan", Fan, 1, 0},
    {"Sweep", Sweep, 1, 0},
    {"Swirl", Swirl, 3, 0},
    {"Checker", Checker, 12, 0},
    {"Comb", Comb, 12, 0},
    {"Snake", Snake, 7, 0},
    {"Spiral", Spiral, 10, 0},
    {"Weave", Weave, 12, 0},
    {"Halftone", Halftone, 30, 700},
    {"Honey", Honey, 18, 500},
    {"Brush", Brush, 6, 0},
    {"RainDrops", RainDrops, 40, 500},
};

const QSize kSizes[] = {{1, 1}, {1, 50}, {50, 1}, {2, 3}, {37, 91}, {321, 200}, {640, 400}};

std::vector<int> MomentsOf(const RevealMap& Map, QSize Size) {
    std::vector<int> Out;
    for (int Y = 0; Y < Size.height(); ++Y)
        Out.insert(Out.end(), Map.Row(Y), Map.Row(Y) + Size.width());
    return Out;
}

std::size_t At(QSize Size, int X, int Y) {
    return static_cast<std::size_t>(Y) * static_cast<std::size_t>(Size.width()) +
           static_cast<std::size_t>(X);
}

}  // namespace

TEST(WipeShapes, MomentsStayInTheirRangeAndUseIt) {
    for (const Named& N : kShapes)
        for (const QSize Size : kSizes) {
            const auto M = MomentsOf(MakeWipeMap(Size, N.Shape, {.Count = N.Count}), Size);
            const auto [Low, High] = std::minmax_element(M.begin(), M.end());
            ASSERT_GE(*Low, 0) << N.Name;
            ASSERT_LT(*High, RevealMap::Levels) << N.Name;
            if (Size.width() < 300) continue;
            EXPECT_LT(*Low, RevealMap::Levels / 10) << N.Name << " begins late";
            EXPECT_GT(*High, RevealMap::Levels * 9 / 10) << N.Name << " ends early";
        }
}

TEST(WipeShapes, NoHardEdgeStaysWhereNoneIsMeant) {
    const QSize Size(640, 400);
    for (const Named& N : kShapes) {
        if (N.Step == 0) continue;
        const auto M = MomentsOf(MakeWipeMap(Size, N.Shape, {.Count = N.Count}), Size);
        int Most = 0;
        for (int Y = 1; Y < Size.height(); ++Y)
            for (int X = 1; X < Size.width(); ++X) {
                const int Here = M[At(Size, X, Y)];
                Most = std::max({Most, std::abs(Here - M[At(Size, X - 1, Y)]),
                                 std::abs(Here - M[At(Size, X, Y - 1)])});
            }
        EXPECT_LE(Most, N.Step) << N.Name;
    }
}

TEST(WipeShapes, AreMirroredTurnedAndReversedToTheMoment) {
    for (const Named& N : kShapes)
        for (const QSize Size : kSizes) {
            const int W = Size.width(), H = Size.height();
            const auto Plain = MomentsOf(MakeWipeMap(Size, N.Shape, {.Count = N.Count}), Size);
            const WipeForm Form{.Count = N.Count, .FlipX = true, .FlipY = true, .Backwards = true};
            const auto Turned =
                MomentsOf(MakeWipeMap(Size.transposed(), N.Shape,
                                      {.Count = N.Count, .FlipX = true, .Turned = true}),
                          Size.transposed());
            const auto Other = MomentsOf(MakeWipeMap(Size, N.Shape, Form), Size);
            for (int Y = 0; Y < H; ++Y)
                for (int X = 0; X < W; ++X) {
                    const int M = Plain[At(Size, X, Y)];
                    ASSERT_EQ(Other[At(Size, W - 1 - X, H - 1 - Y)], RevealMap::Levels - 1 - M)
                        << N.Name;
                    ASSERT_EQ(Turned[At(Size.transposed(), H - 1 - Y, X)], M) << N.Name;
                }
        }
}

TEST(WipeShapes, ASinglePlaceIsAsInItsRow) {
    for (const Named& N : kShapes) {
        const QSize Size(23, 17);
        const auto M = MomentsOf(MakeWipeMap(Size, N.Shape, {.Count = N.Count}), Size);
        for (const auto& [X, Y] : {std::pair(0, 0), {22, 16}, {7, 11}})
            EXPECT_EQ(N.Shape({X, Y, 23, 17, N.Count}), M[At(Size, X, Y)]) << N.Name;
    }
    EXPECT_FALSE(WipeShape(nullptr));
    EXPECT_TRUE(bool(Straight));
}

TEST(WipeShapes, RoundShapesAreAlikeOnBothSides) {
    for (const QSize Size : {QSize(640, 400), QSize(641, 401)})
        for (const WipeShape& Shape : {Circle, Fan, Rings, Diamond, Box, Cross}) {
            const auto M = MomentsOf(MakeWipeMap(Size, Shape, {.Count = 8}), Size);
            for (int Y = 0; Y < Size.height(); ++Y)
                for (int X = 0; X < Size.width() / 2; ++X)
                    ASSERT_EQ(M[At(Size, X, Y)], M[At(Size, Size.width() - 1 - X, Y)]);
        }
}

TEST(WipeTurns, AgreeWithTheAngleOfEachPixel) {
    constexpr int Width = 203, Height = 90;
    const Middle About{Width, Height};
    for (const bool BothSides : {false, true})
        for (int Y = 0; Y < Height; ++Y) {
            std::uint16_t Turns[Width];
            FindTurns(0, Width, Y, About, BothSides, Turns);
            for (int X = 0; X < Width; ++X) {
                const int Right = 2 * X + 1 - Width;
                const int Wanted = AngleOf(Height - 2 * Y - 1, BothSides ? std::abs(Right) : Right);
                ASSERT_LE(std::abs(Turns[X] - Wanted), 3) << X << " " << Y;
            }
            std::uint16_t Part[50];
            FindTurns(60, 50, Y, About, BothSides, Part);
            EXPECT_TRUE(std::equal(Part, Part + 50, Turns + 60));
        }
}

TEST(WipeTurns, RootsAreRoundedDownAndBounded) {
    std::vector<int> Squares;
    for (int I = 0; I < 4099; ++I) Squares.push_back(I * 37);
    Squares.push_back(INT_MAX);
    std::vector<std::int16_t> Out(Squares.size());
    FindRoots(static_cast<int>(Squares.size()), Squares.data(), 1.0f, Out.data());
    for (std::size_t I = 0; I < Squares.size(); ++I)
        ASSERT_EQ(Out[I], std::min(Root(Squares[I]), RevealMap::Levels - 1)) << I;
}
