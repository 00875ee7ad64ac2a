#include "effects/GlowEngine.h"

#include <algorithm>
#include <vector>

#include "effects/DissolveEngine.h"
#include "effects/Pixels.h"

namespace neb::effects {
namespace {

// One colour that the edge takes on its way over a pixel, at a share of 256 of the way.
struct Stop {
    int At;
    QRgb Colour;
    int Tint;   // how much of the colour there is, 0..256
    int Shown;  // how much of the new picture, 0..256
};

// A pixel on the edge is Old parts of the old picture, New of the new and the light added.
struct Shade {
    std::uint64_t Light;
    std::uint64_t Old, New;
};

constexpr int kShades = 256;

int Between(int A, int B, int Part) {
    return A + (B - A) * Part / 256;
}

Shade MakeShade(QRgb Colour, int Tint, int Shown) {
    const int New = (256 - Tint) * Shown / 256;
    return {Spread(Colour) * static_cast<std::uint64_t>(Tint) + kHalves,
            static_cast<std::uint64_t>(256 - Tint - New), static_cast<std::uint64_t>(New)};
}

QRgb Lit(QRgb Old, QRgb New, const Shade& S) {
    return Gather(((Spread(Old) * S.Old + Spread(New) * S.New + S.Light) >> 8) & kLaneBytes);
}

std::vector<Shade> MakeShades(const std::vector<Stop>& Stops) {
    std::vector<Shade> Out;
    std::size_t S = 0;
    for (int I = 0; I < kShades; ++I) {
        while (S + 2 < Stops.size() && I >= Stops[S + 1].At) ++S;
        const Stop &A = Stops[S], &B = Stops[S + 1];
        const int Part = (I - A.At) * 256 / (B.At - A.At);
        Out.push_back(MakeShade(Mix(A.Colour, B.Colour, Part), Between(A.Tint, B.Tint, Part),
                                Between(A.Shown, B.Shown, Part)));
    }
    return Out;
}

const std::vector<Stop> kBurning = {{0, 0xFF301808u, 0, 0},       {70, 0xFF201006u, 190, 0},
                                    {130, 0xFF0C0604u, 250, 0},   {150, 0xFFE85A10u, 250, 20},
                                    {170, 0xFFFFD070u, 240, 120}, {195, 0xFFD04808u, 120, 256},
                                    {256, 0xFF401000u, 0, 256}};
const std::vector<Stop> kShining = {{0, 0xFFFFF6E0u, 0, 0},
                                    {110, 0xFFFFF6E0u, 215, 40},
                                    {140, 0xFFFFF6E0u, 215, 216},
                                    {256, 0xFFFFF6E0u, 0, 256}};

class GlowEngine : public Engine {
  public:
    GlowEngine(RevealMap Map, const std::vector<Stop>& Stops)
        : mMap(std::move(Map)), mShades(MakeShades(Stops)) {}

    void Draw(const Frame& F, int Y0, int Y1) const override {
        const int Edge = mMap.EdgeAt(F.Progress);
        for (int Y = Y0; Y < Y1; ++Y) {
            const QRgb* Old = F.Old.Row(Y);
            const QRgb* New = F.New.Row(Y);
            QRgb* Out = F.Row(Y);
            mMap.ForRuns(Y, Edge, [&](RevealMap::Kind What, int X0, int X1) {
                if (What == RevealMap::Kind::Mixed)
                    DrawEdge(Out, Old, New, mMap.Row(Y), X0, X1, Edge);
                else
                    CopySpan(Out + X0, (What == RevealMap::Kind::New ? New : Old) + X0, X1 - X0);
            });
        }
    }

  private:
    void DrawEdge(QRgb* Out, const QRgb* Old, const QRgb* New, const std::int16_t* Moments, int X0,
                  int X1, int Edge) const {
        const int Shift = mMap.SoftBits() - 8;
        for (int X = X0; X < X1; ++X) {
            const int At = (Edge - Moments[X]) >> Shift;
            if (At <= 0)
                Out[X] = Old[X];
            else if (At >= kShades)
                Out[X] = New[X];
            else
                Out[X] = Lit(Old[X], New[X], mShades[static_cast<std::size_t>(At)]);
        }
    }

    RevealMap mMap;
    std::vector<Shade> mShades;
};

}  // namespace

Recipe Burn(int Count) {
    return {"Glow", [=](const Pair& P) {
                return std::make_unique<GlowEngine>(MakeCloudMap(P.Size(), Count, 11), kBurning);
            }};
}

Recipe ShiningWipe(WipeShape Shape, WipeForm Form) {
    return {"Glow", [=](const Pair& P) {
                return std::make_unique<GlowEngine>(MakeWipeMap(P.Size(), Shape, Form), kShining);
            }};
}

}  // namespace neb::effects
