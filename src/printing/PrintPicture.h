// A picture as a print document refers to it: a file, or the bytes of one. It is read when it is
// measured, painted or written, and held by nobody, so that a thousand pages take no room. Used by
// PrintDocument and those that compose, paint and write one.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <memory>
#include <optional>

namespace neb {

// A file that holds many pictures one behind the other, kept open. Read from any thread.
class PictureShelf {
  public:
    virtual ~PictureShelf() = default;
    // Throws Fault when they cannot be read.
    virtual QByteArray Read(qint64 At, qint64 Length) const = 0;
};

struct PrintPicture {
    QString Path;      // empty: Bytes are the picture, or the part of a shelf
    QByteArray Bytes;  // of the whole file, of any format that the program reads
    std::shared_ptr<const PictureShelf> Shelf = {};
    qint64 At = 0, Length = 0;  // bytes from the shelf's start
};

// The bytes of its file. Throws Fault when it cannot be read.
QByteArray FileBytesOf(const PrintPicture& Picture);
// Upright, in sRGB (Format_RGB32), made smaller to the width and height of Most where it has more
// pixels along them. Throws Fault when it cannot be decoded.
QImage PixelsOf(const PrintPicture& Picture, QSize Most);
// Upright width and height in pixels. Only a file that does not tell them at its start is decoded.
// Throws Fault when it is no picture, or one that is cut off.
QSize MeasurePicture(const PrintPicture& Picture);

// A JPEG that every reader of a PDF shows as the program does: whole, in one or three colours of
// eight bits, in sRGB.
struct PlainJpeg {
    QSize Stored;         // pixels, as they lie in the file
    int Orientation = 1;  // 1 to 8 as EXIF numbers them
};
// Nothing where the bytes are no such JPEG.
std::optional<PlainJpeg> ReadPlainJpeg(const QByteArray& Bytes);

}  // namespace neb
