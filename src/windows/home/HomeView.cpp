#include "windows/home/HomeView.h"
#include "controls/speech/SpokenList.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>

#include "windows/home/CardDelegate.h"

namespace neb {

HomeView::HomeView(QWidget* Parent)
    : QListView(Parent),
      mCards(new HomeCards(this)),
      mPictures(new CardPictures([this] { return InView(); }, this)),
      mDelegate(new CardDelegate(*mPictures, this)) {
    setModel(mCards);
    TellChanges(*this);
    setItemDelegate(mDelegate);
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setFrameShape(NoFrame);
    connect(mPictures, &CardPictures::Read, this, &HomeView::Renew);
}

void HomeView::Choose(int Row) {
    if (Row >= mCards->rowCount()) return;
    setCurrentIndex(mCards->index(Row));
    scrollTo(currentIndex());
}

std::vector<HomeCard> HomeView::InView() const {
    std::vector<HomeCard> Seen;
    if (!isVisible()) return Seen;
    const QRect Room = viewport()->rect();
    const int Count = mCards->rowCount();
    const auto IsAbove = [&](int Row) {
        return visualRect(mCards->index(Row)).bottom() < Room.top();
    };
    int First = 0;
    for (int After = Count; First < After;) {
        const int Middle = (First + After) / 2;
        if (IsAbove(Middle))
            First = Middle + 1;
        else
            After = Middle;
    }
    for (int Row = First; Row < Count; ++Row) {
        if (visualRect(mCards->index(Row)).top() > Room.bottom()) break;
        Seen.push_back(mCards->Card(Row));
    }
    return Seen;
}

void HomeView::SetEmptyText(const QString& Text) {
    mEmptyText = Text;
    viewport()->update();
}

void HomeView::keyboardSearch(const QString& Text) {
    if (!Text.trimmed().isEmpty()) Q_EMIT Typed(Text);
}

// The room with a scroll bar counts, so that the cards stay as they are when one comes.
void HomeView::SetSizes() {
    const int Bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const CardSizes Sizes(font(), maximumViewportSize().width() - Bar);
    mDelegate->SetSizes(Sizes);
    if (Sizes.Card == gridSize()) return;
    setGridSize(Sizes.Card);
    verticalScrollBar()->setSingleStep(Sizes.Card.height() / 4);
}

void HomeView::doItemsLayout() {
    SetSizes();
    QListView::doItemsLayout();
}

// At once: the toolkit would wait, and cards be cut meanwhile.
void HomeView::resizeEvent(QResizeEvent* Event) {
    QListView::resizeEvent(Event);
    scheduleDelayedItemsLayout();
}

void HomeView::Renew(const LibraryHit& Of) {
    const auto Seen = InView();
    if (std::ranges::any_of(Seen, [&](const HomeCard& Each) { return Each.Of == Of; }))
        viewport()->update();
}

void HomeView::currentChanged(const QModelIndex& Now, const QModelIndex& Before) {
    QAbstractItemView::currentChanged(Now, Before);
    TellCurrent(*this);
}

// The window may have gone to a finer screen.
void HomeView::paintEvent(QPaintEvent* Event) {
    mPictures->SetBox(mDelegate->Sizes().Cover, devicePixelRatioF());
    QListView::paintEvent(Event);
    if (mCards->rowCount() > 0 || mEmptyText.isEmpty()) return;
    QPainter Painter(viewport());
    Painter.setPen(palette().color(QPalette::PlaceholderText));
    Painter.drawText(viewport()->rect().adjusted(20, 20, -20, -20),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, mEmptyText);
}

void HomeView::changeEvent(QEvent* Event) {
    QListView::changeEvent(Event);
    if (Event->type() == QEvent::FontChange || Event->type() == QEvent::StyleChange)
        scheduleDelayedItemsLayout();
}

// By the key it comes up at the card in hand, by the mouse at the one that is pointed at.
void HomeView::contextMenuEvent(QContextMenuEvent* Event) {
    const bool ByKey = Event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex Of = ByKey ? currentIndex() : indexAt(Event->pos());
    if (!Of.isValid()) return;
    setCurrentIndex(Of);
    const QPoint Middle = viewport()->mapToGlobal(visualRect(Of).center());
    Q_EMIT MenuWanted(ByKey ? Middle : Event->globalPos());
}

}  // namespace neb
