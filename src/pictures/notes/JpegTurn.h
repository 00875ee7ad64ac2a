// JPEGs turned and flipped without loss: their coefficients change places, and no pixel is made
// anew. Used behind a locked door; safe on worker threads.
#pragma once

#include <QByteArray>
#include <optional>

#include "pictures/notes/PictureTurn.h"

namespace neb {

// All that the file says of the picture stays, as it is. Nothing where it cannot be done without
// loss: the sides are no multiples of the blocks, or the library does not know how it is stored.
std::optional<QByteArray> TurnedJpeg(const QByteArray& Jpeg, PictureTurn Turn);

}  // namespace neb
