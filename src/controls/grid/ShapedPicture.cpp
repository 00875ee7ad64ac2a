#include "controls/grid/ShapedPicture.h"

#include "pictures/PictureResize.h"

namespace neb {
namespace {

QSize Fitted(QSize Shape, double Side) {
    const double Factor = Side / std::max(Shape.width(), Shape.height());
    return (QSizeF(Shape) * Factor).toSize().expandedTo({1, 1});
}

QImage Resized(const QImage& Picture, QSize Size) {
    if (Picture.size() == Size) return Picture;
    if (Picture.hasAlphaChannel())
        return Picture.scaled(Size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return ResizePicture(Picture.convertToFormat(QImage::Format_RGB32), Size, ResizeFilter::Sharp);
}

}  // namespace

QImage FittedPicture(const ShapedPicture& Of, double Scale) {
    if (Of.Picture.isNull() || Of.Shape.isEmpty()) return Of.Picture;
    QImage Ready = Resized(Of.Picture, Fitted(Of.Shape, PictureSide * Scale));
    Ready.setDevicePixelRatio(Scale);
    return Ready;
}

}  // namespace neb
