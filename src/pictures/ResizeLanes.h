// The sums of the resizing, eight numbers at a time where the machine can, else one by one: the
// same bits either way. A pixel is four numbers of 14 bits of light. Used by PictureResize alone.
#pragma once

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <QtGlobal>
#include <algorithm>
#include <cstring>
#include <vector>

namespace neb {

// Weights are whole numbers of this many bits, so that the result is the same on every machine.
inline constexpr int WeightBits = 14;
inline constexpr int HalfWeight = 1 << (WeightBits - 1);

// Which pixels of a line, or which lines, make up one of the target, and how much each counts.
struct Taps {
    int First = 0;
    std::vector<qint16> Weights;  // an even number of them; a last one may be 0
    int Near = 0, NearCount = 0;  // from First: the result stays between these; 0: anywhere
    int Count() const { return static_cast<int>(Weights.size()); }
};

struct PlainLanes {
    struct Values {
        qint16 Of[8];
    };
    struct Sums {
        int Of[8];
    };
    static Values Load(const qint16* From) {
        Values Read;
        std::memcpy(Read.Of, From, sizeof Read.Of);
        return Read;
    }
    static Sums Begin() {
        Sums Begun;
        std::fill(std::begin(Begun.Of), std::end(Begun.Of), HalfWeight);
        return Begun;
    }
    static void Add(Sums& To, const Values& A, const Values& B, const qint16* Weights) {
        for (int I = 0; I < 8; ++I) To.Of[I] += A.Of[I] * Weights[0] + B.Of[I] * Weights[1];
    }
    // Both pixels of Pair go into the first four sums.
    static void AddPixels(Sums& To, const Values& Pair, const qint16* Weights) {
        for (int I = 0; I < 4; ++I)
            To.Of[I] += Pair.Of[I] * Weights[0] + Pair.Of[I + 4] * Weights[1];
    }
    static Values Ended(const Sums& Of) {
        Values Result;
        for (int I = 0; I < 8; ++I) Result.Of[I] = static_cast<qint16>(Of.Of[I] >> WeightBits);
        return Result;
    }
    static Values Least(Values A, const Values& B) {
        for (int I = 0; I < 8; ++I) A.Of[I] = std::min(A.Of[I], B.Of[I]);
        return A;
    }
    static Values Most(Values A, const Values& B) {
        for (int I = 0; I < 8; ++I) A.Of[I] = std::max(A.Of[I], B.Of[I]);
        return A;
    }
    static void Store(qint16* To, const Values& All) { std::memcpy(To, All.Of, sizeof All.Of); }
    static void StorePixel(qint16* To, const Values& All) { std::memcpy(To, All.Of, 8); }
};

#ifdef __SSE2__
struct VectorLanes {
    using Values = __m128i;
    struct Sums {
        __m128i Low, High;
    };
    static Values Load(const qint16* From) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(From));
    }
    static Sums Begin() { return {_mm_set1_epi32(HalfWeight), _mm_set1_epi32(HalfWeight)}; }
    static __m128i Both(const qint16* Weights) {
        int Pair;
        std::memcpy(&Pair, Weights, sizeof Pair);
        return _mm_set1_epi32(Pair);
    }
    static void Add(Sums& To, Values A, Values B, const qint16* Weights) {
        const __m128i By = Both(Weights);
        To.Low = _mm_add_epi32(To.Low, _mm_madd_epi16(_mm_unpacklo_epi16(A, B), By));
        To.High = _mm_add_epi32(To.High, _mm_madd_epi16(_mm_unpackhi_epi16(A, B), By));
    }
    static void AddPixels(Sums& To, Values Pair, const qint16* Weights) {
        const __m128i Mixed = _mm_unpacklo_epi16(Pair, _mm_srli_si128(Pair, 8));
        To.Low = _mm_add_epi32(To.Low, _mm_madd_epi16(Mixed, Both(Weights)));
    }
    static Values Ended(const Sums& Of) {
        return _mm_packs_epi32(_mm_srai_epi32(Of.Low, WeightBits),
                               _mm_srai_epi32(Of.High, WeightBits));
    }
    static Values Least(Values A, Values B) { return _mm_min_epi16(A, B); }
    static Values Most(Values A, Values B) { return _mm_max_epi16(A, B); }
    static void Store(qint16* To, Values All) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(To), All);
    }
    static void StorePixel(qint16* To, Values All) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(To), All);
    }
};
#else
using VectorLanes = PlainLanes;
#endif

// Held between the least and the most of some neighbours, which NumberAt gives one by one.
template <class Lanes, class Numbers>
typename Lanes::Values Bounded(typename Lanes::Values Is, int Count, Numbers NumberAt) {
    if (Count < 1) return Is;
    auto Low = Lanes::Load(NumberAt(0)), High = Low;
    for (int I = 1; I < Count; ++I) {
        const auto Next = Lanes::Load(NumberAt(I));
        Low = Lanes::Least(Low, Next);
        High = Lanes::Most(High, Next);
    }
    return Lanes::Most(Lanes::Least(Is, High), Low);
}

// One line of the target out of the lines from the first tap on, Length numbers of each, a
// multiple of eight. Every tap has its line.
template <class Lanes>
void BlendLines(const qint16* const* Lines, const Taps& Row, qint16* To, int Length) {
    for (int X = 0; X < Length; X += 8) {
        auto Sums = Lanes::Begin();
        for (int I = 0; I < Row.Count(); I += 2)
            Lanes::Add(Sums, Lanes::Load(Lines[I] + X), Lanes::Load(Lines[I + 1] + X),
                       Row.Weights.data() + I);
        Lanes::Store(To + X, Bounded<Lanes>(Lanes::Ended(Sums), Row.NearCount,
                                            [&](int I) { return Lines[Row.Near + I] + X; }));
    }
}

// One pixel of the target out of a line, which has a pixel to spare behind its end.
template <class Lanes>
void BlendPixels(const qint16* Line, const Taps& Pixel, qint16* To) {
    auto Sums = Lanes::Begin();
    const qint16* const At = Line + Pixel.First * 4;
    for (int I = 0; I < Pixel.Count(); I += 2)
        Lanes::AddPixels(Sums, Lanes::Load(At + I * 4), Pixel.Weights.data() + I);
    Lanes::StorePixel(To, Bounded<Lanes>(Lanes::Ended(Sums), Pixel.NearCount,
                                         [&](int I) { return At + (Pixel.Near + I) * 4; }));
}

}  // namespace neb
