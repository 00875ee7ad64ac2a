// The shapes of the wipes that go by cells and lanes.
#include "effects/drawing/Pixels.h"
#include "effects/reveals/WipeParts.h"
#include "effects/reveals/WipeTurns.h"

namespace neb::effects {
namespace {

// Nearly square cells, Count of them along the longer side.
struct Cells {
    int Across, Down;  // how many
};

Cells CellsFor(QSize Size, int Count) {
    const int W = Size.width(), H = Size.height(), Longer = std::max(W, H);
    return {std::max(1, (Count * W + Longer / 2) / Longer),
            std::max(1, (Count * H + Longer / 2) / Longer)};
}

// The first pixel of part I of Count.
int PartStart(int I, int Length, int Count) {
    return static_cast<int>((std::int64_t{I} * Length + Count - 1) / Count);
}

// Rows of two kinds that take turns, band after band.
class BandRows : public WipeRows {
  public:
    void Fill(int Y, std::int16_t* Row) const override {
        const MomentLine& Line = PartAt(Y, mHeight, mBands) % 2 == 0 ? mEven : mOdd;
        std::copy(Line.begin(), Line.end(), Row);
    }

  protected:
    BandRows(int Height, int Bands) : mHeight(Height), mBands(Bands) {}
    int mHeight, mBands;
    MomentLine mEven, mOdd;
};

class CheckerRows : public BandRows {
  public:
    CheckerRows(QSize Size, int Count) : BandRows(Size.height(), CellsFor(Size, Count).Down) {
        const int W = Size.width(), Across = CellsFor(Size, Count).Across;
        const auto At = [=](int X, int Odd) {
            const int Within = WithinPart(X, W, Across) / (2 * One / kLevels);
            return (PartAt(X, W, Across) + Odd) % 2 * (kLevels / 2) + Within;
        };
        mEven = MakeLine(W, [&](int X) { return At(X, 0); });
        mOdd = MakeLine(W, [&](int X) { return At(X, 1); });
    }
};

class CombRows : public BandRows {
  public:
    CombRows(QSize Size, int Count) : BandRows(Size.height(), Count) {
        const int W = Size.width();
        mEven = MakeLine(W, [=](int X) { return Level(X, W); });
        mOdd = MakeLine(W, [=](int X) { return Level(W - 1 - X, W); });
    }
};

class SnakeRows : public WipeRows {
  public:
    SnakeRows(QSize Size, int Count)
        : mAcross(MakeLine(Size.width(), [&](int X) { return Level(X, Size.width()); })),
          mHeight(Size.height()),
          mCount(Count) {}
    void Fill(int Y, std::int16_t* Row) const override {
        const int Lane = PartAt(Y, mHeight, mCount), Part = One / mCount;
        for (std::size_t X = 0; X < mAcross.size(); ++X) {
            const int Along = Lane % 2 ? kLevels - 1 - mAcross[X] : mAcross[X];
            Row[X] = static_cast<std::int16_t>((Lane * kLevels + Along) * Part >> 16);
        }
    }

  private:
    MomentLine mAcross;
    int mHeight, mCount;
};

// A walk round and round over the cells, inwards and clockwise from the top left corner. In the
// corners the edge turns about the inner one, so that it never jumps.
class SpiralRows : public WipeRows {
  public:
    SpiralRows(QSize Size, int Count) : mSize(Size), mCells(CellsFor(Size, Count)) {
        const int W = Size.width(), H = Size.height();
        mInX = MakeLine(W, [&](int X) { return WithinPart(X, W, mCells.Across) / 4; });
        mInY = MakeLine(H, [&](int Y) { return WithinPart(Y, H, mCells.Down) / 4; });
        for (int I = 0; I <= mCells.Across; ++I) mStarts.push_back(PartStart(I, W, mCells.Across));
    }
    void Fill(int Y, std::int16_t* Row) const override {
        const int DownAt = PartAt(Y, mSize.height(), mCells.Down);
        for (int Across = 0; Across < mCells.Across; ++Across) {
            const int X0 = mStarts[std::size_t(Across)], X1 = mStarts[std::size_t(Across) + 1];
            FillCell(StepAt(Across, DownAt), DownAt, Y, X0, X1, Row);
        }
    }

