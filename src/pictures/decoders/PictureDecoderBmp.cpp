// Windows and OS/2 bitmaps, by their own rules: every depth from 1 to 32, any masks of colours,
// packed rows, palettes of three and of four bytes an entry. No library at hand knows them all.
#include <array>
#include <bit>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

constexpr qint64 InfoAt = 14;
constexpr quint32 OldHeader = 12, ClassicHeader = 40, AlphaHeader = 56, ProfileHeader = 124;
enum Packing : quint32 { Plain, Packed8, Packed4, Masked, JpegOrPacked24, Png, MaskedWithAlpha };

// One of the four colours within a pixel of 16 or 32 bits.
class Channel {
  public:
    // Missing: what all pixels have when the mask is empty.
    void Set(quint32 Mask, int Missing) {
        mMask = Mask;
        mShift = Mask ? std::countr_zero(Mask) : 0;
        const quint32 Most = Mask >> mShift;
        mDrop = std::max(0, static_cast<int>(std::bit_width(Most)) - 8);
        const int Top = static_cast<int>(Most >> mDrop);
        for (int I = 0; I < 256; ++I)
            mValues[static_cast<size_t>(I)] =
                Top ? std::min((I * 255 + Top / 2) / Top, 255) : Missing;
    }
    bool IsEmpty() const { return mMask == 0; }
    int Value(quint32 Pixel) const { return mValues[(Pixel & mMask) >> mShift >> mDrop]; }

  private:
    quint32 mMask = 0;
    int mShift = 0, mDrop = 0;
    std::array<int, 256> mValues = {};
};

class BmpReader {
  public:
    explicit BmpReader(const PictureSource& Source);
    DecodedPicture Decode();

  private:
    // A field of the header; zero when the header is too short to have it.
    quint32 Field(quint32 At) const { return At + 4 <= mHeader ? mBytes.U32(InfoAt + At) : 0; }
    bool HasMasks() const { return mPacking == Masked || mPacking == MaskedWithAlpha; }
    bool IsPacked() const {
        return mPacking == Packed8 || mPacking == Packed4 || mPacking == JpegOrPacked24;
    }
    bool DepthFits() const;
    void ReadPalette();
    void ReadMasks();
    QByteArray Profile() const;
    QByteArray Carried() const;
    QRgb Colour(int Index) const { return mPalette[static_cast<size_t>(Index)]; }
    QRgb* Line(int Row);
    QRgb Pixel(const ByteView& Row, int X) const;
    QRgb MaskedPixel(quint32 Bits) const;
    void ReadRows();
    void ReadPackedRows();
    // As many of the pixels as the row has room for; the others are left away.
    int RoomFor(int Count) const;
    void Run(int Count);
    void Copy(int Count);
    bool Escape(int Code);

    const PictureSource& mSource;
    ByteView mBytes;
    quint32 mHeader;
    QSize mSize;
    int mDepth;
    quint32 mPacking;
    qint64 mPixels;
    bool mTopDown;
    std::array<QRgb, 256> mPalette;
    std::array<Channel, 4> mChannels;  // red, green, blue, alpha
    QImage mPicture;
    // Where packed rows go on: in the file, and in the picture from its first stored row.
    qint64 mAt = 0;
    int mRow = 0;
    int mColumn = 0;
};

BmpReader::BmpReader(const PictureSource& Source)
    : mSource(Source), mBytes(Source.Bytes), mHeader(mBytes.U32(InfoAt)) {
    const BmpHeader Layout = BmpLayout(mBytes);
    mSize = Layout.Size;
    mDepth = Layout.Depth;
    mPacking = mHeader > OldHeader ? Field(16) : quint32(Plain);
    mPixels = Layout.Pixels;
    mTopDown = mHeader > OldHeader && mBytes.I32(InfoAt + 8) < 0;
    mPalette.fill(qRgb(0, 0, 0));
}

