#include "effects/drawing/Fixed.h"

#include <cmath>

namespace neb::effects {
namespace {

constexpr int kTableBits = 10;
constexpr int kTableSize = 1 << kTableBits;
using Table = std::array<int, kTableSize + 1>;

// Arc tangents of 1, 1/2, 1/4 ... with 2^32 as the full turn, and the length that the turns by
// them bring with them: a quarter wave and its inverse are built from these by whole numbers.
constexpr std::array<std::int64_t, 30> kArcs = {
    536870912, 316933406, 167458907, 85004756, 42667331, 21354465, 10679838, 5340245,
    2670163,   1335087,   667544,    333772,   166886,   83443,    41722,    20861,
    10430,     5215,      2608,      1304,     652,      326,      163,      81,
    41,        20,        10,        5,        3,        1};
constexpr std::int64_t kShrink = 652032874;  // of 2^30

constexpr int ComputeSine(std::int64_t Angle) {
    std::int64_t X = kShrink, Y = 0;
    for (unsigned I = 0; I < kArcs.size(); ++I) {
        const std::int64_t Dx = Y >> I, Dy = X >> I;
        const std::int64_t Sign = Angle >= 0 ? 1 : -1;
        X -= Sign * Dx;
        Y += Sign * Dy;
        Angle -= Sign * kArcs[I];
    }
    return static_cast<int>((Y + (1 << 13)) >> 14);
}

constexpr int ComputeArc(std::int64_t X, std::int64_t Y) {
    std::int64_t Angle = 0;
    for (unsigned I = 0; I < kArcs.size(); ++I) {
        const std::int64_t Dx = Y >> I, Dy = X >> I;
        const std::int64_t Sign = Y >= 0 ? 1 : -1;
        X += Sign * Dx;
        Y -= Sign * Dy;
        Angle += Sign * kArcs[I];
    }
    return static_cast<int>((Angle + (1 << 15)) >> 16);
}

constexpr Table MakeSines() {
    Table T{};
    for (int I = 0; I <= kTableSize; ++I)
        T[static_cast<unsigned>(I)] = ComputeSine((std::int64_t{I} << 30) >> kTableBits);
    T[0] = 0;
    T[kTableSize] = One;
    return T;
}

constexpr Table MakeArcs() {
    Table T{};
    for (int I = 0; I <= kTableSize; ++I)
        T[static_cast<unsigned>(I)] = ComputeArc(1 << 30, std::int64_t{I} << (30 - kTableBits));
    T[0] = 0;
    T[kTableSize] = One / 8;
    return T;
}

constexpr Table kSines = MakeSines();
constexpr Table kArcTable = MakeArcs();

// Place: 0..One over the whole table.
int LookUp(const Table& T, int Place) {
    constexpr int Shift = 16 - kTableBits;
    const unsigned I = static_cast<unsigned>(Place >> Shift);
    if (I >= kTableSize) return T[kTableSize];
    const int Rest = Place & ((1 << Shift) - 1);
    return T[I] + (((T[I + 1] - T[I]) * Rest) >> Shift);
}

}  // namespace

int Ease(int Progress) {
    const std::int64_t P = Progress;
    return static_cast<int>((P * P * (3 * One - 2 * P)) >> 32);
}

int Hump(int Progress) {
    const int Side = Progress < One / 2 ? Progress : One - Progress;
    return Ease(2 * Side);
}

int Sine(int Angle) {
    const int A = Angle & (One - 1);
    const int InQuarter = (A << 2) & (One - 1);
    const bool Falling = (A & (One / 4)) != 0;
    const int Value = LookUp(kSines, Falling ? One - InQuarter : InQuarter);
    return A & (One / 2) ? -Value : Value;
}

int AngleOf(int X, int Y) {
    const std::int64_t Ax = X < 0 ? -std::int64_t{X} : X, Ay = Y < 0 ? -std::int64_t{Y} : Y;
    if (Ax + Ay == 0) return 0;
    const bool Steep = Ay > Ax;
    const std::int64_t Ratio = Steep ? (Ax << 16) / Ay : (Ay << 16) / Ax;
    int Angle = LookUp(kArcTable, static_cast<int>(Ratio));
    if (Steep) Angle = One / 4 - Angle;
    if (X < 0) Angle = One / 2 - Angle;
    if (Y < 0) Angle = One - Angle;
    return Angle & (One - 1);
}

int Root(std::int64_t Square) {
    // The root of a whole number that a double holds exactly is rounded rightly everywhere.
    return static_cast<int>(std::sqrt(static_cast<double>(Square)));
}

std::uint32_t Hash(std::uint32_t A, std::uint32_t B, std::uint32_t Seed) {
    std::uint32_t H = A * 0x9E3779B1u ^ (B * 0x85EBCA77u + Seed * 0xC2B2AE3Du);
    H = (H ^ (H >> 15)) * 0x2C1B3C6Du;
    H = (H ^ (H >> 12)) * 0x297A2D39u;
    return H ^ (H >> 15);
}

int Shuffled(int Index, int Count) {
    std::uint32_t Mask = 1;
    while (Mask < static_cast<std::uint32_t>(Count)) Mask <<= 1;
    --Mask;
    std::uint32_t I = static_cast<std::uint32_t>(Index);
    // Each step maps 0..Mask onto itself one to one; numbers past the end walk on until inside.
    do {
        I = (I * 0x9E3779B1u + 0x3C6EF372u) & Mask;
        I ^= I >> 3;
        I = (I * 0x85EBCA6Bu + 0x1B873593u) & Mask;
        I ^= I >> 2;
    } while (I >= static_cast<std::uint32_t>(Count));
    return static_cast<int>(I);
}

}  // namespace neb::effects
