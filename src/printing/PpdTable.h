// The table at the end of a ".ppd" file: all of a document but the bytes of its pictures. The
// layout is told in docs/PPD-FORMAT.md. Used by PpdFile.
#pragma once

#include <memory>

#include "printing/PrintDocument.h"

namespace neb {

// A picture as it lies in the file.
struct PpdPicture {
    qint64 At = 0, Length = 0;  // bytes from the file's start
    QByteArray Sum;             // SHA-256 of its bytes
};
// The first picture lies here, the others without a gap behind it.
inline constexpr qint64 PpdPicturesAt = 12;
// Bytes of a table; some millions of places have room.
inline constexpr qint64 LargestPpdTable = 256LL << 20;

// Numbers tells for each picture of the document which one of the file it is. Throws Fault when
// the document holds measures or more places than a table can.
QByteArray PpdTableOf(const PrintDocument& Document, const std::vector<PpdPicture>& Pictures,
                      const std::vector<int>& Numbers);

struct PpdContents {
    std::vector<PpdPicture> Pictures;
    std::shared_ptr<PrintDocument> Document;  // its pictures are parts of the shelf
};
// Throws Fault, naming no file, for what PpdTableOf does not write.
PpdContents ContentsOfPpdTable(const QByteArray& Table, const PrintPicture& StandIn,
                               const std::shared_ptr<const PictureShelf>& Shelf);

[[noreturn]] void ThrowPpdDamaged();

}  // namespace neb