  private:
    // The ways through a cell; the turning ones come in the order of the quarters of the clock.
    enum Way { TurnDown, TurnLeft, TurnUp, TurnRight, GoRight, GoDown, GoLeft, GoUp };
    struct Step {
        int Index;
        Way Through;
    };

    Step StepAt(int Across, int DownAt) const {
        const int Ring =
            std::min({Across, DownAt, mCells.Across - 1 - Across, mCells.Down - 1 - DownAt});
        const int Wide = mCells.Across - 2 * Ring, High = mCells.Down - 2 * Ring;
        Step S = RoundRing(Across - Ring, DownAt - Ring, Wide, High);
        S.Index += mCells.Across * mCells.Down - Wide * High;
        return S;
    }

    static Step RoundRing(int X, int Y, int Wide, int High) {
        if (Y == 0) return {X, X == Wide - 1 && High > 1 ? TurnDown : GoRight};
        if (X == Wide - 1) return {Wide - 1 + Y, Y == High - 1 && Wide > 1 ? TurnLeft : GoDown};
        if (Y == High - 1) return {2 * Wide + High - 3 - X, X == 0 && High > 2 ? TurnUp : GoLeft};
        return {2 * (Wide + High) - 4 - Y, Y == 1 && Wide > 2 ? TurnRight : GoUp};
    }

    int WithinAt(Way Through, int X, int Y) const {
        const int InX = mInX[std::size_t(X)], InY = mInY[std::size_t(Y)];
        if (Through == GoRight) return InX;
        if (Through == GoLeft) return kLevels - 1 - InX;
        return Through == GoDown ? InY : kLevels - 1 - InY;
    }

    // The corner about which the edge turns: bottom left, top left, top right, bottom right.
    Middle Pivot(Way Through, int DownAt, int X0, int X1) const {
        const bool OnRight = Through == TurnUp || Through == TurnRight;
        const bool Low = Through == TurnDown || Through == TurnRight;
        return {2 * (OnRight ? X1 : X0),
                2 * PartStart(DownAt + (Low ? 1 : 0), mSize.height(), mCells.Down)};
    }

    void FillCell(Step S, int DownAt, int Y, int X0, int X1, std::int16_t* Row) const {
        const int All = mCells.Across * mCells.Down, Part = One / All, Before = S.Index * kLevels;
        if (S.Through >= GoRight) {
            for (int X = X0; X < X1; ++X)
                Row[X] =
                    static_cast<std::int16_t>((Before + WithinAt(S.Through, X, Y)) * Part >> 16);
            return;
        }
        auto* Turns = Scratch<std::uint16_t, SpiralRows>(X1 - X0);
        FindTurns(X0, X1 - X0, Y, Pivot(S.Through, DownAt, X0, X1), false, Turns);
        for (int X = X0; X < X1; ++X) {
            const int Within = Clamp(Turns[X - X0] - S.Through * (One / 4), 0, kLevels - 1);
            Row[X] = static_cast<std::int16_t>((Before + Within) * Part >> 16);
        }
    }

    QSize mSize;
    Cells mCells;
    MomentLine mInX, mInY;
    std::vector<int> mStarts;
};

// Bands across, drawn through from the left, and bands down, drawn through from the top, that go
// over and under each other.
class WeaveRows : public WipeRows {
  public:
    WeaveRows(QSize Size, int Count) : mSize(Size), mCells(CellsFor(Size, Count)) {
        mAcross = MakeLine(Size.width(), [&](int X) { return Level(X, Size.width()); });
        for (int I = 0; I <= mCells.Across; ++I)
            mStarts.push_back(PartStart(I, Size.width(), mCells.Across));
    }
    void Fill(int Y, std::int16_t* Row) const override {
        const int Band = PartAt(Y, mSize.height(), mCells.Down);
        const auto Down = static_cast<std::int16_t>(Level(Y, mSize.height()));
        for (int I = 0; I < mCells.Across; ++I) {
            const int X0 = mStarts[std::size_t(I)], X1 = mStarts[std::size_t(I) + 1];
            if ((I + Band) % 2)
                std::fill(Row + X0, Row + X1, Down);
            else
                std::copy(mAcross.begin() + X0, mAcross.begin() + X1, Row + X0);
        }
    }

