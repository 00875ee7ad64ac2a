// Measures of windows: twips are 1/1440 inch, 15 to a pixel at 96 dots an inch. Pixels here are
// the desktop's logical ones, which scaled displays scale.
#pragma once

#include <cmath>

namespace neb {

constexpr int TwipsPerPixel = 15;

inline int ToPixels(double Twips) {
    return static_cast<int>(std::lround(Twips / TwipsPerPixel));
}
constexpr int ToTwips(int Pixels) {
    return Pixels * TwipsPerPixel;
}

}  // namespace neb
