// The shapes of the wipes that go by direction and distance.
#include "effects/drawing/Pixels.h"
#include "effects/reveals/WipeParts.h"
#include "effects/reveals/WipeTurns.h"

namespace neb::effects {
namespace {

// What the round shapes have in common: the middle of the picture, and how far its corners are.
class RoundRows : public WipeRows {
  public:
    RoundRows(QSize Size, int Count) : mSize(Size), mCount(Count) {
        mPerUnit = LevelsPerUnit(Size);
    }

  protected:
    int Width() const { return mSize.width(); }
    const std::uint16_t* Turns(int Y, bool BothSides = false) const {
        auto* Out = Scratch<std::uint16_t, RoundRows>(Width());
        FindTurns(0, Width(), Y, Here(), BothSides, Out);
        return Out;
    }
    // As moments: the corners are the farthest.
    void Distances(int Y, std::int16_t* Out) const {
        FindDistances(Width(), Y, Here(), mPerUnit, Out);
    }
    Middle Here() const { return {mSize.width(), mSize.height()}; }

    QSize mSize;
    int mCount;
    float mPerUnit;
};

class CircleRows : public RoundRows {
  public:
    using RoundRows::RoundRows;
    void Fill(int Y, std::int16_t* Row) const override { Distances(Y, Row); }
};

class RingRows : public RoundRows {
  public:
    RingRows(QSize Size, int Count) : RoundRows(Size, Count) {
        const SoftSaw Saw(One / 5);
        mMoments = MakeLine(kLevels, [&](int Far) {
            return (Far + 2 * Saw.At((Far * Count * (One / kLevels)) & (One - 1))) / 3;
        });
    }
    void Fill(int Y, std::int16_t* Row) const override {
        Distances(Y, Row);
        for (int X = 0; X < Width(); ++X) Row[X] = mMoments[static_cast<std::size_t>(Row[X])];
    }

  private:
    MomentLine mMoments;  // for each distance
};

class ClockRows : public RoundRows {
  public:
    using RoundRows::RoundRows;
    void Fill(int Y, std::int16_t* Row) const override {
        const std::uint16_t* Turn = Turns(Y);
        for (int X = 0; X < Width(); ++X)
            Row[X] = static_cast<std::int16_t>((Turn[X] * mCount & (One - 1)) / (One / kLevels));
    }
};

class FanRows : public RoundRows {
  public:
    using RoundRows::RoundRows;
    void Fill(int Y, std::int16_t* Row) const override {
        const std::uint16_t* Turn = Turns(Y, true);
        for (int X = 0; X < Width(); ++X)
            Row[X] = static_cast<std::int16_t>(std::min(Turn[X] / 2, kLevels - 1));
    }
};

class SwirlRows : public RoundRows {
  public:
    using RoundRows::RoundRows;
    void Fill(int Y, std::int16_t* Row) const override {
        const std::uint16_t* Turn = Turns(Y);
        Distances(Y, Row);
        for (int X = 0; X < Width(); ++X)
            Row[X] =
                static_cast<std::int16_t>(mSaw.At((Turn[X] * mCount + 3 * Row[X]) & (One - 1)));
    }

  private:
    SoftSaw mSaw{One / 8};
};

class SweepRows : public WipeRows {
  public:
    SweepRows(QSize Size, int) : mWidth(Size.width()) {}
    void Fill(int Y, std::int16_t* Row) const override {
        auto* Turn = Scratch<std::uint16_t, SweepRows>(mWidth);
        FindTurns(0, mWidth, Y, {0, 0}, false, Turn);
        for (int X = 0; X < mWidth; ++X)
            Row[X] = static_cast<std::int16_t>(Clamp(Turn[X] - One / 4, 0, kLevels - 1));
    }

  private:
    int mWidth;
};

constexpr int kDirections = 1 << 14;
// For each direction how much sooner than its distance the shape's outline is reached: of One.
using Outline = std::vector<int>;

// A shape given by its outline, growing from the middle until it holds the whole picture.
class OutlineRows : public RoundRows {
  public:
    OutlineRows(QSize Size, Outline Shape) : RoundRows(Size, 1), mShape(std::move(Shape)) {
        // The last place to be reached lies somewhere on the border.
        MomentLine Row(static_cast<std::size_t>(Width()));
        int Last = 1;
        for (int Y = 0; Y < mSize.height(); ++Y) {
            const bool Whole = Y == 0 || Y == mSize.height() - 1;
            Last = std::max({Last, MomentAt(0, Y), MomentAt(Width() - 1, Y)});
            for (int X = 0; Whole && X < Width(); ++X) Last = std::max(Last, MomentAt(X, Y));
        }
        for (int& D : mShape) D = static_cast<int>(std::int64_t{D} * (kLevels - 1) / Last);
    }
    void Fill(int Y, std::int16_t* Row) const override {
        const std::uint16_t* Turn = Turns(Y);
        Distances(Y, Row);
        for (int X = 0; X < Width(); ++X) Row[X] = static_cast<std::int16_t>(At(Row[X], Turn[X]));
    }

