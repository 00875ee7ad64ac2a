// What looks for EXIF, XMP, the orientation and the proportions in picture files, and whether they
// are whole, under libFuzzer. Built with the sanitizers only. Start it with tests/data/today as its
// corpus.
#include <cstdlib>

#include "pictures/PictureShape.h"
#include "pictures/formats/FileBlocks.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/formats/PictureOrientation.h"
#include "pictures/formats/PictureSniff.h"
#include "pictures/formats/XmpPacket.h"
#include "pictures/metafiles/EmfFrame.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* Data, size_t Size) {
    const QByteArray File(reinterpret_cast<const char*>(Data), static_cast<qsizetype>(Size));
    const int Orientation = neb::OrientationOf(File);
    if (Orientation < 1 || Orientation > 8) std::abort();
    const QByteArray Packet = neb::XmpPacketOf(File);
    if (neb::XmpValue(Packet, neb::XmpDublinCore, u"title").size() > 4 * Packet.size() + 4)
        std::abort();
    neb::LooksLikePicture(File);
    neb::GifIsWhole(File);
    neb::WebpIsWhole(File);
    neb::BoxesAreWhole(File);
    neb::FilePieces Pieces([&](qint64 At, qint64 Length) { return File.mid(At, Length); });
    const QSize Shape = neb::ShapeOf(Pieces);
    if (std::max(Shape.width(), Shape.height()) > neb::LongestSide) std::abort();
    const QRectF Frame = neb::EmfFrame(File);
    if (Frame.width() < 0 && Frame.isValid()) std::abort();
    return 0;
}
