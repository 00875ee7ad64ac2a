#include "effects/DissolveEngine.h"

#include <algorithm>

#include "effects/Pixels.h"

namespace neb::effects {
namespace {

constexpr int kLevels = RevealMap::Levels;
constexpr std::uint32_t kSeed = 20011;

std::uint32_t U(int I) {
    return static_cast<std::uint32_t>(I);
}
int Noise(int X, int Y, std::uint32_t Seed) {
    return static_cast<int>(Hash(U(X), U(Y), Seed) >> 18);
}

// 14 bits of brightness by the usual weights of red, green and blue.
NEB_WIDE void FindMoments(const QRgb* Row, std::int16_t* Moments, int Count, int Flip) {
    for (int X = 0; X < Count; ++X) {
        const auto R = static_cast<std::uint16_t>((Row[X] >> 16) & 255u);
        const auto G = static_cast<std::uint16_t>((Row[X] >> 8) & 255u);
        const auto B = static_cast<std::uint16_t>(Row[X] & 255u);
        const auto Light = static_cast<std::uint16_t>(R * 19 + G * 38 + B * 7);
        Moments[X] = static_cast<std::int16_t>(Light ^ Flip);
    }
}

class LightEngine : public Engine {
  public:
    explicit LightEngine(bool BrightFirst) : mBrightFirst(BrightFirst) {}
    void Draw(const Frame& F, int Y0, int Y1) const override {
        constexpr int SoftBits = 12;
        const int Edge = Scale(kLevels + (1 << SoftBits), F.Progress);
        auto* Moments = Scratch<std::int16_t, LightEngine>(F.Width);
        for (int Y = Y0; Y < Y1; ++Y) {
            FindMoments(F.New.Row(Y), Moments, F.Width, mBrightFirst ? kLevels - 1 : 0);
            MixByMoments(F.Row(Y), F.Old.Row(Y), F.New.Row(Y), Moments, F.Width, Edge, SoftBits);
        }
    }

  private:
    bool mBrightFirst;
};

// Rolling noise on a coarse grid, evened out so that the same area turns in each moment.
class CloudField {
  public:
    CloudField(QSize Size, int Count)
        : mAcross(Size.width() / kStep + 2), mDown(Size.height() / kStep + 2) {
        const int Cell = std::max(4, std::max(Size.width(), Size.height()) / std::max(1, Count));
        mPoints.reserve(static_cast<std::size_t>(mAcross) * static_cast<std::size_t>(mDown));
        for (int Y = 0; Y < mDown; ++Y)
            for (int X = 0; X < mAcross; ++X) mPoints.push_back(Raw(X * kStep, Y * kStep, Cell));
        EvenOut();
    }

    int At(int X, int Y) const {
        const int Gx = X / kStep, Gy = Y / kStep, Fx = X % kStep, Fy = Y % kStep;
        const int Top = Point(Gx, Gy) * (kStep - Fx) + Point(Gx + 1, Gy) * Fx;
        const int Low = Point(Gx, Gy + 1) * (kStep - Fx) + Point(Gx + 1, Gy + 1) * Fx;
        return (Top * (kStep - Fy) + Low * Fy) / (kStep * kStep);
    }

  private:
    static constexpr int kStep = 4;

    int Point(int X, int Y) const {
        return mPoints[std::size_t(Y) * std::size_t(mAcross) + std::size_t(X)];
    }

    static int Smooth(int X, int Y, int Cell, std::uint32_t Seed) {
        const int Gx = X / Cell, Gy = Y / Cell;
        const int Fx = Ease((X % Cell) * One / Cell), Fy = Ease((Y % Cell) * One / Cell);
        const auto Between = [](int A, int B, int F) { return A + Scale(B - A, F); };
        const int Top = Between(Noise(Gx, Gy, Seed), Noise(Gx + 1, Gy, Seed), Fx);
        const int Low = Between(Noise(Gx, Gy + 1, Seed), Noise(Gx + 1, Gy + 1, Seed), Fx);
        return Between(Top, Low, Fy);
    }

    static int Raw(int X, int Y, int Cell) {
        int Sum = 0;
        for (int Octave = 0; Octave < 4; ++Octave)
            Sum += Smooth(X, Y, std::max(2, Cell >> Octave), kSeed + U(Octave)) * (8 >> Octave);
        return Sum / 15;
    }

    void EvenOut() {
        std::vector<std::int64_t> Below(kLevels + 1, 0);
        for (const int P : mPoints) ++Below[std::size_t(P) + 1];
        for (std::size_t I = 1; I < Below.size(); ++I) Below[I] += Below[I - 1];
        const auto All = static_cast<std::int64_t>(mPoints.size());
        for (int& P : mPoints) {
            const std::int64_t Rank = Below[std::size_t(P)] + Below[std::size_t(P) + 1];
            P = static_cast<int>(Rank * (kLevels - 1) / (2 * All));
        }
    }

    int mAcross, mDown;
    std::vector<int> mPoints;
};

Recipe FromMap(std::function<RevealMap(QSize)> Make) {
    return {"Dissolve", [Make](const Pair& P) { return RevealEngine(Make(P.Size())); }, true};
}

RevealMap MakeBlockMap(QSize Size, int Count, int SoftBits) {
    const int Side = std::max(1, std::max(Size.width(), Size.height()) / Count);
    const int Across = (Size.width() + Side - 1) / Side;
    const int All = Across * ((Size.height() + Side - 1) / Side);
    return RevealMap(Size, SoftBits, [=](int Y, std::int16_t* Row) {
        for (int X = 0; X < Size.width(); ++X) {
            const bool Inside = X % Side != 0;
            const int Index = (Y / Side) * Across + X / Side;
            const std::int64_t Turn = Inside ? 0 : Shuffled(Index, All);
            Row[X] = Inside ? Row[X - 1] : static_cast<std::int16_t>(Turn * (kLevels - 1) / All);
        }
    });
}

}  // namespace

RevealMap MakeCloudMap(QSize Size, int Count, int SoftBits) {
    const CloudField Field(Size, Count);
    return RevealMap(Size, SoftBits, [&](int Y, std::int16_t* Row) {
        for (int X = 0; X < Size.width(); ++X) Row[X] = static_cast<std::int16_t>(Field.At(X, Y));
    });
}

Recipe DotDissolve(int SoftBits) {
    return FromMap([=](QSize Size) {
        return RevealMap(Size, SoftBits, [=](int Y, std::int16_t* Row) {
            for (int X = 0; X < Size.width(); ++X)
                Row[X] = static_cast<std::int16_t>(Noise(X, Y, kSeed));
        });
    });
}

Recipe BlockDissolve(int Count, int SoftBits) {
    return FromMap([=](QSize Size) { return MakeBlockMap(Size, Count, SoftBits); });
}

Recipe CloudDissolve(int Count, int SoftBits) {
    return FromMap([=](QSize Size) { return MakeCloudMap(Size, Count, SoftBits); });
}

Recipe LightDissolve(bool BrightFirst) {
    return {"Light Dissolve",
            [=](const Pair&) { return std::make_unique<LightEngine>(BrightFirst); }, true};
}

}  // namespace neb::effects
