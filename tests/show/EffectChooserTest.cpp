#include "show/EffectChooser.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

EffectTables Selected(std::initializer_list<int> Places, int Current = 0) {
    EffectTables Tables;
    Tables.EffectSelected.fill(false);
    for (const int Place : Places) Tables.EffectSelected[static_cast<size_t>(Place)] = true;
    Tables.CurrentEffect = Current;
    return Tables;
}

EffectSettings ByList() {
    EffectSettings Settings;
    Settings.UseEffectLevel = false;
    return Settings;
}

EffectSettings ByLevel(int MaxLevel) {
    EffectSettings Settings;
    Settings.MaxEffectLevel = MaxLevel;
    Settings.DelayL = 11;
    Settings.StepL = 12;
    Settings.DelayM = 21;
    Settings.StepM = 22;
    Settings.DelayH = 31;
    Settings.StepH = 32;
    return Settings;
}

void ExpectPlainChange(const EffectChoice& Choice) {
    EXPECT_EQ(0, Choice.EffectDelay);
    EXPECT_EQ(100, Choice.EffectStep);
    EXPECT_FALSE(Choice.EffectNumber.has_value());
}

std::vector<int> Walk(EffectTables Tables, const EffectSettings& Settings, int Times) {
    std::vector<int> Places;
    while (Times-- > 0) {
        ChooseEffect(Tables, Settings);
        Places.push_back(Tables.CurrentEffect);
    }
    return Places;
}

TEST(EffectTables, StartWithEveryEffectLiteSelectedAndNoneInUse) {
    const EffectTables Tables;
    EXPECT_EQ(127, Tables.EffectCount);
    EXPECT_EQ(0, Tables.CurrentEffect);
    for (size_t Place = 1; Place <= 127; ++Place) {
        EXPECT_EQ(static_cast<int>(Place), Tables.EffectIDs[Place]);
        EXPECT_EQ(1, Tables.EffectLevels[Place]);
        EXPECT_TRUE(Tables.EffectSelected[Place]);
    }
}

TEST(ChooseEffect, FadesWhereNothingShallMove) {
    EffectTables Tables = Selected({7, 9});
    const EffectChoice First = ChooseEffect(Tables, ByList(), true);
    EXPECT_EQ(1, First.EffectNumber);
    EXPECT_EQ(7, Tables.CurrentEffect) << "the walk goes on: the wish may end";
    EXPECT_EQ(9, ChooseEffect(Tables, ByList(), false).EffectNumber);
    ExpectPlainChange(ChooseEffect(Tables, ByLevel(0), true));
}

TEST(ChooseEffect, WalksTheSelectedListRoundInItsOrder) {
    EXPECT_EQ((std::vector<int>{3, 50, 127, 3, 50}), Walk(Selected({3, 50, 127}), ByList(), 5));
}

TEST(ChooseEffect, GoesRoundFromAPlaceThatIsNotSelectedItself) {
    EXPECT_EQ((std::vector<int>{5, 5}), Walk(Selected({5}, 90), ByList(), 2));
}

TEST(ChooseEffect, UsesASingleSelectedEffectForEverySlide) {
    EXPECT_EQ((std::vector<int>{70, 70, 70}), Walk(Selected({70}), ByList(), 3));
    EXPECT_EQ((std::vector<int>{1, 1, 1}), Walk(Selected({1}), ByList(), 3));
    EXPECT_EQ((std::vector<int>{127, 127}), Walk(Selected({127}), ByList(), 2));
}

TEST(ChooseEffect, FallsToNoEffectWhenNoneIsSelected) {
    for (const int Current : {0, 1, 2, 64, 127}) {
        EffectTables Tables = Selected({}, Current);
        ExpectPlainChange(ChooseEffect(Tables, ByList()));
        EXPECT_EQ(0, Tables.CurrentEffect) << Current;
    }
}

TEST(ChooseEffect, WalksThePlacesUpToTheLevelAndRound) {
    EffectTables Tables;
    Tables.EffectLevels.fill(3);
    Tables.EffectLevels[4] = 1;
    Tables.EffectLevels[9] = 2;
    EXPECT_EQ((std::vector<int>{4, 4, 4}), Walk(Tables, ByLevel(1), 3));
    EXPECT_EQ((std::vector<int>{4, 9, 4}), Walk(Tables, ByLevel(2), 3));
    EXPECT_EQ((std::vector<int>{1, 2, 3, 4}), Walk(Tables, ByLevel(3), 4));
}

TEST(ChooseEffect, GivesUpAfterOneRoundAndKeepsThePlaceAtItsOwnLevel) {
    EffectTables Tables;
    Tables.EffectLevels.fill(2);
    const EffectChoice First = ChooseEffect(Tables, ByLevel(1));
    EXPECT_EQ(127, Tables.CurrentEffect);
    EXPECT_EQ(127, First.EffectNumber);
    EXPECT_EQ(21, First.EffectDelay);
    EXPECT_EQ(22, First.EffectStep);
    Tables.CurrentEffect = 40;
    ChooseEffect(Tables, ByLevel(1));
    EXPECT_EQ(40, Tables.CurrentEffect);
}

TEST(ChooseEffect, LeavesThePlaceAloneAtLevelZero) {
    EffectTables Tables;
    Tables.CurrentEffect = 33;
    ExpectPlainChange(ChooseEffect(Tables, ByLevel(0)));
    EXPECT_EQ(33, Tables.CurrentEffect);
}

TEST(ChooseEffect, IgnoresTheLevelWhenTheListIsUsed) {
    EffectTables Tables;
    EffectSettings Settings = ByList();
    Settings.MaxEffectLevel = 0;
    EXPECT_EQ(1, ChooseEffect(Tables, Settings).EffectNumber);
}

TEST(ChooseEffect, RunsEachLevelAtItsOwnDelayAndStep) {
    const int Expected[][3] = {{1, 11, 12}, {2, 21, 22}, {3, 31, 32}};
    for (const auto& [Level, Delay, Step] : Expected) {
        EffectTables Tables;
        Tables.EffectLevels[1] = static_cast<std::uint8_t>(Level);
        const EffectChoice Choice = ChooseEffect(Tables, ByLevel(3));
        EXPECT_EQ(Delay, Choice.EffectDelay);
        EXPECT_EQ(Step, Choice.EffectStep);
        EXPECT_EQ(1, Choice.EffectNumber);
    }
}

TEST(ChooseEffect, LeavesTheSpeedAsItIsForALevelThatIsNone) {
    EffectTables Tables;
    Tables.EffectLevels[1] = 0;
    const EffectChoice Choice = ChooseEffect(Tables, ByLevel(3));
    EXPECT_FALSE(Choice.EffectDelay.has_value());
    EXPECT_FALSE(Choice.EffectStep.has_value());
    EXPECT_EQ(1, Choice.EffectNumber);
}

}  // namespace
}  // namespace neb
