// The shades that an edge of light, fire or water gives to the pixels that it passes over, one
// after the other, from the old picture to the new one. Used by the engines whose edge shines.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "effects/drawing/Pixels.h"

namespace neb::effects {

// One shade on the way over a pixel, which comes At 0..256 of the way. Of each part of the mixed
// pixel Keep of 255 stay, and Light is added; both together at most 255.
struct Stop {
    int At;
    int Shown;  // of the new picture, 0..256
    QRgb Keep;
    QRgb Light;
};

constexpr QRgb kAll = 0xFFFFFFFFu, kNone = 0;

constexpr QRgb PartsOf(QRgb Colour, int Share) {
    const auto S = static_cast<QRgb>(Share);
    return ((Colour >> 16 & 255u) * S >> 8) << 16 | ((Colour >> 8 & 255u) * S >> 8) << 8 |
           ((Colour & 255u) * S >> 8);
}
constexpr Stop Plain(int At, int Shown) {
    return {At, Shown, kAll, kNone};
}
// Covered by a colour, Tint of 256.
constexpr Stop Covered(int At, int Shown, QRgb Colour, int Tint) {
    return {At, Shown, PartsOf(kAll, 256 - Tint), PartsOf(Colour, Tint)};
}
// As through a glass of a colour.
constexpr Stop Filtered(int At, int Shown, QRgb Colour) {
    return {At, Shown, Colour, kNone};
}
// With light of a colour thrown on it: dark places take it on, bright ones have it already.
constexpr Stop Lit(int At, int Shown, QRgb Colour) {
    return {At, Shown, ~Colour, Colour & 0xFFFFFFu};
}

class Shades {
  public:
    // From Plain(0, 0) to Plain(256, 256), in rising order.
    explicit Shades(std::span<const Stop> Stops);
    // A pixel takes its first shade where the edge passes its moment, the last one 2^SoftBits
    // later; SoftBits 8 to 14.
    void Draw(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments, int Count,
              int Edge, int SoftBits) const;

    // Shares of 256 of the old and the new picture, and what is added, for each part of a pixel.
    struct alignas(32) Shade {
        std::array<std::uint16_t, 4> Old, New, Light, Unused;
    };

  private:
    static Shade Make(const Stop& A, const Stop& B, int At);
    std::vector<Shade> mShades;
};

}  // namespace neb::effects
