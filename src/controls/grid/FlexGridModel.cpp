#include "controls/grid/FlexGridModel.h"

#include <algorithm>

#include "controls/grid/FlexGrid.h"
#include "support/FlagText.h"
#include "support/modText.h"

namespace neb {
namespace {

// Of a grid without headings, which eyes see at once: what screen readers say of a column.
QString Meaning(const FlexColumn& Column) {
    if (Column.Kind == FlexKind::Picture) return FlexGrid::tr("Picture");
    return Column.IsCaption ? FlexGrid::tr("Caption") : QString();
}

}  // namespace

void FlexGridModel::SetColumn(int Col, const FlexColumn& Column) {
    mColumns.at(static_cast<size_t>(Col)) = Column;
    if (mQuiet) return;
    Q_EMIT headerDataChanged(Qt::Horizontal, Col, Col);
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, Col), index(rowCount() - 1, Col));
}

void FlexGridModel::SetCols(int Cols) {
    if (Cols == mStore.Cols()) return;
    beginResetModel();
    mStore.SetCols(Cols);
    mColumns.resize(static_cast<size_t>(Cols));
    endResetModel();
}

bool FlexGridModel::HasHeadings() const {
    return std::any_of(mColumns.begin(), mColumns.end(),
                       [](const FlexColumn& Column) { return !Column.Heading.isEmpty(); });
}

void FlexGridModel::InsertItems(int At, int Count) {
    if (Count == 0) return;
    mStore.RequireRows(At, 0);
    if (!mQuiet) beginInsertRows({}, At, At + Count - 1);
    mStore.InsertRows(At, Count);
    if (!mQuiet) endInsertRows();
}

void FlexGridModel::AppendItems(const std::vector<QStringList>& Texts) {
    const int At = mStore.Rows(), Count = static_cast<int>(Texts.size());
    if (Count == 0) return;
    if (!mQuiet) beginInsertRows({}, At, At + Count - 1);
    mStore.InsertRows(At, Count);
    for (int Row = 0; Row < Count; ++Row) {
        const QStringList& Cells = Texts[static_cast<size_t>(Row)];
        for (int Col = 0; Col < std::min(static_cast<int>(Cells.size()), mStore.Cols()); ++Col)
            mStore.SetText(At + Row, Col, Cells[Col]);
    }
    if (!mQuiet) endInsertRows();
}

void FlexGridModel::RemoveItems(int At, int Count) {
    if (Count == 0) return;
    mStore.RequireRows(At, Count);
    if (!mQuiet) beginRemoveRows({}, At, At + Count - 1);
    mStore.RemoveRows(At, Count);
    if (!mQuiet) endRemoveRows();
}

void FlexGridModel::MoveItem(int From, int To) {
    if (From == To) return;
    mStore.RequireRows(From, 1);
    mStore.RequireRows(To, 1);
    if (!mQuiet) beginMoveRows({}, From, From, {}, To > From ? To + 1 : To);
    mStore.MoveRow(From, To);
    if (!mQuiet) endMoveRows();
}

void FlexGridModel::MoveItemsUntold(const std::vector<int>& Rows, int Before) {
    mStore.MoveRowsBefore(Rows, Before);
}

void FlexGridModel::GiveItemsUntold(const std::vector<int>& Rows, FlexGridModel& To) {
    mStore.GiveRows(Rows, To.mStore);
}

void FlexGridModel::CellChanged(int Row, int Col, const QList<int>& Roles) {
    if (mQuiet) return;
    const QModelIndex Changed = index(Row, Col);
    Q_EMIT dataChanged(Changed, Changed, Roles);
}

void FlexGridModel::SetText(int Row, int Col, const QString& Text) {
    mStore.SetText(Row, Col, Text);
    CellChanged(Row, Col);
}

void FlexGridModel::SetCellData(int Row, int Col, const CellValue& Data) {
    mStore.SetData(Row, Col, Data);  // nothing that a view shows
}

void FlexGridModel::SetPicture(int Row, int Col, const QImage& Picture, QSize Shape) {
    mStore.SetPicture(Row, Col, Picture, Shape);
    CellChanged(Row, Col, {Qt::DecorationRole});
}

