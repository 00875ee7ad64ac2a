#include "effects/reveals/WipeParts.h"

namespace neb::effects {
namespace {

// Every row alike: the moment of a column.
template <int (*At)(int X, int Width, int Count)>
class Columns : public WipeRows {
  public:
    Columns(QSize Size, int Count)
        : mLine(MakeLine(Size.width(), [&](int X) { return At(X, Size.width(), Count); })) {}
    void Fill(int, std::int16_t* Row) const override { std::copy(mLine.begin(), mLine.end(), Row); }
    bool OneRow() const override { return true; }

  private:
    MomentLine mLine;
};

int LevelAt(int X, int Width, int) {
    return Level(X, Width);
}
int SideAt(int X, int Width, int) {
    return SideLevel(X, Width);
}
int BlindAt(int X, int Width, int Count) {
    return WithinPart(X, Width, Count) / (One / kLevels);
}
int BlindInTurnAt(int X, int Width, int Count) {
    return (Level(X, Width) * 2 + BlindAt(X, Width, Count)) / 3;
}
int BarAt(int X, int Width, int Count) {
    const int Bars = std::min(Count, Width);
    return LevelOf(2 * Shuffled(PartAt(X, Width, Bars), Bars) + 1, 2 * Bars);
}

// The moment of a column and that of a row together.
template <int (*At)(int I, int Length, int Count), int (*Join)(int A, int B)>
class Joined : public WipeRows {
  public:
    Joined(QSize Size, int Count)
        : mAcross(MakeLine(Size.width(), [&](int X) { return At(X, Size.width(), Count); })),
          mDown(MakeLine(Size.height(), [&](int Y) { return At(Y, Size.height(), Count); })) {}
    void Fill(int Y, std::int16_t* Row) const override {
        const int Down = mDown[static_cast<std::size_t>(Y)];
        for (std::size_t X = 0; X < mAcross.size(); ++X)
            Row[X] = static_cast<std::int16_t>(Join(mAcross[X], Down));
    }

  private:
    MomentLine mAcross, mDown;
};

int Mean(int A, int B) {
    return (A + B) / 2;
}
int Greater(int A, int B) {
    return std::max(A, B);
}
int Lesser(int A, int B) {
    return std::min(A, B);
}

// An edge from the left to the right, bent to both sides by a 24th of the width.
template <int (*Bend)(int Angle)>
class BentEdge : public WipeRows {
  public:
    BentEdge(QSize Size, int Count)
        : mAcross(MakeLine(Size.width(), [&](int X) { return Level(X, Size.width()); })),
          mHeight(Size.height()),
          mCount(Count) {}
    void Fill(int Y, std::int16_t* Row) const override {
        constexpr int Room = kLevels / 24, Shrink = One * 24 / 26;
        const auto Angle =
            static_cast<int>((2 * std::int64_t{Y} + 1) * One * mCount / (2 * mHeight));
        const int Add = Room + Scale(Room, Bend(Angle & (One - 1)));
        for (std::size_t X = 0; X < mAcross.size(); ++X)
            Row[X] = static_cast<std::int16_t>(((mAcross[X] + Add) * Shrink) >> 16);
    }

  private:
    MomentLine mAcross;
    std::int64_t mHeight;
    int mCount;
};

int Tooth(int Angle) {
    return 4 * std::min(Angle, One - Angle) - One;
}

// Slats at an angle of 45 degrees, those next to the top left corner a little before the others.
// All of a slant line turns at once, so that each row is the one above moved on.
class Aslant : public WipeRows {
  public:
    Aslant(QSize Size, int Count) : mWidth(Size.width()) {
        const SoftSaw Saw(One / 6);
        const int Way = Size.width() + Size.height() - 1;
        mAlong = MakeLine(Way, [&](int I) {
            return (Saw.At(WithinPart(I, Way, Count)) * 5 + Level(I, Way)) / 6;
        });
    }
    void Fill(int Y, std::int16_t* Row) const override {
        std::copy_n(mAlong.begin() + Y, mWidth, Row);
    }

  private:
    int mWidth;
    MomentLine mAlong;
};

}  // namespace

constinit const WipeShape Straight = MakeShape<Columns<LevelAt>>;
constinit const WipeShape Centre = MakeShape<Columns<SideAt>>;
constinit const WipeShape Blinds = MakeShape<Columns<BlindAt>>;
constinit const WipeShape BlindsInTurn = MakeShape<Columns<BlindInTurnAt>>;
constinit const WipeShape RandomBars = MakeShape<Columns<BarAt>>;
constinit const WipeShape Diagonal = MakeShape<Joined<LevelAt, Mean>>;
constinit const WipeShape Diamond = MakeShape<Joined<SideAt, Mean>>;
constinit const WipeShape Box = MakeShape<Joined<SideAt, Greater>>;
constinit const WipeShape Cross = MakeShape<Joined<SideAt, Lesser>>;
constinit const WipeShape Waves = MakeShape<BentEdge<Sine>>;
constinit const WipeShape Teeth = MakeShape<BentEdge<Tooth>>;
constinit const WipeShape BlindsAslant = MakeShape<Aslant>;

int WipeShape::operator()(const WipePlace& P) const {
    MomentLine Row(static_cast<std::size_t>(P.Width));
    mMake({P.Width, P.Height}, P.Count)->Fill(P.Y, Row.data());
    return Row[static_cast<std::size_t>(P.X)];
}

}  // namespace neb::effects
