// Files and blocks in which a directory tells where each thing lies: the fields of EXIF and TIFF,
// the items of HEIC and AVIF. For PictureBlocks.
#pragma once

#include <QByteArray>
#include <QHash>
#include <functional>
#include <vector>

namespace neb {

// So many bytes from a place on; fewer at the end, none for a length beyond all reason.
using FileBytes = std::function<QByteArray(qint64 At, qint64 Length)>;

// The fields that hold words or times, of the first directory and the one of EXIF together.
struct ExifTags {
    QHash<quint16, QByteArray> Values;  // by the numbers of the tags
    bool IsBigEndian = false;
};
ExifTags ReadExifTags(const FileBytes& Read);

// What is kept beside the pictures.
struct HeifItem {
    QByteArray Type;  // "Exif", or a kind of text, such as "application/rdf+xml"
    QByteArray Bytes;
};
std::vector<HeifItem> ReadHeifItems(const FileBytes& Read);

}  // namespace neb
