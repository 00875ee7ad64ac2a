// Where the sheets of each view stand, in numbers.
#include <gtest/gtest.h>

#include "windows/printing/PrintViewLayout.h"

namespace neb {
namespace {

constexpr QSizeF Letter(8.5, 11);

PrintViewState With(PageView View, int Page = 1, int Pages = 12, QSize Room = {1000, 800}) {
    PrintViewState State{View, 100, Page, Pages};
    State.Paper = Letter;
    State.Room = Room;
    State.LabelHeight = 20;
    return State;
}

PrintViewLayout Laid(PageView View, int Page = 1, int Pages = 12, QSize Room = {1000, 800}) {
    return PrintViewLayout(With(View, Page, Pages, Room));
}

TEST(PreviewLayout, OneHundredPercentIsAnInchForAnInch) {
    PrintViewState State = With(PageView::ByZoom, 3);
    EXPECT_EQ(QRect(92, 16, 816, 1056), PrintViewLayout(State).PlaceOf(3));
    EXPECT_EQ(QSize(848, 1088), PrintViewLayout(State).Extent());
    State.Dpi = 120;
    EXPECT_EQ(QSize(1020, 1320), PrintViewLayout(State).PlaceOf(3).size());
    State.Zoom = 25;
    EXPECT_EQ(QSize(255, 330), PrintViewLayout(State).PlaceOf(3).size());
    EXPECT_EQ(QPoint(373, 235), PrintViewLayout(State).PlaceOf(3).topLeft()) << "in the middle";
    EXPECT_TRUE(PrintViewLayout(State).PlaceOf(2).isNull());
}

TEST(PreviewLayout, WholePagesAndWidthsFillTheRoomButForTheEdge) {
    EXPECT_EQ(768, Laid(PageView::WholePage).PlaceOf(1).height());
    EXPECT_EQ(968, Laid(PageView::WholePage, 1, 1, {1000, 5000}).PlaceOf(1).width());
    EXPECT_EQ(968, Laid(PageView::PageWidth).PlaceOf(1).width());
    const PrintViewLayout Two = Laid(PageView::TwoPages, 5);
    EXPECT_EQ(QRect(16, 92, 476, 616), Two.PlaceOf(5));
    EXPECT_EQ(QRect(508, 92, 476, 616), Two.PlaceOf(6));
    EXPECT_TRUE(Two.PlaceOf(7).isNull());
}

TEST(PreviewLayout, TwoPagesEndWithTheLastOnTheRight) {
    EXPECT_EQ(508, Laid(PageView::TwoPages, 12).PlaceOf(12).left());
    EXPECT_EQ(16, Laid(PageView::TwoPages, 12).PlaceOf(11).left());
    EXPECT_EQ(1, Laid(PageView::TwoPages, 1, 1).Count());
}

TEST(PreviewLayout, ThumbnailsStandInRowsWithRoomForTheirNumbers) {
    const PrintViewLayout Grid = Laid(PageView::Thumbnails, 7, 1000);
    EXPECT_EQ(QSize(119, 154), Grid.PlaceOf(1).size());
    ASSERT_EQ(7, Grid.Columns());
    EXPECT_EQ(Grid.PlaceOf(1).top() + 154 + 20 + 16, Grid.PlaceOf(8).top());
    EXPECT_EQ(Grid.PlaceOf(1).left(), Grid.PlaceOf(8).left());
    EXPECT_EQ(143 * 190 + 16, Grid.Extent().height());
    const auto Seen = Grid.SheetsIn({0, 19000, 1000, 800});
    EXPECT_EQ(100 * 7 - 6, Seen.front().Page);
    EXPECT_EQ(105 * 7, Seen.back().Page) << "and no others of a thousand";
    EXPECT_EQ(1000, Grid.SheetsIn({0, Grid.Extent().height() - 10, 1000, 800}).back().Page);
}

TEST(PreviewLayout, APointIsOnAPageOrBeside) {
    const PrintViewLayout Grid = Laid(PageView::Thumbnails, 1, 9);
    EXPECT_EQ(9, Grid.PageAt(Grid.PlaceOf(9).center()));
    EXPECT_EQ(2, Grid.PageAt(Grid.PlaceOf(2).bottomLeft() + QPoint(5, 15))) << "on its number";
    EXPECT_EQ(0, Grid.PageAt(Grid.PlaceOf(2).bottomLeft() + QPoint(5, 30)));
    EXPECT_EQ(0, Grid.PageAt({2, 2}));
    EXPECT_EQ(0, Grid.PageAt({-500, -500}));
    EXPECT_EQ(0, Grid.PageAt({500, 5000}));
}

TEST(PreviewLayout, LeavesRoomForTheBarsThatItNeeds) {
    const auto Width = [](int Height) {
        return PrintViewLayout::BesideBars(With(PageView::PageWidth, 1, 1, {1000, Height}), 15)
            .PlaceOf(1)
            .width();
    };
    EXPECT_EQ(968, Width(2000));
    EXPECT_EQ(953, Width(800));
    // at this height the page fits once the bar is there, and does not without it: it stays
    EXPECT_EQ(953, Width(1275));
}

TEST(PreviewLayout, IsEmptyWithoutPagesAndHoldsInTheSmallestRoom) {
    EXPECT_TRUE(Laid(PageView::WholePage, 1, 0).SheetsIn({0, 0, 1000, 1000}).empty());
    EXPECT_EQ(0, Laid(PageView::Thumbnails, 1, 0).PageAt({5, 5}));
    for (const PageView Each :
         {PageView::WholePage, PageView::PageWidth, PageView::TwoPages, PageView::Thumbnails}) {
        const PrintViewLayout Small = Laid(Each, 2, 3, {5, 5});
        EXPECT_FALSE(Small.PlaceOf(2).isEmpty());
        EXPECT_GE(Small.Columns(), 1);
    }
}

TEST(PreviewLayout, NoPaperIsTooLargeOrTooNarrow) {
    for (const QSizeF Paper : {QSizeF(1e9, 1e9), QSizeF(1e-9, 1e6), QSizeF(1e-9, 1e-9)})
        for (const PageView Each : {PageView::ByZoom, PageView::WholePage, PageView::PageWidth,
                                    PageView::TwoPages, PageView::Thumbnails}) {
            PrintViewState State = With(Each);
            State.Paper = Paper;
            const QSize Sheet = PrintViewLayout(State).PlaceOf(1).size();
            EXPECT_FALSE(Sheet.isEmpty());
            EXPECT_EQ(Sheet, Sheet.boundedTo({100000, 100000}));
        }
}

TEST(PreviewLayout, TheNextZoomIsTheNearestOfTheList) {
    EXPECT_EQ(150, ZoomBeside(100, 1));
    EXPECT_EQ(200, ZoomBeside(100, 5));
    EXPECT_EQ(90, ZoomBeside(100, -1));
    EXPECT_EQ(75, ZoomBeside(100, -3));
    EXPECT_EQ(90, ZoomBeside(87, 1));
    EXPECT_EQ(80, ZoomBeside(87, -1));
    EXPECT_EQ(200, ZoomBeside(200, 1));
    EXPECT_EQ(300, ZoomBeside(300, 1));
    EXPECT_EQ(200, ZoomBeside(300, -1));
    EXPECT_EQ(25, ZoomBeside(25, -1));
    EXPECT_EQ(10, ZoomBeside(10, -2));
    EXPECT_EQ(25, ZoomBeside(10, 1));
    EXPECT_EQ(100, ZoomBeside(100, 0));
}

}  // namespace
}  // namespace neb
