// MixLightBySixteen. While the roots of sixteen pixels are being taken, which is slow, the light of
// the next ones is added up.
#if defined(__GNUC__) && !defined(__clang__)
// The compiler's own header of these vectors says "any value" in a way that it then warns of.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif
#include <algorithm>

#include "effects/drawing/LightMixWide.h"

#ifdef NEB_EIGHT_AT_A_TIME

namespace neb::effects {
namespace {

constexpr int kBatch = 512;  // the weights of so many pixels are reckoned ahead

// The light of sixteen pixels: blue in the lower halves of each, red in the upper ones; green.
struct Lights {
    __m512i BlueRed, Green;
};

// Of 65535, as for one pixel: 0 before the edge, all of it where it has passed, eased between.
NEB_AVX512 void FindWeights(std::uint16_t* Out, const std::int16_t* Moments, const LightFront& F,
                            int Count) {
    const __m512i Edge = _mm512_set1_epi16(static_cast<short>(F.Edge));
    const __m512i Most = _mm512_set1_epi16(static_cast<short>((1 << F.SoftBits) - 1));
    const __m128i Shift = _mm_cvtsi32_si128(16 - F.SoftBits);
    for (int I = 0; I < Count; I += 32) {
        const __m512i Way = _mm512_sub_epi16(Edge, _mm512_loadu_si512(Moments + I));
        const __m512i Inside =
            _mm512_min_epi16(_mm512_max_epi16(Way, _mm512_setzero_si512()), Most);
        const __m512i T = _mm512_sll_epi16(Inside, Shift);
        const __m512i Square = _mm512_mulhi_epu16(T, _mm512_srli_epi16(T, 1));
        const __m512i Rest = _mm512_sub_epi16(Square, _mm512_mulhi_epu16(T, Square));
        const __m512i Half = _mm512_adds_epi16(Square, _mm512_add_epi16(Rest, Rest));
        const __mmask32 Passed = _mm512_cmpeq_epi16_mask(Inside, Most);
        _mm512_storeu_si512(Out + I, _mm512_mask_mov_epi16(_mm512_add_epi16(Half, Half), Passed,
                                                           _mm512_set1_epi16(-1)));
    }
}

NEB_AVX512 inline __m512i LightOf(__m512i Values) {
    return _mm512_add_epi16(_mm512_mullo_epi16(Values, Values), Values);
}

// Left: what is left of the weight.
NEB_AVX512 inline __m512i Mixed(__m512i Old, __m512i New, __m512i Weight, __m512i Left) {
    const __m512i A = LightOf(Old), B = LightOf(New);
    const __m512i Up = _mm512_mulhi_epu16(_mm512_subs_epu16(B, A), Weight);
    const __m512i Down = _mm512_mulhi_epu16(_mm512_subs_epu16(A, B), Left);
    return _mm512_add_epi16(_mm512_min_epu16(A, B), _mm512_add_epi16(Up, Down));
}

// Each weight twice, for both halves of its pixel.
NEB_AVX512 inline __m512i Doubled(const std::uint16_t* Weights) {
    const __m512i Wide =
        _mm512_cvtepu16_epi32(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(Weights)));
    return _mm512_or_si512(Wide, _mm512_slli_epi32(Wide, 16));
}

NEB_AVX512 inline Lights AddUp(const QRgb* Old, const QRgb* New, const std::uint16_t* Weights) {
    const __m512i Even = _mm512_set1_epi32(0x00FF00FF);
    const __m512i O = _mm512_loadu_si512(Old), N = _mm512_loadu_si512(New), W = Doubled(Weights);
    const __m512i Left = _mm512_xor_si512(W, _mm512_set1_epi16(-1));
    return {Mixed(_mm512_and_si512(O, Even), _mm512_and_si512(N, Even), W, Left),
            Mixed(_mm512_srli_epi16(O, 8), _mm512_srli_epi16(N, 8), W, Left)};
}

NEB_AVX512 inline __m512i RootOf(__m512i Light, __m512 Grain) {
    return _mm512_cvttps_epi32(_mm512_add_ps(_mm512_sqrt_ps(_mm512_cvtepi32_ps(Light)), Grain));
}

NEB_AVX512 inline void PutRoots(QRgb* Out, const Lights& L, const QRgb* Old, __m512 Grain) {
    const __m512i Lower = _mm512_set1_epi32(0xFFFF),
                  Opaque = _mm512_set1_epi32(static_cast<int>(kBlack));
    const __m512i Blue = RootOf(_mm512_and_si512(L.BlueRed, Lower), Grain);
    const __m512i Red = RootOf(_mm512_srli_epi32(L.BlueRed, 16), Grain);
    const __m512i Green = RootOf(_mm512_and_si512(L.Green, Lower), Grain);
    const __m512i Outer = _mm512_or_si512(Blue, _mm512_slli_epi32(Red, 16));
    const __m512i Inner = _mm512_or_si512(_mm512_slli_epi32(Green, 8),
                                          _mm512_and_si512(_mm512_loadu_si512(Old), Opaque));
    _mm512_storeu_si512(Out, _mm512_or_si512(Outer, Inner));
}

NEB_AVX512 void MixBatch(const LightRow& R, const std::uint16_t* Weights, __m512 Grain) {
    Lights Now = AddUp(R.Old, R.New, Weights);
    int I = 0;
    for (; I + 16 < R.Count; I += 16) {
        const int Then = I + 16;
        const Lights Next = AddUp(R.Old + Then, R.New + Then, Weights + Then);
        PutRoots(R.Out + I, Now, R.Old + I, Grain);
        Now = Next;
    }
    PutRoots(R.Out + I, Now, R.Old + I, Grain);
}

}  // namespace

NEB_AVX512 int MixLightBySixteen(const LightRow& Row, const LightFront& F, const LightGrains& G) {
    alignas(64) std::uint16_t Weights[kBatch];
    alignas(64) float Twice[16];
    for (std::size_t I = 0; I < 16; ++I) Twice[I] = G[I % 8];
    const __m512 Grain = _mm512_load_ps(Twice);
    const int Whole = Row.Count / 32 * 32;
    for (int I = 0; I < Whole; I += kBatch) {
        LightRow Batch = Row.Behind(I);
        Batch.Count = std::min(kBatch, Whole - I);
        FindWeights(Weights, Batch.Moments, F, Batch.Count);
        MixBatch(Batch, Weights, Grain);
    }
    return Whole;
}

}  // namespace neb::effects

#endif
