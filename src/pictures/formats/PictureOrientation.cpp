#include "pictures/formats/PictureOrientation.h"

#include "pictures/formats/FileBlocks.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/TiffTags.h"
#include "pictures/formats/XmpPacket.h"

namespace neb {
namespace {

constexpr quint16 TurnTag = 0x0112;
constexpr int NotTold = 0;

int Checked(qint64 Number) {
    return Number >= 1 && Number <= 8 ? static_cast<int>(Number) : NotTold;
}

int ByExif(const QByteArray& File) {
    const QByteArray Block = ExifBlockOf(File);
    return Checked(TiffTags(Block).Value(TurnTag).value_or(NotTold));
}

int ByXmp(const QByteArray& File) {
    return Checked(XmpValue(XmpPacketOf(File), XmpTiff, u"Orientation").toInt());
}

}  // namespace

int OrientationOf(const QByteArray& File) {
    if (LooksLikeHeic(File)) return 1;
    if (const int Number = ByExif(File)) return Number;
    if (const int Number = ByXmp(File)) return Number;
    return 1;
}

}  // namespace neb
