// Rows that hang over a list and are dropped onto it, and the line that shows where.
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>
#include <QVBoxLayout>

#include "GridDragRig.h"

namespace neb {
namespace {

using namespace harness;

// Where drop lines were drawn last.
class LineStyle : public QProxyStyle {
  public:
    LineStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}
    void drawPrimitive(PrimitiveElement Element, const QStyleOption* Option, QPainter* Painter,
                       const QWidget* Widget) const override {
        if (Element == PE_IndicatorItemViewItemDrop) Line = Option->rect;
        QProxyStyle::drawPrimitive(Element, Option, Painter, Widget);
    }
    mutable QRect Line;
};

// The line that the grid shows now; an empty rectangle at 0 for none.
QRect LineOf(FlexGrid& Grid) {
    LineStyle Style;
    Grid.setStyle(&Style);
    Grid.viewport()->grab();
    Grid.setStyle(nullptr);
    return Style.Line;
}

class FlexGridDropping : public FlexGridDragging {};

TEST_F(FlexGridDropping, ADropStandsBeforeTheRowWhoseUpperHalfItHits) {
    Select(Left, {1, 4});
    for (const int Row : {0, 2, 5}) {
        EXPECT_TRUE(EnterAndDrop(Left, Right, Upper(Right, Row)));
        EXPECT_EQ(DroppedOn(OnRight, Left), Row);
        EXPECT_TRUE(EnterAndDrop(Left, Right, Lower(Right, Row)));
        EXPECT_EQ(DroppedOn(OnRight, Left), Row + 1);
    }
    Select(Right, {2});
    EXPECT_TRUE(EnterAndDrop(Right, Left, Upper(Left, 3)));
    EXPECT_EQ(DroppedOn(OnLeft, Right), 3);
}

TEST_F(FlexGridDropping, ADropBelowTheRowsStandsAtTheEnd) {
    Right.SetRows(3);
    Select(Left, {7});
    EXPECT_TRUE(EnterAndDrop(Left, Right, {30, Right.viewport()->height() - 3}));
    EXPECT_EQ(DroppedOn(OnRight, Left), 3);
}

TEST_F(FlexGridDropping, AListWithoutRowsTakesADropAnywhere) {
    Right.SetRows(0);
    Select(Left, {7});
    for (const bool Text : {false, true}) {
        Right.SetEmptyText(Text ? "Drag slides here." : "");
        for (const int Y : {0, 200, Right.viewport()->height() - 1}) {
            const auto Data = Left.RowDrag()->Data();
            EXPECT_TRUE(Hover(Right, *Data, {50, Y}, true));
            EXPECT_LT(LineOf(Right).top(), 4);
            EXPECT_EQ(LineOf(Right).width(), Right.viewport()->width());
            EXPECT_TRUE(EnterAndDrop(Left, Right, {50, Y}));
            EXPECT_EQ(DroppedOn(OnRight, Left), 0);
        }
    }
}

TEST_F(FlexGridDropping, TheDropIsToldAfterItsEvent) {
    Select(Left, {1});
    EXPECT_TRUE(EnterAndDrop(Left, Right, Upper(Right, 2)));
    EXPECT_EQ(OnRight.count(), 0);
    EXPECT_EQ(DroppedOn(OnRight, Left), 2);
}

TEST_F(FlexGridDropping, TheDropIsToldOnlyWhenTheDragHasEnded) {
    Drags.Meanwhile = [this](QDrag& Drag) {
        Hover(Right, *Drag.mimeData(), Upper(Right, 2), true);
        EXPECT_TRUE(DropAt(Right, *Drag.mimeData(), Upper(Right, 2)));
        QApplication::processEvents();
        EXPECT_EQ(OnRight.count(), 0);
    };
    Pull(Left, 1);
    ASSERT_EQ(Drags.Count, 1);
    EXPECT_EQ(DroppedOn(OnRight, Left), 2);
}

TEST_F(FlexGridDropping, RowsDroppedOnTheirOwnPlaceStay) {
    Select(Left, {2, 3, 4});
    for (const int Row : {2, 3, 4}) EXPECT_TRUE(EnterAndDrop(Left, Left, Upper(Left, Row)));
    EXPECT_TRUE(EnterAndDrop(Left, Left, Lower(Left, 4)));
    EXPECT_EQ(DroppedOn(OnLeft, Left), -1);
    EXPECT_TRUE(EnterAndDrop(Left, Left, Upper(Left, 1)));
    EXPECT_EQ(DroppedOn(OnLeft, Left), 1);
    EXPECT_TRUE(EnterAndDrop(Left, Left, Lower(Left, 5)));
    EXPECT_EQ(DroppedOn(OnLeft, Left), 6);
    EXPECT_TRUE(EnterAndDrop(Left, Right, Upper(Right, 3)));
    EXPECT_EQ(DroppedOn(OnRight, Left), 3);
}

TEST_F(FlexGridDropping, RowsThatStandApartComeTogetherAtTheirOwnPlace) {
    Select(Left, {2, 4});
    EXPECT_TRUE(EnterAndDrop(Left, Left, Upper(Left, 2)));
    EXPECT_EQ(DroppedOn(OnLeft, Left), 2);
}

TEST_F(FlexGridDropping, TheLineStandsBetweenRowsOverTheWholeWidth) {
    Select(Left, {1});
    const auto Data = Left.RowDrag()->Data();
    EXPECT_TRUE(Hover(Right, *Data, Upper(Right, 3), true));
    EXPECT_EQ(LineOf(Right), QRect(0, Right.rowViewportPosition(3), Right.viewport()->width(), 0));
    EXPECT_TRUE(Hover(Right, *Data, Lower(Right, 4)));
    EXPECT_EQ(LineOf(Right).top(), Right.rowViewportPosition(5));
    QDragLeaveEvent Leave;
    QApplication::sendEvent(Right.viewport(), &Leave);
    EXPECT_EQ(LineOf(Right), QRect());
    Hover(Right, *Data, Upper(Right, 3), true);
    DropAt(Right, *Data, Upper(Right, 3));
    EXPECT_EQ(LineOf(Right), QRect());
}

TEST_F(FlexGridDropping, NoLineStandsWhereNothingWouldMove) {
    Select(Left, {1});
    const auto Data = Left.RowDrag()->Data();
    EXPECT_TRUE(Hover(Left, *Data, Lower(Left, 1), true));
    EXPECT_EQ(LineOf(Left), QRect());
    EXPECT_TRUE(Hover(Left, *Data, Lower(Left, 2)));
    EXPECT_EQ(LineOf(Left).top(), Left.rowViewportPosition(3));
}

TEST_F(FlexGridDropping, TheLineIsPaintedOverSelectedRowsToo) {
    Select(Left, {1});
    Select(Right, {2, 3});
    Right.clearFocus();
    const QImage Before = Right.viewport()->grab().toImage();
    Hover(Right, *Left.RowDrag()->Data(), Upper(Right, 3), true);
    const QImage After = Right.viewport()->grab().toImage();
    const int Y = Right.rowViewportPosition(3), End = Right.viewport()->width() - 1;
    for (const int X : {0, End / 2, End}) EXPECT_NE(Before.pixel(X, Y), After.pixel(X, Y));
}

TEST_F(FlexGridDropping, AtTheEdgesTheListScrolls) {
    Select(Right, {1});
    QScrollBar& Bar = *Left.verticalScrollBar();
    const auto Data = Right.RowDrag()->Data();
    const QPoint Bottom(30, Left.viewport()->height() - 2);
    EXPECT_TRUE(Hover(Left, *Data, Bottom, true));
    EXPECT_EQ(Bar.value(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bar.value() == Bar.maximum(); }, 15000));
    EXPECT_TRUE(DropAt(Left, *Data, Bottom));
    EXPECT_EQ(DroppedOn(OnLeft, Right), 20);
    EXPECT_TRUE(Hover(Left, *Data, {30, 1}, true));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bar.value() == 0; }, 15000));
}

