#include "controls/fields/MenuIcon.h"

#include <QPainter>

namespace neb {
namespace {

constexpr int Sides[] = {16, 20, 24, 32, 48};  // pixels, at the usual scales of the screen

QPixmap InColour(QPixmap Shape, const QColor& Colour) {
    QPainter Painter(&Shape);
    Painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    Painter.fillRect(Shape.rect(), Colour);
    return Shape;
}

}  // namespace

QIcon MenuIcon(const QIcon& Icon, const QPalette& Palette) {
    QIcon Made;
    if (Icon.isNull()) return Made;
    for (const int Side : Sides) {
        const QPixmap Shape = Icon.pixmap(QSize(Side, Side), 1.0);
        Made.addPixmap(Shape);
        Made.addPixmap(InColour(Shape, Palette.color(QPalette::HighlightedText)), QIcon::Active);
    }
    return Made;
}

}  // namespace neb
