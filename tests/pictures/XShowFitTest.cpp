#include "pictures/XShowFit.h"

#include <gtest/gtest.h>

using namespace neb;

namespace {

constexpr QRgb kBlack = 0xFF000000u, kRed = 0xFFC02020u;

QImage Red(QSize Size) {
    QImage P(Size, QImage::Format_RGB32);
    P.fill(kRed);
    return P;
}

struct Case {
    QSize Picture, View;
    bool Fitted, InProportion, Centred;
    QRect Place;
};

const Case kCases[] = {
    // At its own size: top left, or centred; what does not fit is cut off on both sides alike.
    {{40, 20}, {100, 60}, false, false, false, {0, 0, 40, 20}},
    {{40, 20}, {100, 60}, false, true, true, {30, 20, 40, 20}},
    {{41, 21}, {100, 60}, false, true, true, {29, 19, 41, 21}},
    {{140, 80}, {100, 60}, false, true, false, {0, 0, 140, 80}},
    {{140, 80}, {100, 60}, false, true, true, {-20, -10, 140, 80}},
    // Filled: the proportion goes.
    {{40, 20}, {100, 60}, true, false, false, {0, 0, 100, 60}},
    {{400, 900}, {100, 60}, true, false, true, {0, 0, 100, 60}},
    // Fitted in proportion, larger and smaller, wide and high.
    {{40, 20}, {100, 60}, true, true, false, {0, 0, 100, 50}},
    {{40, 20}, {100, 60}, true, true, true, {0, 5, 100, 50}},
    {{4000, 3000}, {100, 60}, true, true, true, {10, 0, 80, 60}},
    {{30, 60}, {100, 60}, true, true, true, {35, 0, 30, 60}},
    {{50, 30}, {100, 60}, true, true, true, {0, 0, 100, 60}},
    {{1, 10000}, {100, 60}, true, true, true, {49, 0, 1, 60}},
    {{10000, 1}, {100, 60}, true, true, true, {0, 29, 100, 1}},
    // Bars of less than a hundredth are spared; a full hundredth is not.
    {{640, 480}, {652, 486}, true, true, true, {0, 0, 652, 486}},
    {{1920, 1080}, {1366, 768}, true, true, true, {0, 0, 1366, 768}},
    {{1000, 995}, {1000, 1000}, true, true, true, {0, 0, 1000, 1000}},
    {{1000, 990}, {1000, 1000}, true, true, true, {0, 5, 1000, 990}},
};

}  // namespace

TEST(XShowFit, PlacesThePictureToThePixel) {
    for (const Case& C : kCases) {
        const XShowLayout L{C.View, C.Fitted, C.InProportion, C.Centred};
        EXPECT_EQ(PlaceInView(C.Picture, L), C.Place)
            << C.Picture.width() << "x" << C.Picture.height();
    }
}

TEST(XShowFit, DrawsThePictureInItsPlaceAndBlackAroundIt) {
    for (const Case& C : kCases) {
        const QImage View =
            FitToView(Red(C.Picture), {C.View, C.Fitted, C.InProportion, C.Centred});
        ASSERT_EQ(View.size(), C.View);
        ASSERT_EQ(View.format(), QImage::Format_RGB32);
        for (int Y = 0; Y < View.height(); ++Y)
            for (int X = 0; X < View.width(); ++X)
                ASSERT_EQ(View.pixel(X, Y), C.Place.contains(X, Y) ? kRed : kBlack)
                    << X << "," << Y;
    }
}

TEST(XShowFit, ShowsWhatIsTransparentOnWhite) {
    QImage Glass(4, 4, QImage::Format_ARGB32);
    Glass.fill(Qt::transparent);
    Glass.setPixel(1, 1, kRed);
    const QImage Out = AsOpaque(Glass);
    EXPECT_EQ(Out.format(), QImage::Format_RGB32);
    EXPECT_EQ(Out.pixel(0, 0), 0xFFFFFFFFu);
    EXPECT_EQ(Out.pixel(1, 1), kRed);
}

TEST(XShowFit, AveragesAFineGridInsteadOfDroppingLines) {
    QImage Grid(400, 400, QImage::Format_RGB32);
    for (int Y = 0; Y < 400; ++Y)
        for (int X = 0; X < 400; ++X) Grid.setPixel(X, Y, X % 2 ? 0xFFFFFFFFu : kBlack);
    const QImage View = FitToView(Grid, {{100, 100}, true, true, true});
    for (int X = 1; X < 99; ++X) EXPECT_NEAR(qGreen(View.pixel(X, 50)), 188, 3) << X;
}

TEST(XShowFit, ANullPictureIsABlackViewAndAnEmptyViewIsNull) {
    EXPECT_EQ(FitToView({}, {{3, 2}, true, true, true}).pixel(2, 1), kBlack);
    EXPECT_TRUE(FitToView(Red({3, 3}), {{0, 5}, true, true, true}).isNull());
}
