// A JPEG file taken apart without its pixels being looked at: what stands before the picture, and
// where the picture ends. Used by what keeps, turns and describes JPEGs as they are.
#pragma once

#include <QByteArray>
#include <QSize>
#include <functional>
#include <optional>
#include <vector>

namespace neb {

struct JpegPart {
    int Marker;              // 0xC0 to 0xFE
    qsizetype At, Length;    // bytes, the marker among them
    QByteArrayView Content;  // behind marker and length

    bool IsExif() const;
    QByteArrayView Exif() const { return Content.sliced(6); }  // of one that is
    bool IsXmp() const;
    QByteArrayView Xmp() const;  // of one that is
    bool IsMoreXmp() const;      // what a packet has no room for
    bool IsPhotoshop() const;    // the IPTC words stand in it
};

// Views: of bytes that somebody else holds.
struct JpegParts {
    std::vector<JpegPart> Head;  // all before the pixels
    QSize Stored;                // pixels, as they lie in the file
    qsizetype End = 0;           // behind the closing mark, or the last byte where there is none

    // As EXIF numbers them, 1 to 8, by the first block that there is.
    int Orientation() const;
    // A packet says otherwise than "upright", and the EXIF block, which comes first, says nothing.
    bool IsTurnedByXmp() const;
};
// Nothing where it is no JPEG, or one that breaks off before its pixels.
std::optional<JpegParts> PartsOf(const QByteArray& Jpeg);

// A part's bytes with marker and length; nothing where the content is too long for one.
QByteArray JpegPartOf(int Marker, const QByteArray& Content);
// The same of a TIFF structure, as EXIF keeps it.
QByteArray ExifPartOf(const QByteArray& Block);
// The same JPEG with each part of its head as Changed gives it, which may be empty.
QByteArray WithParts(const QByteArray& Jpeg, const JpegParts& Parts,
                     const std::function<QByteArray(const JpegPart&)>& Changed);
// The same JPEG with further parts, behind the one that must come first.
QByteArray WithMore(const QByteArray& Jpeg, const QByteArray& Further);

inline constexpr int ExifMarker = 0xE1, PhotoshopMarker = 0xED;
inline const QByteArray ExifMark("Exif\0\0", 6), XmpMark("http://ns.adobe.com/xap/1.0/\0", 29),
    MoreXmpMark("http://ns.adobe.com/xmp/extension/\0", 35), PhotoshopMark("Photoshop 3.0\0", 14);

}  // namespace neb
