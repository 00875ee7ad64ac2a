#include "effects/drawing/Sampling.h"

#include <gtest/gtest.h>

#include "effects/Pictures.h"
#include "effects/drawing/HalfSizes.h"

using namespace neb::effects;
using namespace neb::effectstest;

namespace {

Picture PictureOf(const QImage& P) {
    return {reinterpret_cast<const QRgb*>(P.constBits()), P.bytesPerLine() / qsizetype{4},
            P.width(), P.height()};
}

}  // namespace

TEST(SamplePlaces, ReadsManyPlacesAsItReadsEachAlone) {
    for (const QSize Size : {QSize(1, 1), QSize(1, 9), QSize(9, 1), QSize(2, 2), QSize(37, 21)}) {
        const QImage Image = Scene(Size, 3);
        const Picture P = PictureOf(Image);
        std::vector<int> U, V;
        for (std::uint32_t I = 0; I < 1003; ++I) {
            U.push_back(static_cast<int>(Hash(I, 0, 1) % 45u << 16 | Hash(I, 1, 1) >> 16) -
                        4 * One);
            V.push_back(static_cast<int>(Hash(I, 2, 1) % 29u << 16 | Hash(I, 3, 1) >> 16) -
                        4 * One);
        }
        U[5] = V[6] = INT_MIN;
        U[7] = V[8] = INT_MAX;
        std::vector<QRgb> Out(U.size());
        SamplePlaces(Out.data(), P, U.data(), V.data(), static_cast<int>(Out.size()));
        for (std::size_t I = 0; I < Out.size(); ++I)
            ASSERT_EQ(Out[I], Sample(P, U[I], V[I])) << I << " " << Size.width();
    }
}

TEST(SamplePlaces, GivesTheVeryPixelAtWholePlaces) {
    const QImage Image = Scene({21, 13}, 4);
    const Picture P = PictureOf(Image);
    for (int Y = 0; Y < P.Height; ++Y) {
        std::vector<int> U, V(21, Y << 16);
        for (int X = 0; X < P.Width; ++X) U.push_back(X << 16);
        std::vector<QRgb> Out(U.size());
        SamplePlaces(Out.data(), P, U.data(), V.data(), P.Width);
        EXPECT_TRUE(std::equal(Out.begin(), Out.end(), P.Row(Y))) << Y;
    }
}

TEST(HalfSizes, KeepPlainColoursAndThePlaceOfAnEdge) {
    for (const auto Way : {HalfSizes::Way::Across, HalfSizes::Way::Down, HalfSizes::Way::Both}) {
        QImage Image({64, 48}, QImage::Format_RGB32);
        for (int Y = 0; Y < 48; ++Y)
            for (int X = 0; X < 64; ++X)
                Image.setPixel(X, Y, X < 32 && Y < 16 ? 0xFF204080u : 0xFFF0C010u);
        const HalfSizes Sizes(PictureOf(Image), Way);
        ASSERT_EQ(Sizes.Last(), 4);
        for (int L = 0; L <= 4; ++L)
            for (const auto& [X, Y] : {std::pair(7, 7), std::pair(40, 7), std::pair(7, 24)}) {
                const QRgb Seen =
                    Sample(Sizes.At(L), Sizes.AcrossAt(X << 16, L), Sizes.DownAt(Y << 16, L));
                EXPECT_EQ(Seen, Image.pixel(X, Y)) << L << " " << X << " " << Y;
            }
    }
}

TEST(HalfSizes, KeepTheBrightnessOfNoise) {
    const QImage Image = Scene({256, 128}, 5);
    const HalfSizes Sizes(PictureOf(Image), HalfSizes::Way::Both);
    const Picture& Small = Sizes.At(Sizes.Last());
    const QImage Last(reinterpret_cast<const uchar*>(Small.Bits), Small.Width, Small.Height,
                      QImage::Format_RGB32);
    EXPECT_NEAR(Brightness(Last), Brightness(Image), 0.6);
}

TEST(HalfSizes, ReadFromTheVersionThatSuitsTheShrinking) {
    const QImage Image = Scene({200, 100}, 6);
    const HalfSizes Sizes(PictureOf(Image), HalfSizes::Way::Both);
    EXPECT_EQ(Sizes.LevelFor(One), 0);
    EXPECT_EQ(Sizes.LevelFor(2 * One), 1);
    EXPECT_EQ(Sizes.LevelFor(5 * One), 2);
    EXPECT_EQ(Sizes.LevelFor(1000 * One), Sizes.Last());
    const int U[] = {20 << 16, 21 << 16}, V[] = {30 << 16, 30 << 16};
    QRgb Out[2];
    Sizes.Read(Out, U, V, 2, 2 * One);
    EXPECT_EQ(Out[0], Sample(Sizes.At(1), Sizes.AcrossAt(U[0], 1), Sizes.DownAt(V[0], 1)));
    Sizes.Read(Out, U, V, 2, One);
    EXPECT_EQ(Out[1], Image.pixel(21, 30));
}
