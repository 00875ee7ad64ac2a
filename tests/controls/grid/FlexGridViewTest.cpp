// The grid on the screen: selecting with mouse and keys, and what is painted.
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QHelpEvent>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyleFactory>
#include <QToolTip>

#include "GridHarness.h"

namespace neb {
namespace {

using namespace harness;
using Rows = std::vector<int>;

class FlexGridView : public ::testing::Test {
  protected:
    FlexGridView() {
        SetAlbumColumns(Grid);
        FillAlbum(Grid, 40);
        ShowGrid(Grid, 500, 600);
        Grid.setFocus();
    }
    FlexGrid Grid;
};

TEST_F(FlexGridView, ADragOverRowsSelectsThem) {
    DragCells(Grid, 1, 4, Thumb);
    EXPECT_EQ(SelectedRowsOf(Grid), (Rows{1, 2, 3, 4}));
}

TEST_F(FlexGridView, ShiftExtendsAndCtrlAddsAndTakesAway) {
    ClickCell(Grid, 1, Thumb);
    ClickCell(Grid, 3, Thumb, Qt::ShiftModifier);
    EXPECT_EQ(SelectedRowsOf(Grid), (Rows{1, 2, 3}));
    ClickCell(Grid, 5, Thumb, Qt::ControlModifier);
    ClickCell(Grid, 2, Thumb, Qt::ControlModifier);
    EXPECT_EQ(SelectedRowsOf(Grid), (Rows{1, 3, 5}));
    ClickCell(Grid, 0, Caption);
    EXPECT_EQ(SelectedRowsOf(Grid), (Rows{0}));
}

TEST_F(FlexGridView, CtrlASelectsAll) {
    QTest::keyClick(&Grid, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Grid.SelectedRows(), 40);
}

TEST_F(FlexGridView, KeysGoThroughTheRows) {
    struct {
        Qt::Key Key;
        Qt::KeyboardModifiers Modifiers;
        int Row;
    } const Steps[] = {{Qt::Key_Down, {}, 1},  {Qt::Key_Down, {}, 2}, {Qt::Key_Up, {}, 1},
                       {Qt::Key_End, {}, 39},  {Qt::Key_Home, {}, 0}, {Qt::Key_PageDown, {}, 7},
                       {Qt::Key_PageUp, {}, 0}};
    ClickCell(Grid, 0, Caption);
    for (const auto& Step : Steps) {
        QTest::keyClick(&Grid, Step.Key, Step.Modifiers);
        EXPECT_EQ(Grid.Row(), Step.Row) << "key " << Step.Key;
        EXPECT_EQ(SelectedRowsOf(Grid), (Rows{Step.Row}));
        EXPECT_EQ(Grid.Col(), Caption);
    }
    QTest::keyClick(&Grid, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(Grid.SelectedRows(), 40);
}

TEST_F(FlexGridView, TheFirstKeyIntoAListFindsTheCaption) {
    QTest::keyClick(&Grid, Qt::Key_Home);
    EXPECT_EQ(Grid.Row(), 0);
    EXPECT_EQ(Grid.Col(), Caption);
}

TEST_F(FlexGridView, TheSpaceBarSelectsAndLeavesTheCaption) {
    ClickCell(Grid, 0, Caption);
    QTest::keyClick(&Grid, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(&Grid, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(SelectedRowsOf(Grid), (Rows{0}));
    QTest::keyClick(&Grid, Qt::Key_Space);
    EXPECT_EQ(SelectedRowsOf(Grid), (Rows{0, 2}));
    QTest::keyClick(&Grid, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(SelectedRowsOf(Grid), (Rows{0}));
    EXPECT_FALSE(Grid.IsEditing());
    EXPECT_EQ(Grid.TextMatrix(2, Caption), "Slide 2");
}

TEST_F(FlexGridView, TheDeleteKeyIsReported) {
    QSignalSpy Deleted(&Grid, &FlexGrid::DeletePressed);
    ClickCell(Grid, 0, Caption);
    QTest::keyClick(&Grid, Qt::Key_Delete);
    EXPECT_EQ(Deleted.count(), 1);
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "Slide 0");
}

TEST_F(FlexGridView, ADoubleClickOnAPictureIsReportedWithItsCell) {
    QSignalSpy Clicked(&Grid, &FlexGrid::CellDblClicked);
    DoubleClickCell(Grid, 2, Thumb);
    ASSERT_EQ(Clicked.count(), 1);
    EXPECT_EQ(Clicked[0][0].toInt(), 2);
    EXPECT_EQ(Clicked[0][1].toInt(), Thumb);
    EXPECT_EQ(Grid.MouseRow(), 2);
    EXPECT_EQ(Grid.MouseCol(), Thumb);
}

TEST_F(FlexGridView, ADoubleClickBelowTheRowsIsNoCell) {
    Grid.SetRows(1);
    QSignalSpy Clicked(&Grid, &FlexGrid::CellDblClicked);
    const QPoint Below(40, Grid.viewport()->height() - 5);
    QTest::mouseDClick(Grid.viewport(), Qt::LeftButton, {}, Below);
    EXPECT_EQ(Clicked.count(), 0);
    EXPECT_EQ(Grid.MouseRow(), -1);
    EXPECT_EQ(Grid.MouseCol(), -1);
}

TEST_F(FlexGridView, ARowIsHighEnoughForItsPictureAndTheCaptionTakesTheRest) {
    EXPECT_GE(Grid.rowHeight(0), 72 + 4);
    EXPECT_GE(Grid.columnWidth(Thumb), 72 + 4);
    EXPECT_EQ(Grid.columnWidth(Thumb) + Grid.columnWidth(Caption), Grid.viewport()->width());
}

TEST_F(FlexGridView, ThePictureStandsInTheMiddleOfItsCell) {
    const QRect Cell = Grid.visualRect(Grid.model()->index(0, Thumb));
    const QImage Shot = Grid.viewport()->grab().toImage();
    const QColor Wanted = Grid.CellPicture(0, Thumb).pixelColor(0, 0);
    const QRect Picture(Cell.left() + (Cell.width() - 72) / 2,
                        Cell.top() + (Cell.height() - 72) / 2, 72, 72);
    EXPECT_EQ(Shot.pixelColor(Picture.topLeft()), Wanted);
    EXPECT_EQ(Shot.pixelColor(Picture.bottomRight()), Wanted);
    EXPECT_NE(Shot.pixelColor(Picture.topLeft() - QPoint(1, 0)), Wanted);
    EXPECT_NE(Shot.pixelColor(Picture.bottomRight() + QPoint(1, 0)), Wanted);
}

TEST_F(FlexGridView, APictureForAFineScreenKeepsItsSize) {
    QImage Fine(144, 144, QImage::Format_RGB32);
    Fine.fill(Qt::green);
    Fine.setDevicePixelRatio(2);
    Grid.SetCellPicture(0, Thumb, Fine);
    const QRect Cell = Grid.visualRect(Grid.model()->index(0, Thumb));
    const QImage Shot = Grid.viewport()->grab().toImage();
    int Green = 0;
    for (int X = Cell.left(); X <= Cell.right(); ++X)
        Green += Shot.pixelColor(X, Cell.center().y()) == QColor(Qt::green);
    EXPECT_EQ(Green, 72);
}

// Counts the cells that are painted.
class CountingStyle : public QProxyStyle {
  public:
    CountingStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}
    void drawControl(ControlElement Element, const QStyleOption* Option, QPainter* Painter,
                     const QWidget* Widget) const override {
        if (Element == CE_ItemViewItem) ++Cells;
        QProxyStyle::drawControl(Element, Option, Painter, Widget);
    }
    mutable int Cells = 0;
};

TEST_F(FlexGridView, OnlyVisibleRowsArePainted) {
    CountingStyle Style;
    Grid.setStyle(&Style);
    Grid.SetRows(20000);
    Grid.verticalScrollBar()->setValue(80 * 10000);
    QApplication::processEvents();
    Style.Cells = 0;
    Grid.viewport()->grab();
    const int Visible = Grid.viewport()->height() / Grid.rowHeight(0) + 2;
    EXPECT_GT(Style.Cells, 2 * (Visible - 3));
    EXPECT_LE(Style.Cells, 2 * Visible);
    Grid.setStyle(nullptr);
}

TEST_F(FlexGridView, NothingIsPaintedWhileRedrawIsOff) {
    CountingStyle Style;
    Grid.setStyle(&Style);
    QApplication::processEvents();
    Grid.SetRedraw(false);
    Style.Cells = 0;
    Grid.SetTextMatrix(0, Caption, "changed");
    Grid.RemoveItem(1);
    QApplication::processEvents();
    EXPECT_EQ(Style.Cells, 0);
    Grid.SetRedraw(true);
    QApplication::processEvents();
    EXPECT_GT(Style.Cells, 0);
    Grid.setStyle(nullptr);
}

TEST_F(FlexGridView, KeysAndMouseDoNoHarmWhileRedrawIsOff) {
    Grid.SetRow(39);
    Grid.SetRedraw(false);
    Grid.SetRows(2);
    for (const Qt::Key Key : {Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Return})
        QTest::keyClick(&Grid, Key);
    DoubleClickCell(Grid, 3, Caption);
    Grid.SetRedraw(true);
    EXPECT_EQ(Captions(Grid), QStringList({"Slide 0", "Slide 1"}));
    EXPECT_FALSE(Grid.IsEditing());
}

TEST_F(FlexGridView, AnEmptyListSaysWhatToDo) {
    Grid.SetRows(0);
    const QImage Before = Grid.viewport()->grab().toImage();
    Grid.SetEmptyText("Choose a folder to see its pictures.");
    const QImage Text = Grid.viewport()->grab().toImage();
    EXPECT_NE(Before, Text);
    Grid.SetRows(1);
    Grid.SetRows(0);
    QApplication::processEvents();
    EXPECT_EQ(Grid.viewport()->grab().toImage(), Text);
}

QString ToolTipAt(FlexGrid& Grid, const QPoint& At) {
    QHelpEvent Event(QEvent::ToolTip, At, Grid.viewport()->mapToGlobal(At));
    QApplication::sendEvent(Grid.viewport(), &Event);
    const QString Text = QToolTip::text();
    QToolTip::hideText();
    return Text;
}

TEST_F(FlexGridView, ATextThatIsCutIsShownInFullAsToolTip) {
    Grid.setToolTip("Slides in the album");
    const QString Long = QString(200, u'w') + " <b>";
    Grid.SetTextMatrix(1, Caption, Long);
    EXPECT_EQ(ToolTipAt(Grid, CellCentre(Grid, 1, Caption)),
              "<qt>" + Long.toHtmlEscaped() + "</qt>");
    EXPECT_EQ(ToolTipAt(Grid, CellCentre(Grid, 0, Caption)), "Slides in the album");
    EXPECT_EQ(ToolTipAt(Grid, CellCentre(Grid, 1, Thumb)), "Slides in the album");
}

TEST_F(FlexGridView, HeadingsAreShownOnceThereAreSome) {
    EXPECT_FALSE(Grid.horizontalHeader()->isVisible());
    FlexColumn Column = Grid.Column(Caption);
    Column.Heading = "Caption";
    Grid.SetColumn(Caption, Column);
    EXPECT_TRUE(Grid.horizontalHeader()->isVisible());
}

TEST_F(FlexGridView, ARowOutOfSightIsScrolledIntoView) {
    Grid.EnsureRowVisible(35);
    EXPECT_TRUE(Grid.viewport()->rect().contains(CellCentre(Grid, 35, Caption)));
}

TEST_F(FlexGridView, ALargerFontMakesRowsOfTextHigher) {
    Grid.SetColHidden(Thumb, true);
    const int Before = Grid.rowHeight(0);
    QFont Large = Grid.font();
    Large.setPointSizeF(Large.pointSizeF() * 2);
    Grid.setFont(Large);
    EXPECT_GT(Grid.rowHeight(0), Before);
    EXPECT_GE(Grid.rowHeight(0), Grid.fontMetrics().height());
}

}  // namespace
}  // namespace neb
