#include "effects/warps/RippleEngine.h"

#include <algorithm>
#include <vector>

#include "effects/drawing/Pixels.h"
#include "effects/warps/PolarEngine.h"

namespace neb::effects {
namespace {

class WaterEngine : public PolarEngine {
  public:
    WaterEngine(QSize Size, int Waves) : PolarEngine(Size, Bend::Alike), mWaves(Waves) {}

  protected:
    Ring RingAt(int Distance, int Progress, bool) const override {
        // The ring is as wide as the picture; its head starts in the middle, its tail ends
        // in the corners.
        const int Width = Reach() + 1;
        const int Behind = Scale(Reach() + Width, Progress) - Distance;
        if (Behind <= 0) return {Distance << 16, 0, 0, 0};
        if (Behind >= Width) return {Distance << 16, 0, One, 0};
        const int Place = static_cast<int>(std::int64_t{Behind} * One / Width);
        const int Calm = Clamp(Distance * 16 * (One / (Reach() + 1)), 0, One);
        const int Strength = Scale(Scale(Hump(Place), Hump(Progress)), Calm);
        const int Wave = Scale(Sine(Place * mWaves), Strength);
        const int Slope = Scale(Cosine(Place * mWaves), Strength);
        const int Weight = Ease(Clamp((Place - 7 * One / 16) * 8, 0, One));
        const auto Along = static_cast<int>((std::int64_t{Width} * Wave) / (mWaves * 8));
        return {std::max(0, (Distance << 16) + Along), 0, Weight, Slope / 4};
    }

  private:
    int mWaves;
};

class TwirlEngine : public PolarEngine {
  public:
    TwirlEngine(QSize Size, int Eighths) : PolarEngine(Size, Bend::Alike), mEighths(Eighths) {}

  protected:
    Ring RingAt(int Distance, int Progress, bool) const override {
        const int Far = static_cast<int>(std::int64_t{Distance} * One / (Reach() + 1));
        const int Inner = Clamp(One - Far * 3 / 2, 0, One);  // the corners stand still
        const int Angle = Scale(Hump(Progress), Scale(Inner, Inner)) / 8 * mEighths;
        // The new picture wells up in the middle and spreads while the turning is strongest.
        const int Spread = Clamp((Progress - One / 3) * 3, 0, One);
        const int Weight = Clamp((Scale(11 * One / 10, Spread) - Far) * 16, 0, One);
        return {Distance << 16, Angle, Weight, 0};
    }

  private:
    int mEighths;
};

class SwirlZoomEngine : public PolarEngine {
  public:
    SwirlZoomEngine(QSize Size, int Eighths) : PolarEngine(Size, Bend::Apart), mEighths(Eighths) {}

  protected:
    Ring RingAt(int Distance, int Progress, bool OfNew) const override {
        const int Inner =
            Clamp(One - static_cast<int>(std::int64_t{Distance} * One / (Reach() + 1)), 0, One);
        const int Wound = OfNew ? Ease(Clamp(WoundAt(One - Progress), 0, One))
                                : Ease(Clamp(WoundAt(Progress), 0, One));
        const int Angle = Scale(Wound, Scale(Inner, Inner)) / 8 * mEighths;
        const int Near = One + 2 * Scale(Wound, Wound);
        const auto Place = static_cast<int>((std::int64_t{Distance} << 32) / Near);
        // The new picture opens in the middle while both are wound up most.
        const int Open = Scale(Clamp((Progress - One * 13 / 32) * 16 / 3, 0, One), One * 9 / 8);
        const int Weight = Ease(Clamp((Open - (One - Inner)) * 8, 0, One));
        return {Place, OfNew ? -Angle : Angle, Weight, 0};
    }

  private:
    // One when the other picture has taken over.
    static int WoundAt(int Progress) { return Scale(Progress, One * 5 / 3); }

    int mEighths;
};

struct Drop {
    int X, Y;   // halves of a pixel
    int Start;  // progress at which it falls
};

// A ring of a drop in one frame, lengths in pixels.
struct PondRing {
    int X, Y;
    std::int64_t Head, Tail;  // 4 times their squares, for quick answers
    int Front;
    int Strength;  // pixels of One
};

class RainEngine : public WarpEngine {
  public:
    RainEngine(QSize Size, int Drops) : WarpEngine(Size, Bend::Alike) {
        const int W = Size.width(), H = Size.height();
        mReach = Root(std::int64_t{W} * W + std::int64_t{H} * H) + 1;
        mWidth = mReach / 10 + 2;
        for (int I = 0; I < Drops; ++I) {
            // Scattered evenly, by steps that fill a square without a pattern.
            const int Across = (I * 49445 + 24000) & (One - 1);
            const int Down = (I * 37339 + 27000) & (One - 1);
            mDrops.push_back({Scale(2 * W, Across), Scale(2 * H, Down), One / 2 * I / Drops});
        }
    }

