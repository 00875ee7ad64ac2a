// The texts that a PNG file carries, by their keywords: other programs keep EXIF and XMP in them.
// Used by what looks for such blocks.
#pragma once

#include <QByteArray>

#include "pictures/formats/ByteView.h"

namespace neb {

// The first text of that keyword, unpacked, in the bytes it is stored in; empty when there is none
// or it cannot be unpacked.
QByteArray PngText(const ByteView& Png, QByteArrayView Keyword);

// A block of bytes that stands in a text as hexadecimal digits, by its name: "exif", "APP1", "xmp".
QByteArray PngRawProfile(const ByteView& Png, QByteArrayView Name);

}  // namespace neb
