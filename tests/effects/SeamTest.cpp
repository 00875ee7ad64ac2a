// Panels that stand as good as still show no gap where they meet.
#include <gtest/gtest.h>

#include "effects/Pictures.h"
#include "effects/Transition.h"

using namespace neb;
using namespace neb::effectstest;

namespace {

const QSize kSize(640, 36);
const QImage kOld = Plain(kSize, 0xFF404040u), kNew = Plain(kSize, 0xFFE0E0E0u);

double FarFrom(const QImage& Rest, int Number, double Progress) {
    QImage Out;
    Transition(Number, kOld, kNew).Draw(Progress, Out);
    return Difference(Out, Rest);
}

}  // namespace

TEST(Seams, DoorsThatHaveNotMovedYetAreShut) {
    EXPECT_LT(FarFrom(kOld, 28, 0.002), 0.02);
}

TEST(Seams, BillboardsThatHaveTurnedAreWhole) {
    EXPECT_LT(FarFrom(kNew, 63, 0.998), 0.02);
}