TEST_F(FlexGridDropping, AwayFromTheEdgesAndAfterLeavingTheListStands) {
    Select(Right, {1});
    QScrollBar& Bar = *Left.verticalScrollBar();
    const auto Data = Right.RowDrag()->Data();
    const QPoint Bottom(30, Left.viewport()->height() - 2);
    Hover(Left, *Data, Bottom, true);
    QDragLeaveEvent Gone;
    QApplication::sendEvent(Left.viewport(), &Gone);
    QTest::qWait(400);
    EXPECT_EQ(Bar.value(), 0);
    Hover(Left, *Data, Bottom, true);
    Hover(Left, *Data, {30, Left.viewport()->height() / 2});
    QTest::qWait(400);
    EXPECT_EQ(Bar.value(), 0);
}

TEST_F(FlexGridDropping, AnotherGroupAndForeignDataAreRefused) {
    Select(Left, {1});
    const auto Ours = Left.RowDrag()->Data();
    QMimeData Foreign;
    for (const QString& Format : Ours->formats()) Foreign.setData(Format, Ours->data(Format));
    Foreign.setText("Slide 1");
    EXPECT_FALSE(Hover(Right, Foreign, Upper(Right, 2), true));
    EXPECT_TRUE(Hover(Right, *Ours, Upper(Right, 2), true));
    EXPECT_FALSE(DropAt(Right, Foreign, Upper(Right, 2)));
    EXPECT_TRUE(Hover(Right, *Ours, Upper(Right, 2), true));
    Right.SetRowDrag("tracks");
    EXPECT_FALSE(DropAt(Right, *Ours, Upper(Right, 2)));
    EXPECT_EQ(LineOf(Right), QRect());
    EXPECT_EQ(DroppedOn(OnRight, Left), -1);
}

