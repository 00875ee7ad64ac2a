// Windows metafiles: drawings that become pixels, the older ones at the size they have on a screen
// of 96 dots an inch, enhanced ones with those of the device that they were made for.
#include <QPainter>
#include <QSvgRenderer>

#include "pictures/decoders/PictureColour.h"
#include "pictures/formats/PatientDevice.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/metafiles/EmfFrame.h"
#include "pictures/metafiles/MetafileSvg.h"
#include "pictures/metafiles/WmfPlayer.h"

namespace neb {
namespace {

// Larger drawings are drawn smaller: they have no pixels to lose.
constexpr int LongestDrawing = 4096;
constexpr int MostMilliseconds = 3000;
constexpr double MostPixels = 1 << 24;  // a side, before it is drawn smaller

QSize DrawnSize(QSize Natural) {
    if (Natural.isEmpty()) ThrowDamaged();
    const QSize Most(LongestDrawing, LongestDrawing);
    const bool Fits = Natural.boundedTo(Most) == Natural;
    return (Fits ? Natural : Natural.scaled(Most, Qt::KeepAspectRatio)).expandedTo(QSize(1, 1));
}

template <class Paint>
DecodedPicture Draw(QSize Natural, Paint PaintOn) {
    const QSize Size = DrawnSize(Natural);
    const DecodeBudget Budget(Size, PixelCount(Size) * 4);
    QImage Picture(Size, QImage::Format_RGB32);
    Picture.fill(Qt::white);
    PatientDevice Device(Picture, MostMilliseconds);
    QPainter Painter(&Device);
    Painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    PaintOn(Painter, Size);
    Painter.end();
    if (Device.GaveUp()) ThrowDamaged();
    MakeOpaque(Picture);  // mixing bit by bit reaches the unused byte, too
    return {Picture, Size};
}

DecodedPicture DrawEmf(const QByteArray& Emf) {
    QSvgRenderer Drawing(EmfToSvg(Emf));
    const QRectF Frame = EmfFrame(Emf);
    if (!Drawing.isValid() || Frame.isEmpty()) ThrowDamaged();
    Drawing.setViewBox(Frame);
    return Draw(Frame.size().boundedTo(QSizeF(MostPixels, MostPixels)).toSize().expandedTo({1, 1}),
                [&](QPainter& Painter, QSize Size) { Drawing.render(&Painter, QRect({}, Size)); });
}

DecodedPicture DrawWmf(const WmfPlayer& Player) {
    return Draw(Player.NaturalSize(),
                [&](QPainter& Painter, QSize Size) { Player.Play(Painter, Size); });
}

}  // namespace

DecodedPicture DecodeEmf(const PictureSource& Source) {
    return DrawEmf(Source.Bytes);
}

// Office programs put the whole drawing into the file a second time, as an enhanced metafile.
DecodedPicture DecodeWmf(const PictureSource& Source) {
    const WmfPlayer Player(Source.Bytes);
    const QByteArray Carried = CarriedEmf(Source.Bytes);
    if (Carried.isEmpty()) return DrawWmf(Player);
    try {
        return DrawEmf(Carried);
    } catch (const Fault&) {
        return DrawWmf(Player);
    }
}

}  // namespace neb
