#include "effects/drawing/LightMix.h"

#include <gtest/gtest.h>

#include <cmath>

#include "effects/Pictures.h"
#include "effects/drawing/LightMixWide.h"

using namespace neb::effects;
using namespace neb::effectstest;

namespace {

constexpr int kSoft = 13, kCount = 1003;

std::vector<QRgb> RowOf(std::uint32_t Seed) {
    const QImage P = Scene({kCount, 1}, Seed);
    const auto* Bits = reinterpret_cast<const QRgb*>(P.constBits());
    return {Bits, Bits + kCount};
}

std::vector<std::int16_t> MomentsOf(int Count) {
    std::vector<std::int16_t> Out;
    for (int X = 0; X < Count; ++X) Out.push_back(static_cast<std::int16_t>(X * 61 % 16384));
    return Out;
}

std::vector<QRgb> Mixed(const std::vector<QRgb>& Old, const std::vector<QRgb>& New, int Edge,
                        int Y) {
    const auto Count = static_cast<int>(Old.size());
    std::vector<QRgb> Out(Old.size());
    MixLightByMoments(Out.data(), Old.data(), New.data(), MomentsOf(Count).data(), Edge, kSoft, Y,
                      Count);
    return Out;
}

QRgb MixedAlone(QRgb Old, QRgb New, int Edge) {
    return Mixed({Old}, {New}, Edge, 3)[0];
}

#ifdef NEB_EIGHT_AT_A_TIME
using WideMixer = int (*)(const LightRow&, const LightFront&, const LightGrains&);

std::vector<WideMixer> MixersOfThisMachine() {
    std::vector<WideMixer> Out;
    if (HasWideVectors()) Out.push_back(MixLightByEight);
    if (HasWidestVectors()) Out.push_back(MixLightBySixteen);
    return Out;
}
#endif

}  // namespace

#ifdef NEB_EIGHT_AT_A_TIME
// Every pair of values, in the three parts of a pixel.
TEST(LightMix, MixesAllValuesWithEveryWidthOfVectorsAsOneByOne) {
    std::vector<QRgb> Old, New;
    for (int A = 0; A < 256; ++A)
        for (int B = 0; B < 256; ++B) {
            Old.push_back(qRgb(A, B, 255 - A));
            New.push_back(qRgb(B, A, (A + B) / 2));
        }
    const auto Moments = MomentsOf(256 * 256);
    for (int Y = 0; Y < 8; ++Y) {
        const int Edge = 2000 + Y * 2500;
        std::vector<QRgb> Single(Old.size()), Wide(Old.size());
        LightRow Row{Single.data(), Old.data(), New.data(), Moments.data(), 256 * 256};
        MixLightOneByOne(Row, {Edge, kSoft}, LightGrainsOf(Y));
        Row.Out = Wide.data();
        for (const WideMixer Mix : MixersOfThisMachine()) {
            std::fill(Wide.begin(), Wide.end(), 0u);
            ASSERT_EQ(Mix(Row, {Edge, kSoft}, LightGrainsOf(Y)), 256 * 256);
            ASSERT_EQ(Single, Wide) << Y;
        }
    }
}
#endif

TEST(LightMix, MixesEightPixelsAsItMixesFew) {
    const auto Old = RowOf(1), New = RowOf(2);
    const auto Moments = MomentsOf(kCount);
    for (int Y = 0; Y < 9; ++Y) {
        const int Edge = Y * 2900;
        const auto Whole = Mixed(Old, New, Edge, Y);
        for (std::size_t X = 0; X + 7 < kCount; X += 8) {
            QRgb Few[7];
            MixLightByMoments(Few, &Old[X], &New[X], &Moments[X], Edge, kSoft, Y, 7);
            for (std::size_t I = 0; I < 7; ++I) ASSERT_EQ(Whole[X + I], Few[I]) << X + I;
        }
    }
}

TEST(LightMix, LeavesEqualPixelsAsTheyAreAtEveryWeight) {
    std::vector<QRgb> Greys;
    for (int V = 0; V < 256; ++V) Greys.push_back(qRgb(V, 255 - V, V));
    for (int Edge = 0; Edge < 24576; Edge += 97)
        for (int Y = 0; Y < 8; ++Y) ASSERT_EQ(Mixed(Greys, Greys, Edge, Y), Greys) << Edge;
}

TEST(LightMix, EndsAtBothPicturesToTheBit) {
    for (int V = 0; V < 256; ++V) {
        const QRgb Old = qRgb(V, 0, 255), New = qRgb(255 - V, 1, V);
        EXPECT_EQ(MixedAlone(Old, New, 0), Old);
        EXPECT_EQ(MixedAlone(Old, New, 1 << kSoft), New);
    }
}

TEST(LightMix, NeverTakesBackWhatItHasShown) {
    int Before = 0;
    for (int Edge = 0; Edge <= 1 << kSoft; ++Edge) {
        const int Now = qRed(MixedAlone(0xFF000000u, 0xFFFFFFFFu, Edge));
        ASSERT_GE(Now, Before) << Edge;
        Before = Now;
    }
    EXPECT_EQ(Before, 255);
}

TEST(LightMix, HalfTheLightOfWhiteIsBrighterThanHalfItsValue) {
    const int Half = qGreen(MixedAlone(0xFF000000u, 0xFFFFFFFFu, 1 << (kSoft - 1)));
    EXPECT_NEAR(Half, 255 * std::sqrt(0.5), 1.5);
}
