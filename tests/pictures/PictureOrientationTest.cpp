// Pictures that were taken with the camera held upright, as the formats say so: each comes out
// upright, turned once.
#include "pictures/formats/PictureOrientation.h"

#include "pictures/Blocks.h"
#include "pictures/PictureShape.h"
#include "pictures/Pictures.h"

using namespace neb;
using namespace neb::tests;

namespace {

// Behind its first Behind bytes.
QByteArray With(const QByteArray& File, qsizetype Behind, const QByteArray& Block) {
    return File.left(Behind) + Block + File.mid(Behind);
}

// The motif as a sensor has it that lies on its side: 32 by 48, to be turned clockwise.
QByteArray OnItsSide(const char* Format) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("a");
    EXPECT_TRUE(Motif().transformed(QTransform().rotate(-90)).save(File, Format, 100)) << Format;
    return ReadFile(File);
}

QByteArray TurnedPng(const QByteArray& Chunk) {
    return With(OnItsSide("PNG"), 8 + 25, Chunk);
}
QByteArray TurnedJpeg(const QByteArray& Segments) {
    return With(OnItsSide("JPEG"), 2, Segments);
}
QByteArray TurnedWebp(const std::vector<std::pair<QByteArray, QByteArray>>& Blocks) {
    QByteArray Size(10, '\0');
    Size[4] = 31;
    Size[7] = 47;
    Size[0] = 0x0C;  // EXIF and XMP
    const QByteArray Whole = OnItsSide("WEBP");
    std::vector<std::pair<QByteArray, QByteArray>> Chunks = {{"VP8X", Size},
                                                             {Whole.mid(12, 4), Whole.mid(20)}};
    Chunks.insert(Chunks.end(), Blocks.begin(), Blocks.end());
    return WebpOf(Chunks);
}

// One strip of 32 by 48 pixels, with more tags than those of the picture.
QByteArray TurnedTiff(const std::vector<std::pair<quint16, QByteArray>>& More) {
    const QImage Side =
        Motif().transformed(QTransform().rotate(-90)).convertToFormat(QImage::Format_RGB888);
    QByteArray Pixels;
    for (int Y = 0; Y < Side.height(); ++Y)
        Pixels.append(reinterpret_cast<const char*>(Side.constScanLine(Y)), Side.width() * 3LL);
    const std::pair<quint16, quint32> Plain[] = {
        {256, 32}, {257, 48}, {258, 8},
        {259, 1},  {262, 2},  {273, 8},
        {277, 3},  {278, 48}, {279, quint32(Pixels.size())}};
    std::map<quint16, QByteArray> Entries;
    QByteArray Behind;
    const auto Count = static_cast<quint16>(std::size(Plain) + More.size());
    const auto Start = static_cast<quint32>(8 + Pixels.size());
    for (const auto& [Tag, Value] : Plain)
        Entries[Tag] = LittleEndian<quint16>(4) + LittleEndian<quint32>(1) + LittleEndian(Value);
    for (const auto& [Tag, Bytes] : More) {
        const quint32 Place = Start + 2U + Count * 12U + 4U + static_cast<quint32>(Behind.size());
        const bool Inside = Bytes.size() <= 4;
        Entries[Tag] = LittleEndian<quint16>(Inside ? 4 : 1) +
                       LittleEndian(static_cast<quint32>(Inside ? 1 : Bytes.size())) +
                       (Inside ? Bytes : LittleEndian(Place));
        if (!Inside) Behind += Bytes;
    }
    QByteArray File = QByteArray("II*\0", 4) + LittleEndian(Start) + Pixels + LittleEndian(Count);
    for (const auto& [Tag, Entry] : Entries) File += LittleEndian(Tag) + Entry;
    return File + LittleEndian<quint32>(0) + Behind;
}

void ExpectUpright(const QByteArray& File, const char* What) {
    SCOPED_TRACE(What);
    const harness::TempFolder Folder;
    const QString Name = Folder / QStringLiteral("a.jpg");
    WriteFile(Name, File);
    const ImgX Picture = Loaded(Name);
    EXPECT_EQ(QSize(48, 32), Picture.FullSize());
    ASSERT_EQ(QSize(48, 32), Picture.Picture().size());
    ExpectFields(Picture.Picture(), Red, Green, Blue, Grey, 4);
    EXPECT_EQ(6, OrientationOf(File));
    FilePieces Pieces([&](qint64 At, qint64 Length) { return File.mid(At, Length); });
    EXPECT_EQ(QSize(48, 32), ShapeOf(Pieces));
}

}  // namespace

