#include "effects/reveals/GlowEngine.h"

#include <algorithm>
#include <span>
#include <vector>

#include "effects/reveals/Shades.h"
#include "effects/reveals/SoftField.h"

namespace neb::effects {
namespace {

constexpr int kLevels = SoftField::Levels;

constexpr Stop kBurning[] = {Plain(0, 0),
                             Covered(70, 0, 0xFF201006u, 190),
                             Covered(130, 0, 0xFF0C0604u, 250),
                             Covered(150, 20, 0xFFE85A10u, 250),
                             Covered(170, 120, 0xFFFFD070u, 240),
                             Covered(195, 256, 0xFFD04808u, 120),
                             Plain(256, 256)};
constexpr Stop kShining[] = {Plain(0, 0), Covered(110, 40, 0xFFFFF6E0u, 215),
                             Covered(140, 216, 0xFFFFF6E0u, 215), Plain(256, 256)};
constexpr Stop kLeaking[] = {Plain(0, 0),
                             Lit(44, 0, 0xFF380800u),
                             Lit(84, 20, 0xFF8A2806u),
                             Lit(120, 110, 0xFFC8701Cu),
                             Lit(140, 170, 0xFFD08A34u),
                             Lit(176, 240, 0xFF9A3C0Cu),
                             Lit(216, 256, 0xFF401004u),
                             Plain(256, 256)};
constexpr Stop kRising[] = {Plain(0, 0),
                            Filtered(60, 0, 0xFF6A78B4u),
                            Filtered(104, 40, 0xFF4A4C80u),
                            {140, 200, 0xFFC0746Cu, 0xFF301004u},
                            {172, 256, 0xFFD8B080u, 0xFF261A04u},
                            {210, 256, 0xFFF4E4C0u, 0xFF0A0600u},
                            Plain(256, 256)};
constexpr Stop kBlooming[] = {Plain(0, 0),
                              Lit(70, 10, 0xFF4A4028u),
                              Lit(120, 110, 0xFFA89878u),
                              Lit(150, 180, 0xFF9C8E74u),
                              Lit(200, 250, 0xFF443E30u),
                              Plain(256, 256)};
constexpr Stop kSoaking[] = {Plain(0, 0),
                             Filtered(26, 0, 0xFFE0DCD4u),
                             Filtered(58, 20, 0xFF8A8078u),
                             Filtered(76, 110, 0xFF746C68u),
                             Filtered(104, 215, 0xFFB0ACA8u),
                             Filtered(160, 250, 0xFFD2D0CCu),
                             Plain(256, 256)};

class GlowEngine : public Engine {
  public:
    GlowEngine(RevealMap Map, std::span<const Stop> Stops) : mMap(std::move(Map)), mShades(Stops) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Edge = mMap.EdgeAt(F.Progress);
        for (int Y = Y0; Y < Y1; ++Y) {
            const QRgb* Old = F.Old.Row(Y);
            const QRgb* New = F.New.Row(Y);
            QRgb* Out = F.Row(Y);
            mMap.ForRuns(Y, Edge, [&](RevealMap::Kind What, int X0, int X1) {
                if (What == RevealMap::Kind::Mixed)
                    mShades.Draw(Out + X0, Old + X0, New + X0, mMap.Row(Y) + X0, X1 - X0, Edge,
                                 mMap.SoftBits());
                else
                    CopySpan(Out + X0, (What == RevealMap::Kind::New ? New : Old) + X0, X1 - X0);
            });
        }
    }

  private:
    RevealMap mMap;
    Shades mShades;
};

// The same over a field, whose rows are worked out as they are drawn.
class FieldGlowEngine : public Engine {
  public:
    FieldGlowEngine(SoftField Field, std::span<const Stop> Stops, int SoftBits)
        : mField(std::move(Field)), mShades(Stops), mSoftBits(SoftBits) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Edge = Scale(kLevels + (1 << mSoftBits), F.Progress);
        auto* Moments = Scratch<std::int16_t, FieldGlowEngine>(F.Width);
        for (int Y = Y0; Y < Y1; ++Y) {
            mField.FillRow(Y, Moments);
            for (int X = 0; X < F.Width;) {
                const int First = X;
                const Kind What = KindOf(Moments, X, F.Width, Edge);
                do X += kTile;
                while (X < F.Width && KindOf(Moments, X, F.Width, Edge) == What);
                DrawRun(F, Y, What, First, std::min(X, F.Width), Moments, Edge);
            }
        }
    }

  private:
    static constexpr int kTile = 64;
    using Kind = RevealMap::Kind;

    void DrawRun(const Frame& F, int Y, Kind What, int X0, int X1, const std::int16_t* Moments,
                 int Edge) const {
        const QRgb* Old = F.Old.Row(Y);
        const QRgb* New = F.New.Row(Y);
        QRgb* Out = F.Row(Y);
        if (What == Kind::Mixed)
            mShades.Draw(Out + X0, Old + X0, New + X0, Moments + X0, X1 - X0, Edge, mSoftBits);
        else
            CopySpan(Out + X0, (What == Kind::New ? New : Old) + X0, X1 - X0);
    }

    Kind KindOf(const std::int16_t* Moments, int X, int Width, int Edge) const {
        const auto [Low, High] = RangeOf(Moments + X, std::min(kTile, Width - X));
        if (Edge <= Low) return Kind::Old;
        return Edge - High >= 1 << mSoftBits ? Kind::New : Kind::Mixed;
    }

