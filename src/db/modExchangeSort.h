// The order of the sorted views. It is that of an exchange sort, which does not keep equal keys in
// their old order; people know their lists in this order, so it is reproduced to the entry, but
// at a cost of n log n. Used by the album store for its index arrays.
#pragma once

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <vector>

namespace neb {

// Order: places of the items, sorted by key, equal keys in their old order. ClassStart: for each
// entry of Order the position in Order at which its key begins. Puts equal keys into the order
// in which this loop leaves them: for i, for j > i, swap when the key at i is greater than at j.
void ArrangeTiesLikeExchangeSort(std::vector<std::uint32_t>& Order,
                                 const std::vector<std::uint32_t>& ClassStart);

// Sorts Items as that loop would. IsLess is a strict weak order.
template <class Item, class Less>
void ExchangeSort(std::vector<Item>& Items, Less IsLess) {
    std::vector<std::uint32_t> Order(Items.size());
    std::iota(Order.begin(), Order.end(), 0U);
    std::stable_sort(Order.begin(), Order.end(),
                     [&](std::uint32_t A, std::uint32_t B) { return IsLess(Items[A], Items[B]); });
    std::vector<std::uint32_t> ClassStart(Items.size());
    for (std::uint32_t I = 1; I < Order.size(); ++I)
        ClassStart[I] = IsLess(Items[Order[I - 1]], Items[Order[I]]) ? I : ClassStart[I - 1];
    ArrangeTiesLikeExchangeSort(Order, ClassStart);
    std::vector<Item> Sorted;
    Sorted.reserve(Items.size());
    for (const std::uint32_t Place : Order) Sorted.push_back(std::move(Items[Place]));
    Items = std::move(Sorted);
}

}  // namespace neb
