#include "effects/XShowBands.h"

#include "controls/picture/XShowRig.h"
#include "effects/EffectCatalogue.h"

using namespace neb;
using namespace neb::test;

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

TEST(XShowBands, AnEmptyFrameIsMadeToFit) {
    const QImage Old = Slope({801, 601}, 1), New = Slope({801, 601}, 5);
    QImage Out;
    DrawInBands(Transition(2, Old, New), 1, Out);
    EXPECT_EQ(Out, New);
}
