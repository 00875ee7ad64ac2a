#include "windows/home/CardDelegate.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QTextLayout>

#include "controls/fields/Icons.h"
#include "windows/home/CardPictures.h"
#include "windows/home/HomeCards.h"

namespace neb {
namespace {

constexpr int Margin = 10, CardGap = 6, Radius = 8;  // logical pixels
constexpr int LeastWidth = 196;
constexpr int LettersAcross = 18;  // a name of usual length has its place in two lines
constexpr int NameLines = 2, NoteLines = 2;
constexpr double PileShift = 4;
constexpr int Badge = 34, CardIcon = 48;

QFont NameFont(const QFont& Base) {
    QFont Font = Base;
    Font.setBold(true);
    return Font;
}

struct Colours {
    QColor Text, Note, Mat;
};

QColor Mixed(const QColor& One, const QColor& Other, double Part) {
    const auto Of = [&](double A, double B) { return static_cast<float>(A + (B - A) * Part); };
    return QColor::fromRgbF(Of(One.redF(), Other.redF()), Of(One.greenF(), Other.greenF()),
                            Of(One.blueF(), Other.blueF()));
}

Colours ColoursOf(const QStyleOptionViewItem& Option) {
    const QColor Text = Option.palette.color(QPalette::Text);
    const QColor Base = Option.palette.color(QPalette::Base);
    return {Text, Mixed(Text, Base, 0.35), Mixed(Base, Text, 0.08)};
}

// A picture is seen best on the ground that it always has: the choice is a tint and a frame.
void PaintGround(QPainter& Painter, const QStyleOptionViewItem& Option) {
    const bool IsChosen = Option.state & QStyle::State_Selected;
    const bool HasKeys = Option.state & QStyle::State_HasFocus;
    QColor Frame = Option.palette.color(QPalette::Active, QPalette::Highlight);
    QColor Ground = IsChosen ? Frame : Option.palette.color(QPalette::Text);
    Ground.setAlphaF(IsChosen ? 0.22F : Option.state & QStyle::State_MouseOver ? 0.05F : 0.0F);
    Painter.setPen(HasKeys ? QPen(Frame, 2) : QPen(Qt::NoPen));
    Painter.setBrush(Ground);
    Painter.drawRoundedRect(QRectF(Option.rect).adjusted(2, 2, -2, -2), Radius, Radius);
}

// An album is a pile of pictures.
void PaintPile(QPainter& Painter, const QRectF& Cover, const QColor& Mat, const QColor& Text) {
    for (const double Part : {0.25, 0.45}) {
        const double Up = PileShift * (Part > 0.3 ? 1 : 2), In = Up * 1.5;
        Painter.setPen(Qt::NoPen);
        Painter.setBrush(Mixed(Mat, Text, Part > 0.3 ? 0.30 : 0.16));
        Painter.drawRoundedRect(Cover.adjusted(In, -Up, -In, -Up - 2), 2, 2);
    }
}

void PaintBadge(QPainter& Painter, const QRectF& Cover) {
    const QPointF Middle(Cover.left() + CardGap + Badge / 2.0,
                         Cover.bottom() - CardGap - Badge / 2.0);
    Painter.setPen(QPen(QColor(255, 255, 255, 200), 1.5));
    Painter.setBrush(QColor(0, 0, 0, 150));
    Painter.drawEllipse(Middle, Badge / 2.0, Badge / 2.0);
    const double Reach = Badge / 4.0;
    QPainterPath Arrow(Middle + QPointF(-Reach * 0.7, -Reach));
    Arrow.lineTo(Middle + QPointF(Reach * 1.1, 0));
    Arrow.lineTo(Middle + QPointF(-Reach * 0.7, Reach));
    Painter.fillPath(Arrow, Qt::white);
}

// What has no picture yet has a quiet place for one; a place that waits for its own is empty.
QRectF PaintCover(QPainter& Painter, const QRectF& Room, const CardPictures::Known* Known,
                  const HomeCard& Card, const Colours& In) {
    const QImage* Cover = Known && !Known->Cover.isNull() ? &Known->Cover : nullptr;
    QRectF Place = Room;
    if (Cover) {
        Place = QRectF({}, Cover->deviceIndependentSize());
        Place.moveCenter(Room.center());
        Place.moveBottom(Room.bottom());
        Place.moveTopLeft(Place.topLeft().toPoint());
    }
    if (Card.What == HomeCard::Kind::Album) PaintPile(Painter, Place, In.Mat, In.Text);
    if (Cover) {
        Painter.drawImage(Place.topLeft(), *Cover);
        return Place;
    }
    Painter.setPen(Qt::NoPen);
    Painter.setBrush(In.Mat);
    Painter.drawRoundedRect(Place, 4, 4);
    if (!Known) return Place;
    QRectF Icon(0, 0, CardIcon, CardIcon);
    Icon.moveCenter(Place.center());
    Painter.setOpacity(0.5);
    ThemeIcon(QStringLiteral("album")).paint(&Painter, Icon.toRect());
    Painter.setOpacity(1);
    return Place;
}

// Wrapped to so many lines, as far as there is room; what is over is told by dots. The room that is
// left below.
QRectF PaintText(QPainter& Painter, const QRectF& Room, const QFont& Font, const QString& Text,
                 int MostLines) {
    const QFontMetricsF Metrics(Font, Painter.device());
    MostLines = std::min(MostLines, static_cast<int>(Room.height() / Metrics.lineSpacing() + 0.1));
    if (Text.isEmpty() || MostLines < 1) return Room;
    QTextLayout Layout(QString(Text).replace(u'\n', u' '), Font, Painter.device());
    QTextOption Wrap(Qt::AlignHCenter);
    Wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    Layout.setTextOption(Wrap);
    Layout.beginLayout();
    double Y = 0;
    for (int I = 1; I <= MostLines; ++I) {
        QTextLine Line = Layout.createLine();
        if (!Line.isValid()) break;
        Line.setLineWidth(Room.width());
        const QRectF Place(Room.left(), Room.top() + Y, Room.width(), Metrics.height());
        const int Begin = Line.textStart();
        const bool IsLast = I == MostLines;
        const QString Part = IsLast ? Layout.text().mid(Begin)
                                    : Layout.text().mid(Begin, Line.textLength()).trimmed();
        Painter.setFont(Font);
        Painter.drawText(Place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                         Metrics.elidedText(Part, Qt::ElideRight, Room.width()));
        Y += Metrics.lineSpacing();
    }
    Layout.endLayout();
    return Room.adjusted(0, Y, 0, 0);
}

// Without the day of the week; with a short month where the whole one has no room.
QString DateOf(const CardPictures::Known* Known, const QFontMetricsF& Metrics, double Room) {
    if (!Known || !Known->Changed) return {};
    static const QRegularExpression DayOfWeek(QStringLiteral(",?\\s*d{3,4}\\s*,?\\s*"));
    QString Format = QLocale().dateFormat(QLocale::LongFormat);
    const QDate Date = Known->Changed->date();
    const QString Whole = QLocale().toString(Date, Format.remove(DayOfWeek));
    if (Metrics.horizontalAdvance(Whole) <= Room) return Whole;
    return QLocale().toString(Date, Format.replace(QStringLiteral("MMMM"), QStringLiteral("MMM")));
}

// "12 slides," and "2 slide shows" where it takes two lines.
QString BrokenAtCommas(QString Text) {
    constexpr QChar NoBreak(0xA0);
    return Text.replace(u' ', NoBreak).replace(QStringLiteral(",") + NoBreak, QStringLiteral(", "));
}

// At last of a slide or a show its album, of an album its date.
void PaintWords(QPainter& Painter, QRectF Room, const HomeCard& Card,
                const CardPictures::Known* Known, const QFont& Font, const Colours& In) {
    const bool IsCaption = Card.What == HomeCard::Kind::Slide;
    Painter.setPen(In.Text);
    Room = PaintText(Painter, Room, IsCaption ? Font : NameFont(Font), Card.Name,
                     IsCaption ? NameLines + 1 : NameLines);
    Painter.setPen(In.Note);
    Room = PaintText(Painter, Room, Font, BrokenAtCommas(CountsOf(Card)), NoteLines);
    const QString Note = Card.Album.isEmpty()
                             ? DateOf(Known, QFontMetricsF(Font, Painter.device()), Room.width())
                             : QObject::tr("in %1").arg(Card.Album);
    PaintText(Painter, Room, Font, Note, 1);
}

}  // namespace

CardSizes::CardSizes(const QFont& Font, int Room) {
    const QFontMetrics Metrics(Font), Names(NameFont(Font));
    const int Least = std::max(LeastWidth, LettersAcross * Metrics.averageCharWidth());
    Columns = std::max(1, Room / Least);
    const int Width = std::max((Room - 1) / Columns, 1);
    const int Across = std::max(Width - 2 * Margin, 1);
    Cover = {Across, Across * 3 / 4};
    Card = {Width, 2 * Margin + qCeil(2 * PileShift) + Cover.height() + CardGap +
                       NameLines * Names.lineSpacing() + NoteLines * Metrics.lineSpacing()};
}

CardDelegate::CardDelegate(CardPictures& Pictures, QObject* Parent)
    : QStyledItemDelegate(Parent), mPictures(Pictures) {}

void CardDelegate::paint(QPainter* Painter, const QStyleOptionViewItem& Option,
                         const QModelIndex& Index) const {
    const auto* Cards = qobject_cast<const HomeCards*>(Index.model());
    const HomeCard* Card = Cards ? Cards->CardAt(Index) : nullptr;
    if (!Card) return;
    const CardPictures::Known* Known = mPictures.Of(*Card);
    const Colours In = ColoursOf(Option);
    Painter->save();
    Painter->setRenderHint(QPainter::Antialiasing);
    PaintGround(*Painter, Option);
    QRectF Room(QPointF(Option.rect.topLeft()) + QPointF(Margin, Margin + 2 * PileShift),
                QSizeF(mSizes.Cover));
    const QRectF Cover = PaintCover(*Painter, Room, Known, *Card, In);
    if (Card->What == HomeCard::Kind::Show) PaintBadge(*Painter, Cover);
    Room.setTop(Room.bottom() + CardGap);
    Room.setBottom(Option.rect.bottom() + 1 - Margin);
    PaintWords(*Painter, Room, *Card, Known, Option.font, In);
    Painter->restore();
}

}  // namespace neb
