#include "effects/drawing/LightMix.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "effects/drawing/WideVectors.h"

namespace neb::effects {
namespace {

constexpr int kSide = 8;
using Grains = std::array<float, kSide>;

// What is added to a root before it is rounded down, in an even pattern of 8 by 8 pixels. Less
// than the way from any LightOf's root to the next whole number, so that a picture mixed with
// itself stays as it is.
constexpr auto kGrain = [] {
    std::array<Grains, kSide> Out{};
    for (unsigned Y = 0; Y < kSide; ++Y)
        for (unsigned X = 0; X < kSide; ++X) {
            int Rank = 0;
            for (unsigned Bit = 0; Bit < 3; ++Bit)
                Rank = 4 * Rank + static_cast<int>((((X ^ Y) >> Bit) & 1u) * 2 + ((Y >> Bit) & 1u));
            Out[Y][X] = static_cast<float>(2 * Rank - 63) / 160.0F;
        }
    return Out;
}();

const Grains& GrainsOf(int Y) {
    return kGrain[static_cast<unsigned>(Y) % kSide];
}

// What the moments of a row are held against.
struct Front {
    int Edge, SoftBits;
};

// Of 65535: 0 before the edge, all of it where it has passed, eased between.
std::uint32_t WeightOf(int Moment, const Front& F) {
    const int Way = F.Edge - Moment, Soft = 1 << F.SoftBits;
    if (Way <= 0) return 0;
    if (Way >= Soft - 1) return 65535;
    const auto T = static_cast<std::uint32_t>(Way) << (16 - F.SoftBits);
    const std::uint32_t Square = (T * (T >> 1)) >> 16, Cube = (T * Square) >> 16;
    return 2 * std::min(32767u, Square + 2 * (Square - Cube));
}

// Half way between the squares of a value and of the next one: what mixing loses below the point
// never changes the root.
std::uint32_t LightOf(std::uint32_t Value) {
    return Value * (Value + 1);
}

QRgb MixPixel(QRgb Old, QRgb New, std::uint32_t Weight, float Grain) {
    QRgb Mixed = 0;
    for (int Part = 0; Part < 32; Part += 8) {
        const std::uint32_t A = LightOf((Old >> Part) & 255u), B = LightOf((New >> Part) & 255u);
        const std::uint32_t Light =
            A < B ? A + (((B - A) * Weight) >> 16) : B + (((A - B) * (65535u - Weight)) >> 16);
        const float Root = std::sqrt(static_cast<float>(Light)) + Grain;
        Mixed |= static_cast<QRgb>(static_cast<int>(Root)) << Part;
    }
    return Mixed;
}

#ifdef NEB_EIGHT_AT_A_TIME
// The grain of eight pixels, in the order in which they are taken apart.
struct EightGrains {
    __m256 First, Second, Third, Fourth;  // pixels 0 and 4, 1 and 5, 2 and 6, 3 and 7
};

NEB_AVX2 inline EightGrains GrainsOfEight(int Y) {
    const Grains& G = GrainsOf(Y);
    return {_mm256_setr_m128(_mm_set1_ps(G[0]), _mm_set1_ps(G[4])),
            _mm256_setr_m128(_mm_set1_ps(G[1]), _mm_set1_ps(G[5])),
            _mm256_setr_m128(_mm_set1_ps(G[2]), _mm_set1_ps(G[6])),
            _mm256_setr_m128(_mm_set1_ps(G[3]), _mm_set1_ps(G[7]))};
}

NEB_AVX2 inline __m256i LightOfLanes(__m256i V) {
    return _mm256_add_epi16(_mm256_mullo_epi16(V, V), V);
}

NEB_AVX2 inline __m256i MixedLight(__m256i Old, __m256i New, __m256i Weight) {
    const __m256i A = LightOfLanes(Old), B = LightOfLanes(New);
    const __m256i Left = _mm256_xor_si256(Weight, _mm256_set1_epi16(-1));
    const __m256i Up = _mm256_mulhi_epu16(_mm256_subs_epu16(B, A), Weight);
    const __m256i Down = _mm256_mulhi_epu16(_mm256_subs_epu16(A, B), Left);
    return _mm256_add_epi16(_mm256_min_epu16(A, B), _mm256_add_epi16(Up, Down));
}

NEB_AVX2 inline __m256i RootOf(__m256i Light, __m256 Grain) {
    return _mm256_cvttps_epi32(_mm256_add_ps(_mm256_sqrt_ps(_mm256_cvtepi32_ps(Light)), Grain));
}

NEB_AVX2 inline __m256i RootOfLanes(__m256i Light, __m256 Near, __m256 Far) {
    const __m256i Zero = _mm256_setzero_si256();
    return _mm256_packs_epi32(RootOf(_mm256_unpacklo_epi16(Light, Zero), Near),
                              RootOf(_mm256_unpackhi_epi16(Light, Zero), Far));
}

NEB_AVX2 inline void MixEight(QRgb* Out, const QRgb* Old, const QRgb* New, __m256i Low,
                              __m256i High, const EightGrains& G) {
    const __m256i Zero = _mm256_setzero_si256();
    const __m256i O = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(Old));
    const __m256i N = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(New));
    const __m256i L = MixedLight(_mm256_unpacklo_epi8(O, Zero), _mm256_unpacklo_epi8(N, Zero), Low);
    const __m256i H =
        MixedLight(_mm256_unpackhi_epi8(O, Zero), _mm256_unpackhi_epi8(N, Zero), High);
    _mm256_storeu_si256(
        reinterpret_cast<__m256i*>(Out),
        _mm256_packus_epi16(RootOfLanes(L, G.First, G.Second), RootOfLanes(H, G.Third, G.Fourth)));
}

