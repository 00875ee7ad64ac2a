// What a picture file says of itself in words. For pictures that come back without a caption.
#pragma once

#include <QByteArray>
#include <QString>

namespace neb {

// The title or the description that was given to the picture, else when it was taken ("24 December
// 2003, 18:30"): the words and the time of PictureFacts. Empty where its file says nothing of the
// kind.
QString WordsOfPicture(const QByteArray& Bytes);

}  // namespace neb
