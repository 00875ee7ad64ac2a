// The list of pictures, captions and settings of every window, and, never shown, the store of
// the image buffer. Rows and columns count from 0; one outside the grid is a Fault.
#pragma once

#include <QTableView>

#include "controls/fields/KeyFilter.h"
#include "controls/grid/FlexGridModel.h"
#include "controls/grid/GridPictures.h"
#include "controls/grid/RowSet.h"

namespace neb {

class FlexGridDelegate;
class FlexGridDrag;

class FlexGrid : public QTableView {
    Q_OBJECT
  public:
    explicit FlexGrid(QWidget* Parent = nullptr);

    int Rows() const { return Content().Rows(); }
    void SetRows(int Rows);  // empty rows come at the end, or rows go from the end
    int Cols() const { return Content().Cols(); }
    void SetCols(int Cols);
    int AddItem();  // an empty row at the end; its number
    // Rows at the end with these texts by column; the view hears of them at once, together.
    void AddItems(const std::vector<QStringList>& Texts);
    void InsertItem(int Row);
    void RemoveItem(int Row);
    void SetRowPosition(int Row, int NewRow);                   // the selection goes with the row
    void GiveRows(const std::vector<int>& Rows, FlexGrid& To);  // ascending; to its end
    void MoveRowsBefore(const std::vector<int>& Rows, int Before);  // ascending; to 0 to Rows()

    const QString& TextMatrix(int Row, int Col) const { return Content().Cell(Row, Col).Text; }
    void SetTextMatrix(int Row, int Col, const QString& Text);
    const CellValue& CellData(int Row, int Col) const { return Content().Cell(Row, Col).Data; }
    void SetCellData(int Row, int Col, const CellValue& Data);
    const QImage& CellPicture(int Row, int Col) const { return Content().Cell(Row, Col).Picture; }
    // TrueShape: of the whole picture, where this one is stretched (ShapedPicture.h).
    void SetCellPicture(int Row, int Col, const QImage& Picture, QSize TrueShape = {});
    // What the column shows comes from there, asked for rows in view alone and kept no longer.
    void SetPictureSource(int Col, PictureSource Source);  // an empty one: the cells' own
    void PictureChanged(int Row, int Col);                 // the source is asked again
    ShapedPicture ShownPicture(int Row, int Col) const { return mPictures->Shown(Row, Col); }
    void CopyCell(const FlexGrid& Source, int SourceRow, int SourceCol, int Row, int Col);
    bool Checked(int Row, int Col) const;

    // The first row whose datum is this number; -1 for none. On a key column it is a lookup.
    int FindRow(int Col, double Number) const { return Content().FindRow(Col, Number); }
    void SetKeyColumn(int Col);

    const FlexColumn& Column(int Col) const { return mModel->Column(Col); }
    void SetColumn(int Col, const FlexColumn& Column);
    bool ColHidden(int Col) const { return Column(Col).Hidden; }
    void SetColHidden(int Col, bool Hidden);
    void SetColList(int Col, const QStringList& List);

    // Off: nothing is painted and no change is told until on. The selection and the place in
    // the list stay with their rows. Going off ends an edit that is open, with its text.
    bool Redraw() const { return !mModel->IsQuiet(); }
    void SetRedraw(bool On);

    int SelectedRows() const { return static_cast<int>(Selection().size()); }
    int SelectedRow(int Index) const;  // 0 to SelectedRows-1, from the top; else -1
    bool IsSelected(int Row) const;
    void SelectRow(int Row);  // besides those that are
    void ClearSelection();
    int Row() const;  // the current cell; -1 when there is none
    int Col() const;
    void SetRow(int Row);  // makes it the current row and the one selected row
    void EnsureRowVisible(int Row);
    // The cell under the last press, move or double click of the mouse; -1 outside the cells.
    int MouseRow() const { return mMouseRow; }
    int MouseCol() const { return mMouseCol; }

    void SetBeforeEdit(std::function<bool(int Row, int Col)> May) { mMayEdit = std::move(May); }
    void SetKeyPressEdit(KeyPressFilter Filter) { mKeyPressEdit = std::move(Filter); }
    void SetEditOnDblClick(bool On);  // at first on; off: it reports the double click instead
    bool EditCell(int Row, int Col);  // false when the cell may not be edited
    int EditRow() const { return mEditing.row(); }
    int EditCol() const { return mEditing.column(); }
    bool IsEditing() const { return state() == EditingState; }
    void FinishEdit();                       // takes over what stands in an open cell editor
    void SetEmptyText(const QString& Text);  // shown while there are no rows
    const QString& EmptyText() const { return mEmptyText; }

    // Lets rows be dragged out of this grid and dropped onto grids of the same group within the
    // same window, itself too; the grid moves none. An empty group ends it.
    void SetRowDrag(const QString& Group);
    FlexGridDrag* RowDrag() const { return mDrag; }  // null when rows cannot be dragged

  Q_SIGNALS:
    void CellDblClicked(int Row, int Col);
    void AfterEdit(int Row, int Col);
    void CellButtonClicked(int Row, int Col);
    void RowActivated(int Row);  // Return on a cell that is not edited
    void DeletePressed();
    void SelChange();
    void EnterCell(int Row, int Col);
    // After a drag: the selected rows of From are to stand before row Before; Rows(): at the end.
    void RowsDropped(FlexGrid* From, int Before);

  protected:
    bool edit(const QModelIndex& Index, EditTrigger Trigger, QEvent* Event) override;
    void closeEditor(QWidget* Editor, QAbstractItemDelegate::EndEditHint Hint) override;
    void currentChanged(const QModelIndex& Now, const QModelIndex& Before) override;
    QModelIndex moveCursor(CursorAction Action, Qt::KeyboardModifiers Modifiers) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void mousePressEvent(QMouseEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;
    void mouseReleaseEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;
    void startDrag(Qt::DropActions Actions) override;
    void paintEvent(QPaintEvent* Event) override;
    void changeEvent(QEvent* Event) override;

  private:
    friend class FlexGridDelegate;
    const FlexGridStore& Content() const { return mModel->Store(); }
    const std::vector<int>& Selection() const;
    void RestoreSelection();
    void FitColumn(int Col);
    void FitAll();
    void FitRowHeight();
    int FirstColumn() const;
    bool MayEdit(const QModelIndex& Index) const;
    void EnterPressed();
    void SpacePressed(const QKeyEvent& Event);
    bool PressCell(const QModelIndex& Index);
    bool KeyHandled(const QKeyEvent& Event);
    QModelIndex NoteMouse(const QMouseEvent& Event);
    bool OnHotSpot(const QModelIndex& Index, const QMouseEvent& Event) const;

    FlexGridModel* mModel;
    GridPictures* mPictures;
    FlexGridDelegate* mDelegate;
    FlexGridDrag* mDrag = nullptr;
    mutable RowSet mSelected;
    mutable bool mSelectionKnown = false;
    RowSet mCurrent;  // while redraw is off
    std::function<bool(int, int)> mMayEdit;
    KeyPressFilter mKeyPressEdit;
    QPersistentModelIndex mEditing, mPressed;
    bool mEdited = false;
    int mMouseRow = -1, mMouseCol = -1;
    QString mEmptyText, mAbout;  // while there are no rows; to screen readers, while there are
};

}  // namespace neb
