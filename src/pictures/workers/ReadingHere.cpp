#include "pictures/workers/ReadingHere.h"

#include <QColorSpace>

#include "pictures/notes/JpegTurn.h"
#include "pictures/notes/PictureNotes.h"

namespace neb {

DecodedPicture ReadingHere::Decode(const QByteArray& Bytes, const NeededSize& Needed) {
    return DecodeHere(Bytes, Needed);
}

std::optional<QByteArray> ReadingHere::Turned(const QByteArray& Jpeg, PictureTurn Turn) {
    return TurnedJpeg(Jpeg, Turn);
}

QByteArray ReadingHere::NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) {
    return neb::NotesFor(Pixels, Source, KeepsPlace);
}

QByteArray ReadingHere::WithoutPlace(const QByteArray& Jpeg) {
    return neb::WithoutPlace(Jpeg);
}

bool ReadingHere::IsScreenProfile(const QByteArray& Profile) {
    return QColorSpace::fromIccProfile(Profile) == QColorSpace(QColorSpace::SRgb);
}

}  // namespace neb
