#include "pictures/PictureWords.h"

#include "pictures/PictureFacts.h"

namespace neb {

QString WordsOfPicture(const QByteArray& Bytes) {
    const PictureFacts Facts = FactsOf(Bytes);
    if (!Facts.Words.isEmpty()) return Facts.Words;
    return Facts.Taken.isValid() ? TimeText(Facts.Taken) : QString();
}

}  // namespace neb
