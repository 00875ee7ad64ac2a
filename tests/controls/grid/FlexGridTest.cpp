// The operations of the grid as a store, with and without a window: rows, cells, selection,
// and what stays with its rows while redraw is off.
#include "controls/grid/FlexGrid.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <QHeaderView>
#include <QScrollBar>

#include "GridHarness.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

struct AlbumGrid : FlexGrid {
    explicit AlbumGrid(int Rows) {
        SetAlbumColumns(*this);
        FillAlbum(*this, Rows);
    }
};

TEST(FlexGrid, RowsGrowAndShrinkAtTheEnd) {
    AlbumGrid Grid(3);
    Grid.SetRows(5);
    EXPECT_EQ(Captions(Grid), QStringList({"Slide 0", "Slide 1", "Slide 2", "", ""}));
    Grid.SetRows(2);
    EXPECT_EQ(Captions(Grid), QStringList({"Slide 0", "Slide 1"}));
    Grid.SetRows(0);
    EXPECT_EQ(Grid.Rows(), 0);
}

TEST(FlexGrid, RowsComeAndGoInTheMiddle) {
    AlbumGrid Grid(3);
    Grid.RemoveItem(1);
    Grid.InsertItem(0);
    EXPECT_EQ(Captions(Grid), QStringList({"", "Slide 0", "Slide 2"}));
    EXPECT_EQ(Grid.AddItem(), 3);
    Grid.SetRowPosition(2, 0);
    EXPECT_EQ(Captions(Grid), QStringList({"Slide 2", "", "Slide 0", ""}));
}

TEST(FlexGrid, ACellHoldsATextADatumAndAPicture) {
    AlbumGrid Grid(1);
    EXPECT_EQ(Grid.CellData(0, Path), CellValue());
    const QDateTime Stamp = QDateTime::currentDateTime();
    Grid.SetCellData(0, Path, Stamp);
    EXPECT_EQ(Grid.CellData(0, Path), CellValue(Stamp));
    Grid.SetCellData(0, Path, CellValue());
    EXPECT_EQ(Grid.CellData(0, Path), CellValue());
    EXPECT_EQ(Grid.CellPicture(0, Thumb), Thumbnail(qRgb(0, 90, 160)));
}

TEST(FlexGrid, ACopiedPictureIsShared) {
    AlbumGrid From(1), To(1);
    To.CopyCell(From, 0, Thumb, 0, Thumb);
    EXPECT_EQ(To.CellPicture(0, Thumb).constBits(), From.CellPicture(0, Thumb).constBits());
}

TEST(FlexGrid, OutsideIsAFaultAndTheGridStaysUsable) {
    AlbumGrid Grid(2);
    EXPECT_THROW(Grid.TextMatrix(2, 0), Fault);
    EXPECT_THROW(Grid.SetTextMatrix(0, GridColumns, "x"), Fault);
    EXPECT_THROW(Grid.RemoveItem(2), Fault);
    EXPECT_THROW(Grid.SetRows(-1), Fault);
    EXPECT_THROW(Grid.SelectRow(-1), Fault);
    Grid.RemoveItem(0);
    EXPECT_EQ(Captions(Grid), QStringList({"Slide 1"}));
    EXPECT_EQ(Grid.model()->rowCount(), 1);
}

TEST(FlexGrid, AKeyColumnFindsRowsAfterChangesOfEveryKind) {
    AlbumGrid Grid(10);
    Grid.SetKeyColumn(Key);
    Grid.RemoveItem(3);
    EXPECT_EQ(Grid.FindRow(Key, 3), -1);
    EXPECT_EQ(Grid.FindRow(Key, 7), 6);
    Grid.SetCellData(0, Key, 7.0);
    EXPECT_EQ(Grid.FindRow(Key, 7), 0);
    Grid.SetRows(4);
    EXPECT_EQ(Grid.FindRow(Key, 9), -1);
}

TEST(FlexGrid, TheSelectionIsCountedFromTheTop) {
    AlbumGrid Grid(6);
    Grid.SelectRow(4);
    Grid.SelectRow(1);
    EXPECT_EQ(SelectedRowsOf(Grid), (std::vector<int>{1, 4}));
    EXPECT_EQ(Grid.SelectedRow(2), -1);
    EXPECT_TRUE(Grid.IsSelected(4));
    EXPECT_FALSE(Grid.IsSelected(2));
    Grid.SetRow(2);
    EXPECT_EQ(SelectedRowsOf(Grid), (std::vector<int>{2}));
    EXPECT_EQ(Grid.Row(), 2);
    Grid.ClearSelection();
    EXPECT_EQ(Grid.SelectedRows(), 0);
}

class FlexGridRedraw : public ::testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(OnAndOff, FlexGridRedraw, ::testing::Bool());

TEST_P(FlexGridRedraw, TheSelectionStaysWithItsRows) {
    AlbumGrid Grid(8);
    for (const int Row : {1, 3, 6}) Grid.SelectRow(Row);
    Grid.SetRedraw(GetParam());
    Grid.RemoveItem(3);
    Grid.InsertItem(0);
    Grid.SetRowPosition(6, 1);
    EXPECT_EQ(SelectedRowsOf(Grid), (std::vector<int>{1, 3}));
    Grid.SetRedraw(true);
    EXPECT_EQ(SelectedRowsOf(Grid), (std::vector<int>{1, 3}));
    EXPECT_EQ(Grid.TextMatrix(1, Caption), "Slide 6");
}

