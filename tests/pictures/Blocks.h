// Files put together from blocks of EXIF and XMP, for tests of what looks for them. They have no
// pixels unless a test puts them into a whole picture.
#pragma once

#include <QByteArray>
#include <QtEndian>
#include <utility>
#include <vector>

namespace neb::tests {

template <class Number>
QByteArray BigEndian(Number Value) {
    QByteArray Bytes(sizeof(Number), '\0');
    qToBigEndian(Value, Bytes.data());
    return Bytes;
}
template <class Number>
QByteArray LittleEndian(Number Value) {
    QByteArray Bytes(sizeof(Number), '\0');
    qToLittleEndian(Value, Bytes.data());
    return Bytes;
}

// A little-endian TIFF of one directory with these tags, as bytes or short numbers.
inline QByteArray TiffOf(const std::vector<std::pair<quint16, QByteArray>>& Tags) {
    QByteArray Entries, Behind;
    const auto Start = static_cast<quint32>(8 + 2 + Tags.size() * 12 + 4);
    for (const auto& [Tag, Bytes] : Tags) {
        const auto Length = static_cast<quint32>(Bytes.size());
        Entries += LittleEndian(Tag) + LittleEndian<quint16>(1) + LittleEndian(Length) +
                   LittleEndian(Start + static_cast<quint32>(Behind.size()));
        Behind += Bytes;
    }
    return QByteArray("II*\0\x08\0\0\0", 8) + LittleEndian(static_cast<quint16>(Tags.size())) +
           Entries + LittleEndian<quint32>(0) + Behind;
}

inline QByteArray ExifTurned(int Orientation) {
    return QByteArray::fromHex(
               "49492a0008000000"
               "0100"
               "1201"
               "0300"
               "01000000") +
           LittleEndian<quint16>(static_cast<quint16>(Orientation)) + QByteArray(6, '\0');
}

inline QByteArray XmpTurned(int Orientation) {
    return "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
           "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
           "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' tiff:Orientation='" +
           QByteArray::number(Orientation) + "'/></rdf:RDF></x:xmpmeta>";
}

inline QByteArray XmpSegment(const QByteArray& Packet) {
    return QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + Packet;
}
inline QByteArray ExifSegment(int Orientation) {
    return QByteArray("Exif\0\0", 6) + ExifTurned(Orientation);
}

inline QByteArray JpegApp1(const QByteArray& Body) {
    return "\xFF\xE1" + BigEndian(static_cast<quint16>(Body.size() + 2)) + Body;
}
inline QByteArray JpegXmp(const QByteArray& Packet) {
    return JpegApp1(XmpSegment(Packet));
}
inline QByteArray JpegExif(int Orientation) {
    return JpegApp1(ExifSegment(Orientation));
}
inline QByteArray JpegOf(const QList<QByteArray>& Segments) {
    return "\xFF\xD8" + Segments.join() + QByteArray::fromHex("FFDA0002FFD9");
}

// The check sum that PNG puts behind a chunk.
inline quint32 PngSum(const QByteArray& Bytes) {
    quint32 Sum = 0xFFFFFFFF;
    for (char Byte : Bytes) {
        Sum ^= static_cast<quint8>(Byte);
        for (int Bit = 0; Bit < 8; ++Bit) Sum = Sum >> 1 ^ (Sum & 1 ? 0xEDB88320 : 0);
    }
    return ~Sum;
}
inline QByteArray PngChunkOf(const QByteArray& Type, const QByteArray& Body) {
    return BigEndian(static_cast<quint32>(Body.size())) + Type + Body +
           BigEndian(PngSum(Type + Body));
}
// As zlib has it, without the length that Qt puts in front.
inline QByteArray Packed(const QByteArray& Bytes) {
    return qCompress(Bytes).mid(4);
}
inline QByteArray PngPlainXmp(const QByteArray& Packet) {
    return PngChunkOf("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + Packet);
}
inline QByteArray PngPackedXmp(const QByteArray& Packet) {
    return PngChunkOf("iTXt", QByteArray("XML:com.adobe.xmp\0\1\0en\0x\0", 25) + Packed(Packet));
}
// As other programs keep blocks of bytes in texts: hexadecimal, 72 digits a line.
inline QByteArray PngRaw(const QByteArray& Type, const QByteArray& Name, const QByteArray& Bytes) {
    QByteArray Text = '\n' + Name + '\n' + QByteArray::number(Bytes.size()).rightJustified(8);
    const QByteArray Digits = Bytes.toHex();
    for (qsizetype At = 0; At < Digits.size(); At += 72) Text += '\n' + Digits.mid(At, 72);
    Text += '\n';
    const QByteArray Keyword = "Raw profile type " + Name + '\0';
    if (Type == "zTXt") return PngChunkOf(Type, Keyword + '\0' + Packed(Text));
    return PngChunkOf(Type, Keyword + (Type == "iTXt" ? QByteArray(4, '\0') : QByteArray()) + Text);
}
inline QByteArray PngOf(const QList<QByteArray>& Chunks) {
    return "\x89PNG\r\n\x1A\n" + Chunks.join() + PngChunkOf("IEND", {});
}

inline QByteArray WebpOf(const std::vector<std::pair<QByteArray, QByteArray>>& Chunks) {
    QByteArray Body = "WEBP";
    for (const auto& [Name, Bytes] : Chunks) {
        Body += Name + LittleEndian(static_cast<quint32>(Bytes.size())) + Bytes;
        if (Bytes.size() % 2) Body += '\0';
    }
    return "RIFF" + LittleEndian(static_cast<quint32>(Body.size())) + Body;
}

inline QByteArray GifXmp(const QByteArray& Packet) {
    return QByteArray("GIF89a\1\0\1\0\0\0\0", 13) + QByteArray("!\xFF\x0BXMP DataXMP", 14) +
           Packet + "<?xpacket end='w'?>" + QByteArray("\1\0;", 3);
}

inline QByteArray Jp2Box(const QByteArray& Type, const QByteArray& Body) {
    return BigEndian(static_cast<quint32>(Body.size() + 8)) + Type + Body;
}
inline QByteArray Jp2Xmp(const QByteArray& Packet) {
    return Jp2Box("jP  ", "\r\n\x87\n") +
           Jp2Box("uuid", QByteArray::fromHex("BE7ACFCB97A942E89C71999491E3AFAC") + Packet);
}

}  // namespace neb::tests
