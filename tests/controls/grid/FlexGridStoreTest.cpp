// Rows found by a key and selections that follow their rows, against the plain way of doing it.
#include "controls/grid/FlexGridStore.h"

#include <gtest/gtest.h>

#include <random>

#include "controls/grid/RowSet.h"
#include "support/Fault.h"

namespace neb {
namespace {

FlexGridStore StoreOf(const std::vector<double>& Keys, bool KeyColumn = true) {
    FlexGridStore Store;
    Store.SetCols(2);
    if (KeyColumn) Store.SetKeyColumn(1);
    Store.InsertRows(0, static_cast<int>(Keys.size()));
    for (size_t I = 0; I < Keys.size(); ++I) Store.SetData(static_cast<int>(I), 1, Keys[I]);
    return Store;
}

int Walk(const FlexGridStore& Store, double Number) {
    for (int Row = 0; Row < Store.Rows(); ++Row)
        if (Store.Cell(Row, 1).Data == CellValue(Number)) return Row;
    return -1;
}

TEST(FlexGridStore, TheFirstRowWithANumberWins) {
    for (const bool KeyColumn : {true, false}) {
        const FlexGridStore Store = StoreOf({7, 5, 9, 5}, KeyColumn);
        EXPECT_EQ(Store.FindRow(1, 5), 1);
        EXPECT_EQ(Store.FindRow(1, 9), 2);
        EXPECT_EQ(Store.FindRow(1, 8), -1);
    }
}

TEST(FlexGridStore, OnlyNumbersAreFound) {
    FlexGridStore Store = StoreOf({0, 0});
    Store.SetData(0, 1, CellValue());
    EXPECT_EQ(Store.FindRow(1, 0), 1);
    Store.SetData(1, 1, QDateTime::currentDateTime());
    EXPECT_EQ(Store.FindRow(1, 0), -1);
    Store.SetText(0, 1, "0");
    EXPECT_EQ(Store.FindRow(1, 0), -1);
}

TEST(FlexGridStore, AFoundRowIsRightAfterRowsBeforeItWent) {
    FlexGridStore Store = StoreOf({1, 2, 3, 4, 3});
    Store.RemoveRows(0, 1);
    EXPECT_EQ(Store.FindRow(1, 3), 1);
    Store.RemoveRows(1, 1);
    EXPECT_EQ(Store.FindRow(1, 3), 2);
    EXPECT_EQ(Store.FindRow(1, 1), -1);
}

TEST(FlexGridStore, AColumnMadeAKeyLaterKnowsTheRowsOfBefore) {
    FlexGridStore Store = StoreOf({4, 6}, false);
    Store.SetKeyColumn(1);
    EXPECT_EQ(Store.FindRow(1, 6), 1);
}

TEST(FlexGridStore, ColumnsThatGoTakeTheirKeysAlong) {
    FlexGridStore Store = StoreOf({4, 6});
    Store.SetCols(1);
    Store.SetCols(2);
    EXPECT_EQ(Store.FindRow(1, 6), -1);
    Store.SetData(0, 1, 6.0);
    EXPECT_EQ(Store.FindRow(1, 6), 0);
}

TEST(FlexGridStore, ManyRowsInsertedAtOnePlaceStayInOrder) {
    FlexGridStore Store = StoreOf({-1, -1});
    for (int I = 0; I < 200; ++I) {
        Store.InsertRows(1, 1);
        Store.SetData(1, 1, static_cast<double>(I % 7));
    }
    for (int I = 0; I < 7; ++I) EXPECT_EQ(Store.FindRow(1, I), Walk(Store, I));
    EXPECT_EQ(Store.FindRow(1, -1), 0);
}

TEST(FlexGridStore, OutsideIsAFaultAndChangesNothing) {
    FlexGridStore Store = StoreOf({1, 2});
    EXPECT_THROW(Store.Cell(2, 0), Fault);
    EXPECT_THROW(Store.Cell(0, 2), Fault);
    EXPECT_THROW(Store.Cell(-1, 0), Fault);
    EXPECT_THROW(Store.RemoveRows(1, 2), Fault);
    EXPECT_THROW(Store.InsertRows(3, 1), Fault);
    EXPECT_THROW(Store.MoveRow(0, 2), Fault);
    EXPECT_THROW(Store.SetKeyColumn(2), Fault);
    EXPECT_EQ(Store.Rows(), 2);
}

// Whatever is done in whatever order, the lookup answers as a walk does.
class FlexGridStoreAtRandom : public ::testing::TestWithParam<unsigned> {
  protected:
    int Below(int Limit) { return std::uniform_int_distribution<int>(0, Limit - 1)(mRandom); }

    void Step(FlexGridStore& Store) {
        const int Rows = Store.Rows();
        const int Kind = Rows == 0 ? 0 : Below(6);
        if (Kind == 0) Store.InsertRows(Below(Rows + 1), 1 + Below(3));
        if (Kind == 1) Store.RemoveRows(Below(Rows), 1);
        if (Kind == 2) Store.MoveRow(Below(Rows), Below(Rows));
        if (Kind > 2) Store.SetData(Below(Rows), 1, static_cast<double>(Below(9)));
    }

    std::mt19937 mRandom{GetParam()};
};

TEST_P(FlexGridStoreAtRandom, TheLookupIsAWalk) {
    FlexGridStore Store = StoreOf({});
    for (int I = 0; I < 2000; ++I) {
        Step(Store);
        const int Key = Below(10);
        ASSERT_EQ(Store.FindRow(1, Key), Walk(Store, Key)) << "step " << I;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, FlexGridStoreAtRandom, ::testing::Range(1u, 9u));

TEST(RowSet, FollowsItsRows) {
    RowSet Set;
    Set.Assign({5, 1, 3, 3});
    EXPECT_EQ(Set.Ascending(), (std::vector<int>{1, 3, 5}));
    Set.RowsInserted(3, 2);
    EXPECT_EQ(Set.Ascending(), (std::vector<int>{1, 5, 7}));
    Set.RowsRemoved(0, 1);
    EXPECT_EQ(Set.Ascending(), (std::vector<int>{0, 4, 6}));
    Set.RowsRemoved(4, 1);
    EXPECT_EQ(Set.Ascending(), (std::vector<int>{0, 5}));
    Set.RowMoved(5, 0);
    EXPECT_EQ(Set.Ascending(), (std::vector<int>{0, 1}));
    Set.RowMoved(3, 1);
    EXPECT_EQ(Set.Ascending(), (std::vector<int>{0, 2}));
}

}  // namespace
}  // namespace neb
