// Makes a picture larger or smaller with all of its pixels counting. Used by the picture object.
#pragma once

#include <QImage>

namespace neb {

enum class ResizeFilter {
    Area,    // each pixel is the mean of what it covers; soft and quick, for thumbnails
    Lanczos  // sharp, for slides
};

// Picture: Format_RGB32. Size: at least 1 by 1. The result is Format_RGB32 of exactly that size.
QImage ResizePicture(const QImage& Picture, QSize Size, ResizeFilter Filter);

}  // namespace neb
