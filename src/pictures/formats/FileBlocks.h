// Where the formats keep blocks of bytes that are not pixels: segments of JPEG, chunks of WebP,
// boxes of HEIC and JPEG 2000. Used by what looks for EXIF and XMP. Nothing is read past the file's
// end.
#pragma once

#include <QByteArray>

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

// The EXIF block of a JPEG, PNG, WebP, JPEG 2000 or TIFF file, from its byte order mark on; empty
// when there is none. That of a TIFF is the whole file.
QByteArray ExifBlockOf(const QByteArray& File);

}  // namespace neb
