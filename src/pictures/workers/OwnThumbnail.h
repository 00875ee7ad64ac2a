// The small picture of a slide as it lies on the disk: a Windows bitmap of one size and one header.
// Bytes of exactly that form are read here, by a few lines that nothing in them can lead astray,
// and by nobody else. Used by what stores thumbnails, and by what reads pictures.
#pragma once

#include <QByteArray>
#include <QImage>

namespace neb {

// The sides of a thumbnail on the disk, in pixels.
inline constexpr QSize ThumbnailSize(72, 72);

// A Windows bitmap's bytes, 24 bits a pixel; the same bytes for the same picture always.
QByteArray ThumbnailBmp(const QImage& Picture);
// Format_RGB32; null for bytes of any other form than those of a picture of ThumbnailSize.
QImage OwnThumbnail(const QByteArray& Bytes);

}  // namespace neb
