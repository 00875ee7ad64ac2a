#include "effects/drawing/ScaleRows.h"

#include <algorithm>
#include <cstdlib>

#include "effects/drawing/Pixels.h"
#include "effects/drawing/WideVectors.h"

namespace neb::effects {
namespace {

int Within(std::int64_t Place, int Count) {
    return static_cast<int>(std::clamp<std::int64_t>(Place, 0, Count));
}

struct Tent {
    int First;
    unsigned Height[kTaps];
    unsigned Sum = 0;

    // Half: half of its width, One to 2 * One.
    Tent(std::int64_t Middle, std::int64_t Half)
        : First(static_cast<int>((Middle - Half) >> 16) + 1) {
        for (int I = 0; I < kTaps; ++I) {
            const std::int64_t Off = std::abs((std::int64_t{First + I} << 16) - Middle);
            Height[I] = static_cast<unsigned>(std::max<std::int64_t>(0, Half - Off) >> 3);
            Sum += Height[I];
        }
    }
};

#ifdef NEB_EIGHT_AT_A_TIME
// Two pixels of the frame, each part in 32 bits.
NEB_AVX2 inline __m256i TwoPixels(const QRgb* Row, const int* Start, const std::int16_t* Share) {
    const __m256i LowPixels = _mm256_broadcastsi128_si256(
        _mm_setr_epi8(0, -1, 4, -1, 1, -1, 5, -1, 2, -1, 6, -1, 3, -1, 7, -1));
    const __m256i HighPixels = _mm256_broadcastsi128_si256(
        _mm_setr_epi8(8, -1, 12, -1, 9, -1, 13, -1, 10, -1, 14, -1, 11, -1, 15, -1));
    const __m256i LowShares = _mm256_setr_epi8(0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 8, 9,
                                               10, 11, 8, 9, 10, 11, 8, 9, 10, 11, 8, 9, 10, 11);
    const __m256i HighShares = _mm256_add_epi8(LowShares, _mm256_set1_epi8(4));
    const auto Load = [](const void* P)
                          NEB_AVX2 { return _mm_loadu_si128(static_cast<const __m128i*>(P)); };
    const __m256i Eight = _mm256_inserti128_si256(_mm256_castsi128_si256(Load(Row + Start[0])),
                                                  Load(Row + Start[1]), 1);
    const __m256i Shares = _mm256_broadcastsi128_si256(Load(Share));
    const __m256i A = _mm256_madd_epi16(_mm256_shuffle_epi8(Eight, LowPixels),
                                        _mm256_shuffle_epi8(Shares, LowShares));
    const __m256i B = _mm256_madd_epi16(_mm256_shuffle_epi8(Eight, HighPixels),
                                        _mm256_shuffle_epi8(Shares, HighShares));
    const __m256i Sum = _mm256_add_epi32(_mm256_add_epi32(A, B), _mm256_set1_epi32(kShares / 2));
    return _mm256_srli_epi32(Sum, 14);
}

NEB_AVX2 int ScaleByEight(QRgb* Out, const QRgb* Row, const int* Start, const std::int16_t* Share,
                          int Count) {
    const __m256i Order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    int I = 0;
    for (; I + 8 <= Count; I += 8) {
        const auto Two = [=](int K) NEB_AVX2 {
            return TwoPixels(Row, Start + I + K, Share + kTaps * (I + K));
        };
        const __m256i A = _mm256_packs_epi32(Two(0), Two(2));
        const __m256i B = _mm256_packs_epi32(Two(4), Two(6));
        const __m256i Bytes = _mm256_permutevar8x32_epi32(_mm256_packus_epi16(A, B), Order);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(Out + I), Bytes);
    }
    return I;
}

#endif

QRgb OnePixel(const QRgb* Row, const std::int16_t* Share) {
    QRgb Out = 0;
    for (unsigned Bit = 0; Bit < 32; Bit += 8) {
        unsigned Sum = kShares / 2;
        for (int I = 0; I < kTaps; ++I)
            Sum += ((Row[I] >> Bit) & 255u) * static_cast<unsigned>(Share[I]);
        Out |= (Sum / kShares) << Bit;
    }
    return Out;
}

}  // namespace

int ScaledAxis::CoverageAt(int Place) const {
    const std::int64_t From = std::max(Start, std::int64_t{Place} << 16);
    const std::int64_t To = std::min(Start + Length, std::int64_t{Place + 1} << 16);
    return static_cast<int>(std::max<std::int64_t>(0, To - From) >> 8);
}

