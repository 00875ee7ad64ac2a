#include "printing/TextLines.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

namespace neb {
namespace {

// Fine enough that no letter is bent to whole dots.
constexpr double DotsToTheInch = 1440;
constexpr double PointsToTheInch = 72;
constexpr double LargestSize = 9;  // points
// More than any page shows; the work grows faster than the text.
constexpr qsizetype MostCharacters = 10000;

// Smaller where not even one line has room.
QFont FontFor(double Height) {
    QFont Font;
    Font.setHintingPreference(QFont::PreferNoHinting);
    Font.setPixelSize(static_cast<int>(LargestSize * DotsToTheInch / PointsToTheInch));
    const double Line = QFontMetricsF(Font).height();
    if (Line > Height)
        Font.setPixelSize(std::max(1, static_cast<int>(Font.pixelSize() * Height / Line)));
    return Font;
}

QTextOption OptionFor(TextSide Side) {
    QTextOption Option(Side == TextSide::Left ? Qt::AlignLeft : Qt::AlignRight);
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

QPainterPath OutlinesOf(const QTextLayout& Layout) {
    QPainterPath Path;
    Path.setFillRule(Qt::WindingFill);
    for (const QGlyphRun& Run : Layout.glyphRuns()) {
        const QList<quint32> Glyphs = Run.glyphIndexes();
        const QList<QPointF> Places = Run.positions();
        for (qsizetype I = 0; I < Glyphs.size(); ++I)
            Path.addPath(Run.rawFont().pathForGlyph(Glyphs[I]).translated(Places[I]));
    }
    return Path;
}

}  // namespace

QPainterPath OutlinesOf(const PlacedText& Text) {
    const QSizeF Room = Text.Place.size() * DotsToTheInch;
    QTextLayout Layout(Prepared(Text.Text), FontFor(Room.height()));
    Layout.setTextOption(OptionFor(Text.Side));
    const int Lines = Break(Layout, Room);
    if (Lines < Layout.lineCount()) {
        Layout.setText(Shortened(Layout, Lines, Room.width()));
        Break(Layout, Room);
    }
    const QTransform ToThePage = QTransform::fromTranslate(Text.Place.x(), Text.Place.y())
                                     .scale(1 / DotsToTheInch, 1 / DotsToTheInch);
    return ToThePage.map(OutlinesOf(Layout));
}

}  // namespace neb
