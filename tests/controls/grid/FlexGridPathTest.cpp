// Of a path that is too long for its column the file's name is seen, and what stands just before
// it.
#include <gtest/gtest.h>

#include "GridHarness.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

QImage CellShot(FlexGrid& Grid, int Row) {
    const QRect Cell = Grid.visualRect(Grid.model()->index(Row, 0));
    return Grid.viewport()->grab(Cell).toImage();
}

TEST(FlexGridPath, TheNameIsSeenWhereThereIsNoRoomForAll) {
    FlexGrid Grid;
    Grid.SetCols(1);
    const int Room = Grid.fontMetrics().horizontalAdvance(u"00000012.JPG"_s) * 3 / 2;
    Grid.SetColumn(0, {.IsPath = true, .Width = Room});
    Grid.AddItems({{u"/home/anna/Documents/Albums/1/Slides/00000012.JPG"_s},
                   {u"/media/stick/Pictures of the year/Slides/00000012.JPG"_s},
                   {u"/home/anna/Documents/Albums/1/Slides/00000034.JPG"_s}});
    ShowGrid(Grid, 500, 300);
    Grid.setAlternatingRowColors(false);
    Grid.ClearSelection();
    Grid.clearFocus();
    const QImage First = CellShot(Grid, 0);
    EXPECT_EQ(First, CellShot(Grid, 1)) << "the same end";
    EXPECT_NE(First, CellShot(Grid, 2));
}

}  // namespace
}  // namespace neb
