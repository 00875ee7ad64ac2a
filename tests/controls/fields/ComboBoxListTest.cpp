// A combo box behaves as the plain list that the album store knows.
#include "controls/fields/ComboBoxList.h"
#include "harness/ByTheClock.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QWheelEvent>

namespace neb {
namespace {

class ComboBoxListOf : public ::testing::Test {
  protected:
    void Fill(std::initializer_list<int> Keys) {
        for (const int Key : Keys) List.AddItem(QString::number(Key), Key);
    }
    QComboBox Box;
    ComboBoxList List{Box};
    QSignalSpy Chosen{&Box, &QComboBox::currentIndexChanged};
};

TEST_F(ComboBoxListOf, EntriesThatComeChooseNothing) {
    Fill({3, 4});
    EXPECT_EQ(List.ListIndex(), -1);
    EXPECT_EQ(List.ListCount(), 2);
    EXPECT_EQ(List.List(1), "4");
    EXPECT_EQ(List.ItemData(1), 4);
    EXPECT_EQ(Chosen.count(), 0);
}

TEST_F(ComboBoxListOf, ANewChoiceIsTold) {
    Fill({3, 4});
    List.SetListIndex(1);
    List.SetListIndex(-1);
    EXPECT_EQ(Chosen.count(), 2);
    EXPECT_EQ(List.ListIndex(), -1);
    EXPECT_EQ(Box.currentText(), "");
}

TEST_F(ComboBoxListOf, TheChoiceStaysWithItsEntry) {
    Fill({3, 4, 5});
    List.SetListIndex(1);
    Chosen.clear();
    List.RemoveItem(0);
    EXPECT_EQ(List.ListIndex(), 0);
    List.InsertItem(0, "<NEW>", 0);
    EXPECT_EQ(List.ListIndex(), 1);
    EXPECT_EQ(List.ItemData(1), 4);
    EXPECT_EQ(Chosen.count(), 0);
}

TEST_F(ComboBoxListOf, WhenTheChosenEntryGoesNothingIsChosen) {
    for (const int Index : {0, 1, 2}) {
        List.Clear();
        Fill({3, 4, 5});
        List.SetListIndex(Index);
        List.RemoveItem(Index);
        EXPECT_EQ(List.ListIndex(), -1);
    }
}

TEST_F(ComboBoxListOf, TheUtilitiesWorkOnIt) {
    EXPECT_FALSE(ComboRemoveByData(List, 3));
    ComboAddItem(List, "three", 3);
    ComboAddItem(List, "four", 4);
    EXPECT_TRUE(ComboSelectByData(List, 4, -1));
    EXPECT_FALSE(ComboSelectByData(List, 9, -2));
    EXPECT_EQ(List.ListIndex(), 1);
    EXPECT_FALSE(ComboSelectByData(List, 9, 0));
    EXPECT_EQ(List.ListIndex(), 0);
    EXPECT_TRUE(ComboRemoveByData(List, 3));
    EXPECT_EQ(List.ListCount(), 1);
}

TEST_F(ComboBoxListOf, ATurnOfTheWheelChoosesAnEntryOnlyWhereItMay) {
    Fill({3, 4, 5});
    List.SetListIndex(1);
    const auto Turn = [this] {
        QWheelEvent Wheel({5, 5}, Box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&Box, &Wheel);
    };
    Turn();
    EXPECT_EQ(List.ListIndex(), 2);
    ChooseNotByWheel(Box);
    List.SetListIndex(1);
    Turn();
    EXPECT_EQ(List.ListIndex(), 1);
}

TEST_F(ComboBoxListOf, ThousandsOfEntriesComeAtOnce) {
    const double Begun = harness::WorkedMs();
    for (int Key = 0; Key < 5000; ++Key) List.AddItem(QString::number(Key), Key);
    EXPECT_EQ(List.ItemData(4999), 4999);
    EXPECT_LT(harness::WorkedMs() - Begun, 2000);
}

}  // namespace
}  // namespace neb
