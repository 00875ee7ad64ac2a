// The shapes of the wipes that look as if made by hand or weather.
#include "effects/drawing/Pixels.h"
#include "effects/reveals/WipeParts.h"

namespace neb::effects {
namespace {

constexpr std::uint32_t kSeed = 7103;

std::uint32_t U(int I) {
    return static_cast<std::uint32_t>(I);
}

// Rolling noise along a line, -One..One, with hills of about Hill pixels.
int Rolling(int At, int Hill, std::uint32_t Seed) {
    const auto Height = [=](int I) { return static_cast<int>(Hash(U(I), 0, Seed) >> 15) - One; };
    const int I = At / Hill, In = Ease(static_cast<int>(std::int64_t{At % Hill} * One / Hill));
    return Height(I) + Scale(Height(I + 1) - Height(I), In);
}

// Where a row lies to the sides of a stroke, and how much later the stroke comes for each pixel
// outside.
struct Lap {
    int AtTop, AtLow, Steep;
};

// Takes the moments of one stroke where they are sooner. A stroke is twice as fast as the levels
// Along go.
NEB_WIDE void LayStroke(int* Best, int Count, const std::int16_t* Along, int Sign, int Late,
                        const std::int16_t* Over, const std::int16_t* Under, Lap Sides) {
    NEB_INDEPENDENT
    for (int X = 0; X < Count; ++X) {
        const int Above = Sides.AtTop + Over[X], Below = Sides.AtLow - Under[X];
        const int Side = Above > Below ? Above : Below, Outside = Side > 0 ? Side : 0;
        const int Moment = ((Late + Sign * Along[X]) >> 1) + Outside * Sides.Steep;
        Best[X] = Moment < Best[X] ? Moment : Best[X];
    }
}

// Broad strokes to and fro from the top down. The hairs of the brush run ahead and behind, the
// sides of a stroke wander, and each stroke laps a little over the next.
class BrushRows : public WipeRows {
  public:
    BrushRows(QSize Size, int Count)
        : mSize(Size),
          mCount(Count),
          mAhead(kStep * (Count - 1) + kLevels / 2 + 2 * kHair),
          mWander(Size.height() / Count / 12) {
        mAcross = MakeLine(Size.width(), [&](int X) { return Level(X, Size.width()); });
        const int Hill = std::max(2, Size.width() / 9);
        for (int Stroke = 0; Stroke <= Count; ++Stroke)
            mSides.push_back(MakeLine(Size.width(), [&](int X) {
                return Scale(mWander, Rolling(X, Hill, kSeed + U(Stroke)));
            }));
    }
    void Fill(int Y, std::int16_t* Row) const override {
        const int Stroke = PartAt(Y, mSize.height(), mCount);
        auto* Best = Scratch<int, BrushRows>(mSize.width());
        std::fill_n(Best, mSize.width(), 1 << 28);
        for (int S = std::max(0, Stroke - 1); S <= std::min(mCount - 1, Stroke + 1); ++S)
            AddStroke(S, Y, Best);
        const int Shrink = static_cast<int>(std::int64_t{kLevels} * One / mAhead);
        for (int X = 0; X < mSize.width(); ++X)
            Row[X] = static_cast<std::int16_t>(
                std::min((Best[X] < mAhead ? Best[X] : mAhead) * Shrink >> 16, kLevels - 1));
    }

  private:
    static constexpr int kStep = kLevels / 4;   // from the start of a stroke to that of the next
    static constexpr int kHair = kLevels / 28;  // how far a hair may be before or behind

    int HairAt(int Stroke, int Y) const {
        const int Fine = std::max(1, mSize.height() / 270), Broad = 7 * Fine;
        const int Sum = Rolling(Y, Fine, kSeed + 50 + U(Stroke)) +
                        2 * Rolling(Y, Broad, kSeed + 90 + U(Stroke));
        return kHair + Scale(kHair, Sum / 3);
    }

    // Past its sides a stroke comes ever later, down to nothing within a part of its height.
    void AddStroke(int Stroke, int Y, int* Best) const {
        const int Top = PartTop(Stroke), Low = PartTop(Stroke + 1);
        const int Late = Stroke * kStep + HairAt(Stroke, Y);
        const int Steep = 4 * kLevels * mCount / mSize.height() + 1;
        const std::int16_t* Over = mSides[std::size_t(Stroke)].data();
        const std::int16_t* Under = mSides[std::size_t(Stroke) + 1].data();
        const bool Back = Stroke % 2 != 0;
        const Lap Sides{Stroke > 0 ? Top - Y : -mSize.height(),
                        Stroke < mCount - 1 ? Y - Low : -mSize.height(), Steep};
        constexpr int Enough = kStep + kLevels / 2 + 4 * kHair;
        if ((std::max(Sides.AtTop, Sides.AtLow) - 2 * mWander) * Steep > Enough) return;
        LayStroke(Best, mSize.width(), mAcross.data(), Back ? -1 : 1,
                  2 * Late + (Back ? kLevels - 1 : 0), Over, Under, Sides);
    }

