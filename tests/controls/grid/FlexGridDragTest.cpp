// The mouse that begins a drag of rows, and what hangs at it.
#include <QLineEdit>

#include "GridDragRig.h"

namespace neb {
namespace {

using namespace harness;

TEST_F(FlexGridDragging, PullingAnUnselectedRowSelectsItAndDragsIt) {
    Select(Left, {0, 1});
    Pull(Left, 3);
    EXPECT_EQ(Drags.Count, 1);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{3}));
}

TEST_F(FlexGridDragging, PullingASelectedRowDragsAllThatAreSelected) {
    ClickCell(Left, 1, Thumb);
    ClickCell(Left, 3, Thumb, Qt::ShiftModifier);
    ClickCell(Left, 5, Thumb, Qt::ControlModifier);
    Pull(Left, 2);
    EXPECT_EQ(Drags.Count, 1);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1, 2, 3, 5}));
}

TEST_F(FlexGridDragging, APressOnASelectionKeepsItAndAClickSelectsTheRowAlone) {
    Select(Left, {1, 2, 3});
    QTest::mousePress(Left.viewport(), Qt::LeftButton, {}, CellCentre(Left, 2, Thumb));
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1, 2, 3}));
    LetGo(Left, CellCentre(Left, 2, Thumb));
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{2}));
    QApplication::processEvents();
    EXPECT_EQ(Drags.Count, 0);
}

TEST_F(FlexGridDragging, AHandThatTremblesClicks) {
    Select(Left, {1, 2, 3});
    const QPoint At = CellCentre(Left, 2, Thumb);
    QTest::mousePress(Left.viewport(), Qt::LeftButton, {}, At);
    for (const QPoint By : {QPoint(1, 0), QPoint(2, 1), QPoint(1, 2)}) MoveMouse(Left, At + By);
    LetGo(Left, At);
    QApplication::processEvents();
    EXPECT_EQ(Drags.Count, 0);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{2}));
}

TEST_F(FlexGridDragging, ShiftAndCtrlSelectAsElsewhere) {
    FlexGrid Plain;
    SetAlbumColumns(Plain);
    FillAlbum(Plain, 20);
    ShowGrid(Plain, 340, 700);
    for (FlexGrid* Grid : {&Plain, &Left}) {
        ClickCell(*Grid, 1, Thumb);
        ClickCell(*Grid, 4, Thumb, Qt::ShiftModifier);
        EXPECT_EQ(SelectedRowsOf(*Grid), (Rows{1, 2, 3, 4}));
        ClickCell(*Grid, 6, Thumb, Qt::ControlModifier);
        ClickCell(*Grid, 2, Thumb, Qt::ControlModifier);
        EXPECT_EQ(SelectedRowsOf(*Grid), (Rows{1, 3, 4, 6}));
        ClickCell(*Grid, 5, Caption);
        EXPECT_EQ(SelectedRowsOf(*Grid), (Rows{5}));
    }
    EXPECT_EQ(Drags.Count, 0);
}

TEST_F(FlexGridDragging, CtrlDragsASelectionAsItIs) {
    Select(Left, {1, 4});
    Pull(Left, 4, Thumb, Qt::ControlModifier);
    EXPECT_EQ(Drags.Count, 1);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1, 4}));
}

TEST_F(FlexGridDragging, MovingAfterTheDragSelectsNothing) {
    Select(Left, {1, 2});
    Pull(Left, 1);
    MoveMouse(Left, CellCentre(Left, 5, Thumb));
    LetGo(Left, {20, Left.viewport()->height() - 1});
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1, 2}));
    EXPECT_EQ(Drags.Count, 1);
}

TEST_F(FlexGridDragging, TheReleaseThatEndsADragChangesNoSelection) {
    Left.SetRows(3);
    Right.SetRows(2);
    Select(Left, {1, 2});
    Select(Right, {1});
    Pull(Left, 1);
    LetGo(Right, {20, Right.viewport()->height() - 5});
    LetGo(Left, {20, Left.viewport()->height() - 5});
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1, 2}));
    EXPECT_EQ(SelectedRowsOf(Right), (Rows{1}));
    ClickCell(Left, 0, Thumb);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{0}));
}

TEST_F(FlexGridDragging, AButtonThatIsLetGoAtOnceDragsNothing) {
    const QPoint From = CellCentre(Left, 2, Thumb);
    QTest::mousePress(Left.viewport(), Qt::LeftButton, {}, From);
    for (int Step = 1; Step <= 4; ++Step) MoveMouse(Left, From + QPoint(0, Step * 30));
    LetGo(Left, From + QPoint(0, 120));
    QApplication::processEvents();
    EXPECT_EQ(Drags.Count, 0);
}

