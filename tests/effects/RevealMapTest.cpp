#include "effects/reveals/RevealMap.h"

#include <gtest/gtest.h>

#include "effects/Pictures.h"
#include "effects/drawing/Fixed.h"

using namespace neb::effects;
using namespace neb::effectstest;

namespace {

constexpr int kLast = RevealMap::Levels - 1;

Picture PictureOf(const QImage& P) {
    return {reinterpret_cast<const QRgb*>(P.constBits()), P.bytesPerLine() / qsizetype{4},
            P.width(), P.height()};
}

QImage Drawn(const RevealMap& Map, const QImage& Old, const QImage& New, int Progress) {
    QImage Out = Plain(Old.size(), 0xFF00FF00u);
    Map.Draw({PictureOf(Old), PictureOf(New), reinterpret_cast<QRgb*>(Out.bits()),
              Out.bytesPerLine() / qsizetype{4}, Out.width(), Out.height(), Progress},
             0, Out.height());
    return Out;
}

// Flat parts, ramps and grain, so that runs of all kinds and lengths come.
int Bumpy(int X, int Y) {
    const auto Grain = static_cast<int>(
        Hash(static_cast<std::uint32_t>(X), static_cast<std::uint32_t>(Y), 5) >> 20);
    if (X / 37 % 3 == 0) return X / 37 % 2 ? kLast : 0;
    if (X / 37 % 3 == 1) return Clamp(X * 97 % RevealMap::Levels, 0, kLast);
    return Clamp(Y * 300 + Grain, 0, kLast);
}

RevealMap BumpyMap(QSize Size, int SoftBits) {
    return RevealMap(Size, SoftBits, [=](int Y, std::int16_t* Row) {
        for (int X = 0; X < Size.width(); ++X) Row[X] = static_cast<std::int16_t>(Bumpy(X, Y));
    });
}

int MixedPart(int Old, int New, int Weight) {
    return (Old * (256 - Weight) + New * Weight + 128) / 256;
}

QRgb MixedByHand(QRgb Old, QRgb New, int Moment, int Edge, int SoftBits) {
    const int Weight = std::min(std::max((Edge - Moment) >> (SoftBits - 8), 0), 256);
    return qRgb(MixedPart(qRed(Old), qRed(New), Weight),
                MixedPart(qGreen(Old), qGreen(New), Weight),
                MixedPart(qBlue(Old), qBlue(New), Weight));
}

}  // namespace

TEST(RevealMap, MixesEachPixelByItsMomentWhateverTheLengthOfTheRun) {
    const QImage Old = Scene({90, 1}, 1), New = Scene({90, 1}, 2);
    const auto *O = PictureOf(Old).Bits, *N = PictureOf(New).Bits;
    for (const int SoftBits : {8, 9, 12, 13})
        for (const int Edge : {1, 300, 9000, RevealMap::Levels + (1 << SoftBits)})
            for (int Count = 0; Count < 40; ++Count) {
                std::vector<std::int16_t> Moments;
                for (int I = 0; I < Count; ++I)
                    Moments.push_back(
                        static_cast<std::int16_t>(I % 5 ? Bumpy(I * 3, I) : Edge / 2));
                std::vector<QRgb> Out(static_cast<std::size_t>(Count) + 1, 0x12345678u);
                MixByMoments(Out.data(), O + 3, N + 1, Moments.data(), Count, Edge, SoftBits);
                for (int I = 0; I < Count; ++I)
                    ASSERT_EQ(
                        Out[std::size_t(I)],
                        MixedByHand(O[I + 3], N[I + 1], Moments[std::size_t(I)], Edge, SoftBits));
                ASSERT_EQ(Out.back(), 0x12345678u) << "nothing is written behind the run";
            }
}

