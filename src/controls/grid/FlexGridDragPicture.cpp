// What hangs at the pointer while rows are dragged.
#include <QPainter>

#include "controls/grid/FlexGrid.h"
#include "controls/grid/FlexGridDrag.h"

namespace neb {
namespace {

constexpr int LargestSide = 96;
constexpr int CardStep = 4;  // by so much a card behind peeps out

// The first of these columns that is seen and has something in this row; -1 for none.
template <typename Filled>
int FirstSeen(const FlexGrid& Grid, FlexKind Kind, Filled Has) {
    for (int Col = 0; Col < Grid.Cols(); ++Col)
        if (Grid.Column(Col).Kind == Kind && !Grid.ColHidden(Col) && Has(Col)) return Col;
    return -1;
}

QImage Blank(QSize Size, double Scale) {
    QImage Image(Size * Scale, QImage::Format_ARGB32_Premultiplied);
    Image.setDevicePixelRatio(Scale);
    Image.fill(Qt::transparent);
    return Image;
}

// A row without a picture is known by its text.
QImage TextCard(const FlexGrid& Grid, const QString& Text) {
    const QFontMetrics Metrics = Grid.fontMetrics();
    const int Margin = Metrics.height() / 3, Widest = 2 * LargestSide;
    const QString Shown = Metrics.elidedText(Text, Qt::ElideRight, Widest);
    QImage Card = Blank(
        QSize(Metrics.horizontalAdvance(Shown), Metrics.height()) + QSize(2 * Margin, 2 * Margin),
        Grid.devicePixelRatioF());
    Card.fill(Grid.palette().color(QPalette::Base));
    QPainter Painter(&Card);
    Painter.setFont(Grid.font());
    Painter.setPen(Grid.palette().color(QPalette::Text));
    Painter.drawText(QRectF(QPointF(), Card.deviceIndependentSize()), Qt::AlignCenter, Shown);
    return Card;
}

QImage CardOf(const FlexGrid& Grid, int Row) {
    const int Col = FirstSeen(Grid, FlexKind::Picture, [&](int Each) {
        return !Grid.ShownPicture(Row, Each).Picture.isNull();
    });
    if (Col >= 0) return FittedPicture(Grid.ShownPicture(Row, Col), Grid.devicePixelRatioF());
    const int Text = FirstSeen(Grid, FlexKind::Text,
                               [&](int Each) { return !Grid.TextMatrix(Row, Each).isEmpty(); });
    return TextCard(Grid, Text < 0 ? QString::number(Row + 1) : Grid.TextMatrix(Row, Text));
}

QSize ShownSize(const QImage& Card) {
    const QSize Size = Card.deviceIndependentSize().toSize();
    const QSize Most(qMax(LargestSide, qMin(Size.width(), 3 * LargestSide)), LargestSide);
    return Size.boundedTo(Most) == Size ? Size : Size.scaled(Most, Qt::KeepAspectRatio);
}

QSize CountSize(const FlexGrid& Grid, int Count) {
    const QFontMetrics Metrics = Grid.fontMetrics();
    const int Height = Metrics.height() * 4 / 3;
    return {qMax(Height, Metrics.horizontalAdvance(QString::number(Count)) + Height), Height};
}

void PaintCount(QPainter& Painter, const FlexGrid& Grid, const QRect& Room, int Count) {
    const QPalette Colours = Grid.palette();
    const QRectF Pill = QRectF(Room).adjusted(1, 1, -1, -1);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setFont(Grid.font());
    Painter.setPen(QPen(Colours.color(QPalette::HighlightedText), 1.5));
    Painter.setBrush(Colours.highlight());
    Painter.drawRoundedRect(Pill, Pill.height() / 2, Pill.height() / 2);
    Painter.drawText(Pill, Qt::AlignCenter, QString::number(Count));
}

void PaintCards(QPainter& Painter, const FlexGrid& Grid, const QImage& Card, QRect Place,
                int Behind) {
    Painter.setPen(Grid.palette().color(QPalette::Dark));
    Painter.setBrush(Grid.palette().base());
    for (int I = Behind; I > 0; --I)
        Painter.drawRect(Place.translated(I * CardStep, I * CardStep).adjusted(0, 0, -1, -1));
    Painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Painter.drawImage(Place, Card);
    Painter.setBrush(Qt::NoBrush);
    Painter.drawRect(Place.adjusted(0, 0, -1, -1));
}

}  // namespace

QPixmap DragPicture(const FlexGrid& Grid) {
    const int Count = Grid.SelectedRows();
    if (Count == 0) return {};
    const QImage Card = CardOf(Grid, Grid.SelectedRow(0));
    const QRect Place(QPoint(), ShownSize(Card));
    const int Behind = qMin(Count - 1, 2);
    const QSize Badge = Count > 1 ? CountSize(Grid, Count) : QSize(0, 0);
    // the count sits on the lower right corner
    const QRect Corner(Place.bottomRight() - QPoint(Badge.width(), Badge.height()) / 2 +
                           QPoint(CardStep, CardStep) * Behind,
                       Badge);
    const QRect Whole =
        Place.united(Place.translated(CardStep * Behind, CardStep * Behind)).united(Corner);
    QImage Image = Blank(Whole.size(), Grid.devicePixelRatioF());
    QPainter Painter(&Image);
    Painter.translate(-Whole.topLeft());
    PaintCards(Painter, Grid, Card, Place, Behind);
    if (Count > 1) PaintCount(Painter, Grid, Corner, Count);
    Painter.end();
    return QPixmap::fromImage(Image);
}

}  // namespace neb
