#include "printing/TextLines.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

namespace neb {
namespace {

// Fine enough that no letter is bent to whole dots.
constexpr double DotsToTheInch = 1440;
constexpr double PointsOfText = 72;
constexpr double LargestSize = 9;    // points
constexpr double PictureDots = 600;  // to the inch, of letters that are pictures
// More than any page shows; the work grows faster than the text.
constexpr qsizetype MostCharacters = 10000;

// Smaller where not even one line has room.
QFont FontFor(double Height) {
    QFont Font;
    Font.setHintingPreference(QFont::PreferNoHinting);
    Font.setPixelSize(static_cast<int>(LargestSize * DotsToTheInch / PointsOfText));
    const double Line = QFontMetricsF(Font).height();
    if (Line > Height)
        Font.setPixelSize(std::max(1, static_cast<int>(Font.pixelSize() * Height / Line)));
    return Font;
}

// The side is that of the place, in whatever direction the text is read: a caption stands with its
// picture.
QTextOption OptionFor(const PlacedText& Text) {
    const bool FromTheRight = Text.Text.isRightToLeft();
    QTextOption Option((Text.Side == TextSide::Left ? Qt::AlignLeft : Qt::AlignRight) |
                       Qt::AlignAbsolute);
    Option.setTextDirection(FromTheRight ? Qt::RightToLeft : Qt::LeftToRight);
    Option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return Option;
}

// Breaks the text into lines so wide; the number of those that have room.
int Break(QTextLayout& Layout, QSizeF Room) {
    const double Line = QFontMetricsF(Layout.font()).height();
    double Y = 0;
    int HaveRoom = 0;
    Layout.beginLayout();
    for (QTextLine Each = Layout.createLine(); Each.isValid(); Each = Layout.createLine()) {
        Each.setLineWidth(Room.width());
        Each.setPosition({0, Y});
        Y += Line;
        if (HaveRoom == 0 || Y <= Room.height() + 1) ++HaveRoom;
    }
    Layout.endLayout();
    return HaveRoom;
}

// The last line that has room takes up the rest, and an ellipsis for what it cannot.
QString Shortened(const QTextLayout& Layout, int Lines, double Width) {
    const qsizetype Last = Layout.lineAt(Lines - 1).textStart();
    const QString Rest = Layout.text().mid(Last).replace(QChar::LineSeparator, u' ');
    return Layout.text().left(Last) +
           QFontMetricsF(Layout.font()).elidedText(Rest, Qt::ElideRight, Width);
}

// As the layout takes it.
QString Prepared(const QString& Text) {
    QString Lines = Text.left(MostCharacters).replace(u'\n', QChar::LineSeparator);
    if (Text.size() > MostCharacters) Lines += QChar(0x2026);  // an ellipsis
    return Lines;
}

// At the size in which it is painted: a larger one would only make the file larger.
QGlyphRun Alone(const QRawFont& Font, quint32 Glyph) {
    QGlyphRun One;
    One.setRawFont(Font);
    One.setGlyphIndexes({Glyph});
    One.setPositions({QPointF()});
    return One;
}

bool IsBlank(const QImage& Picture) {
    QImage Nothing(Picture.size(), Picture.format());
    Nothing.fill(Qt::transparent);
    return Picture == Nothing;
}

void AddPicture(const QGlyphRun& Run, quint32 Glyph, QPointF At, TextInk& Ink) {
    const double Scale = PictureDots / DotsToTheInch;
    QRawFont Font = Run.rawFont();
    Font.setPixelSize(Font.pixelSize() * Scale);
    const QSizeF Size(Font.advancesForGlyphIndexes({Glyph}).value(0).x(),
                      Font.ascent() + Font.descent());
    QImage Picture(QSize(qCeil(Size.width()), qCeil(Size.height())).expandedTo({1, 1}),
                   QImage::Format_ARGB32_Premultiplied);
    Picture.fill(Qt::transparent);
    QPainter Painter(&Picture);
    Painter.drawGlyphRun({0, Font.ascent()}, Alone(Font, Glyph));
    Painter.end();
    if (IsBlank(Picture)) return;
    Ink.Emojis.push_back(
        {Picture, {At - QPointF(0, Font.ascent() / Scale), QSizeF(Picture.size()) / Scale}});
}

// Most texts are letters alone.
bool MayHoldPictures(const QString& Text) {
    return std::any_of(Text.begin(), Text.end(), [](QChar Unit) {
        return Unit.isSurrogate() || Unit.category() == QChar::Symbol_Other;
    });
}

TextInk InkOf(const QTextLayout& Layout) {
    TextInk Ink;
    Ink.Outlines.setFillRule(Qt::WindingFill);
    const bool Pictures = MayHoldPictures(Layout.text());
    for (const QGlyphRun& Run : Layout.glyphRuns()) {
        const QList<quint32> Glyphs = Run.glyphIndexes();
        const QList<QPointF> Places = Run.positions();
        for (qsizetype I = 0; I < Glyphs.size(); ++I) {
            const QPainterPath Outline = Run.rawFont().pathForGlyph(Glyphs[I]);
            Ink.Outlines.addPath(Outline.translated(Places[I]));
            if (Pictures && Outline.isEmpty()) AddPicture(Run, Glyphs[I], Places[I], Ink);
        }
    }
    return Ink;
}

TextInk Mapped(TextInk Ink, const QTransform& By) {
    Ink.Outlines = By.map(Ink.Outlines);
    for (TextInk::Emoji& Each : Ink.Emojis) Each.Place = By.mapRect(Each.Place);
    return Ink;
}

}  // namespace

TextInk InkOf(const PlacedText& Text) {
    const QSizeF Room = Text.Place.size() * DotsToTheInch;
    QTextLayout Layout(Prepared(Text.Text), FontFor(Room.height()));
    Layout.setTextOption(OptionFor(Text));
    const int Lines = Break(Layout, Room);
    if (Lines < Layout.lineCount()) {
        Layout.setText(Shortened(Layout, Lines, Room.width()));
        Break(Layout, Room);
    }
    const QTransform ToThePage = QTransform::fromTranslate(Text.Place.x(), Text.Place.y())
                                     .scale(1 / DotsToTheInch, 1 / DotsToTheInch);
    return Mapped(InkOf(Layout), ToThePage);
}

}  // namespace neb