    int PartTop(int Stroke) const {
        return static_cast<int>(std::int64_t{Stroke} * mSize.height() / mCount);
    }

    QSize mSize;
    int mCount, mAhead, mWander;
    MomentLine mAcross;
    std::vector<MomentLine> mSides;
};

// Drops that fall one after the other and spread until all is wet. Reckoned on a coarse grid, and
// evened out so that the same area turns in each moment.
class DropRows : public WipeRows {
  public:
    DropRows(QSize Size, int Count) : mSize(Size) {
        while (std::max(Size.width(), Size.height()) >> mShift > 512) ++mShift;
        mAcross = (Size.width() >> mShift) + 2;
        mDown = (Size.height() >> mShift) + 2;
        mPoints.assign(std::size_t(mAcross) * std::size_t(mDown), kLevels - 1);
        for (int I = 0; I < Count; ++I) AddDrop(I, Count);
        EvenOut();
    }
    void Fill(int Y, std::int16_t* Row) const override {
        const int Step = 1 << mShift, In = Y & (Step - 1);
        const std::int16_t* Top = mPoints.data() + std::ptrdiff_t{Y >> mShift} * mAcross;
        const std::int16_t* Low = Top + mAcross;
        auto* Line = Scratch<int, DropRows>(mAcross);
        for (int I = 0; I < mAcross; ++I) Line[I] = Top[I] * (Step - In) + Low[I] * In;
        for (int I = 0, X = 0; X < mSize.width(); ++I) {
            int At = Line[I] << mShift;
            for (int K = 0; K < Step && X < mSize.width(); ++K, ++X) {
                Row[X] = static_cast<std::int16_t>(At >> (2 * mShift));
                At += Line[I + 1] - Line[I];
            }
        }
    }

  private:
    // The drops lie scattered in the cells of a grid that is about as wide as the picture.
    void AddDrop(int I, int Count) {
        const int W = mSize.width() >> mShift, H = mSize.height() >> mShift;
        const int Wide = std::max(1, Root(std::int64_t{Count} * (W + 1) / (H + 1)));
        const int High = (Count + Wide - 1) / Wide, Cell = Shuffled(I, Count);
        const auto Jitter = [=](int Part) { return int(Hash(U(Cell), U(Part), kSeed) >> 16); };
        const int X = Scale(W, (Cell % Wide * One + Jitter(0)) / Wide);
        const int Y = Scale(H, (Cell / Wide * One + Jitter(1)) / High);
        const int Start = kLevels * 3 / 4 * I / Count;
        const int PerUnit = 2 * kLevels / std::max(1, std::max(W, H));
        for (int Gy = 0; Gy < mDown; ++Gy)
            for (int Gx = 0; Gx < mAcross; ++Gx) {
                const std::int64_t Dx = Gx - X, Dy = Gy - Y;
                const int Moment = Start + (Root((Dx * Dx + Dy * Dy) << 8) * PerUnit >> 4);
                std::int16_t& P = mPoints[std::size_t(Gy) * std::size_t(mAcross) + std::size_t(Gx)];
                P = static_cast<std::int16_t>(std::min(int{P}, Moment));
            }
    }

    void EvenOut() {
        std::vector<std::int64_t> Below(kLevels + 1, 0);
        for (const std::int16_t P : mPoints) ++Below[std::size_t(P) + 1];
        for (std::size_t I = 1; I < Below.size(); ++I) Below[I] += Below[I - 1];
        const auto All = static_cast<std::int64_t>(mPoints.size());
        for (std::int16_t& P : mPoints)
            P = static_cast<std::int16_t>((Below[std::size_t(P)] + Below[std::size_t(P) + 1]) *
                                          (kLevels - 1) / (2 * All));
    }

    QSize mSize;
    int mShift = 0;
    int mAcross, mDown;
    MomentLine mPoints;
};

}  // namespace

constinit const WipeShape Brush = MakeShape<BrushRows>;
constinit const WipeShape RainDrops = MakeShape<DropRows>;

}  // namespace neb::effects