TEST_P(FlexGridRedraw, SelectedRowsCanBeRemovedFromTheLastToTheFirst) {
    AlbumGrid Grid(9);
    for (const int Row : {0, 2, 3, 8}) Grid.SelectRow(Row);
    Grid.SetRedraw(GetParam());
    for (int I = Grid.SelectedRows() - 1; I >= 0; --I) Grid.RemoveItem(Grid.SelectedRow(I));
    Grid.SetRedraw(true);
    EXPECT_EQ(Grid.SelectedRows(), 0);
    EXPECT_EQ(Captions(Grid), QStringList({"Slide 1", "Slide 4", "Slide 5", "Slide 6", "Slide 7"}));
}

TEST_P(FlexGridRedraw, TheCurrentRowIsKept) {
    AlbumGrid Grid(8);
    Grid.SetRow(5);
    Grid.SetRedraw(GetParam());
    Grid.RemoveItem(0);
    EXPECT_EQ(Grid.Row(), 4);
    Grid.SetRedraw(true);
    EXPECT_EQ(Grid.Row(), 4);
}

TEST(FlexGrid, ManyChangesWithRedrawOffAreToldOnce) {
    AlbumGrid Grid(0);
    QSignalSpy Inserted(Grid.model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy Changed(Grid.model(), &QAbstractItemModel::dataChanged);
    Grid.SetRedraw(false);
    FillAlbum(Grid, 500);
    EXPECT_EQ(Inserted.count() + Changed.count(), 0);
    EXPECT_EQ(Grid.model()->rowCount(), 0);
    Grid.SetRedraw(true);
    EXPECT_EQ(Inserted.count(), 1);
    EXPECT_EQ(Changed.count(), 1);
    EXPECT_EQ(Grid.model()->rowCount(), 500);
}

TEST(FlexGrid, ThePlaceInTheListIsKeptOverRedrawOff) {
    AlbumGrid Grid(200);
    ShowGrid(Grid);
    Grid.verticalScrollBar()->setValue(4000);
    Grid.SetRedraw(false);
    Grid.SetRows(300);
    Grid.SetTextMatrix(50, Caption, "changed");
    Grid.SetRedraw(true);
    EXPECT_EQ(Grid.verticalScrollBar()->value(), 4000);
    QApplication::processEvents();
    EXPECT_EQ(Grid.verticalScrollBar()->value(), 4000);
}

TEST(FlexGrid, AColumnOnceSetUpStaysSoOverRedrawOff) {
    AlbumGrid Grid(3);
    Grid.SetRedraw(false);
    Grid.SetRows(0);
    Grid.SetRedraw(true);
    EXPECT_TRUE(Grid.isColumnHidden(Path));
    EXPECT_EQ(Grid.horizontalHeader()->sectionResizeMode(Caption), QHeaderView::Stretch);
}

TEST(FlexGrid, ASelectionThatVanishesWhileRedrawIsOffIsTold) {
    AlbumGrid Grid(3);
    Grid.SelectRow(2);
    QSignalSpy Changed(&Grid, &FlexGrid::SelChange);
    Grid.SetRedraw(false);
    Grid.SetRows(1);
    EXPECT_EQ(Changed.count(), 0);
    Grid.SetRedraw(true);
    EXPECT_EQ(Changed.count(), 1);
    EXPECT_EQ(Grid.SelectedRows(), 0);
    EXPECT_EQ(Grid.Row(), -1);
}

TEST(FlexGrid, AListenerHearsCaptionsAndTheStateOfBoxes) {
    AlbumGrid Grid(1);
    FlexColumn Check;
    Check.Kind = FlexKind::Check;
    Check.Heading = "Fit To\nSong";
    Grid.SetColumn(Place, Check);
    Grid.SetTextMatrix(0, Place, "True");
    const auto Spoken = [&](int Col) {
        return Grid.model()->index(0, Col).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(Spoken(Thumb), "Slide 0");
    EXPECT_EQ(Spoken(Caption), "Slide 0");
    EXPECT_EQ(Spoken(Place), "Fit To Song");
    EXPECT_EQ(Grid.model()->index(0, Place).data(Qt::CheckStateRole), QVariant(Qt::Checked));
}

// The thumbnail alone is 20.25 KB; the rest of a row, with a long caption and path, stays small.
TEST(FlexGrid, ARowNeedsAtMost25KBOfMemory) {
    if (mallinfo2().uordblks == 0) GTEST_SKIP() << "this allocator does not count";
    constexpr int Count = 2000;
    AlbumGrid Grid(0);
    Grid.SetKeyColumn(Key);
    const size_t Before = mallinfo2().uordblks + mallinfo2().hblkhd;
    FillAlbum(Grid, Count);
    for (int Row = 0; Row < Count; ++Row) {
        Grid.SetTextMatrix(Row, Caption,
                           QStringLiteral("Holidays by the sea, the day we %1").arg(Row));
        Grid.SetTextMatrix(Row, Path, QString(100, u'x') + QString::number(Row));
    }
    const size_t After = mallinfo2().uordblks + mallinfo2().hblkhd;
    const double Each = static_cast<double>(After - Before) / Count;
    RecordProperty("BytesPerRow", static_cast<int>(Each));
    EXPECT_GT(Each, 72 * 72 * 4);
    EXPECT_LE(Each, 25 * 1024);
}

}  // namespace
}  // namespace neb