int ScaledAxis::TouchedFrom(int Count) const {
    return Within(Start >> 16, Count);
}
int ScaledAxis::TouchedTo(int Count) const {
    return Within((Start + Length + One - 1) >> 16, Count);
}
int ScaledAxis::FilledFrom(int Count) const {
    return Within((Start + One - 1) >> 16, Count);
}
int ScaledAxis::FilledTo(int Count) const {
    return std::max(FilledFrom(Count), Within((Start + Length) >> 16, Count));
}

TapFinder::TapFinder(const ScaledAxis& Axis)
    : mAxis(Axis),
      mStep((std::int64_t{Axis.Size} << 40) / Axis.Length),
      mHalf(std::clamp<std::int64_t>(Axis.Ratio() >> Axis.Level, One, 2 * One)) {}

// A place that lies beyond the ends brought back between them.
int TapFinder::Inside(int Place) const {
    const int Last = mAxis.Pixels - 1;
    if (!mAxis.Mirrored) return Clamp(Place, 0, Last);
    if (Place < 0) Place = -1 - Place;
    return Clamp(Place > Last ? 2 * Last + 1 - Place : Place, 0, Last);
}

Taps TapFinder::At(int Place) const {
    const std::int64_t Off = (std::int64_t{Place} << 16) + One / 2 - mAxis.Start;
    const std::int64_t Middle = ((Off * mStep) >> (24 + mAxis.Level)) - One / 2;
    const std::int64_t End = std::int64_t{mAxis.Pixels} << 17;
    const Tent T(std::clamp(Middle, -End, End), mHalf);
    Taps Out{mAxis.Pixels, {}};
    for (int I = 0; I < kTaps; ++I) Out.Start = std::min(Out.Start, Inside(T.First + I));
    Out.Start = std::max(0, std::min(Out.Start, mAxis.Pixels - kTaps));
    int Left = kShares, Largest = 0;
    for (int I = 0; I < kTaps; ++I) {
        const auto Share = static_cast<int>((T.Height[I] << 14) / T.Sum);
        const int At = Inside(T.First + I) - Out.Start;
        Out.Share[At] = static_cast<std::int16_t>(Out.Share[At] + Share);
        if (Out.Share[At] > Out.Share[Largest]) Largest = At;
        Left -= Share;
    }
    Out.Share[Largest] = static_cast<std::int16_t>(Out.Share[Largest] + Left);
    return Out;
}

void FillColumns(const ColumnTaps& Columns, const ScaledAxis& Axis, int X0, int X1) {
    const TapFinder Finder(Axis);
    for (int X = X0; X < X1; ++X) {
        const Taps T = Finder.At(X);
        Columns.Start[X] = T.Start;
        std::copy_n(T.Share, kTaps, Columns.Share + kTaps * X);
    }
}

void ScaleRow(QRgb* Out, const QRgb* Row, const ColumnTaps& Columns, int X0, int X1) {
    const int* Start = Columns.Start + X0;
    const std::int16_t* Share = Columns.Share + kTaps * X0;
    int I = 0;
#ifdef NEB_EIGHT_AT_A_TIME
    if (HasWideVectors()) I = ScaleByEight(Out, Row, Start, Share, X1 - X0);
#endif
    for (; I < X1 - X0; ++I) Out[I] = OnePixel(Row + Start[I], Share + kTaps * I);
}

NEB_WIDE void MixRows(QRgb* Out, const QRgb* const* Rows, const int* Weights, int Count) {
    const auto* A = reinterpret_cast<const std::uint8_t*>(Rows[0]);
    const auto* B = reinterpret_cast<const std::uint8_t*>(Rows[1]);
    const auto* C = reinterpret_cast<const std::uint8_t*>(Rows[2]);
    const auto* D = reinterpret_cast<const std::uint8_t*>(Rows[3]);
    const auto Wa = static_cast<std::uint16_t>(Weights[0]);
    const auto Wb = static_cast<std::uint16_t>(Weights[1]);
    const auto Wc = static_cast<std::uint16_t>(Weights[2]);
    const auto Wd = static_cast<std::uint16_t>(Weights[3]);
    auto* To = reinterpret_cast<std::uint8_t*>(Out);
    NEB_INDEPENDENT
    for (int I = 0; I < Count * 4; ++I) {
        const auto Sum =
            static_cast<std::uint16_t>(A[I] * Wa + B[I] * Wb + C[I] * Wc + D[I] * Wd + 128);
        To[I] = static_cast<std::uint8_t>(Sum >> 8);
    }
}

}  // namespace neb::effects
