#include "effects/whole/Sheets.h"

#include <gtest/gtest.h>

#include "effects/Pictures.h"
#include "effects/Transition.h"
#include "effects/drawing/Fixed.h"

using namespace neb;
using namespace neb::effects;
using namespace neb::effectstest;

namespace {

constexpr QRgb kDay = 0xFFFFFFFFu;

std::vector<int> ShadedRow(const Area& Sheet, int Y, int Depth) {
    std::vector<QRgb> Row(160, kDay);
    const Shadow S({160, 160});
    S.Fall(Row.data(), Y, 0, 160, Sheet, Depth);
    std::vector<int> Out;
    for (const QRgb C : Row) {
        EXPECT_EQ(C >> 24, 255u);
        Out.push_back(qGreen(C));
    }
    return Out;
}

}  // namespace

// Where they become quick they are rounded to the nearest whole pixel.
TEST(Sheets, GoTheWholeWayAndNeverVisiblyBack) {
    for (const int Length : {1, 7, 1920, 3840}) {
        EXPECT_EQ(Travelled(Length, 0), 0);
        EXPECT_EQ(Travelled(Length, One), Length << 8);
        for (int P = 1; P <= One; P += 13)
            ASSERT_GE(Travelled(Length, P) + 128, Travelled(Length, P - 1)) << Length << " " << P;
    }
}

TEST(Sheets, MoveByWholePixelsWhereTheyAreQuick) {
    for (int P = One / 8; P < One * 7 / 8; P += 501) EXPECT_EQ(Travelled(1919, P) & 255, 0);
}

TEST(Sheets, MoveByPartsOfAPixelWhereTheyAreSlow) {
    const QSize Size(320, 20);
    const Transition Cover(10, Plain(Size, 0xFF000000u), Plain(Size, kDay));
    QImage Out;
    for (const double P : {0.02, 0.03, 0.04}) {
        Cover.Draw(P, Out);
        const int Way = Travelled(320, static_cast<int>(P * One + 0.5));
        ASSERT_NE(Way & 255, 0);
        EXPECT_NEAR(qGreen(Out.pixel(319 - (Way >> 8), 10)), Way & 255, 1) << P;
        EXPECT_EQ(qGreen(Out.pixel(318 - (Way >> 8), 10)), 0);
    }
}

TEST(Sheets, LeaveNoSeamWhereTheyPushEachOther) {
    const QSize Size(320, 64);
    const QImage Grey = Plain(Size, 0xFF8090A0u);
    for (const int Number : {3, 24, 36, 38, 77}) {
        const Transition Push(Number, Grey, Grey);
        QImage Out;
        for (int I = 1; I < 200; ++I) {
            Push.Draw(I / 200.0, Out);
            ASSERT_EQ(Out, Grey) << Number << " " << I;
        }
    }
}

TEST(Shadow, IsDarkestAtTheEdgeAndAlikeOnBothSides) {
    const auto Row = ShadedRow({60, 0, 100, 160}, 80, 128);
    EXPECT_NEAR(Row[59], 128, 2);
    EXPECT_EQ(Row[49], 255);
    for (std::size_t I = 50; I < 60; ++I) {
        EXPECT_LE(Row[I], Row[I - 1]);
        EXPECT_EQ(Row[I], Row[159 - I]);
    }
    for (std::size_t I = 60; I < 100; ++I) EXPECT_EQ(Row[I], 255);
}

TEST(Shadow, FallsAboveAndBelowTheSheetAndRoundItsCorners) {
    const Area Sheet{60, 60, 100, 100};
    for (const int Off : {1, 4, 9}) {
        const auto Above = ShadedRow(Sheet, 60 - Off, 128), Below = ShadedRow(Sheet, 99 + Off, 128);
        EXPECT_EQ(Above, Below);
        EXPECT_LT(Above[80], 255);
        EXPECT_GT(Above[55], Above[60]);
    }
    EXPECT_EQ(ShadedRow(Sheet, 48, 128)[80], 255);
    EXPECT_EQ(ShadedRow(Sheet, 59, 0)[80], 255);
}

TEST(Shadow, OfWhatLeavesIsGoneAtTheEnd) {
    EXPECT_EQ(ShadowDepth(0), 0);
    for (int P = 1; P <= One; P += 97) ASSERT_GE(ShadowDepth(P), ShadowDepth(P - 1));
    EXPECT_GT(ShadowDepth(One / 2), 100);
}
