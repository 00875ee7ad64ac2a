#include "effects/solids/PageShading.h"

namespace neb::effects {
namespace {

// Two parts of a pixel at a time in 32 bits; every lane keeps to its 16.
constexpr std::uint32_t kTwo = 0x00FF00FFu, kTwoHalves = 0x00800080u;

inline QRgb Blend(QRgb A, QRgb B, std::uint32_t OfA, std::uint32_t OfB) {
    const std::uint32_t Even = (A & kTwo) * OfA + (B & kTwo) * OfB + kTwoHalves;
    const std::uint32_t Odd = ((A >> 8) & kTwo) * OfA + ((B >> 8) & kTwo) * OfB + kTwoHalves;
    return ((Even >> 8) & kTwo) | (Odd & ~kTwo);
}

inline QRgb BackIn(QRgb C, int Light) {
    const auto Faint = static_cast<std::uint32_t>(kThrough * Light >> 8);
    return Blend(C, kPaper, Faint, static_cast<std::uint32_t>(Light) - Faint) | kBlack;
}

}  // namespace

QRgb BackOf(QRgb C) {
    return BackIn(C, kFlatLight);
}

NEB_WIDE void BackSpan(QRgb* Out, int Count) {
    for (int I = 0; I < Count; ++I) Out[I] = BackIn(Out[I], kFlatLight);
}

NEB_WIDE void CurlSpan(QRgb* Out, const QRgb* From, const int* Light, const int* Seen, int Count) {
    NEB_INDEPENDENT
    for (int I = 0; I < Count; ++I) {
        const auto Share = static_cast<std::uint32_t>(Seen[I]);
        Out[I] = Blend(Out[I], BackIn(From[I], Light[I]), 256 - Share, Share);
    }
}

NEB_WIDE void FadeSpan(QRgb* Out, int Way, int Step, int Most, int Count) {
    for (int I = 0; I < Count; ++I) {
        const int Gone = (Way + I * Step) >> 16;
        const int Left = 256 - (Gone < 0 ? 0 : (Gone > 256 ? 256 : Gone));
        const int Darkness = ((Left * Left) >> 8) * Most >> 16;
        Out[I] = Blend(Out[I], 0, static_cast<std::uint32_t>(256 - Darkness), 0) | kBlack;
    }
}

}  // namespace neb::effects
