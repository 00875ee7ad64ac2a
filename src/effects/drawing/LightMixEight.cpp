// MixLightByEight. While the roots of eight pixels are being taken, which is slow, the light of the
// next ones is added up.
#include <algorithm>

#include "effects/drawing/LightMixWide.h"

#ifdef NEB_EIGHT_AT_A_TIME

namespace neb::effects {
namespace {

constexpr int kBatch = 512;  // the weights of so many pixels are reckoned ahead

// The light of eight pixels: blue in the lower halves of each, red in the upper ones; green.
struct Lights {
    __m256i BlueRed, Green;
};

NEB_AVX2 inline __m256i Load(const void* From) {
    return _mm256_loadu_si256(static_cast<const __m256i*>(From));
}

NEB_AVX2 inline void Store(void* To, __m256i Lanes) {
    _mm256_storeu_si256(static_cast<__m256i*>(To), Lanes);
}

// Of 65535, as for one pixel: 0 before the edge, all of it where it has passed, eased between.
NEB_AVX2 void FindWeights(std::uint16_t* Out, const std::int16_t* Moments, const LightFront& F,
                          int Count) {
    const __m256i Edge = _mm256_set1_epi16(static_cast<short>(F.Edge));
    const __m256i Most = _mm256_set1_epi16(static_cast<short>((1 << F.SoftBits) - 1));
    const __m128i Shift = _mm_cvtsi32_si128(16 - F.SoftBits);
    for (int I = 0; I < Count; I += 16) {
        const __m256i Way = _mm256_sub_epi16(Edge, Load(Moments + I));
        const __m256i Inside =
            _mm256_min_epi16(_mm256_max_epi16(Way, _mm256_setzero_si256()), Most);
        const __m256i T = _mm256_sll_epi16(Inside, Shift);
        const __m256i Square = _mm256_mulhi_epu16(T, _mm256_srli_epi16(T, 1));
        const __m256i Rest = _mm256_sub_epi16(Square, _mm256_mulhi_epu16(T, Square));
        const __m256i Half = _mm256_adds_epi16(Square, _mm256_add_epi16(Rest, Rest));
        const __m256i Passed = _mm256_cmpeq_epi16(Inside, Most);
        Store(Out + I, _mm256_or_si256(_mm256_add_epi16(Half, Half), Passed));
    }
}

NEB_AVX2 inline __m256i LightOf(__m256i Values) {
    return _mm256_add_epi16(_mm256_mullo_epi16(Values, Values), Values);
}

// Left: what is left of the weight.
NEB_AVX2 inline __m256i Mixed(__m256i Old, __m256i New, __m256i Weight, __m256i Left) {
    const __m256i A = LightOf(Old), B = LightOf(New);
    const __m256i Up = _mm256_mulhi_epu16(_mm256_subs_epu16(B, A), Weight);
    const __m256i Down = _mm256_mulhi_epu16(_mm256_subs_epu16(A, B), Left);
    return _mm256_add_epi16(_mm256_min_epu16(A, B), _mm256_add_epi16(Up, Down));
}

// Each weight twice, for both halves of its pixel.
NEB_AVX2 inline __m256i Doubled(const std::uint16_t* Weights) {
    const __m256i Wide =
        _mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(Weights)));
    return _mm256_or_si256(Wide, _mm256_slli_epi32(Wide, 16));
}

NEB_AVX2 inline Lights AddUp(const QRgb* Old, const QRgb* New, const std::uint16_t* Weights) {
    const __m256i Even = _mm256_set1_epi32(0x00FF00FF);
    const __m256i O = Load(Old), N = Load(New), W = Doubled(Weights);
    const __m256i Left = _mm256_xor_si256(W, _mm256_set1_epi16(-1));
    return {Mixed(_mm256_and_si256(O, Even), _mm256_and_si256(N, Even), W, Left),
            Mixed(_mm256_srli_epi16(O, 8), _mm256_srli_epi16(N, 8), W, Left)};
}

NEB_AVX2 inline __m256i RootOf(__m256i Light, __m256 Grain) {
    return _mm256_cvttps_epi32(_mm256_add_ps(_mm256_sqrt_ps(_mm256_cvtepi32_ps(Light)), Grain));
}

NEB_AVX2 inline void PutRoots(QRgb* Out, const Lights& L, const QRgb* Old, __m256 Grain) {
    const __m256i Lower = _mm256_set1_epi32(0xFFFF),
                  Opaque = _mm256_set1_epi32(static_cast<int>(kBlack));
    const __m256i Blue = RootOf(_mm256_and_si256(L.BlueRed, Lower), Grain);
    const __m256i Red = RootOf(_mm256_srli_epi32(L.BlueRed, 16), Grain);
    const __m256i Green = RootOf(_mm256_and_si256(L.Green, Lower), Grain);
    const __m256i Outer = _mm256_or_si256(Blue, _mm256_slli_epi32(Red, 16));
    const __m256i Inner =
        _mm256_or_si256(_mm256_slli_epi32(Green, 8), _mm256_and_si256(Load(Old), Opaque));
    Store(Out, _mm256_or_si256(Outer, Inner));
}

NEB_AVX2 void MixBatch(const LightRow& R, const std::uint16_t* Weights, __m256 Grain) {
    Lights Now = AddUp(R.Old, R.New, Weights);
    int I = 0;
    for (; I + 8 < R.Count; I += 8) {
        const int Then = I + 8;
        const Lights Next = AddUp(R.Old + Then, R.New + Then, Weights + Then);
        PutRoots(R.Out + I, Now, R.Old + I, Grain);
        Now = Next;
    }
    PutRoots(R.Out + I, Now, R.Old + I, Grain);
}

}  // namespace

NEB_AVX2 int MixLightByEight(const LightRow& Row, const LightFront& F, const LightGrains& G) {
    alignas(64) std::uint16_t Weights[kBatch];
    const __m256 Grain = _mm256_loadu_ps(G.data());
    const int Whole = Row.Count / 16 * 16;
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
