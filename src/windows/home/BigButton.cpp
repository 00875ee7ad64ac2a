#include "windows/home/BigButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace neb {
namespace {

constexpr int Padding = 14, Gap = 14;  // logical pixels
constexpr int ButtonLetters = 50;
constexpr double LargerWords = 1.25;

}  // namespace

BigButton::BigButton(const QString& Text, const QString& Words, QWidget* Parent)
    : QPushButton(Text, Parent), mWords(Words) {
    setAccessibleDescription(Words);
    setAutoDefault(true);  // Enter presses it, too
}

int BigButton::IconSide() const {
    return 5 * fontMetrics().height() / 2;
}

QFont BigButton::Large() const {
    QFont Font = font();
    Font.setPointSizeF(Font.pointSizeF() * LargerWords);
    Font.setBold(true);
    return Font;
}

QRect BigButton::RoomForText(QSize Within) const {
    const int Left = Padding + IconSide() + Gap;
    return {Left, Padding, Within.width() - Left - Padding, Within.height() - 2 * Padding};
}

QSize BigButton::sizeHint() const {
    const int Width = ButtonLetters * fontMetrics().averageCharWidth() + IconSide() + 3 * Padding;
    const QRect Words =
        fontMetrics().boundingRect(RoomForText({Width, QWIDGETSIZE_MAX}), Qt::TextWordWrap, mWords);
    const int Text = QFontMetrics(Large()).lineSpacing() + Words.height();
    return {Width, std::max(Text, IconSide()) + 2 * Padding};
}

void BigButton::paintEvent(QPaintEvent*) {
    QStylePainter Painter(this);
    QStyleOptionButton Option;
    initStyleOption(&Option);
    Option.text.clear();
    Option.icon = {};
    Painter.drawControl(QStyle::CE_PushButton, Option);
    const QRect Icon(Padding, (height() - IconSide()) / 2, IconSide(), IconSide());
    icon().paint(&Painter, Icon, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    QRect Room = RoomForText(size());
    Painter.setPen(palette().color(QPalette::ButtonText));
    Painter.setFont(Large());
    Painter.drawText(Room, Qt::AlignLeft | Qt::AlignTop, text());
    Room.setTop(Room.top() + Painter.fontMetrics().lineSpacing());
    Painter.setFont(font());
    Painter.drawText(Room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, mWords);
}

}  // namespace neb
