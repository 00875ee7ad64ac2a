// Paints the cells of a FlexGrid and makes their editors.
#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

#include "controls/grid/FlexGridModel.h"

namespace neb {

class FlexGrid;

class FlexGridDelegate : public QStyledItemDelegate {
    Q_OBJECT
  public:
    explicit FlexGridDelegate(FlexGrid* Grid);

    QWidget* Editor() const { return mEditor; }  // null when none is open
    // The part of a Check, List or Button cell that a click presses; empty for other kinds.
    QRect HotSpot(const QStyleOptionViewItem& Option, int Col) const;

    void paint(QPainter* Painter, const QStyleOptionViewItem& Option,
               const QModelIndex& Index) const override;
    QWidget* createEditor(QWidget* Parent, const QStyleOptionViewItem& Option,
                          const QModelIndex& Index) const override;
    void setEditorData(QWidget* Editor, const QModelIndex& Index) const override;
    void setModelData(QWidget* Editor, QAbstractItemModel* Model,
                      const QModelIndex& Index) const override;
    void updateEditorGeometry(QWidget* Editor, const QStyleOptionViewItem& Option,
                              const QModelIndex& Index) const override;
    bool helpEvent(QHelpEvent* Event, QAbstractItemView* View, const QStyleOptionViewItem& Option,
                   const QModelIndex& Index) override;

  protected:
    bool eventFilter(QObject* Watched, QEvent* Event) override;

  private:
    QStyleOptionViewItem Styled(const QStyleOptionViewItem& Option, const QModelIndex& Index) const;
    void PaintFrame(QPainter& Painter, QStyleOptionViewItem Option) const;
    void PaintPicture(QPainter& Painter, const QRect& Room, const QModelIndex& Index) const;
    void PaintCheck(QPainter& Painter, const QStyleOptionViewItem& Option,
                    const QModelIndex& Index) const;
    void PaintWithButton(QPainter& Painter, const QStyleOptionViewItem& Option, FlexKind Kind,
                         const QRect& Hot) const;
    void PaintButton(QPainter& Painter, const QStyleOptionViewItem& Option, const QRect& Hot) const;
    void PaintArrow(QPainter& Painter, const QStyleOptionViewItem& Option, const QRect& Hot) const;
    void PaintFocus(QPainter& Painter, const QStyleOptionViewItem& Option) const;
    QWidget* ListEditor(QWidget* Parent, const QStringList& Entries);
    QWidget* TextEditor(QWidget* Parent, const FlexColumn& Column) const;
    void End(QWidget* Editor, bool Keep);
    bool KeyPressed(QWidget* Editor, int Key);

    FlexGrid* mGrid;
    mutable QPointer<QWidget> mEditor;
};

}  // namespace neb
