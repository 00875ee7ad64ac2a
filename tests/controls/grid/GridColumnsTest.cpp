// Columns are at least as wide as their headings, in a narrow grid, too; what an empty grid says
// has room in it, and screen readers hear it.
#include "controls/grid/GridColumns.h"

#include <gtest/gtest.h>
#include <QHeaderView>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include "controls/fields/HintColour.h"
#include "controls/grid/EmptyHint.h"
#include "controls/grid/FlexGrid.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class Columns : public ::testing::Test {
  protected:
    Columns() {
        Grid.SetCols(3);
        Grid.SetColumn(0,
                       {.Kind = FlexKind::Picture, .Heading = u"A Heading Longer Than Pictures"_s});
        Grid.SetColumn(1, {.Stretch = true, .Heading = u"What the Caption Says"_s});
        Grid.SetColumn(2, {.Width = 90, .Heading = u"File"_s});
    }
    void ShowAt(int Width) {
        Grid.resize(Width, 200);
        Grid.show();
        QCoreApplication::processEvents();
    }
    int Has(int Col) { return Grid.horizontalHeader()->sectionSize(Col); }
    int Needs(int Col) { return Grid.horizontalHeader()->sectionSizeHint(Col); }
    FlexGrid Grid;
};

TEST_F(Columns, AreAsWideAsTheirHeadingsInANarrowGrid) {
    ShowAt(260);
    for (int Col : {0, 1, 2}) EXPECT_GE(Has(Col), Needs(Col)) << Col;
    EXPECT_GT(Grid.horizontalHeader()->length(), Grid.viewport()->width()) << "it scrolls";
}

TEST_F(Columns, TakeTheRoomThatIsLeftAndGiveItBack) {
    ShowAt(900);
    EXPECT_EQ(Grid.viewport()->width(), Grid.horizontalHeader()->length());
    EXPECT_GT(Has(1), Needs(1) * 2);
    ShowAt(260);
    EXPECT_EQ(Needs(1), Has(1));
    ShowAt(900);
    EXPECT_EQ(Grid.viewport()->width(), Grid.horizontalHeader()->length());
}

TEST_F(Columns, WhatAnEmptyGridSaysHasRoomAndIsHeard) {
    const QString Text = u"This album has no slides.\nAdd some with Slide Manager in the menu."_s;
    Grid.SetEmptyText(Text);
    ShowAt(260);
    EXPECT_EQ(Text, Grid.accessibleDescription());
    const int Margin = Grid.fontMetrics().height();
    const QRect Room = Grid.viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin);
    EXPECT_GE(Room.height(),
              Grid.fontMetrics().boundingRect(Room, Qt::TextWordWrap, Text).height());
    Grid.AddItem();
    EXPECT_EQ(QString(), Grid.accessibleDescription());
    Grid.SetRows(0);
    EXPECT_EQ(Text, Grid.accessibleDescription());
}

TEST(EmptyHint, IsSeenAndHeardForAsLongAsATreeHasNoRows) {
    QTreeWidget Tree;
    SetEmptyHint(Tree, u"Nothing is here yet."_s);
    Tree.resize(300, 200);
    Tree.show();
    const auto* Hint = Tree.viewport()->findChild<QLabel*>();
    ASSERT_TRUE(Hint);
    EXPECT_TRUE(Hint->isVisible());
    EXPECT_EQ(u"Nothing is here yet."_s, Tree.accessibleDescription());
    EXPECT_GE(Contrast(Hint->palette().color(Hint->foregroundRole()),
                       Tree.palette().color(QPalette::Base)),
              4.5);
    Tree.addTopLevelItem(new QTreeWidgetItem({u"A row"_s}));
    EXPECT_FALSE(Hint->isVisible());
    EXPECT_EQ(QString(), Tree.accessibleDescription());
    Tree.clear();
    EXPECT_TRUE(Hint->isVisible());
}

}  // namespace
}  // namespace neb
