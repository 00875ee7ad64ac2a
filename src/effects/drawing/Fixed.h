// Whole-number arithmetic for the effects: progress, easing, angles, roots and noise that come
// out alike on every machine, compiler and vector width. Fractions are of One.
#pragma once

#include <array>
#include <cstdint>

namespace neb::effects {

constexpr int One = 1 << 16;

// (A * B) / One, rounded down; B a fraction of One.
constexpr int Scale(std::int64_t A, std::int64_t B) {
    return static_cast<int>((A * B) >> 16);
}

constexpr int Clamp(int Value, int Low, int High) {
    return Value < Low ? Low : (Value > High ? High : Value);
}

// Slow at both ends, fast in the middle; 0..One to 0..One.
int Ease(int Progress);
// 0 at both ends, One in the middle, with no kink anywhere.
int Hump(int Progress);

// Sine and cosine of an angle, One being the full turn; -One..One.
int Sine(int Angle);
inline int Cosine(int Angle) {
    return Sine(Angle + One / 4);
}
// The angle of a direction, 0..One-1: 0 along X, growing towards Y.
int AngleOf(int X, int Y);
// The square root, rounded down; Square from 0 up to 2^52.
int Root(std::int64_t Square);

// A scattered number for a place; the same for ever.
std::uint32_t Hash(std::uint32_t A, std::uint32_t B, std::uint32_t Seed);
// A scattered order of 0..Count-1 in which each number comes exactly once; Count up to 2^20.
int Shuffled(int Index, int Count);

}  // namespace neb::effects
