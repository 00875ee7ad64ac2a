// Which way up a picture was taken, by whatever its file says of it: EXIF, and where that says
// nothing XMP. The one place that answers this. Used by the decoders and by what turns files.
#pragma once

#include <QByteArray>

namespace neb {

// 1 to 8 as EXIF numbers them; 1, upright, where nothing is told. HEIC and AVIF files are always
// upright: how they are turned is a part of their pictures, and their EXIF block counts for
// nothing.
int OrientationOf(const QByteArray& File);

}  // namespace neb
