#include "pictures/XShowFit.h"

#include <QPainter>
#include <algorithm>
#include <cstring>

#include "pictures/PictureResize.h"

namespace neb {
namespace {

// Of a side of the view: bars that are narrower, both together, look like a fault of the screen,
// and nobody sees so little of a stretch.
constexpr int kHairline = 100;

int Snapped(int Length, int Room) {
    return (Room - Length) * kHairline < Room ? Room : Length;
}

// A length in proportion, rounded; never nothing.
int Share(qint64 Product, qint64 Whole) {
    return std::max(1, static_cast<int>((Product + Whole / 2) / Whole));
}

QSize InProportion(QSize Picture, QSize View) {
    const qint64 W = Picture.width(), H = Picture.height();
    const bool WidthDecides = W * View.height() >= H * View.width();
    if (WidthDecides) return {View.width(), Snapped(Share(H * View.width(), W), View.height())};
    return {Snapped(Share(W * View.height(), H), View.width()), View.height()};
}

QSize SizeInView(QSize Picture, const XShowLayout& L) {
    if (!L.Fitted) return Picture;
    return L.InProportion ? InProportion(Picture, L.View) : L.View;
}

// Copies the part of a picture that lies in the view.
void CopyInto(QImage& View, const QImage& Picture, QPoint At) {
    const QRect Seen = QRect(At, Picture.size()) & View.rect();
    if (Seen.isEmpty()) return;
    for (int Y = Seen.top(); Y <= Seen.bottom(); ++Y)
        std::memcpy(View.scanLine(Y) + Seen.left() * 4,
                    Picture.constScanLine(Y - At.y()) + (Seen.left() - At.x()) * 4,
                    static_cast<std::size_t>(Seen.width()) * 4);
}

}  // namespace

QRect PlaceInView(QSize Picture, const XShowLayout& Layout) {
    const QSize Size = SizeInView(Picture, Layout);
    if (!Layout.Centred) return {QPoint(0, 0), Size};
    const auto Middle = [](int Room, int Used) {
        return Room >= Used ? (Room - Used) / 2 : -((Used - Room) / 2);
    };
    return {QPoint(Middle(Layout.View.width(), Size.width()),
                   Middle(Layout.View.height(), Size.height())),
            Size};
}

QImage FitToView(const QImage& Picture, const XShowLayout& Layout) {
    if (Layout.View.isEmpty()) return {};
    QImage View(Layout.View, QImage::Format_RGB32);
    View.fill(Qt::black);
    if (Picture.isNull()) return View;
    const QRect Place = PlaceInView(Picture.size(), Layout);
    CopyInto(View, ResizePicture(AsOpaque(Picture), Place.size(), ResizeFilter::Sharp),
             Place.topLeft());
    return View;
}

QImage AsOpaque(const QImage& Picture) {
    if (Picture.format() == QImage::Format_RGB32) return Picture;
    if (!Picture.hasAlphaChannel()) return Picture.convertToFormat(QImage::Format_RGB32);
    QImage White(Picture.size(), QImage::Format_RGB32);
    White.fill(Qt::white);
    QPainter(&White).drawImage(QPoint(0, 0), Picture);
    return White;
}

}  // namespace neb
