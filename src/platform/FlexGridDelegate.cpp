#include "platform/FlexGridDelegate.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QToolTip>

#include "platform/FlexGrid.h"

namespace neb {
namespace {

constexpr int Margin = 4;

QStyle& StyleOf(const QStyleOptionViewItem& Option) {
    return *Option.widget->style();
}

}  // namespace

FlexGridDelegate::FlexGridDelegate(FlexGrid* Grid) : QStyledItemDelegate(Grid), mGrid(Grid) {}

QStyleOptionViewItem FlexGridDelegate::Styled(const QStyleOptionViewItem& Option,
                                              const QModelIndex& Index) const {
    QStyleOptionViewItem Own = Option;
    initStyleOption(&Own, Index);
    if (!Own.widget) Own.widget = mGrid;
    Own.features &= ~QStyleOptionViewItem::HasCheckIndicator;  // ours stands in the middle
    Own.textElideMode = Qt::ElideRight;
    if (mGrid->Column(Index.column()).Kind == FlexKind::Fixed)
        Own.backgroundBrush = Own.palette.button();
    return Own;
}

QRect FlexGridDelegate::HotSpot(const QStyleOptionViewItem& Option, int Col) const {
    const FlexKind Kind = mGrid->Column(Col).Kind;
    const QStyle& Style = *mGrid->style();
    if (Kind == FlexKind::Check) {
        const QSize Size(Style.pixelMetric(QStyle::PM_IndicatorWidth, &Option, mGrid),
                         Style.pixelMetric(QStyle::PM_IndicatorHeight, &Option, mGrid));
        return QStyle::alignedRect(Option.direction, Qt::AlignCenter, Size, Option.rect);
    }
    if (Kind != FlexKind::Button) return {};
    const int Height = std::min(Option.rect.height(), mGrid->fontMetrics().height() + 2 * Margin);
    const QSize Size(mGrid->fontMetrics().horizontalAdvance(QStringLiteral("...")) + 4 * Margin,
                     Height);
    return QStyle::alignedRect(Option.direction, Qt::AlignRight | Qt::AlignVCenter, Size,
                               Option.rect);
}

void FlexGridDelegate::paint(QPainter* Painter, const QStyleOptionViewItem& Option,
                             const QModelIndex& Index) const {
    QStyleOptionViewItem Own = Styled(Option, Index);
    const FlexKind Kind = mGrid->Column(Index.column()).Kind;
    if (Kind == FlexKind::Button) {
        QStyleOptionViewItem Text = Own;
        PaintFrame(*Painter, Own);
        Text.rect.setWidth(HotSpot(Own, Index.column()).left() - Own.rect.left());
        StyleOf(Text).drawControl(QStyle::CE_ItemViewItem, &Text, Painter, Text.widget);
        PaintButton(*Painter, Own, Index.column());
        return;
    }
    StyleOf(Own).drawControl(QStyle::CE_ItemViewItem, &Own, Painter, Own.widget);
    if (Kind == FlexKind::Picture && Index.row() < mGrid->Rows())
        PaintPicture(*Painter, Own.rect, mGrid->CellPicture(Index.row(), Index.column()));
    if (Kind == FlexKind::Check) PaintCheck(*Painter, Own, Index);
}

void FlexGridDelegate::PaintFrame(QPainter& Painter, QStyleOptionViewItem Option) const {
    Option.text.clear();
    StyleOf(Option).drawControl(QStyle::CE_ItemViewItem, &Option, &Painter, Option.widget);
}

void FlexGridDelegate::PaintPicture(QPainter& Painter, const QRect& Room,
                                    const QImage& Picture) const {
    if (Picture.isNull()) return;
    const QSizeF Size = Picture.deviceIndependentSize();
    const QRect Place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, Size.toSize(), Room);
    Painter.save();
    Painter.setClipRect(Room, Qt::IntersectClip);
    Painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Painter.drawImage(QRectF(Place.topLeft(), Size), Picture);
    Painter.restore();
}

void FlexGridDelegate::PaintCheck(QPainter& Painter, const QStyleOptionViewItem& Option,
                                  const QModelIndex& Index) const {
    QStyleOptionViewItem Box = Option;
    Box.rect = HotSpot(Option, Index.column());
    const bool On = Index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    Box.state =
        (Option.state & QStyle::State_Enabled) | (On ? QStyle::State_On : QStyle::State_Off);
    if (!mGrid->Column(Index.column()).Editable) Box.state &= ~QStyle::State_Enabled;
    StyleOf(Option).drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &Box, &Painter,
                                  Option.widget);
}

void FlexGridDelegate::PaintButton(QPainter& Painter, const QStyleOptionViewItem& Option,
                                   int Col) const {
    QStyleOptionButton Button;
    Button.rect = HotSpot(Option, Col);
    Button.state = (Option.state & QStyle::State_Enabled) | QStyle::State_Raised;
    Button.palette = mGrid->palette();
    Button.fontMetrics = mGrid->fontMetrics();
    Button.text = QStringLiteral("...");
    StyleOf(Option).drawControl(QStyle::CE_PushButton, &Button, &Painter, nullptr);
}

