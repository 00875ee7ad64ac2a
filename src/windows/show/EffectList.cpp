#include "windows/show/EffectList.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <functional>

#include "support/modFind.h"

namespace neb {
namespace {

constexpr int NumberRole = Qt::UserRole;
constexpr int LevelRole = Qt::UserRole + 1;
constexpr int RowGap = 4;  // a row is easy to hit
constexpr qint64 SearchPauseMs = 1000;

// The check mark is the selection itself, for the eye and for screen readers.
class EffectItem : public QListWidgetItem {
  public:
    using QListWidgetItem::QListWidgetItem;
    QVariant data(int Role) const override {
        if (Role != Qt::CheckStateRole) return QListWidgetItem::data(Role);
        return static_cast<int>(listWidget() && isSelected() ? Qt::Checked : Qt::Unchecked);
    }
    void setData(int Role, const QVariant& Value) override {
        if (Role != Qt::CheckStateRole) return QListWidgetItem::setData(Role, Value);
        setSelected(Value.toInt() == Qt::Checked);
    }
};

// Marks the current entry; the selected ones have their check marks.
class EffectDelegate : public QStyledItemDelegate {
  public:
    explicit EffectDelegate(EffectList* List) : QStyledItemDelegate(List), mList(List) {}

    void initStyleOption(QStyleOptionViewItem* Option, const QModelIndex& Index) const override {
        QStyledItemDelegate::initStyleOption(Option, Index);
        Option->state.setFlag(QStyle::State_Selected, Index == mList->currentIndex());
        if (mList->IsChoosable()) return;
        Option->state.setFlag(QStyle::State_Enabled, false);
        Option->palette.setCurrentColorGroup(QPalette::Disabled);
    }
    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override {
        QStyledItemDelegate::paint(Painter, Option, Index);
        Painter->save();
        const bool Current = Index == mList->currentIndex();
        Painter->setPen(mList->IsChoosable()
                            ? LevelColour(Option, Current)
                            : Option.palette.color(QPalette::Disabled, QPalette::Text));
        Painter->drawText(Option.rect.adjusted(0, 0, -Gap(Option), 0),
                          Qt::AlignRight | Qt::AlignVCenter, Index.data(LevelRole).toString());
        Painter->restore();
    }
    // The list itself turns the check marks over.
    bool editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                     const QModelIndex&) override {
        return false;
    }
    QSize sizeHint(const QStyleOptionViewItem& Option, const QModelIndex& Index) const override {
        const QString Level = Index.data(LevelRole).toString();
        const int Width = Option.fontMetrics.horizontalAdvance(Level) + 3 * Gap(Option);
        return QStyledItemDelegate::sizeHint(Option, Index) + QSize(Width, RowGap);
    }

  private:
    // A paler text; not every palette has one that can be read on a dark ground.
    static QColor LevelColour(const QStyleOptionViewItem& Option, bool Current) {
        const bool Active = Option.state & QStyle::State_Active;
        QColor Colour = Option.palette.color(Active ? QPalette::Active : QPalette::Inactive,
                                             Current ? QPalette::HighlightedText : QPalette::Text);
        if (!Current) Colour.setAlphaF(0.55F);
        return Colour;
    }
    static int Gap(const QStyleOptionViewItem& Option) {
        return Option.fontMetrics.averageCharWidth();
    }
    EffectList* mList;
};

int FindFrom(const QStringList& Names, int From, const std::function<bool(const QString&)>& Fits) {
    const int Count = static_cast<int>(Names.size());
    for (int Step = 0; Step < Count; ++Step) {
        const int Row = (std::max(0, From) + Step) % Count;
        if (Fits(Names[Row])) return Row;
    }
    return -1;
}

}  // namespace

int FindTyped(const QStringList& Names, const QString& Typed, int From) {
    if (Typed.isEmpty()) return -1;
    const int Begins =
        FindFrom(Names, From, [&](const QString& Name) { return BeginsWith(Name, Typed); });
    if (Begins >= 0) return Begins;
    return FindFrom(Names, From, [&](const QString& Name) { return HoldsWhole(Name, Typed); });
}

EffectList::EffectList(QWidget* Parent) : QListWidget(Parent) {
    setSelectionMode(MultiSelection);
    setUniformItemSizes(false);
    setItemDelegate(new EffectDelegate(this));
}

void EffectList::AddEffect(const QString& Name, int Number, const QString& Level) {
    auto* Item = new EffectItem(Name, this);
    Item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    Item->setData(NumberRole, Number);
    Item->setData(LevelRole, Level);
    Item->setData(Qt::AccessibleDescriptionRole, Level);
}

int EffectList::Number(int Row) const {
    const QListWidgetItem* Item = item(Row);
    return Item ? Item->data(NumberRole).toInt() : 0;
}

void EffectList::SetAllSelected(bool Selected) {
    if (Selected)
        selectAll();
    else
        clearSelection();
}

