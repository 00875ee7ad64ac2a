#include "presentation/CaptionLabel.h"

#include <QPainter>
#include <QTextLayout>
#include <cmath>

#include "presentation/CaptionText.h"

namespace neb {
namespace {

constexpr double StandardPoints = 12;
constexpr double StandardScreen = 1080;  // pixels high
constexpr double SmallestPoints = 4;
constexpr double PointStep = 0.5;
constexpr int Margin = 4;  // pixels on every side

// Breaks the text into centred lines; the height that they take.
double BreakLines(QTextLayout& Layout, double Width) {
    QTextOption Option(Qt::AlignHCenter);
    Option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    Layout.setTextOption(Option);
    Layout.beginLayout();
    double Height = 0;
    for (QTextLine Line = Layout.createLine(); Line.isValid(); Line = Layout.createLine()) {
        Line.setLineWidth(std::max(1.0, Width));
        Line.setPosition({0, Height});
        Height += Line.height();
    }
    Layout.endLayout();
    return Height;
}

}  // namespace

CaptionLabel::CaptionLabel(QWidget* Parent) : QLabel(Parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setFont(FontAt(StandardPoints));
}

QString CaptionLabel::ShownText() const {
    return ShownCaptionText(text());
}

int CaptionLabel::FitTo(int Width, int ScreenHeight, int MostHeight) {
    double Points = StandardPoints * std::max(1.0, ScreenHeight / StandardScreen);
    int Height = HeightAt(Points, Width);
    while (Height > MostHeight && Points > SmallestPoints) {
        Points -= PointStep;
        Height = HeightAt(Points, Width);
    }
    setFont(FontAt(Points));
    setAccessibleName(ShownText());
    return Height;
}

int CaptionLabel::HeightAt(double Points, int Width) const {
    const QString Shown = ShownText();
    QTextLayout Layout(Shown.isEmpty() ? QStringLiteral(" ") : Shown, FontAt(Points), this);
    return static_cast<int>(std::ceil(BreakLines(Layout, Width - 2 * Margin))) + 2 * Margin;
}

QFont CaptionLabel::FontAt(double Points) const {
    QFont Font(QStringLiteral("MS Sans Serif"));
    Font.setStyleHint(QFont::SansSerif);
    Font.setBold(true);
    Font.setPointSizeF(Points);
    return Font;
}

void CaptionLabel::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    Painter.setPen(palette().color(foregroundRole()));
    QTextLayout Layout(ShownText(), font(), this);
    BreakLines(Layout, width() - 2 * Margin);
    Layout.draw(&Painter, {Margin, Margin});
}

}  // namespace neb
