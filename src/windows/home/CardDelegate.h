// How a card of the home looks: the cover in its true proportions, the name on up to two lines,
// numbers and date below. Colours are the palette's alone.
#pragma once

#include <QStyledItemDelegate>

namespace neb {

class CardPictures;
struct HomeCard;

// The sizes of a card, in logical pixels; all follow from the font and the room.
struct CardSizes {
    CardSizes() = default;
    CardSizes(const QFont& Font, int Room);

    int Columns = 1;
    QSize Card = {200, 200};
    QSize Cover = {160, 120};
};

class CardDelegate : public QStyledItemDelegate {
  public:
    CardDelegate(CardPictures& Pictures, QObject* Parent);

    void SetSizes(const CardSizes& Sizes) { mSizes = Sizes; }
    const CardSizes& Sizes() const { return mSizes; }
    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return mSizes.Card;
    }

  private:
    CardPictures& mPictures;
    CardSizes mSizes;
};

}  // namespace neb
