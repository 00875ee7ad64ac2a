// The pictures of slides at the size at which they are looked through: from the thumbnail at once,
// and sharp from the stored picture where that takes more pixels. Read beside the window, for what
// is in view and a page around it, and kept no longer. Used by SlideTiles.
#pragma once

#include <QImage>
#include <QTimer>
#include <map>

#include "windows/gallery/Readings.h"

QT_BEGIN_NAMESPACE
class QListView;
QT_END_NAMESPACE

namespace neb {

class SlideModel;

// A slide's picture in its own shape. Null: not there yet, or unreadable.
struct TilePicture {
    QImage Picture;
    int Side = 0;  // pixels of the square that it was made for; 0: a thumbnail stands in for it
    bool IsUnreadable = false;
};

class TilePictures : public QObject {
  public:
    // Of a view of these slides, which owns it. Side: of a picture's square, logical pixels.
    TilePictures(QListView& View, const SlideModel& Model, int Side);

    void SetSide(int Logical);
    int Side() const { return mSide; }
    int SideInPixels() const;
    // What there is by now; what is missing is begun soon.
    TilePicture Of(int Row);
    bool IsUnreadable(int Row) const;  // as far as it is known
    bool IsSharp(int Row) const;       // with all the pixels that its size asks for
    int Kept() const { return static_cast<int>(mKnown.size()); }

  private:
    struct Key {
        std::int32_t SlideID;
        int Edition;
        bool operator==(const Key&) const = default;
    };
    // One piece of reading: the thumbnail, or with so many pixels the picture.
    struct Order {
        Key Of;
        int Side;
        bool operator==(const Order&) const = default;
    };
    // What is shown of a slide; that of an edition before stands in until the new one is read.
    struct Shown {
        int Edition = -1;
        TilePicture Picture;
    };
    struct Range {
        int First, Last;
    };

    Key KeyOf(int Row) const;
    const TilePicture* Known(int Row) const;  // nullptr: nothing of this edition
    Range InView() const;
    Range Nearby() const;
    std::optional<Order> MissingOf(int Row) const;
    std::optional<Order> NextMissing(int& Row) const;
    void Look();
    void BeginReading();
    void Take(const Order& Done, const TilePicture& Read);
    void DropDistant();

    QListView& mView;
    const SlideModel& mModel;
    int mSide;
    std::map<std::int32_t, Shown> mKnown;  // by SlideID
    Readings<Order, TilePicture> mReadings;
    QTimer mLook;
};

}  // namespace neb
