#include "pictures/metafiles/WmfCanvas.h"

#include <cmath>

namespace neb {
namespace {

// Far outside of any picture; keeps what is drawn there from taking its time.
constexpr double FarAway = 100000;
constexpr size_t MostObjects = 65536, MostSaved = 1000;

// By the number of the drawing mode, from 1; the modes mix the bits of new and old pixels.
constexpr QPainter::CompositionMode MixModes[] = {
    QPainter::RasterOp_ClearDestination,        QPainter::RasterOp_NotSourceAndNotDestination,
    QPainter::RasterOp_NotSourceAndDestination, QPainter::RasterOp_NotSource,
    QPainter::RasterOp_SourceAndNotDestination, QPainter::RasterOp_NotDestination,
    QPainter::RasterOp_SourceXorDestination,    QPainter::RasterOp_NotSourceOrNotDestination,
    QPainter::RasterOp_SourceAndDestination,    QPainter::RasterOp_NotSourceXorDestination,
    QPainter::CompositionMode_Destination,      QPainter::RasterOp_NotSourceOrDestination,
    QPainter::CompositionMode_SourceOver,       QPainter::RasterOp_SourceOrNotDestination,
    QPainter::RasterOp_SourceOrDestination,     QPainter::RasterOp_SetDestination,
};

double Near(double Pixels) {
    return std::clamp(Pixels, -FarAway, FarAway);
}

}  // namespace

QColor WmfArgs::Colour(int Index) const {
    const qint64 At = Index * 2;
    return {U8(At), U8(At + 1), U8(At + 2)};
}

QRect WmfArgs::RectBackwards(int Index) const {
    const QPoint Far = PointBackwards(Index), Near = PointBackwards(Index + 2);
    return {Near, QSize(Far.x() - Near.x(), Far.y() - Near.y())};
}

WmfCanvas::WmfCanvas(QPainter& OnPainter, QSize Size, QRect Frame)
    : Painter(OnPainter), mSize(Size) {
    State.Origin = Frame.topLeft();
    State.Extent = {Frame.width(), Frame.height()};
}

QSizeF WmfCanvas::Scale() const {
    const auto Ratio = [](int Pixels, int Units) { return double(Pixels) / (Units ? Units : 1); };
    return {Ratio(mSize.width(), State.Extent.x()), Ratio(mSize.height(), State.Extent.y())};
}

QPointF WmfCanvas::Map(QPoint Logical) const {
    const QPoint From = Logical - State.Origin;
    return {Near(From.x() * Scale().width()), Near(From.y() * Scale().height())};
}

QRectF WmfCanvas::Map(QRect Logical) const {
    const QPoint Far = Logical.topLeft() + QPoint(Logical.width(), Logical.height());
    return QRectF(Map(Logical.topLeft()), Map(Far));
}

double WmfCanvas::Length(int Logical) const {
    const QSizeF Unit = Scale();
    return Near(std::abs(Logical) * std::sqrt(std::abs(Unit.width() * Unit.height())));
}

QRectF WmfCanvas::Box(QRect Logical) const {
    const QRectF Place = Map(Logical).normalized();
    if (!HasLine()) return Place;
    return {Place.topLeft(),
            QSizeF(std::max(0.0, Place.width() - 1), std::max(0.0, Place.height() - 1))};
}

void WmfCanvas::Mix(int Operation) {
    Painter.setCompositionMode(MixModes[std::clamp(Operation, 1, 16) - 1]);
}

void WmfCanvas::PrepareShape(bool Filled) {
    QPen Pen = State.Pen.Pen;
    Pen.setWidthF(std::max(1.0, Length(State.Pen.Width)));
    Painter.setPen(Pen);
    Painter.setBrush(Filled ? State.Brush : QBrush(Qt::NoBrush));
    Mix(State.Operation);
}

void WmfCanvas::DrawPath(const QPainterPath& Outline, bool Filled) {
    PrepareShape(Filled);
    const double Middle = HasLine() ? 0.5 : 0;
    const QPainterPath Path = Outline.translated(Middle, Middle);
    const bool Hatched =
        State.Brush.style() > Qt::SolidPattern && State.Brush.style() <= Qt::DiagCrossPattern;
    if (Filled && Hatched && State.Opaque) Painter.fillPath(Path, State.BackColour);
    Painter.drawPath(Path);
}

void WmfCanvas::SetClip(const QPainterPath& Path) {
    State.Clip = Path;
    Painter.setClipPath(Path);
    Painter.setClipping(!Path.isEmpty());
}

void WmfCanvas::Save() {
    if (mSaved.size() < MostSaved) mSaved.push_back(State);
}

void WmfCanvas::Restore(int Depth) {
    const auto Count = static_cast<qint64>(mSaved.size());
    const qint64 Index = Depth < 0 ? Count + Depth : Depth - 1;
    if (Index < 0 || Index >= Count) return;
    State = mSaved[static_cast<size_t>(Index)];
    mSaved.resize(static_cast<size_t>(Index));
    SetClip(State.Clip);
}

void WmfCanvas::AddObject(WmfObject Object) {
    const auto Free = std::find_if(mObjects.begin(), mObjects.end(),
                                   [](const WmfObject& Old) { return Old.index() == 0; });
    if (Free != mObjects.end())
        *Free = std::move(Object);
    else if (mObjects.size() < MostObjects)
        mObjects.push_back(std::move(Object));
}

void WmfCanvas::SelectObject(size_t Index) {
    if (Index >= mObjects.size()) return;
    if (const auto* Pen = std::get_if<WmfPen>(&mObjects[Index])) State.Pen = *Pen;
    if (const auto* Brush = std::get_if<QBrush>(&mObjects[Index])) State.Brush = *Brush;
    if (const auto* Font = std::get_if<WmfFont>(&mObjects[Index])) State.Font = *Font;
}

void WmfCanvas::DeleteObject(size_t Index) {
    if (Index < mObjects.size()) mObjects[Index] = {};
}

}  // namespace neb