TEST(PictureOrientation, OfAPngStandsInAChunkOrInATextOrInXmp) {
    ExpectUpright(TurnedPng(PngChunkOf("eXIf", ExifTurned(6))), "chunk");
    for (const char* Type : {"tEXt", "zTXt", "iTXt"}) {
        ExpectUpright(TurnedPng(PngRaw(Type, "exif", ExifSegment(6))), Type);
        ExpectUpright(TurnedPng(PngRaw(Type, "APP1", ExifSegment(6))), Type);
    }
    ExpectUpright(TurnedPng(PngPlainXmp(XmpTurned(6))), "XMP");
    ExpectUpright(TurnedPng(PngPackedXmp(XmpTurned(6))), "packed XMP");
    ExpectUpright(TurnedPng(PngRaw("zTXt", "APP1", XmpSegment(XmpTurned(6)))), "XMP as text");
}

TEST(PictureOrientation, OfAJpegStandsInExifOrInXmp) {
    ExpectUpright(TurnedJpeg(JpegExif(6)), "EXIF");
    ExpectUpright(TurnedJpeg(JpegXmp(XmpTurned(6))), "XMP");
    ExpectUpright(TurnedJpeg(JpegXmp("<x:xmpmeta/>") + JpegExif(6)), "EXIF behind XMP");
}

TEST(PictureOrientation, OfAWebpStandsInExifOrInXmp) {
    ExpectUpright(TurnedWebp({{"EXIF", ExifTurned(6)}}), "EXIF");
    ExpectUpright(TurnedWebp({{"EXIF", ExifSegment(6)}}), "EXIF with a mark");
    ExpectUpright(TurnedWebp({{"XMP ", XmpTurned(6)}}), "XMP");
}

TEST(PictureOrientation, OfATiffStandsInItsTagOrInXmp) {
    ExpectUpright(TurnedTiff({{274, LittleEndian<quint32>(6)}}), "tag");
    ExpectUpright(TurnedTiff({{700, XmpTurned(6)}}), "XMP");
    ExpectUpright(TurnedTiff({{274, LittleEndian<quint32>(6)}, {700, XmpTurned(3)}}), "both");
}

TEST(PictureOrientation, OfAJpeg2000StandsInABox) {
    const QByteArray Plain = ReadFile(harness::DataFile("today/plain.jp2"));
    const QByteArray Box =
        Jp2Box("uuid", QByteArray::fromHex("BE7ACFCB97A942E89C71999491E3AFAC") + XmpTurned(3));
    EXPECT_EQ(1, OrientationOf(Plain));
    EXPECT_EQ(3, OrientationOf(Plain + Box));
    EXPECT_EQ(8, OrientationOf(Plain + Jp2Box("uuid", "JpgTiffExif->JP2" + ExifTurned(8)) + Box));
    const harness::TempFolder Folder;
    WriteFile(Folder / QStringLiteral("a"), Plain + Box);
    ExpectFields(Loaded(Folder / QStringLiteral("a")).Picture(), Grey, Blue, Green, Red, 0);
}

TEST(PictureOrientation, ExifCountsBeforeXmpAsFarAsItSaysSomething) {
    ExpectUpright(TurnedJpeg(JpegXmp(XmpTurned(3)) + JpegExif(6)), "JPEG");
    ExpectUpright(TurnedPng(PngPlainXmp(XmpTurned(8)) + PngChunkOf("eXIf", ExifTurned(6))), "PNG");
    ExpectUpright(TurnedWebp({{"EXIF", ExifTurned(6)}, {"XMP ", XmpTurned(2)}}), "WebP");
    ExpectUpright(TurnedJpeg(JpegExif(0) + JpegXmp(XmpTurned(6))), "EXIF without a word");
    EXPECT_EQ(1, OrientationOf(JpegOf({JpegExif(1), JpegXmp(XmpTurned(6))})));
}

TEST(PictureOrientation, IsUprightWhereNothingOrNonsenseIsTold) {
    for (int Nonsense : {0, 9, 77})
        EXPECT_EQ(1, OrientationOf(JpegOf({JpegExif(Nonsense), JpegXmp(XmpTurned(Nonsense))})));
    EXPECT_EQ(1, OrientationOf(JpegOf({})));
    EXPECT_EQ(1, OrientationOf({}));
    EXPECT_EQ(1, OrientationOf("no picture"));
    EXPECT_EQ(1, OrientationOf(ReadFile(harness::DataFile("today/exif.heic"))));
    EXPECT_EQ(1, OrientationOf(ReadFile(harness::DataFile("today/turned.avif"))));
}
