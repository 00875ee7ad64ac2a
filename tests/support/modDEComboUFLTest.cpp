// Entries of a list found, chosen and removed by their key.
#include "support/modDEComboUFL.h"

#include <gtest/gtest.h>

namespace neb {
namespace {

class ComboUtilities : public ::testing::Test {
  protected:
    void Fill() {
        ComboAddItem(Combo, "three", 3);
        ComboAddItem(Combo, "four", 4);
        ComboAddItem(Combo, "four again", 4);
    }
    MemoryComboList Combo;
};

TEST_F(ComboUtilities, AnEmptyListHasNothingToRemoveOrSelect) {
    EXPECT_FALSE(ComboRemoveByData(Combo, 3));
    EXPECT_FALSE(ComboSelectByData(Combo, 3, 0));
    EXPECT_EQ(Combo.ListIndex(), -1);
}

TEST_F(ComboUtilities, EntriesComeInTheirOrderWithNothingSelected) {
    Fill();
    EXPECT_EQ(Combo.ListCount(), 3);
    EXPECT_EQ(Combo.List(1), "four");
    EXPECT_EQ(Combo.ItemData(2), 4);
    EXPECT_EQ(Combo.ListIndex(), -1);
}

TEST_F(ComboUtilities, TheFirstWithTheKeyGoes) {
    Fill();
    EXPECT_TRUE(ComboRemoveByData(Combo, 4));
    EXPECT_EQ(Combo.ListCount(), 2);
    EXPECT_EQ(Combo.List(1), "four again");
    EXPECT_FALSE(ComboRemoveByData(Combo, 5));
    EXPECT_EQ(Combo.ListCount(), 2);
}

TEST_F(ComboUtilities, TheFirstWithTheKeyIsSelected) {
    Fill();
    EXPECT_TRUE(ComboSelectByData(Combo, 4, -1));
    EXPECT_EQ(Combo.ListIndex(), 1);
}

TEST_F(ComboUtilities, WithoutAMatchTheFallbackDecides) {
    const struct {
        int Fallback, Selected;
    } Table[] = {{-2, 1}, {-3, 1}, {-1, -1}, {0, 0}, {2, 2}, {3, 1}};
    for (const auto& Row : Table) {
        Combo.Clear();
        Fill();
        Combo.SetListIndex(1);
        EXPECT_FALSE(ComboSelectByData(Combo, 9, Row.Fallback));
        EXPECT_EQ(Combo.ListIndex(), Row.Selected) << "fallback " << Row.Fallback;
    }
}

TEST_F(ComboUtilities, TheSelectionStaysWithItsEntry) {
    Fill();
    Combo.SetListIndex(2);
    Combo.RemoveItem(0);
    EXPECT_EQ(Combo.ListIndex(), 1);
    Combo.RemoveItem(1);
    EXPECT_EQ(Combo.ListIndex(), -1);
    Fill();
    Combo.SetListIndex(0);
    Combo.RemoveItem(2);
    EXPECT_EQ(Combo.ListIndex(), 0);
    Combo.Clear();
    EXPECT_EQ(Combo.ListIndex(), -1);
}

}  // namespace
}  // namespace neb
