// The list of effects: what selects an entry and what only goes there, and finding one by typing.
#include "windows/show/EffectList.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

namespace neb {
namespace {

const QStringList Names = {"Wipe Left", "Wipe Right", "Iris", "Cross Fade", "Fade Left", "Wheel"};

class EffectListTest : public ::testing::Test {
  protected:
    EffectListTest() {
        for (int Row = 0; Row < Names.size(); ++Row) List.AddEffect(Names[Row], Row + 1, "Lite");
        List.resize(240, 300);
        List.show();
        (void)QTest::qWaitForWindowExposed(&List);
    }
    QPoint OnName(int Row) const { return List.visualItemRect(List.item(Row)).center(); }
    QPoint OnMark(int Row) const {
        const QRect Place = List.visualItemRect(List.item(Row));
        return {Place.left() + Place.height() / 2, Place.center().y()};
    }
    void Click(const QPoint& At, Qt::KeyboardModifiers With = {}) {
        QTest::mouseClick(List.viewport(), Qt::LeftButton, With, At);
        QTest::qWait(1);  // no double click
    }
    std::string Selected() const {
        std::string Rows;
        for (int Row = 0; Row < List.count(); ++Row)
            Rows += List.item(Row)->isSelected() ? 'x' : '.';
        return Rows;
    }
    EffectList List;
};

TEST(FindTyped, PrefersNamesThatBeginWithTheText) {
    EXPECT_EQ(4, FindTyped(Names, "fade", 0)) << "not the one that only holds it";
    EXPECT_EQ(0, FindTyped(Names, "wipe", 0));
    EXPECT_EQ(1, FindTyped(Names, "wipe", 1));
    EXPECT_EQ(0, FindTyped(Names, "WIPE L", 1)) << "round the list";
    EXPECT_EQ(1, FindTyped(Names, "right", 0)) << "inside a name when nothing begins so";
    EXPECT_EQ(-1, FindTyped(Names, "xyz", 0));
    EXPECT_EQ(-1, FindTyped(Names, "", 0));
    EXPECT_EQ(-1, FindTyped({}, "a", 0));
    EXPECT_EQ(0, FindTyped(Names, "w", -1)) << "from nowhere";
    EXPECT_EQ(0, FindTyped(Names, "wipe", static_cast<int>(Names.size())));
}

TEST_F(EffectListTest, ShowsTheNamesAndKeepsTheNumbers) {
    EXPECT_EQ("Wipe Left", List.item(0)->text());
    EXPECT_EQ(1, List.Number(0));
    EXPECT_EQ(1, List.item(0)->data(Qt::UserRole).toInt());
    EXPECT_EQ(0, List.Number(-1));
    EXPECT_EQ(0, List.Number(6));
}

TEST_F(EffectListTest, AClickOnANameGoesThereAndSelectsNothing) {
    Click(OnName(2));
    EXPECT_EQ(2, List.currentRow());
    EXPECT_EQ("......", Selected());
    List.SetAllSelected(true);
    Click(OnName(3));
    EXPECT_EQ(3, List.currentRow());
    EXPECT_EQ("xxxxxx", Selected());
}

TEST_F(EffectListTest, AClickOnACheckMarkTurnsThatOneAlone) {
    Click(OnMark(1));
    Click(OnMark(4));
    EXPECT_EQ(".x..x.", Selected());
    EXPECT_EQ(4, List.currentRow());
    EXPECT_EQ(Qt::Checked, List.item(4)->checkState());
    EXPECT_EQ(Qt::Unchecked, List.item(3)->checkState());
    Click(OnMark(1));
    EXPECT_EQ("....x.", Selected());
}

TEST_F(EffectListTest, CtrlClickOnANameTurnsItToo) {
    Click(OnName(1), Qt::ControlModifier);
    EXPECT_EQ(".x....", Selected());
}

TEST_F(EffectListTest, ShiftClickGivesAllUpToThereTheSameState) {
    Click(OnMark(1));
    Click(OnName(4), Qt::ShiftModifier);
    EXPECT_EQ(".xxxx.", Selected());
    EXPECT_EQ(4, List.currentRow());
    Click(OnMark(4));
    Click(OnMark(2), Qt::ShiftModifier);
    EXPECT_EQ(".x....", Selected());
}

TEST_F(EffectListTest, OtherMouseButtonsSelectNothing) {
    QTest::mouseClick(List.viewport(), Qt::RightButton, {}, OnMark(1));
    EXPECT_EQ("......", Selected());
}

TEST_F(EffectListTest, ADoubleClickOnANameReportsItAndLeavesTheSelection) {
    QSignalSpy Reported(&List, &EffectList::NameDblClicked);
    List.SetAllSelected(true);
    QTest::mouseDClick(List.viewport(), Qt::LeftButton, {}, OnName(3));
    EXPECT_EQ(1, Reported.size());
    EXPECT_EQ(3, List.currentRow());
    EXPECT_EQ("xxxxxx", Selected());
}

TEST_F(EffectListTest, ADoubleClickOnACheckMarkTurnsItTwice) {
    QSignalSpy Reported(&List, &EffectList::NameDblClicked);
    Click(OnMark(3));
    EXPECT_EQ("...x..", Selected());
    QTest::mouseDClick(List.viewport(), Qt::LeftButton, {}, OnMark(3));  // the second click alone
    EXPECT_EQ("......", Selected());
    EXPECT_EQ(0, Reported.size());
}

TEST_F(EffectListTest, IsAListOfCheckMarksToAScreenReader) {
    QAccessibleInterface* Reader = QAccessible::queryAccessibleInterface(&List);
    List.item(1)->setSelected(true);
    EXPECT_EQ("Wipe Right", Reader->child(1)->text(QAccessible::Name));
    EXPECT_TRUE(Reader->child(1)->state().checkable);
    EXPECT_TRUE(Reader->child(1)->state().checked);
    EXPECT_FALSE(Reader->child(2)->state().checked);
    List.item(2)->setCheckState(Qt::Checked);
    EXPECT_EQ(".xx...", Selected());
}

TEST_F(EffectListTest, SpaceTurnsTheCurrentOneAndArrowsOnlyMove) {
    List.setCurrentRow(0, QItemSelectionModel::NoUpdate);
    QTest::keyClick(&List, Qt::Key_Down);
    QTest::keyClick(&List, Qt::Key_Space);
    QTest::keyClick(&List, Qt::Key_Down);
    EXPECT_EQ(".x....", Selected());
    EXPECT_EQ(2, List.currentRow());
    QTest::keyClick(&List, Qt::Key_Up);
    QTest::keyClick(&List, Qt::Key_Space);
    EXPECT_EQ("......", Selected());
}

TEST_F(EffectListTest, ShiftWithAnArrowSpreadsTheState) {
    List.setCurrentRow(1, QItemSelectionModel::NoUpdate);
    QTest::keyClick(&List, Qt::Key_Space);
    QTest::keyClick(&List, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&List, Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(".xxxxx", Selected());
}

TEST_F(EffectListTest, CtrlASelectsAll) {
    QTest::keyClick(&List, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ("xxxxxx", Selected());
    List.SetAllSelected(false);
    EXPECT_EQ("......", Selected());
}

TEST_F(EffectListTest, TypedLettersLeadToTheNameAndSelectNothing) {
    QTest::keyClicks(&List, "wipe r");
    EXPECT_EQ(1, List.currentRow());
    EXPECT_EQ("......", Selected());
}

TEST_F(EffectListTest, ABlankThatLeadsNowhereTurnsTheCurrentOne) {
    QTest::keyClicks(&List, "iris");
    QTest::keyClick(&List, Qt::Key_Space);
    EXPECT_EQ("..x...", Selected());
    EXPECT_EQ(2, List.currentRow());
}

TEST_F(EffectListTest, OneLetterAgainAndAgainWalksThroughItsNames) {
    for (const int Expected : {1, 5, 0, 1}) {
        QTest::keyClick(&List, 'w');
        EXPECT_EQ(Expected, List.currentRow());
    }
    EXPECT_EQ("......", Selected());
}

TEST_F(EffectListTest, APauseBeginsANewWord) {
    QTest::keyClicks(&List, "wi");
    EXPECT_EQ(1, List.currentRow());
    QTest::qWait(1100);
    QTest::keyClicks(&List, "ir");
    EXPECT_EQ(2, List.currentRow());
}

TEST_F(EffectListTest, CapitalLettersSpreadNothing) {
    List.setCurrentRow(0, QItemSelectionModel::NoUpdate);
    QTest::keyClick(&List, Qt::Key_Space);
    QTest::keyClick(&List, Qt::Key_C, Qt::ShiftModifier);
    EXPECT_EQ(3, List.currentRow());
    EXPECT_EQ("x.....", Selected());
}

}  // namespace
}  // namespace neb
