// PNG and WBMP, and with the extra formats GIF and WebP, by Qt's readers.
#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/TiffTags.h"

namespace neb {
namespace {

// The reader's own limit is off: ours is checked before.
void LiftReaderLimit() {
    static const bool Done = (QImageReader::setAllocationLimit(0), true);
    Q_UNUSED(Done);
}

// A pixel as the reader has it, and as a picture for the screen besides it unless one can become
// the other in place.
qint64 BytesNeeded(const QImageReader& Reader, QSize Size, const PictureSource& Source) {
    const QPixelFormat Format = QImage::toPixelFormat(Reader.imageFormat());
    const int Own = Reader.imageFormat() == QImage::Format_Invalid ? 4 : Format.bitsPerPixel() / 8;
    const bool InPlace = Own == 4;
    return PixelCount(Size) * (InPlace ? 4 : Own + 4) + Source.Bytes.size();
}

// A bare gamma of 2.2 is how sRGB was written before there was a word for it; only an embedded
// profile means it to the letter.
QByteArray ProfileOf(const QImage& Picture, const PictureSource& Source) {
    QColorSpace Space = Picture.colorSpace();
    const bool Bare = !PngChunk(ByteView(Source.Bytes), "iCCP");
    if (Bare && std::abs(Space.gamma() - 2.2F) < 0.02F)
        Space.setTransferFunction(QColorSpace::TransferFunction::SRgb);
    return Space.iccProfile();
}

}  // namespace

DecodedPicture DecodeByQt(const PictureSource& Source) {
    LiftReaderLimit();
    QBuffer Buffer(const_cast<QByteArray*>(&Source.Bytes));
    Buffer.open(QIODevice::ReadOnly);
    QImageReader Reader(&Buffer, Source.Format);
    const QSize Stored = Reader.size();
    if (Stored.isEmpty()) {
        CheckIsWhole(Source);
        ThrowDamaged();
    }
    const DecodeBudget Budget(Stored, BytesNeeded(Reader, Stored, Source));
    CheckIsWhole(Source);
    QImage Picture = Reader.read();
    if (Picture.isNull()) ThrowDamaged();
    const QByteArray Profile = ProfileOf(Picture, Source);
    Picture = ToScreenColours(std::move(Picture), Profile);
    Picture = Upright(Picture, OrientationOf(Source.Bytes));
    const QSize Full = Picture.size();
    return {std::move(Picture), Full};
}

}  // namespace neb
