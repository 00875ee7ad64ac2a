// Whether a file has all the pixels that its header promises, for the formats whose readers fill
// up with black or white and say nothing.
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/TiffTags.h"

namespace neb {
namespace {

constexpr qint64 FileHeader = 14;
// Beyond any picture, and small enough to multiply with.
constexpr qint64 MostSide = 1 << 24;

// Follows run-length packed pixels to their end mark. A file that leaves the mark away but
// reaches the last row is whole as well.
bool PackedBmpIsWhole(const ByteView& Bytes, const BmpHeader& Header) {
    enum { EndOfRow = 0, EndOfPicture = 1, Jump = 2 };
    const int ColourBytes = std::max(Header.Depth / 8, 1);
    qint64 Row = 0, Column = 0;
    for (qint64 At = Header.Pixels; Bytes.Has(At, 2);) {
        const int Count = Bytes.U8(At), Code = Bytes.U8(At + 1);
        At += 2;
        if (Count > 0) {
            At += ColourBytes - 1;
            Column += Count;
        } else if (Code == EndOfRow) {
            ++Row;
            Column = 0;
        } else if (Code == EndOfPicture) {
            return true;
        } else if (Code == Jump) {
            Column += Bytes.U8(At);
            Row += Bytes.U8(At + 1);
            At += 2;
        } else {
            const int Length = (Code * Header.Depth + 7) / 8;
            At += Length + (Length & 1);
            Column += Code;
        }
    }
    return Row >= Header.Size.height() ||
           (Row == Header.Size.height() - 1 && Column >= Header.Size.width());
}

bool BmpIsWhole(const ByteView& Bytes) {
    const BmpHeader Header = BmpLayout(Bytes);
    constexpr quint32 Packed8 = 1, Packed4 = 2, Packed24 = 4;
    if (Header.Packing == Packed8 || Header.Packing == Packed4 || Header.Packing == Packed24)
        return PackedBmpIsWhole(Bytes, Header);
    const qint64 Stride = (qint64(Header.Size.width()) * Header.Depth + 31) / 32 * 4;
    return Bytes.Has(Header.Pixels, Stride * Header.Size.height());
}

bool WbmpIsWhole(const ByteView& Bytes) {
    return Bytes.Size() >= WbmpNeeds(Bytes);
}

// The size of a Photo CD that every disc has and that we read.
bool PcdIsWhole(const ByteView& Bytes) {
    return Bytes.Size() >= 384 * 2048;
}

// The length of packed TGA pixels is found only by following the packets.
bool PackedTgaIsWhole(const ByteView& Bytes, qint64 At, qint64 Pixels, int PixelLength) {
    while (Pixels > 0 && Bytes.Has(At, 1)) {
        const int Packet = Bytes.U8(At), Count = (Packet & 0x7F) + 1;
        At += 1 + qint64(Packet & 0x80 ? 1 : Count) * PixelLength;
        Pixels -= Count;
    }
    return Pixels <= 0 && At <= Bytes.Size();
}

bool TgaIsWhole(const ByteView& Bytes) {
    const int PixelLength = (Bytes.U8(16) + 7) / 8;
    const qint64 Map = Bytes.U8(1) ? Bytes.U16(5) * qint64((Bytes.U8(7) + 7) / 8) : 0;
    const qint64 Start = 18 + Bytes.U8(0) + Map;
    const qint64 Width = Bytes.U16(12), Pixels = Width * Bytes.U16(14);
    if (Bytes.U8(2) >= 9) return PackedTgaIsWhole(Bytes, Start, Pixels, PixelLength);
    if (Bytes.U8(16) == 1) return Bytes.Has(Start, (Width + 7) / 8 * Bytes.U16(14));
    return Bytes.Has(Start, Pixels * PixelLength);
}

bool PcxIsWhole(const ByteView& Bytes) {
    const qint64 Rows = Bytes.U16(10) - Bytes.U16(6) + 1;
    qint64 Left = Rows * Bytes.U8(65) * Bytes.U16(66);
    qint64 At = 128;
    if (Bytes.U8(2) == 0) return Bytes.Has(At, Left);
    while (Left > 0 && Bytes.Has(At, 1)) {
        const int Byte = Bytes.U8(At);
        const bool Run = Byte >= 0xC0;
        Left -= Run ? Byte & 0x3F : 1;
        At += Run ? 2 : 1;
    }
    // The last rows' filling is left away by some programs.
    return Left < Bytes.U16(66) && At <= Bytes.Size();
}

// Classic files alone; the large ones are rare and their reader complains by itself.
bool TiffIsWhole(const ByteView& Bytes) {
    const TiffTags Tags(Bytes.Part(0, Bytes.Size()));
    return !Tags.Valid() || Tags.IsWhole();
}

bool PngIsWhole(const ByteView& Bytes) {
    return PngChunk(Bytes, "IEND").has_value();
}

// The rows of a packed picture have their lengths in front.
qint64 PackedPsdLength(const ByteView& Bytes, qint64 At, qint64 Rows, int CountWidth) {
    qint64 Length = Rows * CountWidth;
    for (qint64 I = 0; I < Rows && Bytes.Has(At, CountWidth); ++I, At += CountWidth)
        Length += CountWidth == 2 ? Bytes.U16(At, true) : Bytes.U32(At, true);
    return Length;
}

bool PsdIsWhole(const ByteView& Bytes) {
    constexpr int Packed = 1;
    const bool Large = Bytes.U16(4, true) == 2;
    qint64 At = 26;
    At += 4 + qint64(Bytes.U32(At, true));  // palette
    At += 4 + qint64(Bytes.U32(At, true));  // resources
    if (Large) At += 4;                     // upper half of the length of the layers
    At += 4 + qint64(Bytes.U32(At, true));
    const qint64 Rows = qint64(Bytes.U16(12, true)) * Bytes.U32(14, true);
    const qint64 RowLength = (qint64(Bytes.U32(18, true)) * Bytes.U16(22, true) + 7) / 8;
    if (std::max(Rows, RowLength) > LargestPictureFile) return false;
    const bool IsPacked = Bytes.U16(At, true) == Packed;
    return Bytes.Has(At, 2) &&
           Bytes.Has(At + 2, IsPacked ? PackedPsdLength(Bytes, At + 2, Rows, Large ? 4 : 2)
                                      : Rows * RowLength);
}

struct CheckRow {
    const char* Format;
    bool (*IsWhole)(const ByteView&);
};
constexpr CheckRow Checks[] = {{"bmp", BmpIsWhole},   {"wbmp", WbmpIsWhole}, {"png", PngIsWhole},
                               {"TIFF", TiffIsWhole}, {"PSD", PsdIsWhole},   {"PCD", PcdIsWhole},
                               {"TGA", TgaIsWhole},   {"PCX", PcxIsWhole},   {"gif", GifIsWhole},
                               {"webp", WebpIsWhole}};

}  // namespace

BmpHeader BmpLayout(const ByteView& Bytes) {
    const bool Old = Bytes.U32(FileHeader) == 12;
    const auto Side = [](qint64 Length) {
        return static_cast<int>(std::min<qint64>(std::abs(Length), MostSide));
    };
    const QSize Size =
        Old ? QSize(Bytes.U16(18), Bytes.U16(20)) : QSize(Side(Bytes.I32(18)), Side(Bytes.I32(22)));
    return {Size, Bytes.U16(Old ? 24 : 28), Old ? 0 : Bytes.U32(30), Bytes.U32(10)};
}

void CheckIsWhole(const PictureSource& Source) {
    for (const CheckRow& Row : Checks)
        if (qstricmp(Row.Format, Source.Format) == 0 && !Row.IsWhole(Source.Bytes))
            ThrowEndsEarly();
}

}  // namespace neb
