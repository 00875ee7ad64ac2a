// Which screen shows fill, out of those that are there.
#include "show/ScreenChoice.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

const DesktopScreen Laptop{"eDP-1", "Panel", {1920, 1080}};
const DesktopScreen Beamer{"HDMI-1", "Acer X152H", {1280, 800}};
const DesktopScreen Television{"HDMI-2", "Acer TV", {3840, 2160}};
const std::vector<DesktopScreen> All{Laptop, Beamer, Television};

TEST(ScreenChoice, IsTheProgramsOwnWhereNothingIsChosen) {
    EXPECT_EQ(1, ChosenScreen({}, All, 1));
    EXPECT_EQ(-1, ChosenScreen({}, {}, -1));
}

TEST(ScreenChoice, TakesTheLargestAndAmongEqualsTheProgramsOwn) {
    EXPECT_EQ(2, ChosenScreen(LargestScreen, All, 0));
    for (const int Own : {0, 1}) EXPECT_EQ(Own, ChosenScreen(LargestScreen, {Laptop, Laptop}, Own));
    EXPECT_EQ(0, ChosenScreen(LargestScreen, {Laptop, Beamer}, -1));
    EXPECT_EQ(-1, ChosenScreen(LargestScreen, {}, -1));
}

TEST(ScreenChoice, FindsADeviceAtItsSocketFirstThenAtAnother) {
    const DesktopScreen Second{"HDMI-2", "Acer X152H", {1280, 800}};
    EXPECT_EQ(1, ChosenScreen(ScreenKey(Beamer), All, 0));
    EXPECT_EQ(2, ChosenScreen(ScreenKey(Second), {Laptop, Beamer, Second}, 0));
    EXPECT_EQ(1, ChosenScreen(ScreenKey(Beamer), {Laptop, Second}, 0));
}

TEST(ScreenChoice, TakesAnotherDeviceAtTheSocketThatWasChosen) {
    const DesktopScreen Other{"HDMI-1", "Epson", {1024, 768}};
    EXPECT_EQ(1, ChosenScreen(ScreenKey(Beamer), {Laptop, Other}, 0));
    EXPECT_EQ(1, ChosenScreen("HDMI-1", {Laptop, Other}, 0)) << "typed into the file by its name";
}

TEST(ScreenChoice, FallsBackToTheProgramsOwnWhileTheChosenOneIsGone) {
    EXPECT_EQ(1, ChosenScreen(ScreenKey(Beamer), {Laptop, Television}, 1));
    const DesktopScreen Nameless{"VGA-1", "", {640, 480}};
    EXPECT_EQ(0, ChosenScreen(ScreenKey(Nameless), {{"DP-1", "", {640, 480}}}, 0))
        << "devices without a model are not the same device";
}

TEST(ScreenChoice, IsReadByItsNameModelAndSize) {
    EXPECT_EQ("HDMI-1, Acer X152H (1280 x 800)", ScreenTitle(Beamer));
    EXPECT_EQ("HDMI-1, Acer X152H", TitleOfKey(ScreenKey(Beamer)));
    EXPECT_EQ("s1 (8 x 6)", ScreenTitle({"s1", "", {8, 6}}));
}

}  // namespace
}  // namespace neb
