#include "effects/drawing/Shadow.h"

#include <algorithm>

#include "effects/drawing/Pixels.h"

namespace neb::effects {
namespace {

constexpr int kDarkest = 120;

NEB_WIDE void DarkenByTable(QRgb* Out, const std::uint16_t* Table, int Depth, int Count) {
    constexpr int Chunk = 64;
    std::uint16_t Weights[Chunk * 4];
    for (int X = 0; X < Count; X += Chunk) {
        const int N = std::min(Chunk, Count - X);
        for (int I = 0; I < N; ++I) {
            const auto Left = static_cast<std::uint64_t>(256 - (Table[X + I] * Depth >> 8));
            const std::uint64_t Four = (Left * 0x0000000100010001u) | (std::uint64_t{256} << 48);
            std::memcpy(Weights + 4 * I, &Four, sizeof Four);
        }
        auto* Bytes = reinterpret_cast<std::uint8_t*>(Out + X);
        for (int I = 0; I < 4 * N; ++I) {
            const auto Sum = static_cast<std::uint16_t>(Bytes[I] * Weights[I] + 128);
            Bytes[I] = static_cast<std::uint8_t>(Sum >> 8);
        }
    }
}

}  // namespace

Shadow::Shadow(QSize Frame) : mReach(std::min(Frame.width(), Frame.height()) / 16) {
    auto* Room = Scratch<std::uint16_t, Shadow>(2 * mReach);
    const int Square = std::max(1, mReach * mReach);
    for (int I = 0; I < mReach; ++I) {
        const auto Value = static_cast<std::uint16_t>(256 * (I + 1) * (I + 1) / Square);
        Room[I] = Room[2 * mReach - 1 - I] = Value;
    }
    mRising = Room;
    mFalling = Room + mReach;
}

void Shadow::Fall(QRgb* Row, int Y, int X0, int X1, const Area& Sheet, int Depth) const {
    const int Off = std::max(Sheet.Y0 - Y, Y - Sheet.Y1 + 1);
    if (Off > mReach || Sheet.X0 >= Sheet.X1 || Sheet.Y0 >= Sheet.Y1) return;
    const int Here = Off > 0 ? Depth * mFalling[Off - 1] >> 8 : Depth;
    const auto Take = [&](int From, int To, auto&& Darken) {
        const int A = std::max(From, X0), B = std::min(To, X1);
        if (Here > 0 && A < B) Darken(Row + A, A - From, B - A);
    };
    Take(Sheet.X0 - mReach, Sheet.X0,
         [&](QRgb* Out, int From, int Count) { DarkenByTable(Out, mRising + From, Here, Count); });
    Take(Sheet.X1, Sheet.X1 + mReach,
         [&](QRgb* Out, int From, int Count) { DarkenByTable(Out, mFalling + From, Here, Count); });
    if (Off > 0)
        Take(Sheet.X0, Sheet.X1, [&](QRgb* Out, int, int Count) { DarkenSpan(Out, Here, Count); });
}

int ShadowDepth(int Progress) {
    return Scale(kDarkest, Ease(std::min(One, 5 * Progress)));
}

}  // namespace neb::effects
