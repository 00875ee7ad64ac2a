#include "effects/drawing/LightMix.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "effects/drawing/LightMixWide.h"

namespace neb::effects {
namespace {

constexpr int kSide = std::tuple_size_v<LightGrains>;

// What is added to a root before it is rounded down, in an even pattern of 8 by 8 pixels. Less
// than the way from any LightOf's root to the next whole number, so that a picture mixed with
// itself stays as it is.
constexpr auto kGrain = [] {
    std::array<LightGrains, kSide> Out{};
    for (unsigned Y = 0; Y < kSide; ++Y)
        for (unsigned X = 0; X < kSide; ++X) {
            int Rank = 0;
            for (unsigned Bit = 0; Bit < 3; ++Bit)
                Rank = 4 * Rank + static_cast<int>((((X ^ Y) >> Bit) & 1u) * 2 + ((Y >> Bit) & 1u));
            Out[Y][X] = static_cast<float>(2 * Rank - 63) / 160.0F;
        }
    return Out;
}();

// Of 65535: 0 before the edge, all of it where it has passed, eased between.
std::uint32_t WeightOf(int Moment, const LightFront& F) {
    const int Way = F.Edge - Moment, Soft = 1 << F.SoftBits;
    if (Way <= 0) return 0;
    if (Way >= Soft - 1) return 65535;
    const auto T = static_cast<std::uint32_t>(Way) << (16 - F.SoftBits);
    const std::uint32_t Square = (T * (T >> 1)) >> 16, Cube = (T * Square) >> 16;
    return 2 * std::min(32767u, Square + 2 * (Square - Cube));
}

// Half way between the squares of a value and of the next one: what mixing loses below the point
// never changes the root.
std::uint32_t LightOf(std::uint32_t Value) {
    return Value * (Value + 1);
}

QRgb MixPixel(QRgb Old, QRgb New, std::uint32_t Weight, float Grain) {
    QRgb Mixed = Old & kBlack;
    for (int Part = 0; Part < 24; Part += 8) {
        const std::uint32_t A = LightOf((Old >> Part) & 255u), B = LightOf((New >> Part) & 255u);
        const std::uint32_t Light =
            A < B ? A + (((B - A) * Weight) >> 16) : B + (((A - B) * (65535u - Weight)) >> 16);
        const float Root = std::sqrt(static_cast<float>(Light)) + Grain;
        Mixed |= static_cast<QRgb>(static_cast<int>(Root)) << Part;
    }
    return Mixed;
}

}  // namespace

const LightGrains& LightGrainsOf(int Y) {
    return kGrain[static_cast<unsigned>(Y) % kSide];
}

void MixLightOneByOne(const LightRow& Row, const LightFront& F, const LightGrains& G) {
    for (int I = 0; I < Row.Count; ++I)
        Row.Out[I] = MixPixel(Row.Old[I], Row.New[I], WeightOf(Row.Moments[I], F),
                              G[static_cast<std::size_t>(I) % kSide]);
}

void MixLightByMoments(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments,
                       int Edge, int SoftBits, int Y, int Count) {
    const LightFront F{Edge, SoftBits};
    const LightRow Row{Out, Old, New, Moments, Count};
    const LightGrains& G = LightGrainsOf(Y);
    int Done = 0;
#ifdef NEB_EIGHT_AT_A_TIME
    if (HasWidestVectors()) Done = MixLightBySixteen(Row, F, G);
    if (HasWideVectors()) Done += MixLightByEight(Row.Behind(Done), F, G);
#endif
    MixLightOneByOne(Row.Behind(Done), F, G);
}

}  // namespace neb::effects
