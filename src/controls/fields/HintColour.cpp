#include "controls/fields/HintColour.h"

#include <algorithm>
#include <cmath>

namespace neb {
namespace {

constexpr double Enough = 4.5, Highest = 20;  // of 21
constexpr double Usual = 0.62;  // the share of the text in hints that could be fainter still
constexpr int Raised = 140;     // percent: styles draw a dark button as light as that

double Linear(double Part) {
    return Part <= 0.04045 ? Part / 12.92 : std::pow((Part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& Colour) {
    return 0.2126 * Linear(Colour.redF()) + 0.7152 * Linear(Colour.greenF()) +
           0.0722 * Linear(Colour.blueF());
}

QColor Mixed(const QColor& Text, const QColor& Ground, double Share) {
    const auto Part = [Share](int From, int To) { return qRound(To + (From - To) * Share); };
    return {Part(Text.red(), Ground.red()), Part(Text.green(), Ground.green()),
            Part(Text.blue(), Ground.blue())};
}

}  // namespace

double Contrast(const QColor& One, const QColor& Other) {
    const auto [Dark, Light] = std::minmax({Luminance(One), Luminance(Other)});
    return (Light + 0.05) / (Dark + 0.05);
}

bool IsDark(const QPalette& Palette) {
    return Palette.color(QPalette::Window).lightness() <
           Palette.color(QPalette::WindowText).lightness();
}

bool HasHighContrast(const QPalette& Palette) {
    return Contrast(Palette.color(QPalette::Window), Palette.color(QPalette::WindowText)) >=
           Highest;
}

QColor HintColour(const QColor& Text, const QColor& Ground) {
    for (double Share = Usual; Share < 1; Share += 0.02)
        if (const QColor Tried = Mixed(Text, Ground, Share); Contrast(Tried, Ground) >= Enough)
            return Tried;
    return Text;
}

void MakeHintsReadable(QPalette& Palette) {
    for (const auto Group : {QPalette::Active, QPalette::Inactive}) {
        const QColor Text = Palette.color(Group, QPalette::Text);
        QColor Hint = HintColour(Text, Palette.color(Group, QPalette::Base));
        for (const QColor& Ground :
             {Palette.color(Group, QPalette::Window), Palette.color(Group, QPalette::AlternateBase),
              Palette.color(Group, QPalette::Button),
              Palette.color(Group, QPalette::Button).lighter(Raised)})
            if (Contrast(Hint, Ground) < Enough) Hint = HintColour(Text, Ground);
        Palette.setColor(Group, QPalette::PlaceholderText, Hint);
    }
}

}  // namespace neb
