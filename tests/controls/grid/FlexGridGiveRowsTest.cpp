// Rows that one grid gives to another.
#include <gtest/gtest.h>

#include "GridHarness.h"
#include "controls/grid/GridRows.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

class FlexGridGiving : public ::testing::Test {
  protected:
    FlexGridGiving() {
        for (FlexGrid* Grid : {&From, &To}) {
            SetAlbumColumns(*Grid);
            Grid->SetKeyColumn(Key);
        }
        FillAlbum(From, 6);
    }
    static std::string Keys(const FlexGrid& Grid) {
        QStringList All;
        for (int Row = 0; Row < Grid.Rows(); ++Row) All << Grid.TextMatrix(Row, Key);
        return All.join(u',').toStdString();
    }
    FlexGrid From, To;
};

TEST_F(FlexGridGiving, RowsComeToTheEndInTheirOrderWithAllTheirCells) {
    From.GiveRows({1, 4}, To);
    EXPECT_EQ("0,2,3,5", Keys(From));
    EXPECT_EQ("1,4", Keys(To));
    From.GiveRows({0}, To);
    EXPECT_EQ("1,4,0", Keys(To));
    EXPECT_EQ("Slide 4", To.TextMatrix(1, Caption).toStdString());
    EXPECT_EQ(4.0, std::get<double>(To.CellData(1, Key)));
    EXPECT_FALSE(To.CellPicture(1, Thumb).isNull());
    EXPECT_EQ(3, To.model()->rowCount());
    EXPECT_EQ(3, From.model()->rowCount());
}

TEST_F(FlexGridGiving, EachIsFoundWhereItIs) {
    From.GiveRows({1, 2, 5}, To);
    EXPECT_EQ(-1, From.FindRow(Key, 2));
    EXPECT_EQ(1, From.FindRow(Key, 3));
    EXPECT_EQ(1, To.FindRow(Key, 2));
    EXPECT_EQ(-1, To.FindRow(Key, 3));
    To.GiveRows({0, 1, 2}, From);
    EXPECT_EQ("0,3,4,1,2,5", Keys(From));
    EXPECT_EQ(3, From.FindRow(Key, 1));
    EXPECT_EQ(0, To.Rows());
}

TEST_F(FlexGridGiving, WhatStaysSelectedStaysSoAndWhatGoesIsNot) {
    From.SetRow(3);
    for (int Row : {1, 5}) From.SelectRow(Row);
    EXPECT_EQ((std::vector<int>{1, 3, 5}), RowsToMove(From, false));
    From.GiveRows({0, 3}, To);
    EXPECT_EQ((std::vector<int>{0, 3}), SelectedRowsOf(From));
    EXPECT_TRUE(SelectedRowsOf(To).empty());
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3}), RowsToMove(From, true));
}

TEST_F(FlexGridGiving, WhatCannotBeGivenIsAFaultAndChangesNothing) {
    FlexGrid Narrow;
    Narrow.SetCols(2);
    EXPECT_THROW(From.GiveRows({6}, To), Fault);
    EXPECT_THROW(From.GiveRows({-1}, To), Fault);
    EXPECT_THROW(From.GiveRows({2, 1}, To), Fault);
    EXPECT_THROW(From.GiveRows({0}, From), Fault);
    EXPECT_THROW(From.GiveRows({0}, Narrow), Fault);
    From.GiveRows({}, To);
    EXPECT_EQ("0,1,2,3,4,5", Keys(From));
    EXPECT_EQ(0, To.Rows());
    EXPECT_TRUE(From.Redraw());
    EXPECT_TRUE(To.Redraw());
}

TEST_F(FlexGridGiving, GridsThatStandStillGoOnDoingSo) {
    const QuietGrids Quiet(From, To);
    From.GiveRows({0, 1}, To);
    EXPECT_FALSE(From.Redraw());
    EXPECT_FALSE(To.Redraw());
    EXPECT_EQ(0, To.model()->rowCount());
    EXPECT_EQ("0,1", Keys(To));
}

}  // namespace
}  // namespace neb
