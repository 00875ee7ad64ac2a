#include "controls/grid/FlexGridStore.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr std::int64_t OrderGap = std::int64_t{1} << 20;

[[noreturn]] void Outside() {
    throw Fault(tr("A row or column outside the list was asked for."));
}

}  // namespace

void FlexGridStore::RequireRows(int At, int Count) const {
    if (At < 0 || Count < 0 || At > Rows() - Count) Outside();
}

FlexCell& FlexGridStore::CellAt(int Row, int Col) {
    return const_cast<FlexCell&>(Cell(Row, Col));
}

const FlexCell& FlexGridStore::Cell(int Row, int Col) const {
    if (Row < 0 || Row >= Rows() || Col < 0 || Col >= mCols) Outside();
    return mRows[static_cast<size_t>(Row)]->Cells[static_cast<size_t>(Col)];
}

void FlexGridStore::SetCols(int Cols) {
    if (Cols < 0) Outside();
    std::erase_if(mKeys, [Cols](const auto& Key) { return Key.first >= Cols; });
    for (const RowPtr& Row : mRows) {
        Row->Cells.resize(static_cast<size_t>(Cols));
        Row->Cells.shrink_to_fit();
    }
    mCols = Cols;
}

void FlexGridStore::InsertRows(int At, int Count) {
    if (Count < 0) Outside();
    RequireRows(At, 0);
    std::vector<RowPtr> NewRows(static_cast<size_t>(Count));
    for (RowPtr& Row : NewRows) {
        Row = std::make_unique<RowCells>();
        Row->Cells.resize(static_cast<size_t>(mCols));
    }
    PlaceRows(std::move(NewRows), At);
}

void FlexGridStore::PlaceRows(std::vector<RowPtr> NewRows, int At) {
    const int Count = static_cast<int>(NewRows.size());
    mRows.insert(mRows.begin() + At, std::make_move_iterator(NewRows.begin()),
                 std::make_move_iterator(NewRows.end()));
    GiveOrder(At, Count);
}

// Numbers the new rows between their neighbours; when the gap is used up, all rows anew.
void FlexGridStore::GiveOrder(int At, int Count) {
    const int End = At + Count;
    const std::int64_t Low = At > 0 ? mRows[static_cast<size_t>(At) - 1]->Order : 0;
    const bool AtEnd = End == Rows();
    const std::int64_t High =
        AtEnd ? Low + OrderGap * (Count + 1) : mRows[static_cast<size_t>(End)]->Order;
    const std::int64_t Step = (High - Low) / (Count + 1);
    const bool All = Step < 1;
    std::int64_t Order = All ? 0 : Low;
    for (int I = All ? 0 : At; I < (All ? Rows() : End); ++I) {
        Order += All ? OrderGap : Step;
        mRows[static_cast<size_t>(I)]->Order = Order;
        mRows[static_cast<size_t>(I)]->LastPlace = I;
    }
}

void FlexGridStore::RemoveRows(int At, int Count) {
    RequireRows(At, Count);
    const auto First = mRows.begin() + At;
    if (!mKeys.empty())
        for (int I = Count - 1; I >= 0; --I) LeaveAll(*First[I]);
    mRows.erase(First, First + Count);
}

void FlexGridStore::MoveRow(int From, int To) {
    RequireRows(From, 1);
    RequireRows(To, 1);
    std::vector<RowPtr> Moved;
    Moved.push_back(std::move(mRows[static_cast<size_t>(From)]));
    const RowCells& Row = *Moved.front();
    LeaveAll(Row);
    mRows.erase(mRows.begin() + From);
    PlaceRows(std::move(Moved), To);
    EnterAll(Row);
}

bool FlexGridStore::WouldMove(const std::vector<int>& Moved, int Before) const {
    RequireRows(Before, 0);
    if (Moved.empty()) return false;
    const int First = Moved.front(), Span = Moved.back() - First + 1;
    RequireRows(First, Span);
    if (std::adjacent_find(Moved.begin(), Moved.end(), std::greater_equal<>()) != Moved.end())
        Outside();
    const bool OneBlock = Span == static_cast<int>(Moved.size());
    return !OneBlock || Before < First || Before > First + Span;
}

std::vector<FlexGridStore::RowPtr> FlexGridStore::TakeRows(const std::vector<int>& Taken) {
    std::vector<RowPtr> Out;
    for (const int Row : Taken) {
        Out.push_back(std::move(mRows[static_cast<size_t>(Row)]));
        LeaveAll(*Out.back());
    }
    std::erase(mRows, nullptr);
    return Out;
}

