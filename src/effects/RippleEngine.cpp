#include "effects/RippleEngine.h"

#include <algorithm>
#include <vector>

#include "effects/Sampling.h"

namespace neb::effects {
namespace {

// What is done to all pixels at one distance from the middle.
struct Ring {
    int Along;   // by how much of its distance a pixel is moved outwards, of One
    int Around;  // and across that direction
    int Weight;  // of the new picture, 0..256
    int Light;   // brightness on the wave's slope, -64..64
};

// Distances are kept in quarters of a pixel.
class DistanceMap {
  public:
    explicit DistanceMap(QSize Size) : mWidth(Size.width()) {
        mDistances.reserve(std::size_t(mWidth) * std::size_t(Size.height()));
        for (int Y = 0; Y < Size.height(); ++Y)
            for (int X = 0; X < mWidth; ++X) {
                const std::int64_t Dx = 2 * X + 1 - mWidth, Dy = 2 * Y + 1 - Size.height();
                mDistances.push_back(static_cast<std::uint16_t>(Root(4 * (Dx * Dx + Dy * Dy))));
            }
        mReach = *std::max_element(mDistances.begin(), mDistances.end());
    }
    const std::uint16_t* Row(int Y) const {
        return mDistances.data() + std::size_t(Y) * std::size_t(mWidth);
    }
    int Reach() const { return mReach; }

  private:
    int mWidth;
    int mReach = 0;
    std::vector<std::uint16_t> mDistances;
};

QRgb Lit(QRgb C, int Light) {
    if (Light == 0) return C;
    return Light > 0 ? Mix(C, 0xFFFFFFFFu, Light) : Darken(C, -Light);
}

class RingEngine : public Engine {
  public:
    explicit RingEngine(QSize Size) : mMap(Size) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        Ring* Rings = Scratch<Ring, RingEngine>(mMap.Reach() + 1);
        for (int R = 0; R <= mMap.Reach(); ++R) Rings[R] = RingAt(R, F.Progress);
        // In small squares: what a turned row reads lies in many rows of the picture.
        for (int Top = Y0; Top < Y1; Top += kSquare)
            for (int X = 0; X < F.Width; X += kSquare)
                for (int Y = Top; Y < std::min(Y1, Top + kSquare); ++Y)
                    DrawRun(F, Rings, Y, X, std::min(F.Width, X + kSquare));
    }

  protected:
    virtual Ring RingAt(int Distance, int Progress) const = 0;
    int Reach() const { return mMap.Reach(); }

  private:
    static constexpr int kSquare = 32;

    void DrawRun(const Frame& F, const Ring* Rings, int Y, int X0, int X1) const {
        const std::uint16_t* Distances = mMap.Row(Y);
        const QRgb* Old = F.Old.Row(Y);
        const QRgb* New = F.New.Row(Y);
        QRgb* Out = F.Row(Y);
        for (int X = X0; X < X1; ++X) {
            const Ring& R = Rings[Distances[X]];
            if (R.Along | R.Around | R.Light)
                Out[X] = Moved(F, R, X, Y);
            else
                Out[X] = R.Weight == 0 ? Old[X]
                                       : (R.Weight == 256 ? New[X] : Mix(Old[X], New[X], R.Weight));
        }
    }

    static QRgb Moved(const Frame& F, const Ring& R, int X, int Y) {
        const std::int64_t Dx = 2 * X + 1 - F.Width, Dy = 2 * Y + 1 - F.Height;
        const int U = (X << 16) + static_cast<int>((Dx * R.Along - Dy * R.Around) / 2);
        const int V = (Y << 16) + static_cast<int>((Dy * R.Along + Dx * R.Around) / 2);
        QRgb C = 0;
        if (R.Weight == 0)
            C = Sample(F.Old, U, V);
        else if (R.Weight == 256)
            C = Sample(F.New, U, V);
        else
            C = Mix(Sample(F.Old, U, V), Sample(F.New, U, V), R.Weight);
        return Lit(C, R.Light);
    }

    DistanceMap mMap;
};

class WaterEngine : public RingEngine {
  public:
    WaterEngine(QSize Size, int Waves) : RingEngine(Size), mWaves(Waves) {}

  protected:
    Ring RingAt(int Distance, int Progress) const override {
        // The ring is a third of the way wide; its head starts in the middle, its tail ends
        // in the corners.
        const int Width = Reach() / 3 + 1;
        const int Head = Scale(Reach() + Width, Progress);
        const int Behind = Head - Distance;
        if (Behind <= 0) return {0, 0, 0, 0};
        if (Behind >= Width) return {0, 0, 256, 0};
        const int Place = static_cast<int>(std::int64_t{Behind} * One / Width);
        const int Height = Scale(Sine(Place * mWaves), Scale(Hump(Place), Hump(Progress)));
        const int Slope = Scale(Cosine(Place * mWaves), Scale(Hump(Place), Hump(Progress)));
        const int Strength = Scale(Reach() / 40 + 8, Height);
        const int Along = static_cast<int>(std::int64_t{Strength} * One / std::max(4, Distance));
        const int Weight = Ease(Clamp((Place - 3 * One / 8) * 4, 0, One)) >> 8;
        return {Along, 0, Weight, Scale(40, Slope)};
    }

  private:
    int mWaves;
};

class TwirlEngine : public RingEngine {
  public:
    TwirlEngine(QSize Size, int Quarters) : RingEngine(Size), mQuarters(Quarters) {}

  protected:
    Ring RingAt(int Distance, int Progress) const override {
        const int Inner = One - static_cast<int>(std::int64_t{Distance} * One / (Reach() + 1));
        const int Angle = Scale(Hump(Progress), Ease(Inner)) / 4 * mQuarters;
        // The new picture wells up in the middle and spreads while the turning is strongest.
        const int Spread = Clamp((Progress - One / 3) * 3, 0, One);
        const int Weight = Clamp((Scale(5 * One / 4, Spread) - (One - Inner)) >> 6, 0, 256);
        return {Cosine(Angle) - One, Sine(Angle), Weight, 0};
    }

  private:
    int mQuarters;
};

}  // namespace

Recipe WaterRing(int Waves) {
    return {"Water", [=](const Pair& P) { return std::make_unique<WaterEngine>(P.Size(), Waves); }};
}

Recipe Twirl(int Quarters) {
    return {"Twirl",
            [=](const Pair& P) { return std::make_unique<TwirlEngine>(P.Size(), Quarters); }};
}

}  // namespace neb::effects
