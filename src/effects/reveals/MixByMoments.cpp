// MixByMoments: eight pixels at a time where the machine has such vectors, one at a time else.
// Both reckon alike to the bit.
#include "effects/drawing/Pixels.h"
#include "effects/drawing/WideVectors.h"
#include "effects/reveals/RevealMap.h"

namespace neb::effects {
namespace {

void MixOneByOne(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                 int Count, int Edge, int Shift) {
    for (int X = 0; X < Count; ++X)
        Out[X] = Mix(Old[X], New[X], Clamp((Edge - Moments[X]) >> Shift, 0, 256));
}

#ifdef NEB_EIGHT_AT_A_TIME
NEB_AVX2 inline __m256i Load(const QRgb* From) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(From));
}

// Old + (New - Old) * Weight for sixteen parts; what runs over in between falls away again.
NEB_AVX2 inline __m256i MixParts(__m256i Old, __m256i New, __m256i Weight) {
    const __m256i Part = _mm256_mullo_epi16(_mm256_sub_epi16(New, Old), Weight);
    const __m256i Sum = _mm256_add_epi16(_mm256_slli_epi16(Old, 8), Part);
    return _mm256_srli_epi16(_mm256_add_epi16(Sum, _mm256_set1_epi16(128)), 8);
}

// Weights: of the eight pixels, 16 bits each. Each weight is needed four times, in the order in
// which unpacking brings the parts of the pixels.
NEB_AVX2 inline __m256i MixEight(const QRgb* Old, const QRgb* New, __m128i Weights) {
    const __m256i Zero = _mm256_setzero_si256();
    const __m256i Near = _mm256_setr_epi8(0, 1, 0, 1, 0, 1, 0, 1, 2, 3, 2, 3, 2, 3, 2, 3, 8, 9, 8,
                                          9, 8, 9, 8, 9, 10, 11, 10, 11, 10, 11, 10, 11);
    const __m256i Far = _mm256_add_epi8(Near, _mm256_set1_epi8(4));
    const __m256i Both = _mm256_broadcastsi128_si256(Weights);
    const __m256i O = Load(Old), N = Load(New);
    const __m256i Low = MixParts(_mm256_unpacklo_epi8(O, Zero), _mm256_unpacklo_epi8(N, Zero),
                                 _mm256_shuffle_epi8(Both, Near));
    const __m256i High = MixParts(_mm256_unpackhi_epi8(O, Zero), _mm256_unpackhi_epi8(N, Zero),
                                  _mm256_shuffle_epi8(Both, Far));
    return _mm256_packus_epi16(Low, High);
}

NEB_AVX2 void MixByEight(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                         int Count, int Edge, int Shift) {
    const __m128i Zero = _mm_setzero_si128(), Full = _mm_set1_epi16(256);
    const __m128i Far = _mm_set1_epi16(static_cast<std::int16_t>(Edge));
    const __m128i Bits = _mm_cvtsi32_si128(Shift);
    int X = 0;
    for (; X + 8 <= Count; X += 8) {
        const __m128i At = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Moments + X));
        const __m128i Raw = _mm_sra_epi16(_mm_sub_epi16(Far, At), Bits);
        const __m128i Weights = _mm_min_epi16(_mm_max_epi16(Raw, Zero), Full);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(Out + X),
                            MixEight(Old + X, New + X, Weights));
    }
    MixOneByOne(Out + X, Old + X, New + X, Moments + X, Count - X, Edge, Shift);
}
#endif

}  // namespace

void MixByMoments(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                  int Count, int Edge, int SoftBits) {
    const int Shift = SoftBits - 8;
#ifdef NEB_EIGHT_AT_A_TIME
    if (HasWideVectors()) return MixByEight(Out, Old, New, Moments, Count, Edge, Shift);
#endif
    MixOneByOne(Out, Old, New, Moments, Count, Edge, Shift);
}

}  // namespace neb::effects
