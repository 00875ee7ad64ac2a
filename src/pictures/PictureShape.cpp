// Each format tells its size in its header, and which way up it is in blocks that stand anywhere in
// the file: they are put together into a small file of the same format, without pixels, for what
// knows how to read them.
#include "pictures/PictureShape.h"

#include <algorithm>

#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/PictureSniff.h"
#include "pictures/formats/TiffTags.h"
#include "pictures/notes/JpegMarks.h"
#include "pictures/notes/JpegParts.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr qint64 HeadBytes = 4096;
// No block that says which way up a picture is comes near.
constexpr qint64 LongestBlock = 1 << 20;

struct Told {
    QSize Stored;
    QByteArray Notes;  // the small file; empty where the format has none
};

int Side(qint64 Length) {
    return Length > 0 && Length <= LongestSide ? static_cast<int>(Length) : 0;
}

QSize Sides(qint64 Width, qint64 Height) {
    return {Side(Width), Side(Height)};
}

bool IsOneOf(QByteArrayView Name, std::initializer_list<const char*> Names) {
    return std::ranges::any_of(Names, [&](const char* Each) { return Name == Each; });
}

bool SaysWhichWayUp(int Marker, const QByteArray& Content) {
    return Marker == ExifMarker && (Content.startsWith(ExifMark) || Content.startsWith(XmpMark));
}

Told AskJpeg(FilePieces& File) {
    using namespace jpeg;
    Told Is{{}, "\xFF\xD8"};
    for (qint64 At = 2;;) {
        const QByteArray Start = File.Piece(At, 4 + XmpMark.size());
        const ByteView Part(Start);
        const int Marker = Part.U8(1), Length = Part.U16(2, true);
        if (Part.U16(0) == 0xFFFF) {
            ++At;
            continue;
        }
        if (Part.U8(0) != 0xFF || Marker == StartOfScan || Length < 2) return Is;
        if (IsFrame(Marker) && Is.Stored.isEmpty() && Part.Has(0, 9))
            Is.Stored = Sides(Part.U16(7, true), Part.U16(5, true));
        if (SaysWhichWayUp(Marker, Start.mid(4))) Is.Notes += File.Piece(At, 2 + Length);
        At += 2 + Length;
    }
}

// What is written behind the pixels is looked for, too.
Told AskPng(FilePieces& File) {
    const QByteArray Head = File.Piece(0, 24);
    const ByteView View(Head);
    if (!View.Is(12, "IHDR")) return {};
    Told Is{Sides(View.U32(16, true), View.U32(20, true)), Head.left(8)};
    for (qint64 At = 8;;) {
        const QByteArray Chunk = File.Piece(At, 8);
        const qint64 Length = ByteView(Chunk).U32(0, true);
        const QByteArray Name = Chunk.mid(4);
        if (Chunk.size() < 8 || Name == "IEND") return Is;
        if (Length <= LongestBlock && IsOneOf(Name, {"eXIf", "tEXt", "zTXt", "iTXt"}))
            Is.Notes += File.Piece(At, 12 + Length);
        At += 12 + Length;
    }
}

void PutNumber(QByteArray& Bytes, qint64 At, qint64 Number, bool Big) {
    const auto Value = static_cast<quint32>(Number);
    if (!ByteView(Bytes).Has(At, 4)) return;
    Big ? qToBigEndian(Value, Bytes.data() + At) : qToLittleEndian(Value, Bytes.data() + At);
}

// What an entry of the directory points to, behind the directory.
void BringAlong(FilePieces& File, QByteArray& Small, qint64 Entry, bool Big) {
    const ByteView View(Small);
    const qint64 Length = View.U32(Entry + 4, Big);
    if (Length > LongestBlock) return;
    const QByteArray Bytes = File.Piece(View.U32(Entry + 8, Big), Length);
    PutNumber(Small, Entry + 8, Small.size(), Big);
    Small += Bytes;
}

