// What a metafile's records work on: the painter, the drawing state, the table of pens, brushes
// and fonts. Used by the metafile player and its record handlers.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <span>
#include <variant>
#include <vector>

#include "pictures/formats/ByteView.h"

namespace neb {

// The arguments of one record: words, counted from 0.
class WmfArgs : public ByteView {
  public:
    using ByteView::ByteView;
    int Word(int Index) const { return I16(Index * 2); }
    int Count(int Index) const { return ByteView::U16(Index * 2); }
    QColor Colour(int Index) const;
    // Records give the vertical before the horizontal.
    QPoint PointBackwards(int Index) const { return {Word(Index + 1), Word(Index)}; }
    // Bottom, right, top, left.
    QRect RectBackwards(int Index) const;
};

struct WmfPen {
    QPen Pen = QPen(Qt::black);
    int Width = 0;  // logical; 0: one pixel
};
struct WmfFont {
    QFont Font;
    int Height = 0;  // logical; negative: of the letters, positive: of the line
    int Tenths = 0;  // of a degree, counter-clockwise
    int Charset = 0;
};
struct WmfOther {};  // palettes and regions: they only take a place in the table
using WmfObject = std::variant<std::monostate, WmfPen, QBrush, WmfFont, WmfOther>;

struct WmfState {
    WmfPen Pen;
    QBrush Brush = QBrush(Qt::white);
    WmfFont Font;
    QColor TextColour = Qt::black, BackColour = Qt::white;
    bool Opaque = true;
    Qt::FillRule Fill = Qt::OddEvenFill;
    int TextAlign = 0;
    int Operation = 13;  // how new pixels and old ones mix: plainly
    QPoint Origin, Extent, Position;
    QPainterPath Clip;  // device pixels; empty: all
};

class WmfCanvas {
  public:
    WmfCanvas(QPainter& Painter, QSize Size, QRect Frame);

    WmfState State;
    QPainter& Painter;

    // Logical units to pixels.
    QPointF Map(QPoint Logical) const;
    QRectF Map(QRect Logical) const;
    QSizeF Scale() const;  // pixels a unit; may be negative
    double Length(int Logical) const;
    // Of a shape that is drawn into a rectangle: its right and lower edges are the first pixels
    // beyond, and the middle of its line lies on the last ones inside.
    QRectF Box(QRect Logical) const;

    // The painter with pen, brush and mixing of the state.
    void PrepareShape(bool Filled = true);
    // A place on the paper is a pixel, which a line covers; so it runs through the pixels' middles.
    void DrawPath(const QPainterPath& Path, bool Filled = true);
    void SetClip(const QPainterPath& Path);
    void Mix(int Operation);

    void Save();
    void Restore(int Depth);  // negative: so many back; positive: that one
    void AddObject(WmfObject Object);
    void SelectObject(size_t Index);
    void DeleteObject(size_t Index);

  private:
    bool HasLine() const { return State.Pen.Pen.style() != Qt::NoPen; }

    QSize mSize;
    std::vector<WmfState> mSaved;
    std::vector<WmfObject> mObjects;
};

using WmfHandler = void (*)(WmfCanvas& Canvas, const WmfArgs& Args);
struct WmfHandlerRow {
    int Function;
    WmfHandler Handle;
};
std::span<const WmfHandlerRow> WmfStateHandlers();
std::span<const WmfHandlerRow> WmfShapeHandlers();
std::span<const WmfHandlerRow> WmfTextHandlers();
std::span<const WmfHandlerRow> WmfBitmapHandlers();

// A device-independent bitmap as it stands in a record; null when it is damaged or very large.
QImage DibPicture(const ByteView& Dib);

}  // namespace neb
