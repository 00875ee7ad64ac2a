// TIFF of up to eight bits a sample by libtiff itself, which knows every kind of it: whites as
// zero, subsampled colours, old ways of JPEG, tiles, separate planes. What is finer, and what is
// in colours of its own, goes to Magick++. Complaints come to the handle that they are about: the
// library's common way of complaining belongs to Magick++, which would take them for its own.
#include <tiffio.h>

#include <memory>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/TiffTags.h"

namespace neb {
namespace {

constexpr tmsize_t LargestPiece = 400 << 20;

struct Stream {
    const QByteArray& Bytes;
    toff_t At = 0;
    QByteArray Complaint;  // the first one
};

Stream& StreamOf(thandle_t Handle) {
    return *static_cast<Stream*>(Handle);
}

tmsize_t ReadBytes(thandle_t Handle, void* To, tmsize_t Length) {
    Stream& From = StreamOf(Handle);
    const auto Size = static_cast<toff_t>(From.Bytes.size());
    if (From.At >= Size || Length <= 0) return 0;
    const auto Count = std::min(static_cast<toff_t>(Length), Size - From.At);
    memcpy(To, From.Bytes.constData() + From.At, Count);
    From.At += Count;
    return static_cast<tmsize_t>(Count);
}

tmsize_t WriteNothing(thandle_t, void*, tmsize_t) {
    return 0;
}

toff_t Seek(thandle_t Handle, toff_t Offset, int From) {
    Stream& In = StreamOf(Handle);
    if (From == SEEK_CUR) Offset += In.At;
    if (From == SEEK_END) Offset += static_cast<toff_t>(In.Bytes.size());
    return In.At = Offset;
}

int Close(thandle_t) {
    return 0;
}

toff_t SizeOf(thandle_t Handle) {
    return static_cast<toff_t>(StreamOf(Handle).Bytes.size());
}

// The library only reads what is mapped. Without, it refuses tiles that are not packed.
int Map(thandle_t Handle, void** Base, toff_t* Length) {
    const QByteArray& Bytes = StreamOf(Handle).Bytes;
    *Base = const_cast<char*>(Bytes.constData());
    *Length = static_cast<toff_t>(Bytes.size());
    return 1;
}

void Unmap(thandle_t, void*, toff_t) {}

int KeepComplaint(TIFF*, void* Where, const char*, const char* Text, va_list) {
    QByteArray& Complaint = static_cast<Stream*>(Where)->Complaint;
    if (Complaint.isEmpty()) Complaint = Text;
    return 1;
}

// Odd tags and the like, which no one sees.
int DropWarning(TIFF*, void*, const char*, const char*, va_list) {
    return 1;
}

struct CloseTiff {
    void operator()(TIFF* File) const { TIFFClose(File); }
};
struct FreeOptions {
    void operator()(TIFFOpenOptions* Options) const { TIFFOpenOptionsFree(Options); }
};
using TiffHandle = std::unique_ptr<TIFF, CloseTiff>;

TiffHandle Open(Stream& From) {
    const std::unique_ptr<TIFFOpenOptions, FreeOptions> Options(TIFFOpenOptionsAlloc());
    TIFFOpenOptionsSetMaxSingleMemAlloc(Options.get(), LargestPiece);
    TIFFOpenOptionsSetErrorHandlerExtR(Options.get(), KeepComplaint, &From);
    TIFFOpenOptionsSetWarningHandlerExtR(Options.get(), DropWarning, &From);
    return TiffHandle(TIFFClientOpenExt("", "rM", &From, ReadBytes, WriteNothing, Seek, Close,
                                        SizeOf, Map, Unmap, Options.get()));
}

class TiffReader {
  public:
    explicit TiffReader(const PictureSource& Source);
    // Whether this reader is the right one for the picture.
    bool Knows();
    DecodedPicture Decode();

