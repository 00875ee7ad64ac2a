// The quick sort of the views against the loop whose order it reproduces.
#include "db/modExchangeSort.h"
#include "harness/ByTheClock.h"

#include <gtest/gtest.h>

#include <random>

namespace neb {
namespace {

struct Item {
    int Key;
    int Origin;
    bool operator==(const Item&) const = default;
};

std::vector<Item> ByTheLoop(std::vector<Item> Items) {
    for (size_t I = 0; I + 1 < Items.size(); ++I)
        for (size_t J = I + 1; J < Items.size(); ++J)
            if (Items[I].Key > Items[J].Key) std::swap(Items[I], Items[J]);
    return Items;
}

std::vector<Item> Quickly(std::vector<Item> Items) {
    ExchangeSort(Items, [](const Item& A, const Item& B) { return A.Key < B.Key; });
    return Items;
}

std::vector<Item> FromKeys(const std::vector<int>& Keys) {
    std::vector<Item> Items;
    for (const int Key : Keys) Items.push_back({Key, static_cast<int>(Items.size())});
    return Items;
}

TEST(ExchangeSort, ReordersEqualKeysAsTheLoopDoes) {
    // The first of the two 2s is thrown behind the second by the 1 at the end.
    const std::vector<Item> Expected = {{1, 2}, {2, 1}, {2, 0}};
    EXPECT_EQ(Quickly(FromKeys({2, 2, 1})), Expected);
}

TEST(ExchangeSort, NothingAndOneItemStay) {
    EXPECT_TRUE(Quickly({}).empty());
    EXPECT_EQ(Quickly(FromKeys({5})), FromKeys({5}));
}

TEST(ExchangeSort, EqualsTheLoopForEveryShortListOfKeys) {
    for (int Length = 0; Length <= 7; ++Length) {
        std::vector<int> Keys(static_cast<size_t>(Length), 0);
        while (true) {
            ASSERT_EQ(Quickly(FromKeys(Keys)), ByTheLoop(FromKeys(Keys)));
            size_t Digit = 0;
            while (Digit < Keys.size() && ++Keys[Digit] == 5) Keys[Digit++] = 0;
            if (Digit == Keys.size()) break;
        }
    }
}

TEST(ExchangeSort, EqualsTheLoopForRandomListsWithManyTies) {
    std::mt19937 Random(20240117);
    for (int Round = 0; Round < 3000; ++Round) {
        const int Length = static_cast<int>(Random() % 120);
        const int Range = 1 + static_cast<int>(Random() % (Round % 2 ? 6 : 60));
        std::vector<int> Keys;
        for (int I = 0; I < Length; ++I)
            Keys.push_back(static_cast<int>(Random() % static_cast<unsigned>(Range)));
        ASSERT_EQ(Quickly(FromKeys(Keys)), ByTheLoop(FromKeys(Keys))) << "round " << Round;
    }
}

TEST(ExchangeSort, EqualsTheLoopForALongList) {
    std::mt19937 Random(7);
    std::vector<int> Keys(4000);
    for (int& Key : Keys) Key = static_cast<int>(Random() % 40);
    EXPECT_EQ(Quickly(FromKeys(Keys)), ByTheLoop(FromKeys(Keys)));
}

TEST(ExchangeSort, AHundredThousandItemsWithTiesAreQuick) {
    std::mt19937 Random(8);
    std::vector<int> Keys(100000);
    for (int& Key : Keys) Key = static_cast<int>(Random() % 100);
    std::vector<Item> Items = FromKeys(Keys);
    const double Begun = harness::WorkedMs();
    Items = Quickly(std::move(Items));
    const double Took = harness::WorkedMs() - Begun;
    EXPECT_TRUE(std::is_sorted(Items.begin(), Items.end(),
                               [](const Item& A, const Item& B) { return A.Key < B.Key; }));
    // The loop would take five thousand million steps; this leaves room for a busy machine.
    EXPECT_LT(Took, 10'000);
}

}  // namespace
}  // namespace neb
