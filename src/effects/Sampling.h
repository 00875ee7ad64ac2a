// Reading a picture between its pixels, for the engines that move, turn and scale pictures. The
// arithmetic is laid down to the bit; where the machine has vectors they do the same faster.
#pragma once

#include "effects/Pixels.h"

#if defined(__SSE2__) && !defined(NEB_NARROW)
#include <emmintrin.h>
#endif

namespace neb::effects {

// The mean of two pixels that follow each other, Weight of the second.
inline QRgb MixPair(const QRgb* P, int Weight);
// The same of four pixels that form a square; Low: the weight of the lower row.
inline QRgb MixSquare(const QRgb* Top, qsizetype Stride, int Right, int Low);

#if defined(__SSE2__) && !defined(NEB_NARROW)
inline __m128i LoadPair(const QRgb* P) {
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(P)),
                             _mm_setzero_si128());
}
inline QRgb FoldPair(__m128i Pair, int Weight) {
    const __m128i W = _mm_cvtsi32_si128(((Weight << 16) + 256 - Weight));
    const __m128i Sides = _mm_shuffle_epi32(_mm_unpacklo_epi16(W, W), 0x50);
    const __m128i Weighed = _mm_mullo_epi16(Pair, Sides);
    const __m128i Sum =
        _mm_add_epi16(_mm_add_epi16(Weighed, _mm_srli_si128(Weighed, 8)), _mm_set1_epi16(128));
    const __m128i Bytes = _mm_srli_epi16(Sum, 8);
    return static_cast<QRgb>(_mm_cvtsi128_si32(_mm_packus_epi16(Bytes, Bytes)));
}
inline QRgb MixPair(const QRgb* P, int Weight) {
    return FoldPair(LoadPair(P), Weight);
}
inline QRgb MixSquare(const QRgb* Top, qsizetype Stride, int Right, int Low) {
    const __m128i High = _mm_set1_epi16(static_cast<short>(256 - Low));
    const __m128i Under = _mm_set1_epi16(static_cast<short>(Low));
    const __m128i Sum = _mm_add_epi16(_mm_mullo_epi16(LoadPair(Top), High),
                                      _mm_mullo_epi16(LoadPair(Top + Stride), Under));
    return FoldPair(_mm_srli_epi16(_mm_add_epi16(Sum, _mm_set1_epi16(128)), 8), Right);
}
#else
inline QRgb MixPair(const QRgb* P, int Weight) {
    return Mix(P[0], P[1], Weight);
}
inline QRgb MixSquare(const QRgb* Top, qsizetype Stride, int Right, int Low) {
    const QRgb* Under = Top + Stride;
    const std::uint64_t A = MixLanes(Spread(Top[0]), Spread(Under[0]), Low);
    const std::uint64_t B = MixLanes(Spread(Top[1]), Spread(Under[1]), Low);
    return Gather(MixLanes(A, B, Right));
}
#endif

// The pixel at a place between pixels; U and V of One, pixel centres at whole numbers. Places
// outside take the nearest edge pixel. Thin: for pictures of one row or column.
QRgb SampleThin(const Picture& P, int U, int V);
inline QRgb Sample(const Picture& P, int U, int V) {
    if (P.Width < 2 || P.Height < 2) return SampleThin(P, U, V);
    U = Clamp(U, 0, (P.Width - 1) << 16);
    V = Clamp(V, 0, (P.Height - 1) << 16);
    const int X = (U >> 16) - ((U >> 16) == P.Width - 1);
    const int Y = (V >> 16) - ((V >> 16) == P.Height - 1);
    return MixSquare(P.Row(Y) + X, P.Stride, (U - (X << 16)) >> 8, (V - (Y << 16)) >> 8);
}

// Many such places at once, one for each pixel of Out: the quickest way to read between pixels.
void SamplePlaces(QRgb* Out, const Picture& P, const int* U, const int* V, int Count);

// The same where one pixel of the frame covers Du by Dv of the picture: pictures that shrink
// are averaged, so that nothing sparkles.
QRgb SampleMany(const Picture& P, int U, int V, int Du, int Dv);
inline bool IsShrunk(int Du, int Dv) {
    return Du >= 3 * (One / 2) || Dv >= 3 * (One / 2);
}
inline QRgb SampleArea(const Picture& P, int U, int V, int Du, int Dv) {
    if (!IsShrunk(Du, Dv)) return Sample(P, U, V);
    const bool Pair = Du < 5 * (One / 2) && !IsShrunk(0, Dv);
    if (!Pair) return SampleMany(P, U, V, Du, Dv);
    return Mix(Sample(P, U - Du / 4, V), Sample(P, U + Du / 4, V), 128);
}

// A run of a row of such places: U grows by Du from pixel to pixel, V stays.
void SampleRow(QRgb* Out, const Picture& P, std::int64_t U, int Du, int V, int Dv, int Count);

}  // namespace neb::effects
