// Work on spans of pixels shared by the engines: copying, mixing and shading. All of it is
// whole-number arithmetic, so that the width of the machine's vectors does not change a bit;
// weights run from 0 to 256.
#pragma once

#include <QRgb>
#include <cstdint>
#include <cstring>

#include "effects/drawing/Engine.h"
#include "effects/drawing/Fixed.h"
#include "effects/drawing/Scratch.h"

// Compiled a second time for wider vectors where the machine has them. NEB_NARROW: as on a machine
// that has none, for the tests.
#if !defined(NEB_NARROW) && defined(__x86_64__) && defined(__linux__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__clang__)
#define NEB_WIDE __attribute__((target_clones("avx2", "default")))
#else
#define NEB_WIDE
#endif

// Tells the compiler that the turns of the loop behind it do not depend on one another.
#if defined(__GNUC__) && !defined(__clang__)
#define NEB_INDEPENDENT _Pragma("GCC ivdep")
#else
#define NEB_INDEPENDENT
#endif

namespace neb::effects {

inline void CopySpan(QRgb* Out, const QRgb* From, int Count) {
    if (Count > 0) std::memcpy(Out, From, static_cast<std::size_t>(Count) * sizeof(QRgb));
}
void FillSpan(QRgb* Out, QRgb Colour, int Count);
// Out = Old where the weight is 0, New where it is 256. Out may be Old or New.
void MixSpan(QRgb* Out, const QRgb* Old, const QRgb* New, int Weight, int Count);
void MixSpanWithColour(QRgb* Out, const QRgb* From, QRgb Colour, int Weight, int Count);

// The four parts of a pixel in four lanes of 16 bits, so that one multiplication does them all.
inline std::uint64_t Spread(QRgb C) {
    return ((std::uint64_t{C} & 0xFF00FF00u) << 24) | (C & 0x00FF00FFu);
}
inline QRgb Gather(std::uint64_t L) {
    return static_cast<QRgb>((L & 0x00FF00FFu) | ((L >> 24) & 0xFF00FF00u));
}
constexpr std::uint64_t kHalves = 0x0080008000800080u;
constexpr std::uint64_t kLaneBytes = 0x00FF00FF00FF00FFu;

inline std::uint64_t MixLanes(std::uint64_t A, std::uint64_t B, int Weight) {
    const auto W = static_cast<std::uint64_t>(Weight);
    return ((A * (256 - W) + B * W + kHalves) >> 8) & kLaneBytes;
}
inline QRgb Mix(QRgb A, QRgb B, int Weight) {
    return Gather(MixLanes(Spread(A), Spread(B), Weight));
}

constexpr QRgb kBlack = 0xFF000000u;

inline QRgb Darken(QRgb C, int Darkness) {
    const std::uint64_t Lanes = Spread(C) * static_cast<std::uint64_t>(256 - Darkness) + kHalves;
    return Gather((Lanes >> 8) & kLaneBytes) | kBlack;
}

void DarkenSpan(QRgb* Out, int Darkness, int Count);
// How much of a pixel at Place lies within 0..Length, both of One: 0..256, for smooth edges.
inline int Coverage(int Place, int Length) {
    const int Inside = Place < Length - Place ? Place : Length - Place;
    return Clamp((Inside + One / 2) >> 8, 0, 256);
}

}  // namespace neb::effects
