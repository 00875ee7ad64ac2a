#include "windows/frame/VisiblePlace.h"

#include <gtest/gtest.h>

#include "windows/frame/WindowSize.h"

namespace neb {
namespace {

constexpr QRect Room(0, 0, 1000, 600);

TEST(VisiblePlace, TheRoomEndsAboveTheBarsThatLieBelow) {
    EXPECT_EQ(Room, FreeRoom(Room, {}));
    EXPECT_EQ(QRect(0, 0, 1000, 570), FreeRoom(Room, {{0, 570, 160, 30}, {160, 570, 160, 30}}));
    EXPECT_EQ(QRect(0, 0, 1000, 540), FreeRoom(Room, {{0, 570, 160, 30}, {0, 540, 160, 30}}));
    EXPECT_EQ(Room, FreeRoom(Room, {{400, 20, 160, 30}})) << "one that was pulled up";
}

TEST(VisiblePlace, AWindowIsBroughtInside) {
    const struct {
        QRect Window;
        QSize Least;
        QRect Expected;
    } Rows[] = {
        {{10, 20, 300, 200}, {50, 50}, {10, 20, 300, 200}},
        {{-10, -20, 300, 200}, {50, 50}, {0, 0, 300, 200}},
        {{900, 590, 300, 200}, {50, 50}, {700, 400, 300, 200}},
        {{5000, 5000, 300, 200}, {50, 50}, {700, 400, 300, 200}},
        {{10, 10, 3000, 2000}, {50, 50}, {0, 0, 1000, 600}},
        {{10, 10, 300, 200}, {1200, 50}, {0, 10, 1200, 200}},
        {{10, 10, 300, 200}, {1200, 700}, {0, 0, 1200, 700}},
    };
    for (const auto& Row : Rows)
        EXPECT_EQ(Row.Expected, BroughtInside(Row.Window, Row.Least, Room));
}

TEST(VisiblePlace, InTheCascadeItIsCutBeforeItIsMoved) {
    EXPECT_EQ(QRect(44, 44, 956, 556), CutIntoRoom({44, 44, 1000, 600}, {600, 400}, {9, 9}, Room));
    EXPECT_EQ(QRect(400, 200, 600, 400),
              CutIntoRoom({500, 300, 1000, 600}, {600, 400}, {9, 9}, Room));
    EXPECT_EQ(QRect(44, 44, 100, 100), CutIntoRoom({44, 44, 100, 100}, {60, 60}, {9, 9}, Room));
}

TEST(VisiblePlace, TilesFillTheRoomSideBySide) {
    const std::vector<QSize> Small(5, QSize(100, 80));
    const std::vector<QRect> Places = TiledPlaces(Small, Room);
    ASSERT_EQ(5u, Places.size());
    EXPECT_EQ(QRect(0, 0, 333, 300), Places[0]);
    EXPECT_EQ(QRect(666, 0, 333, 300), Places[2]);
    EXPECT_EQ(QRect(500, 300, 500, 300), Places[4]);
    EXPECT_EQ((std::vector<QRect>{Room}), TiledPlaces({{100, 80}}, Room));
    EXPECT_TRUE(TiledPlaces({}, Room).empty());
}

TEST(VisiblePlace, NoTileIsSmallerThanItMayBe) {
    const std::vector<QSize> Least{{700, 200}, {200, 100}, {400, 550}, {900, 100}};
    const std::vector<QRect> Places = TiledPlaces(Least, Room);
    for (size_t I = 0; I < Least.size(); ++I) {
        EXPECT_GE(Places[I].width(), Least[I].width()) << I;
        EXPECT_GE(Places[I].height(), Least[I].height()) << I;
        for (size_t J = 0; J < I; ++J) EXPECT_FALSE(Places[I].intersects(Places[J])) << I << J;
    }
    EXPECT_EQ(QRect(0, 0, 700, 200), Places[0]);
    EXPECT_EQ(QRect(700, 0, 300, 200), Places[1]) << "what is left";
    EXPECT_EQ(QRect(400, 200, 900, 550), Places[3]) << "beyond the room, which scrolls";
}

TEST(VisiblePlace, TheCascadeStepsAndBeginsAgainWhereItWouldLeaveTheRoom) {
    const WindowExtent Each{{700, 400}, {600, 380}};
    const std::vector<QRect> Places = CascadedPlaces(std::vector(12, Each), Room, 22);
    EXPECT_EQ(QRect(0, 0, 700, 400), Places[0]);
    EXPECT_EQ(QRect(22, 22, 700, 400), Places[1]);
    EXPECT_EQ(QRect(220, 220, 700, 380), Places[10]) << "cut to the room";
    EXPECT_EQ(QPoint(0, 0), Places[11].topLeft());
    for (const QRect& Place : Places) EXPECT_TRUE(Room.contains(Place));
}

TEST(VisiblePlace, AStepOfTheCascadeShowsTheTitleBehind) {
    EXPECT_EQ(22, CascadeStep(16));
    EXPECT_EQ(37, CascadeStep(33));
}

TEST(WindowSize, AWindowOpensAsLargeAsItsWorkAsks) {
    constexpr QSize Wide(1920, 1000), Small(700, 500), Designed(520, 480);
    const auto Size = [&](WindowAsks Asks, QSize In, int Line = 16) {
        return OpeningSize(Asks, Designed, Line, In);
    };
    EXPECT_EQ(Designed, Size(WindowAsks::Designed, Wide));
    EXPECT_EQ(QSize(1024, 956), Size(WindowAsks::Lines, Wide)) << "wider lines are no easier read";
    EXPECT_EQ(QSize(1846, 926), Size(WindowAsks::Lines, Wide, 33)) << "those of large letters are";
    EXPECT_EQ(QSize(1530, 956), Size(WindowAsks::Picture, Wide));
    EXPECT_EQ(QSize(656, 480), Size(WindowAsks::Picture, Small)) << "never less than designed";
    EXPECT_EQ(QSize(300, 200), Size(WindowAsks::Lines, {300, 200})) << "but for want of room";
    EXPECT_EQ(QSize(300, 200), Size(WindowAsks::Designed, {300, 200}));
}

TEST(WindowSize, EachWindowSaysWhatItAsks) {
    EXPECT_EQ(WindowAsks::Picture, AskedBy(u"frmSlideDBM"));
    EXPECT_EQ(WindowAsks::Lines, AskedBy(u"frmSlideMgrBulk"));
    EXPECT_EQ(WindowAsks::Designed, AskedBy(u"frmPreferences"));
    EXPECT_EQ(WindowAsks::Designed, AskedBy(u"frmUnknown"));
    EXPECT_TRUE(IsKeptFromOutside(u"frmPreferences"));
    EXPECT_FALSE(IsKeptFromOutside(u"frmSlideDBM"));
    EXPECT_FALSE(IsKeptFromOutside(u"frmUnknown"));
}

}  // namespace
}  // namespace neb
