// The blocks of EXIF and XMP in files of every format, built piece by piece.
#include "pictures/formats/FileBlocks.h"

#include <gtest/gtest.h>

#include "pictures/Blocks.h"
#include "pictures/formats/XmpPacket.h"

using namespace neb;
using namespace neb::tests;

namespace {

constexpr const char* Title =
    "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
    "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
    "xmlns:dc='http://purl.org/dc/elements/1.1/' xmlns:xmp='http://ns.adobe.com/xap/1.0/' "
    "xmp:Rating=' 4 '><dc:title><rdf:Alt><rdf:li xml:lang='x-default'> Лето &amp; "
    "sun</rdf:li><rdf:li xml:lang='de'>Sommer</rdf:li></rdf:Alt></dc:title><dc:subject><rdf:Bag/>"
    "</dc:subject></rdf:Description></rdf:RDF></x:xmpmeta>";

std::string TitleOf(const QByteArray& File) {
    return XmpValue(XmpPacketOf(File), XmpDublinCore, u"title").toStdString();
}

}  // namespace

TEST(XmpPacket, IsFoundWhereverAFormatKeepsIt) {
    const QByteArray Packet(Title);
    const std::pair<const char*, QByteArray> Files[] = {
        {"JPEG", JpegOf({JpegXmp(Packet)})},
        {"JPEG behind EXIF", JpegOf({JpegExif(6), JpegXmp(Packet)})},
        {"PNG", PngOf({PngPlainXmp(Packet)})},
        {"PNG, packed", PngOf({PngPackedXmp(Packet)})},
        {"PNG, raw profile", PngOf({PngRaw("tEXt", "xmp", Packet)})},
        {"PNG, raw segment", PngOf({PngRaw("zTXt", "APP1", XmpSegment(Packet))})},
        {"WebP", WebpOf({{"VP8X", "1234567"}, {"XMP ", Packet}})},
        {"GIF", GifXmp(Packet)},
        {"TIFF", TiffOf({{700, Packet}})},
        {"JPEG 2000", Jp2Xmp(Packet)},
        {"HEIC", QByteArray("\0\0\0\x10"
                            "ftypheic\0\0\0\0",
                            16) +
                     "mdat" + Packet + "more"},
    };
    for (const auto& [Name, File] : Files) EXPECT_EQ("Лето & sun", TitleOf(File)) << Name;
}

TEST(XmpPacket, GivesAttributesElementsAndNothingElse) {
    EXPECT_EQ("4", XmpValue(Title, XmpBasic, u"Rating").toStdString());
    EXPECT_EQ("", XmpValue(Title, XmpBasic, u"title").toStdString());
    EXPECT_EQ("", XmpValue(Title, XmpDublinCore, u"subject").toStdString());
    EXPECT_EQ("", XmpValue("<a><b", XmpDublinCore, u"title").toStdString());
    EXPECT_EQ("", XmpValue({}, XmpDublinCore, u"title").toStdString());
    const QByteArray Entity =
        "<!DOCTYPE a [<!ENTITY b 'ccc'>]>" + QByteArray(Title).replace("&amp;", "&b;");
    EXPECT_EQ("", XmpValue(Entity, XmpDublinCore, u"title").toStdString());
}

TEST(XmpPacket, CutFilesHaveNone) {
    const QByteArray Packet(Title);
    for (const QByteArray& File : {JpegOf({JpegXmp(Packet)}), PngOf({PngPackedXmp(Packet)}),
                                   WebpOf({{"VP8X", "1234567"}, {"XMP ", Packet}}),
                                   TiffOf({{700, Packet}}), Jp2Xmp(Packet), GifXmp(Packet)})
        for (qsizetype Length = 0; Length < File.size(); ++Length) {
            const QString Found = XmpValue(XmpPacketOf(File.left(Length)), XmpDublinCore, u"title");
            EXPECT_TRUE(QStringLiteral("Лето & sun").startsWith(Found));
        }
}

TEST(FileBlocks, TheExifBlockIsFoundWhereverAFormatKeepsIt) {
    const QByteArray Block = ExifTurned(6);
    const QByteArray Marked = QByteArray("Exif\0\0", 6) + Block;
    EXPECT_EQ(Block, ExifBlockOf(JpegOf({JpegXmp(Title), JpegExif(6)})));
    EXPECT_EQ(Block, ExifBlockOf(PngOf({PngChunkOf("eXIf", Block)})));
    EXPECT_EQ(Block, ExifBlockOf(PngOf({PngRaw("zTXt", "exif", Marked)})));
    EXPECT_EQ(Block, ExifBlockOf(PngOf({PngRaw("tEXt", "APP1", Marked)})));
    EXPECT_EQ(Block, ExifBlockOf(PngOf({PngRaw("iTXt", "exif", Block)})));
    EXPECT_EQ(Block, ExifBlockOf(WebpOf({{"VP8X", "1234567"}, {"EXIF", Block}})));
    EXPECT_EQ(Block, ExifBlockOf(WebpOf({{"EXIF", Marked}})));
    EXPECT_EQ(Block, ExifBlockOf(Block));
    EXPECT_EQ("", ExifBlockOf(PngOf({PngRaw("tEXt", "APP1", XmpSegment(Title))})));
    EXPECT_EQ("", ExifBlockOf("no picture"));
}
