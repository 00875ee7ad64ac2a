#include "effects/reveals/DissolveEngine.h"

#include <algorithm>

#include "effects/drawing/LightMix.h"
#include "effects/reveals/SoftField.h"

namespace neb::effects {
namespace {

constexpr int kLevels = RevealMap::Levels;
constexpr std::uint32_t kSeed = 20011;

NEB_WIDE void FillWithNoise(int Y, std::int16_t* Row, int Count) {
    NEB_INDEPENDENT
    for (int X = 0; X < Count; ++X)
        Row[X] = static_cast<std::int16_t>(
            Hash(static_cast<std::uint32_t>(X), static_cast<std::uint32_t>(Y), kSeed) >> 18);
}

// A little blurred, so that whole areas turn and not every grain for itself.
SoftField MakeLightField(const Picture& P, bool BrightFirst) {
    SoftField Out = MakeBrightness(P);
    Out.Blur(PartOf({P.Width, P.Height}, 160), 2);
    Out.EvenOut(BrightFirst);
    return Out;
}

class LightEngine : public Engine {
  public:
    explicit LightEngine(SoftField Field) : mField(std::move(Field)) {}
    void Draw(const Frame& F, int Y0, int Y1) const override {
        constexpr int SoftBits = 13;
        const int Edge = Scale(kLevels + (1 << SoftBits), F.Progress);
        auto* Moments = Scratch<std::int16_t, LightEngine>(F.Width);
        for (int Y = Y0; Y < Y1; ++Y) {
            mField.FillRow(Y, Moments);
            MixLightByMoments(F.Row(Y), F.Old.Row(Y), F.New.Row(Y), Moments, Edge, SoftBits, Y,
                              F.Width);
        }
    }

  private:
    SoftField mField;
};

Recipe FromMap(std::function<RevealMap(QSize)> Make) {
    return {"Dissolve", [Make](const Pair& P) { return RevealEngine(Make(P.Size())); }, true};
}

RevealMap MakeBlockMap(QSize Size, int Count, int SoftBits) {
    const int Side = std::max(1, std::max(Size.width(), Size.height()) / Count);
    const int Across = (Size.width() + Side - 1) / Side;
    const int All = Across * ((Size.height() + Side - 1) / Side);
    return RevealMap(Size, SoftBits, [=](int Y, std::int16_t* Row) {
        for (int Block = 0; Block < Across; ++Block) {
            const std::int64_t Turn = Shuffled((Y / Side) * Across + Block, All);
            const int Start = Block * Side;
            std::fill_n(Row + Start, std::min(Side, Size.width() - Start),
                        static_cast<std::int16_t>(Turn * (kLevels - 1) / All));
        }
    });
}

}  // namespace

Recipe DotDissolve(int SoftBits) {
    return FromMap([=](QSize Size) {
        return RevealMap(Size, SoftBits,
                         [=](int Y, std::int16_t* Row) { FillWithNoise(Y, Row, Size.width()); });
    });
}

Recipe BlockDissolve(int Count, int SoftBits) {
    return FromMap([=](QSize Size) { return MakeBlockMap(Size, Count, SoftBits); });
}

Recipe CloudDissolve(int Count, int SoftBits) {
    return FromMap([=](QSize Size) {
        SoftField Field = MakeClouds(Size, Count);
        Field.EvenOut();
        return RevealMap(Size, SoftBits, [&](int Y, std::int16_t* Row) { Field.FillRow(Y, Row); });
    });
}

Recipe LightDissolve(bool BrightFirst) {
    return {"Dissolve",
            [=](const Pair& P) {
                return std::make_unique<LightEngine>(MakeLightField(P.New, BrightFirst));
            },
            true};
}

}  // namespace neb::effects
