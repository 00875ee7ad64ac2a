#include "windows/home/HomeCards.h"

#include <algorithm>
#include <tuple>

#include "db/clsDBEngine.h"
#include "support/Grouped.h"

namespace neb {
namespace {

using Kind = HomeCard::Kind;

QString SlidesIn(const HomeCard& Card) {
    return CountWords(Card.Slides, QObject::tr("1 slide"), QObject::tr("%1 slides"));
}

HomeCard CardOf(const LibraryEntry& Entry, const QString& Album) {
    return {.What = Entry.SlideShowID == 0 ? Kind::Album : Kind::Show,
            .Of = {.AlbumID = Entry.AlbumID, .SlideShowID = Entry.SlideShowID},
            .Name = Entry.Name,
            .Album = Entry.SlideShowID == 0 ? QString() : Album,
            .Slides = Entry.Slides,
            .Shows = Entry.Shows};
}

HomeCard SlideCard(const clsNEBAlbum& Album, const LibraryHit& Hit) {
    const clsNEBSlide* Slide = SlideIn(Album, Hit.SlideID);
    return {.What = Kind::Slide,
            .Of = Hit,
            .Name = Slide ? Slide->SlideText : QString(),
            .Album = Album.AlbumName};
}

HomeCard ShowCard(const clsNEBAlbum& Album, const LibraryHit& Hit) {
    const clsNEBSlideShow& Show = *Album.GetSlideShow(Hit.SlideShowID);
    return {.What = Kind::Show,
            .Of = Hit,
            .Name = Show.SlideShowName,
            .Album = Album.AlbumName,
            .Slides = static_cast<int>(Show.Details.size())};
}

HomeCard AlbumCard(const clsNEBAlbum& Album, const LibraryHit& Hit) {
    return {.What = Kind::Album,
            .Of = Hit,
            .Name = Album.AlbumName,
            .Slides = static_cast<int>(Album.Slides.size()),
            .Shows = static_cast<int>(Album.SlideShows.size())};
}

auto KeyOf(const LibraryHit& Of) {
    return std::tuple(Of.AlbumID, Of.SlideShowID, Of.SlideID);
}

}  // namespace

QString CountWords(int Count, const QString& One, const QString& Many) {
    return Count == 1 ? One : Many.arg(Grouped(Count));
}

QString CountsOf(const HomeCard& Card) {
    if (Card.What == Kind::Slide) return {};
    if (Card.What == Kind::Show) return QObject::tr("Slide show, %1").arg(SlidesIn(Card));
    if (Card.Shows == 0) return SlidesIn(Card);
    return QObject::tr("%1, %2").arg(
        SlidesIn(Card),
        CountWords(Card.Shows, QObject::tr("1 slide show"), QObject::tr("%1 slide shows")));
}

QString SpokenName(const HomeCard& Card) {
    const QString In = Card.Album.isEmpty() ? QString() : QObject::tr(" of %1").arg(Card.Album);
    if (Card.What == Kind::Slide) return QObject::tr("Slide %1%2").arg(Card.Name, In);
    if (Card.What == Kind::Show)
        return QObject::tr("Slide show %1%2, %3").arg(Card.Name, In, SlidesIn(Card));
    return QObject::tr("Album %1, %2").arg(Card.Name, CountsOf(Card));
}

std::vector<HomeCard> CardsOf(const clsDBEngine& theDB) {
    std::vector<HomeCard> Cards;
    QString Album;  // whose shows follow it
    for (const LibraryEntry& Each : LibraryOf(theDB)) {
        if (Each.SlideShowID == 0) Album = Each.Name;
        Cards.push_back(CardOf(Each, Album));
    }
    return Cards;
}

// A show that was found may have gone, and nobody have told yet.
std::vector<HomeCard> CardsOf(const clsDBEngine& theDB, const LibraryHits& Hits) {
    std::vector<HomeCard> Cards;
    const auto Add = [&](const std::vector<LibraryHit>& Found, auto Make) {
        for (const LibraryHit& Each : Found) {
            const clsNEBAlbum& Album = *theDB.GetAlbum(Each.AlbumID);
            if (Each.SlideShowID != 0 && !Album.GetSlideShow(Each.SlideShowID)) continue;
            Cards.push_back(Make(Album, Each));
        }
    };
    Add(Hits.Albums, &AlbumCard);
    Add(Hits.Shows, &ShowCard);
    Add(Hits.Slides, &SlideCard);
    return Cards;
}

int HomeCards::rowCount(const QModelIndex& Parent) const {
    return Parent.isValid() ? 0 : static_cast<int>(mCards.size());
}

QVariant HomeCards::data(const QModelIndex& Index, int Role) const {
    const HomeCard* Of = CardAt(Index);
    if (!Of) return {};
    if (Role == Qt::DisplayRole) return Of->Name;
    if (Role == Qt::AccessibleTextRole || Role == Qt::ToolTipRole) return SpokenName(*Of);
    return {};
}

const HomeCard* HomeCards::CardAt(const QModelIndex& Index) const {
    const bool IsThere = Index.isValid() && Index.row() < rowCount();
    return IsThere ? &Card(Index.row()) : nullptr;
}

void HomeCards::Put(std::vector<HomeCard> Cards) {
    beginResetModel();
    mCards = std::move(Cards);
    endResetModel();
}

void HomeCards::Follow(const std::vector<HomeCard>& Cards) {
    DropGone(Cards);
    for (size_t Row = 0; Row < Cards.size(); ++Row) TakeIn(static_cast<int>(Row), Cards[Row]);
}

void HomeCards::DropGone(const std::vector<HomeCard>& Cards) {
    std::vector<decltype(KeyOf({}))> Keys;
    for (const HomeCard& Each : Cards) Keys.push_back(KeyOf(Each.Of));
    std::ranges::sort(Keys);
    for (int Row = rowCount() - 1; Row >= 0; --Row) {
        if (std::ranges::binary_search(Keys, KeyOf(Card(Row).Of))) continue;
        beginRemoveRows({}, Row, Row);
        mCards.erase(mCards.begin() + Row);
        endRemoveRows();
    }
}

// The rows before it are right already.
void HomeCards::TakeIn(int Row, const HomeCard& Card) {
    const int Was = RowOf(Card.Of, Row);
    if (Was < 0) {
        beginInsertRows({}, Row, Row);
        mCards.insert(mCards.begin() + Row, Card);
        endInsertRows();
        return;
    }
    if (Was > Row) {
        beginMoveRows({}, Was, Was, {}, Row);
        std::rotate(mCards.begin() + Row, mCards.begin() + Was, mCards.begin() + Was + 1);
        endMoveRows();
    }
    HomeCard& Now = mCards[static_cast<size_t>(Row)];
    if (Now == Card) return;
    Now = Card;
    Q_EMIT dataChanged(index(Row), index(Row));
}

int HomeCards::RowOf(const LibraryHit& Of, int From) const {
    const auto Found = std::find_if(mCards.begin() + From, mCards.end(),
                                    [&](const HomeCard& Each) { return Each.Of == Of; });
    return Found == mCards.end() ? -1 : static_cast<int>(Found - mCards.begin());
}

}  // namespace neb
