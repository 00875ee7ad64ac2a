// The proportions of a picture file, from its first bytes: no pixel is decoded, and nothing but
// this program's own code sees them. Used by the lists of slides, whose thumbnails are stretched to
// squares.
#pragma once

#include <QSize>
#include <QString>

#include "pictures/FilePieces.h"

namespace neb {

// Pixels of the picture in the file, upright. Empty where the file cannot be read or does not tell,
// and for drawings, Photo CDs, HEIC and AVIF, which only their own readers know. Safe on any
// thread; never throws.
QSize PictureShape(const QString& File);

// The same of a file that is read elsewhere. May throw what its pieces throw.
QSize ShapeOf(FilePieces& File);

}  // namespace neb