bool BmpReader::DepthFits() const {
    switch (mPacking) {
        case Plain:
            return mDepth == 1 || mDepth == 2 || mDepth == 4 || mDepth == 8 || mDepth == 16 ||
                   mDepth == 24 || mDepth == 32;
        case Packed8:
            return mDepth == 8;
        case Packed4:
            return mDepth == 4;
        case JpegOrPacked24:
            return mDepth == 24;
        case Masked:
        case MaskedWithAlpha:
            return mDepth == 16 || mDepth == 32;
        default:
            return false;
    }
}

// Files lie about the number of their colours: what lies before the pixels is what there is. Some
// of the newer headers are followed by the older one's short entries; the room tells.
void BmpReader::ReadPalette() {
    if (mDepth > 8) return;
    const qint64 At = InfoAt + mHeader, Most = 1 << mDepth;
    const qint64 Told = Field(32) > 0 && Field(32) <= 256 ? Field(32) : Most;
    if (mPixels <= At) mPixels = At + Told * (mHeader == OldHeader ? 3 : 4);
    const qint64 Room = mPixels - At;
    const qint64 Width = mHeader == OldHeader || Room == Told * 3 ? 3 : 4;
    for (qint64 I = 0; I < std::min(Most, Room / Width); ++I) {
        const qint64 Entry = At + I * Width;
        mPalette[static_cast<size_t>(I)] =
            qRgb(mBytes.U8(Entry + 2), mBytes.U8(Entry + 1), mBytes.U8(Entry));
    }
}

void BmpReader::ReadMasks() {
    constexpr std::array<quint32, 4> Fives = {0x7C00, 0x03E0, 0x001F, 0},
                                     Eights = {0xFF0000, 0xFF00, 0xFF, 0};
    std::array<quint32, 4> Masks = mDepth == 16 ? Fives : Eights;
    const bool Alpha = mHeader >= AlphaHeader || mPacking == MaskedWithAlpha;
    if (HasMasks())
        for (size_t I = 0; I < (Alpha ? 4 : 3); ++I)
            Masks[I] = mBytes.U32(InfoAt + ClassicHeader + 4 * qint64(I));
    const quint32 Used = mDepth == 16 ? 0xFFFF : 0xFFFFFFFF;
    for (size_t I = 0; I < 4; ++I) mChannels[I].Set(Masks[I] & Used, I == 3 ? 255 : 0);
}

// Only the newest header can have one in the file; its other descriptions of colours say sRGB or
// are filled with zeros.
QByteArray BmpReader::Profile() const {
    constexpr quint32 Embedded = 0x4D424544;
    if (mHeader < ProfileHeader || Field(56) != Embedded) return {};
    return mBytes.Part(InfoAt + Field(112), Field(116)).toByteArray();
}

// Headers meant for printers may have a whole file of another format in place of the pixels.
QByteArray BmpReader::Carried() const {
    if (mHeader < ClassicHeader || (mPacking != JpegOrPacked24 && mPacking != Png)) return {};
    const QByteArray File = mBytes.Part(mPixels, mBytes.Size()).toByteArray();
    return LooksLikeJpeg(File) || LooksLikePng(File) ? File : QByteArray();
}

QRgb* BmpReader::Line(int Row) {
    return reinterpret_cast<QRgb*>(mPicture.scanLine(mTopDown ? Row : mSize.height() - 1 - Row));
}

QRgb BmpReader::MaskedPixel(quint32 Bits) const {
    return qRgba(mChannels[0].Value(Bits), mChannels[1].Value(Bits), mChannels[2].Value(Bits),
                 mChannels[3].Value(Bits));
}

QRgb BmpReader::Pixel(const ByteView& Row, int X) const {
    if (mDepth == 32) return MaskedPixel(Row.U32(4 * qint64(X)));
    if (mDepth == 16) return MaskedPixel(Row.U16(2 * qint64(X)));
    if (mDepth == 24) {
        const qint64 At = 3 * qint64(X);
        return qRgb(Row.U8(At + 2), Row.U8(At + 1), Row.U8(At));
    }
    const int APixel = 8 / mDepth, Shift = 8 - mDepth * (X % APixel + 1);
    return Colour(Row.U8(X / APixel) >> Shift & ((1 << mDepth) - 1));
}

