// The places in a picture's file that say something of the picture, found by the file's outline:
// nothing of the picture itself is read or decoded. For PictureFacts.
#pragma once

#include "pictures/BlockDirectories.h"

namespace neb {

struct PictureBlocks {
    ExifTags Exif;
    QByteArray Iptc;         // records of IPTC
    QByteArray Xmp;          // a packet
    QByteArray Title;        // plain text of a PNG file, in UTF-8
    QByteArray Description;  // the same
};

// Of each kind the first; empty where there is none. Takes some megabytes at most and asks for a
// bounded number of pieces, whatever the file promises. Throws what Read throws.
PictureBlocks BlocksOf(const FileBytes& Read);

}  // namespace neb