  private:
    struct Piece {
        quint32 Width, Height;
        qint64 Bytes;
    };
    quint32 Number(quint32 Tag) const;
    quint32 Short(quint32 Tag) const;
    bool IsCmyk() const { return Short(TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_SEPARATED; }
    bool IsGrey() const { return Short(TIFFTAG_PHOTOMETRIC) <= PHOTOMETRIC_MINISBLACK; }
    bool IsForgotten() const;
    bool IsSeparate() const { return Short(TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE; }
    bool CanBeColours();
    bool CanBeInks() const;
    quint32 ExtraSample() const;
    void NameForgottenAlpha();
    QImage::Format PixelFormat() const;
    QSize Size() const;
    QByteArray Profile() const;
    Piece PieceSize() const;
    qint64 SamplesAPiece() const { return IsSeparate() ? 1 : Short(TIFFTAG_SAMPLESPERPIXEL); }
    bool ReadPiece(QByteArray& To, QPoint At, quint16 Plane);
    void PutInks(const QByteArray& From, const Piece& Of, QRect Where, int Plane);
    void ReadInkPlane(const Piece& Of, int Plane);
    QImage ReadColours();
    QImage ReadInks();
    [[noreturn]] void ThrowComplaint() const;

    const PictureSource& mSource;
    Stream mStream;
    TiffHandle mFile;
    TiffTags mTags;
    QImage mInks;
};

TiffReader::TiffReader(const PictureSource& Source)
    : mSource(Source), mStream{Source.Bytes}, mFile(Open(mStream)), mTags(Source.Bytes) {}

quint32 TiffReader::Number(quint32 Tag) const {
    quint32 Value = 0;
    TIFFGetFieldDefaulted(mFile.get(), Tag, &Value);
    return Value;
}

quint32 TiffReader::Short(quint32 Tag) const {
    quint16 Value = 0;
    TIFFGetFieldDefaulted(mFile.get(), Tag, &Value);
    return Value;
}

bool TiffReader::CanBeColours() {
    constexpr quint32 Known[] = {PHOTOMETRIC_MINISWHITE, PHOTOMETRIC_MINISBLACK, PHOTOMETRIC_RGB,
                                 PHOTOMETRIC_PALETTE, PHOTOMETRIC_YCBCR};
    char Reason[1024] = "";
    TIFFRGBAImage Image;
    if (std::find(std::begin(Known), std::end(Known), Short(TIFFTAG_PHOTOMETRIC)) ==
            std::end(Known) ||
        !TIFFRGBAImageBegin(&Image, mFile.get(), 1, Reason))
        return false;
    TIFFRGBAImageEnd(&Image);
    return true;
}

bool TiffReader::CanBeInks() const {
    return Short(TIFFTAG_BITSPERSAMPLE) == 8 && Short(TIFFTAG_INKSET) == INKSET_CMYK &&
           Short(TIFFTAG_SAMPLESPERPIXEL) >= 4;
}

// With more than one sample a pixel, the library passes over the alpha beside a palette, over white
// being zero where the samples lie apart, and over parts of tiles of greys at the edge.
bool TiffReader::IsForgotten() const {
    if (Short(TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_PALETTE) return true;
    const bool White = Short(TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_MINISWHITE;
    return IsSeparate() ? White : IsGrey() && TIFFIsTiled(mFile.get());
}

bool TiffReader::Knows() {
    if (!mFile || Short(TIFFTAG_BITSPERSAMPLE) > 8) return false;
    const quint32 Kind = Short(TIFFTAG_SAMPLEFORMAT);
    if (Kind != SAMPLEFORMAT_UINT && Kind != SAMPLEFORMAT_VOID) return false;
    if (Short(TIFFTAG_SAMPLESPERPIXEL) > 1 && IsForgotten()) return false;
    return IsCmyk() ? CanBeInks() : CanBeColours();
}

QSize TiffReader::Size() const {
    constexpr quint32 Most = 1 << 30;
    return {static_cast<int>(std::min(Number(TIFFTAG_IMAGEWIDTH), Most)),
            static_cast<int>(std::min(Number(TIFFTAG_IMAGELENGTH), Most))};
}

QByteArray TiffReader::Profile() const {
    quint32 Length = 0;
    void* Bytes = nullptr;
    if (!TIFFGetField(mFile.get(), TIFFTAG_ICCPROFILE, &Length, &Bytes)) return {};
    return {static_cast<const char*>(Bytes), static_cast<qsizetype>(Length)};
}

// What the first sample beyond the colours is. Where the file says that it does not tell, alpha is
// not assumed.
quint32 TiffReader::ExtraSample() const {
    quint16 Count = 0;
    quint16* Kinds = nullptr;
    TIFFGetFieldDefaulted(mFile.get(), TIFFTAG_EXTRASAMPLES, &Count, &Kinds);
    return Count > 0 ? Kinds[0] : EXTRASAMPLE_UNSPECIFIED;
}

// A fourth sample of which nothing is said at all is hardly ever anything but alpha. The library
// fills in that its meaning is not known.
void TiffReader::NameForgottenAlpha() {
    const bool Four = Short(TIFFTAG_SAMPLESPERPIXEL) == 4;
    if (!Four || Short(TIFFTAG_PHOTOMETRIC) != PHOTOMETRIC_RGB || !mTags.Valid() ||
        mTags.Value(TIFFTAG_EXTRASAMPLES))
        return;
    const quint16 Alpha = EXTRASAMPLE_UNASSALPHA;
    TIFFSetField(mFile.get(), TIFFTAG_EXTRASAMPLES, 1, &Alpha);
}

// The library leaves greys as they are where it makes colours smaller by their alpha.
QImage::Format TiffReader::PixelFormat() const {
    const quint32 Extra = ExtraSample();
    if (Extra == EXTRASAMPLE_UNSPECIFIED) return QImage::Format_RGB32;
    const bool AsTheyAre = IsGrey() && !IsSeparate() && Extra == EXTRASAMPLE_UNASSALPHA;
    return AsTheyAre ? QImage::Format_ARGB32 : QImage::Format_ARGB32_Premultiplied;
}

void TiffReader::ThrowComplaint() const {
    for (const char* Sign : {"Read error", "Not enough data", "at scanline", "end of file"})
        if (mStream.Complaint.contains(Sign)) ThrowEndsEarly();
    ThrowDamaged();
}

// The library gives four bytes a pixel, red lowest.
QImage TiffReader::ReadColours() {
    QImage Picture(Size(), PixelFormat());
    if (Picture.isNull()) ThrowTooLarge(Size());
    auto* Pixels = reinterpret_cast<quint32*>(Picture.bits());
    if (!TIFFReadRGBAImageOriented(mFile.get(), static_cast<quint32>(Picture.width()),
                                   static_cast<quint32>(Picture.height()), Pixels,
                                   ORIENTATION_TOPLEFT, 1))
        ThrowComplaint();
    const bool Alpha = Picture.hasAlphaChannel();
    std::for_each(Pixels, Pixels + PixelCount(Picture.size()), [Alpha](quint32& P) {
        P = qRgba(TIFFGetR(P), TIFFGetG(P), TIFFGetB(P), Alpha ? TIFFGetA(P) : 255);
    });
    return ToScreenColours(std::move(Picture), Profile());
}

TiffReader::Piece TiffReader::PieceSize() const {
    TIFF* File = mFile.get();
    if (TIFFIsTiled(File))
        return {Number(TIFFTAG_TILEWIDTH), Number(TIFFTAG_TILELENGTH),
                static_cast<qint64>(TIFFTileSize64(File))};
    const quint32 Height = Number(TIFFTAG_IMAGELENGTH);
    return {Number(TIFFTAG_IMAGEWIDTH), std::clamp(Number(TIFFTAG_ROWSPERSTRIP), 1U, Height),
            static_cast<qint64>(TIFFStripSize64(File))};
}

bool TiffReader::ReadPiece(QByteArray& To, QPoint At, quint16 Plane) {
    TIFF* File = mFile.get();
    const auto X = static_cast<quint32>(At.x()), Y = static_cast<quint32>(At.y());
    if (TIFFIsTiled(File))
        return TIFFReadEncodedTile(File, TIFFComputeTile(File, X, Y, 0, Plane), To.data(),
                                   To.size()) >= 0;
    return TIFFReadEncodedStrip(File, TIFFComputeStrip(File, Y, Plane), To.data(), To.size()) >= 0;
}

void TiffReader::PutInks(const QByteArray& From, const Piece& Of, QRect Where, int Plane) {
    const int Samples = static_cast<int>(SamplesAPiece()), Inks = std::min(Samples, 4);
    for (int Y = 0; Y < Where.height(); ++Y) {
        const char* Pixel = From.constData() + qint64(Y) * Of.Width * Samples;
        uchar* To = mInks.scanLine(Where.y() + Y) + qint64(Where.x()) * 4 + Plane;
        for (int X = 0; X < Where.width(); ++X, Pixel += Samples, To += 4)
            memcpy(To, Pixel, static_cast<size_t>(Inks));
    }
}

// Samples beyond the four inks are other inks or masks, which a screen does not show.
void TiffReader::ReadInkPlane(const Piece& Of, int Plane) {
    QByteArray Bytes(Of.Bytes, '\0');
    const int Width = static_cast<int>(Of.Width), Height = static_cast<int>(Of.Height);
    for (int Y = 0; Y < mInks.height(); Y += Height)
        for (int X = 0; X < mInks.width(); X += Width) {
            if (!ReadPiece(Bytes, {X, Y}, static_cast<quint16>(Plane))) ThrowComplaint();
            const QRect Where(X, Y, Width, Height);
            PutInks(Bytes, Of, Where & mInks.rect(), Plane);
        }
}

QImage TiffReader::ReadInks() {
    const Piece Of = PieceSize();
    if (Of.Width == 0 || Of.Height == 0 || Of.Width > LongestSide || Of.Height > LongestSide ||
        Of.Bytes < qint64(Of.Width) * Of.Height * SamplesAPiece())
        ThrowDamaged();
    mInks = QImage(Size(), QImage::Format_RGB32);
    if (mInks.isNull()) ThrowTooLarge(Size());
    const int Planes = IsSeparate() ? 4 : 1;
    for (int Plane = 0; Plane < Planes; ++Plane) ReadInkPlane(Of, Plane);
    InksToScreenColours(mInks, Profile());
    return std::move(mInks);
}

DecodedPicture TiffReader::Decode() {
    const QSize Stored = Size();
    if (Stored.isEmpty()) ThrowDamaged();
    const qint64 Most = PieceSize().Bytes;
    if (Most > LargestPiece) ThrowTooLarge(Stored);
    const DecodeBudget Budget(
        Stored, PixelCount(Stored) * 4 + Most * (IsSeparate() ? 4 : 1) + mSource.Bytes.size());
    // Whether the pixels are all there shows when they are read.
    if (mTags.Valid() && !mTags.ValuesAreInside()) ThrowEndsEarly();
    NameForgottenAlpha();
    const quint32 Turn = Short(TIFFTAG_ORIENTATION);
    TIFFSetField(mFile.get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    const bool Turned = Turn > 1 && Turn <= 8;
    const int Orientation = Turned ? static_cast<int>(Turn) : OrientationOf(mSource.Bytes);
    const QImage Picture = Upright(IsCmyk() ? ReadInks() : ReadColours(), Orientation);
    return {Picture, Picture.size()};
}

}  // namespace

DecodedPicture DecodeTiff(const PictureSource& Source) {
    {
        TiffReader Reader(Source);
        if (Reader.Knows()) return Reader.Decode();
    }
    return DecodeByMagick(Source);
}

}  // namespace neb
