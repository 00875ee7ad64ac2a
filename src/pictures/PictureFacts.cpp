#include "pictures/PictureFacts.h"

#include "pictures/PictureWords.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr qint64 MostBytes = 1 << 20;  // words stand at the head of a file

}  // namespace

PictureFacts FactsOf(const QByteArray& Bytes) {
    return {WordsOfPicture(Bytes), {}};
}

PictureFacts FactsOfFile(const QString& File) try {
    return FactsOf(ReadFileHead(File, MostBytes));
} catch (const Fault&) {
    return {};
}

}  // namespace neb
