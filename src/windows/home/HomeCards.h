// What the home lists, a card each: albums with their shows, or what a search has found. The model
// of its list; what has not changed keeps its place, and with it the user's choice.
#pragma once

#include <QAbstractListModel>
#include <vector>

#include "albums/library/LibraryList.h"
#include "albums/library/LibrarySearch.h"

namespace neb {

struct HomeCard {
    enum class Kind { Album, Show, Slide };
    Kind What = Kind::Album;
    LibraryHit Of;  // its keys
    QString Name;   // of a slide: its caption
    QString Album;  // of a show or a slide: the name of its album
    int Slides = 0, Shows = 0;

    bool operator==(const HomeCard&) const = default;
};

// "1 slide", or Many with the number in the place of its %1.
QString CountWords(int Count, const QString& One, const QString& Many);
// The second line of a card: "12 slides, 2 slide shows".
QString CountsOf(const HomeCard& Card);
// What a screen reader says: "Album Garden, 12 slides, 2 slide shows".
QString SpokenName(const HomeCard& Card);

std::vector<HomeCard> CardsOf(const clsDBEngine& theDB);
std::vector<HomeCard> CardsOf(const clsDBEngine& theDB, const LibraryHits& Hits);

class HomeCards : public QAbstractListModel {
    Q_OBJECT

  public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& Parent = {}) const override;
    QVariant data(const QModelIndex& Index, int Role) const override;

    const HomeCard& Card(int Row) const { return mCards[static_cast<size_t>(Row)]; }
    const std::vector<HomeCard>& All() const { return mCards; }
    const HomeCard* CardAt(const QModelIndex& Index) const;  // nullptr for none
    // Others altogether: nothing keeps its place.
    void Put(std::vector<HomeCard> Cards);
    // The same things, some of which have come, gone or changed.
    void Follow(const std::vector<HomeCard>& Cards);

  private:
    void DropGone(const std::vector<HomeCard>& Cards);
    void TakeIn(int Row, const HomeCard& Card);
    int RowOf(const LibraryHit& Of, int From) const;

    std::vector<HomeCard> mCards;
};

}  // namespace neb
