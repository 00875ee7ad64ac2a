#include "controls/grid/FlexGridDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>

#include "controls/fields/CaptionCount.h"
#include "controls/grid/FlexGrid.h"

namespace neb {
namespace {

constexpr int CellMargin = 4;
const QString Dots = QStringLiteral("...");

void EditNeighbour(FlexGrid& Grid, int Step) {
    const int Next = Grid.Row() + Step;
    if (Grid.Redraw() && Next >= 0 && Next < Grid.Rows()) Grid.EditCell(Next, Grid.Col());
}

// A key or the wheel only goes through the entries: the choice is made when the list that opens
// has closed, or at Return. What is typed is looked for as a whole: 1 is the entry 1 and not 10,
// and a 2 soon behind it makes it 12.
class ListField : public QComboBox {
  public:
    explicit ListField(QWidget* Parent) : QComboBox(Parent) { view()->installEventFilter(this); }
    bool IsPassing() const { return mPassing; }

  protected:
    void keyPressEvent(QKeyEvent* Event) override {
        const QScopedValueRollback<bool> Passing(mPassing, true);
        if (const int Entry = Typed(*Event); Entry >= 0) return setCurrentIndex(Entry);
        QComboBox::keyPressEvent(Event);
    }
    bool eventFilter(QObject* Watched, QEvent* Event) override {
        if (Watched != view() || Event->type() != QEvent::KeyPress)
            return QComboBox::eventFilter(Watched, Event);
        const int Entry = Typed(*static_cast<QKeyEvent*>(Event));
        if (Entry >= 0) view()->setCurrentIndex(model()->index(Entry, modelColumn()));
        return Entry >= 0;
    }
    void wheelEvent(QWheelEvent* Event) override {
        const QScopedValueRollback<bool> Passing(mPassing, true);
        QComboBox::wheelEvent(Event);
    }

  private:
    // The entry for what has been typed; -1 where the key is no letter, or nothing begins so.
    int Typed(const QKeyEvent& Event) {
        const QString Text = Event.text();
        if (Event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier) || Text.isEmpty() ||
            !Text[0].isLetterOrNumber())
            return -1;
        const bool GoesOn =
            mSince.isValid() && !mSince.hasExpired(QApplication::keyboardInputInterval());
        mTyped = GoesOn ? mTyped + Text : Text;
        mSince.start();
        if (const int Entry = EntryFor(mTyped); Entry >= 0) return Entry;
        mTyped = Text;
        return EntryFor(Text);
    }
    int EntryFor(const QString& Text) const {
        const int Whole = findText(Text, Qt::MatchFixedString);
        return Whole >= 0 ? Whole : findText(Text, Qt::MatchStartsWith);
    }

    bool mPassing = false;
    QString mTyped;
    QElapsedTimer mSince;
};

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
    Own.textElideMode = mGrid->Column(Index.column()).IsPath ? Qt::ElideLeft : Qt::ElideRight;
    const bool IsWords = mGrid->Column(Index.column()).Kind == FlexKind::Text &&
                         !mGrid->Column(Index.column()).IsPath;
    if (IsWords && Own.text.isRightToLeft()) Own.direction = Qt::RightToLeft;
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
    const bool Opens = Kind == FlexKind::List && mGrid->Column(Col).Editable;
    if (Kind != FlexKind::Button && !Opens) return {};
    const QFontMetrics Metrics = mGrid->fontMetrics();
    const int Height = std::min(Option.rect.height(), Metrics.height() + 2 * CellMargin);
    const int Width = Opens ? Metrics.height() : Metrics.horizontalAdvance(Dots) + 4 * CellMargin;
    return QStyle::alignedRect(Option.direction, Qt::AlignRight | Qt::AlignVCenter,
                               QSize(Width, Height), Option.rect);
}

void FlexGridDelegate::paint(QPainter* Painter, const QStyleOptionViewItem& Option,
                             const QModelIndex& Index) const {
    QStyleOptionViewItem Own = Styled(Option, Index);
    const FlexKind Kind = mGrid->Column(Index.column()).Kind;
    const QRect Hot = HotSpot(Own, Index.column());
    if (!Hot.isEmpty() && Kind != FlexKind::Check)
        PaintWithButton(*Painter, Own, Kind, Hot);
    else
        StyleOf(Own).drawControl(QStyle::CE_ItemViewItem, &Own, Painter, Own.widget);
    if (Kind == FlexKind::Picture && Index.row() < mGrid->Rows())
        PaintPicture(*Painter, Own.rect, Index);
    if (Kind == FlexKind::Check) PaintCheck(*Painter, Own, Index);
    if (Own.state & QStyle::State_HasFocus) PaintFocus(*Painter, Own);
}

// The background goes under the button as well, the text stops before it.
void FlexGridDelegate::PaintWithButton(QPainter& Painter, const QStyleOptionViewItem& Option,
                                       FlexKind Kind, const QRect& Hot) const {
    QStyleOptionViewItem Text = Option;
    PaintFrame(Painter, Option);
    if (Option.direction == Qt::RightToLeft)
        Text.rect.setLeft(Hot.right() + 1);
    else
        Text.rect.setRight(Hot.left() - 1);
    StyleOf(Text).drawControl(QStyle::CE_ItemViewItem, &Text, &Painter, Text.widget);
    if (Kind == FlexKind::Button)
        PaintButton(Painter, Option, Hot);
    else
        PaintArrow(Painter, Option, Hot);
}

