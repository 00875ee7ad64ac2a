// The covers of the cards that are in view, in true proportions and sharp on every screen, and when
// their albums were changed last: both read beside the window, one after the other in the order in
// which they are seen. Nothing is read for what is out of view.
#pragma once

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <optional>
#include <vector>

#include "windows/gallery/Readings.h"
#include "windows/home/HomeCards.h"

namespace neb {

size_t qHash(const LibraryHit& Of, size_t Seed = 0);

class CardPictures : public QObject {
    Q_OBJECT

  public:
    struct Known {
        QImage Cover;                      // null: there is none that can be read
        std::optional<QDateTime> Changed;  // of an album
        std::int32_t SlideID = 0;          // whose picture it is
        QSize Box;                         // for which it was read
        bool IsStale = false;              // shown until it is read anew
    };
    using CardsInView = std::function<std::vector<HomeCard>()>;

    explicit CardPictures(CardsInView InView, QObject* Parent = nullptr);

    // The room for a cover, in logical pixels, on a screen of so many pixels to the logical one.
    void SetBox(QSize Box, double Scale);
    // What is known of a card that is being painted; nullptr: it will be told of.
    const Known* Of(const HomeCard& Card);
    // Slides of an album have changed; SlideID 0: many. What is being read of them is read once
    // more when it has come, and not beside it: a thousand changes are not a thousand threads.
    void Renew(std::int32_t AlbumID, std::int32_t SlideID);

    int ReadSoFar() const { return mReadSoFar; }  // cards
    bool IsReading() const { return mLook.isActive(); }

  Q_SIGNALS:
    void Read(const neb::LibraryHit& Of);  // it can be painted anew

  private:
    // What the work beside needs, and owns.
    struct Order {
        QString Path;
        std::int32_t SlideID = 0;
        QString DBPath;
        std::int32_t DatedAlbum = 0;
        QSize Box;
        double Scale = 1;
    };
    // What is being read, a card once.
    struct Errand {
        LibraryHit Of;
        std::int32_t SlideID = 0;
        bool operator==(const Errand& Other) const { return Of == Other.Of; }
    };

    static Known ReadAside(const Order& What);
    Order OrderFor(const HomeCard& Card) const;
    bool IsWanted(const HomeCard& Card) const;
    void Look();
    void TakeRead();
    void BeginReading();

    CardsInView mInView;
    QSize mBox;
    double mScale = 1;
    QCache<LibraryHit, Known> mKnown;
    Readings<Errand, Known> mReadings;
    QSet<LibraryHit> mOutdated;  // changed since they are being read
    QTimer mLook;
    int mReadSoFar = 0;
};

}  // namespace neb
