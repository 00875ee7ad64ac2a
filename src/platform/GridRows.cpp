#include "platform/GridRows.h"

#include "platform/FlexGrid.h"

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

void MoveRowsTo(FlexGrid& From, FlexGrid& To, const std::vector<int>& Rows, int FirstCol) {
    const int Count = static_cast<int>(Rows.size()), Before = To.Rows();
    To.SetRows(Before + Count);
    for (int I = 0; I < Count; ++I)
        for (int Col = FirstCol; Col < From.Cols(); ++Col)
            To.CopyCell(From, Rows[static_cast<size_t>(I)], Col, Before + I, Col);
    if (Count == From.Rows()) return From.SetRows(0);
    for (auto Row = Rows.rbegin(); Row != Rows.rend(); ++Row) From.RemoveItem(*Row);
}

}  // namespace neb