TEST_F(FlexGridDropping, AnotherWindowIsRefusedBesideUsInTheMainWindowToo) {
    Select(Left, {1});
    QMdiArea Area;
    FlexGrid Other, Beside;
    for (FlexGrid* Grid : {&Other, &Beside}) {
        SetAlbumColumns(*Grid);
        FillAlbum(*Grid, 5);
        Grid->SetRowDrag(Group);
        Select(*Grid, {1});
    }
    auto* Inner = new QWidget;
    (new QVBoxLayout(Inner))->addWidget(&Other);
    QMdiSubWindow* First = Area.addSubWindow(Inner);
    QMdiSubWindow* Second = Area.addSubWindow(&Beside);
    ShowGrid(Area, 700, 600);
    First->show();
    Second->show();
    EXPECT_EQ(Other.window(), Beside.window());
    EXPECT_FALSE(EnterAndDrop(Left, Other, {10, 10}));
    EXPECT_FALSE(EnterAndDrop(Other, Beside, {10, 10}));
    EXPECT_TRUE(EnterAndDrop(Other, Other, {10, 2}));
    Beside.setParent(nullptr);
    Other.setParent(nullptr);
}

TEST_F(FlexGridDropping, WhileRedrawIsOffNothingIsDraggedOrDropped) {
    Select(Left, {1, 2});
    const auto Data = Left.RowDrag()->Data();
    Hover(Right, *Data, {30, Right.viewport()->height() - 2}, true);
    Right.SetRedraw(false);
    Right.SetRows(0);
    QTest::qWait(400);  // the timer that scrolls
    EXPECT_FALSE(Hover(Right, *Data, Upper(Right, 2)));
    EXPECT_FALSE(DropAt(Right, *Data, Upper(Right, 2)));
    Right.SetRedraw(true);
    EXPECT_EQ(LineOf(Right), QRect());
    EXPECT_EQ(DroppedOn(OnRight, Left), -1);
    Left.SetRedraw(false);
    Pull(Left, 1);
    EXPECT_EQ(Drags.Count, 0);
    EXPECT_TRUE(EnterAndDrop(Left, Right, {30, 30}));
    Left.SetRedraw(true);
    EXPECT_EQ(DroppedOn(OnRight, Left), 0);
}

TEST_F(FlexGridDropping, RowsThatGoWhileTheyHangAreNotDropped) {
    Drags.Meanwhile = [this](QDrag& Drag) {
        Hover(Right, *Drag.mimeData(), Lower(Right, 4), true);
        Right.SetRows(2);
        Right.viewport()->grab();
        Left.SetRows(1);
        EXPECT_FALSE(DropAt(Right, *Drag.mimeData(), Lower(Right, 1)));
    };
    Pull(Left, 3);
    EXPECT_EQ(Drags.Count, 1);
    EXPECT_EQ(DroppedOn(OnRight, Left), -1);
}

TEST_F(FlexGridDropping, AListThatBecomesShorterAfterTheDropTakesTheRowsAtItsEnd) {
    Select(Left, {1});
    EXPECT_TRUE(EnterAndDrop(Left, Right, Upper(Right, 5)));
    Right.SetRows(2);
    EXPECT_EQ(DroppedOn(OnRight, Left), 2);
}

TEST_F(FlexGridDropping, AListThatGoesWhileItsRowsHangTakesThemAlong) {
    auto* Short = new FlexGrid(&Window);
    SetAlbumColumns(*Short);
    FillAlbum(*Short, 5);
    Short->SetRowDrag(Group);
    Short->setGeometry(0, 0, 300, 500);
    Short->show();
    QApplication::processEvents();
    Drags.Meanwhile = [&](QDrag& Drag) {
        Hover(Right, *Drag.mimeData(), Upper(Right, 2), true);
        EXPECT_TRUE(DropAt(Right, *Drag.mimeData(), Upper(Right, 2)));
        delete Short;
        EXPECT_FALSE(Hover(Right, *Drag.mimeData(), Upper(Right, 2), true));
    };
    Pull(*Short, 1);
    EXPECT_EQ(Drags.Count, 1);
    QApplication::processEvents();
    EXPECT_EQ(OnRight.count(), 0);
}

}  // namespace
}  // namespace neb
