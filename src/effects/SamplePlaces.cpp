// SamplePlaces: eight pixels at a time where the machine has such vectors, one at a time else.
// Both reckon alike to the bit.
#include "effects/Sampling.h"

#if defined(__x86_64__) && defined(__GNUC__) && !defined(NEB_NARROW)
#define NEB_EIGHT_AT_A_TIME
#include <immintrin.h>
#endif

namespace neb::effects {
namespace {

void SampleOneByOne(QRgb* Out, const Picture& P, const int* U, const int* V, int Count) {
    for (int I = 0; I < Count; ++I) Out[I] = Sample(P, U[I], V[I]);
}

#ifdef NEB_EIGHT_AT_A_TIME
#define NEB_AVX2 __attribute__((target("avx2"))) inline

// Where eight pixels read: the index of the upper left pixel of each square, and the weights.
struct Places {
    __m256i Index, Low, Left, Right;  // weights doubled into both halves of their lanes
};

NEB_AVX2 __m256i Doubled(__m256i Weight) {
    return _mm256_or_si256(Weight, _mm256_slli_epi32(Weight, 16));
}

// Splits places along one direction into whole pixels, below Last, and weights of 0..256.
NEB_AVX2 __m256i Whole(__m256i& Place, int Last) {
    const __m256i Zero = _mm256_setzero_si256(), End = _mm256_set1_epi32(Last << 16);
    const __m256i Inside = _mm256_min_epi32(_mm256_max_epi32(Place, Zero), End);
    const __m256i At = _mm256_min_epi32(_mm256_srai_epi32(Inside, 16), _mm256_set1_epi32(Last - 1));
    Place = _mm256_srai_epi32(_mm256_sub_epi32(Inside, _mm256_slli_epi32(At, 16)), 8);
    return At;
}

NEB_AVX2 Places Find(const Picture& P, const int* U, const int* V) {
    __m256i Across = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(U));
    __m256i Down = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(V));
    const __m256i X = Whole(Across, P.Width - 1), Y = Whole(Down, P.Height - 1);
    const __m256i Stride = _mm256_set1_epi32(static_cast<int>(P.Stride));
    const __m256i Full = _mm256_set1_epi32(256);
    const __m256i Right = Doubled(Across), Left = Doubled(_mm256_sub_epi32(Full, Across));
    return {_mm256_add_epi32(_mm256_mullo_epi32(Y, Stride), X), Doubled(Down),
            _mm256_unpacklo_epi32(Left, Right), _mm256_unpackhi_epi32(Left, Right)};
}

// Two times two neighbouring pixels, a part in each 16 bits.
NEB_AVX2 __m256i LoadPairs(const QRgb* A, const QRgb* B) {
    const __m128i Low = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(A));
    const __m128i High = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(B));
    return _mm256_cvtepu8_epi16(_mm_unpacklo_epi64(Low, High));
}

// The pixels of two squares: Low weighs their lower rows, Sides their columns.
NEB_AVX2 __m256i MixSquares(const QRgb* A, const QRgb* B, qsizetype Stride, __m256i Low,
                            __m256i Sides) {
    const __m256i Half = _mm256_set1_epi16(128);
    const __m256i High = _mm256_sub_epi16(_mm256_set1_epi16(256), Low);
    const __m256i Upper = _mm256_mullo_epi16(LoadPairs(A, B), High);
    const __m256i Under = _mm256_mullo_epi16(LoadPairs(A + Stride, B + Stride), Low);
    const __m256i Column =
        _mm256_srli_epi16(_mm256_add_epi16(_mm256_add_epi16(Upper, Under), Half), 8);
    const __m256i Weighed = _mm256_mullo_epi16(Column, Sides);
    const __m256i Sum = _mm256_add_epi16(Weighed, _mm256_shuffle_epi32(Weighed, 0x4E));
    return _mm256_srli_epi16(_mm256_add_epi16(Sum, Half), 8);
}

NEB_AVX2 __m256i EightSquares(const Picture& P, const Places& At) {
    alignas(32) int Index[8];
    _mm256_store_si256(reinterpret_cast<__m256i*>(Index), At.Index);
    const QRgb* B = P.Bits;
    const __m256i Pair = _mm256_setr_epi32(0, 0, 0, 0, 1, 1, 1, 1);
    const __m256i Two = _mm256_set1_epi32(2);
    const __m256i Near = _mm256_setr_epi32(0, 0, 1, 1, 2, 2, 3, 3);
    const __m256i Far = _mm256_setr_epi32(4, 4, 5, 5, 6, 6, 7, 7);
    __m256i Next = Pair;
    const auto Squares = [&](int I, __m256i Sides, __m256i Order) __attribute__((target("avx2"))) {
        const __m256i Low = _mm256_permutevar8x32_epi32(At.Low, Next);
        Next = _mm256_add_epi32(Next, Two);
        return MixSquares(B + Index[I], B + Index[I + 1], P.Stride, Low,
                          _mm256_permutevar8x32_epi32(Sides, Order));
    };
    const __m256i P01 = Squares(0, At.Left, Near), P23 = Squares(2, At.Right, Near);
    const __m256i P45 = Squares(4, At.Left, Far), P67 = Squares(6, At.Right, Far);
    const __m256 A = _mm256_castsi256_ps(_mm256_packus_epi16(P01, P23));
    const __m256 Z = _mm256_castsi256_ps(_mm256_packus_epi16(P45, P67));
    const __m256i Mixed = _mm256_castps_si256(_mm256_shuffle_ps(A, Z, 0x88));
    return _mm256_permutevar8x32_epi32(Mixed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
}

__attribute__((target("avx2"))) void SampleByEight(QRgb* Out, const Picture& P, const int* U,
                                                   const int* V, int Count) {
    int I = 0;
    for (; I + 8 <= Count; I += 8)
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(Out + I),
                            EightSquares(P, Find(P, U + I, V + I)));
    SampleOneByOne(Out + I, P, U + I, V + I, Count - I);
}

bool HasWideVectors() {
    static const bool Has = __builtin_cpu_supports("avx2");
    return Has;
}
#endif

}  // namespace

void SamplePlaces(QRgb* Out, const Picture& P, const int* U, const int* V, int Count) {
#ifdef NEB_EIGHT_AT_A_TIME
    if (P.Width > 1 && P.Height > 1 && HasWideVectors()) return SampleByEight(Out, P, U, V, Count);
#endif
    SampleOneByOne(Out, P, U, V, Count);
}

}  // namespace neb::effects
