#include "effects/drawing/HalfSizes.h"

#include <algorithm>

namespace neb::effects {
namespace {

// The mean of two pixels, halves rounded up; or down, so that a picture halved both ways keeps its
// brightness.
QRgb MeanUp(QRgb A, QRgb B) {
    return (A | B) - (((A ^ B) & 0xFEFEFEFEu) >> 1);
}
QRgb MeanDown(QRgb A, QRgb B) {
    return (A & B) + (((A ^ B) & 0xFEFEFEFEu) >> 1);
}

NEB_WIDE void HalveDown(QRgb* Out, const QRgb* Upper, const QRgb* Lower, int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) Out[I] = MeanUp(Upper[I], Lower[I]);
}

// As HalfSizes::AcrossAt and DownAt, with nothing that needs more than 32 bits.
NEB_WIDE void HalvePlaces(int* __restrict Out, const int* Places, int Level, int Count) {
    if (Level == 0) {
        std::copy_n(Places, Count, Out);
        return;
    }
    for (int I = 0; I < Count; ++I)
        Out[I] = (((Places[I] >> 1) + One / 4) >> (Level - 1)) - One / 2;
}

#ifdef __SSE2__
__m128i LoadFour(const QRgb* P) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(P));
}
// The first Count means of neighbours that come in fours; how many those are.
int HalveFours(QRgb* Out, const QRgb* Row, int Count) {
    const int Whole = Count & ~3;
    for (int I = 0; I < Whole; I += 4) {
        const __m128 A = _mm_castsi128_ps(LoadFour(Row + 2 * I));
        const __m128 B = _mm_castsi128_ps(LoadFour(Row + 2 * I + 4));
        const __m128i Even = _mm_castps_si128(_mm_shuffle_ps(A, B, 0x88));
        const __m128i Odd = _mm_castps_si128(_mm_shuffle_ps(A, B, 0xDD));
        const __m128i Half = _mm_and_si128(_mm_xor_si128(Even, Odd), _mm_set1_epi8(1));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(Out + I),
                         _mm_sub_epi8(_mm_avg_epu8(Even, Odd), Half));
    }
    return Whole;
}
#else
int HalveFours(QRgb*, const QRgb*, int) {
    return 0;
}
#endif

void HalveAcross(QRgb* Out, const QRgb* Row, int Width) {
    const int Pairs = Width / 2;
    for (int I = HalveFours(Out, Row, Pairs); I < Pairs; ++I)
        Out[I] = MeanDown(Row[2 * I], Row[2 * I + 1]);
    if (Width & 1) Out[Pairs] = Row[Width - 1];
}

}  // namespace

HalfSizes::HalfSizes(const Picture& P, Way W, int Count) : mWay(W), mLevels{P} {
    while (Last() < Count && Add()) {
    }
}

bool HalfSizes::Add() {
    const Picture From = mLevels.back();
    const bool Across = mWay != Way::Down, Down = mWay != Way::Across;
    if ((Across && From.Width < 4) || (Down && From.Height < 4)) return false;
    const int Width = Across ? (From.Width + 1) / 2 : From.Width;
    const int Height = Down ? (From.Height + 1) / 2 : From.Height;
    mRoom.push_back(std::make_unique_for_overwrite<QRgb[]>(static_cast<std::size_t>(Width) *
                                                           static_cast<std::size_t>(Height)));
    QRgb* Bits = mRoom.back().get();
    mLevels.push_back({Bits, Width, Width, Height});
    QRgb* Mean = Scratch<QRgb, HalfSizes>(From.Width);
    for (int Y = 0; Y < Height; ++Y, Bits += Width) {
        const QRgb* Row = From.Row(Down ? 2 * Y : Y);
        if (Down && 2 * Y + 1 < From.Height) {
            QRgb* To = Across ? Mean : Bits;
            HalveDown(To, Row, Row + From.Stride, From.Width);
            Row = To;
        }
        if (Across)
            HalveAcross(Bits, Row, From.Width);
        else if (Row != Bits)
            CopySpan(Bits, Row, Width);
    }
    return true;
}

int HalfSizes::LevelFor(int Shrink) const {
    int Level = 0;
    while (Level < Last() && Shrink >> Level >= 3 * (One / 2)) ++Level;
    return Level;
}

void HalfSizes::Read(QRgb* Out, const int* U, const int* V, int Count, int Shrink) const {
    // From 11/8 to 13/8 pixels the next version takes over.
    int Level = 0;
    while (Level < Last() && Shrink >> Level >= 13 * (One / 8)) ++Level;
    const int Next = Level < Last() ? Clamp(((Shrink >> Level) - 11 * (One / 8)) >> 6, 0, 256) : 0;
    ReadLevel(Out, U, V, Count, Level);
    if (Next == 0) return;
    QRgb* Other = Scratch<QRgb, HalfSizes>(Count);
    ReadLevel(Other, U, V, Count, Level + 1);
    MixSpan(Out, Out, Other, Next, Count);
}

void HalfSizes::ReadLevel(QRgb* Out, const int* U, const int* V, int Count, int Level) const {
    if (Level == 0) return SamplePlaces(Out, At(0), U, V, Count);
    int* Across = Scratch<int, HalfSizes>(2 * Count);
    int* Down = Across + Count;
    HalvePlaces(Across, U, mWay == Way::Down ? 0 : Level, Count);
    HalvePlaces(Down, V, mWay == Way::Across ? 0 : Level, Count);
    SamplePlaces(Out, At(Level), Across, Down, Count);
}

}  // namespace neb::effects
