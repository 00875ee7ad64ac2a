// Colours and small sums for the painted pictures: every scene mixes its light with these.
// Channels are display values, 0 dark to 1 bright; light above 1 is folded back at the end.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>

namespace neb::demo {

struct Rgb {
    float R = 0, G = 0, B = 0;
};

inline Rgb operator+(Rgb A, Rgb B) {
    return {A.R + B.R, A.G + B.G, A.B + B.B};
}
inline Rgb operator-(Rgb A, Rgb B) {
    return {A.R - B.R, A.G - B.G, A.B - B.B};
}
inline Rgb operator*(Rgb A, Rgb B) {
    return {A.R * B.R, A.G * B.G, A.B * B.B};
}
inline Rgb operator*(Rgb A, float F) {
    return {A.R * F, A.G * F, A.B * F};
}

// 0xRRGGBB as a colour.
constexpr Rgb Hex(std::uint32_t Value) {
    return {static_cast<float>((Value >> 16) & 255) / 255.0F,
            static_cast<float>((Value >> 8) & 255) / 255.0F,
            static_cast<float>(Value & 255) / 255.0F};
}

inline float Clamp01(float V) {
    return std::clamp(V, 0.0F, 1.0F);
}
inline float Mix(float A, float B, float T) {
    return A + (B - A) * T;
}
inline Rgb Mix(Rgb A, Rgb B, float T) {
    return A + (B - A) * T;
}
inline float Square(float V) {
    return V * V;
}
// A bell around 0 of the given width: 1 in the middle, 0.37 at Width.
inline float Bell(float V, float Width) {
    return std::exp(-Square(V / Width));
}
// 0 up to From, 1 from To on, an even S between; From may lie above To.
inline float Smooth(float From, float To, float V) {
    const float T = Clamp01((V - From) / (To - From));
    return T * T * (3 - 2 * T);
}
// Two lights on one spot, never brighter than white.
inline Rgb Screen(Rgb A, Rgb B) {
    return A + B - A * B;
}
inline float Luma(Rgb C) {
    return 0.3F * C.R + 0.59F * C.G + 0.11F * C.B;
}

struct Stop {
    float At;
    Rgb Colour;
};
// The colour at T of a gradient; Stops in rising order, at least one.
Rgb Ramp(std::span<const Stop> Stops, float T);

}  // namespace neb::demo
