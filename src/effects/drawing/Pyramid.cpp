#include "effects/drawing/Pyramid.h"

#include <algorithm>

#include "effects/drawing/Pixels.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace neb::effects {
namespace {

constexpr QRgb kEven = 0x00FF00FFu;

// Two of the four parts of the sums lie in one number, ten bits each.
QRgb MeanOfFour(QRgb A, QRgb B, QRgb C, QRgb D) {
    const QRgb Low = (A & kEven) + (B & kEven) + (C & kEven) + (D & kEven) + 0x00020002u;
    const QRgb High = ((A >> 8) & kEven) + ((B >> 8) & kEven) + ((C >> 8) & kEven) +
                      ((D >> 8) & kEven) + 0x00020002u;
    return ((Low >> 2) & kEven) | (((High >> 2) & kEven) << 8);
}

NEB_WIDE void HalveRows(QRgb* Out, const QRgb* Upper, const QRgb* Lower, int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I)
        Out[I] = MeanOfFour(Upper[2 * I], Upper[2 * I + 1], Lower[2 * I], Lower[2 * I + 1]);
}

// Each pixel of the middle counts twice.
NEB_WIDE void SoftenSpan(QRgb* Out, const QRgb* Before, const QRgb* Here, const QRgb* After,
                         int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) Out[I] = MeanOfFour(Before[I], Here[I], Here[I], After[I]);
}

NEB_WIDE void DoublePairs(QRgb* Out, const QRgb* Row, int Pairs) {
    NEB_INDEPENDENT
    for (int I = 0; I < Pairs; ++I) {
        const QRgb A = Row[I], B = Row[I + 1];
        Out[2 * I] = MeanOfFour(A, A, A, B);
        Out[2 * I + 1] = MeanOfFour(A, B, B, B);
    }
}

// 2^Shift pixels between A and B, Shift 2 or more.
void FillBetween(QRgb* Out, QRgb A, QRgb B, int Shift) {
    const int Count = 1 << Shift;
#ifdef __SSE2__
    const auto Load = [](QRgb C) {
        const __m128i Pixel = _mm_shuffle_epi32(_mm_cvtsi32_si128(static_cast<int>(C)), 0);
        return _mm_unpacklo_epi8(Pixel, _mm_setzero_si128());
    };
    const __m128i From = Load(A), Way = _mm_sub_epi16(Load(B), From);
    const __m128i Twice = _mm_add_epi16(Way, Way), Step = _mm_add_epi16(Twice, Twice);
    const __m128i Second = _mm_unpackhi_epi64(_mm_setzero_si128(), Twice);
    const __m128i Right = _mm_cvtsi32_si128(Shift + 1);
    __m128i At = _mm_add_epi16(_mm_sll_epi16(From, Right), _mm_set1_epi16(short(Count)));
    At = _mm_add_epi16(_mm_add_epi16(At, Way), Second);
    for (int I = 0; I < Count; I += 4) {
        const __m128i Next = _mm_add_epi16(At, Step);
        const __m128i Four = _mm_packus_epi16(_mm_srl_epi16(At, Right), _mm_srl_epi16(Next, Right));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(Out + I), Four);
        At = _mm_add_epi16(Next, Step);
    }
#else
    for (int I = 0; I < Count; ++I) Out[I] = Mix(A, B, (2 * I + 1) << (7 - Shift));
#endif
}

}  // namespace

void Enlarge(QRgb* Out, const QRgb* Row, int Width, int Shift, int Count) {
    const int Size = 1 << Shift, Half = Size / 2;
    if (Count <= Half) return FillSpan(Out, Row[0], Count);
    FillSpan(Out, Row[0], Half);
    const int Whole = std::min(Width - 1, (Count - Half) / Size);
    if (Shift == 1) DoublePairs(Out + Half, Row, Whole);
    for (int I = 0; I < Whole && Shift > 1; ++I)
        FillBetween(Out + Half + I * Size, Row[I], Row[I + 1], Shift);
    const QRgb Last = Row[std::min(Whole + 1, Width - 1)];
    for (int X = Half + Whole * Size, I = 0; X < Count; ++X, ++I)
        Out[X] = Mix(Row[Whole], Last, (2 * I + 1) << (7 - Shift));
}

Pyramid::Pyramid(const Picture& P, int Highest) : mWhole(P) {
    mLevels.reserve(static_cast<std::size_t>(Highest));
    for (int L = 0; L < Highest; ++L) mLevels.push_back(Half(Level(L)));
}

Pyramid::Image Pyramid::Half(const Picture& P) {
    Image Out{(P.Width + 1) / 2, (P.Height + 1) / 2, {}};
    Out.Pixels.resize(std::size_t(Out.Width) * std::size_t(Out.Height));
    for (int Y = 0; Y < Out.Height; ++Y) {
        const QRgb* Upper = P.Row(2 * Y);
        const QRgb* Lower = P.Row(std::min(2 * Y + 1, P.Height - 1));
        QRgb* To = Out.Pixels.data() + std::size_t(Y) * std::size_t(Out.Width);
        HalveRows(To, Upper, Lower, P.Width / 2);
        const int Last = P.Width - 1;
        if (P.Width % 2)
            To[Out.Width - 1] = MeanOfFour(Upper[Last], Upper[Last], Lower[Last], Lower[Last]);
    }
    return Out;
}

void Pyramid::Soften() {
    for (Image& Level : mLevels) SoftenLevel(Level);
}

void Pyramid::SoftenLevel(Image& Level) {
    const std::vector<QRgb> Old = Level.Pixels;
    const auto Width = static_cast<std::size_t>(Level.Width);
    const auto Row = [&](int Y) {
        return Old.data() + std::size_t(Clamp(Y, 0, Level.Height - 1)) * Width;
    };
    std::vector<QRgb> Line(Width + 2);
    for (int Y = 0; Y < Level.Height; ++Y) {
        SoftenSpan(Line.data() + 1, Row(Y - 1), Row(Y), Row(Y + 1), Level.Width);
        Line.front() = Line[1];
        Line.back() = Line[Width];
        SoftenSpan(Level.Pixels.data() + std::size_t(Y) * Width, Line.data(), Line.data() + 1,
                   Line.data() + 2, Level.Width);
    }
}

int LevelOfParts(QSize Size, int Parts) {
    int Out = 0;
    for (int Longer = std::max(Size.width(), Size.height()) / Parts; Longer > 1; Longer /= 2) ++Out;
    return Out;
}

}  // namespace neb::effects
