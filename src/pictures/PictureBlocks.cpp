#include "pictures/PictureBlocks.h"

#include "pictures/formats/ByteView.h"
#include "pictures/formats/FileBlocks.h"
#include "pictures/formats/PictureFormats.h"

namespace neb {
namespace {

constexpr qint64 MostBlock = 4 << 20;     // bytes; larger ones are no words
constexpr int MostPieces = 200'000;       // of one file; a PNG file has one for some kilobytes
constexpr qint64 HeadLength = 128 << 10;  // read at once: with most files all that is needed

// The file as far as it has been asked for.
class Source {
  public:
    explicit Source(const FileBytes& Read) : mRead(Read), mHead(Read(0, HeadLength)) {}

    const QByteArray& Head() const { return mHead; }
    QByteArray Bytes(qint64 At, qint64 Length) const {
        if (At < 0 || Length <= 0 || Length > MostBlock) return {};
        const bool IsInHead = At + Length <= mHead.size() || mHead.size() < HeadLength;
        return IsInHead ? mHead.mid(At, Length) : mRead(At, Length);
    }

  private:
    const FileBytes& mRead;
    QByteArray mHead;
};

void Keep(QByteArray& Into, const QByteArray& Found) {
    if (Into.isEmpty()) Into = Found;
}

// Some programs keep the mark that stands before the block in JPEG files.
void Keep(ExifTags& Into, const QByteArray& Block) {
    const QByteArray Bytes = Block.startsWith("Exif") ? Block.mid(6) : Block;
    if (Into.Values.isEmpty())
        Into = ReadExifTags([&](qint64 At, qint64 Length) { return Bytes.mid(At, Length); });
}

// The resources of the program from which PSD comes; JPEG files have them too.
void TakeResources(const QByteArray& Resources, PictureBlocks& Found) {
    for (const PhotoshopResource& Each : ResourcesIn(Resources)) {
        const QByteArray Bytes = Each.Content.toByteArray();
        if (Each.Kind == IptcResourceKind) Keep(Found.Iptc, Bytes);
        if (Each.Kind == ExifResourceKind) Keep(Found.Exif, Bytes);
        if (Each.Kind == XmpResourceKind) Keep(Found.Xmp, Bytes);
    }
}

void TakeSegment(int Marker, const QByteArray& Segment, PictureBlocks& Found,
                 QByteArray& Resources) {
    static const QByteArray Exif("Exif\0\0", 6), Xmp("http://ns.adobe.com/xap/1.0/\0", 29),
        Photoshop("Photoshop 3.0\0", 14);
    if (Marker == 0xE1 && Segment.startsWith(Exif)) Keep(Found.Exif, Segment);
    if (Marker == 0xE1 && Segment.startsWith(Xmp)) Keep(Found.Xmp, Segment.mid(Xmp.size()));
    if (Marker == 0xED && Segment.startsWith(Photoshop) && Resources.size() < MostBlock)
        Resources += Segment.mid(Photoshop.size());
}

void FromJpeg(const Source& File, PictureBlocks& Found) {
    constexpr int StartOfScan = 0xDA, EndOfImage = 0xD9;
    QByteArray Resources;
    qint64 At = 2;
    for (int I = 0; I < MostPieces; ++I) {
        const QByteArray Head = File.Bytes(At, 4);
        const ByteView View(Head);
        const int Marker = View.U8(1);
        if (View.U8(0) != 0xFF || Marker == StartOfScan || Marker == EndOfImage) break;
        const qint64 Length = Marker == 0xFF ? -1 : View.U16(2, true);
        if (Marker == 0xE1 || Marker == 0xED)
            TakeSegment(Marker, File.Bytes(At + 4, Length - 2), Found, Resources);
        At += Length < 0 ? 1 : 2 + Length;
        if (Length >= 0 && Length < 2) break;
    }
    TakeResources(Resources, Found);
}

// "Title\0..." or, internationally, "Title\0" with two marks, two more texts and then the words.
void TakePngText(const QByteArray& Chunk, bool International, PictureBlocks& Found) {
    const qsizetype End = Chunk.indexOf('\0');
    if (End < 0 || (International && Chunk.mid(End + 1, 1) != QByteArray(1, '\0'))) return;
    qsizetype At = End;
    if (International) At = Chunk.indexOf('\0', Chunk.indexOf('\0', End + 3) + 1);
    if (At < End) return;
    const QByteArray Name = Chunk.first(End), Bytes = Chunk.mid(At + 1);
    const QByteArray Words = International ? Bytes : QString::fromLatin1(Bytes).toUtf8();
    if (Name == "Title") Keep(Found.Title, Words);
    if (Name == "Description") Keep(Found.Description, Words);
    if (Name == "XML:com.adobe.xmp") Keep(Found.Xmp, Bytes);
}

void FromPng(const Source& File, PictureBlocks& Found) {
    qint64 At = 8;
    for (int I = 0; I < MostPieces; ++I) {
        const QByteArray Head = File.Bytes(At, 8);
        const qint64 Length = ByteView(Head).U32(0, true);
        const QByteArray Name = Head.mid(4);
        if (Name.size() < 4 || Name == "IEND") return;
        if (Name == "eXIf") Keep(Found.Exif, File.Bytes(At + 8, Length));
        if (Name == "tEXt") TakePngText(File.Bytes(At + 8, Length), false, Found);
        if (Name == "iTXt") TakePngText(File.Bytes(At + 8, Length), true, Found);
        At += 12 + Length;
    }
}

void FromWebp(const Source& File, PictureBlocks& Found) {
    qint64 At = 12;
    for (int I = 0; I < MostPieces; ++I) {
        const QByteArray Head = File.Bytes(At, 8);
        if (Head.size() < 8) return;
        const qint64 Length = ByteView(Head).U32(4);
        if (Head.startsWith("EXIF")) Keep(Found.Exif, File.Bytes(At + 8, Length));
        if (Head.startsWith("XMP ")) Keep(Found.Xmp, File.Bytes(At + 8, Length));
        At += 8 + Length + (Length & 1);
    }
}

void FromTiff(const FileBytes& Bytes, PictureBlocks& Found) {
    constexpr quint16 Packet = 0x02BC, Records = 0x83BB, Resources = 0x8649;
    Found.Exif = ReadExifTags(Bytes);
    Found.Xmp = Found.Exif.Values.value(Packet);
    Found.Iptc = Found.Exif.Values.value(Records);
    TakeResources(Found.Exif.Values.value(Resources), Found);
}

void FromHeif(const FileBytes& Bytes, PictureBlocks& Found) {
    for (const HeifItem& Each : ReadHeifItems(Bytes)) {
        const qint64 Mark = 4 + ByteView(Each.Bytes).U32(0, true);
        if (Each.Type == "Exif") Keep(Found.Exif, Each.Bytes.mid(Mark));
        if (Each.Type == "application/rdf+xml") Keep(Found.Xmp, Each.Bytes);
    }
}

void FromPsd(const Source& File, PictureBlocks& Found) {
    constexpr qint64 ColoursAt = 26;
    const qint64 At = ColoursAt + 4 + ByteView(File.Bytes(ColoursAt, 4)).U32(0, true);
    TakeResources(File.Bytes(At + 4, ByteView(File.Bytes(At, 4)).U32(0, true)), Found);
}

}  // namespace

PictureBlocks BlocksOf(const FileBytes& Read) {
    PictureBlocks Found;
    const Source File(Read);
    const FileBytes Bytes = [&](qint64 At, qint64 Length) { return File.Bytes(At, Length); };
    const ByteView Head(File.Head());
    if (LooksLikeJpeg(Head) || Head.Is(0, "\xFF\xD8"))
        FromJpeg(File, Found);
    else if (LooksLikePng(Head) || Head.Is(0, "\x89PNG"))
        FromPng(File, Found);
    else if (LooksLikeWebp(Head))
        FromWebp(File, Found);
    else if (LooksLikePsd(Head))
        FromPsd(File, Found);
    else if (LooksLikeTiff(Head))
        FromTiff(Bytes, Found);
    else if (Head.Is(4, "ftyp"))
        FromHeif(Bytes, Found);
    return Found;
}

}  // namespace neb
