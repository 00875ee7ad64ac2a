// TGA pictures, by their own rules: colours, greys and palettes, each packed or not, from any of
// the four corners, with alpha in the pixels, in the palette or beside the greys.
#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

enum Kind { Mapped = 1, Colours = 2, Greys = 3 };
constexpr int PackedKinds = 8;
constexpr int AlphaBits = 0x0F, FromTheRight = 0x10, FromTheTop = 0x20;

class TgaReader {
  public:
    explicit TgaReader(const PictureSource& Source);
    DecodedPicture Decode();

  private:
    QRgb Colour(qint64 At, int Bits) const;
    QRgb GreyAt(qint64 At) const;
    QRgb MappedAt(qint64 At) const;
    QRgb PixelAt(qint64 At) const;
    QRgb OnePixel();
    QRgb* Line(int Row);
    void ReadBits();
    void ReadPixels();

    const PictureSource& mSource;
    ByteView mBytes;
    QSize mSize;
    int mKind, mDepth, mMarks, mMapBits;
    bool mPacked, mAlpha;
    qint64 mMap;
    qint64 mAt;       // of what is read next
    int mPacket = 0;  // pixels that the last packet still has
    bool mRun = false;
    QRgb mValue = 0;
    QImage mPicture;
};

TgaReader::TgaReader(const PictureSource& Source)
    : mSource(Source),
      mBytes(Source.Bytes),
      mSize(mBytes.U16(12), mBytes.U16(14)),
      mKind(mBytes.U8(2) % PackedKinds),
      mDepth(mBytes.U8(16)),
      mMarks(mBytes.U8(17)),
      mMapBits(mBytes.U8(7)),
      mPacked(mBytes.U8(2) > PackedKinds),
      mMap(18 + mBytes.U8(0)) {
    const int MapLength = mBytes.U8(1) ? mBytes.U16(5) * ((mMapBits + 7) / 8) : 0;
    mAt = mMap + MapLength;
    // Four bytes a pixel are colours with alpha even where the header forgets to say so.
    mAlpha = (mKind == Mapped ? mMapBits : mDepth) == 32 || (mMarks & AlphaBits) != 0;
}

// Five bits a colour and perhaps one of alpha, or a byte each.
QRgb TgaReader::Colour(qint64 At, int Bits) const {
    if (Bits > 16)
        return qRgba(mBytes.U8(At + 2), mBytes.U8(At + 1), mBytes.U8(At),
                     Bits == 32 && mAlpha ? mBytes.U8(At + 3) : 255);
    const int Word = mBytes.U16(At);
    const auto Level = [Word](int Shift) { return ((Word >> Shift & 31) * 255 + 15) / 31; };
    const bool Clear = mAlpha && Bits == 16 && !(Word & 0x8000);
    return qRgba(Level(10), Level(5), Level(0), Clear ? 0 : 255);
}

QRgb TgaReader::GreyAt(qint64 At) const {
    const int Level = mBytes.U8(At);
    return qRgba(Level, Level, Level, mDepth == 16 && mAlpha ? mBytes.U8(At + 1) : 255);
}

// The map may leave its first entries away. What it does not have is zero throughout.
QRgb TgaReader::MappedAt(qint64 At) const {
    const int Index = (mDepth == 16 ? mBytes.U16(At) : mBytes.U8(At)) - mBytes.U16(3);
    if (Index < 0 || Index >= mBytes.U16(5)) return qRgba(0, 0, 0, mMapBits == 32 ? 0 : 255);
    return Colour(mMap + qint64(Index) * ((mMapBits + 7) / 8), mMapBits);
}

QRgb TgaReader::PixelAt(qint64 At) const {
    if (mKind == Mapped) return MappedAt(At);
    return mKind == Greys ? GreyAt(At) : Colour(At, mDepth);
}

// A packet may go on in the next row.
QRgb TgaReader::OnePixel() {
    const int Length = (mDepth + 7) / 8;
    if (mPacked && mPacket == 0) {
        const int Packet = mBytes.U8(mAt++);
        mPacket = (Packet & 0x7F) + 1;
        mRun = Packet & 0x80;
        if (mRun) mValue = PixelAt(mAt);
        if (mRun) mAt += Length;
    }
    if (mPacked) --mPacket;
    if (mPacked && mRun) return mValue;
    mAt += Length;
    return PixelAt(mAt - Length);
}

QRgb* TgaReader::Line(int Row) {
    const int Y = mMarks & FromTheTop ? Row : mSize.height() - 1 - Row;
    return reinterpret_cast<QRgb*>(mPicture.scanLine(Y));
}

void TgaReader::ReadPixels() {
    for (int Y = 0; Y < mSize.height(); ++Y) {
        QRgb* To = Line(Y);
        for (int X = 0; X < mSize.width(); ++X) To[X] = OnePixel();
        if (mMarks & FromTheRight) std::reverse(To, To + mSize.width());
    }
}

// Black and white, eight pixels a byte, rows beginning with a byte of their own.
void TgaReader::ReadBits() {
    const qint64 Stride = (mSize.width() + 7) / 8;
    for (int Y = 0; Y < mSize.height(); ++Y) {
        QRgb* To = Line(Y);
        for (int X = 0; X < mSize.width(); ++X) {
            const bool White = mBytes.U8(mAt + Y * Stride + X / 8) << X % 8 & 0x80;
            To[X] = White ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
        }
    }
}

DecodedPicture TgaReader::Decode() {
    const DecodeBudget Budget(mSize, PixelCount(mSize) * 4 + mBytes.Size());
    CheckIsWhole(mSource);
    mPicture = QImage(mSize, QImage::Format_ARGB32);
    if (mPicture.isNull()) ThrowTooLarge(mSize);
    mDepth == 1 ? ReadBits() : ReadPixels();
    MakeOpaqueIfAllClear(mPicture);
    return {ToScreenColours(std::move(mPicture), {}), mSize};
}

}  // namespace

DecodedPicture DecodeTga(const PictureSource& Source) {
    return TgaReader(Source).Decode();
}

}  // namespace neb
