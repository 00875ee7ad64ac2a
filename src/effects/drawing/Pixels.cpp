#include "effects/drawing/Pixels.h"

#include <algorithm>

namespace neb::effects {
namespace {

const std::uint8_t* Bytes(const QRgb* P) {
    return reinterpret_cast<const std::uint8_t*>(P);
}
std::uint8_t* Bytes(QRgb* P) {
    return reinterpret_cast<std::uint8_t*>(P);
}

}  // namespace

void FillSpan(QRgb* Out, QRgb Colour, int Count) {
    if (Count > 0) std::fill_n(Out, Count, Colour);
}

NEB_WIDE void MixSpan(QRgb* Out, const QRgb* Old, const QRgb* New, int Weight, int Count) {
    const auto A = static_cast<std::uint16_t>(256 - Weight);
    const auto B = static_cast<std::uint16_t>(Weight);
    const std::uint8_t* O = Bytes(Old);
    const std::uint8_t* N = Bytes(New);
    std::uint8_t* To = Bytes(Out);
    NEB_INDEPENDENT
    for (int I = 0; I < Count * 4; ++I) {
        const auto Sum = static_cast<std::uint16_t>(O[I] * A + N[I] * B + 128);
        To[I] = static_cast<std::uint8_t>(Sum >> 8);
    }
}

NEB_WIDE void MixSpanWithColour(QRgb* Out, const QRgb* From, QRgb Colour, int Weight, int Count) {
    const auto A = static_cast<std::uint16_t>(256 - Weight);
    const auto B = static_cast<std::uint32_t>(Weight);
    // Pixels are mixed as two halves, every second byte in a lane of its own.
    const std::uint32_t Even = (Colour & 0x00FF00FFu) * B + 0x00800080u;
    const std::uint32_t Odd = ((Colour >> 8) & 0x00FF00FFu) * B + 0x00800080u;
    std::uint16_t Tint[4];
    std::memcpy(Tint, &Even, 4);
    std::memcpy(Tint + 2, &Odd, 4);
    const std::uint16_t Add[16] = {Tint[0], Tint[2], Tint[1], Tint[3], Tint[0], Tint[2],
                                   Tint[1], Tint[3], Tint[0], Tint[2], Tint[1], Tint[3],
                                   Tint[0], Tint[2], Tint[1], Tint[3]};
    const std::uint8_t* F = Bytes(From);
    std::uint8_t* To = Bytes(Out);
    const int Whole = Count / 4;
    NEB_INDEPENDENT
    for (int I = 0; I < Whole; ++I)
        for (int K = 0; K < 16; ++K) {
            const auto Sum = static_cast<std::uint16_t>(F[16 * I + K] * A + Add[K]);
            To[16 * I + K] = static_cast<std::uint8_t>(Sum >> 8);
        }
    for (int I = Whole * 4; I < Count; ++I) Out[I] = Mix(From[I], Colour, Weight);
}

void DarkenSpan(QRgb* Out, int Darkness, int Count) {
    if (Darkness) MixSpanWithColour(Out, Out, kBlack, Darkness, Count);
}

}  // namespace neb::effects
