// PSD pictures of the kinds that Magick++ refuses or takes for others, by their own rules: with
// palettes, with inks but no colour space, with many masks beside the colours. Of all, the picture
// of all layers together counts, which stands at the file's end.
#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/FileBlocks.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/TiffTags.h"

namespace neb {
namespace {

enum Mode { Greys = 1, Palette = 2, Colours = 3, Inks = 4, PlainInks = 7, Duotone = 8 };

class PsdReader {
  public:
    explicit PsdReader(const PictureSource& Source);
    // Whether this reader is the right one for the picture.
    bool Knows() const;
    DecodedPicture Decode();

  private:
    int Colouring() const;  // planes that make the colours
    qint64 Length(qint64 At) const {
        return mLarge ? mBytes.U32(At + 4, true) : mBytes.U32(At, true);
    }
    bool HasAlpha() const;
    void ReadRow(qint64 At, qint64 Length, QByteArray& Row) const;
    void Unpack(QByteArrayView From, QByteArray& Row) const;
    void ReadPlanes();
    void Put(const QByteArray& Row, int Plane, int Y);
    QRgb PaletteColour(int Index) const;
    void LayOnWhite(const QByteArray& Row, int Y);
    QImage Finish();

    const PictureSource& mSource;
    ByteView mBytes;
    bool mLarge;
    int mPlanes, mDepth, mMode;
    QSize mSize;
    qint64 mPalette, mResources, mLayers, mPixels;  // where they begin
    QImage mPicture;
};

int Side(quint32 Length) {
    return static_cast<int>(std::min<quint32>(Length, 1 << 30));
}

PsdReader::PsdReader(const PictureSource& Source)
    : mSource(Source),
      mBytes(Source.Bytes),
      mLarge(mBytes.U16(4, true) == 2),
      mPlanes(mBytes.U16(12, true)),
      mDepth(mBytes.U16(22, true)),
      mMode(mBytes.U16(24, true)),
      mSize(Side(mBytes.U32(18, true)), Side(mBytes.U32(14, true))),
      mPalette(30),
      mResources(mPalette + mBytes.U32(mPalette - 4, true) + 4),
      mLayers(mResources + mBytes.U32(mResources - 4, true)) {
    const int Width = mLarge ? 8 : 4;
    mPixels = mLayers + Width + Length(mLayers);
}

int PsdReader::Colouring() const {
    if (mMode == Colours) return 3;
    if (mMode == Inks) return 4;
    if (mMode == PlainInks) return mPlanes < 3 ? 1 : std::min(mPlanes, 4);
    return 1;
}

bool PsdReader::Knows() const {
    if (mDepth != 8 && mDepth != 16) return false;
    if (mMode == Palette || mMode == PlainInks) return true;
    const bool Known = mMode == Greys || mMode == Colours || mMode == Inks || mMode == Duotone;
    return Known && mPlanes > Colouring() + 1;
}

// The first plane beyond the colours is the picture's alpha when the number of layers is below
// zero; otherwise it is a mask of the user's.
bool PsdReader::HasAlpha() const {
    const int Width = mLarge ? 8 : 4;
    const bool Layers = Length(mLayers) > 0;
    const auto Count = static_cast<qint16>(mBytes.U16(mLayers + 2 * Width, true));
    return mPlanes > Colouring() && mMode <= Colours && Layers && Count < 0;
}

// Runs and copies, as Macintosh programs packed them.
void PsdReader::Unpack(QByteArrayView From, QByteArray& Row) const {
    const ByteView Codes(From);
    qsizetype To = 0;
    for (qint64 At = 0; At < Codes.Size() && To < Row.size();) {
        const auto Code = static_cast<qint8>(Codes.U8(At++));
        if (Code == -128) continue;
        const qsizetype Count =
            std::min<qsizetype>(Code < 0 ? 1 - Code : Code + 1, Row.size() - To);
        for (qsizetype I = 0; I < Count; ++I)
            Row[To++] = static_cast<char>(Codes.U8(Code < 0 ? At : At + I));
        At += Code < 0 ? 1 : Code + 1;
    }
}

// Of samples of 16 bits the upper half counts.
void PsdReader::ReadRow(qint64 At, qint64 Bytes, QByteArray& Row) const {
    constexpr int Packed = 1;
    const int Width = mDepth / 8;
    Row.resize(qsizetype(mSize.width()) * Width);
    Row.fill('\0');
    if (mBytes.U16(mPixels, true) == Packed)
        Unpack(mBytes.Part(At, Bytes), Row);
    else
        Row.replace(0, Bytes, mBytes.Part(At, Bytes));
    Row.resize(qsizetype(mSize.width()) * Width);
    for (qsizetype I = 1; Width == 2 && I < mSize.width(); ++I) Row[I] = Row[2 * I];
}

QRgb PsdReader::PaletteColour(int Index) const {
    return qRgb(mBytes.U8(mPalette + Index), mBytes.U8(mPalette + 256 + Index),
                mBytes.U8(mPalette + 512 + Index));
}

void PsdReader::Put(const QByteArray& Row, int Plane, int Y) {
    auto* Line = reinterpret_cast<QRgb*>(mPicture.scanLine(Y));
    for (int X = 0; X < mSize.width(); ++X) {
        const int Value = static_cast<uchar>(Row[X]);
        if (mMode == Palette)
            Line[X] = PaletteColour(Value);
        else if (Colouring() == 1)
            Line[X] = qRgb(Value, Value, Value);
        else if (mMode == Colours)
            Line[X] |= static_cast<QRgb>(Value) << 8 * (2 - Plane);
        else
            reinterpret_cast<uchar*>(Line + X)[Plane] = static_cast<uchar>(255 - Value);
    }
}

// The picture has been laid on white already, but for pixels that are quite clear.
void PsdReader::LayOnWhite(const QByteArray& Row, int Y) {
    auto* Line = reinterpret_cast<QRgb*>(mPicture.scanLine(Y));
    for (int X = 0; X < mSize.width(); ++X) {
        const int White = 255 - static_cast<uchar>(Row[X]);
        const auto Mix = [White](int C) { return std::max(C, White); };
        Line[X] = qRgb(Mix(qRed(Line[X])), Mix(qGreen(Line[X])), Mix(qBlue(Line[X])));
    }
}

void PsdReader::ReadPlanes() {
    constexpr int Packed = 1;
    const bool IsPacked = mBytes.U16(mPixels, true) == Packed;
    const int CountWidth = mLarge ? 4 : 2;
    const qint64 Plain = qint64(mSize.width()) * mDepth / 8;
    qint64 Count = mPixels + 2;
    qint64 At = Count + (IsPacked ? qint64(mPlanes) * mSize.height() * CountWidth : 0);
    QByteArray Row;
    for (int Plane = 0; Plane < Colouring() + (HasAlpha() ? 1 : 0); ++Plane)
        for (int Y = 0; Y < mSize.height(); ++Y, Count += CountWidth) {
            const qint64 Own = mLarge ? mBytes.U32(Count, true) : mBytes.U16(Count, true);
            const qint64 Bytes = IsPacked ? Own : Plain;
            ReadRow(At, Bytes, Row);
            At += Bytes;
            Plane < Colouring() ? Put(Row, Plane, Y) : LayOnWhite(Row, Y);
        }
}

QImage PsdReader::Finish() {
    const bool Coloured = mMode == Colours || Colouring() == 1;
    const QByteArray Profile = PsdResource(mBytes, ProfileResourceKind).toByteArray();
    if (!Coloured) {
        InksToScreenColours(mPicture, mMode == Inks ? Profile : QByteArray());
        return std::move(mPicture);
    }
    MakeOpaque(mPicture);
    return ToScreenColours(std::move(mPicture), Profile);
}

DecodedPicture PsdReader::Decode() {
    if (mSize.isEmpty() || mPlanes < Colouring()) ThrowDamaged();
    const DecodeBudget Budget(mSize, PixelCount(mSize) * 4 + mBytes.Size());
    CheckIsWhole(mSource);
    if (mBytes.U16(mPixels, true) > 1) ThrowDamaged();
    mPicture = QImage(mSize, QImage::Format_RGB32);
    if (mPicture.isNull()) ThrowTooLarge(mSize);
    // Also the fourth ink where there are only three.
    memset(mPicture.bits(), 0, static_cast<size_t>(mPicture.sizeInBytes()));
    ReadPlanes();
    const QImage Picture = Upright(Finish(), OrientationOf(mSource.Bytes));
    return {Picture, Picture.size()};
}

}  // namespace

DecodedPicture DecodePsd(const PictureSource& Source) {
    PsdReader Reader(Source);
    return Reader.Knows() ? Reader.Decode() : DecodeByMagick(Source);
}

}  // namespace neb
