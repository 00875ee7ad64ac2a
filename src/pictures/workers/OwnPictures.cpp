#include "pictures/workers/OwnPictures.h"

#include <memory>

#include "pictures/formats/ByteView.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/notes/JpegParts.h"
#include "pictures/workers/OwnSums.h"
#include "pictures/workers/OwnThumbnail.h"
#include "support/files/CheckSums.h"

namespace neb {
namespace {

// As the encoder begins each of its files. Cameras do not: so their pictures need no sum.
const QByteArray OwnBeginning("\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 20);

std::unique_ptr<OwnSums>& TheSums() {
    static auto* const Its = new std::unique_ptr<OwnSums>;
    return *Its;
}

bool IsOwnJpeg(const QByteArray& Bytes) {
    return TheSums() && Bytes.startsWith(OwnBeginning) && TheSums()->Has(SumOfBytes(Bytes));
}

}  // namespace

void KeepOwnSumsIn(const QString& Folder) {
    TheSums() = Folder.isEmpty() ? nullptr : std::make_unique<OwnSums>(Folder);
}

void NoteOwnJpeg(const QByteArray& Jpeg) {
    if (TheSums()) TheSums()->Note(SumOfBytes(Jpeg));
}

std::optional<DecodedPicture> OwnPicture(const QByteArray& Bytes, const NeededSize& Needed) {
    if (const QImage Small = OwnThumbnail(Bytes); !Small.isNull())
        return DecodedPicture{Small, Small.size()};
    if (IsOwnJpeg(Bytes)) return DecodeJpeg({Bytes, "jpeg", Needed});
    return std::nullopt;
}

bool AreNotes(QByteArrayView Parts) {
    const ByteView Bytes(Parts);
    for (qint64 At = 0; At < Bytes.Size();) {
        const int Marker = Bytes.U8(At + 1), Length = Bytes.U16(At + 2, true);
        const bool Tells = Marker == ExifMarker || Marker == PhotoshopMarker;
        if (Bytes.U8(At) != 0xFF || !Tells || Length < 2 || !Bytes.Has(At + 2, Length))
            return false;
        At += 2 + Length;
    }
    return true;
}

}  // namespace neb
