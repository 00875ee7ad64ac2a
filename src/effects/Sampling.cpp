#include "effects/Sampling.h"

#include <algorithm>
#include <array>

namespace neb::effects {
namespace {

// Sampling taps along one direction: enough that none of the picture is passed over, few enough
// that the sum of all fits its lanes.
int TapCount(int Step) {
    return Clamp((Step + One / 2) >> 16, 1, 16);
}

// One divided by each number of taps, of 2^24.
constexpr auto kShares = [] {
    std::array<std::uint64_t, 257> Out{};
    for (std::uint64_t N = 1; N < Out.size(); ++N) Out[N] = ((1u << 24) + N / 2) / N;
    return Out;
}();

QRgb AverageOf(std::uint64_t Lanes, int Count) {
    const std::uint64_t Share = kShares[static_cast<std::size_t>(Count)];
    std::uint64_t Out = 0;
    for (unsigned K = 0; K < 64; K += 16)
        Out |= ((((Lanes >> K) & 0xFFFFu) * Share + (1u << 23)) >> 24) << K;
    return Gather(Out);
}

// The rows of a picture about V, averaged to one: the part from X0 up to X1 of it.
const QRgb* FlattenRows(const Picture& P, int V, int Dv, int X0, int X1) {
    const int Taps = TapCount(Dv), Step = Dv / Taps, Start = V - Step * (Taps - 1) / 2;
    const int Count = X1 - X0;
    QRgb* Out = Scratch<QRgb, Picture>(2 * P.Width);
    QRgb* Part = Out + P.Width;
    for (int T = 0; T < Taps; ++T) {
        const int At = Clamp(Start + T * Step, 0, (P.Height - 1) << 16);
        const int Y = At >> 16, Low = (At >> 8) & 255;
        const QRgb* Row = P.Row(Y) + X0;
        QRgb* To = (T == 0 ? Out : Part) + X0;
        if (Low)
            MixSpan(To, Row, Row + P.Stride, Low, Count);
        else
            CopySpan(To, Row, Count);
        // Each further row takes its equal share of the mean.
        if (T > 0) MixSpan(Out + X0, Out + X0, To, (256 + (T + 1) / 2) / (T + 1), Count);
    }
    return Out;
}

QRgb AverageAlong(const QRgb* Row, int Last, std::int64_t U, int Du, int Taps) {
    std::uint64_t Sum = 0;
    const int Step = Du / Taps;
    std::int64_t At = U - std::int64_t{Step} * (Taps - 1) / 2;
    for (int T = 0; T < Taps; ++T, At += Step) {
        const int Place = static_cast<int>(std::clamp<std::int64_t>(At, 0, (Last << 16) - 1));
        Sum += Spread(MixPair(Row + (Place >> 16), (Place >> 8) & 255));
    }
    return AverageOf(Sum, Taps);
}

// How many pixels from the start have their place below Limit.
int CountBelow(std::int64_t U, int Du, std::int64_t Limit, int Count) {
    if (U >= Limit) return 0;
    if (Du <= 0) return Count;
    return static_cast<int>(std::min<std::int64_t>(Count, (Limit - U + Du - 1) / Du));
}

void ResampleRow(QRgb* Out, const QRgb* Row, int Width, std::int64_t U, int Du, int Count) {
    const std::int64_t End = std::int64_t{Width - 1} << 16;
    const int First = CountBelow(U, Du, 0, Count), Inside = CountBelow(U, Du, End, Count);
    FillSpan(Out, Row[0], First);
    std::int64_t At = U + std::int64_t{First} * Du;
    for (int X = First; X < Inside; ++X, At += Du)
        Out[X] = MixPair(Row + (At >> 16), static_cast<int>(At >> 8) & 255);
    FillSpan(Out + Inside, Row[Width - 1], Count - Inside);
}

}  // namespace

QRgb SampleThin(const Picture& P, int U, int V) {
    U = Clamp(U, 0, (P.Width - 1) << 16);
    V = Clamp(V, 0, (P.Height - 1) << 16);
    const QRgb* Here = P.Row(V >> 16) + (U >> 16);
    const int Wx = (U >> 8) & 255, Wy = (V >> 8) & 255;
    if (Wx) return Mix(Here[0], Here[1], Wx);
    return Wy ? Mix(Here[0], Here[P.Stride], Wy) : Here[0];
}

QRgb SampleMany(const Picture& P, int U, int V, int Du, int Dv) {
    const int Nx = TapCount(Du), Ny = TapCount(Dv);
    std::uint64_t Sum = 0;
    const int StepX = Du / Nx, StepY = Dv / Ny;
    const int StartX = U - (StepX * (Nx - 1)) / 2, StartY = V - (StepY * (Ny - 1)) / 2;
    for (int J = 0; J < Ny; ++J)
        for (int I = 0; I < Nx; ++I)
            Sum += Spread(Sample(P, StartX + I * StepX, StartY + J * StepY));
    return AverageOf(Sum, Nx * Ny);
}

void SampleRow(QRgb* Out, const Picture& P, std::int64_t U, int Du, int V, int Dv, int Count) {
    if (Count <= 0) return;
    const std::int64_t Side = std::int64_t{Du} + 2 * One, Width = P.Width;
    const std::int64_t Last = U + std::int64_t{Du} * Count;
    const int X0 = static_cast<int>(std::clamp<std::int64_t>((U - Side) >> 16, 0, Width - 1));
    const int X1 = static_cast<int>(std::clamp<std::int64_t>((Last + Side) >> 16, X0 + 1, Width));
    const QRgb* Row = FlattenRows(P, V, Dv, X0, X1);
    const int Taps = TapCount(Du);
    if (P.Width == 1) return FillSpan(Out, Row[0], Count);
    if (Taps == 1) return ResampleRow(Out, Row, P.Width, U, Du, Count);
    for (int X = 0; X < Count; ++X, U += Du) Out[X] = AverageAlong(Row, P.Width - 1, U, Du, Taps);
}

}  // namespace neb::effects
