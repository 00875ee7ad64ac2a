// Turns the bytes of a picture file into pixels: told apart by content, upright, in sRGB, eight
// bits a colour, on white. Used by the picture object; safe to call on several threads at once.
#pragma once

#include <QByteArray>
#include <QImage>
#include <functional>

namespace neb {

struct DecodedPicture {
    QImage Picture;  // Format_RGB32; may be smaller than Full when less was asked for
    QSize Full;      // upright pixels of the picture in the file
};

// From the full upright size, the least size in pixels that the caller has use for.
using NeededSize = std::function<QSize(QSize Full)>;

// In this very process, which a hostile file may take over: for what runs behind a locked door, and
// for tests. Everybody else calls DecodePicture (pictures/workers/PictureReading.h). Throws Fault
// (numbers in PictureFaults.h), without the file's name.
DecodedPicture DecodeHere(const QByteArray& Bytes, const NeededSize& Needed = {});

// Bytes above which a file is not even read.
inline constexpr qint64 LargestPictureFile = 450LL << 20;

}  // namespace neb
