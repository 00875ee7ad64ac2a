#include "effects/HalvedPictures.h"

#include <algorithm>

#include "effects/Pixels.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace neb::effects {
namespace {

constexpr int kSmallest = 8;

// The mean of each part of two pixels, halves rounded up.
QRgb MeanOf(QRgb A, QRgb B) {
    return (A | B) - (((A ^ B) >> 1) & 0x7F7F7F7Fu);
}

// Count: of pairs. Out may be From.
void HalveSpan(QRgb* Out, const QRgb* From, int Count) {
    int I = 0;
#ifdef __SSE2__
    for (; I + 4 <= Count; I += 4) {
        const auto* At = reinterpret_cast<const __m128i*>(From + 2 * I);
        const __m128 A = _mm_castsi128_ps(_mm_loadu_si128(At));
        const __m128 B = _mm_castsi128_ps(_mm_loadu_si128(At + 1));
        const __m128i Even = _mm_castps_si128(_mm_shuffle_ps(A, B, 0x88));
        const __m128i Odd = _mm_castps_si128(_mm_shuffle_ps(A, B, 0xDD));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(Out + I), _mm_avg_epu8(Even, Odd));
    }
#endif
    for (; I < Count; ++I) Out[I] = MeanOf(From[2 * I], From[2 * I + 1]);
}

void HalveRow(QRgb* Out, const QRgb* From, int Width) {
    const QRgb Last = From[Width - 1];
    HalveSpan(Out, From, Width / 2);
    if (Width % 2) Out[Width / 2] = Last;
}

}  // namespace

HalvedPictures::HalvedPictures(const Picture& Full, bool Across, bool Down)
    : mAcross(Across), mDown(Down), mLevels{Full} {
    const auto IsBigEnough = [&] {
        const Picture& P = mLevels.back();
        return (!Across || P.Width >= kSmallest) && (!Down || P.Height >= kSmallest);
    };
    while ((Across || Down) && IsBigEnough()) Add();
}

void HalvedPictures::Add() {
    const Picture From = mLevels.back();
    const int Width = mAcross ? (From.Width + 1) / 2 : From.Width;
    const int Height = mDown ? (From.Height + 1) / 2 : From.Height;
    const auto Room = static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height);
    mBits.push_back(std::make_unique_for_overwrite<QRgb[]>(Room));
    mLevels.push_back({mBits.back().get(), Width, Width, Height});
    QRgb* Line = Scratch<QRgb, HalvedPictures>(From.Width);
    for (int Y = 0; Y < Height; ++Y) {
        const int First = mDown ? 2 * Y : Y;
        const QRgb* Row = From.Row(First);
        if (mDown) {
            MixSpan(Line, Row, From.Row(std::min(First + 1, From.Height - 1)), 128, From.Width);
            Row = Line;
        }
        QRgb* Out = mBits.back().get() + std::ptrdiff_t{Y} * Width;
        if (mAcross)
            HalveRow(Out, Row, From.Width);
        else
            CopySpan(Out, Row, Width);
    }
}

}  // namespace neb::effects