// The styles mark the current cell so faintly that a selected row hides it.
void FlexGridDelegate::PaintFocus(QPainter& Painter, const QStyleOptionViewItem& Option) const {
    const bool Selected = Option.state & QStyle::State_Selected;
    Painter.setPen(
        Option.palette.color(Selected ? QPalette::HighlightedText : QPalette::Highlight));
    Painter.setBrush(Qt::NoBrush);
    Painter.drawRect(Option.rect.adjusted(1, 1, -2, -2));
}

void FlexGridDelegate::PaintArrow(QPainter& Painter, const QStyleOptionViewItem& Option,
                                  const QRect& Hot) const {
    QStyleOption Arrow;
    const int Side = Hot.width() * 2 / 3;
    Arrow.rect = QStyle::alignedRect(Option.direction, Qt::AlignCenter, QSize(Side, Side), Hot);
    Arrow.state = Option.state & QStyle::State_Enabled;
    Arrow.palette = mGrid->palette();
    const bool Selected = Option.state & QStyle::State_Selected;
    const QColor Ink =
        Arrow.palette.color(Selected ? QPalette::HighlightedText : QPalette::PlaceholderText);
    for (const auto Role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
        Arrow.palette.setColor(Role, Ink);
    StyleOf(Option).drawPrimitive(QStyle::PE_IndicatorArrowDown, &Arrow, &Painter, Option.widget);
}

void FlexGridDelegate::PaintFrame(QPainter& Painter, QStyleOptionViewItem Option) const {
    Option.text.clear();
    StyleOf(Option).drawControl(QStyle::CE_ItemViewItem, &Option, &Painter, Option.widget);
}

void FlexGridDelegate::PaintPicture(QPainter& Painter, const QRect& Room,
                                    const QModelIndex& Index) const {
    const double Scale = Painter.device()->devicePixelRatioF();
    const QImage Picture = mGrid->mPictures->Ready(Index.row(), Index.column(), Scale);
    if (Picture.isNull()) return;
    const QSizeF Size = Picture.deviceIndependentSize();
    const QPointF Corner((Room.width() - Size.width()) / 2, (Room.height() - Size.height()) / 2);
    Painter.save();
    Painter.setClipRect(Room, Qt::IntersectClip);
    Painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Painter.drawImage(QRectF(Room.topLeft() + Corner, Size), Picture);
    Painter.restore();
}

void FlexGridDelegate::PaintCheck(QPainter& Painter, const QStyleOptionViewItem& Option,
                                  const QModelIndex& Index) const {
    QStyleOptionViewItem Box = Option;
    Box.rect = HotSpot(Option, Index.column());
    const bool On = Index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    Box.state =
        (Option.state & QStyle::State_Enabled) | (On ? QStyle::State_On : QStyle::State_Off);
    // Some styles draw the frame in a shade of the window, which a dark list swallows.
    Box.palette.setColor(QPalette::Window, Box.palette.color(QPalette::PlaceholderText));
    if (!mGrid->Column(Index.column()).Editable) Box.state &= ~QStyle::State_Enabled;
    StyleOf(Option).drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &Box, &Painter,
                                  Option.widget);
}

void FlexGridDelegate::PaintButton(QPainter& Painter, const QStyleOptionViewItem& Option,
                                   const QRect& Hot) const {
    QStyleOptionButton Button;
    Button.rect = Hot;
    Button.state = (Option.state & QStyle::State_Enabled) | QStyle::State_Raised;
    Button.palette = mGrid->palette();
    Button.fontMetrics = mGrid->fontMetrics();
    Button.text = Dots;
    StyleOf(Option).drawControl(QStyle::CE_PushButton, &Button, &Painter, nullptr);
}

QWidget* FlexGridDelegate::createEditor(QWidget* Parent, const QStyleOptionViewItem&,
                                        const QModelIndex& Index) const {
    const FlexColumn& Column = mGrid->Column(Index.column());
    auto* Self = const_cast<FlexGridDelegate*>(this);
    mEditor = Column.Kind == FlexKind::List ? Self->ListEditor(Parent, Column.List)
                                            : TextEditor(Parent, Column);
    const QString Heading = Column.Heading;
    mEditor->setAccessibleName(Heading.isEmpty() ? mGrid->accessibleName() : Heading);
    mEditor->setAutoFillBackground(true);
    return mEditor;
}

QWidget* FlexGridDelegate::ListEditor(QWidget* Parent, const QStringList& Entries) {
    auto* Box = new ListField(Parent);
    Box->addItems(Entries);
    connect(Box, &QComboBox::activated, this, [this, Box] {
        if (!Box->IsPassing()) End(Box, true);
    });
    return Box;
}

QWidget* FlexGridDelegate::TextEditor(QWidget* Parent, const FlexColumn& Column) const {
    auto* Field = new QLineEdit(Parent);
    if (Column.IsCaption) new CaptionCount(Field);
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
    if (mGrid->Column(Index.column()).Kind == FlexKind::Button)
        Room.setWidth(Hot.left() - Room.left());
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
            Shown = QStringLiteral("<qt>%1</qt>").arg(Own.text.toHtmlEscaped());
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
    if (Tab) EditNeighbour(*mGrid, Key == Qt::Key_Tab ? 1 : -1);
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
