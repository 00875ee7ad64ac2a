#include "Noise.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace neb::demo {
namespace {

struct Slope {
    float X, Y;
};
constexpr float Diagonal = 0.70710678F;
constexpr std::array<Slope, 8> Slopes = {{{1, 0},
                                          {Diagonal, Diagonal},
                                          {0, 1},
                                          {-Diagonal, Diagonal},
                                          {-1, 0},
                                          {-Diagonal, -Diagonal},
                                          {0, -1},
                                          {Diagonal, -Diagonal}}};

float Corner(int X, int Y, float Dx, float Dy, std::uint32_t Seed) {
    const Slope& S = Slopes[Hash(X, Y, Seed) >> 29];
    return S.X * Dx + S.Y * Dy;
}

// Much faster than the library's on plain processors, and this is where the time goes.
int Floor(float V) {
    const int Whole = static_cast<int>(V);
    return Whole - (V < static_cast<float>(Whole) ? 1 : 0);
}

float Fade(float T) {
    return T * T * T * (T * (T * 6 - 15) + 10);
}

}  // namespace

std::uint32_t Hash(int X, int Y, std::uint32_t Seed) {
    std::uint32_t H = static_cast<std::uint32_t>(X) * 0x8da6b343U ^
                      static_cast<std::uint32_t>(Y) * 0xd8163841U ^ Seed * 0xcb1ab31fU;
    H ^= H >> 15;
    H *= 0x2c1b3c6dU;
    H ^= H >> 12;
    H *= 0x297a2d39U;
    return H ^ (H >> 15);
}

float Chance(int X, int Y, std::uint32_t Seed) {
    return static_cast<float>(Hash(X, Y, Seed) >> 8) / 16777216.0F;
}

float Noise(float X, float Y, std::uint32_t Seed) {
    const int Ix = Floor(X), Iy = Floor(Y);
    const float Dx = X - static_cast<float>(Ix), Dy = Y - static_cast<float>(Iy), U = Fade(Dx),
                V = Fade(Dy);
    const float A = Corner(Ix, Iy, Dx, Dy, Seed), B = Corner(Ix + 1, Iy, Dx - 1, Dy, Seed);
    const float C = Corner(Ix, Iy + 1, Dx, Dy - 1, Seed);
    const float D = Corner(Ix + 1, Iy + 1, Dx - 1, Dy - 1, Seed);
    const float Top = A + (B - A) * U, Bottom = C + (D - C) * U;
    return 1.5F * (Top + (Bottom - Top) * V);
}

float Fbm(float X, float Y, int Octaves, std::uint32_t Seed) {
    float Sum = 0, Height = 0.55F;
    for (int I = 0; I < Octaves; ++I) {
        Sum += Height * Noise(X, Y, Seed + static_cast<std::uint32_t>(I));
        // Each octave is turned, or the grid that all share would show.
        const float Tx = 1.6F * X + 1.2F * Y + 7.3F;
        Y = -1.2F * X + 1.6F * Y + 3.1F;
        X = Tx;
        Height *= 0.5F;
    }
    return Sum;
}

float Ridged(float X, float Y, int Octaves, std::uint32_t Seed) {
    float Sum = 0, Height = 0.5F, Weight = 1;
    for (int I = 0; I < Octaves; ++I) {
        const float Fold = 1 - std::fabs(Noise(X, Y, Seed + static_cast<std::uint32_t>(I)));
        const float Sharp = Fold * Fold * Weight;
        Sum += Height * Sharp;
        Weight = std::min(1.0F, Sharp * 1.6F);
        X = X * 2.03F + 11.7F;
        Y = Y * 2.03F + 5.9F;
        Height *= 0.5F;
    }
    return Sum;
}

Cell Worley(float X, float Y, std::uint32_t Seed) {
    const int Ix = Floor(X), Iy = Floor(Y);
    float Best = 9, Second = 9;
    Cell Result;
    for (int Cy = Iy - 1; Cy <= Iy + 1; ++Cy) {
        for (int Cx = Ix - 1; Cx <= Ix + 1; ++Cx) {
            const float Px = static_cast<float>(Cx) + Chance(Cx, Cy, Seed);
            const float Py = static_cast<float>(Cy) + Chance(Cx, Cy, Seed + 1);
            const float D = std::hypot(Px - X, Py - Y);
            Second = std::min(Second, std::max(D, Best));
            if (D >= Best) continue;
            Best = D;
            Result.Id = Hash(Cx, Cy, Seed + 2);
        }
    }
    Result.Dist = Best;
    Result.Edge = (Second - Best) / 2;
    return Result;
}

float Dice::Next() {
    mState = mState * 747796405U + 2891336453U;
    const std::uint32_t Word = ((mState >> ((mState >> 28U) + 4U)) ^ mState) * 277803737U;
    return static_cast<float>(((Word >> 22U) ^ Word) >> 8) / 16777216.0F;
}

float Dice::Range(float From, float To) {
    return From + (To - From) * Next();
}

int Dice::Below(int Count) {
    return std::min(Count - 1, static_cast<int>(Next() * static_cast<float>(Count)));
}

}  // namespace neb::demo
