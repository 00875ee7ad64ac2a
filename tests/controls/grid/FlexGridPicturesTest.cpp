// Pictures in the cells: their true proportions, their pixels on the screen, and a source that is
// asked for what is seen.
#include <gtest/gtest.h>

#include <QScrollBar>
#include <set>

#include "GridHarness.h"
#include "controls/grid/FlexGridDrag.h"

namespace neb {
namespace {

using namespace harness;

class FlexGridPictures : public ::testing::Test {
  protected:
    FlexGridPictures() {
        SetAlbumColumns(Grid);
        FillAlbum(Grid, 40);
        ShowGrid(Grid, 500, 600);
    }

    // Where this colour is seen in the picture's cell, from the middle of it.
    QRect Seen(int Row, QRgb Colour) {
        const QRect Cell = Grid.visualRect(Grid.model()->index(Row, Thumb));
        const QImage Shot = Grid.viewport()->grab(Cell).toImage();
        QRect Found;
        for (int Y = 0; Y < Shot.height(); ++Y)
            for (int X = 0; X < Shot.width(); ++X)
                if (Shot.pixel(X, Y) == Colour) Found |= QRect(X, Y, 1, 1);
        return Found.translated(-QRect({}, Shot.size()).center());
    }
    FlexGrid Grid;
};

constexpr QRgb Green = qRgb(0, 200, 0);

TEST_F(FlexGridPictures, AStretchedPictureIsDrawnInItsTrueProportionsInTheMiddle) {
    const struct {
        QSize Shape, Drawn;
    } Cases[] = {{{1024, 256}, {72, 18}}, {{256, 1024}, {18, 72}},
                 {{1024, 768}, {72, 54}}, {{4000, 4000}, {72, 72}},
                 {{3, 2}, {72, 48}},      {{50000, 1}, {72, 1}},
                 {{}, {72, 72}}};
    for (const auto& Case : Cases) {
        Grid.SetCellPicture(2, Thumb, Thumbnail(Green), Case.Shape);
        const QRect Drawn = Seen(2, Green);
        EXPECT_EQ(Drawn.size(), Case.Drawn) << Case.Shape.width();
        EXPECT_LE(std::abs(Drawn.center().x()), 1);
        EXPECT_LE(std::abs(Drawn.center().y()), 1);
    }
}

TEST_F(FlexGridPictures, TheShapeGoesWithTheRow) {
    Grid.SetCellPicture(2, Thumb, Thumbnail(Green), {1024, 256});
    FlexGrid Other;
    SetAlbumColumns(Other);
    Grid.GiveRows({2}, Other);
    EXPECT_EQ(Other.ShownPicture(0, Thumb).Shape, QSize(1024, 256));
    Grid.CopyCell(Other, 0, Thumb, 5, Thumb);
    EXPECT_EQ(Seen(5, Green).size(), QSize(72, 18));
    Grid.SetCellPicture(5, Thumb, Thumbnail(Green));
    EXPECT_EQ(Seen(5, Green).size(), QSize(72, 72));
}

TEST_F(FlexGridPictures, APictureWithoutAShapeIsDrawnPixelByPixel) {
    QImage Lines = Thumbnail(qRgb(255, 255, 255));
    for (int Y = 0; Y < 72; ++Y)
        for (int X = 0; X < 72; X += 2) Lines.setPixel(X, Y, qRgb(0, 0, 0));
    Grid.SetCellPicture(1, Thumb, Lines);
    const QRect Cell = Grid.visualRect(Grid.model()->index(1, Thumb));
    const QImage Shot = Grid.viewport()->grab(Cell).toImage().copy(
        (Cell.width() - 72) / 2, (Cell.height() - 72) / 2, 72, 72);
    EXPECT_EQ(Shot.convertToFormat(QImage::Format_RGB32), Lines);
}

TEST_F(FlexGridPictures, ADraggedRowHangsAtThePointerInItsTrueProportions) {
    Grid.SetRowDrag(QStringLiteral("rows"));
    Grid.SetCellPicture(3, Thumb, Thumbnail(Green), {1024, 256});
    Grid.SetRow(3);
    EXPECT_EQ(DragPicture(Grid).toImage().size(), QSize(72, 18));
}

// Counts which rows it is asked for.
class FlexGridSource : public FlexGridPictures {
  protected:
    FlexGridSource() {
        Grid.SetPictureSource(Thumb, [this](int Row) -> ShapedPicture {
            ++Asked;
            Rows.insert(Row);
            return {Thumbnail(Colour), Shape};
        });
        QApplication::processEvents();
    }
    int InView() const { return Grid.viewport()->height() / Grid.rowHeight(0) + 2; }
    void Repaint() {
        Grid.viewport()->update();
        QApplication::processEvents();
    }
    QRgb Colour = Green;
    QSize Shape{1024, 512};
    int Asked = 0;
    std::set<int> Rows;
};

TEST_F(FlexGridSource, GivesWhatTheColumnShows) {
    EXPECT_EQ(Seen(0, Green).size(), QSize(72, 36));
    EXPECT_EQ(Grid.ShownPicture(0, Thumb).Shape, Shape);
    EXPECT_EQ(Grid.CellPicture(0, Thumb).pixel(0, 0), qRgb(0, 90, 160)) << "the cell keeps its own";
}

TEST_F(FlexGridSource, IsAskedOnceForEachRowThatIsSeen) {
    EXPECT_GE(Asked, InView() - 3);
    EXPECT_LE(Asked, InView());
    const int Before = Asked;
    Repaint();
    Grid.SelectRow(1);
    QApplication::processEvents();
    EXPECT_EQ(Asked, Before);
}

TEST_F(FlexGridSource, IsAskedForNothingOutOfSight) {
    Grid.SetRows(20000);
    QApplication::processEvents();
    Rows.clear();
    Grid.EnsureRowVisible(10000);
    QApplication::processEvents();
    EXPECT_TRUE(Rows.count(10000));
    EXPECT_LE(static_cast<int>(Rows.size()), InView());
    Grid.EnsureRowVisible(0);
    QApplication::processEvents();
    Rows.clear();
    Grid.EnsureRowVisible(10000);
    QApplication::processEvents();
    EXPECT_TRUE(Rows.count(10000)) << "what has gone out of sight is not kept";
}

TEST_F(FlexGridSource, IsAskedAgainWhenTheRowChanges) {
    Colour = qRgb(200, 0, 0);
    Repaint();
    EXPECT_TRUE(Seen(1, Colour).isEmpty());
    Grid.PictureChanged(1, Thumb);
    EXPECT_EQ(Seen(1, Colour).size(), QSize(72, 36));
    EXPECT_TRUE(Seen(2, Colour).isEmpty());
    Grid.SetTextMatrix(2, Path, "another");
    EXPECT_EQ(Seen(2, Colour).size(), QSize(72, 36));
    EXPECT_TRUE(Seen(3, Colour).isEmpty());
    Grid.RemoveItem(5);
    EXPECT_EQ(Seen(3, Colour).size(), QSize(72, 36));
}

TEST_F(FlexGridSource, WhatWasMovedWhileNothingWasPaintedIsAskedForAnew) {
    Asked = 0;
    Grid.MoveRowsBefore({0, 1}, 5);
    QApplication::processEvents();
    EXPECT_GE(Asked, InView() - 3);
}

TEST_F(FlexGridSource, TakenAwayLeavesTheCellsTheirOwnPictures) {
    Grid.SetPictureSource(Thumb, {});
    Repaint();
    EXPECT_EQ(Seen(4, qRgb(4, 90, 160)).size(), QSize(72, 72));
}

TEST(FittedPicture, HasThePixelsOfTheScreen) {
    const QImage Stretched = Thumbnail(Green);
    EXPECT_EQ(FittedPicture({Stretched, {1024, 256}}, 2).size(), QSize(144, 36));
    EXPECT_EQ(FittedPicture({Stretched, {1024, 256}}, 2).devicePixelRatio(), 2);
    EXPECT_EQ(FittedPicture({Stretched, {768, 1024}}, 1.5).size(), QSize(81, 108));
    EXPECT_EQ(FittedPicture({Stretched, {}}, 2).constBits(), Stretched.constBits());
    EXPECT_TRUE(FittedPicture({{}, {1024, 256}}, 2).isNull());
}

TEST(FittedPicture, StaysSharp) {
    QImage Half = Thumbnail(qRgb(255, 255, 255));
    for (int Y = 0; Y < 72; ++Y)
        for (int X = 0; X < 36; ++X) Half.setPixel(X, Y, qRgb(0, 0, 0));
    const QImage Ready = FittedPicture({Half, {3, 4}}, 1);
    ASSERT_EQ(Ready.size(), QSize(54, 72));
    EXPECT_LT(qGreen(Ready.pixel(26, 30)), 60) << "a twentieth of the light at most";
    EXPECT_GT(qGreen(Ready.pixel(27, 30)), 230) << "the edge falls between two pixels, and stays";
}

}  // namespace
}  // namespace neb
