// Many rows moved together: their order, the selection, and the time that it takes.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>
#include <numeric>

#include "GridHarness.h"
#include "harness/ByTheClock.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;
using Rows = std::vector<int>;

// The plain rule: what stays before the place, the moved, what stays after it.
QStringList Expected(int Count, const Rows& Moved, int Before) {
    QStringList Head, Middle, Tail;
    for (int Row = 0; Row < Count; ++Row) {
        const bool Goes = std::binary_search(Moved.begin(), Moved.end(), Row);
        (Goes ? Middle : Row < Before ? Head : Tail) << QStringLiteral("Slide %1").arg(Row);
    }
    return Head + Middle + Tail;
}

QStringList SelectedCaptions(const FlexGrid& Grid) {
    QStringList All;
    for (const int Row : SelectedRowsOf(Grid)) All << Grid.TextMatrix(Row, Caption);
    return All;
}

TEST(FlexGridMoveRows, EverySetOfRowsGoesBeforeEveryPlace) {
    constexpr int Count = 6;
    for (int Set = 0; Set < 1 << Count; ++Set)
        for (int Before = 0; Before <= Count; ++Before) {
            FlexGrid Grid;
            SetAlbumColumns(Grid);
            FillAlbum(Grid, Count);
            Rows Moved;
            for (int Row = 0; Row < Count; ++Row)
                if (Set & 1 << Row) Moved.push_back(Row);
            for (const int Row : Moved) Grid.SelectRow(Row);
            const QStringList Selected = SelectedCaptions(Grid);
            Grid.MoveRowsBefore(Moved, Before);
            ASSERT_EQ(Captions(Grid), Expected(Count, Moved, Before)) << Set << " to " << Before;
            ASSERT_EQ(SelectedCaptions(Grid), Selected) << Set << " to " << Before;
        }
}

TEST(FlexGridMoveRows, TheCurrentRowTheKeysAndTheDataGoAlong) {
    FlexGrid Grid;
    SetAlbumColumns(Grid);
    FillAlbum(Grid, 10);
    Grid.SetKeyColumn(Key);
    Grid.SetRow(7);
    Grid.SelectRow(8);
    Grid.MoveRowsBefore({7, 8}, 2);
    EXPECT_EQ(Grid.Row(), 2);
    EXPECT_EQ(Grid.FindRow(Key, 7), 2);
    EXPECT_EQ(Grid.FindRow(Key, 2), 4);
    Grid.SetCellData(9, Key, 0.0);
    Grid.MoveRowsBefore({9}, 0);
    EXPECT_EQ(Grid.FindRow(Key, 0), 0);
    Grid.MoveRowsBefore({0}, 10);
    EXPECT_EQ(Grid.FindRow(Key, 0), 0);
    EXPECT_EQ(Grid.CellPicture(3, Thumb).pixel(0, 0), qRgb(8, 90, 160));
    EXPECT_TRUE(Grid.Redraw());
}

TEST(FlexGridMoveRows, KeysAreFoundAfterManyMovesToOnePlace) {
    FlexGrid Grid;
    SetAlbumColumns(Grid);
    FillAlbum(Grid, 200);
    Grid.SetKeyColumn(Key);
    for (int Step = 0; Step < 300; ++Step) Grid.MoveRowsBefore({20, 50, 51, 180}, 100 + Step % 3);
    for (int Row = 0; Row < Grid.Rows(); ++Row)
        ASSERT_EQ(Grid.FindRow(Key, Grid.TextMatrix(Row, Key).toInt()), Row);
}

TEST(FlexGridMoveRows, OneChangeIsToldAndNoneWhereNothingMoves) {
    FlexGrid Grid;
    SetAlbumColumns(Grid);
    FillAlbum(Grid, 10);
    for (const int Row : {2, 3, 6}) Grid.SelectRow(Row);
    QSignalSpy Changed(&Grid, &FlexGrid::SelChange);
    Grid.MoveRowsBefore({2, 3}, 4);
    Grid.MoveRowsBefore({2, 3}, 2);
    Grid.MoveRowsBefore({}, 5);
    EXPECT_EQ(Changed.count(), 0);
    Grid.MoveRowsBefore({2, 3, 6}, 0);
    EXPECT_EQ(Changed.count(), 1);
}

TEST(FlexGridMoveRows, WithRedrawOffItStaysOff) {
    FlexGrid Grid;
    SetAlbumColumns(Grid);
    FillAlbum(Grid, 4);
    Grid.SetRedraw(false);
    Grid.MoveRowsBefore({0}, 4);
    EXPECT_FALSE(Grid.Redraw());
    Grid.SetRedraw(true);
    EXPECT_EQ(Captions(Grid), Expected(4, {0}, 4));
}

TEST(FlexGridMoveRows, ARowOrAPlaceOutsideIsAFaultThatMovesNothing) {
    FlexGrid Grid;
    SetAlbumColumns(Grid);
    FillAlbum(Grid, 4);
    const struct {
        Rows Moved;
        int Before;
    } Wrong[] = {{{0, 4}, 2}, {{-1, 2}, 2}, {{1}, 5}, {{1}, -1}, {{2, 1}, 0}, {{1, 1}, 0}};
    for (const auto& Each : Wrong)
        EXPECT_THROW(Grid.MoveRowsBefore(Each.Moved, Each.Before), Fault);
    EXPECT_EQ(Captions(Grid), Expected(4, {}, 0));
    EXPECT_TRUE(Grid.Redraw());
}

TEST(FlexGridMoveRows, ThousandsOfRowsMoveInLessThanTheTimeOfARebuild) {
    harness::GoByTheClock();
    constexpr int Count = 10000;
    FlexGrid Grid;
    SetAlbumColumns(Grid);
    ShowGrid(Grid);
    QElapsedTimer Watch;
    Watch.start();
    Grid.SetRedraw(false);
    FillAlbum(Grid, Count);
    Grid.SetKeyColumn(Key);
    Grid.SetRedraw(true);
    const qint64 Rebuild = Watch.nsecsElapsed();
    RecordProperty("rebuild", std::to_string(Rebuild / 1000));
    Rows EverySecond;
    for (int Row = 1; Row < Count; Row += 2) EverySecond.push_back(Row);
    for (const int Before : {0, Count / 2, Count}) {
        Grid.SetRedraw(false);
        FillAlbum(Grid, Count);
        Grid.ClearSelection();
        for (const int Row : EverySecond) Grid.SelectRow(Row);
        Grid.SetRedraw(true);
        Watch.restart();
        Grid.MoveRowsBefore(EverySecond, Before);
        const qint64 Moving = Watch.nsecsElapsed();
        RecordProperty("before" + std::to_string(Before), std::to_string(Moving / 1000));
        EXPECT_LT(Moving, Rebuild) << "5,000 of 10,000 before " << Before;
        EXPECT_EQ(Captions(Grid), Expected(Count, EverySecond, Before));
    }
}

}  // namespace
}  // namespace neb
