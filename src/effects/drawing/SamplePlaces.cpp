// SamplePlaces: eight pixels at a time where the machine has such vectors, one at a time else.
// Both reckon alike to the bit.
#include "effects/drawing/Sampling.h"
#include "effects/drawing/WideVectors.h"

namespace neb::effects {
namespace {

void SampleOneByOne(QRgb* Out, const Picture& P, const int* U, const int* V, int Count) {
    for (int I = 0; I < Count; ++I) Out[I] = Sample(P, U[I], V[I]);
}

#ifdef NEB_EIGHT_AT_A_TIME
// What is the same for all pixels of a picture.
struct Source {
    const QRgb *High, *Under;  // its rows, and the rows below them
    __m256i LastX, LastY;      // the last places
    __m256i Steps;             // to the next pixel and to the next row, in 16 bits each
};

// Where eight pixels read. The weights are below nought, for of that range the lanes of the
// multiplications hold the whole.
struct Places {
    __m256i Index;
    __m256i Sides;  // bytes 0 and 1 of each pixel: of the left and the right column, -128..0
    __m256i Low;    // bytes 2 and 3 together: of the lower row, -32768..0
};

NEB_AVX2 inline Source MakeSource(const Picture& P) {
    return {P.Bits, P.Bits + P.Stride, _mm256_set1_epi32(((P.Width - 1) << 16) - 1),
            _mm256_set1_epi32(((P.Height - 1) << 16) - 1),
            _mm256_set1_epi32(static_cast<int>(P.Stride << 16) + 1)};
}

NEB_AVX2 inline __m256i Within(const int* Places, __m256i Last) {
    const __m256i At = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(Places));
    return _mm256_min_epi32(_mm256_max_epi32(At, _mm256_setzero_si256()), Last);
}

NEB_AVX2 inline Places Find(const Source& S, const int* U, const int* V) {
    const __m256i Zero = _mm256_setzero_si256();
    const __m256i X = Within(U, S.LastX), Y = Within(V, S.LastY);
    const __m256i Whole = _mm256_blend_epi16(_mm256_srli_epi32(X, 16), Y, 0xAA);
    const __m256i Parts = _mm256_blend_epi16(X, _mm256_slli_epi32(Y, 16), 0xAA);
    const __m256i Weights = _mm256_avg_epu16(_mm256_srli_epi16(Parts, 8), Zero);
    const __m256i Low = _mm256_sub_epi16(Zero, _mm256_slli_epi16(Weights, 8));
    const __m256i Left = _mm256_xor_si256(Weights, _mm256_set1_epi32(128));
    return {_mm256_madd_epi16(Whole, S.Steps), _mm256_xor_si256(Left, Low), Low};
}

NEB_AVX2 inline __m128i TwoPairs(const QRgb* A, const QRgb* B) {
    const __m128i First = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(A));
    return _mm_castps_si128(
        _mm_loadh_pi(_mm_castsi128_ps(First), reinterpret_cast<const __m64*>(B)));
}

// The pairs of a row of four squares, weighed: a part of a pixel in each 16 bits, below nought.
NEB_AVX2 inline __m256i MixPairs(const QRgb* Row, const unsigned* Index, __m256i Sides) {
    const __m128i Near = TwoPairs(Row + Index[0], Row + Index[1]);
    const __m128i Far = TwoPairs(Row + Index[4], Row + Index[5]);
    const __m256i Four = _mm256_inserti128_si256(_mm256_castsi128_si256(Near), Far, 1);
    const __m256i Order = _mm256_broadcastsi128_si256(
        _mm_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15));
    return _mm256_maddubs_epi16(_mm256_shuffle_epi8(Four, Order), Sides);
}

// Four of the eight squares: the first two of each half, or with Index two further the others.
NEB_AVX2 inline __m256i FourSquares(const Source& S, const unsigned* Index, __m256i Sides,
                                    __m256i Low) {
    const __m256i High = MixPairs(S.High, Index, Sides);
    const __m256i Under = MixPairs(S.Under, Index, Sides);
    const __m256i Way = _mm256_mulhrs_epi16(_mm256_sub_epi16(High, Under), Low);
    const __m256i Sum = _mm256_add_epi16(High, Way);
    return _mm256_srli_epi16(_mm256_sub_epi16(_mm256_set1_epi16(64), Sum), 7);
}

NEB_AVX2 inline __m256i EightSquares(const Source& S, const Places& At) {
    alignas(32) unsigned Index[8];
    _mm256_store_si256(reinterpret_cast<__m256i*>(Index), At.Index);
    // By way of memory: taking the numbers out of a vector one by one costs twice as much.
    asm("" : "+m"(Index));
    const __m256i First =
        _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 0, 1, 0, 1, 0, 1, 4, 5, 4, 5, 4, 5, 4, 5));
    const __m256i Second = _mm256_add_epi8(First, _mm256_set1_epi8(8));
    const __m256i Two = _mm256_set1_epi8(2);
    const __m256i A = FourSquares(S, Index, _mm256_shuffle_epi8(At.Sides, First),
                                  _mm256_shuffle_epi8(At.Low, _mm256_add_epi8(First, Two)));
    const __m256i B = FourSquares(S, Index + 2, _mm256_shuffle_epi8(At.Sides, Second),
                                  _mm256_shuffle_epi8(At.Low, _mm256_add_epi8(Second, Two)));
    return _mm256_packus_epi16(A, B);
}

NEB_AVX2 void SampleByEight(QRgb* Out, const Picture& P, const int* U, const int* V, int Count) {
    const Source S = MakeSource(P);
    for (int I = 0; I < Count; I += 8) {
        const int At = I + 8 <= Count ? I : Count - 8;  // the last may overlap those before
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(Out + At),
                            EightSquares(S, Find(S, U + At, V + At)));
    }
}

// Short runs are not worth it, and the steps must fit their lanes.
bool Suits(const Picture& P, int Count) {
    return Count >= 8 && P.Width > 1 && P.Height > 1 && P.Stride < 32768 && P.Height < 32768 &&
           HasWideVectors();
}
#endif

}  // namespace

void SamplePlaces(QRgb* Out, const Picture& P, const int* U, const int* V, int Count) {
#ifdef NEB_EIGHT_AT_A_TIME
    if (Suits(P, Count)) return SampleByEight(Out, P, U, V, Count);
#endif
    SampleOneByOne(Out, P, U, V, Count);
}

NEB_WIDE void StepSpan(int* Out, int Start, int Step, int Count) {
    for (int I = 0; I < Count; ++I) Out[I] = Start + I * Step;
}

}  // namespace neb::effects
