// The records that change the drawing state and the table of pens, brushes and fonts.
#include "pictures/metafiles/WmfCanvas.h"

namespace neb {
namespace {

void SetBackColour(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.State.BackColour = Args.Colour(0);
}
void SetBackMode(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr int Transparent = 1;
    Canvas.State.Opaque = Args.Word(0) != Transparent;
}
void SetTextColour(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.State.TextColour = Args.Colour(0);
}
void SetTextAlign(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.State.TextAlign = Args.Word(0);
}
void SetOperation(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.State.Operation = Args.Word(0);
}
void SetFillMode(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr int Winding = 2;
    Canvas.State.Fill = Args.Word(0) == Winding ? Qt::WindingFill : Qt::OddEvenFill;
}

void SetOrigin(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.State.Origin = Args.PointBackwards(0);
}
void MoveOrigin(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.State.Origin += Args.PointBackwards(0);
}
void SetExtent(WmfCanvas& Canvas, const WmfArgs& Args) {
    const QPoint Extent = Args.PointBackwards(0);
    if (Extent.x() && Extent.y()) Canvas.State.Extent = Extent;
}

int Scaled(int Length, int Times, int By) {
    const qint64 Result = By ? qint64(Length) * Times / By : Length;
    return static_cast<int>(std::clamp<qint64>(Result ? Result : Length, -1000000, 1000000));
}
void ScaleExtent(WmfCanvas& Canvas, const WmfArgs& Args) {
    QPoint& Extent = Canvas.State.Extent;
    Extent = {Scaled(Extent.x(), Args.Word(3), Args.Word(2)),
              Scaled(Extent.y(), Args.Word(1), Args.Word(0))};
}

void Save(WmfCanvas& Canvas, const WmfArgs&) {
    Canvas.Save();
}
void Restore(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.Restore(Args.Word(0));
}

constexpr double FarAway = 100000;  // beyond any picture

QPainterPath RectPath(const QRectF& Rect) {
    QPainterPath Path;
    Path.addRect(Rect.normalized());
    return Path;
}
void ClipInside(WmfCanvas& Canvas, const WmfArgs& Args) {
    const QPainterPath Path = RectPath(Canvas.Map(Args.RectBackwards(0)));
    Canvas.SetClip(Canvas.State.Clip.isEmpty() ? Path : Canvas.State.Clip.intersected(Path));
}
void ClipOutside(WmfCanvas& Canvas, const WmfArgs& Args) {
    const QPainterPath All = RectPath(QRectF(-FarAway, -FarAway, 2 * FarAway, 2 * FarAway));
    const QPainterPath Before = Canvas.State.Clip.isEmpty() ? All : Canvas.State.Clip;
    Canvas.SetClip(Before.subtracted(RectPath(Canvas.Map(Args.RectBackwards(0)))));
}

void SelectObject(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.SelectObject(static_cast<size_t>(Args.Count(0)));
}
void DeleteObject(WmfCanvas& Canvas, const WmfArgs& Args) {
    Canvas.DeleteObject(static_cast<size_t>(Args.Count(0)));
}
void CreateOther(WmfCanvas& Canvas, const WmfArgs&) {
    Canvas.AddObject(WmfOther());
}

void CreatePen(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr Qt::PenStyle Styles[] = {Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                       Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen,
                                       Qt::SolidLine};
    constexpr Qt::PenCapStyle Caps[] = {Qt::RoundCap, Qt::SquareCap, Qt::FlatCap};
    constexpr Qt::PenJoinStyle Joins[] = {Qt::RoundJoin, Qt::BevelJoin, Qt::MiterJoin};
    const int Style = Args.Count(0);
    QPen Pen(Args.Colour(3));
    Pen.setStyle(Styles[std::min(Style & 15, 6)]);
    Pen.setCapStyle(Caps[std::min(Style >> 8 & 15, 2)]);
    Pen.setJoinStyle(Joins[std::min(Style >> 12 & 15, 2)]);
    Canvas.AddObject(WmfPen{Pen, Args.Word(1)});
}

void CreateBrush(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr int Hollow = 1, Hatched = 2;
    constexpr Qt::BrushStyle Hatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                          Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    const int Style = Args.Count(0);
    QBrush Brush(Args.Colour(1));
    if (Style == Hollow) Brush.setStyle(Qt::NoBrush);
    if (Style == Hatched) Brush.setStyle(Hatches[std::min(Args.Count(3), 5)]);
    Canvas.AddObject(Brush);
}

void CreatePictureBrush(WmfCanvas& Canvas, const WmfArgs& Args) {
    const QImage Pattern = DibPicture(ByteView(Args.Part(4, Args.Size())));
    Canvas.AddObject(Pattern.isNull() ? QBrush(Qt::gray) : QBrush(Pattern));
}

void CreateFont(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr int NameAt = 18, MostName = 32, Bold = 600;
    QByteArray Name = Args.Part(NameAt, MostName).toByteArray();
    Name = Name.left(Name.indexOf('\0') < 0 ? Name.size() : Name.indexOf('\0'));
    WmfFont Made;
    if (!Name.isEmpty()) Made.Font.setFamily(QString::fromLatin1(Name));
    Made.Font.setBold(Args.Word(4) >= Bold);
    Made.Font.setItalic(Args.U8(10));
    Made.Font.setUnderline(Args.U8(11));
    Made.Font.setStrikeOut(Args.U8(12));
    Made.Height = Args.Word(0);
    Made.Tenths = Args.Word(2);
    Made.Charset = Args.U8(13);
    Canvas.AddObject(Made);
}

constexpr WmfHandlerRow Rows[] = {
    {0x0201, SetBackColour}, {0x0102, SetBackMode},  {0x0209, SetTextColour},
    {0x012E, SetTextAlign},  {0x0104, SetOperation}, {0x0106, SetFillMode},
    {0x020B, SetOrigin},     {0x020F, MoveOrigin},   {0x020C, SetExtent},
    {0x0410, ScaleExtent},   {0x001E, Save},         {0x0127, Restore},
    {0x0416, ClipInside},    {0x0415, ClipOutside},  {0x012D, SelectObject},
    {0x01F0, DeleteObject},  {0x00F7, CreateOther},  {0x06FF, CreateOther},
    {0x02FA, CreatePen},     {0x02FC, CreateBrush},  {0x0142, CreatePictureBrush},
    {0x01F9, CreateOther},   {0x02FB, CreateFont},
};

}  // namespace

std::span<const WmfHandlerRow> WmfStateHandlers() {
    return Rows;
}

}  // namespace neb