    struct Range {
        int Low, High;
    };
    // Between the grid's columns moments lie between theirs.
    static Range RangeOf(const std::int16_t* Moments, int Count) {
        Range Out{Moments[Count - 1], Moments[Count - 1]};
        for (int I = 0; I < Count; I += SoftField::Step) {
            const int M = Moments[I];
            Out = {std::min(Out.Low, M), std::max(Out.High, M)};
        }
        return Out;
    }

    SoftField mField;
    Shades mShades;
    int mSoftBits;
};

using FieldMaker = std::function<SoftField(const Pair&)>;

Recipe FromField(FieldMaker Make, std::span<const Stop> Stops, int SoftBits) {
    return {"Glow", [=](const Pair& P) {
                SoftField Field = Make(P);
                Field.EvenOut();
                return std::make_unique<FieldGlowEngine>(std::move(Field), Stops, SoftBits);
            }};
}

// Columns and rows that begin at the right; the clouds bend them.
SoftField MakeLeak(const Pair& P) {
    const int Width = P.Old.Width;
    SoftField Out(P.Size(), [=](int Y, int Count, int* Row) {
        for (int I = 0; I < Count; ++I)
            Row[I] = static_cast<int>((std::int64_t{Width} - I * SoftField::Step + Y / 3 + 64) *
                                      400000 / (Width + P.Old.Height + 64));
    });
    SoftField Clouds = MakeClouds(P.Size(), 2);
    Clouds.Blur(PartOf(P.Size(), 16), 2);
    Out.Add(Clouds, 1);
    return Out;
}

// Rings about a sun below the lower edge.
SoftField MakeDawn(const Pair& P) {
    const std::int64_t Width = P.Old.Width, Height = P.Old.Height;
    return SoftField(P.Size(), [=](int Y, int Count, int* Row) {
        const std::int64_t Dy = (Height * 5 / 4 - Y) * 3 / 2;
        for (int I = 0; I < Count; ++I) {
            const std::int64_t Dx = I * SoftField::Step - Width / 2;
            Row[I] = Root((Dx * Dx + Dy * Dy) * 256);
        }
    });
}

SoftField MakeBloom(const Pair& P) {
    SoftField Near = MakeBrightness(P.Old);
    Near.Blur(PartOf(P.Size(), 32), 2);
    SoftField Far = Near;
    Far.Blur(PartOf(P.Size(), 9), 2);
    Near.Add(Far, 2);
    // From the brightest on.
    SoftField Out(P.Size(), [](int, int Count, int* Row) { std::fill_n(Row, Count, 1 << 17); });
    Out.Add(Near, -1);
    return Out;
}

struct Drop {
    std::int64_t X, Y, Late;
};

std::vector<Drop> MakeDrops(QSize Size, int Count) {
    std::vector<Drop> Out;
    for (std::uint32_t I = 0; I < static_cast<std::uint32_t>(Count); ++I) {
        // Each in its own upright stripe, so that they do not fall on one heap.
        const std::int64_t X = (std::int64_t{I} * One + (Hash(I, 1, 107) >> 16)) / Count;
        const std::int64_t Y = Hash(I, 2, 107) >> 16, Late = Hash(I, 3, 107) >> 18;
        Out.push_back({(X * Size.width()) >> 16, (Y * Size.height()) >> 16, Late});
    }
    return Out;
}

// The way to the nearest drop, frayed by clouds.
SoftField MakeSoak(const Pair& P, int Count) {
    const std::vector<Drop> Drops = MakeDrops(P.Size(), Count);
    const int Longer = std::max(P.Old.Width, P.Old.Height);
    SoftField Out(P.Size(), [&](int Y, int Points, int* Row) {
        for (int I = 0; I < Points; ++I) {
            std::int64_t Best = std::int64_t{1} << 62;
            for (const Drop& D : Drops) {
                const std::int64_t Dx = I * SoftField::Step - D.X, Dy = Y - D.Y;
                Best = std::min(Best, (Dx * Dx + Dy * Dy) * 4 + D.Late * Longer * Longer / 65536);
            }
            Row[I] = static_cast<int>(std::int64_t{Root(Best)} * 400000 / Longer);
        }
    });
    Out.Add(MakeClouds(P.Size(), 7), 1);
    return Out;
}

}  // namespace

Recipe Burn(int Count) {
    return FromField([=](const Pair& P) { return MakeClouds(P.Size(), Count); }, kBurning, 11);
}

Recipe ShiningWipe(WipeShape Shape, WipeForm Form) {
    return {"Glow", [=](const Pair& P) {
                return std::make_unique<GlowEngine>(MakeWipeMap(P.Size(), Shape, Form), kShining);
            }};
}

Recipe FilmBurn() {
    return FromField(MakeLeak, kLeaking, 14);
}
Recipe Sunrise() {
    return FromField(MakeDawn, kRising, 14);
}
Recipe LightBloom() {
    return FromField(MakeBloom, kBlooming, 13);
}
Recipe PaperSoak(int Drops) {
    return FromField([=](const Pair& P) { return MakeSoak(P, Drops); }, kSoaking, 12);
}

}  // namespace neb::effects