// As WeightOf does it.
NEB_AVX2 inline __m128i WeightsOf(__m128i Moments, __m128i Edge, __m128i Most, __m128i Shift) {
    const __m128i Way = _mm_sub_epi16(Edge, Moments);
    const __m128i Inside = _mm_min_epi16(_mm_max_epi16(Way, _mm_setzero_si128()), Most);
    const __m128i T = _mm_sll_epi16(Inside, Shift);
    const __m128i Square = _mm_mulhi_epu16(T, _mm_srli_epi16(T, 1));
    const __m128i Rest = _mm_sub_epi16(Square, _mm_mulhi_epu16(T, Square));
    const __m128i Half = _mm_adds_epi16(Square, _mm_add_epi16(Rest, Rest));
    return _mm_or_si128(_mm_add_epi16(Half, Half), _mm_cmpeq_epi16(Inside, Most));
}

NEB_AVX2 int MixEights(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                       const Front& F, int Y, int Count) {
    // The weights of the pixels 0, 1, 4, 5 and of 2, 3, 6, 7, four times each.
    const __m256i Low = _mm256_setr_epi8(0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 2, 3, 2, 3, 2, 3, 8, 9, 8, 9,
                                         8, 9, 8, 9, 10, 11, 10, 11, 10, 11, 10, 11);
    const __m256i High = _mm256_add_epi8(Low, _mm256_set1_epi8(4));
    const __m128i Edge = _mm_set1_epi16(static_cast<short>(F.Edge));
    const __m128i Most = _mm_set1_epi16(static_cast<short>((1 << F.SoftBits) - 1));
    const __m128i Shift = _mm_cvtsi32_si128(16 - F.SoftBits);
    const EightGrains G = GrainsOfEight(Y);
    int I = 0;
    for (; I + 8 <= Count; I += 8) {
        const __m128i M = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Moments + I));
        const __m256i W = _mm256_broadcastsi128_si256(WeightsOf(M, Edge, Most, Shift));
        MixEight(Out + I, Old + I, New + I, _mm256_shuffle_epi8(W, Low),
                 _mm256_shuffle_epi8(W, High), G);
    }
    return I;
}
#endif

}  // namespace

void MixLightByMoments(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                       int Edge, int SoftBits, int Y, int Count) {
    const Front F{Edge, SoftBits};
    int I = 0;
#ifdef NEB_EIGHT_AT_A_TIME
    if (HasWideVectors()) I = MixEights(Out, Old, New, Moments, F, Y, Count);
#endif
    for (; I < Count; ++I)
        Out[I] =
            MixPixel(Old[I], New[I], WeightOf(Moments[I], F), GrainsOf(Y)[std::size_t(I) % kSide]);
}

}  // namespace neb::effects
