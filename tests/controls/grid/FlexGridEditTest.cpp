// Editing a cell: what starts it, what keys do in it, and what the window around it sees.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "GridHarness.h"

namespace neb {
namespace {

using namespace harness;

// A grid in a dialog with a default button, as in the managers.
class FlexGridEdit : public ::testing::Test {
  protected:
    FlexGridEdit() {
        SetAlbumColumns(Grid);
        FillAlbum(Grid, 5);
        auto* Layout = new QVBoxLayout(&Window);
        Layout->addWidget(&Grid);
        Layout->addWidget(&Save);
        Save.setDefault(true);
        ShowGrid(Window, 500, 600);
        Grid.setFocus();
        ClickCell(Grid, 0, Caption);
    }

    QDialog Window;
    FlexGrid Grid{&Window};
    QPushButton Save{"Save", &Window};
    QSignalSpy Edited{&Grid, &FlexGrid::AfterEdit};
    QSignalSpy Saved{&Save, &QPushButton::clicked};
};

TEST_F(FlexGridEdit, ReturnEditsWithAllTextSelectedAndReturnKeeps) {
    Press(Qt::Key_Return);
    ASSERT_TRUE(Grid.IsEditing());
    EXPECT_EQ(static_cast<QLineEdit*>(QApplication::focusWidget())->selectedText(), "Slide 0");
    Type("new");
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "new");
    EXPECT_FALSE(Grid.IsEditing());
    EXPECT_TRUE(Grid.hasFocus());
    ASSERT_EQ(Edited.count(), 1);
    EXPECT_EQ(Edited[0][0].toInt(), 0);
    EXPECT_EQ(Edited[0][1].toInt(), Caption);
    QApplication::processEvents();
    EXPECT_EQ(Saved.count(), 0);
}

TEST_F(FlexGridEdit, EscapeLeavesTheTextAndTheWindowOpen) {
    Press(Qt::Key_F2);
    ASSERT_TRUE(Grid.IsEditing());
    Type("gone");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Grid.IsEditing());
    EXPECT_TRUE(Window.isVisible());
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "Slide 0");
    EXPECT_EQ(Edited.count(), 0);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Window.isVisible());
}

TEST_F(FlexGridEdit, TypingStartsAnEditWithTheTypedText) {
    Type("abc");
    ASSERT_TRUE(Grid.IsEditing());
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "abc");
}

TEST_F(FlexGridEdit, EveryTypedKeyGoesThroughTheFilterTheFirstOneToo) {
    Grid.SetKeyPressEdit(FixQuoteKeyInGrid);
    Type("\"it's\"");
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(0, Caption), QStringLiteral(u"\u201Cit\u2019s\u201D"));
}

TEST_F(FlexGridEdit, ANumberFilterLetsDigitsThrough) {
    Grid.SetKeyPressEdit([](const EntryState& Editor, std::int16_t& KeyAscii) {
        FilterNumericKey(Editor, KeyAscii, true);
    });
    Type("-1x-2 3");
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "-12");
}

TEST_F(FlexGridEdit, TheFilterKnowsTheCellInWork) {
    int Row = -1, Col = -1;
    Grid.SetKeyPressEdit([&](const EntryState&, std::int16_t&) {
        Row = Grid.EditRow();
        Col = Grid.EditCol();
    });
    ClickCell(Grid, 2, Caption);
    Type("x");
    EXPECT_EQ(Row, 2);
    EXPECT_EQ(Col, Caption);
}

TEST_F(FlexGridEdit, BeforeEditMayRefuse) {
    Grid.SetBeforeEdit([](int Row, int) { return Row != 0; });
    QSignalSpy Activated(&Grid, &FlexGrid::RowActivated);
    Press(Qt::Key_Return);
    EXPECT_FALSE(Grid.IsEditing());
    EXPECT_EQ(Activated.count(), 1);
    EXPECT_EQ(Saved.count(), 0);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Grid.IsEditing());
}

TEST_F(FlexGridEdit, ReturnOnAPictureReportsTheRow) {
    QSignalSpy Activated(&Grid, &FlexGrid::RowActivated);
    ClickCell(Grid, 3, Thumb);
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(Activated.count(), 1);
    EXPECT_EQ(Activated[0][0].toInt(), 3);
    EXPECT_FALSE(Grid.IsEditing());
}

