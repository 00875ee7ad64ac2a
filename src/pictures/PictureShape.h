// The proportions of a picture file, from its first bytes: no pixel is decoded. Used by the lists
// of slides, whose thumbnails are stretched to squares.
#pragma once

#include <QSize>
#include <QString>

namespace neb {

// Pixels of the picture in the file, upright. Empty where the file cannot be read or does not tell.
// Safe on any thread; never throws.
QSize PictureShape(const QString& File);

}  // namespace neb
