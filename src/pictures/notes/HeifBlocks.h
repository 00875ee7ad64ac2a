// What a HEIC or AVIF file says of its picture, as blocks of bytes. For what keeps such notes.
#pragma once

#include <QByteArray>

namespace neb {

struct HeifBlocks {
    QByteArray Exif;  // a TIFF structure
    QByteArray Xmp;   // a packet
};

// Whether the bytes are of that family of formats.
bool IsHeif(const QByteArray& File);
// Of the first picture; empty where there is none, or the file is damaged.
HeifBlocks BlocksOfHeif(const QByteArray& File);

}  // namespace neb
