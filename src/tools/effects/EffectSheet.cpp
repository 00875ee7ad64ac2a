#include "tools/effects/EffectSheet.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include "effects/EffectCatalogue.h"
#include "effects/Transition.h"
#include "tools/effects/EffectPictures.h"

namespace neb {
namespace {

constexpr int Columns = 8;
constexpr QSize Thumbnail(180, 112);
constexpr int Gap = 12, CaptionHeight = 24;
// Drawn larger and made smaller, so that fine patterns look as they do on a screen.
constexpr int Finer = 4;
constexpr QRgb Ground = 0xFF1C1F24u, NumberInk = 0xFF8E99A8u, NameInk = 0xFFE8EBEFu;

QSize SheetSize() {
    const int Rows = (EffectCount() + Columns - 1) / Columns;
    return {Gap + Columns * (Thumbnail.width() + Gap),
            Gap + Rows * (Thumbnail.height() + CaptionHeight + Gap / 2)};
}

QPoint CornerOf(int Number) {
    const int Column = (Number - 1) % Columns, Row = (Number - 1) / Columns;
    return {Gap + Column * (Thumbnail.width() + Gap),
            Gap + Row * (Thumbnail.height() + CaptionHeight + Gap / 2)};
}

QImage HalfWay(int Number, const QImage& Old, const QImage& New) {
    QImage Frame;
    Transition(Number, Old, New).Draw(0.5, Frame);
    return Frame.scaled(Thumbnail, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// So that a long name is whole.
QFont Narrowed(QFont Font, int Width, int Room) {
    if (Width > Room) Font.setPixelSize(Font.pixelSize() * Room / Width);
    return Font;
}

void PaintCaption(QPainter& Painter, int Number, QPoint Corner) {
    const QRect Room(Corner.x(), Corner.y() + Thumbnail.height(), Thumbnail.width(), CaptionHeight);
    const QString Digits = QString::number(Number) + QStringLiteral("  ");
    const QFontMetrics Metrics = Painter.fontMetrics();
    const int Indent = Metrics.horizontalAdvance(Digits);
    Painter.setPen(QColor::fromRgb(NumberInk));
    Painter.drawText(Room, Qt::AlignLeft | Qt::AlignVCenter, Digits);
    Painter.setPen(QColor::fromRgb(NameInk));
    const QString Name = EffectName(Number);
    const QFont Usual = Painter.font();
    Painter.setFont(Narrowed(Usual, Metrics.horizontalAdvance(Name), Room.width() - Indent));
    Painter.drawText(Room.adjusted(Indent, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, Name);
    Painter.setFont(Usual);
}

}  // namespace

QImage PaintEffectSheet(const QImage& Old, const QImage& New) {
    const QImage From = Filling(Old, Thumbnail * Finer), To = Filling(New, Thumbnail * Finer);
    QImage Sheet(SheetSize(), QImage::Format_RGB32);
    Sheet.fill(Ground);
    QPainter Painter(&Sheet);
    QFont Font(QStringLiteral("DejaVu Sans"));
    Font.setPixelSize(12);
    Painter.setFont(Font);
    for (int Number = 1; Number <= EffectCount(); ++Number) {
        const QPoint Corner = CornerOf(Number);
        Painter.drawImage(Corner, HalfWay(Number, From, To));
        PaintCaption(Painter, Number, Corner);
    }
    return Sheet;
}

}  // namespace neb
