#include "controls/grid/FlexGrid.h"

#include <QHeaderView>
#include <QScrollBar>

#include "controls/grid/FlexGridDelegate.h"
#include "controls/grid/GridColumns.h"
#include "controls/speech/SpokenList.h"
#include "support/FlagText.h"

namespace neb {
namespace {

constexpr int GridMargin = 4;

int WidthFor(const FlexColumn& Column, const QFontMetrics& Metrics) {
    if (Column.Width > 0) return Column.Width;
    if (Column.Kind == FlexKind::Picture) return PictureSide + 4 * GridMargin;
    const int Text = Metrics.averageCharWidth() * (Column.Kind == FlexKind::Text ? 24 : 12);
    return std::max(Text, Metrics.size(0, Column.Heading).width() + 4 * GridMargin);
}

// Rows that lie together as one range: the view is slow with thousands of them.
QItemSelection Ranges(const QAbstractItemModel& Model, const std::vector<int>& Rows) {
    QItemSelection All;
    for (size_t I = 0; I < Rows.size();) {
        size_t End = I + 1;
        while (End < Rows.size() && Rows[End] == Rows[End - 1] + 1) ++End;
        All.append(QItemSelectionRange(Model.index(Rows[I], 0),
                                       Model.index(Rows[End - 1], Model.columnCount() - 1)));
        I = End;
    }
    return All;
}

}  // namespace

FlexGrid::FlexGrid(QWidget* Parent)
    : QTableView(Parent),
      mModel(new FlexGridModel(this)),
      mPictures(new GridPictures(*mModel, this)),
      mDelegate(new FlexGridDelegate(this)) {
    setModel(mModel);
    TellChanges(*this);
    setItemDelegate(mDelegate);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    FitAll();
    new GridColumns(*this);
    const auto TellRows = [this] {
        const bool Tells = accessibleDescription() == mEmptyText;
        if (!mEmptyText.isEmpty() && Tells != (Rows() == 0)) SetEmptyText(mEmptyText);
    };
    connect(mModel, &QAbstractItemModel::rowsInserted, this, TellRows);
    connect(mModel, &QAbstractItemModel::rowsRemoved, this, TellRows);
    connect(mModel, &QAbstractItemModel::modelReset, this, TellRows);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!Redraw()) return;
        mSelectionKnown = false;
        Q_EMIT SelChange();
    });
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& Now) {
                if (Redraw() && Now.isValid()) Q_EMIT EnterCell(Now.row(), Now.column());
            });
}

void FlexGrid::SetRows(int Count) {
    const int Before = Rows();
    if (Count < Before) {
        mModel->RemoveItems(Count, Before - Count);
        mSelected.RowsRemoved(Count, Before - Count);
        mCurrent.RowsRemoved(Count, Before - Count);
    } else {
        mModel->InsertItems(Before, Count - Before);
    }
    mSelectionKnown = !Redraw();
}

void FlexGrid::SetCols(int Cols) {
    SetRedraw(true);
    mModel->SetCols(Cols);
    FitAll();
}

int FlexGrid::AddItem() {
    SetRows(Rows() + 1);
    return Rows() - 1;
}

void FlexGrid::AddItems(const std::vector<QStringList>& Texts) {
    mModel->AppendItems(Texts);
    mSelectionKnown = !Redraw();
}

void FlexGrid::InsertItem(int Row) {
    mModel->InsertItems(Row, 1);
    mSelected.RowsInserted(Row, 1);
    mCurrent.RowsInserted(Row, 1);
    mSelectionKnown = !Redraw();
}

void FlexGrid::RemoveItem(int Row) {
    mModel->RemoveItems(Row, 1);
    mSelected.RowsRemoved(Row, 1);
    mCurrent.RowsRemoved(Row, 1);
    mSelectionKnown = !Redraw();
}

void FlexGrid::SetRowPosition(int Row, int NewRow) {
    mModel->MoveItem(Row, NewRow);
    mSelected.RowMoved(Row, NewRow);
    mCurrent.RowMoved(Row, NewRow);
    mSelectionKnown = !Redraw();
}

