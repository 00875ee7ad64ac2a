#include "effects/reveals/WipeTurns.h"

#include <algorithm>
#include <cmath>

#include "effects/drawing/Pixels.h"
#include "effects/reveals/RevealMap.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

// Nothing here asks whether a step went wrong: no quotient is by nothing. Told so, the compiler
// takes many pixels at a time.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC optimize("no-trapping-math")
#endif

namespace neb::effects {
namespace {

// The part of the full turn whose tangent is T, 0..1 to 0..1/8; off by less than 2^-18.
inline float ArcPart(float T) {
    const float Q = T * T;
    const float Sum =
        ((((-0.01172120f * Q + 0.05265332f) * Q - 0.11643287f) * Q + 0.19354346f) * Q -
         0.33262347f) *
            Q +
        0.99997726f;
    return T * Sum * 0.15915494f;
}

inline float TurnOf(float Right, float Up) {
    const float Ax = Right < 0 ? -Right : Right, Ay = Up < 0 ? -Up : Up;
    const float Most = Ax > Ay ? Ax : Ay, Least = Ax > Ay ? Ay : Ax;
    const float Part = ArcPart(Least / (Most > 0.5f ? Most : 0.5f));
    const float FromUp = Ax > Ay ? 0.25f - Part : Part;
    const float OnRight = Up < 0 ? 0.5f - FromUp : FromUp;
    return Right < 0 ? 1.0f - OnRight : OnRight;
}

}  // namespace

NEB_WIDE void FindTurns(int First, int Count, int Y, Middle About, bool BothSides,
                        std::uint16_t* Turns) {
    const auto Up = static_cast<float>(About.Y - 2 * Y - 1);
    const float Flip = BothSides ? 0.0f : 1.0f;
    const int Start = 2 * First + 1 - About.X;
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) {
        const auto Right = static_cast<float>(Start + 2 * I);
        const float Away = Right < 0 ? -Right : Right;
        const float Seen = Flip * Right + (1.0f - Flip) * Away;
        Turns[I] = static_cast<std::uint16_t>(static_cast<int>(TurnOf(Seen, Up) * 65536.0f));
    }
}

void FindDistances(int Count, int Y, Middle About, float Scale, std::int16_t* Distances) {
    const int Down = 2 * Y + 1 - About.Y;
    auto* Squares = Scratch<int, Middle>(Count);
    for (int X = 0; X < Count; ++X) {
        const int Right = 2 * X + 1 - About.X;
        Squares[X] = Right * Right + Down * Down;
    }
    FindRoots(Count, Squares, Scale, Distances);
}

void FindRoots(int Count, const int* Squares, float Scale, std::int16_t* Roots) {
    constexpr int Most = RevealMap::Levels - 1;
    int I = 0;
#ifdef __SSE2__
    // The compiler takes roots one at a time, for each of them might have to report an error.
    for (; I + 4 <= Count; I += 4) {
        const __m128i Four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Squares + I));
        const __m128 Far = _mm_mul_ps(_mm_sqrt_ps(_mm_cvtepi32_ps(Four)), _mm_set1_ps(Scale));
        const __m128i Whole = _mm_packs_epi32(_mm_cvttps_epi32(Far), _mm_setzero_si128());
        _mm_storel_epi64(reinterpret_cast<__m128i*>(Roots + I),
                         _mm_min_epi16(Whole, _mm_set1_epi16(Most)));
    }
#endif
    for (; I < Count; ++I) {
        const float Far = std::sqrt(static_cast<float>(Squares[I])) * Scale;
        Roots[I] = static_cast<std::int16_t>(std::min(static_cast<int>(Far), Most));
    }
}

}  // namespace neb::effects
