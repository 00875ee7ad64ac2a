// Why ties end as they do. Pass i of the loop moves the first smallest item of i..n to i, and each
// strict minimum met on the way from i takes the place of the next one. Look at the items of one
// key v, with the smaller items as marks between them; greater items play no part. While
// smaller items remain, a pass takes away the first mark; when items of key v stand before it,
// the first of them goes to where the mark was, which is behind the others. So before each
// mark the items met so far form a ring, and the mark turns the ring by one. Once the marks
// are used up, the items come out in the order of the ring.
#include "db/modExchangeSort.h"

#include <bit>
#include <span>

namespace neb {
namespace {

// Counts with prefix sums, both in log n.
class PrefixCounts {
  public:
    explicit PrefixCounts(size_t Size) : mSums(Size + 1) {}

    void Add(size_t Place, std::int32_t Change) {
        for (size_t I = Place + 1; I < mSums.size(); I += I & (~I + 1)) mSums[I] += Change;
    }
    std::uint32_t Before(size_t Place) const {
        std::int32_t Sum = 0;
        for (size_t I = Place; I > 0; I &= I - 1) Sum += mSums[I];
        return static_cast<std::uint32_t>(Sum);
    }
    // The place at which the count Index (from 0) lies, all places holding 0 or 1.
    size_t Find(std::uint32_t Index) const {
        auto Left = static_cast<std::int32_t>(Index);
        size_t Place = 0;
        for (size_t Step = std::bit_floor(mSums.size() - 1); Step > 0; Step /= 2)
            if (Place + Step < mSums.size() && mSums[Place + Step] <= Left)
                Left -= mSums[Place += Step];
        return Place;
    }

  private:
    std::vector<std::int32_t> mSums;
};

// For each item the number of smaller items that stood before it.
std::vector<std::uint32_t> CountSmallerBefore(const std::vector<std::uint32_t>& Order,
                                              const std::vector<std::uint32_t>& ClassStart) {
    std::vector<std::uint32_t> ClassOf(Order.size()), Smaller(Order.size());
    for (size_t I = 0; I < Order.size(); ++I) ClassOf[Order[I]] = ClassStart[I];
    PrefixCounts Seen(Order.size());
    for (size_t Item = 0; Item < ClassOf.size(); ++Item) {
        Smaller[Item] = Seen.Before(ClassOf[Item]);
        Seen.Add(ClassOf[Item], 1);
    }
    return Smaller;
}

// The ring as a line in which the front wanders: each item goes in just before the front.
// Returns for each member its index at the time it went in; Front is left where it ends.
std::vector<std::uint32_t> InsertionPlaces(std::span<const std::uint32_t> Members,
                                           const std::vector<std::uint32_t>& Smaller,
                                           std::uint32_t SmallerInAll, std::uint32_t& Front) {
    std::vector<std::uint32_t> Places(Members.size());
    Front = 0;
    for (std::uint32_t I = 1; I < Members.size(); ++I) {
        Places[I] = (Front + Smaller[Members[I]] - Smaller[Members[I - 1]]) % I;
        Front = Places[I] + 1;
    }
    Front += SmallerInAll - Smaller[Members.back()];
    return Places;
}

void ArrangeClass(std::span<std::uint32_t> Members, const std::vector<std::uint32_t>& Smaller,
                  std::uint32_t SmallerInAll) {
    std::uint32_t Front = 0;
    const auto Places = InsertionPlaces(Members, Smaller, SmallerInAll, Front);
    PrefixCounts Free(Members.size());
    for (size_t I = 0; I < Members.size(); ++I) Free.Add(I, 1);
    std::vector<std::uint32_t> Line(Members.size());
    for (size_t I = Members.size(); I-- > 0;) {
        const size_t Slot = Free.Find(Places[I]);
        Line[Slot] = Members[I];
        Free.Add(Slot, -1);
    }
    for (size_t I = 0; I < Members.size(); ++I) Members[I] = Line[(Front + I) % Line.size()];
}

}  // namespace

void ArrangeTiesLikeExchangeSort(std::vector<std::uint32_t>& Order,
                                 const std::vector<std::uint32_t>& ClassStart) {
    bool Ties = false;
    for (std::uint32_t I = 0; I < Order.size(); ++I) Ties = Ties || ClassStart[I] != I;
    if (!Ties) return;
    const auto Smaller = CountSmallerBefore(Order, ClassStart);
    for (size_t Begin = 0, End = 0; Begin < Order.size(); Begin = End) {
        while (End < Order.size() && ClassStart[End] == Begin) ++End;
        if (End - Begin > 1)
            ArrangeClass(std::span(Order).subspan(Begin, End - Begin), Smaller,
                         static_cast<std::uint32_t>(Begin));
    }
}

}  // namespace neb