TEST_F(FlexGridEdit, TabKeepsAndGoesOnInTheNextRow) {
    Press(Qt::Key_Return);
    Type("one");
    Press(Qt::Key_Tab);
    ASSERT_TRUE(Grid.IsEditing());
    EXPECT_EQ(Grid.EditRow(), 1);
    Type("two");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Grid.EditRow(), 0);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Captions(Grid).mid(0, 2), QStringList({"one", "two"}));
}

TEST_F(FlexGridEdit, ClickingElsewhereKeepsTheText) {
    Press(Qt::Key_Return);
    Type("kept");
    ClickCell(Grid, 3, Thumb);
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "kept");
    EXPECT_EQ(Edited.count(), 1);
}

TEST_F(FlexGridEdit, FinishEditAndRedrawOffKeepTheText) {
    Press(Qt::Key_Return);
    Type("first");
    Grid.FinishEdit();
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "first");
    Press(Qt::Key_Return);
    Type("second");
    Grid.SetRedraw(false);
    EXPECT_EQ(Grid.TextMatrix(0, Caption), "second");
    EXPECT_FALSE(Grid.EditCell(0, Caption));
    Grid.SetRedraw(true);
    EXPECT_EQ(Edited.count(), 2);
}

TEST_F(FlexGridEdit, AnEditOfARowThatGoesEndsWithIt) {
    Press(Qt::Key_Return);
    Type("gone");
    Grid.RemoveItem(0);
    QApplication::processEvents();
    EXPECT_FALSE(Grid.IsEditing());
    EXPECT_EQ(Edited.count(), 0);
    EXPECT_EQ(Captions(Grid), QStringList({"Slide 1", "Slide 2", "Slide 3", "Slide 4"}));
    EXPECT_TRUE(Grid.EditCell(1, Caption));
}

TEST_F(FlexGridEdit, AfterEditMayMoveTheRow) {
    QObject::connect(&Grid, &FlexGrid::AfterEdit, &Grid, [&](int Row, int) {
        Grid.SetRowPosition(Row, 4);
        Grid.EnsureRowVisible(4);
        Grid.SetRow(4);
    });
    Press(Qt::Key_Return);
    Type("moved");
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(4, Caption), "moved");
    EXPECT_EQ(SelectedRowsOf(Grid), (std::vector<int>{4}));
}

TEST_F(FlexGridEdit, ADoubleClickEditsACaptionOrIsReported) {
    QSignalSpy Clicked(&Grid, &FlexGrid::CellDblClicked);
    DoubleClickCell(Grid, 1, Caption);
    EXPECT_TRUE(Grid.IsEditing());
    EXPECT_EQ(Clicked.count(), 0);
    Press(Qt::Key_Escape);
    Grid.SetEditOnDblClick(false);
    DoubleClickCell(Grid, 1, Caption);
    EXPECT_FALSE(Grid.IsEditing());
    EXPECT_EQ(Clicked.count(), 1);
}

// Columns as in the list of sound tracks.
class FlexGridKinds : public ::testing::Test {
  protected:
    enum { Start, Repeat, File, Side };

    FlexGridKinds() {
        Grid.SetCols(4);
        FlexColumn List, Check, Button, Fixed;
        List.Kind = FlexKind::List;
        List.List = QStringList({"1", "2", "3"});
        Check.Kind = FlexKind::Check;
        Button.Kind = FlexKind::Button;
        Button.Width = 150;
        Fixed.Kind = FlexKind::Fixed;
        List.Editable = Check.Editable = Button.Editable = true;
        Check.Heading = "Repeat";
        Grid.SetColumn(Start, List);
        Grid.SetColumn(Repeat, Check);
        Grid.SetColumn(File, Button);
        Grid.SetColumn(Side, Fixed);
        Grid.SetRows(3);
        ShowGrid(Grid);
        Grid.setFocus();
    }

    FlexGrid Grid;
    QSignalSpy Edited{&Grid, &FlexGrid::AfterEdit};
    QSignalSpy Pressed{&Grid, &FlexGrid::CellButtonClicked};
};

TEST_F(FlexGridKinds, ABoxIsTickedByMouseAndSpaceBar) {
    ClickCell(Grid, 1, Repeat);
    EXPECT_TRUE(Grid.Checked(1, Repeat));
    EXPECT_EQ(Grid.TextMatrix(1, Repeat), "True");
    Press(Qt::Key_Space);
    EXPECT_EQ(Grid.TextMatrix(1, Repeat), "False");
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(1, Repeat), "True");
    EXPECT_EQ(Edited.count(), 3);
}