  private:
    // Slower while the shape is small enough to be seen whole.
    int At(int Far, unsigned Turn) const {
        const int Out = std::min(
            int((std::int64_t{Far} * mShape[Turn / (One / kDirections)]) >> 16), kLevels - 1);
        return Out + (Out * (kLevels - 1 - Out) / kLevels * 5 >> 3);
    }
    int MomentAt(int X, int Y) const {
        const int Right = 2 * X + 1 - mSize.width(), Down = 2 * Y + 1 - mSize.height();
        const auto Far = static_cast<float>(Root(std::int64_t{Right} * Right + Down * Down));
        const auto Turn = static_cast<unsigned>(AngleOf(-Down, Right));
        return int(std::int64_t{int(Far * mPerUnit) + 1} * mShape[Turn / (One / kDirections)] >>
                   16);
    }

    Outline mShape;
};

// Straight lines from each point to the notches beside it, which are half as far out.
Outline StarOutline(int Points) {
    const int Side = One / (2 * Points);
    // On such a line 1 / radius is Cosine + Slope * Sine of the way from the point.
    const std::int64_t Slope = std::int64_t{2 * One - Cosine(Side)} * One / Sine(Side);
    Outline Out;
    for (int I = 0; I < kDirections; ++I) {
        const int Turn = static_cast<int>((2 * std::int64_t{I} + 1) * One / (2 * kDirections));
        const int In = Turn % (2 * Side), Off = std::min(In, 2 * Side - In);
        Out.push_back((Cosine(Off) + Scale(Slope, Sine(Off))) / 2);
    }
    return Out;
}

struct Spot {
    int Turn, Near;  // the direction from the middle, and one over the distance
};

// A place on the outline of a heart, I of Count on its way down the right side.
Spot HeartSpot(int I, int Count) {
    const int T = static_cast<int>(std::int64_t{One} / 2 * I / Count);
    const int S = Sine(T);
    const int X = 16 * Scale(Scale(S, S), S);
    const int Y = 13 * Cosine(T) - 5 * Cosine(2 * T) - 2 * Cosine(3 * T) - Cosine(4 * T) + 4 * One;
    const std::int64_t Far = Root((std::int64_t{X} * X + std::int64_t{Y} * Y) >> 4) * 4;
    return {AngleOf(Y, X), static_cast<int>((std::int64_t{5 * One} << 16) / Far)};
}

Outline HeartOutline() {
    constexpr int Count = 4096, Half = kDirections / 2;
    Outline Out(kDirections, 0);
    Spot A = HeartSpot(0, Count);
    int D = 0;
    for (int I = 1; I <= Count; ++I) {
        const Spot B = I < Count ? HeartSpot(I, Count) : Spot{One / 2, A.Near};
        for (; D < Half && D * (One / kDirections) <= B.Turn; ++D) {
            const int Wide = std::max(1, B.Turn - A.Turn), In = D * (One / kDirections) - A.Turn;
            const int Near = A.Near + (B.Near - A.Near) * Clamp(In, 0, Wide) / Wide;
            Out[std::size_t(D)] = Out[std::size_t(kDirections - 1 - D)] = Near;
        }
        A = B;
    }
    return Out;
}

class StarRows : public OutlineRows {
  public:
    StarRows(QSize Size, int Count) : OutlineRows(Size, StarOutline(Count)) {}
};

class HeartRows : public OutlineRows {
  public:
    HeartRows(QSize Size, int) : OutlineRows(Size, HeartOutline()) {}
};

}  // namespace

constinit const WipeShape Circle = MakeShape<CircleRows>;
constinit const WipeShape Rings = MakeShape<RingRows>;
constinit const WipeShape Star = MakeShape<StarRows>;
constinit const WipeShape Heart = MakeShape<HeartRows>;
constinit const WipeShape Clock = MakeShape<ClockRows>;
constinit const WipeShape Fan = MakeShape<FanRows>;
constinit const WipeShape Swirl = MakeShape<SwirlRows>;
constinit const WipeShape Sweep = MakeShape<SweepRows>;

}  // namespace neb::effects