QWidget* FlexGridDelegate::createEditor(QWidget* Parent, const QStyleOptionViewItem&,
                                        const QModelIndex& Index) const {
    const FlexColumn& Column = mGrid->Column(Index.column());
    auto* Self = const_cast<FlexGridDelegate*>(this);
    mEditor =
        Column.Kind == FlexKind::List ? Self->ListEditor(Parent, Column.List) : TextEditor(Parent);
    const QString Heading = Column.Heading;
    mEditor->setAccessibleName(Heading.isEmpty() ? mGrid->accessibleName() : Heading);
    mEditor->setAutoFillBackground(true);
    return mEditor;
}

QWidget* FlexGridDelegate::ListEditor(QWidget* Parent, const QStringList& Entries) {
    auto* Box = new QComboBox(Parent);
    Box->addItems(Entries);
    connect(Box, &QComboBox::activated, this, [this, Box] { End(Box, true); });
    return Box;
}

QWidget* FlexGridDelegate::TextEditor(QWidget* Parent) const {
    auto* Field = new QLineEdit(Parent);
    new KeyFilter(Field, [Grid = mGrid](const EntryState& State, std::int16_t& KeyAscii) {
        if (Grid->mKeyPressEdit) Grid->mKeyPressEdit(State, KeyAscii);
    });
    return Field;
}

void FlexGridDelegate::setEditorData(QWidget* Editor, const QModelIndex& Index) const {
    const QString Text = Index.data(Qt::EditRole).toString();
    if (auto* Box = qobject_cast<QComboBox*>(Editor))
        Box->setCurrentIndex(Box->findText(Text));
    else if (auto* Field = qobject_cast<QLineEdit*>(Editor); Field && Field->text() != Text)
        Field->setText(Text);
}

void FlexGridDelegate::setModelData(QWidget* Editor, QAbstractItemModel* Model,
                                    const QModelIndex& Index) const {
    const auto* Box = qobject_cast<QComboBox*>(Editor);
    if (Box && Box->currentIndex() < 0) return;
    const QString Text = Box ? Box->currentText() : static_cast<const QLineEdit*>(Editor)->text();
    Model->setData(Index, Text, Qt::EditRole);
    mGrid->mEdited = true;
}

// As high as the editor wants, in the middle of a row that a picture makes higher.
void FlexGridDelegate::updateEditorGeometry(QWidget* Editor, const QStyleOptionViewItem& Option,
                                            const QModelIndex& Index) const {
    QRect Room = Option.rect;
    const QRect Hot = HotSpot(Option, Index.column());
    if (!Hot.isEmpty()) Room.setWidth(Hot.left() - Room.left());
    const QSize Size(Room.width(), std::min(Room.height(), Editor->sizeHint().height()));
    Editor->setGeometry(QStyle::alignedRect(Option.direction, Qt::AlignCenter, Size, Room));
}

bool FlexGridDelegate::helpEvent(QHelpEvent* Event, QAbstractItemView* View,
                                 const QStyleOptionViewItem& Option, const QModelIndex& Index) {
    if (Event->type() != QEvent::ToolTip) return false;
    QString Shown = View->toolTip();
    if (Index.isValid()) {
        const QStyleOptionViewItem Own = Styled(Option, Index);
        const QRect Room =
            StyleOf(Own).subElementRect(QStyle::SE_ItemViewItemText, &Own, Own.widget);
        const int Margins = 2 * (StyleOf(Own).pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
        const int Hot = HotSpot(Own, Index.column()).width();
        const bool Text = mGrid->Column(Index.column()).Kind != FlexKind::Check;
        if (Text && Own.fontMetrics.horizontalAdvance(Own.text) > Room.width() - Margins - Hot)
            Shown = Own.text.toHtmlEscaped();
    }
    QToolTip::showText(Event->globalPos(), Shown, View);
    return true;
}

void FlexGridDelegate::End(QWidget* Editor, bool Keep) {
    if (Keep) Q_EMIT commitData(Editor);
    Q_EMIT closeEditor(Editor, Keep ? NoHint : RevertModelCache);
}

// Return and Escape end here: they must not press a button of the window around the grid.
bool FlexGridDelegate::KeyPressed(QWidget* Editor, int Key) {
    const bool Enter = Key == Qt::Key_Return || Key == Qt::Key_Enter;
    const bool Tab = Key == Qt::Key_Tab || Key == Qt::Key_Backtab;
    if (!Enter && !Tab && Key != Qt::Key_Escape) return false;
    End(Editor, Enter || Tab);
    if (Tab) mGrid->EditNeighbour(Key == Qt::Key_Tab ? 1 : -1);
    return true;
}

bool FlexGridDelegate::eventFilter(QObject* Watched, QEvent* Event) {
    auto* Editor = qobject_cast<QWidget*>(Watched);
    if (Editor && Event->type() == QEvent::KeyPress &&
        KeyPressed(Editor, static_cast<QKeyEvent*>(Event)->key()))
        return true;
    return QStyledItemDelegate::eventFilter(Watched, Event);
}

}  // namespace neb