TEST_F(FlexGridDragging, TheRightButtonAndTheEmptyRoomDragAndSelectNothing) {
    Left.SetRows(3);
    Select(Left, {0, 1});
    QTest::mousePress(Left.viewport(), Qt::RightButton, {}, CellCentre(Left, 1, Thumb));
    MoveMouse(Left, CellCentre(Left, 2, Thumb), Qt::RightButton);
    MoveMouse(Left, CellCentre(Left, 0, Thumb), Qt::RightButton);
    QTest::mouseRelease(Left.viewport(), Qt::RightButton, {}, CellCentre(Left, 0, Thumb));
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{0, 1}));
    QTest::mousePress(Left.viewport(), Qt::LeftButton, {}, {30, Left.viewport()->height() - 5});
    for (const int Row : {2, 1, 0}) MoveMouse(Left, CellCentre(Left, Row, Thumb));
    LetGo(Left, CellCentre(Left, 0, Thumb));
    QApplication::processEvents();
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{0, 1}));
    EXPECT_EQ(Drags.Count, 0);
    QTest::mouseClick(Left.viewport(), Qt::LeftButton, {}, {30, Left.viewport()->height() - 5});
    EXPECT_EQ(SelectedRowsOf(Left), Rows());
}

TEST_F(FlexGridDragging, AGridWithoutRowDragSelectsByPullingAsBefore) {
    Left.SetRowDrag({});
    EXPECT_EQ(Left.RowDrag(), nullptr);
    DragCells(Left, 1, 4, Thumb);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1, 2, 3, 4}));
    QApplication::processEvents();
    EXPECT_EQ(Drags.Count, 0);
    Select(Right, {0});
    EXPECT_FALSE(EnterAndDrop(Right, Left, Upper(Left, 2)));
    EXPECT_EQ(DroppedOn(OnLeft, Right), -1);
}

// Boxes, lists and buttons in the cells.
class FlexGridDragCells : public FlexGridDragging {
  protected:
    enum { Flag = Place, File = Path };
    FlexGridDragCells() {
        FlexColumn Check, Button;
        Check.Kind = FlexKind::Check;
        Check.Editable = Button.Editable = true;
        Button.Kind = FlexKind::Button;
        Left.SetColumn(Flag, Check);
        Left.SetColumn(File, Button);
        QApplication::processEvents();
    }
    QPoint Dots(int Row) {
        const QRect Cell = Left.visualRect(Left.model()->index(Row, File));
        return {Cell.right() - 8, Cell.center().y()};
    }
};

TEST_F(FlexGridDragCells, BoxesAndButtonsAreClickedAsBefore) {
    QSignalSpy Clicked(&Left, &FlexGrid::CellButtonClicked);
    Select(Left, {1, 2});
    ClickCell(Left, 2, Flag);
    EXPECT_TRUE(Left.Checked(2, Flag));
    EXPECT_FALSE(Left.Checked(1, Flag));
    QTest::mouseClick(Left.viewport(), Qt::LeftButton, {}, Dots(3));
    ASSERT_EQ(Clicked.count(), 1);
    EXPECT_EQ(Clicked[0][0].toInt(), 3);
}

TEST_F(FlexGridDragCells, PullingABoxOrAButtonDragsNothing) {
    Pull(Left, 2, Flag);
    LetGo(Left, CellCentre(Left, 4, Flag));
    QTest::mousePress(Left.viewport(), Qt::LeftButton, {}, Dots(1));
    MoveMouse(Left, Dots(2));
    MoveMouse(Left, Dots(3));
    LetGo(Left, Dots(3));
    QApplication::processEvents();
    EXPECT_EQ(Drags.Count, 0);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1}));
    EXPECT_FALSE(Left.Checked(2, Flag));
}

TEST_F(FlexGridDragCells, BesideTheBoxARowIsDragged) {
    const QRect Cell = Left.visualRect(Left.model()->index(2, Flag));
    QTest::mousePress(Left.viewport(), Qt::LeftButton, {}, Cell.topLeft() + QPoint(3, 3));
    for (const int Row : {3, 4, 5}) MoveMouse(Left, CellCentre(Left, Row, Flag));
    QApplication::processEvents();
    EXPECT_EQ(Drags.Count, 1);
}

