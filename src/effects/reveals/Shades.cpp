#include "effects/reveals/Shades.h"

#include <algorithm>

#include "effects/drawing/WideVectors.h"

namespace neb::effects {
namespace {

constexpr int kCount = 257;
constexpr int kChunk = 128;

int Between(int A, int B, int Part, int Whole) {
    return A + (B - A) * Part / Whole;
}
int LaneOf(QRgb C, unsigned Lane) {
    return static_cast<int>((C >> (8 * Lane)) & 255u);
}

using Shade = Shades::Shade;

QRgb Mixed(QRgb Old, QRgb New, const Shade& S) {
    QRgb Out = 0;
    for (unsigned Part = 0; Part < 4; ++Part) {
        const unsigned Shift = 8 * Part;
        const unsigned Sum = ((Old >> Shift) & 255u) * S.Old[Part] +
                             ((New >> Shift) & 255u) * S.New[Part] + S.Light[Part];
        Out |= (Sum >> 8) << Shift;
    }
    return Out;
}

#ifdef NEB_EIGHT_AT_A_TIME
// The shares of two pixels, of the old and the new picture in turn.
NEB_AVX2 inline __m256i SharesOf(const Shade& A, const Shade& B) {
    const auto* First = reinterpret_cast<const __m128i*>(&A.Old);
    const auto* Second = reinterpret_cast<const __m128i*>(&B.Old);
    return _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_load_si128(First)),
                                   _mm_load_si128(Second), 1);
}

NEB_AVX2 inline __m128i LightsOf(const Shade& A, const Shade& B) {
    return _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(&A.Light)),
                              _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&B.Light)));
}

NEB_AVX2 inline __m256i Weighed(__m128i Pixels, __m256i Shares) {
    const __m256i Product = _mm256_mullo_epi16(_mm256_cvtepu8_epi16(Pixels), Shares);
    return _mm256_add_epi16(Product, _mm256_shuffle_epi32(Product, 0x4E));
}

// Four pixels in 16 bits a part: the first and third in the lower half, then the others.
NEB_AVX2 inline __m256i FourMixed(const QRgb* Old, const QRgb* New, const Shade* All,
                                  const std::int16_t* Which) {
    const Shade &A = All[Which[0]], &B = All[Which[1]], &C = All[Which[2]], &D = All[Which[3]];
    const __m128i O = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Old));
    const __m128i N = _mm_loadu_si128(reinterpret_cast<const __m128i*>(New));
    const __m256i Near = Weighed(_mm_unpacklo_epi32(O, N), SharesOf(A, B));
    const __m256i Far = Weighed(_mm_unpackhi_epi32(O, N), SharesOf(C, D));
    const __m256i Light =
        _mm256_inserti128_si256(_mm256_castsi128_si256(LightsOf(A, C)), LightsOf(B, D), 1);
    return _mm256_srli_epi16(_mm256_add_epi16(_mm256_unpacklo_epi64(Near, Far), Light), 8);
}

NEB_AVX2 int MixEights(QRgb* Out, const QRgb* Old, const QRgb* New, const Shade* All,
                       const std::int16_t* Which, int Count) {
    const __m256i Order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    int I = 0;
    for (; I + 8 <= Count; I += 8) {
        const __m256i A = FourMixed(Old + I, New + I, All, Which + I);
        const __m256i B = FourMixed(Old + I + 4, New + I + 4, All, Which + I + 4);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(Out + I),
                            _mm256_permutevar8x32_epi32(_mm256_packus_epi16(A, B), Order));
    }
    return I;
}
#endif

NEB_WIDE void FindShades(std::int16_t* Which, const std::int16_t* Moments, int Edge, int Shift,
                         int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I)
        Which[I] = static_cast<std::int16_t>(Clamp((Edge - Moments[I]) >> Shift, 0, 256));
}

}  // namespace

Shades::Shade Shades::Make(const Stop& A, const Stop& B, int At) {
    const int Part = At - A.At, Whole = std::max(1, B.At - A.At);
    const int Shown = Between(A.Shown, B.Shown, Part, Whole);
    Shade Out{};
    for (unsigned Lane = 0; Lane < 4; ++Lane) {
        const int Keep =
            Between(LaneOf(A.Keep | kBlack, Lane), LaneOf(B.Keep | kBlack, Lane), Part, Whole);
        const int Light = Between(LaneOf(A.Light, Lane), LaneOf(B.Light, Lane), Part, Whole);
        const int Kept = (Keep * 257 + 128) >> 8;  // of 256
        const int New = (Kept * Shown + 128) >> 8;
        const int Room = 65535 - 255 * Kept;
        Out.Old[Lane] = static_cast<std::uint16_t>(Kept - New);
        Out.New[Lane] = static_cast<std::uint16_t>(New);
        Out.Light[Lane] = static_cast<std::uint16_t>(std::min(Light * 256 + 128, Room));
    }
    return Out;
}

Shades::Shades(std::span<const Stop> Stops) {
    std::size_t S = 0;
    for (int At = 0; At < kCount; ++At) {
        while (S + 2 < Stops.size() && At >= Stops[S + 1].At) ++S;
        mShades.push_back(Make(Stops[S], Stops[S + 1], At));
    }
}

void Shades::Draw(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                  int Count, int Edge, int SoftBits) const {
    std::int16_t Which[kChunk];
    for (int X = 0; X < Count; X += kChunk) {
        const int N = std::min(kChunk, Count - X);
        FindShades(Which, Moments + X, Edge, SoftBits - 8, N);
        int I = 0;
#ifdef NEB_EIGHT_AT_A_TIME
        if (HasWideVectors()) I = MixEights(Out + X, Old + X, New + X, mShades.data(), Which, N);
#endif
        for (; I < N; ++I)
            Out[X + I] = Mixed(Old[X + I], New[X + I], mShades[static_cast<std::size_t>(Which[I])]);
    }
}

}  // namespace neb::effects
