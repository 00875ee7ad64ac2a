// The records that draw bitmaps and fill rectangles.
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/metafiles/WmfCanvas.h"

namespace neb {
namespace {

constexpr qint64 MostPixels = 32'000'000;
constexpr int PlainMix = 13;

// The rules by which a bitmap's pixels and those beneath mix, by the byte that tells them apart;
// the second number is the drawing mode that does the same.
struct RuleRow {
    int Rule, Operation;
};
constexpr RuleRow SourceRules[] = {
    {0x00, 1}, {0x11, 2},  {0x22, 3},  {0x33, 4},  {0x44, 5},  {0x55, 6},  {0x66, 7},  {0x77, 8},
    {0x88, 9}, {0x99, 10}, {0xAA, 11}, {0xBB, 12}, {0xCC, 13}, {0xDD, 14}, {0xEE, 15}, {0xFF, 16}};
constexpr RuleRow BrushRules[] = {{0x00, 1},  {0x0F, 4},  {0x55, 6},  {0x5A, 7}, {0xA0, 9},
                                  {0xAA, 11}, {0xF0, 13}, {0xFA, 15}, {0xFF, 16}};

int OperationFor(std::span<const RuleRow> Rules, quint32 Rule) {
    for (const RuleRow& Row : Rules)
        if (Row.Rule == static_cast<int>(Rule >> 16 & 0xFF)) return Row.Operation;
    return PlainMix;
}

int HeaderAndColours(const ByteView& Dib) {
    constexpr quint32 OldHeader = 12, PlainHeader = 40, Masks = 3;
    const quint32 Header = Dib.U32(0);
    const bool Old = Header == OldHeader;
    const int Depth = Dib.U16(Old ? 10 : 14);
    const quint32 Used = Old ? 0 : Dib.U32(32);
    const quint32 Colours = Used ? std::min(Used, 256U) : Depth <= 8 ? 1U << Depth : 0;
    const quint32 MaskBytes = Header == PlainHeader && Dib.U32(16) == Masks ? 12 : 0;
    return static_cast<int>(Header + MaskBytes + Colours * (Old ? 3 : 4));
}

// Where a bitmap record says what goes where; heights and widths may be negative, which mirrors.
struct Transfer {
    quint32 Rule;
    QRect From, To;
    bool FromBottom;  // From counts its rows from the lowest
};

QRect RectOf(QPoint Corner, QPoint Size) {
    return {Corner, QSize(Size.x(), Size.y())};
}

void DrawBitmap(WmfCanvas& Canvas, const Transfer& How, QImage Bitmap) {
    if (Bitmap.isNull()) return;
    QRect From = How.From;
    if (How.FromBottom) From.moveTop(Bitmap.height() - From.y() - From.height());
    const QRectF To = Canvas.Map(How.To);
    const bool Across = To.width() < 0, Down = To.height() < 0;
    if (Across || Down) {
        Bitmap = Bitmap.mirrored(Across, Down);
        if (Across) From.moveLeft(Bitmap.width() - From.x() - From.width());
        if (Down) From.moveTop(Bitmap.height() - From.y() - From.height());
    }
    Canvas.Mix(OperationFor(SourceRules, How.Rule));
    // Enlarged pixels stay squares, as the programs that wrote such files showed them.
    Canvas.Painter.setRenderHint(QPainter::SmoothPixmapTransform,
                                 std::abs(To.width()) < std::abs(From.width()));
    Canvas.Painter.drawImage(To.normalized(), Bitmap, QRectF(From).normalized());
}

void FillByRule(WmfCanvas& Canvas, QRect Place, quint32 Rule) {
    Canvas.Mix(OperationFor(BrushRules, Rule));
    Canvas.Painter.fillRect(Canvas.Map(Place).normalized(), Canvas.State.Brush);
}

void PatBlt(WmfCanvas& Canvas, const WmfArgs& Args) {
    FillByRule(Canvas, RectOf(Args.PointBackwards(4), Args.PointBackwards(2)), Args.U32(0));
}

QImage DibAt(const WmfArgs& Args, int Word) {
    return DibPicture(ByteView(Args.Part(Word * 2, Args.Size())));
}

void StretchDib(WmfCanvas& Canvas, const WmfArgs& Args) {
    const Transfer How = {Args.U32(0), RectOf(Args.PointBackwards(5), Args.PointBackwards(3)),
                          RectOf(Args.PointBackwards(9), Args.PointBackwards(7)), true};
    DrawBitmap(Canvas, How, DibAt(Args, 11));
}

void DibStretchBlt(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr int WithoutBitmap = 11;
    if (Args.Size() == WithoutBitmap * 2)
        return FillByRule(Canvas, RectOf(Args.PointBackwards(9), Args.PointBackwards(7)),
                          Args.U32(0));
    const Transfer How = {Args.U32(0), RectOf(Args.PointBackwards(4), Args.PointBackwards(2)),
                          RectOf(Args.PointBackwards(8), Args.PointBackwards(6)), false};
    DrawBitmap(Canvas, How, DibAt(Args, 10));
}

void DibBitBlt(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr int WithoutBitmap = 9;
    if (Args.Size() == WithoutBitmap * 2)
        return FillByRule(Canvas, RectOf(Args.PointBackwards(7), Args.PointBackwards(5)),
                          Args.U32(0));
    const QPoint Size = Args.PointBackwards(4);
    const Transfer How = {Args.U32(0), RectOf(Args.PointBackwards(2), Size),
                          RectOf(Args.PointBackwards(6), Size), false};
    DrawBitmap(Canvas, How, DibAt(Args, 8));
}

void SetDibToDevice(WmfCanvas& Canvas, const WmfArgs& Args) {
    constexpr quint32 CopyRule = 0xCC << 16;
    const QPoint Size = Args.PointBackwards(5);
    const Transfer How = {CopyRule, RectOf(Args.PointBackwards(3), Size),
                          RectOf(Args.PointBackwards(7), Size), true};
    DrawBitmap(Canvas, How, DibAt(Args, 9));
}

constexpr WmfHandlerRow Rows[] = {{0x061D, PatBlt},
                                  {0x0F43, StretchDib},
                                  {0x0B41, DibStretchBlt},
                                  {0x0940, DibBitBlt},
                                  {0x0D33, SetDibToDevice}};

}  // namespace

QImage DibPicture(const ByteView& Dib) {
    const QByteArrayView Body = Dib.Part(0, Dib.Size());
    QByteArray File(14, '\0');
    File.replace(0, 2, "BM");
    qToLittleEndian<quint32>(static_cast<quint32>(14 + Body.size()), File.data() + 2);
    qToLittleEndian<quint32>(static_cast<quint32>(14 + HeaderAndColours(Dib)), File.data() + 10);
    File.append(Body.data(), Body.size());
    const ByteView Bytes(File);
    if (!LooksLikeBmp(Bytes) || PixelCount(BmpLayout(Bytes).Size) > MostPixels) return {};
    try {
        CheckIsWhole({File, "bmp", {}});
    } catch (const Fault&) {
        return {};
    }
    return QImage::fromData(File, "BMP").convertToFormat(QImage::Format_RGB32);
}

std::span<const WmfHandlerRow> WmfBitmapHandlers() {
    return Rows;
}

}  // namespace neb
