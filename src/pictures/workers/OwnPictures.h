// What this program has made itself needs no locked door: thumbnails, known by their one form, and
// the JPEGs that its own encoder wrote, known by their check sums. They are read in this very
// process, so that a show loses no time. Used by DecodePicture and by what makes such JPEGs.
#pragma once

#include <optional>

#include "pictures/formats/PictureDecoder.h"

namespace neb {

// Where the sums of own JPEGs are kept (pictures/workers/OwnSums.h): in the user's own folder, at
// the start of a program. Until then, and for an empty one, no JPEG is an own one. Nobody may be
// reading pictures.
void KeepOwnSumsIn(const QString& Folder);

// A JPEG that the own encoder has just made. Not one that came from elsewhere, be it turned or
// tidied: those have the bytes of others.
void NoteOwnJpeg(const QByteArray& Jpeg);

// Nothing where the bytes are no own picture's. Throws as DecodePicture does.
std::optional<DecodedPicture> OwnPicture(const QByteArray& Bytes, const NeededSize& Needed);

// Whether these are parts for a JPEG that only tell of the picture. Who read them may have been
// taken over by it: others would change how the pixels behind them are read.
bool AreNotes(QByteArrayView Parts);

}  // namespace neb