void FlexGrid::MoveRowsBefore(const std::vector<int>& Moved, int Before) {
    if (!Content().WouldMove(Moved, Before)) return;
    const bool Shown = Redraw();
    SetRedraw(false);
    mModel->MoveItemsUntold(Moved, Before);
    mSelected.RowsMoved(Moved, Before);
    mCurrent.RowsMoved(Moved, Before);
    SetRedraw(Shown);
}

void FlexGrid::GiveRows(const std::vector<int>& Given, FlexGrid& To) {
    Content().RequireGift(Given, To.Content());
    const bool Shown = Redraw(), ToShown = To.Redraw();
    SetRedraw(false);
    To.SetRedraw(false);
    mModel->GiveItemsUntold(Given, *To.mModel);
    mSelected.RowsTaken(Given);
    mCurrent.RowsTaken(Given);
    SetRedraw(Shown);
    To.SetRedraw(ToShown);
}

void FlexGrid::SetTextMatrix(int Row, int Col, const QString& Text) {
    mModel->SetText(Row, Col, Text);
}

void FlexGrid::SetCellData(int Row, int Col, const CellValue& Data) {
    mModel->SetCellData(Row, Col, Data);
}

void FlexGrid::SetCellPicture(int Row, int Col, const QImage& Picture, QSize TrueShape) {
    mModel->SetPicture(Row, Col, Picture, TrueShape);
}

void FlexGrid::SetPictureSource(int Col, PictureSource Source) {
    mPictures->SetSource(Col, std::move(Source));
    viewport()->update();
}

void FlexGrid::PictureChanged(int Row, int Col) {
    Content().RequireRows(Row, 1);
    mPictures->Forget(Row, Row);
    viewport()->update(visualRect(mModel->index(Row, Col)));
}

void FlexGrid::CopyCell(const FlexGrid& Source, int SourceRow, int SourceCol, int Row, int Col) {
    const FlexCell Copy = Source.Content().Cell(SourceRow, SourceCol);
    SetTextMatrix(Row, Col, Copy.Text);
    SetCellData(Row, Col, Copy.Data);
    SetCellPicture(Row, Col, Copy.Picture, Copy.Shape);
}

void FlexGrid::SetKeyColumn(int Col) {
    mModel->SetKeyColumn(Col);
}

void FlexGrid::SetColumn(int Col, const FlexColumn& Column) {
    mModel->SetColumn(Col, Column);
    FitColumn(Col);
    FitRowHeight();
}

void FlexGrid::SetColHidden(int Col, bool Hidden) {
    FlexColumn Changed = Column(Col);
    Changed.Hidden = Hidden;
    SetColumn(Col, Changed);
}

void FlexGrid::SetColList(int Col, const QStringList& List) {
    FlexColumn Changed = Column(Col);
    Changed.List = List;
    mModel->SetColumn(Col, Changed);
}

void FlexGrid::FitColumn(int Col) {
    const FlexColumn& Each = Column(Col);
    QHeaderView& Header = *horizontalHeader();
    Header.setSectionResizeMode(Col, Each.Stretch                     ? QHeaderView::Stretch
                                     : Each.Kind == FlexKind::Picture ? QHeaderView::Fixed
                                                                      : QHeaderView::Interactive);
    const int OfHeading = Each.Heading.isEmpty() ? 0 : Header.sectionSizeHint(Col);
    if (!Each.Stretch)
        Header.resizeSection(Col, std::max(WidthFor(Each, fontMetrics()), OfHeading));
    setColumnHidden(Col, Each.Hidden);
    Header.setVisible(mModel->HasHeadings());
}

void FlexGrid::FitAll() {
    horizontalHeader()->setVisible(mModel->HasHeadings());
    for (int Each = 0; Each < Cols(); ++Each) FitColumn(Each);
    FitRowHeight();
}

void FlexGrid::FitRowHeight() {
    int Content = fontMetrics().height();
    for (int Each = 0; Each < Cols(); ++Each)
        if (Column(Each).Kind == FlexKind::Picture && !ColHidden(Each))
            Content = std::max(Content, PictureSide);
    const int Height = Content + 2 * GridMargin;
    if (verticalHeader()->defaultSectionSize() != Height)
        verticalHeader()->setDefaultSectionSize(Height);
}

