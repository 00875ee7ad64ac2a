#include "show/captions/CaptionFit.h"

#include <QPainter>
#include <QTextLayout>
#include <cmath>

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
    // a layout goes by the program's direction and not by the text's
    Option.setTextDirection(Layout.text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
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

CaptionSetting SettingAt(double Points, const QString& Text, int Width,
                         const QPaintDevice* Device) {
    QTextLayout Layout(Text.isEmpty() ? QStringLiteral(" ") : Text, CaptionFont(Points), Device);
    const double Height = BreakLines(Layout, Width - 2 * Margin);
    return {Points, Layout.lineCount(), static_cast<int>(std::ceil(Height)) + 2 * Margin};
}

}  // namespace

QFont CaptionFont(double Points) {
    QFont Font(QStringLiteral("MS Sans Serif"));
    Font.setStyleHint(QFont::SansSerif);
    Font.setBold(true);
    Font.setPointSizeF(Points);
    // A beamer or a television has no subpixels where the desktop has them, and a film is the same
    // on whichever desktop it was made.
    Font.setStyleStrategy(QFont::NoSubpixelAntialias);
    Font.setHintingPreference(QFont::PreferVerticalHinting);
    return Font;
}

CaptionSetting StandardCaption(const QString& Text, const CaptionSpace& Space,
                               const QPaintDevice* Device) {
    const double Points = StandardPoints * std::max(1.0, Space.ScreenHeight / StandardScreen);
    return SettingAt(Points, Text, Space.Width, Device);
}

CaptionSetting FitCaption(const QString& Text, const CaptionSpace& Space,
                          const QPaintDevice* Device) {
    CaptionSetting Setting = StandardCaption(Text, Space, Device);
    while (Setting.Height > Space.MostHeight && Setting.Points > SmallestPoints)
        Setting = SettingAt(Setting.Points - PointStep, Text, Space.Width, Device);
    return Setting;
}

void PaintCaption(QPainter& Painter, const QString& Text, int Width, const QPaintDevice* Device) {
    QTextLayout Layout(Text, Painter.font(), Device);
    BreakLines(Layout, Width - 2 * Margin);
    Layout.draw(&Painter, {Margin, Margin});
}

}  // namespace neb
