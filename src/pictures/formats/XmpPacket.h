// What programs of today write about a picture into its file, as XML: the packet, wherever a format
// has it, and single properties of it. Used for the orientation, and by what asks a picture for
// words.
#pragma once

#include <QByteArray>
#include <QString>

namespace neb {

// The packet in a JPEG, PNG, WebP, GIF, TIFF, PSD, HEIC, AVIF or JPEG 2000 file; empty when there
// is none.
QByteArray XmpPacketOf(const QByteArray& File);

inline constexpr QStringView XmpTiff = u"http://ns.adobe.com/tiff/1.0/";
inline constexpr QStringView XmpBasic = u"http://ns.adobe.com/xap/1.0/";
inline constexpr QStringView XmpDublinCore = u"http://purl.org/dc/elements/1.1/";
inline constexpr QStringView XmpPhotoshop = u"http://ns.adobe.com/photoshop/1.0/";
inline constexpr QStringView XmpExif = u"http://ns.adobe.com/exif/1.0/";

// A property's text, of a list the first that is not empty; empty when the packet has none or is no
// sound XML up to there. A list of languages has its default one first.
QString XmpValue(const QByteArray& Packet, QStringView Namespace, QStringView Name);

}  // namespace neb