TEST_F(FlexGridKinds, AClickBesideTheBoxLeavesIt) {
    QTest::mouseClick(Grid.viewport(), Qt::LeftButton, {},
                      Grid.visualRect(Grid.model()->index(1, Repeat)).topLeft() + QPoint(3, 3));
    EXPECT_EQ(Grid.TextMatrix(1, Repeat), "");
}

TEST_F(FlexGridKinds, ARefusedBoxStaysAsItIs) {
    Grid.SetBeforeEdit([](int, int) { return false; });
    ClickCell(Grid, 1, Repeat);
    Press(Qt::Key_Space);
    EXPECT_EQ(Grid.TextMatrix(1, Repeat), "");
    EXPECT_EQ(Edited.count(), 0);
}

TEST_F(FlexGridKinds, AnEntryIsChosenFromAList) {
    Grid.SetTextMatrix(0, Start, "2");
    ASSERT_TRUE(Grid.EditCell(0, Start));
    auto* Box = qobject_cast<QComboBox*>(QApplication::focusWidget());
    ASSERT_TRUE(Box);
    EXPECT_EQ(Box->currentText(), "2");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(0, Start), "3");
    EXPECT_EQ(Edited.count(), 1);
}

TEST_F(FlexGridKinds, KeysGoThroughAListUntilReturnAndALongNumberIsTyped) {
    QStringList Numbers;
    for (int I = 1; I <= 30; ++I) Numbers << QString::number(I);
    Grid.SetColList(Start, Numbers);
    ASSERT_TRUE(Grid.EditCell(0, Start));
    for (int I = 0; I < 3; ++I) Press(Qt::Key_Down);
    EXPECT_TRUE(Grid.IsEditing());
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(0, Start), "3");
    ASSERT_TRUE(Grid.EditCell(1, Start));
    Type("27");
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(1, Start), "27");
    ASSERT_TRUE(Grid.EditCell(2, Start));
    Press(Qt::Key_Down);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Grid.TextMatrix(2, Start), "");
    EXPECT_EQ(Edited.count(), 2);
}

TEST_F(FlexGridKinds, TheArrowOfAListOpensItAtOnce) {
    const QRect Cell = Grid.visualRect(Grid.model()->index(1, Start));
    QTest::mouseClick(Grid.viewport(), Qt::LeftButton, {},
                      QPoint(Cell.right() - 4, Cell.center().y()));
    auto* Box = Grid.findChild<QComboBox*>();
    ASSERT_TRUE(Box);
    EXPECT_TRUE(Box->view()->isVisible());
    QTest::keyClick(Box->view(), Qt::Key_Down);
    QTest::keyClick(Box->view(), Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(1, Start), "2");
    EXPECT_FALSE(Grid.IsEditing());
    EXPECT_EQ(Edited.count(), 1);
}

TEST_F(FlexGridKinds, AListThatHoldsNoSuchTextLeavesItUntilOneIsChosen) {
    Grid.SetTextMatrix(0, Start, "9");
    ASSERT_TRUE(Grid.EditCell(0, Start));
    Press(Qt::Key_Return);
    EXPECT_EQ(Grid.TextMatrix(0, Start), "9");
    EXPECT_EQ(Edited.count(), 0);
}

TEST_F(FlexGridKinds, TheButtonOfACellReportsItsClick) {
    const QRect Cell = Grid.visualRect(Grid.model()->index(2, File));
    QTest::mouseClick(Grid.viewport(), Qt::LeftButton, {},
                      QPoint(Cell.right() - 8, Cell.center().y()));
    ASSERT_EQ(Pressed.count(), 1);
    EXPECT_EQ(Pressed[0][0].toInt(), 2);
    Press(Qt::Key_Space);
    EXPECT_EQ(Pressed.count(), 2);
    ClickCell(Grid, 2, File);
    EXPECT_EQ(Pressed.count(), 2);
}

TEST_F(FlexGridKinds, AHeadingAtTheSideIsNotEdited) {
    EXPECT_FALSE(Grid.EditCell(0, Side));
}

}  // namespace
}  // namespace neb
