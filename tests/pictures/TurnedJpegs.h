// JPEGs that lie on their side, as cameras write them: the EXIF block, and the motif in each of the
// eight orientations. For the tests of whatever has to bring them upright.
#pragma once

#include "pictures/Pictures.h"

namespace neb::tests {

// An EXIF block with one directory of one entry.
inline QByteArray ExifBlock(bool BigEndian, int Orientation) {
    QByteArray Block = BigEndian ? QByteArray::fromHex(
                                       "4d4d002a00000008"
                                       "0001"
                                       "0112"
                                       "0003"
                                       "00000001"
                                       "00000000"
                                       "00000000")
                                 : QByteArray::fromHex(
                                       "49492a0008000000"
                                       "0100"
                                       "1201"
                                       "0300"
                                       "01000000"
                                       "00000000"
                                       "00000000");
    Block[BigEndian ? 19 : 18] = static_cast<char>(Orientation);
    return Block;
}

inline QByteArray WithExif(const QByteArray& Jpeg, const QByteArray& Block) {
    const QByteArray Body = QByteArray("Exif\0\0", 6) + Block;
    const int Length = static_cast<int>(Body.size()) + 2;
    QByteArray Marker("\xFF\xE1");
    Marker.append(static_cast<char>(Length >> 8)).append(static_cast<char>(Length & 255));
    return Jpeg.left(2) + Marker + Body + Jpeg.mid(2);
}

inline QByteArray JpegOf(const QImage& Picture) {
    ImgX Made;
    Made.SetPicture(Picture);
    return Made.ToJpeg();
}

// How the motif lies in a file of each orientation.
struct Lying {
    int Orientation;
    QColor TL, TR, BL, BR;
};
inline const Lying AllLying[] = {{1, Red, Green, Blue, Grey}, {2, Green, Red, Grey, Blue},
                                 {3, Grey, Blue, Green, Red}, {4, Blue, Grey, Red, Green},
                                 {5, Red, Blue, Green, Grey}, {6, Green, Grey, Red, Blue},
                                 {7, Grey, Green, Blue, Red}, {8, Blue, Red, Grey, Green}};

}  // namespace neb::tests
