// Which format a file is of, told by its content alone.
#pragma once

#include <QByteArray>
#include <optional>

namespace neb {

enum class PictureFormat {
    Jpeg,
    Png,
    Tiff,
    Psd,
    Emf,
    Wmf,
    Pcd,
    Gif,
    Webp,
    Heif,
    Jp2,
    Bmp,
    Pcx,
    Wbmp,
    Tga
};

// Of a file that begins with these bytes, four thousand of them or its whole; those of extra
// formats only while they are on (support/MediaTypes).
std::optional<PictureFormat> FormatOf(const QByteArray& Head);
// Whether such a file is taken for a picture.
bool LooksLikePicture(const QByteArray& Head);

}  // namespace neb
