// The records that write text.
#include <QFontMetricsF>
#include <QStringDecoder>

#include "pictures/metafiles/WmfCanvas.h"

namespace neb {
namespace {

constexpr int RightAlign = 2, CentreAlign = 6, BottomAlign = 8, BaselineAlign = 24;
constexpr double LargestLetters = 4096;

struct CharsetRow {
    int Charset;
    const char* Codec;
};
constexpr CharsetRow Charsets[] = {
    {0, "windows-1252"},   {128, "Shift_JIS"},    {129, "EUC-KR"},       {134, "GB18030"},
    {136, "Big5"},         {161, "windows-1253"}, {162, "windows-1254"}, {177, "windows-1255"},
    {178, "windows-1256"}, {186, "windows-1257"}, {204, "windows-1251"}, {238, "windows-1250"},
};

QString Decoded(QByteArrayView Bytes, int Charset) {
    for (const CharsetRow& Row : Charsets) {
        if (Row.Charset != Charset) continue;
        QStringDecoder Decoder(Row.Codec);
        if (Decoder.isValid()) return Decoder(Bytes);
    }
    return QString::fromLatin1(Bytes);
}

// The font at the size it has on the canvas. A positive height is that of a whole line.
QFont FontFor(const WmfCanvas& Canvas) {
    const WmfFont& Asked = Canvas.State.Font;
    QFont Font = Asked.Font;
    double Pixels = std::abs((Asked.Height ? Asked.Height : -12) * Canvas.Scale().height());
    Pixels = std::clamp(Pixels, 1.0, LargestLetters);
    Font.setPixelSize(static_cast<int>(std::lround(Pixels)));
    if (Asked.Height > 0) {
        const double Line = QFontMetricsF(Font).height();
        Font.setPixelSize(std::max(1, static_cast<int>(std::lround(Pixels * Pixels / Line))));
    }
    return Font;
}

// From the reference point to the start of the base line.
QPointF StartOf(const QFontMetricsF& Metrics, double Width, int Align) {
    const int Across = Align & 6, Down = Align & 24;
    const double X = Across == CentreAlign ? -Width / 2 : Across == RightAlign ? -Width : 0;
    const double Y = Down == BaselineAlign ? 0
                     : Down == BottomAlign ? -Metrics.descent()
                                           : Metrics.ascent();
    return {X, Y};
}

void Write(WmfCanvas& Canvas, QPoint At, const QString& Text) {
    constexpr int AtPosition = 1;
    const int Align = Canvas.State.TextAlign;
    const QFont Font = FontFor(Canvas);
    const QFontMetricsF Metrics(Font);
    const double Width = Metrics.horizontalAdvance(Text);
    const QPointF Start = StartOf(Metrics, Width, Align);
    QPainter& Painter = Canvas.Painter;
    Painter.save();
    Painter.translate(Canvas.Map(Align & AtPosition ? Canvas.State.Position : At));
    Painter.rotate(-Canvas.State.Font.Tenths / 10.0);
    Canvas.Mix(13);
    if (Canvas.State.Opaque)
        Painter.fillRect(QRectF(Start.x(), Start.y() - Metrics.ascent(), Width, Metrics.height()),
                         Canvas.State.BackColour);
    Painter.setFont(Font);
    Painter.setPen(Canvas.State.TextColour);
    Painter.drawText(Start, Text);
    Painter.restore();
}

void TextOut(WmfCanvas& Canvas, const WmfArgs& Args) {
    const int Length = Args.Count(0);
    const int Behind = 1 + (Length + 1) / 2;
    Write(Canvas, Args.PointBackwards(Behind),
          Decoded(Args.Part(2, Length), Canvas.State.Font.Charset));
}

void ExtTextOut(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr int Filled = 2, Clipped = 4;
    const int Options = Args.Count(3);
    const bool HasRect = Options & (Filled | Clipped);
    const QRect Box(QPoint(Args.Word(4), Args.Word(5)), QPoint(Args.Word(6), Args.Word(7)));
    const QRectF Place = Canvas.Map(Box).normalized();
    Canvas.Mix(13);
    if (Options & Filled) Canvas.Painter.fillRect(Place, Canvas.State.BackColour);
    Canvas.Painter.save();
    if (Options & Clipped) Canvas.Painter.setClipRect(Place, Qt::IntersectClip);
    Write(Canvas, Args.PointBackwards(0),
          Decoded(Args.Part(HasRect ? 16 : 8, Args.Count(2)), Canvas.State.Font.Charset));
    Canvas.Painter.restore();
}

constexpr WmfHandlerRow Rows[] = {{0x0521, TextOut}, {0x0A32, ExtTextOut}};

}  // namespace

std::span<const WmfHandlerRow> WmfTextHandlers() {
    return Rows;
}

}  // namespace neb