void BmpReader::ReadRows() {
    const qint64 Stride = (qint64(mSize.width()) * mDepth + 31) / 32 * 4;
    for (int Y = 0; Y < mSize.height(); ++Y) {
        const ByteView Row(mBytes.Part(mPixels + Y * Stride, Stride));
        QRgb* To = Line(Y);
        for (int X = 0; X < mSize.width(); ++X) To[X] = Pixel(Row, X);
    }
}

int BmpReader::RoomFor(int Count) const {
    return std::min(Count, std::max(mSize.width() - mColumn, 0));
}

void BmpReader::Run(int Count) {
    const ByteView Code(mBytes.Part(mAt - 1, 3));
    QRgb* To = Line(mRow) + mColumn;
    const int Room = RoomFor(Count);
    for (int I = 0; I < Room; ++I) To[I] = Pixel(Code, mDepth == 4 ? I % 2 : 0);
    mColumn += Room;
    if (mDepth == 24) mAt += 2;
}

void BmpReader::Copy(int Count) {
    const int Length = (Count * mDepth + 7) / 8, Room = RoomFor(Count);
    const ByteView Codes(mBytes.Part(mAt, Length));
    QRgb* To = Line(mRow) + mColumn;
    for (int I = 0; I < Room; ++I) To[I] = Pixel(Codes, I);
    mColumn += Room;
    mAt += Length + (Length & 1);
}

// A code that follows a zero. False: the picture is at its end.
bool BmpReader::Escape(int Code) {
    enum { EndOfRow = 0, EndOfPicture = 1, Jump = 2 };
    if (Code == EndOfPicture) return false;
    if (Code > Jump) {
        Copy(Code);
    } else if (Code == Jump) {
        mColumn = std::min(mColumn + mBytes.U8(mAt), mSize.width());
        mRow += mBytes.U8(mAt + 1);
        mAt += 2;
    } else {
        mColumn = 0;
        ++mRow;
    }
    return mRow < mSize.height();
}

// Pixels that are jumped over have the first colour.
void BmpReader::ReadPackedRows() {
    mPicture.fill(Colour(0));
    for (mAt = mPixels; mBytes.Has(mAt, 2);) {
        const int Count = mBytes.U8(mAt), Code = mBytes.U8(mAt + 1);
        mAt += 2;
        if (Count > 0) Run(Count);
        if (Count == 0 && !Escape(Code)) return;
    }
}

DecodedPicture BmpReader::Decode() {
    const QByteArray File = Carried();
    if (LooksLikeJpeg(File)) return DecodeJpeg({File, "jpeg", mSource.Needed});
    if (LooksLikePng(File)) return DecodeByQt({File, "png", mSource.Needed});
    const bool Mirrored = mHeader > OldHeader && mBytes.I32(InfoAt + 4) < 0;
    if (mSize.isEmpty() || Mirrored || !DepthFits()) ThrowDamaged();
    const DecodeBudget Budget(mSize, PixelCount(mSize) * 4 + mBytes.Size());
    CheckIsWhole(mSource);
    ReadPalette();
    ReadMasks();
    mPicture = QImage(mSize, QImage::Format_ARGB32);
    if (mPicture.isNull()) ThrowTooLarge(mSize);
    IsPacked() ? ReadPackedRows() : ReadRows();
    if (mChannels[3].IsEmpty()) mPicture.reinterpretAsFormat(QImage::Format_RGB32);
    MakeOpaqueIfAllClear(mPicture);
    return {ToScreenColours(std::move(mPicture), Profile()), mSize};
}

}  // namespace

DecodedPicture DecodeBmp(const PictureSource& Source) {
    return BmpReader(Source).Decode();
}

}  // namespace neb