TEST_F(FlexGridDragging, ADoubleClickIsReportedOrEditsAndDragsNothing) {
    QSignalSpy Clicked(&Left, &FlexGrid::CellDblClicked);
    DoubleClickCell(Left, 2, Thumb);
    MoveMouse(Left, CellCentre(Left, 3, Thumb));
    MoveMouse(Left, CellCentre(Left, 4, Thumb));
    LetGo(Left, CellCentre(Left, 4, Thumb));
    QApplication::processEvents();
    EXPECT_EQ(Clicked.count(), 1);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{2}));
    DoubleClickCell(Left, 1, Caption);
    EXPECT_TRUE(Left.IsEditing());
    EXPECT_EQ(Drags.Count, 0);
}

TEST_F(FlexGridDragging, AnOpenEditorKeepsItsTextWhenARowIsDragged) {
    ASSERT_TRUE(Left.EditCell(0, Caption));
    Left.findChild<QLineEdit*>()->setText("half typed");
    Pull(Left, 2);
    EXPECT_FALSE(Left.IsEditing());
    EXPECT_EQ(Left.TextMatrix(0, Caption), "half typed");
    EXPECT_EQ(Drags.Count, 1);
}

TEST_F(FlexGridDragging, AnOpenEditorKeepsItsTextWhenItsOwnRowIsDragged) {
    ASSERT_TRUE(Left.EditCell(1, Caption));
    Left.findChild<QLineEdit*>()->setText("half typed");
    Pull(Left, 1);
    EXPECT_FALSE(Left.IsEditing());
    EXPECT_EQ(Left.TextMatrix(1, Caption), "half typed");
    EXPECT_EQ(Drags.Count, 1);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1}));
}

TEST_F(FlexGridDragging, AnEditorInTheListThatTakesTheRowsKeepsItsText) {
    Select(Left, {1});
    ASSERT_TRUE(Right.EditCell(1, Caption));
    Right.findChild<QLineEdit*>()->setText("half typed");
    EXPECT_TRUE(EnterAndDrop(Left, Right, Upper(Right, 3)));
    EXPECT_EQ(DroppedOn(OnRight, Left), 3);
    EXPECT_EQ(Right.TextMatrix(1, Caption), "half typed");
    EXPECT_FALSE(Right.IsEditing());
}

TEST_F(FlexGridDragging, ThePictureShowsTheFirstRowAndTheirNumber) {
    Select(Left, {3});
    const QImage One = DragPicture(Left).toImage();
    EXPECT_EQ(One.size(), QSize(72, 72));
    const QRgb Colour = Left.CellPicture(3, Thumb).pixel(0, 0);
    EXPECT_EQ(One.pixel(36, 36), Colour);
    Select(Left, {3, 5, 6});
    const QImage Three = DragPicture(Left).toImage();
    EXPECT_GT(Three.width(), 72);
    EXPECT_EQ(Three.pixel(36, 36), Colour);
    Left.SelectRow(9);
    const QImage Four = DragPicture(Left).toImage();
    EXPECT_EQ(Four.size(), Three.size());
    EXPECT_NE(Four, Three);
}

TEST_F(FlexGridDragging, ARowWithoutAPictureIsDraggedByItsText) {
    Left.SetCellPicture(3, Thumb, QImage());
    Select(Left, {3});
    const QSize Short = DragPicture(Left).size();
    Left.SetTextMatrix(3, Caption, "A caption that is somewhat longer");
    EXPECT_GT(DragPicture(Left).width(), Short.width());
    Left.SetTextMatrix(3, Caption, QString(500, u'w'));
    EXPECT_LT(DragPicture(Left).width(), 300);
    Left.SetTextMatrix(3, Caption, "");
    EXPECT_FALSE(DragPicture(Left).isNull());
    Pull(Left, 3);
    EXPECT_FALSE(Drags.Picture.isNull());
}

TEST_F(FlexGridDragging, AHugePictureIsMadeSmallAtThePointer) {
    Left.SetCellPicture(3, Thumb, QImage(1200, 800, QImage::Format_RGB32));
    Select(Left, {3});
    EXPECT_LE(DragPicture(Left).height(), 96);
}

TEST_F(FlexGridDragging, KeysSelectAsBefore) {
    ClickCell(Left, 1, Caption);
    QTest::keyClick(&Left, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{1, 2}));
    QTest::keyClick(&Left, Qt::Key_Home);
    EXPECT_EQ(SelectedRowsOf(Left), (Rows{0}));
    QTest::keyClick(&Left, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Left.SelectedRows(), 20);
}

}  // namespace
}  // namespace neb