void EffectList::SetChoosable(bool Choosable) {
    mChoosable = Choosable;
    viewport()->update();
}

QStringList EffectList::Names() const {
    QStringList All;
    for (int Row = 0; Row < count(); ++Row) All << item(Row)->text();
    return All;
}

bool EffectList::IsSearching() const {
    return mSinceTyped.isValid() && mSinceTyped.elapsed() < SearchPauseMs;
}

// One letter again and again walks through the names that begin with it.
void EffectList::keyboardSearch(const QString& Typed) {
    const bool Again = IsSearching() && mTyped.size() == 1 && Typed == mTyped;
    mTyped = IsSearching() && !Again ? mTyped + Typed : Typed;
    mSinceTyped.start();
    const int From = currentRow() + (mTyped.size() == 1 ? 1 : 0);
    const int Found = FindTyped(Names(), mTyped, From);
    if (Found >= 0) setCurrentRow(Found, QItemSelectionModel::NoUpdate);
}

bool EffectList::IsOnCheckMark(const QModelIndex& Index, const QPoint& At) const {
    if (!Index.isValid()) return false;
    QStyleOptionViewItem Option;
    initViewItemOption(&Option);
    Option.rect = visualRect(Index);
    Option.features |= QStyleOptionViewItem::HasCheckIndicator;
    const QRect Mark =
        style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &Option, this);
    return At.x() <= Mark.right() + Mark.width() / 2;  // the margin counts: a mark is small
}

// Going to an entry selects nothing; a check mark, Ctrl with a click, and Space turn it over.
QItemSelectionModel::SelectionFlags EffectList::selectionCommand(const QModelIndex& Index,
                                                                 const QEvent* Event) const {
    if (!mChoosable || !Event || Event->type() != QEvent::MouseButtonPress)
        return QItemSelectionModel::NoUpdate;
    const auto& Mouse = static_cast<const QMouseEvent&>(*Event);
    if (Mouse.button() != Qt::LeftButton || Mouse.modifiers() & Qt::ShiftModifier)
        return QItemSelectionModel::NoUpdate;
    const bool Turns =
        Mouse.modifiers() & Qt::ControlModifier || IsOnCheckMark(Index, Mouse.position().toPoint());
    return Turns ? QItemSelectionModel::Toggle : QItemSelectionModel::NoUpdate;
}

// Gives the state of one entry to all up to another.
void EffectList::SelectLike(int From, int To) {
    if (!mChoosable || !item(From) || !item(To)) return;
    const auto Command =
        item(From)->isSelected() ? QItemSelectionModel::Select : QItemSelectionModel::Deselect;
    const auto [First, Last] = std::minmax(From, To);
    selectionModel()->select({model()->index(First, 0), model()->index(Last, 0)}, Command);
}

// Many names are of two words.
void EffectList::BlankPressed() {
    if (IsSearching() && FindTyped(Names(), mTyped + u' ', currentRow()) >= 0)
        return keyboardSearch(QStringLiteral(" "));
    mSinceTyped.invalidate();
    if (QListWidgetItem* Here = mChoosable ? currentItem() : nullptr)
        Here->setSelected(!Here->isSelected());
}

void EffectList::keyPressEvent(QKeyEvent* Event) {
    if (Event->key() == Qt::Key_Space && Event->modifiers() == Qt::NoModifier)
        return BlankPressed();
    if (!mChoosable && Event->matches(QKeySequence::SelectAll)) return;
    const int Before = currentRow();
    QListWidget::keyPressEvent(Event);
    const bool Moves = Event->text().isEmpty() && Event->modifiers() & Qt::ShiftModifier;
    if (Moves && currentRow() != Before) SelectLike(Before, currentRow());
}

void EffectList::mousePressEvent(QMouseEvent* Event) {
    const int Before = currentRow();
    mSinceTyped.invalidate();
    QListWidget::mousePressEvent(Event);
    const bool Spreads = Event->button() == Qt::LeftButton &&
                         Event->modifiers() & Qt::ShiftModifier &&
                         indexAt(Event->position().toPoint()).isValid();
    if (Spreads) SelectLike(Before, currentRow());
}

// The second of two quick clicks on a check mark turns it over again.
void EffectList::mouseDoubleClickEvent(QMouseEvent* Event) {
    const QModelIndex Under = indexAt(Event->position().toPoint());
    if (!Under.isValid() || Event->button() != Qt::LeftButton) return;
    if (!IsOnCheckMark(Under, Event->position().toPoint())) {
        setCurrentIndex(Under);
        Q_EMIT NameDblClicked();
        return;
    }
    QMouseEvent Press(QEvent::MouseButtonPress, Event->position(), Event->globalPosition(),
                      Event->button(), Event->buttons(), Event->modifiers());
    mousePressEvent(&Press);
}

}  // namespace neb
