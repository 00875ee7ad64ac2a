#include "effects/drawing/Pyramid.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "effects/Pictures.h"
#include "effects/drawing/Pixels.h"

using namespace neb::effects;
using neb::effectstest::Scene;

namespace {

Picture PictureOf(const QImage& P) {
    return {reinterpret_cast<const QRgb*>(P.constBits()), P.bytesPerLine() / qsizetype{4},
            P.width(), P.height()};
}

}  // namespace

TEST(Pyramid, HalvesEverySideAndRoundsUp) {
    const QImage Image = Scene({37, 5}, 1);
    const Pyramid P(PictureOf(Image), 4);
    ASSERT_EQ(P.Highest(), 4);
    const QSize Sizes[] = {{37, 5}, {19, 3}, {10, 2}, {5, 1}, {3, 1}};
    for (int L = 0; L <= 4; ++L) {
        EXPECT_EQ(P.Level(L).Width, Sizes[L].width());
        EXPECT_EQ(P.Level(L).Height, Sizes[L].height());
    }
}

TEST(Pyramid, APixelIsTheMeanOfTheFourBelowIt) {
    const QImage Image = Scene({21, 12}, 2);
    const Pyramid P(PictureOf(Image), 1);
    for (int Y = 0; Y < 6; ++Y)
        for (int X = 0; X < 10; ++X) {
            int Sum = 2;
            for (const QPoint At : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)})
                Sum += qGreen(Image.pixel(QPoint(2 * X, 2 * Y) + At));
            EXPECT_EQ(qGreen(P.Level(1).Row(Y)[X]), Sum / 4);
        }
}

TEST(Pyramid, SofteningKeepsAPlainPicturePlain) {
    const QImage Image = neb::effectstest::Plain({50, 30}, 0xFF123456u);
    Pyramid P(PictureOf(Image), 3);
    P.Soften();
    for (int L = 0; L <= 3; ++L)
        for (int X = 0; X < P.Level(L).Width; ++X) EXPECT_EQ(P.Level(L).Row(0)[X], 0xFF123456u);
}

TEST(Enlarge, ReadsBetweenTheMiddlesOfThePixels) {
    const QImage Image = Scene({11, 1}, 3);
    const QRgb* Row = PictureOf(Image).Bits;
    for (int Shift = 1; Shift <= 7; ++Shift) {
        const int Size = 1 << Shift;
        for (const int Count : {1, Size / 2 + 1, 10 * Size + 1, 11 * Size}) {
            std::vector<QRgb> Out(static_cast<std::size_t>(Count));
            Enlarge(Out.data(), Row, 11, Shift, Count);
            for (int X = 0; X < Count; ++X) {
                const int Place = std::clamp(2 * X + 1 - Size, 0, 20 * Size);  // of 2 * Size
                const int At = Place / (2 * Size), Next = std::min(10, At + 1);
                const int Weight = Place % (2 * Size) * (128 >> Shift);
                ASSERT_EQ(Out[static_cast<std::size_t>(X)], Mix(Row[At], Row[Next], Weight))
                    << X << " " << Shift;
            }
        }
    }
}
