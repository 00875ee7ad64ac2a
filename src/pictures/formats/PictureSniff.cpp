// How each format is known by its content.
#include "pictures/formats/PictureSniff.h"

#include "pictures/formats/PictureFormats.h"
#include "support/MediaTypes.h"

namespace neb {
namespace {

// A number of seven bits a byte, as WBMP headers have them; moves At behind it. At most four
// bytes count.
quint32 SevenBitNumber(const ByteView& Bytes, qint64& At) {
    quint32 Number = 0;
    for (int Digits = 0; Digits < 4; ++Digits) {
        const quint8 Digit = Bytes.U8(At++);
        Number = Number << 7 | (Digit & 0x7F);
        if (!(Digit & 0x80)) break;
    }
    return Number;
}

struct WbmpHeader {
    quint32 Width, Height;
    qint64 Needs;  // bytes of the whole file
};

WbmpHeader ReadWbmpHeader(const ByteView& Bytes) {
    qint64 At = 2;
    const quint32 Width = SevenBitNumber(Bytes, At);
    const quint32 Height = SevenBitNumber(Bytes, At);
    return {Width, Height, At + qint64((Width + 7) / 8) * Height};
}

bool IsOneOf(int Value, std::initializer_list<int> Values) {
    return std::find(Values.begin(), Values.end(), Value) != Values.end();
}

// Colour-mapped pictures have a map, others may have one that counts for nothing.
bool TgaMapFits(const ByteView& Bytes) {
    const bool HasMap = Bytes.U8(1) == 1;
    const bool NeedsMap = (Bytes.U8(2) & 7) == 1;
    if (!HasMap) return !NeedsMap && Bytes.U8(1) == 0;
    return IsOneOf(Bytes.U8(7), {15, 16, 24, 32}) && (!NeedsMap || Bytes.U16(5) > 0);
}

bool TgaDepthFits(const ByteView& Bytes) {
    const int Kind = Bytes.U8(2) & 7;
    if (Kind == 2) return IsOneOf(Bytes.U8(16), {15, 16, 24, 32});
    const bool Bits = Bytes.U8(2) == 3 && Bytes.U8(16) == 1;
    return Bits || IsOneOf(Bytes.U8(16), {8, 16});
}

}  // namespace

bool LooksLikeJpeg(const ByteView& Bytes) {
    return Bytes.Is(0, "\xFF\xD8\xFF");
}
bool LooksLikePng(const ByteView& Bytes) {
    return Bytes.Is(0, "\x89PNG\r\n\x1A\n");
}
bool LooksLikePsd(const ByteView& Bytes) {
    return Bytes.Is(0, "8BPS");
}
bool LooksLikePcd(const ByteView& Bytes) {
    return Bytes.Is(2048, "PCD_");
}
bool LooksLikeGif(const ByteView& Bytes) {
    return Bytes.Is(0, "GIF8");
}
bool LooksLikeWebp(const ByteView& Bytes) {
    return Bytes.Is(0, "RIFF") && Bytes.Is(8, "WEBP");
}

// The file says first what it is, and behind that what it may be read as: any of them will do.
bool LooksLikeHeic(const ByteView& Bytes) {
    constexpr qint64 FirstBrand = 8, MostBrands = 64;
    if (!Bytes.Is(4, "ftyp")) return false;
    const qint64 End = std::min<qint64>(Bytes.U32(0, true), FirstBrand + MostBrands * 4);
    for (qint64 At = FirstBrand; At < End; At += 4)
        for (const char* Brand : {"heic", "heix", "heim", "heis", "hevc", "hevx", "hevm", "hevs",
                                  "mif1", "mif2", "msf1", "avif", "avis"})
            if (Bytes.Is(At, Brand)) return true;
    return false;
}

bool LooksLikeJp2(const ByteView& Bytes) {
    return Bytes.Is(0, QByteArrayView("\0\0\0\x0CjP  \r\n\x87\n", 12)) ||
           Bytes.Is(0, "\xFF\x4F\xFF\x51");
}

bool LooksLikeTiff(const ByteView& Bytes) {
    return Bytes.Is(0, QByteArrayView("II*\0", 4)) || Bytes.Is(0, QByteArrayView("MM\0*", 4)) ||
           Bytes.Is(0, QByteArrayView("II+\0", 4)) || Bytes.Is(0, QByteArrayView("MM\0+", 4));
}

bool LooksLikeBmp(const ByteView& Bytes) {
    return Bytes.Is(0, "BM") && IsOneOf(Bytes.I32(14), {12, 16, 40, 52, 56, 64, 108, 124});
}

bool LooksLikeEmf(const ByteView& Bytes) {
    return Bytes.U32(0) == 1 && Bytes.Is(40, " EMF");
}

bool LooksLikeWmf(const ByteView& Bytes) {
    if (Bytes.U32(0) == 0x9AC6CDD7) return true;
    return IsOneOf(Bytes.U16(0), {1, 2}) && Bytes.U16(2) == 9 &&
           IsOneOf(Bytes.U16(4), {0x100, 0x300});
}

bool LooksLikePcx(const ByteView& Bytes) {
    return Bytes.U8(0) == 10 && IsOneOf(Bytes.U8(1), {0, 2, 3, 4, 5}) && Bytes.U8(2) <= 1 &&
           IsOneOf(Bytes.U8(3), {1, 2, 4, 8}) && Bytes.U16(8) >= Bytes.U16(4) &&
           Bytes.U16(10) >= Bytes.U16(6);
}

// The format has no mark at all; a header without sense or a file much longer than its picture
// is something else.
bool LooksLikeWbmp(const ByteView& Bytes) {
    if (Bytes.U16(0) != 0 || Bytes.Size() < 5) return false;
    const WbmpHeader Header = ReadWbmpHeader(Bytes);
    return Header.Width > 0 && Header.Height > 0 && Header.Needs <= LargestPictureFile &&
           Bytes.Size() <= Header.Needs + 16;
}

bool LooksLikeTga(const ByteView& Bytes) {
    return Bytes.Size() >= 18 && IsOneOf(Bytes.U8(2), {1, 2, 3, 9, 10, 11}) && Bytes.U16(12) > 0 &&
           Bytes.U16(14) > 0 && (Bytes.U8(17) & 0xC0) == 0 && TgaMapFits(Bytes) &&
           TgaDepthFits(Bytes);
}

std::optional<QByteArrayView> PngChunk(const ByteView& Bytes, QByteArrayView Name) {
    for (qint64 At = 8; Bytes.Has(At, 12); At += 12 + qint64(Bytes.U32(At, true)))
        if (Bytes.Is(At + 4, Name) && Bytes.Has(At + 8, Bytes.U32(At, true) + qint64(4)))
            return Bytes.Part(At + 8, Bytes.U32(At, true));
    return std::nullopt;
}

qint64 WbmpNeeds(const ByteView& Bytes) {
    return ReadWbmpHeader(Bytes).Needs;
}

QSize WbmpSize(const ByteView& Bytes) {
    const WbmpHeader Header = ReadWbmpHeader(Bytes);
    const quint32 Most = LongestSide;
    if (Header.Width > Most || Header.Height > Most) return {};
    return {static_cast<int>(Header.Width), static_cast<int>(Header.Height)};
}

namespace {

struct SniffRow {
    PictureFormat Format;
    bool (*LooksLike)(const ByteView&);
    bool Extra = false;
};

// The formats with the surest marks stand first, those with hardly any last.
constexpr SniffRow Sniffs[] = {
    {PictureFormat::Jpeg, LooksLikeJpeg},       {PictureFormat::Png, LooksLikePng},
    {PictureFormat::Tiff, LooksLikeTiff},       {PictureFormat::Psd, LooksLikePsd},
    {PictureFormat::Emf, LooksLikeEmf},         {PictureFormat::Wmf, LooksLikeWmf},
    {PictureFormat::Pcd, LooksLikePcd},         {PictureFormat::Gif, LooksLikeGif, true},
    {PictureFormat::Webp, LooksLikeWebp, true}, {PictureFormat::Heif, LooksLikeHeic, true},
    {PictureFormat::Jp2, LooksLikeJp2, true},   {PictureFormat::Bmp, LooksLikeBmp},
    {PictureFormat::Pcx, LooksLikePcx},         {PictureFormat::Wbmp, LooksLikeWbmp},
    {PictureFormat::Tga, LooksLikeTga},
};

}  // namespace

std::optional<PictureFormat> FormatOf(const QByteArray& Head) {
    const ByteView Bytes(Head);
    for (const SniffRow& Row : Sniffs)
        if ((!Row.Extra || ExtraFormatsAreOn()) && Row.LooksLike(Bytes)) return Row.Format;
    return std::nullopt;
}

bool LooksLikePicture(const QByteArray& Head) {
    return FormatOf(Head).has_value();
}

}  // namespace neb
