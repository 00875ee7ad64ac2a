#include "effects/WipeShapes.h"

#include <algorithm>
#include <cstdlib>

namespace neb::effects {
namespace {

constexpr int kLevels = RevealMap::Levels;

// The middle of pixel I of Length, as a moment; alike from both ends.
int Level(int I, int Length) {
    return static_cast<int>((2 * std::int64_t{I} + 1) * (kLevels - 1) / (2 * std::int64_t{Length}));
}
// Part of Whole as a moment.
int LevelOf(std::int64_t Part, std::int64_t Whole) {
    if (Whole <= 0) return 0;
    return static_cast<int>(std::clamp<std::int64_t>(Part * (kLevels - 1) / Whole, 0, kLevels - 1));
}

// Twice the distance from the middle, so that it is whole.
int FromMiddleX(const WipePlace& P) {
    return 2 * P.X + 1 - P.Width;
}
int FromMiddleY(const WipePlace& P) {
    return 2 * P.Y + 1 - P.Height;
}
int SideX(const WipePlace& P) {
    return LevelOf(std::abs(FromMiddleX(P)), P.Width);
}
int SideY(const WipePlace& P) {
    return LevelOf(std::abs(FromMiddleY(P)), P.Height);
}

std::int64_t SquareOf(std::int64_t X, std::int64_t Y) {
    return X * X + Y * Y;
}
int Distance(const WipePlace& P) {
    return Root(SquareOf(FromMiddleX(P), FromMiddleY(P)) * 256);
}
int Reach(const WipePlace& P) {
    return Root(SquareOf(P.Width, P.Height) * 256);
}

// Clockwise from twelve, 0..One-1.
int ClockAngle(const WipePlace& P) {
    return AngleOf(-FromMiddleY(P), FromMiddleX(P));
}

struct Cells {
    int Across, Down;  // how many
    int X, Y;          // which
    int InX, InY;      // how far into it, as moments
};

// Nearly square cells, Count of them along the longer side.
Cells CellsAt(const WipePlace& P) {
    const int Longer = std::max(P.Width, P.Height);
    Cells C{};
    C.Across = std::max(1, (P.Count * P.Width + Longer / 2) / Longer);
    C.Down = std::max(1, (P.Count * P.Height + Longer / 2) / Longer);
    C.X = P.X * C.Across / P.Width;
    C.Y = P.Y * C.Down / P.Height;
    C.InX = LevelOf((2 * P.X + 1) * C.Across - 2 * P.Width * C.X, 2 * P.Width);
    C.InY = LevelOf((2 * P.Y + 1) * C.Down - 2 * P.Height * C.Y, 2 * P.Height);
    return C;
}

int InStripe(const WipePlace& P) {
    return LevelOf((2 * std::int64_t{P.X} + 1) * P.Count % (2 * P.Width), 2 * P.Width);
}

// Step Index of Count, with the way into that step as a moment.
int InOrder(int Index, int Count, int Within) {
    return LevelOf(std::int64_t{Index} * kLevels + Within, std::int64_t{Count} * kLevels);
}

// An upright edge bent by Bend (-One..One), the bend being a twelfth of the width.
int Bent(const WipePlace& P, int Bend) {
    const int Room = kLevels / 12;
    return LevelOf(Level(P.X, P.Width) + Room + Scale(Room, Bend), kLevels + 2 * Room);
}

int WaveAngle(const WipePlace& P) {
    return static_cast<int>((2 * std::int64_t{P.Y} + 1) * One * P.Count / (2 * P.Height));
}

struct Step {
    int Index;   // its place in the walk
    int Within;  // as a moment
};

// The walk round a ring of cells, clockwise from its top left corner.
Step RoundRing(const Cells& C, int Ring) {
    const int Wide = C.Across - 2 * Ring, High = C.Down - 2 * Ring;
    const int X = C.X - Ring, Y = C.Y - Ring;
    if (Y == 0) return {X, C.InX};
    if (X == Wide - 1) return {Wide - 1 + Y, C.InY};
    if (Y == High - 1) return {2 * Wide + High - 3 - X, kLevels - 1 - C.InX};
    return {2 * (Wide + High) - 4 - Y, kLevels - 1 - C.InY};
}

}  // namespace

int Straight(const WipePlace& P) {
    return Level(P.X, P.Width);
}
int Diagonal(const WipePlace& P) {
    return (Level(P.X, P.Width) + Level(P.Y, P.Height)) / 2;
}
int Centre(const WipePlace& P) {
    return SideX(P);
}
int Circle(const WipePlace& P) {
    return LevelOf(Distance(P), Reach(P));
}
int Diamond(const WipePlace& P) {
    return (SideX(P) + SideY(P)) / 2;
}
int Box(const WipePlace& P) {
    return std::max(SideX(P), SideY(P));
}
int Cross(const WipePlace& P) {
    return std::min(SideX(P), SideY(P));
}

int Star(const WipePlace& P) {
    // Between a point and the notch beside it the edge runs straight enough when the distance
    // is drawn out by the angle from the point.
    const int Turn = static_cast<int>(std::int64_t{ClockAngle(P)} * P.Count & (One - 1));
    const int Off = std::min(Turn, One - Turn);  // 0 at a point, One / 2 at a notch
    const std::int64_t Far = std::int64_t{Distance(P)} * (One + 2 * Off);
    return LevelOf(Far >> 8, std::int64_t{Reach(P)} * (2 * One) >> 8);
}

int Clock(const WipePlace& P) {
    const std::int64_t Turn = std::int64_t{ClockAngle(P)} * P.Count;
    return static_cast<int>(Turn & (One - 1)) * (kLevels / 4) / (One / 4);
}

int Fan(const WipePlace& P) {
    return LevelOf(AngleOf(-FromMiddleY(P), std::abs(FromMiddleX(P))), One / 2);
}

int Sweep(const WipePlace& P) {
    return LevelOf(AngleOf(2 * P.X + 1, 2 * P.Y + 1), One / 4);
}

int Swirl(const WipePlace& P) {
    const int Bend = LevelOf(Distance(P), Reach(P)) * 2;
    const std::int64_t Turn = std::int64_t{ClockAngle(P)} * P.Count + Bend;
    return static_cast<int>(Turn & (One - 1)) * (kLevels / 4) / (One / 4);
}

int Blinds(const WipePlace& P) {
    return InStripe(P);
}

int BlindsInTurn(const WipePlace& P) {
    return (Level(P.X, P.Width) * 2 + InStripe(P)) / 3;
}

int Comb(const WipePlace& P) {
    const bool FromRight = (P.Y * P.Count / P.Height) % 2 != 0;
    return Level(FromRight ? P.Width - 1 - P.X : P.X, P.Width);
}

int Checker(const WipePlace& P) {
    const Cells C = CellsAt(P);
    return InOrder((C.X + C.Y) % 2, 2, C.InX);
}

int RandomBars(const WipePlace& P) {
    const int Count = std::min(P.Count, P.Width);
    const int Bar = static_cast<int>(std::int64_t{P.X} * Count / P.Width);
    return LevelOf(2 * Shuffled(Bar, Count) + 1, 2 * Count);
}

int Spiral(const WipePlace& P) {
    const Cells C = CellsAt(P);
    const int Ring = std::min({C.X, C.Y, C.Across - 1 - C.X, C.Down - 1 - C.Y});
    const int All = C.Across * C.Down;
    const int Outside = All - (C.Across - 2 * Ring) * (C.Down - 2 * Ring);
    const Step S = RoundRing(C, Ring);
    return InOrder(Outside + S.Index, All, S.Within);
}

int Snake(const WipePlace& P) {
    const int Lane = P.Y * P.Count / P.Height;
    const int Along = Level(Lane % 2 ? P.Width - 1 - P.X : P.X, P.Width);
    return InOrder(Lane, P.Count, Along);
}

int Waves(const WipePlace& P) {
    return Bent(P, Sine(WaveAngle(P)));
}

int Teeth(const WipePlace& P) {
    const int Turn = WaveAngle(P) & (One - 1);
    return Bent(P, 4 * std::min(Turn, One - Turn) - One);
}

}  // namespace neb::effects