TEST(RevealMap, RunsCoverARowAndAreOfTheKindTheySay) {
    for (const QSize Size :
         {QSize(1, 3), QSize(16, 2), QSize(17, 2), QSize(127, 4), QSize(129, 3), QSize(700, 5)}) {
        const RevealMap Map = BumpyMap(Size, 10);
        for (int Edge = 0; Edge <= RevealMap::Levels + 1024; Edge += 61)
            for (int Y = 0; Y < Size.height(); ++Y) {
                int End = 0;
                auto Before = RevealMap::Kind::Mixed;
                Map.ForRuns(Y, Edge, [&](RevealMap::Kind What, int X0, int X1) {
                    ASSERT_EQ(X0, End);
                    ASSERT_LT(X0, X1);
                    ASSERT_TRUE(X0 == 0 || What != Before) << "neighbours are one run";
                    for (int X = X0; X < X1; ++X) {
                        const int Past = Edge - Map.Row(Y)[X];
                        ASSERT_TRUE(What != RevealMap::Kind::Old || Past <= 0);
                        ASSERT_TRUE(What != RevealMap::Kind::New || Past >= 1024);
                    }
                    End = X1;
                    Before = What;
                });
                ASSERT_EQ(End, Size.width());
            }
    }
}

TEST(RevealMap, DrawsWhatEachPixelAloneWouldBe) {
    const QSize Size(331, 12);
    const QImage Old = Scene(Size, 1), New = Scene(Size, 2);
    for (const int SoftBits : {8, 10, 13}) {
        const RevealMap Map = BumpyMap(Size, SoftBits);
        for (const int Progress : {1, One / 3, One / 2, One - 1}) {
            const QImage Out = Drawn(Map, Old, New, Progress);
            const int Edge = Map.EdgeAt(Progress);
            for (int Y = 0; Y < Size.height(); ++Y)
                for (int X = 0; X < Size.width(); ++X)
                    ASSERT_EQ(Out.pixel(X, Y), MixedByHand(Old.pixel(X, Y), New.pixel(X, Y),
                                                           Bumpy(X, Y), Edge, SoftBits))
                        << X << " " << Y;
        }
    }
}

TEST(RevealMap, TheEdgeGoesOneWayFromBeforeTheFirstToPastTheLast) {
    for (const int SoftBits : {8, 13}) {
        const RevealMap Map = BumpyMap({4, 4}, SoftBits);
        EXPECT_EQ(Map.EdgeAt(0), 0);
        for (int P = 64; P <= One; P += 64) EXPECT_GT(Map.EdgeAt(P), Map.EdgeAt(P - 64));
        EXPECT_GE(Map.EdgeAt(One) - kLast, 1 << SoftBits);
    }
}

TEST(RevealMap, ASofterEdgeIsWider) {
    const QSize Size(1000, 1);
    const QImage Old = Plain(Size, 0xFF000000u), New = Plain(Size, 0xFFFFFFFFu);
    int Before = 0;
    for (const int SoftBits : {8, 10, 12}) {
        const RevealMap Map(Size, SoftBits, [](int, std::int16_t* Row) {
            for (int X = 0; X < 1000; ++X) Row[X] = static_cast<std::int16_t>(X * 16);
        });
        const QImage Out = Drawn(Map, Old, New, One / 2);
        int Between = 0;
        for (int X = 0; X < 1000; ++X)
            if (const int G = qGreen(Out.pixel(X, 0)); G > 0 && G < 255) ++Between;
        EXPECT_NEAR(Between, (1 << SoftBits) / 16, 2);
        EXPECT_GT(Between, Before);
        Before = Between;
    }
}

TEST(RevealMap, KeepsRowsThatRepeatOrMirrorOnce) {
    const auto Kept = [](int Height, auto&& Value) {
        return RevealMap({40, Height}, 10,
                         [&](int Y, std::int16_t* Row) {
                             std::fill_n(Row, 40, static_cast<std::int16_t>(Value(Y)));
                         })
            .KeptRows();
    };
    EXPECT_EQ(Kept(30, [](int) { return 7; }), 1);
    EXPECT_EQ(Kept(30, [](int Y) { return Y / 10; }), 3);
    EXPECT_EQ(Kept(31, [](int Y) { return std::abs(15 - Y); }), 16);
    EXPECT_EQ(Kept(30, [](int Y) { return Y; }), 30);
    EXPECT_EQ(Kept(1, [](int Y) { return Y; }), 1);
}
