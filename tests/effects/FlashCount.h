// How often a transition flashes: plain reckoning on curves of brightness, by the rule for general
// flashes of the web's accessibility guidelines (WCAG 2, success criterion 2.3.1): a flash is a
// pair of opposing changes of relative luminance by a tenth or more of the full range, the darker
// of them below 0.8. Used by the tests of the effects.
#pragma once

#include <QImage>
#include <array>
#include <vector>

namespace neb::effectstest {

// Relative luminance, 0 to 1, of the whole frame and of three by three fields of it.
constexpr std::size_t kFields = 10;
using Luminances = std::array<double, kFields>;
Luminances LuminancesOf(const QImage& Frame);  // Format_RGB32, at least 3 by 3

// The brightness at each percent of the way, 0 to 100; every setting of a show draws some of these.
using Curve = std::vector<double>;

struct Setting {
    int Step;   // percent of a step, 1 to 100
    int Delay;  // from step to step, tenths of a millisecond
};

// The most flashes in any one second when a screen shows the curve at a setting. No delay: as if
// all steps were shown at once, the worst that a fast machine can do.
int MostFlashesInASecond(const Curve& C, Setting S);

}  // namespace neb::effectstest