void FlexGridModel::SetQuiet(bool Quiet) {
    if (Quiet == mQuiet) return;
    if (Quiet) {
        mRowsToldOf = mStore.Rows();
        mQuiet = true;
        return;
    }
    TellRowCount();
    if (rowCount() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

// As rows that came or went at the end, which leaves the place in the list as it is.
void FlexGridModel::TellRowCount() {
    const int Before = mRowsToldOf, Now = mStore.Rows();
    if (Now > Before) beginInsertRows({}, Before, Now - 1);
    if (Now < Before) beginRemoveRows({}, Now, Before - 1);
    mQuiet = false;
    if (Now > Before) endInsertRows();
    if (Now < Before) endRemoveRows();
}

int FlexGridModel::rowCount(const QModelIndex& Parent) const {
    if (Parent.isValid()) return 0;
    return mQuiet ? mRowsToldOf : mStore.Rows();
}

int FlexGridModel::columnCount(const QModelIndex& Parent) const {
    return Parent.isValid() ? 0 : mStore.Cols();
}

// The text by which a listener knows the row: the first text that is seen.
QString FlexGridModel::Caption(int Row) const {
    for (int Col = 0; Col < mStore.Cols(); ++Col) {
        const FlexColumn& Each = Column(Col);
        const QString& Text = mStore.Cell(Row, Col).Text;
        if (Each.Kind == FlexKind::Text && !Each.Hidden && !Text.isEmpty()) return Text;
    }
    return {};
}

QString FlexGridModel::SpokenText(int Row, int Col) const {
    const QString& Text = mStore.Cell(Row, Col).Text;
    if (Column(Col).Kind == FlexKind::Picture) return Caption(Row);
    if (Column(Col).Kind != FlexKind::Check) return ReadableText(Text);
    QString Heading = Column(Col).Heading;
    return Heading.replace(u'\n', u' ');
}

QVariant FlexGridModel::data(const QModelIndex& Index, int Role) const {
    const int Row = Index.row(), Col = Index.column();
    if (!Index.isValid() || Row >= mStore.Rows() || Col >= mStore.Cols()) return {};
    const FlexKind Kind = Column(Col).Kind;
    const bool Written = Kind != FlexKind::Picture && Kind != FlexKind::Check;
    if (Role == Qt::EditRole && Written) return mStore.Cell(Row, Col).Text;
    if (Role == Qt::DisplayRole && Written) return ReadableText(mStore.Cell(Row, Col).Text);
    if (Role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::Alignment(Column(Col).Align | Qt::AlignVCenter));
    if (Role == Qt::CheckStateRole && Kind == FlexKind::Check)
        return IsChecked(mStore.Cell(Row, Col).Text) ? Qt::Checked : Qt::Unchecked;
    if (Role == Qt::AccessibleTextRole) return SpokenText(Row, Col);
    return {};
}

QVariant FlexGridModel::headerData(int Section, Qt::Orientation Orientation, int Role) const {
    if (Orientation != Qt::Horizontal || Section >= mStore.Cols() || Role != Qt::DisplayRole)
        return {};
    const FlexColumn& Each = Column(Section);
    return HasHeadings() ? Each.Heading : Meaning(Each);
}

bool FlexGridModel::setData(const QModelIndex& Index, const QVariant& Value, int Role) {
    if (Role != Qt::EditRole || !Index.isValid() || Index.row() >= mStore.Rows()) return false;
    SetText(Index.row(), Index.column(), Value.toString());
    return true;
}

Qt::ItemFlags FlexGridModel::flags(const QModelIndex& Index) const {
    if (!Index.isValid() || Index.column() >= mStore.Cols()) return {};
    const FlexColumn& Each = Column(Index.column());
    Qt::ItemFlags Flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    if (Each.Editable && Each.Kind == FlexKind::Check) Flags |= Qt::ItemIsUserCheckable;
    const bool Typed =
        Each.Kind == FlexKind::Text || Each.Kind == FlexKind::List || Each.Kind == FlexKind::Button;
    if (Each.Editable && Typed) Flags |= Qt::ItemIsEditable;
    if (mRowsDraggable) Flags |= Qt::ItemIsDragEnabled;
    return Flags;
}

}  // namespace neb
