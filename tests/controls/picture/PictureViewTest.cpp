// The picture zoomed to its room: where it stands, what is painted, what counts as a click.
#include "controls/picture/PictureView.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace neb {
namespace {

QImage Picture(int Width, int Height, QColor Colour = Qt::red) {
    QImage Made(Width, Height, QImage::Format_RGB32);
    Made.fill(Colour);
    return Made;
}

class PictureViewTest : public ::testing::Test {
  protected:
    PictureViewTest() {
        View.resize(400, 200);
        View.show();
    }
    PictureView View;
};

TEST_F(PictureViewTest, KeepsTheShapeOfThePictureInTheMiddle) {
    const struct {
        QSize Picture;
        QRect Place;
    } Rows[] = {{{100, 100}, {100, 0, 200, 200}},
                {{800, 200}, {0, 50, 400, 100}},
                {{40, 20}, {0, 0, 400, 200}},
                {{4000, 1}, {0, 99, 400, 1}},
                {{1, 4000}, {199, 0, 1, 200}}};
    for (const auto& Row : Rows) {
        View.SetPicture(Picture(Row.Picture.width(), Row.Picture.height()));
        EXPECT_EQ(Row.Place.size(), View.PictureRect().size()) << Row.Picture.width();
        EXPECT_LE((Row.Place.center() - View.PictureRect().center()).manhattanLength(), 1);
    }
    View.SetPicture({});
    EXPECT_TRUE(View.PictureRect().isEmpty());
}

TEST_F(PictureViewTest, PaintsThePictureAndNothingOfTheOneBefore) {
    View.SetPicture(Picture(100, 100));
    EXPECT_EQ(QColor(Qt::red), View.grab().toImage().pixelColor(200, 100));
    View.SetPicture(Picture(100, 100, Qt::blue));
    const QImage Grabbed = View.grab().toImage();
    EXPECT_EQ(QColor(Qt::blue), Grabbed.pixelColor(200, 100));
    EXPECT_NE(QColor(Qt::blue), Grabbed.pixelColor(20, 100));
}

TEST_F(PictureViewTest, SaysWhatIsMissingInPlaceOfAPicture) {
    const QImage Blank = View.grab().toImage();
    View.SetEmptyText(QStringLiteral("No picture"));
    EXPECT_NE(Blank, View.grab().toImage());
}

TEST_F(PictureViewTest, ReportsAClickThatBeganAndEndedOnIt) {
    QSignalSpy Clicks(&View, &PictureView::Clicked);
    QTest::mouseClick(&View, Qt::LeftButton);
    EXPECT_EQ(1, Clicks.count());
    QTest::mouseClick(&View, Qt::RightButton);
    QTest::mousePress(&View, Qt::LeftButton, {}, {10, 10});
    QTest::mouseRelease(&View, Qt::LeftButton, {}, {500, 10});
    EXPECT_EQ(1, Clicks.count());
    QTest::mouseRelease(&View, Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(1, Clicks.count()) << "let go without a press";
}

TEST_F(PictureViewTest, ReportsADoubleClickOnceAndNoSecondClick) {
    QSignalSpy Clicks(&View, &PictureView::Clicked);
    QSignalSpy Doubles(&View, &PictureView::DoubleClicked);
    QTest::mouseClick(&View, Qt::LeftButton, {}, {10, 10});
    QTest::mouseDClick(&View, Qt::LeftButton, {}, {10, 10});
    EXPECT_EQ(1, Doubles.count());
    EXPECT_LE(Clicks.count(), 2);
    Doubles.clear();
    QTest::mouseDClick(&View, Qt::RightButton, {}, {10, 10});
    EXPECT_EQ(0, Doubles.count());
}

}  // namespace
}  // namespace neb
