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

// Sampling taps along one direction: enough that none of the picture is passed over.
int TapCount(int Step) {
    return Clamp((Step + One / 2) >> 16, 1, 24);
}

}  // namespace

void FillSpan(QRgb* Out, QRgb Colour, int Count) {
    if (Count > 0) std::fill_n(Out, Count, Colour);
}

void MixSpan(QRgb* Out, const QRgb* Old, const QRgb* New, int Weight, int Count) {
    const auto A = static_cast<std::uint16_t>(256 - Weight);
    const auto B = static_cast<std::uint16_t>(Weight);
    const std::uint8_t* __restrict O = Bytes(Old);
    const std::uint8_t* __restrict N = Bytes(New);
    std::uint8_t* __restrict To = Bytes(Out);
    for (int I = 0; I < Count * 4; ++I) {
        const auto Sum = static_cast<std::uint16_t>(O[I] * A + N[I] * B + 128);
        To[I] = static_cast<std::uint8_t>(Sum >> 8);
    }
}

void MixSpanWithColour(QRgb* Out, const QRgb* From, QRgb Colour, int Weight, int Count) {
    const std::uint64_t Tint = Spread(Colour);
    for (int I = 0; I < Count; ++I) Out[I] = Gather(MixLanes(Spread(From[I]), Tint, Weight));
}

QRgb Sample(const Picture& P, int U, int V) {
    U = Clamp(U, 0, (P.Width - 1) << 16);
    V = Clamp(V, 0, (P.Height - 1) << 16);
    const int X = U >> 16, Y = V >> 16;
    const int Wx = (U >> 8) & 255, Wy = (V >> 8) & 255;
    const QRgb* Top = P.Row(Y) + X;
    const int Right = Wx ? 1 : 0;
    const QRgb* Low = Top + (Wy ? P.Stride : 0);
    const std::uint64_t A = MixLanes(Spread(Top[0]), Spread(Top[Right]), Wx);
    const std::uint64_t B = MixLanes(Spread(Low[0]), Spread(Low[Right]), Wx);
    return Gather(MixLanes(A, B, Wy));
}

QRgb SampleArea(const Picture& P, int U, int V, int Du, int Dv) {
    const int Nx = TapCount(Du), Ny = TapCount(Dv);
    if (Nx * Ny == 1) return Sample(P, U, V);
    std::uint32_t Sum[4] = {0, 0, 0, 0};
    const int StepX = Du / Nx, StepY = Dv / Ny;
    const int StartX = U - (StepX * (Nx - 1)) / 2, StartY = V - (StepY * (Ny - 1)) / 2;
    for (int J = 0; J < Ny; ++J) {
        for (int I = 0; I < Nx; ++I) {
            const QRgb C = Sample(P, StartX + I * StepX, StartY + J * StepY);
            for (int K = 0; K < 4; ++K) Sum[K] += (C >> (8 * K)) & 255u;
        }
    }
    const auto N = static_cast<std::uint32_t>(Nx * Ny);
    QRgb Out = 0;
    for (int K = 0; K < 4; ++K) Out |= ((Sum[K] + N / 2) / N) << (8 * K);
    return Out;
}

int Coverage(int Place, int Length) {
    const int Inside = std::min(Place, Length - Place);
    return Clamp((Inside + One / 2) >> 8, 0, 256);
}

}  // namespace neb::effects
