#include "controls/grid/RowSet.h"

#include <algorithm>

namespace neb {

bool RowSet::Holds(int Row) const {
    return std::binary_search(mRows.begin(), mRows.end(), Row);
}

void RowSet::Assign(std::vector<int> Rows) {
    std::sort(Rows.begin(), Rows.end());
    Rows.erase(std::unique(Rows.begin(), Rows.end()), Rows.end());
    mRows = std::move(Rows);
}

void RowSet::Add(int Row) {
    const auto Place = std::lower_bound(mRows.begin(), mRows.end(), Row);
    if (Place == mRows.end() || *Place != Row) mRows.insert(Place, Row);
}

void RowSet::RowsInserted(int At, int Count) {
    for (auto It = std::lower_bound(mRows.begin(), mRows.end(), At); It != mRows.end(); ++It)
        *It += Count;
}

void RowSet::RowsRemoved(int At, int Count) {
    const auto First = std::lower_bound(mRows.begin(), mRows.end(), At);
    const auto Last = std::lower_bound(First, mRows.end(), At + Count);
    for (auto It = mRows.erase(First, Last); It != mRows.end(); ++It) *It -= Count;
}

void RowSet::RowMoved(int From, int To) {
    const bool Held = Holds(From);
    RowsRemoved(From, 1);
    RowsInserted(To, 1);
    if (Held) Add(To);
}

void RowSet::RowsTaken(const std::vector<int>& Taken) {
    std::vector<int> Left;
    auto Above = Taken.begin();
    for (const int Row : mRows) {
        Above = std::lower_bound(Above, Taken.end(), Row);
        const bool Goes = Above != Taken.end() && *Above == Row;
        if (!Goes) Left.push_back(Row - static_cast<int>(Above - Taken.begin()));
    }
    mRows = std::move(Left);
}

void RowSet::RowsMoved(const std::vector<int>& Moved, int Before) {
    const auto MovedAbove = [&Moved](int Row) {
        return static_cast<int>(std::lower_bound(Moved.begin(), Moved.end(), Row) - Moved.begin());
    };
    const int Count = static_cast<int>(Moved.size()), At = Before - MovedAbove(Before);
    std::vector<int> Now;
    for (const int Row : mRows) {
        const int Above = MovedAbove(Row);
        const bool Goes = Above < Count && Moved[static_cast<size_t>(Above)] == Row;
        Now.push_back(Goes ? At + Above : Row - Above + (Row >= Before ? Count : 0));
    }
    Assign(std::move(Now));
}

}  // namespace neb
