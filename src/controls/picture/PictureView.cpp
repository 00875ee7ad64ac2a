#include "controls/picture/PictureView.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include "controls/speech/SpokenRole.h"
#include "pictures/PictureResize.h"
#include "pictures/XShowFit.h"

namespace neb {

PictureView::PictureView(QWidget* Parent) : QWidget(Parent) {
    SpeakAs(*this, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::SetPicture(const QImage& Picture) {
    mPicture = AsOpaque(Picture);
    mScaled = {};
    update();
}

QSize PictureView::LargestScreen() {
    QSize Largest(2048, 1536);  // a screen that is plugged in later is hardly smaller
    for (const QScreen* Each : QGuiApplication::screens())
        Largest = Largest.expandedTo((QSizeF(Each->size()) * Each->devicePixelRatio()).toSize());
    return Largest;
}

QImage PictureView::ForScreens(const QImage& Picture, QSize Largest) {
    if (Picture.size().boundedTo(Largest) == Picture.size()) return Picture;
    return ResizePicture(AsOpaque(Picture),
                         Picture.size().scaled(Largest, Qt::KeepAspectRatio).expandedTo({1, 1}),
                         ResizeFilter::Sharp);
}

void PictureView::SetEmptyText(const QString& Text) {
    mEmptyText = Text;
    update();
}

QRect PictureView::PictureRect() const {
    if (mPicture.isNull()) return {};
    QRect Place({}, mPicture.size().scaled(size(), Qt::KeepAspectRatio).expandedTo({1, 1}));
    Place.moveCenter(rect().center());
    return Place;
}

const QImage& PictureView::Scaled(QSize DevicePixels) {
    if (mScaled.size() != DevicePixels) mScaled = ResizeAtOnce(mPicture, DevicePixels);
    return mScaled;
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    if (mPicture.isNull()) {
        Painter.setPen(palette().color(QPalette::PlaceholderText));
        Painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, mEmptyText);
        return;
    }
    const QRect Place = PictureRect();
    Painter.drawImage(Place, Scaled((QSizeF(Place.size()) * devicePixelRatioF()).toSize()));
}

void PictureView::mousePressEvent(QMouseEvent* Event) {
    mPressed = Event->button() == Qt::LeftButton;
}

// A click begins here, too: the button may have been pressed on a window that was here before.
void PictureView::mouseReleaseEvent(QMouseEvent* Event) {
    if (Event->button() != Qt::LeftButton || !std::exchange(mPressed, false)) return;
    if (rect().contains(Event->pos())) Q_EMIT Clicked();
}

void PictureView::mouseDoubleClickEvent(QMouseEvent* Event) {
    if (Event->button() == Qt::LeftButton) Q_EMIT DoubleClicked();
}

}  // namespace neb
