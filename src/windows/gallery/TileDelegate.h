// Paints a slide among the thumbnails, its picture and its caption below, and lets the caption be
// typed there. Used by SlideTiles.
#pragma once

#include <QStyledItemDelegate>

#include "windows/gallery/CaptionField.h"

namespace neb {

class SlideTiles;
class TilePictures;

class TileDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    TileDelegate(SlideTiles& View, TilePictures& Pictures);

    // The least that a tile takes, with a picture of this side.
    QSize LeastSize(int Side) const;
    // Where the caption stands in a tile.
    QRect CaptionRect(const QRect& Tile) const;

    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override;
    QSize sizeHint(const QStyleOptionViewItem& Option, const QModelIndex& Index) const override;
    QWidget* createEditor(QWidget* Parent, const QStyleOptionViewItem& Option,
                          const QModelIndex& Index) const override;
    void setEditorData(QWidget* Editor, const QModelIndex& Index) const override;
    void setModelData(QWidget* Editor, QAbstractItemModel* Model,
                      const QModelIndex& Index) const override;
    void updateEditorGeometry(QWidget* Editor, const QStyleOptionViewItem& Option,
                              const QModelIndex& Index) const override;
    bool helpEvent(QHelpEvent* Event, QAbstractItemView* View, const QStyleOptionViewItem& Option,
                   const QModelIndex& Index) override;

  Q_SIGNALS:
    void CaptionTyped(const QModelIndex& Index, const QString& Caption) const;

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    void PaintGround(QPainter& Painter, const QStyleOptionViewItem& Option) const;
    void PaintPicture(QPainter& Painter, const QStyleOptionViewItem& Option, int Row) const;
    void PaintStandIn(QPainter& Painter, const QStyleOptionViewItem& Option, const QRect& Room,
                      const QString& Words) const;
    void PaintCaption(QPainter& Painter, const QStyleOptionViewItem& Option,
                      const QString& Caption) const;
    void End(QWidget* Editor, CaptionKey Asked);

    SlideTiles& mView;
    TilePictures& mPictures;
};

}  // namespace neb
