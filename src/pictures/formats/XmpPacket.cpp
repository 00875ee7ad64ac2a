#include "pictures/formats/XmpPacket.h"

#include <QXmlStreamReader>

#include "pictures/formats/FileBlocks.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PngTexts.h"
#include "pictures/formats/TiffTags.h"

namespace neb {
namespace {

constexpr QByteArrayView SegmentMark("http://ns.adobe.com/xap/1.0/\0", 29);
// The number under which boxes of HEIC and JPEG 2000 files carry it.
constexpr QByteArrayView BoxMark("\xBE\x7A\xCF\xCB\x97\xA9\x42\xE8\x9C\x71\x99\x94\x91\xE3\xAF\xAC",
                                 16);
constexpr quint16 PacketTag = 700;

QByteArray PacketOfPng(const ByteView& Png) {
    for (const QByteArray& Text : {PngText(Png, "XML:com.adobe.xmp"), PngRawProfile(Png, "xmp")})
        if (!Text.isEmpty()) return Text;
    const QByteArray Segment = PngRawProfile(Png, "APP1");
    return Segment.startsWith(SegmentMark) ? Segment.mid(SegmentMark.size()) : QByteArray();
}

// It stands in the file as it is, for programs that know XMP and not GIF; behind it are bytes that
// make it end as the format wants.
QByteArrayView PacketOfGif(QByteArrayView Gif) {
    constexpr QByteArrayView Mark("!\xFF\x0BXMP DataXMP", 14), End("<?xpacket end=");
    const qsizetype At = Gif.indexOf(Mark);
    if (At < 0) return {};
    const QByteArrayView Rest = Gif.sliced(At + Mark.size());
    const qsizetype Length = Rest.indexOf(End);
    return Length < 0 ? QByteArrayView() : Rest.first(Length);
}

// HEIC and AVIF files have it among their items, at places that only their own reader knows: it is
// known by the words around it.
QByteArrayView PacketOfItems(QByteArrayView File) {
    constexpr QByteArrayView Start("<x:xmpmeta"), End("</x:xmpmeta>");
    const qsizetype At = File.indexOf(Start);
    const qsizetype Last = At < 0 ? -1 : File.indexOf(End, At);
    return Last < 0 ? QByteArrayView() : File.sliced(At, Last + End.size() - At);
}

QString TextOfElement(QXmlStreamReader& Xml) {
    QString Text;
    for (int Depth = 1; Depth > 0 && !Xml.atEnd();) {
        const auto Token = Xml.readNext();
        if (Token == QXmlStreamReader::StartElement) ++Depth;
        if (Token == QXmlStreamReader::Characters) Text += Xml.text();
        if (Token != QXmlStreamReader::EndElement) continue;
        --Depth;
        if (!Text.trimmed().isEmpty()) break;
    }
    return Text.trimmed();
}

}  // namespace

QByteArray XmpPacketOf(const QByteArray& File) {
    const ByteView View(File);
    if (LooksLikeJpeg(View)) return JpegSegment(View, SegmentMark).toByteArray();
    if (LooksLikePng(View)) return PacketOfPng(View);
    if (LooksLikeWebp(View)) return WebpChunk(View, "XMP ").toByteArray();
    if (LooksLikeGif(View)) return PacketOfGif(File).toByteArray();
    if (LooksLikeTiff(View)) return TiffTags(File).Bytes(PacketTag).toByteArray();
    if (LooksLikePsd(View)) return PsdResource(View, XmpResourceKind).toByteArray();
    if (LooksLikeHeic(View)) return PacketOfItems(File).toByteArray();
    return FileBox(View, "uuid", BoxMark).toByteArray();
}

QString XmpValue(const QByteArray& Packet, QStringView Namespace, QStringView Name) {
    QXmlStreamReader Xml(Packet);
    while (!Xml.atEnd()) {
        const auto Token = Xml.readNext();
        if (Token == QXmlStreamReader::DTD) return {};  // it could spell out a text of any length
        if (Token != QXmlStreamReader::StartElement) continue;
        const auto Attribute = Xml.attributes().value(Namespace.toString(), Name.toString());
        if (!Attribute.trimmed().isEmpty()) return Attribute.trimmed().toString();
        if (Xml.namespaceUri() != Namespace || Xml.name() != Name) continue;
        const QString Text = TextOfElement(Xml);
        if (!Text.isEmpty()) return Text;
    }
    return {};
}

}  // namespace neb
