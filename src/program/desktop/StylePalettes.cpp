#include "program/desktop/StylePalettes.h"

#include "controls/fields/HintColour.h"

namespace neb {
namespace {

struct Colours {
    QRgb Window, Button, Base, Alternate, Text, Highlight, HighlightedText, Link, Visited, Disabled;
};

constexpr Colours Dark{0xff353535, 0xff3a3a3a, 0xff1e1e1e, 0xff262626, 0xffebebeb,
                       0xff2a6fb8, 0xffffffff, 0xff6cb2f0, 0xffb99bea, 0xff8c8c8c};
constexpr Colours Light{0xffefefef, 0xffefefef, 0xffffffff, 0xfff5f5f5, 0xff141414,
                        0xff306ebe, 0xffffffff, 0xff1a5fb4, 0xff6a3c9a, 0xff8a8a8a};
constexpr Colours DarkContrast{0xff000000, 0xff000000, 0xff000000, 0xff1a1a1a, 0xffffffff,
                               0xffffff00, 0xff000000, 0xff80d4ff, 0xffd8b4ff, 0xffb4b4b4};
constexpr Colours LightContrast{0xffffffff, 0xffffffff, 0xffffffff, 0xfff0f0f0, 0xff000000,
                                0xff000080, 0xffffffff, 0xff0000c0, 0xff600080, 0xff595959};

const Colours& Of(Shade Is, bool HighContrast) {
    if (Is == Shade::Dark) return HighContrast ? DarkContrast : Dark;
    return HighContrast ? LightContrast : Light;
}

}  // namespace

QPalette PaletteOf(Shade Is, bool HighContrast) {
    const Colours& From = Of(Is, HighContrast);
    QPalette Made(QColor(From.Button), QColor(From.Window));  // and the shades of frames
    for (const auto& [Role, Colour] : std::initializer_list<std::pair<QPalette::ColorRole, QRgb>>{
             {QPalette::Base, From.Base},
             {QPalette::AlternateBase, From.Alternate},
             {QPalette::Text, From.Text},
             {QPalette::WindowText, From.Text},
             {QPalette::ButtonText, From.Text},
             {QPalette::BrightText, From.Text},
             {QPalette::ToolTipBase, From.Base},
             {QPalette::ToolTipText, From.Text},
             {QPalette::Highlight, From.Highlight},
             {QPalette::HighlightedText, From.HighlightedText},
             {QPalette::Link, From.Link},
             {QPalette::LinkVisited, From.Visited}})
        Made.setColor(Role, QColor(Colour));
    for (const auto Role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        Made.setColor(QPalette::Disabled, Role, QColor(From.Disabled));
    MakeHintsReadable(Made);
    return Made;
}

bool Suits(const QPalette& There, Shade Wanted, bool HighContrast) {
    return IsDark(There) == (Wanted == Shade::Dark) && (!HighContrast || HasHighContrast(There));
}

}  // namespace neb
