// Reading a picture between its pixels, for the engines that move, turn and scale pictures. The
// arithmetic is laid down to the bit; where the machine has vectors they do the same faster.
#pragma once

#include "effects/drawing/Pixels.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace neb::effects {

// The mean of four pixels that form a square. Right: the weight of the right column, Low: of the
// lower row, both 0..128: so much fits the lanes of 16 bits of the quickest multiplications.
inline QRgb MixSquare(const QRgb* Top, qsizetype Stride, int Right, int Low);

#ifdef __SSE2__
inline __m128i LoadPair(const QRgb* P) {
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(P)),
                             _mm_setzero_si128());
}
inline __m128i WeighPair(const QRgb* P, __m128i Sides) {
    const __m128i Weighed = _mm_mullo_epi16(LoadPair(P), Sides);
    return _mm_add_epi16(Weighed, _mm_srli_si128(Weighed, 8));
}
inline __m128i SidesOf(int Right) {
    const __m128i W = _mm_cvtsi32_si128((Right << 16) + 128 - Right);
    return _mm_shuffle_epi32(_mm_unpacklo_epi16(W, W), 0x50);
}
inline QRgb MixSquare(const QRgb* Top, qsizetype Stride, int Right, int Low) {
    const __m128i Sides = SidesOf(Right);
    const __m128i High = WeighPair(Top, Sides), Under = WeighPair(Top + Stride, Sides);
    const __m128i Half = _mm_set1_epi16(64);
    // In 32 bits: the way down from the upper row, rounded.
    const __m128i Apart = _mm_unpacklo_epi16(_mm_sub_epi16(High, Under), Half);
    const __m128i Way = _mm_srai_epi32(_mm_madd_epi16(Apart, _mm_set1_epi32((1 << 16) + Low)), 7);
    const __m128i Sum = _mm_add_epi16(_mm_sub_epi16(High, _mm_packs_epi32(Way, Way)), Half);
    const __m128i Bytes = _mm_srli_epi16(Sum, 7);
    return static_cast<QRgb>(_mm_cvtsi128_si32(_mm_packus_epi16(Bytes, Bytes)));
}
#else
inline QRgb MixSquare(const QRgb* Top, qsizetype Stride, int Right, int Low) {
    const QRgb* Under = Top + Stride;
    QRgb Out = 0;
    for (int K = 0; K < 32; K += 8) {
        const auto Part = [K](QRgb C) { return static_cast<int>((C >> K) & 255u); };
        const int A = Part(Top[0]) * (128 - Right) + Part(Top[1]) * Right;
        const int B = Part(Under[0]) * (128 - Right) + Part(Under[1]) * Right;
        const int Way = ((A - B) * Low + 64) >> 7;
        Out |= static_cast<QRgb>((A - Way + 64) >> 7) << K;
    }
    return Out;
}
#endif

// The pixel at a place between pixels; U and V of One, pixel centres at whole numbers. Places
// outside take the nearest edge pixel. Thin: for pictures of one row or column.
QRgb SampleThin(const Picture& P, int U, int V);
inline QRgb Sample(const Picture& P, int U, int V) {
    if (P.Width < 2 || P.Height < 2) return SampleThin(P, U, V);
    U = Clamp(U, 0, ((P.Width - 1) << 16) - 1);
    V = Clamp(V, 0, ((P.Height - 1) << 16) - 1);
    const auto Weight = [](int Place) { return ((Place & (One - 1)) + 256) >> 9; };
    return MixSquare(P.Row(V >> 16) + (U >> 16), P.Stride, Weight(U), Weight(V));
}

// Many such places at once, one for each pixel of Out: the quickest way to read between pixels.
void SamplePlaces(QRgb* Out, const Picture& P, const int* U, const int* V, int Count);
// Places that lie evenly: Start, Start + Step, Start + 2 * Step ...
void StepSpan(int* Out, int Start, int Step, int Count);

}  // namespace neb::effects
