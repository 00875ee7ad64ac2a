// What the user does with a FlexGrid: keys, mouse, edits, and what stands in an empty one.
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "controls/grid/FlexGrid.h"
#include "controls/grid/FlexGridDelegate.h"
#include "controls/grid/FlexGridDrag.h"
#include "controls/speech/SpokenList.h"

namespace neb {
namespace {

constexpr int EmptyLetters = 24;  // in a line of what an empty list says, at the least

void ToggleCheck(FlexGrid& Grid, int Row, int Col) {
    const bool On = !Grid.Checked(Row, Col);
    Grid.SetTextMatrix(Row, Col, On ? QStringLiteral("True") : QStringLiteral("False"));
    Q_EMIT Grid.AfterEdit(Row, Col);
}

}  // namespace

void FlexGrid::SetEditOnDblClick(bool On) {
    setEditTriggers(editTriggers().setFlag(DoubleClicked, On));
}

// All of it has room, in a narrow list, too; and it is read by screen readers.
void FlexGrid::SetEmptyText(const QString& Text) {
    if (mEmptyText.isEmpty()) mAbout = AboutList(*this);
    mEmptyText = Text;
    setAccessibleDescription(Rows() == 0 ? Text : mAbout.isEmpty() ? toolTip() : mAbout);
    const QFontMetrics Letters = fontMetrics();
    const QRect Narrow(0, 0, EmptyLetters * Letters.averageCharWidth(), 1);
    const QHeaderView& Headings = *horizontalHeader();
    const int Edges = 2 * frameWidth() + (Headings.isHidden() ? 0 : Headings.sizeHint().height());
    const int High = Letters.boundingRect(Narrow, Qt::TextWordWrap, Text).height() +
                     2 * Letters.height() + Edges;
    setMinimumHeight(std::max(minimumHeight(), High));
    viewport()->update();
}

void FlexGrid::currentChanged(const QModelIndex& Now, const QModelIndex& Before) {
    QAbstractItemView::currentChanged(Now, Before);
    TellCurrent(*this);
}

bool FlexGrid::MayEdit(const QModelIndex& Index) const {
    return Redraw() && Index.isValid() && Column(Index.column()).Editable &&
           (!mMayEdit || mMayEdit(Index.row(), Index.column()));
}

bool FlexGrid::edit(const QModelIndex& Index, EditTrigger Trigger, QEvent* Event) {
    const bool Starts = Trigger == AllEditTriggers || editTriggers() & Trigger;
    // a double click that edits nothing still calls off the edit that its first half announced
    if (!Starts && Trigger == DoubleClicked) return QTableView::edit(Index, Trigger, Event);
    if (!Starts || IsEditing() || !(mModel->flags(Index) & Qt::ItemIsEditable) || !MayEdit(Index))
        return false;
    mEditing = Index;
    mEdited = false;
    if (!QTableView::edit(Index, Trigger, Event)) return false;
    scrollTo(Index);
    return true;
}

bool FlexGrid::EditCell(int Row, int Col) {
    const QModelIndex Index = mModel->index(Row, Col);
    if (!Index.isValid()) return false;
    setCurrentIndex(Index);
    return edit(Index, AllEditTriggers, nullptr);
}

void FlexGrid::FinishEdit() {
    QWidget* Editor = mDelegate->Editor();
    if (!IsEditing() || !Editor) return;
    commitData(Editor);
    closeEditor(Editor, QAbstractItemDelegate::NoHint);
}

// AfterEdit comes last: its handler may move rows or show a box.
void FlexGrid::closeEditor(QWidget* Editor, QAbstractItemDelegate::EndEditHint Hint) {
    QTableView::closeEditor(Editor, Hint);
    const QModelIndex Cell = mEditing;
    mEditing = QModelIndex();
    if (std::exchange(mEdited, false) && Cell.isValid())
        Q_EMIT AfterEdit(Cell.row(), Cell.column());
}

// In lists of rows Home and End mean the first and the last row.
QModelIndex FlexGrid::moveCursor(CursorAction Action, Qt::KeyboardModifiers Modifiers) {
    if (Rows() == 0 || !Redraw()) return QTableView::moveCursor(Action, Modifiers);
    const QModelIndex Here = currentIndex();
    const int Column = Here.isValid() ? Here.column() : FirstColumn();
    if (Action == MoveEnd) return mModel->index(Rows() - 1, Column);
    if (Action == MoveHome || !Here.isValid()) return mModel->index(0, Column);
    return QTableView::moveCursor(Action, Modifiers);
}

// Presses the box or the button of a cell; false when it has none.
bool FlexGrid::PressCell(const QModelIndex& Index) {
    const FlexKind Kind = Index.isValid() ? Column(Index.column()).Kind : FlexKind::Text;
    if (Kind == FlexKind::Button) Q_EMIT CellButtonClicked(Index.row(), Index.column());
    if (Kind == FlexKind::Check && MayEdit(Index)) ToggleCheck(*this, Index.row(), Index.column());
    if (Kind == FlexKind::List && EditCell(Index.row(), Index.column()))
        static_cast<QComboBox*>(mDelegate->Editor())->showPopup();
    return Kind == FlexKind::Button || Kind == FlexKind::Check || Kind == FlexKind::List;
}

// Return edits the cell, or presses it, or reports the row.
void FlexGrid::EnterPressed() {
    const QModelIndex Cell = currentIndex();
    if (!Cell.isValid() && SelectedRows() > 0) return Q_EMIT RowActivated(SelectedRow(0));
    if (!Cell.isValid() || edit(Cell, AllEditTriggers, nullptr)) return;
    const FlexKind Kind = Column(Cell.column()).Kind;
    if (Kind == FlexKind::List || !PressCell(Cell)) Q_EMIT RowActivated(Cell.row());
}

// Selects, even in a caption: a blank must not take the place of a text by accident.
void FlexGrid::SpacePressed(const QKeyEvent& Event) {
    const QModelIndex Cell = currentIndex();
    if (Event.modifiers() == Qt::NoModifier && PressCell(Cell)) return;
    if (Cell.isValid()) selectionModel()->select(Cell, selectionCommand(Cell, &Event));
}

// True for the keys that mean something of our own here.
bool FlexGrid::KeyHandled(const QKeyEvent& Event) {
    const int Key = Event.key();
    const bool Space = Key == Qt::Key_Space;
    if (IsEditing()) return false;
    if (Space) SpacePressed(Event);
    if (Space || Event.modifiers() & ~Qt::KeypadModifier) return Space;
    const bool Enter = Key == Qt::Key_Return || Key == Qt::Key_Enter;
    if (Enter) EnterPressed();
    if (Key == Qt::Key_Delete) Q_EMIT DeletePressed();
    return Enter || Key == Qt::Key_Delete;
}

void FlexGrid::keyPressEvent(QKeyEvent* Event) {
    if (KeyHandled(*Event))
        Event->accept();
    else
        QTableView::keyPressEvent(Event);
}

QModelIndex FlexGrid::NoteMouse(const QMouseEvent& Event) {
    const QModelIndex Under = indexAt(Event.position().toPoint());
    mMouseRow = Under.row();
    mMouseCol = Under.column();
    return Under;
}

bool FlexGrid::OnHotSpot(const QModelIndex& Index, const QMouseEvent& Event) const {
    QStyleOptionViewItem Option;
    initViewItemOption(&Option);
    Option.rect = visualRect(Index);
    return mDelegate->HotSpot(Option, Index.column()).contains(Event.position().toPoint());
}

void FlexGrid::SetRowDrag(const QString& Group) {
    const bool On = !Group.isEmpty();
    if (mDrag) mDrag->SetGroup(Group);
    if (mDrag && !On) std::exchange(mDrag, nullptr)->deleteLater();
    if (!mDrag && On) mDrag = new FlexGridDrag(*this, Group);
    mModel->SetRowsDraggable(On);
    setDragEnabled(On);
    setAcceptDrops(On);
}

void FlexGrid::startDrag(Qt::DropActions Actions) {
    if (!mDrag) return QTableView::startDrag(Actions);
    if (mPressed.isValid() && IsSelected(mPressed.row())) mDrag->Begin();
}

void FlexGrid::mousePressEvent(QMouseEvent* Event) {
    if (mDrag) FinishEdit();
    mPressed = NoteMouse(*Event);
    if (mDrag)
        mDrag->Pressed(Event->button() == Qt::LeftButton && mPressed.isValid() &&
                       !OnHotSpot(mPressed, *Event));
    QTableView::mousePressEvent(Event);
}

void FlexGrid::mouseMoveEvent(QMouseEvent* Event) {
    NoteMouse(*Event);
    // where rows are dragged, a drag selects none
    if (mDrag && Event->buttons() != Qt::NoButton && !mDrag->MayMove()) return;
    QTableView::mouseMoveEvent(Event);
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* Event) {
    if (mDrag && !mDrag->Released()) return;
    QTableView::mouseReleaseEvent(Event);
    const QModelIndex Under = indexAt(Event->position().toPoint());
    if (Event->button() != Qt::LeftButton || !Under.isValid() || Under != mPressed) return;
    if (OnHotSpot(Under, *Event)) PressCell(Under);
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* Event) {
    const QModelIndex Under = NoteMouse(*Event);
    mPressed = Under;
    if (mDrag) mDrag->Pressed(false);
    QTableView::mouseDoubleClickEvent(Event);
    const bool Reported = Event->button() == Qt::LeftButton && Under.isValid() && !IsEditing() &&
                          Column(Under.column()).Kind != FlexKind::Check;
    if (Reported) Q_EMIT CellDblClicked(Under.row(), Under.column());
}

void FlexGrid::paintEvent(QPaintEvent* Event) {
    QTableView::paintEvent(Event);
    const int Last = rowAt(viewport()->height() - 1);
    mPictures->KeepOnly(rowAt(0), Last < 0 ? Rows() : Last);
    if (mDrag) mDrag->PaintLine();
    if (Rows() > 0 || mEmptyText.isEmpty()) return;
    QPainter Painter(viewport());
    Painter.setPen(palette().color(QPalette::PlaceholderText));
    const int Margin = fontMetrics().height();
    Painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                     Qt::AlignCenter | Qt::TextWordWrap, mEmptyText);
}

void FlexGrid::changeEvent(QEvent* Event) {
    QTableView::changeEvent(Event);
    if (Event->type() == QEvent::FontChange || Event->type() == QEvent::StyleChange) FitAll();
}

}  // namespace neb
