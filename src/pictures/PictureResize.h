// Makes a picture larger or smaller, in linear light and with all of its pixels counting: fine
// lines keep their brightness, edges stay sharp and get no halo. Used by the picture object, the
// transition view and the preview; safe on worker threads.
#pragma once

#include <QImage>

namespace neb {

enum class ResizeFilter {
    Area,  // each pixel is the mean of what it covers; soft and quick, for thumbnails
    Sharp  // for all that is looked at
};

// Picture: Format_RGB32. Size: at least 1 by 1. The result is Format_RGB32 of exactly that size,
// the same bits on every machine and with any number of threads. Threads: 1 for callers that are
// one of many workers themselves.
QImage ResizePicture(const QImage& Picture, QSize Size, ResizeFilter Filter, int Threads = 1);
// The same, Sharp, for a caller whose user waits: on all processors.
QImage ResizeAtOnce(const QImage& Picture, QSize Size);

}  // namespace neb