  protected:
    void Prepare(const Frame& F) const override {
        PondRing* Rings = Scratch<PondRing, RainEngine>(int(mDrops.size()));
        for (std::size_t I = 0; I < mDrops.size(); ++I) {
            const Drop& D = mDrops[I];
            const int Age = std::max(0, F.Progress - D.Start);
            // The first ring has passed over all of the picture when the time is up.
            const int Front = Scale(mReach + mWidth, Scale(Age, Age) / 2 + Age / 2);
            const std::int64_t Tail = std::max(0, Front - mWidth);
            const int Fade = Scale(Clamp(Age * 8, 0, One), Clamp((One - F.Progress) * 3, 0, One));
            Rings[I] = {D.X,
                        D.Y,
                        std::int64_t{4} * Front * Front,
                        4 * Tail * Tail,
                        Front,
                        Fade * mWidth / 24};
        }
    }

    void FillLine(const Frame&, int Y, int Bits, WarpNode* Nodes, int Count) const override {
        const PondRing* Rings = Scratch<PondRing, RainEngine>(int(mDrops.size()));
        for (std::size_t I = 0; I < mDrops.size(); ++I) AddRing(Nodes, Rings[I], Y, Bits, Count);
    }

  private:
    static constexpr int kWaves = 3;

    // To the nodes of a line that it has reached.
    void AddRing(WarpNode* Nodes, const PondRing& R, int Y, int Bits, int Count) const {
        const std::int64_t Dy = 2 * Y + 1 - R.Y;
        if (Dy * Dy >= R.Head) return;
        const int Half = Root(R.Head - Dy * Dy) + 2;
        const int From = std::max(0, (R.X - Half) / 2) >> Bits;
        const int To = std::min(Count - 1, std::max(0, (R.X + Half) / 2) >> Bits);
        for (int N = From; N <= To; ++N) AddTo(Nodes[N], R, N << Bits, Y);
    }

    void AddTo(WarpNode& Node, const PondRing& R, int X, int Y) const {
        const std::int64_t Dx = 2 * X + 1 - R.X, Dy = 2 * Y + 1 - R.Y;
        const std::int64_t Square = Dx * Dx + Dy * Dy;
        if (Square >= R.Head) return;
        if (Square <= R.Tail) {
            Node.At[NewWeight] = One;
            return;
        }
        const int Far = Root(Square * 64) + 1;  // sixteenths of a pixel
        const int Place = Clamp((R.Front * 16 - Far) * (One / 16 * 16 / mWidth) / 16, 0, One);
        const int Strength = Scale(R.Strength, Hump(Place));
        const std::int64_t Wave = Scale(Sine(Place * kWaves), Strength);
        // Next to the point of impact the surface only rises and falls.
        const int Away = std::max(Far, mWidth * 4);
        Node.At[OldAcross] += static_cast<int>(Dx * Wave * 8 / Away);
        Node.At[OldDown] += static_cast<int>(Dy * Wave * 8 / Away);
        Node.At[Light] += Scale(Cosine(Place * kWaves), Strength) / mWidth * 6;
        const int Weight = Ease(Clamp((Place - One * 3 / 8) * 4, 0, One));
        Node.At[NewWeight] = std::max(Node.At[NewWeight], Weight);
    }

    int mReach, mWidth;
    std::vector<Drop> mDrops;
};

template <typename Kind>
Recipe Make(const char* Name, int Count) {
    return {Name, [=](const Pair& P) { return std::make_unique<Kind>(P.Size(), Count); }};
}

}  // namespace

Recipe WaterRing(int Waves) {
    return Make<WaterEngine>("Water", Waves);
}
Recipe RainRings(int Drops) {
    return Make<RainEngine>("Water", Drops);
}
Recipe Twirl(int Eighths) {
    return Make<TwirlEngine>("Twirl", Eighths);
}
Recipe SwirlZoom(int Eighths) {
    return Make<SwirlZoomEngine>("Twirl", Eighths);
}

}  // namespace neb::effects
