// The content of a grid without a window: rows of cells, each with a text, a datum and a picture.
// FlexGrid shows one; rows are found again by the number in a key column.
#pragma once

#include <QDateTime>
#include <QImage>
#include <QString>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <variant>
#include <vector>

namespace neb {

// The datum of a cell: nothing (null), a number, or a date and time.
using CellValue = std::variant<std::monostate, double, QDateTime>;

struct FlexCell {
    QString Text;
    CellValue Data;
    QImage Picture;  // shared with whoever gave it, never copied
    QSize Shape;     // of the true picture; empty: of this one
};

// Rows and columns count from 0; a row or column outside the store is a Fault.
class FlexGridStore {
  public:
    int Rows() const { return static_cast<int>(mRows.size()); }
    int Cols() const { return mCols; }
    void SetCols(int Cols);  // the rows keep the cells that stay

    void InsertRows(int At, int Count);  // empty rows before row At; At may be Rows()
    void RemoveRows(int At, int Count);
    void MoveRow(int From, int To);  // To: the row's place afterwards
    // These rows (ascending, none twice) together before row Before; Before may be Rows().
    void MoveRowsBefore(const std::vector<int>& Rows, int Before);
    // These rows (ascending, none twice), cells and all, to the end of a store with as many
    // columns.
    void GiveRows(const std::vector<int>& Rows, FlexGridStore& To);
    void RequireGift(const std::vector<int>& Rows, const FlexGridStore& To) const;  // else a Fault
    bool WouldMove(const std::vector<int>& Rows, int Before) const;

    void RequireRows(int At, int Count) const;  // a Fault unless these rows are there

    const FlexCell& Cell(int Row, int Col) const;
    void SetText(int Row, int Col, const QString& Text);
    void SetData(int Row, int Col, const CellValue& Data);
    void SetPicture(int Row, int Col, const QImage& Picture, QSize Shape = {});

    // Makes FindRow on this column a lookup, whatever is removed, moved or changed later.
    void SetKeyColumn(int Col);
    // The first row whose datum in this column is this number; -1 when there is none.
    int FindRow(int Col, double Number) const;

  private:
    // Order grows from row to row, with gaps: it tells which of two rows comes first, and where
    // a row stands, without being written anew when rows before it go.
    struct RowCells {
        std::int64_t Order = 0;
        mutable int LastPlace = 0;
        std::vector<FlexCell> Cells;
    };
    using RowPtr = std::unique_ptr<RowCells>;
    using KeyIndex = std::unordered_map<double, std::vector<const RowCells*>>;

    FlexCell& CellAt(int Row, int Col);
    std::vector<RowPtr> TakeRows(const std::vector<int>& Rows);
    void PlaceRows(std::vector<RowPtr> NewRows, int At);
    void GiveOrder(int At, int Count);
    int PlaceOf(const RowCells& Row) const;
    void Enter(int Col, const RowCells& Row);
    void Leave(int Col, const RowCells& Row);
    void EnterAll(const RowCells& Row);
    void LeaveAll(const RowCells& Row);

    int mCols = 0;
    std::vector<RowPtr> mRows;
    std::unordered_map<int, KeyIndex> mKeys;  // by column
};

}  // namespace neb
