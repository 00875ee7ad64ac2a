// Pictures that say something of themselves, as cameras write them: words, a date, a place, a small
// picture. For the tests of what stores them.
#pragma once

#include "pictures/TurnedJpegs.h"
#include "pictures/notes/JpegParts.h"

namespace neb::tests {

// A block of a photograph, put together byte by byte, little-endian.
class MadeExif {
  public:
    struct Tag {
        quint16 Number, Type;
        quint32 Count;
        QByteArray Value;
    };
    static Tag Short(quint16 Number, int Value) { return {Number, 3, 1, Bytes(quint32(Value), 2)}; }
    static Tag Long(quint16 Number, quint32 Value) { return {Number, 4, 1, Bytes(Value, 4)}; }
    static Tag Text(quint16 Number, const QByteArray& Value) {
        return {Number, 2, quint32(Value.size() + 1), Value + '\0'};
    }
    static Tag Degrees(quint16 Number, quint32 Whole, quint32 Minutes) {
        QByteArray Value;
        for (const quint32 Each : {Whole, 1U, Minutes, 1U, 4711U, 100U}) Value += Bytes(Each, 4);
        return {Number, 5, 3, Value};
    }
    static QByteArray Bytes(quint32 Number, int Width) {
        QByteArray Made;
        for (int I = 0; I < Width; ++I) Made.append(static_cast<char>(Number >> 8 * I & 255));
        return Made;
    }

    MadeExif() : mBlock(QByteArray("II*\0", 4) + Bytes(8, 4)) {}
    // A directory at the end of the block, behind what stands there.
    quint32 Add(QList<Tag> Tags, quint32 Next = 0) {
        const auto At = quint32(mBlock.size());
        QByteArray Values, Entries = Bytes(quint32(Tags.size()), 2);
        const quint32 Behind = At + 2 + 12 * quint32(Tags.size()) + 4;
        for (const Tag& Each : Tags) {
            Entries += Bytes(Each.Number, 2) + Bytes(Each.Type, 2) + Bytes(Each.Count, 4);
            if (Each.Value.size() <= 4) {
                Entries += Each.Value.leftJustified(4, '\0');
            } else {
                Entries += Bytes(Behind + quint32(Values.size()), 4);
                Values += Each.Value;
            }
        }
        mBlock += Entries + Bytes(Next, 4) + Values;
        return At;
    }
    void StartWith(quint32 Directory) { mBlock.replace(4, 4, Bytes(Directory, 4)); }
    quint32 AddBytes(const QByteArray& More) {
        mBlock += More;
        return quint32(mBlock.size() - More.size());
    }
    const QByteArray& Block() const { return mBlock; }

  private:
    QByteArray mBlock;
};

inline QList<MadeExif::Tag> PlaceTags() {
    return {MadeExif::Text(1, "N"), MadeExif::Degrees(2, 48, 51), MadeExif::Text(3, "E"),
            MadeExif::Degrees(4, 2, 21)};
}

// All that a camera says, and what people have written.
inline QByteArray CameraBlock(int Orientation, QSize Pixels) {
    using Exif = MadeExif;
    Exif Made;
    const quint32 Small = Made.AddBytes("\xFF\xD8 the camera's own small picture \xFF\xD9");
    const quint32 Second = Made.Add({Exif::Long(0x0201, Small), Exif::Long(0x0202, 35)});
    const quint32 Place = Made.Add(PlaceTags());
    const quint32 Details = Made.Add({Exif::Text(0x9003, "2003:12:24 18:30:00"),
                                      {0x927C, 7, 21, "MAKER'S NOTES, SECRET"},
                                      Exif::Long(0xA002, quint32(Pixels.width())),
                                      Exif::Long(0xA003, quint32(Pixels.height()))});
    Made.StartWith(
        Made.Add({Exif::Text(0x010E, "Grandmother by the tree"), Exif::Text(0x010F, "Cameramaker"),
                  Exif::Text(0x0110, "Model One"), Exif::Short(0x0112, Orientation),
                  Exif::Long(0x8769, Details), Exif::Long(0x8825, Place)},
                 Second));
    return Made.Block();
}

inline QByteArray XmpPacket(int Orientation) {
    return QByteArrayLiteral(
               "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>"
               "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
               "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
               "rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
               "xmlns:tiff=\"http://ns.adobe.com/tiff/1.0/\" "
               "xmlns:exif=\"http://ns.adobe.com/exif/1.0/\" tiff:Orientation=\"") +
           QByteArray::number(Orientation) +
           QByteArrayLiteral(
               "\" exif:GPSLatitude=\"48,51.785N\" exif:GPSLongitude=\"2,21.123E\">"
               "<dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">Words in a packet"
               "</rdf:li></rdf:Alt></dc:description></rdf:Description></rdf:RDF></x:xmpmeta>"
               "<?xpacket end=\"w\"?>");
}

inline QByteArray IptcResource(const QByteArray& Words) {
    QByteArray Set("\x1C\x02\x78");
    Set.append(static_cast<char>(Words.size() >> 8)).append(static_cast<char>(Words.size() & 255));
    Set += Words;
    const auto Length = static_cast<char>(Set.size());
    return QByteArray("8BIM\x04\x04\0\0\0\0\0", 11) + Length + Set +
           QByteArray(Set.size() % 2, '\0');
}

inline QByteArray Noted(const QByteArray& Jpeg, int Orientation, QSize Pixels) {
    return WithMore(
        Jpeg, JpegPartOf(ExifMarker, ExifMark + CameraBlock(Orientation, Pixels)) +
                  JpegPartOf(ExifMarker, XmpMark + XmpPacket(Orientation)) +
                  JpegPartOf(PhotoshopMarker, PhotoshopMark + IptcResource("Words of an agency")));
}

// All before the pixels; of bytes that are held meanwhile.
inline std::vector<JpegPart> HeadOf(const QByteArray& Jpeg) {
    const auto Parts = PartsOf(Jpeg);
    return Parts ? Parts->Head : std::vector<JpegPart>();
}

// The EXIF block of a JPEG; empty where there is none.
inline QByteArray ExifIn(const QByteArray& Jpeg) {
    for (const JpegPart& Part : HeadOf(Jpeg))
        if (Part.IsExif()) return Part.Exif().toByteArray();
    return {};
}

}  // namespace neb::tests
