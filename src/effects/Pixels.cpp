#include "effects/Pixels.h"

#include <algorithm>

namespace neb::effects {
namespace {

const std::uint8_t* Bytes(const QRgb* P) {
    return reinterpret_cast<const std::uint8_t*>(P);
}
std::uint8_t* Bytes(QRgb* P) {
    return reinterpret_cast<std::uint8_t*>(P);
}

// Sampling taps along one direction: enough that none of the picture is passed over, few enough
// that the sum of all fits its lanes.
int TapCount(int Step) {
    return Clamp((Step + One / 2) >> 16, 1, 16);
}

QRgb AverageOf(std::uint64_t Lanes, int Count) {
    const std::uint64_t Share = ((std::uint64_t{1} << 24) + static_cast<unsigned>(Count) / 2) /
                                static_cast<unsigned>(Count);
    std::uint64_t Out = 0;
    for (unsigned K = 0; K < 64; K += 16)
        Out |= ((((Lanes >> K) & 0xFFFFu) * Share + (1u << 23)) >> 24) << K;
    return Gather(Out);
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
#pragma GCC ivdep
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
#pragma GCC ivdep
    for (int I = 0; I < Whole; ++I)
        for (int K = 0; K < 16; ++K) {
            const auto Sum = static_cast<std::uint16_t>(F[16 * I + K] * A + Add[K]);
            To[16 * I + K] = static_cast<std::uint8_t>(Sum >> 8);
        }
    for (int I = Whole * 4; I < Count; ++I) Out[I] = Mix(From[I], Colour, Weight);
}

QRgb SampleThin(const Picture& P, int U, int V) {
    U = Clamp(U, 0, (P.Width - 1) << 16);
    V = Clamp(V, 0, (P.Height - 1) << 16);
    const QRgb* Here = P.Row(V >> 16) + (U >> 16);
    const int Wx = (U >> 8) & 255, Wy = (V >> 8) & 255;
    if (Wx) return Mix(Here[0], Here[1], Wx);
    return Wy ? Mix(Here[0], Here[P.Stride], Wy) : Here[0];
}

QRgb SampleArea(const Picture& P, int U, int V, int Du, int Dv) {
    const int Nx = TapCount(Du), Ny = TapCount(Dv);
    if (Nx * Ny == 1) return Sample(P, U, V);
    std::uint64_t Sum = 0;
    const int StepX = Du / Nx, StepY = Dv / Ny;
    const int StartX = U - (StepX * (Nx - 1)) / 2, StartY = V - (StepY * (Ny - 1)) / 2;
    for (int J = 0; J < Ny; ++J)
        for (int I = 0; I < Nx; ++I)
            Sum += Spread(Sample(P, StartX + I * StepX, StartY + J * StepY));
    return AverageOf(Sum, Nx * Ny);
}

void SampleRow(QRgb* Out, const Picture& P, std::int64_t U, int Du, int V, int Dv, int Count) {
    const bool Averaged = TapCount(Du) * TapCount(Dv) > 1;
    const std::int64_t End = std::int64_t{P.Width} << 16;
    for (int X = 0; X < Count; ++X, U += Du) {
        const int At = static_cast<int>(std::clamp<std::int64_t>(U, -One, End));
        Out[X] = Averaged ? SampleArea(P, At, V, Du, Dv) : Sample(P, At, V);
    }
}

void DarkenSpan(QRgb* Out, int Darkness, int Count) {
    if (Darkness) MixSpanWithColour(Out, Out, kBlack, Darkness, Count);
}

}  // namespace neb::effects
