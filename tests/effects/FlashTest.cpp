// No transition flashes more than three times in any second, whatever step and delay are set.
#include <gtest/gtest.h>

#include <cmath>

#include "effects/EachNumber.h"
#include "effects/EffectCatalogue.h"
#include "effects/FlashCount.h"
#include "effects/Pictures.h"
#include "effects/Transition.h"

using namespace neb;
using namespace neb::effectstest;

namespace {

const QSize kSize(144, 81);
constexpr int kDelays[] = {0, 1, 5, 10, 25, 50, 100, 166, 250, 333, 500, 750, 1000};

// A wave of so many full periods over the whole way.
Curve Wave(double Periods, double Low, double High) {
    Curve C;
    for (int I = 0; I <= 100; ++I)
        C.push_back(Low + (High - Low) * (0.5 - 0.5 * std::cos(I * Periods * 2 * M_PI / 100)));
    return C;
}

// The two pictures beside the program, as real as any.
QImage ProgramPicture(int Which) {
    const QImage P(QStringLiteral(NEB_BINARY_DIR "/bin/SpeedTest%1.bmp").arg(Which));
    if (P.isNull()) return P;
    return P.scaled(kSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

std::array<Curve, kFields> CurvesOf(int Number, const QImage& Old, const QImage& New) {
    const Transition T(Number, Old, New);
    std::array<Curve, kFields> Out;
    QImage Frame;
    for (int Percent = 0; Percent <= 100; ++Percent) {
        T.Draw(Percent / 100.0, Frame);
        const Luminances L = LuminancesOf(Frame);
        for (std::size_t I = 0; I < kFields; ++I) Out[I].push_back(L[I]);
    }
    return Out;
}

// The most flashes at any setting; the worst setting comes out, too.
int MostAtAnySetting(const Curve& C, Setting& Worst) {
    int Most = 0;
    for (int Step = 1; Step <= 100; ++Step)
        for (const int Delay : kDelays) {
            const int Now = MostFlashesInASecond(C, {Step, Delay});
            if (Now > Most) Worst = {Step, Delay};
            Most = std::max(Most, Now);
        }
    return Most;
}

}  // namespace

TEST(FlashCount, CountsTheFlashesOfAStrobe) {
    EXPECT_EQ(MostFlashesInASecond(Wave(5, 0, 1), {1, 100}), 5);
    EXPECT_EQ(MostFlashesInASecond(Wave(5, 0, 1), {1, 0}), 5);
    EXPECT_EQ(MostFlashesInASecond(Wave(5, 0.5, 0.65), {1, 100}), 5);
    Curve Flicker;
    for (int I = 0; I <= 100; ++I) Flicker.push_back(I & 1);
    EXPECT_EQ(MostFlashesInASecond(Flicker, {1, 100}), 50);
    EXPECT_EQ(MostFlashesInASecond(Flicker, {2, 100}), 0);
    EXPECT_EQ(MostFlashesInASecond(Flicker, {3, 100}), 17);
}

TEST(FlashCount, ASlowerScreenSpreadsThemOverMoreSeconds) {
    const Curve C = Wave(10, 0, 1);
    EXPECT_EQ(MostFlashesInASecond(C, {1, 100}), 10);
    EXPECT_EQ(MostFlashesInASecond(C, {1, 500}), 2);
    EXPECT_EQ(MostFlashesInASecond(C, {1, 1000}), 1);
}

TEST(FlashCount, OneWayAndSmallOrBrightChangesAreNone) {
    EXPECT_EQ(MostFlashesInASecond(Wave(0.5, 0, 1), {1, 0}), 0);
    EXPECT_EQ(MostFlashesInASecond(Wave(1, 0, 1), {1, 0}), 1);
    EXPECT_EQ(MostFlashesInASecond(Wave(9, 0.4, 0.49), {1, 0}), 0);
    EXPECT_EQ(MostFlashesInASecond(Wave(9, 0.82, 1), {1, 0}), 0);
    EXPECT_EQ(MostFlashesInASecond(Wave(9, 0.78, 1), {1, 0}), 9);
}

TEST(FlashCount, SmallWaveringOnTheWayIsNoTurn) {
    Curve C;
    for (int I = 0; I <= 100; ++I) C.push_back(I / 100.0 + (I & 1 ? 0.04 : 0));
    EXPECT_EQ(MostFlashesInASecond(C, {1, 0}), 0);
}

TEST(FlashCount, MeasuresTheWholeFrameAndItsNineFields) {
    QImage Half = Plain({90, 90}, 0xFF000000u);
    for (int Y = 0; Y < 30; ++Y)
        for (int X = 60; X < 90; ++X) Half.setPixel(X, Y, 0xFFFFFFFFu);
    const Luminances L = LuminancesOf(Half);
    EXPECT_NEAR(L[0], 1.0 / 9, 1e-9);
    EXPECT_NEAR(L[3], 1, 1e-9);
    EXPECT_EQ(L[1] + L[2] + L[4] + L[9], 0);
    EXPECT_NEAR(LuminancesOf(Plain({3, 3}, 0xFF808080u))[0], 0.2159, 1e-4);
}

TEST_P(EachNumber, FlashesAtMostThreeTimesInAnySecondAtAnySetting) {
    const QImage Night = Plain(kSize, 0xFF000000u), Day = Plain(kSize, 0xFFFFFFFFu);
    const QImage First = ProgramPicture(1), Second = ProgramPicture(2);
    ASSERT_FALSE(First.isNull() || Second.isNull());
    const std::pair<QImage, QImage> Pairs[] = {
        {Night, Day}, {Day, Night}, {First, Second}, {Second, First}};
    for (std::size_t P = 0; P < std::size(Pairs); ++P) {
        const auto Curves = CurvesOf(GetParam(), Pairs[P].first, Pairs[P].second);
        for (std::size_t I = 0; I < kFields; ++I) {
            Setting Worst{0, 0};
            EXPECT_LE(MostAtAnySetting(Curves[I], Worst), 3)
                << "pictures " << P << ", field " << I << ", step " << Worst.Step << ", delay "
                << Worst.Delay;
        }
    }
}