void FlexGrid::SetRedraw(bool On) {
    if (On == Redraw()) return;
    if (!On) {
        FinishEdit();
        Selection();
        mCurrent.Assign(Row() < 0 ? std::vector<int>() : std::vector<int>{Row()});
    }
    if (On)
        RestoreSelection();
    else
        mModel->SetQuiet(true);
    viewport()->setUpdatesEnabled(On);
}

// The view has followed none of the changes, so what it takes for selected is replaced.
void FlexGrid::RestoreSelection() {
    const std::vector<int> Kept = mSelected.Ascending();
    const int Col = currentIndex().column(), Before = currentIndex().row();
    {
        const QSignalBlocker Quiet(selectionModel());
        selectionModel()->clearSelection();  // first: thousands of ranges are slow to compare
        mModel->SetQuiet(false);
        selectionModel()->select(Ranges(*mModel, Kept), QItemSelectionModel::Select);
    }
    mSelectionKnown = false;
    const int Now =
        mCurrent.Ascending().empty() ? std::min(Before, Rows() - 1) : mCurrent.Ascending().front();
    selectionModel()->setCurrentIndex(mModel->index(Now, Col), QItemSelectionModel::NoUpdate);
    Q_EMIT SelChange();
}

const std::vector<int>& FlexGrid::Selection() const {
    if (mSelectionKnown || !Redraw()) return mSelected.Ascending();
    std::vector<int> Rows;
    for (const QItemSelectionRange& Range : selectionModel()->selection())
        for (int Row = Range.top(); Row <= Range.bottom(); ++Row) Rows.push_back(Row);
    mSelected.Assign(std::move(Rows));
    mSelectionKnown = true;
    return mSelected.Ascending();
}

int FlexGrid::SelectedRow(int Index) const {
    const auto& All = Selection();
    const bool Inside = Index >= 0 && Index < static_cast<int>(All.size());
    return Inside ? All[static_cast<size_t>(Index)] : -1;
}

bool FlexGrid::IsSelected(int Row) const {
    Selection();
    return mSelected.Holds(Row);
}

void FlexGrid::SelectRow(int Row) {
    Content().RequireRows(Row, 1);
    if (Redraw())
        selectionModel()->select(mModel->index(Row, 0),
                                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
    else
        mSelected.Add(Row);
}

void FlexGrid::ClearSelection() {
    if (Redraw())
        selectionModel()->clearSelection();
    else
        mSelected.Clear();
}

int FlexGrid::Row() const {
    if (Redraw()) return currentIndex().row();
    return mCurrent.Ascending().empty() ? -1 : mCurrent.Ascending().front();
}

int FlexGrid::Col() const {
    return currentIndex().column();
}

void FlexGrid::SetRow(int Row) {
    Content().RequireRows(Row, 1);
    if (!Redraw()) {
        mSelected.Assign({Row});
        mCurrent.Assign({Row});
        return;
    }
    const int Column = Col() < 0 || ColHidden(Col()) ? FirstColumn() : Col();
    selectionModel()->setCurrentIndex(
        mModel->index(Row, Column),
        QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

// Where a user starts: the first cell that can be edited, else the first that is seen.
int FlexGrid::FirstColumn() const {
    int Seen = 0;
    for (int Each = Cols() - 1; Each >= 0; --Each)
        if (!ColHidden(Each)) Seen = Each;
    for (int Each = Seen; Each < Cols(); ++Each)
        if (!ColHidden(Each) && Column(Each).Editable) return Each;
    return Seen;
}

void FlexGrid::EnsureRowVisible(int Row) {
    Content().RequireRows(Row, 1);
    const int Across = horizontalScrollBar()->value();
    scrollTo(mModel->index(Row, FirstColumn()));
    horizontalScrollBar()->setValue(Across);
}

bool FlexGrid::Checked(int Row, int Col) const {
    return IsChecked(TextMatrix(Row, Col));
}

}  // namespace neb
