// A set of row numbers that follows its rows when others come, go or move. FlexGrid keeps the
// selection in one while its view is not told of changes.
#pragma once

#include <vector>

namespace neb {

class RowSet {
  public:
    const std::vector<int>& Ascending() const { return mRows; }
    bool Holds(int Row) const;
    void Assign(std::vector<int> Rows);  // in any order, twice the same allowed
    void Add(int Row);
    void Clear() { mRows.clear(); }

    void RowsInserted(int At, int Count);
    void RowsRemoved(int At, int Count);
    void RowsTaken(const std::vector<int>& Rows);  // ascending
    void RowMoved(int From, int To);
    void RowsMoved(const std::vector<int>& Moved, int Before);  // ascending; together before it

  private:
    std::vector<int> mRows;
};

}  // namespace neb
