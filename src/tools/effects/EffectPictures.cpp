#include "tools/effects/EffectPictures.h"

#include <QBuffer>

#include "pictures/ImgX.h"
#include "pictures/PictureOfFile.h"
#include "pictures/XShowFit.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

constexpr int SheetQuality = 85;

bool EndsIn(const QString& File, const char* Extension) {
    return File.endsWith(QLatin1String(Extension), Qt::CaseInsensitive);
}

QByteArray PngBytes(const QImage& Picture) {
    QByteArray Bytes;
    QBuffer Buffer(&Bytes);
    Buffer.open(QIODevice::WriteOnly);
    Picture.save(&Buffer, "PNG");
    return Bytes;
}

QByteArray JpegBytes(const QImage& Picture) {
    ImgX Image;
    Image.SetPicture(Picture);
    Image.SetJpgQuality(SheetQuality);
    return Image.ToJpeg();
}

struct Kind {
    const char* Extension;
    QByteArray (*Encode)(const QImage& Picture);
};
constexpr Kind Kinds[] = {{".png", PngBytes}, {".jpg", JpegBytes}, {".jpeg", JpegBytes}};

const Kind* KindOf(const QString& File) {
    for (const Kind& Each : Kinds)
        if (EndsIn(File, Each.Extension)) return &Each;
    return nullptr;
}

}  // namespace

QImage ProgramPicture(int Which) {
    return PictureOfFile(AppPath() + QStringLiteral("SpeedTest%1.bmp").arg(Which));
}

QImage FittedTo(const QImage& Picture, QSize Size) {
    XShowLayout Layout;
    Layout.View = Size;
    Layout.Fitted = Layout.Centred = true;
    return FitToView(Picture, Layout);
}

QImage Filling(const QImage& Picture, QSize Size) {
    const QImage Large =
        Picture.scaled(Size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint Corner((Large.width() - Size.width()) / 2, (Large.height() - Size.height()) / 2);
    return AsOpaque(Large.copy(QRect(Corner, Size)));
}

bool MayWritePicture(const QString& File) {
    return KindOf(File) != nullptr;
}

void WritePicture(const QString& File, const QImage& Picture) {
    const Kind* As = KindOf(File);
    if (!As) throw Fault(QStringLiteral("A picture is written as .png or .jpg."), File);
    ReplaceFile(File, As->Encode(Picture));
}

}  // namespace neb
