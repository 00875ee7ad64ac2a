// All that the program has done with the bytes of foreign pictures: behind a locked door, by
// processes that can do nothing else. Used by the picture object, by what stores and prints
// pictures; safe on any thread.
#pragma once

#include <QByteArray>
#include <QSize>
#include <optional>

#include "pictures/formats/PictureDecoder.h"
#include "pictures/notes/PictureTurn.h"
#include "pictures/workers/OwnPictures.h"

namespace neb {

// What is done behind the door, by the words of those who do it (PictureDecoder.h, JpegTurn.h,
// PictureNotes.h). Each may throw a Fault, without the file's name, also for a picture that has
// brought the process down that read it.
class PictureReader {
  public:
    virtual ~PictureReader() = default;
    virtual DecodedPicture Decode(const QByteArray& Bytes, const NeededSize& Needed) = 0;
    virtual std::optional<QByteArray> Turned(const QByteArray& Jpeg, PictureTurn Turn) = 0;
    virtual QByteArray NotesFor(QSize Pixels, const QByteArray& Source, bool KeepsPlace) = 0;
    virtual QByteArray WithoutPlace(const QByteArray& Jpeg) = 0;
    // Whether an ICC profile means the colours of the screen, sRGB.
    virtual bool IsScreenProfile(const QByteArray& Profile) = 0;
};

// The one of the program, unless a test has put another in its place.
PictureReader& ThePictureReader();
// Null: the program's own again. Nobody may be reading.
void SetPictureReader(PictureReader* Other);

// Of bytes whose origin nobody knows; what the program has made itself is read directly.
inline DecodedPicture DecodePicture(const QByteArray& Bytes, const NeededSize& Needed = {}) {
    if (auto Own = OwnPicture(Bytes, Needed)) return std::move(*Own);
    return ThePictureReader().Decode(Bytes, Needed);
}

}  // namespace neb
