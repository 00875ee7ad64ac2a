// Moving rows from one list to another, as the windows with two lists of pictures do.
#pragma once

#include <vector>

namespace neb {

class FlexGrid;

// Both grids stand still as long as it lives, and catch up at its end.
class QuietGrids {
  public:
    QuietGrids(FlexGrid& One, FlexGrid& Other);
    ~QuietGrids();
    QuietGrids(const QuietGrids&) = delete;
    QuietGrids& operator=(const QuietGrids&) = delete;

  private:
    FlexGrid& mOne;
    FlexGrid& mOther;
};

// The rows that a move would take, from the top: all, or those that are selected.
std::vector<int> RowsToMove(const FlexGrid& From, bool All);

}  // namespace neb
