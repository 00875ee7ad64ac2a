#include "windows/gallery/SlideTiles.h"
#include "controls/speech/SpokenList.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "settings/modNEBSlideShow.h"
#include "windows/gallery/SlideModel.h"
#include "windows/gallery/TileDelegate.h"
#include "windows/gallery/TilePictures.h"

namespace neb {

SlideTiles::SlideTiles(QWidget* Parent) : QListView(Parent) {
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionRectVisible(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // a bar that comes and goes moves all
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
}

SlideTiles::~SlideTiles() = default;

void SlideTiles::Show(SlideModel& Slides, int Side) {
    mPictures = new TilePictures(*this, Slides, Side);
    mDelegate = new TileDelegate(*this, *mPictures);
    connect(mDelegate, &TileDelegate::CaptionTyped, this, &SlideTiles::CaptionTyped);
    setItemDelegate(mDelegate);
    setModel(&Slides);
    TellChanges(*this);
    FitGrid();
}

int SlideTiles::Side() const {
    return mPictures->Side();
}

void SlideTiles::SetSide(int Side) {
    mPictures->SetSide(Side);
    FitGrid();
    viewport()->update();
}

// The slide that stays where it is seen when all get another place: the one in hand, or the first.
QModelIndex SlideTiles::InSight() const {
    const QModelIndex InHand = currentIndex();
    if (InHand.isValid() && viewport()->rect().intersects(visualRect(InHand))) return InHand;
    return indexAt(QPoint(gridSize().width() / 2, gridSize().height() / 2));
}

// As many in a line as have room, and the room shared out among them.
void SlideTiles::FitGrid() {
    if (!mDelegate) return;
    const QSize Least = mDelegate->LeastSize(mPictures->Side());
    const int Width = std::max(viewport()->width() - 1, Least.width());
    const QSize Grid(Width / (Width / Least.width()), Least.height());
    if (Grid == gridSize()) return;
    const QPersistentModelIndex Stays = gridSize().isValid() ? InSight() : QModelIndex();
    setGridSize(Grid);
    verticalScrollBar()->setSingleStep(Grid.height() / 4);
    executeDelayedItemsLayout();
    if (Stays.isValid()) scrollTo(Stays, QAbstractItemView::EnsureVisible);
}

void SlideTiles::resizeEvent(QResizeEvent* Event) {
    QListView::resizeEvent(Event);
    FitGrid();
}

void SlideTiles::changeEvent(QEvent* Event) {
    QListView::changeEvent(Event);
    if (Event->type() == QEvent::FontChange || Event->type() == QEvent::StyleChange) FitGrid();
}

void SlideTiles::SetEmptyText(const QString& Text) {
    mEmptyText = Text;
    viewport()->update();
}

void SlideTiles::currentChanged(const QModelIndex& Now, const QModelIndex& Before) {
    QAbstractItemView::currentChanged(Now, Before);
    TellCurrent(*this);
}

void SlideTiles::paintEvent(QPaintEvent* Event) {
    QListView::paintEvent(Event);
    if (!model() || model()->rowCount() > 0) return;
    QPainter Painter(viewport());
    Painter.setPen(palette().color(QPalette::PlaceholderText));
    Painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24),
                     Qt::AlignCenter | Qt::TextWordWrap, mEmptyText);
}

std::vector<std::int32_t> SlideTiles::SelectedSlides() const {
    const auto& Slides = static_cast<const SlideModel&>(*model());
    QModelIndexList Selected = selectionModel()->selectedIndexes();
    std::ranges::sort(Selected, {}, &QModelIndex::row);
    std::vector<std::int32_t> SlideIDs;
    for (const QModelIndex& Each : Selected) SlideIDs.push_back(Slides.SlideID(Each.row()));
    return SlideIDs;
}

int SlideTiles::FirstChosen() const {
    int First = currentIndex().row();
    for (const QModelIndex& Each : selectionModel()->selectedIndexes())
        First = std::min(First, Each.row());
    return First;
}

void SlideTiles::ChooseRow(int Row) {
    const QModelIndex Index = model()->index(Row, 0);
    selectionModel()->setCurrentIndex(Index, QItemSelectionModel::ClearAndSelect);
    scrollTo(Index);
}

void SlideTiles::EditCaption(const QModelIndex& Index) {
    ChooseRow(Index.row());
    edit(Index, QAbstractItemView::EditKeyPressed, nullptr);
}

void SlideTiles::FinishEdit() {
    for (QLineEdit* Field : viewport()->findChildren<QLineEdit*>()) {
        commitData(Field);
        closeEditor(Field, QAbstractItemDelegate::NoHint);
    }
}

// A click on the caption of the one slide that is chosen lets it be typed, one on its picture does
// not.
bool SlideTiles::edit(const QModelIndex& Index, EditTrigger Trigger, QEvent* Event) {
    if (Trigger == QAbstractItemView::SelectedClicked) {
        const auto* Click = dynamic_cast<QMouseEvent*>(Event);
        const bool OnCaption =
            Click && mDelegate->CaptionRect(visualRect(Index)).contains(Click->pos());
        const bool IsAlone = selectionModel()->selectedIndexes().size() == 1;
        if (!OnCaption || !IsAlone || ReadOnlyDB) return false;
    }
    if (ReadOnlyDB && Trigger == QAbstractItemView::EditKeyPressed) {
        Q_EMIT EditRefused();
        return true;
    }
    return QListView::edit(Index, Trigger, Event);
}

void SlideTiles::keyPressEvent(QKeyEvent* Event) {
    const int Key = Event->key();
    const bool Enter = Key == Qt::Key_Return || Key == Qt::Key_Enter;
    if (Enter && currentIndex().isValid()) return Q_EMIT Opened(currentIndex().row());
    if (Key == Qt::Key_Delete) return Q_EMIT DeletePressed();
    QListView::keyPressEvent(Event);
}

void SlideTiles::mouseDoubleClickEvent(QMouseEvent* Event) {
    const QModelIndex Index = indexAt(Event->pos());
    if (Event->button() != Qt::LeftButton || !Index.isValid())
        return QListView::mouseDoubleClickEvent(Event);
    QListView::mouseDoubleClickEvent(Event);
    Q_EMIT Opened(Index.row());
}

void SlideTiles::wheelEvent(QWheelEvent* Event) {
    if (!(Event->modifiers() & Qt::ControlModifier)) return QListView::wheelEvent(Event);
    const int Turn = Event->angleDelta().y();
    if (Turn != 0) Q_EMIT SizeAsked(Turn > 0 ? 1 : -1);
    Event->accept();
}

// By the key, it opens at the slide in hand.
void SlideTiles::contextMenuEvent(QContextMenuEvent* Event) {
    const QPoint InHand = visualRect(currentIndex()).center();
    const bool ByMouse = Event->reason() == QContextMenuEvent::Mouse;
    if (selectionModel()->hasSelection())
        Q_EMIT MenuAsked(ByMouse ? Event->globalPos() : viewport()->mapToGlobal(InHand));
    Event->accept();
}

}  // namespace neb
