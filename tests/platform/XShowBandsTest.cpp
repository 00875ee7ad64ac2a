#include "platform/XShowBands.h"

#include <gtest/gtest.h>

#include "effects/EffectCatalogue.h"

using namespace neb;

namespace {

QImage Slope(QSize Size, int Turn) {
    QImage P(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X)
            P.setPixel(X, Y, qRgb((X * Turn) & 255, (Y * 3) & 255, ((X ^ Y) + Turn) & 255));
    return P;
}

}  // namespace

TEST(XShowBands, SeveralThreadsDrawTheSameBitsAsOne) {
    const QSize Size(801, 601);
    const QImage Old = Slope(Size, 1), New = Slope(Size, 5);
    for (int N = 1; N <= EffectCount(); ++N) {
        if (!EffectIsKnown(N)) continue;
        const Transition T(N, Old, New);
        QImage One, Many(Size, QImage::Format_RGB32);
        T.Draw(0.37, One);
        DrawInBands(T, 0.37, Many);
        EXPECT_EQ(One, Many) << N;
    }
}

TEST(XShowBands, APictureThatSharesItsPixelsIsNotDrawnInto) {
    const QSize Size(801, 601);
    const QImage Old = Slope(Size, 1), New = Slope(Size, 5);
    QImage Out = Old;
    DrawInBands(Transition(2, Old, New), 1, Out);
    EXPECT_EQ(Out, New);
    EXPECT_EQ(Old, Slope(Size, 1));
}
