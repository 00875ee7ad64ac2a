// PCX pictures, by their own rules: one to four planes of 1, 2, 4 or 8 bits a pixel, packed or
// not, with the palettes of their several versions.
#include <array>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

constexpr qint64 PixelsAt = 128, HeaderPaletteAt = 16;
constexpr int HeaderColours = 16;
constexpr qint64 LargePalette = 1 + 256 * 3;  // bytes
constexpr int PaletteMark = 12;

// What a screen of 16 colours showed when nothing else was said.
constexpr std::array<QRgb, HeaderColours> ScreenColours = {
    0xFF000000, 0xFF0000AA, 0xFF00AA00, 0xFF00AAAA, 0xFFAA0000, 0xFFAA00AA, 0xFFAA5500, 0xFFAAAAAA,
    0xFF555555, 0xFF5555FF, 0xFF55FF55, 0xFF55FFFF, 0xFFFF5555, 0xFFFF55FF, 0xFFFFFF55, 0xFFFFFFFF};

class PcxReader {
  public:
    explicit PcxReader(const PictureSource& Source);
    DecodedPicture Decode();

  private:
    bool HeaderHasPalette() const;
    bool PaletteIsOfTwo() const;
    void ReadPalette();
    bool HasLargePalette() const;
    bool PaletteIsCut() const;
    void ReadLargePalette();
    QRgb PaletteEntry(qint64 At) const;
    int OneByte();
    void ReadRow(QByteArray& Row);
    int Sample(const ByteView& Row, int Plane, int X) const;
    QRgb Pixel(const ByteView& Row, int X) const;

    const PictureSource& mSource;
    ByteView mBytes;
    QSize mSize;
    int mBits, mPlanes, mStride;
    bool mPacked;
    std::array<QRgb, 256> mPalette;
    qint64 mAt = PixelsAt;  // of what is read next
    int mRun = 0;           // how often the last byte is still repeated
    int mValue = 0;
};

PcxReader::PcxReader(const PictureSource& Source)
    : mSource(Source),
      mBytes(Source.Bytes),
      mSize(mBytes.U16(8) - mBytes.U16(4) + 1, mBytes.U16(10) - mBytes.U16(6) + 1),
      mBits(mBytes.U8(3)),
      mPlanes(mBytes.U8(65)),
      mStride(mBytes.U16(66)),
      mPacked(mBytes.U8(2) != 0) {
    mPalette.fill(qRgb(0, 0, 0));
}

QRgb PcxReader::PaletteEntry(qint64 At) const {
    return qRgb(mBytes.U8(At), mBytes.U8(At + 1), mBytes.U8(At + 2));
}

// Versions 0 and 3 have none; some programs leave it at zeros and mean none.
bool PcxReader::HeaderHasPalette() const {
    const int Version = mBytes.U8(1);
    if (Version == 0 || Version == 3) return false;
    for (qint64 I = 0; I < HeaderColours * 3; ++I)
        if (mBytes.U8(HeaderPaletteAt + I) != 0) return true;
    return false;
}

bool PcxReader::HasLargePalette() const {
    const qint64 At = mBytes.Size() - LargePalette;
    return At >= PixelsAt && mBytes.U8(At) == PaletteMark;
}

// Behind the pixels, at the end of the file; without it the numbers are greys.
void PcxReader::ReadLargePalette() {
    const bool There = HasLargePalette();
    const qint64 At = mBytes.Size() - LargePalette + 1;
    for (int I = 0; I < 256; ++I)
        mPalette[static_cast<size_t>(I)] = There ? PaletteEntry(At + I * 3) : qRgb(I, I, I);
}

// The pixels are all there, and of the palette only the beginning.
bool PcxReader::PaletteIsCut() const {
    return mBits == 8 && mPlanes == 1 && !HasLargePalette() && mBytes.U8(mAt) == PaletteMark;
}

// A palette of as many colours as pixels can tell apart, the others left at zero, was made for the
// picture.
bool PcxReader::PaletteIsOfTwo() const {
    for (qint64 I = 6; I < HeaderColours * 3; ++I)
        if (mBytes.U8(HeaderPaletteAt + I) != 0) return false;
    return PaletteEntry(HeaderPaletteAt) != PaletteEntry(HeaderPaletteAt + 3);
}

// Pictures of one bit are black and white unless a palette was made for them: what stands in
// their header is left over from elsewhere more often than meant.
void PcxReader::ReadPalette() {
    if (mBits == 8) return ReadLargePalette();
    const bool OneBit = mBits * mPlanes == 1;
    const bool Own = HeaderHasPalette() && (!OneBit || PaletteIsOfTwo());
    for (size_t I = 0; I < HeaderColours; ++I)
        mPalette[I] = Own ? PaletteEntry(HeaderPaletteAt + 3 * qint64(I)) : ScreenColours[I];
    if (OneBit && !Own) mPalette[1] = qRgb(255, 255, 255);
}

int PcxReader::OneByte() {
    while (mRun == 0) {
        mValue = mBytes.U8(mAt++);
        mRun = 1;
        if (!mPacked || mValue < 0xC0) continue;
        mRun = mValue & 0x3F;
        mValue = mBytes.U8(mAt++);
    }
    --mRun;
    return mValue;
}

void PcxReader::ReadRow(QByteArray& Row) {
    for (char& Byte : Row) Byte = static_cast<char>(OneByte());
}

int PcxReader::Sample(const ByteView& Row, int Plane, int X) const {
    const int APixel = 8 / mBits, Shift = 8 - mBits * (X % APixel + 1);
    const int Column = X / APixel;
    if (Column >= mStride) return 0;
    return Row.U8(qint64(Plane) * mStride + Column) >> Shift & ((1 << mBits) - 1);
}

QRgb PcxReader::Pixel(const ByteView& Row, int X) const {
    if (mPlanes >= 3 && mBits > 1) {
        const int Most = (1 << mBits) - 1;
        const auto Level = [&](int Plane) { return Sample(Row, Plane, X) * 255 / Most; };
        return qRgb(Level(0), Level(1), Level(2));
    }
    int Index = 0;
    for (int Plane = 0; Plane < mPlanes; ++Plane) Index |= Sample(Row, Plane, X) << Plane * mBits;
    return mPalette[static_cast<size_t>(Index & 255)];
}

DecodedPicture PcxReader::Decode() {
    if (mPlanes < 1 || mPlanes > 4) ThrowDamaged();
    const DecodeBudget Budget(mSize, PixelCount(mSize) * 4 + mBytes.Size());
    CheckIsWhole(mSource);
    ReadPalette();
    QImage Picture(mSize, QImage::Format_RGB32);
    if (Picture.isNull()) ThrowTooLarge(mSize);
    QByteArray Row(qsizetype(mStride) * mPlanes, 0);
    for (int Y = 0; Y < mSize.height(); ++Y) {
        ReadRow(Row);
        auto* To = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        for (int X = 0; X < mSize.width(); ++X) To[X] = Pixel(Row, X);
    }
    if (PaletteIsCut()) ThrowEndsEarly();
    return {std::move(Picture), mSize};
}

}  // namespace

DecodedPicture DecodePcx(const PictureSource& Source) {
    return PcxReader(Source).Decode();
}

}  // namespace neb
