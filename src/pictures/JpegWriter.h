// Writes pixels as a JPEG file's bytes: full colour resolution (no subsampling), nothing in the
// file but the picture. Used by the picture object.
#pragma once

#include <QByteArray>
#include <QImage>

namespace neb {

// Picture: Format_RGB32, sides of 1 to 65500. Quality: 1 to 100. Throws Fault.
QByteArray EncodeJpeg(const QImage& Picture, int Quality);

}  // namespace neb