  private:
    QSize mSize;
    Cells mCells;
    MomentLine mAcross;
    std::vector<int> mStarts;
};

// How far each pixel is from the middle of its cell, up to Half at its sides. The first cell
// begins before the picture by Shift of One. Side: of a cell, in pixels times One.
MomentLine OffMiddles(int Length, std::int64_t Side, int Half, int Shift) {
    return MakeLine(Length, [=](int I) {
        const std::int64_t At = Side * Shift / One + std::int64_t{I} * One + One / 2;
        return std::abs(2 * (At % Side) - Side) * Half / Side;
    });
}

// Dots in the middles and on the corners of square cells, growing until they meet.
class HalftoneRows : public WipeRows {
  public:
    HalftoneRows(QSize Size, int Count)
        : mAcross(MakeLine(Size.width(), [&](int X) { return Level(X, Size.width()) * 7 / 10; })) {
        const std::int64_t Side = std::int64_t{std::max(Size.width(), Size.height())} * One / Count;
        mOffX = OffMiddles(Size.width(), Side, kHalf, 0);
        mOffY = OffMiddles(Size.height(), Side, kHalf, 0);
    }
    void Fill(int Y, std::int16_t* Row) const override {
        constexpr float Scale = 0.3f * static_cast<float>(kLevels - 1) / static_cast<float>(kHalf);
        const int Width = static_cast<int>(mAcross.size());
        auto* Squares = Scratch<int, HalftoneRows>(Width);
        const int Dy = mOffY[std::size_t(Y)], Near = Dy * Dy, Far = (kHalf - Dy) * (kHalf - Dy);
        for (int X = 0; X < Width; ++X) {
            const int Dx = mOffX[std::size_t(X)];
            Squares[X] = std::min(Dx * Dx + Near, (kHalf - Dx) * (kHalf - Dx) + Far);
        }
        FindRoots(Width, Squares, Scale, Row);
        for (int X = 0; X < Width; ++X)
            Row[X] = static_cast<std::int16_t>(Row[X] + mAcross[std::size_t(X)]);
    }

  private:
    static constexpr int kHalf = 2048;
    MomentLine mAcross, mOffX, mOffY;
};

// The walls of six-sided cells come first and grow until the cells are full.
class HoneyRows : public WipeRows {
  public:
    HoneyRows(QSize Size, int Count) : mSize(Size), mPerUnit(0.65f * LevelsPerUnit(Size)) {
        const std::int64_t Side = std::int64_t{std::max(Size.width(), Size.height())} * One / Count;
        // The cells lie in two sets, the second between those of the first. Two rows of one set
        // are the root of three sides apart.
        for (const int Set : {0, 1}) {
            mOffX[Set] = OffMiddles(Size.width(), Side, kHalf, Set * One / 2);
            mOffY[Set] =
                OffMiddles(Size.height(), Side * 113512 / One, kHalf * 3 / 2, Set * One / 2);
        }
    }
    void Fill(int Y, std::int16_t* Row) const override {
        const int Dy0 = mOffY[0][std::size_t(Y)], Dy1 = mOffY[1][std::size_t(Y)];
        FindDistances(mSize.width(), Y, {mSize.width(), mSize.height()}, mPerUnit, Row);
        for (std::size_t X = 0; X < mOffX[0].size(); ++X) {
            const int A = FromMiddle(mOffX[0][X], Dy0), B = FromMiddle(mOffX[1][X], Dy1);
            Row[X] = static_cast<std::int16_t>(Row[X] + std::max(kHalf - std::min(A, B), 0));
        }
    }

  private:
    static constexpr int kHalf = kLevels * 35 / 100;

    // From the middle of a cell (0) to its walls (kHalf).
    static int FromMiddle(int Dx, int Lean) { return std::max(Dx, Dx / 2 + Lean); }

    QSize mSize;
    float mPerUnit;
    MomentLine mOffX[2], mOffY[2];
};

}  // namespace

constinit const WipeShape Checker = MakeShape<CheckerRows>;
constinit const WipeShape Comb = MakeShape<CombRows>;
constinit const WipeShape Snake = MakeShape<SnakeRows>;
constinit const WipeShape Spiral = MakeShape<SpiralRows>;
constinit const WipeShape Weave = MakeShape<WeaveRows>;
constinit const WipeShape Halftone = MakeShape<HalftoneRows>;
constinit const WipeShape Honey = MakeShape<HoneyRows>;

}  // namespace neb::effects