// One directory, and of what its entries point to the XMP packet alone.
Told AskTiff(FilePieces& File) {
    constexpr quint16 Width = 256, Height = 257, Packet = 700;
    constexpr qint64 Directory = 8, EntryLength = 12;
    QByteArray Small = File.Piece(0, Directory);
    const bool Big = Small.startsWith("MM");
    const qint64 At = ByteView(Small).U32(4, Big);
    PutNumber(Small, 4, Directory, Big);
    Small += File.Piece(At, 2);
    const qint64 End = Small.size() + ByteView(Small).U16(Directory, Big) * EntryLength;
    Small += File.Piece(At + 2, End - Small.size());
    for (qint64 Entry = Directory + 2; Entry < End; Entry += EntryLength)
        if (ByteView(Small).U16(Entry, Big) == Packet) {
            BringAlong(File, Small, Entry, Big);
            break;
        }
    const TiffTags Tags(Small);
    return {Sides(Tags.Value(Width).value_or(0), Tags.Value(Height).value_or(0)), Small};
}

// The resources stand behind the palette.
Told AskPsd(FilePieces& File) {
    constexpr qint64 Palette = 26;
    const QByteArray Start = File.Piece(0, HeadBytes);
    const ByteView Head(Start);
    const qint64 Resources = Palette + 4 + Head.U32(Palette, true);
    const QByteArray Length = File.Piece(Resources, 4);
    const qint64 Most = 4 * LongestBlock;
    const qint64 End = std::min(Resources + 4 + ByteView(Length).U32(0, true), Most);
    return {Sides(Head.U32(18, true), Head.U32(14, true)), File.Piece(0, End)};
}

Told AskGif(FilePieces& File) {
    const QByteArray Head = File.Piece(0, HeadBytes);
    return {Sides(ByteView(Head).U16(6), ByteView(Head).U16(8)), Head};
}

QSize WebpSize(const ByteView& Head) {
    constexpr int Bits14 = 0x3FFF, Bits24 = 0xFFFFFF;
    if (Head.Is(12, "VP8X")) return Sides((Head.U32(24) & Bits24) + 1, (Head.U32(26) >> 8) + 1);
    if (Head.Is(12, "VP8 ") && Head.Is(23, "\x9D\x01\x2A"))
        return Sides(Head.U16(26) & Bits14, Head.U16(28) & Bits14);
    if (!Head.Is(12, "VP8L") || Head.U8(20) != 0x2F) return {};
    return Sides((Head.U32(21) & Bits14) + 1, (Head.U32(21) >> 14 & Bits14) + 1);
}

Told AskWebp(FilePieces& File) {
    const QByteArray Head = File.Piece(0, 64);
    Told Is{WebpSize(ByteView(Head)), Head.left(12)};
    for (qint64 At = 12;;) {
        const QByteArray Chunk = File.Piece(At, 8);
        const qint64 Length = ByteView(Chunk).U32(4);
        if (Chunk.size() < 8) return Is;
        if (Length <= LongestBlock && IsOneOf(Chunk.left(4), {"EXIF", "XMP "}))
            Is.Notes += File.Piece(At, 8 + Length + (Length & 1));
        At += 8 + Length + (Length & 1);
    }
}

// The stream of code begins with its size.
QSize CodeSize(FilePieces& File, qint64 At) {
    const QByteArray Start = File.Piece(At, 24);
    const ByteView Code(Start);
    if (!Code.Is(0, "\xFF\x4F\xFF\x51") || !Code.Has(0, 24)) return {};
    return Sides(qint64(Code.U32(8, true)) - Code.U32(16, true),
                 qint64(Code.U32(12, true)) - Code.U32(20, true));
}

