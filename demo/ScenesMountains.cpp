// Mountains at dawn and balloons over the hills: ranges in the haze of the early sun.
#include <QLinearGradient>

#include "Props.h"
#include "Ranges.h"
#include "Scenes.h"

namespace neb::demo {
namespace {

constexpr Stop DawnSky[] = {{0, Hex(0x3f639a)},     {0.18F, Hex(0x7f9cc4)}, {0.33F, Hex(0xdcb4b8)},
                            {0.44F, Hex(0xf9be8c)}, {0.52F, Hex(0xffd59c)}, {1, Hex(0xffe0b4)}};

Rgb DawnAt(float X, float Y, float SunX, float SunY) {
    const float Away = std::hypot(X - SunX, Y - SunY);
    Rgb C = Ramp(DawnSky, Y + 0.02F * Fbm(X * 1.5F, Y * 6, 3, 11));
    const float Wisps = Smooth(0.05F, 0.75F, Fbm(X * 1.6F + Y * 2, Y * 11, 6, 21) + 0.12F);
    const float Band = Smooth(0.02F, 0.14F, Y) * Smooth(0.42F, 0.2F, Y);
    C = Mix(C, Mix(Hex(0xf6d3cf), Hex(0xfff0d0), Bell(Away, 0.6F)), 0.75F * Wisps * Band);
    C = C + Hex(0xff9a50) * (0.20F * Bell(Away, 0.36F)) +
        Hex(0xffd890) * (0.30F * Bell(Away, 0.09F));
    return Mix(C, Hex(0xfffbe8) * 1.25F, Smooth(0.036F, 0.034F, Away));
}

constexpr Range DawnRanges[] = {
    {0.50F, 0.13F, 2.2F, 0.95F, Hex(0xbfb3c0), Hex(0xffe2be), 0.12F, 0.10F, 501},
    {0.545F, 0.15F, 1.9F, 0.95F, Hex(0x9c9bb4), Hex(0xfbd9ba), 0.14F, 0.16F, 512},
    {0.61F, 0.17F, 1.6F, 0.9F, Hex(0x77809f), Hex(0xf0cfb8), 0.17F, 0.24F, 523},
    {0.69F, 0.17F, 1.5F, 0.8F, Hex(0x525f82), Hex(0xd9bdb2), 0.20F, 0.30F, 534},
    {0.77F, 0.13F, 1.4F, 0.6F, Hex(0x344463), Hex(0xa99ba4), 0.22F, 0.30F, 545},
    {0.86F, 0.10F, 1.3F, 0.45F, Hex(0x1e2c45), Hex(0x5d6478), 0.30F, 0.25F, 556},
};

void DawnForest(Picture& Target, const Range& Hills, float High, Rgb Colour, std::uint32_t Seed) {
    Dice Chances(Seed);
    const auto Ground = [&](float X) { return RidgeAt(Hills, X); };
    const float Gap = High * 0.17F;
    const QPainterPath Firs = FirRow(-0.02F, Target.Aspect(), Gap, High, Ground, Chances);
    Target.Paint([&](QPainter& P) { P.fillPath(Firs, ToColor(Colour)); });
}

}  // namespace

QImage PaintMountains(QSize Size) {
    Picture Target(Size);
    const float SunX = Target.Aspect() * 0.64F, SunY = 0.375F;
    Target.Shade([&](float X, float Y, Rgb) { return DawnAt(X, Y, SunX, SunY); });
    for (const Range& Hills : DawnRanges) PaintRange(Target, Hills, SunX);
    DawnForest(Target, DawnRanges[5], 0.06F, Hex(0x1b2940), 61);
    const Range Front = {0.955F, 0.10F, 0.9F, 0.2F, Hex(0x0d1524), Hex(0x0d1524), 1, 0, 567};
    PaintRange(Target, Front, SunX);
    DawnForest(Target, Front, 0.19F, Hex(0x0d1524), 62);
    Dice Chances(63);
    Target.Paint([&](QPainter& P) {
        for (int I = 0; I < 9; ++I)
            P.fillPath(Bird(SunX - 0.36F + Chances.Range(0, 0.2F), Chances.Range(0.22F, 0.31F),
                            Chances.Range(0.009F, 0.016F), 0.003F),
                       ToColor(Hex(0x3a4866)));
    });
    Target.Bloom(0.85F, 0.05F, 0.18F);
    return Target.Develop();
}

namespace {

constexpr Range BalloonRanges[] = {
    {0.66F, 0.16F, 1.5F, 0.85F, Hex(0xa3b9cf), Hex(0xf7e8d0), 0.10F, 0.12F, 601},
    {0.71F, 0.14F, 1.3F, 0.6F, Hex(0x86a6b0), Hex(0xf3e6c8), 0.12F, 0.18F, 612},
    {0.775F, 0.14F, 1.2F, 0.4F, Hex(0x6a9583), Hex(0xe8e0b4), 0.14F, 0.30F, 623},
    {0.86F, 0.15F, 1.0F, 0.35F, Hex(0x4c7c55), Hex(0xc7cc8c), 0.17F, 0.35F, 634},
    {0.97F, 0.17F, 0.8F, 0.3F, Hex(0x3f7040), Hex(0x8fa65c), 0.22F, 0.30F, 648},
};

constexpr Stop MorningSky[] = {
    {0, Hex(0x3f86c6)}, {0.3F, Hex(0x84b8dd)}, {0.55F, Hex(0xdfe3d6)}, {0.68F, Hex(0xffe9c2)}};

struct Cloth {
    Rgb Main, Second, Accent;
};
constexpr Cloth Cloths[] = {{Hex(0xd8352f), Hex(0xf6c445), Hex(0xfff4dc)},
                            {Hex(0x1f6fb2), Hex(0xf2f2ee), Hex(0xe8552e)},
                            {Hex(0xf08a24), Hex(0x7a2a6b), Hex(0xffe08a)},
                            {Hex(0x2d9a68), Hex(0xf7e36b), Hex(0xd84a4a)},
                            {Hex(0x7446a8), Hex(0xf3a7c0), Hex(0xfff1c9)}};

struct Balloon {
    float X, Y, Radius;  // middle and half width of the envelope
    int Cloth;
};
constexpr Balloon Balloons[] = {{0.30F, 0.33F, 0.165F, 0}, {0.93F, 0.24F, 0.105F, 1},
                                {1.18F, 0.45F, 0.062F, 2}, {0.66F, 0.50F, 0.045F, 3},
                                {0.60F, 0.13F, 0.036F, 4}, {1.36F, 0.20F, 0.040F, 0},
                                {0.10F, 0.58F, 0.026F, 1}, {0.86F, 0.58F, 0.022F, 4}};

// Half width of the envelope at T below its middle, in radii: round above, drawn in below.
float EnvelopeWidth(float T) {
    if (T < -1 || T > 1.32F) return -1;
    if (T < 0) return std::sqrt(1 - T * T);
    const float S = T / 1.32F;
    return Mix(1.0F, 0.15F, std::pow(S, 2.1F));
}

Rgb ClothAt(const Cloth& Colours, float Angle, float T) {
    constexpr float Gores = 16;
    const float Turn = (Angle / 3.14159265F + 0.5F) * Gores;
    const int Gore = static_cast<int>(std::floor(Turn));
    Rgb C = Gore % 2 ? Colours.Main : Colours.Second;
    if (T > -0.16F && T < 0.2F) C = Gore % 2 ? Colours.Accent : Colours.Main;
    if (T < -0.86F) C = Colours.Accent;
    const float Seam = std::fabs(Turn - std::floor(Turn) - 0.5F) * 2;
    return C * (1 - 0.3F * Smooth(0.7F, 1, Seam));
}

void PaintEnvelope(Picture& Target, const Balloon& B) {
    const float Haze = Clamp01(0.5F - B.Radius * 4) * 0.75F;
    Target.ShadeRows(B.Y - B.Radius * 1.02F, B.Y + B.Radius * 1.33F, [&](float X, float Y, Rgb C) {
        const float T = (Y - B.Y) / B.Radius, Off = (X - B.X) / B.Radius;
        const float Half = EnvelopeWidth(T);
        const float Cover = Clamp01((Half - std::fabs(Off)) * B.Radius / Target.Unit() + 0.5F);
        if (Half <= 0 || Cover <= 0) return C;
        const float Side = std::clamp(Off / Half, -1.0F, 1.0F);
        const float Nx = Side * 0.95F, Nz = std::sqrt(std::max(0.0F, 1 - Nx * Nx));
        const float Ny = T < 0 ? T : T * 0.5F;
        const float Lit = 0.50F + 0.62F * std::max(0.0F, 0.62F * Nx - 0.35F * Ny + 0.60F * Nz);
        const float Gleam = Bell(Off - 0.42F, 0.22F) * Bell(T + 0.45F, 0.3F);
        Rgb Paint = ClothAt(Cloths[B.Cloth], std::asin(Side), T) * Lit;
        Paint = Screen(Paint, Hex(0xffe8c0) * (0.35F * Gleam)) +
                Hex(0x402010) * (0.3F * Smooth(0.3F, 1.3F, T));
        return Mix(C, Mix(Paint, Hex(0xe6ecec), Haze), Cover);
    });
}

void PaintBasket(QPainter& P, const Balloon& B) {
    const float R = B.Radius, Mouth = B.Y + R * 1.31F, Top = B.Y + R * 1.62F;
    P.setPen(QPen(ToColor(Hex(0x4a3a2c), 0.85F), R * 0.012F));
    for (const float Side : {-1.0F, -0.35F, 0.35F, 1.0F})
        P.drawLine(QPointF(B.X + Side * R * 0.15F, Mouth), QPointF(B.X + Side * R * 0.10F, Top));
    P.setPen(Qt::NoPen);
    QLinearGradient Wicker(B.X - R * 0.11F, 0, B.X + R * 0.11F, 0);
    Wicker.setColorAt(0, ToColor(Hex(0x4d2f1a)));
    Wicker.setColorAt(1, ToColor(Hex(0xb07a44)));
    P.setBrush(Wicker);
    P.drawRoundedRect(QRectF(B.X - R * 0.11F, Top, R * 0.22F, R * 0.17F), R * 0.03F, R * 0.03F);
}

// Copses in the folds of a hill: dark below, catching the sun above.
void PaintCopses(Picture& Target, const Range& Hills, float Leaf, int Count, std::uint32_t Seed) {
    Dice Chances(Seed);
    Target.Paint([&](QPainter& P) {
        for (int I = 0; I < Count; ++I) {
            const float Deep = static_cast<float>(I) / static_cast<float>(Count);
            const float X = Chances.Range(0, Target.Aspect()), Down = 0.004F + Deep * 0.17F;
            if (Fbm(X * 2.4F, Down * 13, 3, Seed) < 0.10F) continue;
            const float Y = RidgeAt(Hills, X) + Down,
                        R = Leaf * Chances.Range(0.4F, 1.0F) * (0.6F + Deep);
            const Rgb Tree = Mix(Hex(0x1c4426), Hills.Mist, 0.25F + 0.8F * Deep * Deep);
            P.setBrush(ToColor(Tree));
            Disc(P, X, Y, R, R * 1.15F);
            P.setBrush(ToColor(Mix(Tree, Hex(0xe0dc78), 0.26F), 0.6F));
            Disc(P, X + R * 0.28F, Y - R * 0.36F, R * 0.55F, R * 0.5F);
        }
    });
}

}  // namespace

QImage PaintBalloons(QSize Size) {
    Picture Target(Size);
    const float SunX = Target.Aspect() * 1.02F;
    Target.Shade([&](float X, float Y, Rgb) {
        const float Away = std::hypot(X - SunX, Y - 0.5F);
        Rgb C = Ramp(MorningSky, Y);
        const float Cloud = Smooth(0.02F, 0.6F, Fbm(X * 1.9F, Y * 5.5F, 6, 31) + 0.02F);
        C = Mix(C, Mix(Hex(0xf4f1ee), Hex(0xfff0cf), Bell(Away, 0.7F)),
                0.85F * Cloud * Smooth(0.62F, 0.3F, Y));
        return C + Hex(0xffc070) * (0.35F * Bell(Away, 0.5F));
    });
    for (int I = 0; I < 5; ++I) {
        const Range& Hills = BalloonRanges[I];
        PaintRange(Target, Hills, SunX);
        if (I > 1)
            PaintCopses(Target, Hills, 0.0026F * static_cast<float>(I - 1), 14000 - 2400 * I,
                        70U + static_cast<std::uint32_t>(I));
    }
    for (auto B = std::rbegin(Balloons); B != std::rend(Balloons); ++B) {
        PaintEnvelope(Target, *B);
        Target.Paint([&](QPainter& P) { PaintBasket(P, *B); });
    }
    return Target.Develop(0.01F, 0.15F);
}

}  // namespace neb::demo
