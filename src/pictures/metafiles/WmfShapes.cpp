// The records that draw lines and shapes.
#include <QPainterPath>
#include <cmath>

#include "pictures/metafiles/WmfCanvas.h"

namespace neb {
namespace {

QPolygonF Points(const WmfCanvas& Canvas, const WmfArgs& Args, int At, int Count) {
    QPolygonF Mapped;
    for (int I = 0; I < Count && Args.Has((At + I * 2) * 2, 4); ++I)
        Mapped.append(Canvas.Map(QPoint(Args.Word(At + I * 2), Args.Word(At + I * 2 + 1))));
    return Mapped;
}

void MoveTo(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.State.Position = Args.PointBackwards(0);
}

void LineTo(WmfCanvas& Canvas, const WmfArgs& Args) {
    const QPoint End = Args.PointBackwards(0);
    QPainterPath Path(Canvas.Map(Canvas.State.Position));
    Path.lineTo(Canvas.Map(End));
    Canvas.DrawPath(Path, false);
    Canvas.State.Position = End;
}

void Polyline(WmfCanvas& Canvas, const WmfArgs& Args) {
    QPainterPath Path;
    Path.addPolygon(Points(Canvas, Args, 1, Args.Count(0)));
    Canvas.DrawPath(Path, false);
}

void DrawPolygons(WmfCanvas& Canvas, const std::vector<QPolygonF>& Polygons) {
    QPainterPath Path;
    Path.setFillRule(Canvas.State.Fill);
    for (const QPolygonF& Polygon : Polygons) {
        Path.addPolygon(Polygon);
        Path.closeSubpath();
    }
    Canvas.DrawPath(Path);
}

void Polygon(WmfCanvas& Canvas, const WmfArgs& Args) {
    DrawPolygons(Canvas, {Points(Canvas, Args, 1, Args.Count(0))});
}

void PolyPolygon(WmfCanvas& Canvas, const WmfArgs& Args) {
    std::vector<QPolygonF> Polygons;
    const int Count = Args.Count(0);
    int At = 1 + Count;
    for (int I = 0; I < Count && Args.Has(At * 2, 2); ++I) {
        Polygons.push_back(Points(Canvas, Args, At, Args.Count(1 + I)));
        At += Args.Count(1 + I) * 2;
    }
    DrawPolygons(Canvas, Polygons);
}

void Rectangle(WmfCanvas& Canvas, const WmfArgs& Args) {
    QPainterPath Path;
    Path.addRect(Canvas.Box(Args.RectBackwards(0)));
    Canvas.DrawPath(Path);
}

void RoundRectangle(WmfCanvas& Canvas, const WmfArgs& Args) {
    const QSizeF Unit = Canvas.Scale();
    QPainterPath Path;
    Path.addRoundedRect(Canvas.Box(Args.RectBackwards(2)),
                        std::abs(Args.Word(1) * Unit.width()) / 2,
                        std::abs(Args.Word(0) * Unit.height()) / 2);
    Canvas.DrawPath(Path);
}

void Ellipse(WmfCanvas& Canvas, const WmfArgs& Args) {
    QPainterPath Path;
    Path.addEllipse(Canvas.Box(Args.RectBackwards(0)));
    Canvas.DrawPath(Path);
}

// The part of an ellipse from one ray to another, counter-clockwise as seen on the page.
struct Bow {
    QRectF Around;
    double From, Sweep;  // degrees
};

double AngleOf(QPointF Point, const QRectF& Around) {
    const QPointF Ray = Point - Around.center();
    return std::atan2(-Ray.y() * Around.width(), Ray.x() * Around.height()) * 180 / M_PI;
}

Bow BowOf(const WmfCanvas& Canvas, const WmfArgs& Args) {
    const QRectF Around = Canvas.Box(Args.RectBackwards(4));
    const double From = AngleOf(Canvas.Map(Args.PointBackwards(2)), Around);
    double Sweep = AngleOf(Canvas.Map(Args.PointBackwards(0)), Around) - From;
    if (Sweep <= 0) Sweep += 360;
    return {Around, From, Sweep};
}

void Arc(WmfCanvas& Canvas, const WmfArgs& Args) {
    const Bow Part = BowOf(Canvas, Args);
    QPainterPath Path;
    Path.arcMoveTo(Part.Around, Part.From);
    Path.arcTo(Part.Around, Part.From, Part.Sweep);
    Canvas.DrawPath(Path, false);
}

void Pie(WmfCanvas& Canvas, const WmfArgs& Args) {
    const Bow Part = BowOf(Canvas, Args);
    QPainterPath Path(Part.Around.center());
    Path.arcTo(Part.Around, Part.From, Part.Sweep);
    Path.closeSubpath();
    Canvas.DrawPath(Path);
}

void Chord(WmfCanvas& Canvas, const WmfArgs& Args) {
    const Bow Part = BowOf(Canvas, Args);
    QPainterPath Path;
    Path.arcMoveTo(Part.Around, Part.From);
    Path.arcTo(Part.Around, Part.From, Part.Sweep);
    Path.closeSubpath();
    Canvas.DrawPath(Path);
}

void SetPixel(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.Mix(Canvas.State.Operation);
    Canvas.Painter.fillRect(QRectF(Canvas.Map(Args.PointBackwards(2)), QSizeF(1, 1)),
                            Args.Colour(0));
}

constexpr WmfHandlerRow Rows[] = {
    {0x0214, MoveTo},      {0x0213, LineTo},    {0x0325, Polyline},       {0x0324, Polygon},
    {0x0538, PolyPolygon}, {0x041B, Rectangle}, {0x061C, RoundRectangle}, {0x0418, Ellipse},
    {0x0817, Arc},         {0x081A, Pie},       {0x0830, Chord},          {0x041F, SetPixel},
};

}  // namespace

std::span<const WmfHandlerRow> WmfShapeHandlers() {
    return Rows;
}

}  // namespace neb