void FlexGridStore::RequireGift(const std::vector<int>& Given, const FlexGridStore& To) const {
    if (&To == this || To.mCols != mCols) Outside();
    WouldMove(Given, 0);  // a Fault for rows that are not there
}

void FlexGridStore::GiveRows(const std::vector<int>& Given, FlexGridStore& To) {
    RequireGift(Given, To);
    const int At = To.Rows();
    To.PlaceRows(TakeRows(Given), At);
    for (int Row = At; Row < To.Rows(); ++Row) To.EnterAll(*To.mRows[static_cast<size_t>(Row)]);
}

void FlexGridStore::MoveRowsBefore(const std::vector<int>& Moved, int Before) {
    if (!WouldMove(Moved, Before)) return;
    std::vector<RowPtr> Taken = TakeRows(Moved);
    const auto Above = std::lower_bound(Moved.begin(), Moved.end(), Before) - Moved.begin();
    const int At = Before - static_cast<int>(Above);
    PlaceRows(std::move(Taken), At);
    for (size_t I = 0; I < Moved.size(); ++I) EnterAll(*mRows[static_cast<size_t>(At) + I]);
}

void FlexGridStore::SetText(int Row, int Col, const QString& Text) {
    CellAt(Row, Col).Text = Text;
}

void FlexGridStore::SetData(int Row, int Col, const CellValue& Data) {
    FlexCell& Target = CellAt(Row, Col);
    const RowCells& Cells = *mRows[static_cast<size_t>(Row)];
    Leave(Col, Cells);
    Target.Data = Data;
    Enter(Col, Cells);
}

void FlexGridStore::SetPicture(int Row, int Col, const QImage& Picture, QSize Shape) {
    FlexCell& Target = CellAt(Row, Col);
    Target.Picture = Picture;
    Target.Shape = Shape;
}

void FlexGridStore::SetKeyColumn(int Col) {
    if (Col < 0 || Col >= mCols) Outside();
    if (!mKeys.try_emplace(Col).second) return;
    for (const RowPtr& Row : mRows) Enter(Col, *Row);
}

void FlexGridStore::Enter(int Col, const RowCells& Row) {
    const auto Key = mKeys.find(Col);
    const double* Number = std::get_if<double>(&Row.Cells[static_cast<size_t>(Col)].Data);
    if (Key == mKeys.end() || !Number || *Number != *Number) return;
    auto& Same = Key->second[*Number];
    const auto Before = [](std::int64_t Order, const RowCells* Other) {
        return Order < Other->Order;
    };
    Same.insert(std::upper_bound(Same.begin(), Same.end(), Row.Order, Before), &Row);
}

void FlexGridStore::Leave(int Col, const RowCells& Row) {
    const auto Key = mKeys.find(Col);
    const double* Number = std::get_if<double>(&Row.Cells[static_cast<size_t>(Col)].Data);
    if (Key == mKeys.end() || !Number) return;
    const auto Same = Key->second.find(*Number);
    if (Same == Key->second.end()) return;
    auto& List = Same->second;
    const auto Before = [](const RowCells* Other, std::int64_t Order) {
        return Other->Order < Order;
    };
    List.erase(std::lower_bound(List.begin(), List.end(), Row.Order, Before));
    if (List.empty()) Key->second.erase(Same);
}

void FlexGridStore::EnterAll(const RowCells& Row) {
    for (const auto& Key : mKeys) Enter(Key.first, Row);
}

void FlexGridStore::LeaveAll(const RowCells& Row) {
    for (const auto& Key : mKeys) Leave(Key.first, Row);
}

int FlexGridStore::PlaceOf(const RowCells& Row) const {
    const auto Hint = static_cast<size_t>(Row.LastPlace);
    if (Hint < mRows.size() && mRows[Hint].get() == &Row) return Row.LastPlace;
    const auto Before = [](const RowPtr& Other, std::int64_t Order) {
        return Other->Order < Order;
    };
    const auto Found = std::lower_bound(mRows.begin(), mRows.end(), Row.Order, Before);
    return Row.LastPlace = static_cast<int>(Found - mRows.begin());
}

int FlexGridStore::FindRow(int Col, double Number) const {
    const auto Key = mKeys.find(Col);
    if (Key != mKeys.end()) {
        const auto Same = Key->second.find(Number);
        return Same == Key->second.end() ? -1 : PlaceOf(*Same->second.front());
    }
    for (int Row = 0; Row < Rows(); ++Row) {
        const double* Value = std::get_if<double>(&Cell(Row, Col).Data);
        if (Value && *Value == Number) return Row;
    }
    return -1;
}

}  // namespace neb
