#include "controls/grid/GridRows.h"

#include "controls/grid/FlexGrid.h"

namespace neb {

QuietGrids::QuietGrids(FlexGrid& One, FlexGrid& Other) : mOne(One), mOther(Other) {
    mOne.SetRedraw(false);
    mOther.SetRedraw(false);
}

QuietGrids::~QuietGrids() {
    mOne.SetRedraw(true);
    mOther.SetRedraw(true);
}

std::vector<int> RowsToMove(const FlexGrid& From, bool All) {
    std::vector<int> Rows;
    const int Count = All ? From.Rows() : From.SelectedRows();
    for (int I = 0; I < Count; ++I) Rows.push_back(All ? I : From.SelectedRow(I));
    return Rows;
}

}  // namespace neb
