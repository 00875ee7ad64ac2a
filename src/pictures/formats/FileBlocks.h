// Where the formats keep blocks of bytes that are not pixels: segments of JPEG, chunks of WebP,
// boxes of HEIC and JPEG 2000, resources of PSD. Used by what looks for EXIF and XMP. Nothing is
// read past the file's end.
#pragma once

#include <QByteArray>
#include <vector>

#include "pictures/formats/ByteView.h"

namespace neb {

// What stands behind the mark in the first segment (FF E1) that begins with it.
QByteArrayView JpegSegment(const ByteView& Jpeg, QByteArrayView Mark);
// What the first chunk of that name holds.
QByteArrayView WebpChunk(const ByteView& Webp, QByteArrayView Name);
// What stands behind the mark in the first box of that type that begins with it; the uppermost
// level of boxes alone.
QByteArrayView FileBox(const ByteView& Boxes, QByteArrayView Type, QByteArrayView Mark);
// Whether the file ends with the end of a box.
bool BoxesAreWhole(const ByteView& Boxes);

// The EXIF block of a JPEG, PNG, WebP, JPEG 2000, PSD or TIFF file, from its byte order mark on;
// empty when there is none. That of a TIFF is the whole file.
QByteArray ExifBlockOf(const QByteArray& File);

// The resources of PSD files, which JPEG and TIFF files have too in a block of their own: IPTC
// words, profiles, copies of what stands elsewhere.
struct PhotoshopResource {
    int Kind;
    QByteArrayView Whole;    // with its head, and what fills it up; cut where the bytes are
    QByteArrayView Content;  // the same
};
inline constexpr int IptcResourceKind = 0x0404, ProfileResourceKind = 0x040F,
                     ExifResourceKind = 0x0422, XmpResourceKind = 0x0424;
// All up to the first bytes that are none.
std::vector<PhotoshopResource> ResourcesIn(QByteArrayView Bytes);
// What the first of a kind in a PSD file holds; empty when there is none.
QByteArrayView PsdResource(const ByteView& Psd, int Kind);

}  // namespace neb