Told AskJp2(FilePieces& File) {
    if (File.Piece(0, 1) == "\xFF") return {CodeSize(File, 0), {}};
    Told Is{{}, File.Piece(0, 12)};
    for (qint64 At = 12;;) {
        const QByteArray Box = File.Piece(At, 16);
        const ByteView View(Box);
        const bool Long = View.U32(0, true) == 1;
        const qint64 Header = Long ? 16 : 8;
        const qint64 Length = View.U32(Long ? 12 : 0, true);
        if (View.Is(4, "jp2c") && Is.Stored.isEmpty()) Is.Stored = CodeSize(File, At + Header);
        if (Length < Header || (Long && View.U32(8, true))) return Is;
        if (View.Is(4, "uuid") && Length <= LongestBlock) Is.Notes += File.Piece(At, Length);
        At += Length;
    }
}

Told AskBmp(FilePieces& File) {
    constexpr qint64 ClassicHeader = 40;
    constexpr quint32 JpegInside = 4, PngInside = 5;
    const QByteArray Head = File.Piece(0, HeadBytes);
    const BmpHeader Layout = BmpLayout(ByteView(Head));
    const bool Carries = Layout.Packing == JpegInside || Layout.Packing == PngInside;
    if (Carries && ByteView(Head).U32(14) >= ClassicHeader) {
        FilePieces Carried = File.From(Layout.Pixels);
        const QByteArray Start = Carried.Piece(0, HeadBytes);
        if (LooksLikeJpeg(Start)) return AskJpeg(Carried);
        if (LooksLikePng(Start)) return AskPng(Carried);
    }
    const bool Mirrored = ByteView(Head).U32(14) > 12 && ByteView(Head).I32(18) < 0;
    return {Mirrored ? QSize() : Sides(Layout.Size.width(), Layout.Size.height()), {}};
}

Told AskPcx(FilePieces& File) {
    const QByteArray Head = File.Piece(0, HeadBytes);
    const ByteView View(Head);
    return {Sides(View.U16(8) - View.U16(4) + 1, View.U16(10) - View.U16(6) + 1), {}};
}

Told AskTga(FilePieces& File) {
    const QByteArray Head = File.Piece(0, HeadBytes);
    return {Sides(ByteView(Head).U16(12), ByteView(Head).U16(14)), {}};
}

Told AskWbmp(FilePieces& File) {
    const QByteArray Head = File.Piece(0, HeadBytes);
    const QSize Size = WbmpSize(ByteView(Head));
    return {Sides(Size.width(), Size.height()), {}};
}

struct ShapeRow {
    PictureFormat Format;
    Told (*Ask)(FilePieces&);
    int Header;  // bytes, up to the sides
};
using enum PictureFormat;
constexpr ShapeRow Shapes[] = {
    {Jpeg, AskJpeg, 2}, {Png, AskPng, 24},   {Tiff, AskTiff, 8}, {Psd, AskPsd, 26},
    {Gif, AskGif, 10},  {Webp, AskWebp, 30}, {Jp2, AskJp2, 12},  {Bmp, AskBmp, 26},
    {Pcx, AskPcx, 12},  {Wbmp, AskWbmp, 5},  {Tga, AskTga, 18},
};

QByteArray PieceOfFile(HostReader& File, qint64 At, qint64 Length) {
    QByteArray Piece(Length, Qt::Uninitialized);
    File.Seek(At);
    Piece.resize(File.Read(Piece.data(), Length));
    return Piece;
}

}  // namespace

QSize ShapeOf(FilePieces& File) {
    const QByteArray Head = File.Piece(0, HeadBytes);
    const auto Format = FormatOf(Head);
    if (!Format) return {};
    const auto* const Row = std::ranges::find(Shapes, *Format, &ShapeRow::Format);
    if (Row == std::end(Shapes) || Head.size() < Row->Header) return {};
    const Told Is = Row->Ask(File);
    if (Is.Stored.isEmpty()) return {};
    return Is.Notes.isEmpty() ? Is.Stored : UprightSize(Is.Stored, OrientationOf(Is.Notes));
}

QSize PictureShape(const QString& Path) {
    try {
        HostReader File(Path);
        FilePieces Pieces([&](qint64 At, qint64 Length) { return PieceOfFile(File, At, Length); });
        return ShapeOf(Pieces);
    } catch (const Fault&) {
        return {};
    }
}

}  // namespace neb
