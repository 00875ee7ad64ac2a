// The layouts against numbers worked out by hand.
#include "printing/PageLayouts.h"

#include <gtest/gtest.h>
#include <cmath>

namespace neb {
namespace {

constexpr double Close = 1e-9;

void ExpectSize(QSizeF Is, double Width, double Height) {
    EXPECT_NEAR(Is.width(), Width, Close);
    EXPECT_NEAR(Is.height(), Height, Close);
}

CellGrid Grid(double PerRow, double Rows, PageTurn Turn, bool KeepsRatio = true) {
    auto Made = GridFor({PerRow, Rows, Turn, KeepsRatio});
    EXPECT_TRUE(Made);
    return Made ? *Made : CellGrid();
}

using enum PageTurn;

struct CellRow {
    double PerRow, Rows;
    PageTurn Turn;
    int Cols, WholeRows;
    double Width, Height;
};
const CellRow Cells[] = {
    {3, 4, Landscape, 3, 4, 2.9, 1.5125},            // (9 - 0.3) / 3, (6.5 - 0.45) / 4
    {3, 4, Portrait, 3, 4, 2.066666666667, 2.1375},  // (6.5 - 0.3) / 3, (9 - 0.45) / 4
    {1, 1, Landscape, 1, 1, 9, 6.5},
    {1, 1, Portrait, 1, 1, 6.5, 9},
    {2, 2, Portrait, 2, 2, 3.175, 4.425},                  // (6.5 - 0.15) / 2, (9 - 0.15) / 2
    {10, 10, Landscape, 10, 10, 0.765, 0.515},             // (9 - 1.35) / 10, (6.5 - 1.35) / 10
    {2.5, 3.5, Landscape, 2, 4, 4.425, 1.5125},            // halves to the even number
    {1.4999, 2.51, Portrait, 1, 3, 6.5, 2.9},              // (9 - 0.3) / 3
    {60, 43, Landscape, 60, 43, 0.0025, 0.004651162791}};  // 0.15 / 60, 0.2 / 43

TEST(PageLayouts, TheCellFollowsFromThePageAndTheNumbers) {
    for (const CellRow& Row : Cells) {
        SCOPED_TRACE(::testing::Message() << Row.PerRow << " by " << Row.Rows);
        const CellGrid Made = Grid(Row.PerRow, Row.Rows, Row.Turn);
        EXPECT_EQ(Made.Cols, Row.Cols);
        EXPECT_EQ(Made.Rows, Row.WholeRows);
        ExpectSize(Made.Cell, Row.Width, Row.Height);
        EXPECT_EQ(Made.Turn, Row.Turn);
    }
}

struct PlaceRow {
    int Row, Col, Index;
    double X, Y;
};
const PlaceRow Places[] = {{1, 1, 0, 1, 1},        {1, 2, 1, 4.05, 1},     {1, 3, 2, 7.1, 1},
                           {2, 1, 3, 1, 2.6625},   {2, 3, 5, 7.1, 2.6625}, {3, 2, 7, 4.05, 4.325},
                           {4, 3, 11, 7.1, 5.9875}};

TEST(PageLayouts, CellsStandOneInchInWithAGapBetweenThem) {
    const CellGrid Made = Grid(3, 4, Landscape);
    EXPECT_EQ(Made.CellsPerPage(), 12);
    for (const PlaceRow& Row : Places) {
        SCOPED_TRACE(Row.Index);
        const QRectF ByRow = CellAt(Made, Row.Row, Row.Col), ByIndex = CellAt(Made, Row.Index);
        EXPECT_NEAR(ByRow.x(), Row.X, Close);
        EXPECT_NEAR(ByRow.y(), Row.Y, Close);
        EXPECT_EQ(ByRow, ByIndex);
        ExpectSize(ByRow.size(), 2.9, 1.5125);
    }
}

struct FitRow {
    PageTurn Turn;
    QSize Picture;
    double Width, Height;
};
const FitRow Fits[] = {
    {Landscape, {1024, 768}, 2.016666666667, 1.5125},  // 4 / 3 of the height is below 2.9
    {Landscape, {300, 100}, 2.9, 0.966666666667},      // 3 times the height is above it
    {Landscape, {77, 77}, 1.5125, 1.5125},             // a square one counts as wide
    {Landscape, {100, 200}, 0.75625, 1.5125},
    {Portrait, {77, 77}, 2.066666666667, 2.066666666667},
    {Portrait, {300, 400}, 1.603125, 2.1375},  // 4 / 3 of the width is above 2.1375
    {Portrait, {100, 101}, 2.066666666667, 2.087333333333},
    {Portrait, {50000, 1}, 2.066666666667, 0.0000413333333}};

TEST(PageLayouts, APictureIsAsLargeAsFitsInItsCell) {
    for (const FitRow& Row : Fits) {
        SCOPED_TRACE(::testing::Message() << Row.Picture.width() << 'x' << Row.Picture.height());
        ExpectSize(SizeInCell(Grid(3, 4, Row.Turn), Row.Picture), Row.Width, Row.Height);
    }
    ExpectSize(SizeInCell(Grid(3, 4, Landscape, false), {100, 200}), 2.9, 1.5125);
}

TEST(PageLayouts, ALastPageWithRoomLeftIsTheLast) {
    CellGrid Made = Grid(3, 4, Landscape);
    const std::pair<int, int> Table[] = {{0, 0}, {1, 1}, {12, 1}, {13, 2}, {24, 2}, {25, 3}};
    for (const auto& [Pictures, Pages] : Table) EXPECT_EQ(PagesFor(Made, Pictures), Pages);
    Made.WholeSheet = true;
    EXPECT_EQ(PagesFor(Made, 13), 13);
}

struct RefusedGrid {
    GridWish Wish;
    const char *Text, *Title;
};
const RefusedGrid Refused[] = {
    {{0.99, 0}, "You must have 1 or more slides per row.", "Invalid User Input"},
    {{0, 4}, "You must have 1 or more slides per row.", "Invalid User Input"},
    {{3, 0.5}, "You must have 1 or more rows per page.", "Invalid User Input"},
    {{std::nan(""), 4}, "You must have 1 or more slides per row.", "Invalid User Input"},
    {{0, 4, Landscape, true, true, true}, "You must have 1 or more copies per row.", ""},
    {{3, -1, Landscape, true, true, true}, "You must have 1 or more rows per page.", ""},
    // (9 - 0.15 x 60) / 61 is no width.
    {{61, 4},
     "There is room for at most 60 columns on the page side by side.",
     "Invalid User Input"},
    {{45, 4, Portrait},
     "There is room for at most 44 columns on the page side by side.",
     "Invalid User Input"},
    {{3, 45},
     "There is room for at most 44 rows on the page below each other.",
     "Invalid User Input"},
    {{1e300, 4, Landscape, true, true, true},
     "There is room for at most 60 columns on the page side by side.",
     ""}};

TEST(PageLayouts, AGridWithoutAPositiveCellIsRefusedInWords) {
    for (const RefusedGrid& Row : Refused) {
        SCOPED_TRACE(::testing::Message() << Row.Wish.PerRow << " by " << Row.Wish.RowsPerPage);
        const auto Made = GridFor(Row.Wish);
        ASSERT_FALSE(Made);
        EXPECT_EQ(Made.Refusal().Text.toStdString(), Row.Text);
        EXPECT_EQ(Made.Refusal().Title.toStdString(), Row.Title);
    }
    EXPECT_TRUE(GridFor({60, 44}));
    EXPECT_TRUE(GridFor({44, 60, Portrait}));
}

struct OpeningRow {
    QSize Picture;
    PageTurn Turn;
    double Width, Height;
};
const OpeningRow Openings[] = {{{500, 500}, Portrait, 6.5, 6.5},
                               {{300, 400}, Portrait, 6.5, 8.666666666667},
                               {{100, 200}, Portrait, 4.5, 9},
                               {{400, 300}, Landscape, 8.666666666667, 6.5},
                               {{200, 100}, Landscape, 9, 4.5}};

TEST(PageLayouts, ASinglePictureIsOfferedAsLargeAsThePageTakesIt) {
    for (const OpeningRow& Row : Openings) {
        SCOPED_TRACE(::testing::Message() << Row.Picture.width() << 'x' << Row.Picture.height());
        const SlideWish Wish = OpeningWish(Row.Picture);
        EXPECT_EQ(Wish.Turn, Row.Turn);
        ExpectSize({Wish.Width, Wish.Height}, Row.Width, Row.Height);
        auto Size = SlideSizeFor(Wish, Row.Picture);
        ASSERT_TRUE(Size) << Size.Refusal().Text.toStdString();
        ExpectSize(*Size, Row.Width, Row.Height);
    }
}

TEST(PageLayouts, OneSideOfASinglePictureFollowsTheOther) {
    EXPECT_NEAR(HeightForWidth(4, {400, 300}), 3, Close);
    EXPECT_NEAR(WidthForHeight(3, {400, 300}), 4, Close);
}

TEST(PageLayouts, ASinglePictureIsDrawnAsItsLongerSideSays) {
    const auto SizeOf = [](const SlideWish& Wish, QSize Picture) {
        auto Size = SlideSizeFor(Wish, Picture);
        EXPECT_TRUE(Size);
        return Size ? *Size : QSizeF();
    };
    ExpectSize(SizeOf({4, 6, Portrait}, {400, 300}), 4, 3);
    ExpectSize(SizeOf({4, 6, Portrait}, {300, 400}), 4.5, 6);
    ExpectSize(SizeOf({4, 6, Portrait}, {300, 300}), 6, 6);
    ExpectSize(SizeOf({4, 6, Portrait, false}, {400, 300}), 4, 6);
    EXPECT_EQ(SlidePlace(), QPointF(1, 1));
}

struct RefusedSlide {
    SlideWish Wish;
    const char* Text;
};
const RefusedSlide RefusedSlides[] = {{{0.5, 0.5, Portrait}, "Picture must be >= 1 inch wide."},
                                      {{9, 20, Portrait}, "Picture must be <= 6.5 inches wide."},
                                      {{9.01, 6, Landscape}, "Picture must be <= 9 inches wide."},
                                      {{6, 0, Landscape}, "Picture must be >= 1 inch high."},
                                      {{6, 6.51, Landscape}, "Picture must be <= 6.5 inches high."},
                                      {{6, 9.5, Portrait}, "Picture must be <= 9 inches high."}};

TEST(PageLayouts, ASinglePictureTooSmallOrTooLargeIsRefused) {
    for (const RefusedSlide& Row : RefusedSlides) {
        const auto Size = SlideSizeFor(Row.Wish, {400, 300});
        ASSERT_FALSE(Size) << Row.Text;
        EXPECT_EQ(Size.Refusal().Text.toStdString(), Row.Text);
        EXPECT_EQ(Size.Refusal().Title, QString());
    }
    EXPECT_TRUE(SlideSizeFor({9, 6.5, Landscape}, {400, 300})) << "the limits themselves pass";
    EXPECT_TRUE(SlideSizeFor({1, 1, Portrait}, {400, 300}));
}

}  // namespace
}  // namespace neb
