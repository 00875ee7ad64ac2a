#include "effects/reveals/SoftField.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "effects/Pictures.h"

using namespace neb::effects;
using namespace neb::effectstest;

namespace {

std::vector<std::int16_t> MomentsOf(const SoftField& Field, QSize Size) {
    std::vector<std::int16_t> Out;
    std::vector<std::int16_t> Row(static_cast<std::size_t>(Size.width()));
    for (int Y = 0; Y < Size.height(); ++Y) {
        Field.FillRow(Y, Row.data());
        Out.insert(Out.end(), Row.begin(), Row.end());
    }
    return Out;
}

Picture PictureOf(const QImage& P) {
    return {reinterpret_cast<const QRgb*>(P.constBits()), P.bytesPerLine() / qsizetype{4},
            P.width(), P.height()};
}

}  // namespace

TEST(SoftField, EvenedOutCloudsTurnHalfOfThePictureInHalfTheTime) {
    const QSize Size(403, 299);
    SoftField Field = MakeClouds(Size, 5);
    Field.EvenOut();
    auto Moments = MomentsOf(Field, Size);
    std::sort(Moments.begin(), Moments.end());
    for (const std::size_t Quarter : {1u, 2u, 3u})
        EXPECT_NEAR(Moments[Moments.size() * Quarter / 4], SoftField::Levels * int(Quarter) / 4,
                    500);
    EXPECT_GE(Moments.front(), 0);
    EXPECT_LT(Moments.back(), SoftField::Levels);
}

TEST(SoftField, BrightPlacesComeLastAndBackwardsFirst) {
    QImage Image = Plain({64, 32}, 0xFF000000u);
    for (int Y = 0; Y < 32; ++Y)
        for (int X = 32; X < 64; ++X) Image.setPixel(X, Y, 0xFFFFFFFFu);
    for (const bool Backwards : {false, true}) {
        SoftField Field = MakeBrightness(PictureOf(Image));
        Field.Blur(8, 2);
        Field.EvenOut(Backwards);
        std::int16_t Row[64];
        Field.FillRow(16, Row);
        EXPECT_EQ(Row[2] > Row[61], Backwards);
    }
}

TEST(SoftField, BlurringAcrossDoesNotMixTheRows) {
    const QSize Size(40, 24);
    const auto Slope = [](int, int Count, int* Row) {
        for (int I = 0; I < Count; ++I) Row[I] = I < Count / 2 ? 100 : 9000;
    };
    SoftField Sharp(Size, Slope), Soft(Size, Slope);
    Soft.Blur(8, 1);
    Sharp.EvenOut();
    Soft.EvenOut();
    const auto A = MomentsOf(Sharp, Size), B = MomentsOf(Soft, Size);
    EXPECT_NE(A, B);
    // Every row is like the first, for the field changes from left to right alone.
    for (int Y = 1; Y < Size.height(); ++Y)
        EXPECT_TRUE(std::equal(B.begin(), B.begin() + 40, B.begin() + 40 * Y));
}
