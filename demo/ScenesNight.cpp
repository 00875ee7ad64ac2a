// Pictures of the night: a harbour town, the Milky Way, northern lights.
#include <QLinearGradient>

#include "Props.h"
#include "Ranges.h"
#include "Scenes.h"

namespace neb::demo {
namespace {

constexpr float Quay = 0.66F;
constexpr Stop TownSky[] = {{0, Hex(0x070b1e)},
                            {0.25F, Hex(0x101c3f)},
                            {0.42F, Hex(0x2c3266)},
                            {0.60F, Hex(0x8a5080)},
                            {0.67F, Hex(0xe08468)}};

Rgb TownSkyAt(float X, float Y, float MoonX, float MoonY) {
    const float Away = std::hypot(X - MoonX, Y - MoonY);
    const float Cloud = Smooth(0.0F, 0.6F, Fbm(X * 1.8F, Y * 6, 5, 101));
    Rgb C = Ramp(TownSky, Y) + Stars(X, Y, 0.22F, 102) * Smooth(0.5F, 0.1F, Y) * (1 - Cloud);
    C = C + Hex(0x5a6a9a) * (Cloud * (0.10F + 0.45F * Bell(Away, 0.25F)));
    C = C + Hex(0xb8c4e8) * (0.35F * Bell(Away, 0.12F)) +
        Hex(0x6a7ab0) * (0.20F * Bell(Away, 0.4F));
    const float Seas = Smooth(-0.1F, 0.5F, Fbm(X * 28, Y * 28, 4, 103));
    return Mix(C, Hex(0xfff8e4) * (1.08F - 0.22F * Seas), Smooth(0.047F, 0.0445F, Away));
}

struct TownRow {
    float Low, Tall, Wide;  // heights of the houses and their usual width
    Rgb Wall;
    float Lit;  // share of windows with light
    float Pane;
    std::uint32_t Seed;
};
constexpr TownRow Rows[] = {{0.12F, 0.36F, 0.062F, Hex(0x3a3868), 0.30F, 0.0036F, 111},
                            {0.07F, 0.30F, 0.070F, Hex(0x22254e), 0.38F, 0.0048F, 112},
                            {0.03F, 0.12F, 0.060F, Hex(0x0e1230), 0.50F, 0.0062F, 113}};

Rgb WindowLight(Dice& Chances) {
    constexpr Rgb Lights[] = {Hex(0xffd27a), Hex(0xffbe5c), Hex(0xffe6b0), Hex(0xffc98a),
                              Hex(0xcfe4ff)};
    return Lights[Chances.Below(5)] * Chances.Range(0.55F, 1.0F);
}

void PaintPanes(QPainter& P, const QRectF& House, const TownRow& Row, Dice& Chances) {
    const qreal Step = static_cast<qreal>(Row.Pane) * 2;
    for (qreal Y = House.top() + Step * 0.7; Y < House.bottom() - Step * 0.5; Y += Step * 1.25) {
        const bool Busy = Chances.Odds(0.15F);
        for (qreal X = House.left() + Step * 0.45; X < House.right() - Step * 0.7; X += Step) {
            if (!Chances.Odds(Busy ? 0.85F : Row.Lit)) continue;
            P.setBrush(ToColor(WindowLight(Chances)));
            P.drawRect(QRectF(X, Y, Step * 0.52, Step * 0.68));
        }
    }
}

void PaintRoof(QPainter& P, const QRectF& House, Dice& Chances) {
    const qreal Middle = House.center().x(), Top = House.top(), Wide = House.width();
    const int Kind = Chances.Below(5);
    if (Kind == 0) {
        P.drawRect(QRectF(Middle - Wide * 0.3, Top - 0.018, Wide * 0.6, 0.02));
        P.drawRect(QRectF(Middle - 0.0012, Top - 0.085, 0.0024, 0.07));
        P.setBrush(ToColor(Hex(0xff5040)));
        Disc(P, static_cast<float>(Middle), static_cast<float>(Top) - 0.086F, 0.0028F, 0.0028F);
    } else if (Kind == 1) {
        P.drawPath(Shape({{House.left(), Top + 0.001},
                          {Middle, Top - Wide * 0.55},
                          {House.right(), Top + 0.001}}));
    } else if (Kind == 2) {
        P.drawPath(Shape({{House.left(), Top + 0.001},
                          {House.right(), Top - Wide * 0.3},
                          {House.right(), Top + 0.001}}));
    }
}

void PaintHouses(QPainter& P, const TownRow& Row, float Aspect) {
    Dice Chances(Row.Seed);
    for (float X = -0.02F; X < Aspect;) {
        const float Wide = Row.Wide * Chances.Range(0.6F, 1.35F);
        const float Middle = Bell(X - Aspect * 0.42F, Aspect * 0.35F);
        const float High = Row.Low + (Row.Tall - Row.Low) * Chances.Next() * (0.3F + 0.7F * Middle);
        const QRectF House(X, Quay - High, Wide, High);
        QLinearGradient Wall(0, Quay - High, 0, Quay);
        Wall.setColorAt(0, ToColor(Row.Wall));
        Wall.setColorAt(1, ToColor(Mix(Row.Wall, Hex(0x8a4a58), 0.28F)));
        P.setBrush(Wall);
        P.drawRect(House);
        P.setBrush(ToColor(Row.Wall));
        PaintRoof(P, House, Chances);
        PaintPanes(P, House, Row, Chances);
        X += Wide + (Chances.Odds(0.3F) ? Row.Wide * 0.25F : 0.001F);
    }
}

void PaintLamps(QPainter& P, float Aspect) {
    for (float X = 0.04F; X < Aspect; X += 0.083F) {
        P.setBrush(ToColor(Hex(0x0a0d22)));
        P.drawRect(QRectF(X - 0.001F, Quay - 0.035F, 0.002F, 0.035F));
        Glow(P, X, Quay - 0.036F, 0.020F, Hex(0xffb85c), 0.7F);
        P.setBrush(ToColor(Hex(0xffeab8)));
        Disc(P, X, Quay - 0.036F, 0.0032F, 0.0032F);
    }
}

// The water shows what stands above it, drawn out downwards and broken by ripples.
Rgb HarbourWater(const Picture& Above, float X, float Y, float MoonX) {
    const float Down = Y - Quay, Away = 1 / (Down + 0.04F);
    const float Wave =
        Noise(X * Away * 0.55F, Away * 6, 121) + 0.6F * Noise(X * Away * 1.7F, Away * 15, 122);
    Rgb Sum;
    constexpr int Taps = 7;
    for (int I = 0; I < Taps; ++I) {
        const float Spread = (static_cast<float>(I) - 3) * (0.006F + 0.05F * Down);
        Sum = Sum + Above.Sample(X + Wave * (0.003F + 0.03F * Down),
                                 Quay - 0.002F - std::fabs(Down * 1.05F + Spread));
    }
    Rgb C = Sum * (1.35F / Taps);
    const float Dim = Mix(0.95F, 0.62F, Smooth(0, 0.34F, Down)) + 0.22F * Wave;
    const float Path = Bell(X - MoonX + 0.02F * Wave, 0.03F + 0.16F * Down);
    C = C + Hex(0xd8e0ff) * (0.85F * Path * Smooth(0.05F, 0.9F, Wave));
    return C * Dim * Hex(0xdce4ff) + Hex(0x050a18);
}

void PaintBoat(QPainter& P, float X, float Y, float Long, float Mast) {
    const Rgb Hull = Hex(0x0a0c1c);
    QPainterPath Body(QPointF(X - Long * 0.5F, Y - Long * 0.13F));
    Body.quadTo(X, Y - Long * 0.05F, X + Long * 0.55F, Y - Long * 0.17F);
    Body.quadTo(X + Long * 0.42F, Y + Long * 0.03F, X + Long * 0.3F, Y + Long * 0.03F);
    Body.lineTo(X - Long * 0.42F, Y + Long * 0.03F);
    P.fillPath(Body, ToColor(Hull));
    P.setBrush(ToColor(Hull));
    P.drawRect(QRectF(X - Long * 0.2F, Y - Long * 0.21F, Long * 0.26F, Long * 0.13F));
    P.drawRect(QRectF(X + Long * 0.10F, Y - Mast, Long * 0.013F, Mast));
    P.setPen(QPen(ToColor(Hull), static_cast<qreal>(Long) * 0.006));
    P.drawLine(QPointF(X + Long * 0.106F, Y - Mast), QPointF(X + Long * 0.53F, Y - Long * 0.16F));
    P.drawLine(QPointF(X + Long * 0.106F, Y - Mast), QPointF(X - Long * 0.48F, Y - Long * 0.12F));
    P.setPen(Qt::NoPen);
    P.setBrush(ToColor(Hex(0xffcf7c)));
    for (const float Off : {-0.16F, -0.06F})
        P.drawRect(QRectF(X + Long * Off, Y - Long * 0.18F, Long * 0.06F, Long * 0.05F));
    Glow(P, X + Long * 0.106F, Y - Mast, Long * 0.05F, Hex(0xfff0d0), 0.9F, 0.1F);
}

}  // namespace

QImage PaintHarbour(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect(), MoonX = Aspect * 0.73F, MoonY = 0.16F;
    Target.Shade([&](float X, float Y, Rgb) { return TownSkyAt(X, Y, MoonX, MoonY); });
    for (const TownRow& Row : Rows) {
        Target.Paint([&](QPainter& P) { PaintHouses(P, Row, Aspect); });
        Target.ShadeRows(0.3F, Quay, [&](float, float Y, Rgb C) {
            return Mix(C, Hex(0x7a4c78), 0.10F * Smooth(0.35F, Quay, Y));
        });
    }
    Target.Paint([&](QPainter& P) { PaintLamps(P, Aspect); });
    Target.ShadeRows(Quay, 1,
                     [&](float X, float Y, Rgb) { return HarbourWater(Target, X, Y, MoonX); });
    Target.Paint([&](QPainter& P) {
        P.setBrush(ToColor(Hex(0x070a1a)));
        P.drawRect(QRectF(0, Quay - 0.004F, Aspect, 0.008F));
        PaintBoat(P, Aspect * 0.20F, 0.80F, 0.24F, 0.34F);
        PaintBoat(P, Aspect * 0.38F, 0.745F, 0.13F, 0.19F);
        PaintBoat(P, Aspect * 0.85F, 0.775F, 0.17F, 0.26F);
    });
    Target.Bloom(0.7F, 0.02F, 0.55F);
    return Target.Develop(0.016F, 0.35F);
}

namespace {

constexpr float Shore = 0.70F;
constexpr Stop DeepSky[] = {{0, Hex(0x060a1c)},
                            {0.35F, Hex(0x0c1834)},
                            {0.55F, Hex(0x1b3550)},
                            {0.66F, Hex(0x3f6265)},
                            {0.72F, Hex(0x6f7c62)}};

Rgb GalaxyAt(float X, float Y) {
    const float Bend = 0.06F * Fbm(X * 1.4F, Y * 1.4F, 3, 131);
    const float Across = (X - 0.80F) * 0.80F + (Y - 0.34F) * 0.60F + Bend;
    const float Along = (Y - 0.34F) * 0.80F - (X - 0.80F) * 0.60F;
    const float Cloud = 0.62F + 0.55F * Fbm(X * 4.2F, Y * 4.2F, 6, 132);
    const float Core = Bell(Along - 0.12F, 0.42F);
    float Band = Bell(Across, 0.115F + 0.06F * Core) * Cloud * (0.40F + 0.95F * Core);
    const float Lane = Ridged(Along * 1.9F + 2 * Bend, Across * 5.2F, 5, 133);
    const float Dust = Smooth(0.38F, 0.80F, Lane) * Bell(Across + 0.015F, 0.075F);
    Band *= 1 - 0.80F * Dust;
    Rgb C = Mix(Hex(0x7088c8), Hex(0xffdcb4), Core * Bell(Across, 0.10F)) * (0.85F * Band);
    C = C + Hex(0x8a2858) * (0.30F * Dust * Core * Clamp01(Cloud));
    return C + Stars(X, Y, 0.20F + 0.35F * Clamp01(Band), 134) +
           Stars(X + 7, Y, 0.6F * Clamp01(Band), 136) * 0.5F;
}

Rgb NightAt(float X, float Y) {
    const float Clear = Smooth(0.70F, 0.42F, Y);
    return Ramp(DeepSky, Y + 0.03F * Noise(X * 2, Y * 3, 138)) + GalaxyAt(X, Y) * Clear;
}

void PaintTent(QPainter& P, float X, float Y, float Size) {
    P.setBrush(GlowBrush(X, Y - Size * 0.2F, Size * 2.6F, Hex(0xff9a3c), 0.40F));
    Disc(P, X, Y - Size * 0.2F, Size * 2.6F, Size * 1.3F);
    QLinearGradient Cloth(0, Y - Size, 0, Y);
    Cloth.setColorAt(0, ToColor(Hex(0xc85a20)));
    Cloth.setColorAt(1, ToColor(Hex(0xffc860)));
    QPainterPath Dome(QPointF(X - Size, Y));
    Dome.cubicTo(X - Size * 0.7F, Y - Size * 0.9F, X - Size * 0.2F, Y - Size, X, Y - Size);
    Dome.cubicTo(X + Size * 0.2F, Y - Size, X + Size * 0.7F, Y - Size * 0.9F, X + Size, Y);
    P.fillPath(Dome, Cloth);
    P.fillPath(Shape({{X - Size * 0.22F, Y}, {X, Y - Size * 0.8F}, {X + Size * 0.22F, Y}}),
               ToColor(Hex(0xffe6a8)));
}

Rgb StillLake(const Picture& Above, float X, float Y, float Line, std::uint32_t Seed) {
    const float Down = Y - Line, Away = 1 / (Down + 0.05F);
    const float Wave =
        Noise(X * Away * 0.5F, Away * 5, Seed) + 0.5F * Noise(X * Away * 2, Away * 14, Seed + 1);
    const Rgb C =
        Above.Sample(X + Wave * 0.012F * Down, Line - Down - 0.02F * Wave * Smooth(0, 0.3F, Down));
    return C * Mix(0.80F, 0.50F, Smooth(0, 0.3F, Down)) + Hex(0x03070f);
}

}  // namespace

QImage PaintMilkyWay(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect();
    Target.Shade([](float X, float Y, Rgb) { return NightAt(X, Y); });
    PaintRange(Target, {0.70F, 0.12F, 1.4F, 0.9F, Hex(0x1a2a3a), Hex(0x32484c), 0.12F, 0.3F, 141},
               0.4F);
    const Range Wood = {0.71F, 0.05F, 1.5F, 0.2F, Hex(0x081018), Hex(0x081018), 1, 0, 142};
    PaintRange(Target, Wood, 0);
    Dice Chances(143);
    const auto Ground = [&](float X) { return RidgeAt(Wood, X); };
    const QPainterPath Firs = FirRow(0, Aspect, 0.011F, 0.055F, Ground, Chances);
    Target.Paint([&](QPainter& P) { P.fillPath(Firs, ToColor(Hex(0x081018))); });
    Target.ShadeRows(Shore, 1,
                     [&](float X, float Y, Rgb) { return StillLake(Target, X, Y, Shore, 145); });
    const Range Bank = {0.955F, 0.13F, 0.75F, 0.1F, Hex(0x0a1018), Hex(0x05090e), 0.1F, 0, 149};
    PaintRange(Target, Bank, 0);
    const auto Near = [&](float X) { return RidgeAt(Bank, X); };
    const QPainterPath Tall = FirRow(-0.05F, 0.30F, 0.035F, 0.44F, Near, Chances);
    Target.Paint([&](QPainter& P) {
        P.fillPath(Tall, ToColor(Hex(0x05090e)));
        PaintTent(P, Aspect * 0.70F, RidgeAt(Bank, Aspect * 0.70F) + 0.012F, 0.055F);
    });
    Target.Bloom(0.7F, 0.02F, 0.35F);
    return Target.Develop(0.018F, 0.35F);
}

namespace {

struct Curtain {
    float Base, Lift, Long, Bright;
    std::uint32_t Seed;
};
constexpr Curtain Curtains[] = {{0.47F, 0.11F, 0.34F, 1.55F, 151},
                                {0.33F, 0.16F, 0.26F, 1.15F, 152},
                                {0.57F, 0.05F, 0.16F, 0.8F, 153}};

Rgb CurtainAt(const Curtain& Veil, float X, float Y) {
    const float Fold = Noise(X * 2.2F, 1, Veil.Seed) + 0.4F * Noise(X * 6.5F, 4, Veil.Seed + 20);
    const float Rise = Veil.Base + Veil.Lift * Fold - Y;
    const float Ray = 0.55F + 0.6F * Noise((X + 0.15F * Y) * 22, Y * 0.8F, Veil.Seed + 40) +
                      0.3F * Noise((X + 0.15F * Y) * 60, Y, Veil.Seed + 60);
    const float Long = Veil.Long * (0.7F + 0.6F * Noise(X * 4, 8, Veil.Seed + 80));
    const float Body = Smooth(-0.012F, 0.03F, Rise) *
                       std::exp(-std::max(0.0F, Rise) / std::max(0.05F, Long * 0.55F));
    const float Some = Smooth(-0.7F, 0.4F, Noise(X * 1.7F, 3, Veil.Seed + 90));
    const float T = Clamp01(Rise / Veil.Long);
    const Rgb Tint = Mix(Mix(Hex(0x6dffb0), Hex(0x2fd6a0), Smooth(0, 0.3F, T)), Hex(0x8a4fd0),
                         Smooth(0.3F, 1.0F, T));
    return Tint * (Veil.Bright * Body * std::max(0.0F, Ray) * Some);
}

Rgb PolarSky(float X, float Y) {
    Rgb C = Mix(Hex(0x060b20), Hex(0x163a4a), Smooth(0, 0.62F, Y)) + Stars(X, Y, 0.22F, 161);
    for (const Curtain& Veil : Curtains) C = C + CurtainAt(Veil, X, Y);
    return C + Hex(0x1f7a5a) * (0.30F * Bell(Y - 0.50F, 0.16F));
}

}  // namespace

QImage PaintAurora(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect(), Line = 0.69F;
    Target.Shade([](float X, float Y, Rgb) { return PolarSky(X, Y); });
    PaintRange(Target, {0.68F, 0.30F, 2.0F, 1, Hex(0x6fa8ac), Hex(0x2c5a60), 0.16F, 0.9F, 171},
               0.2F);
    PaintRange(Target, {0.70F, 0.16F, 2.2F, 0.9F, Hex(0x3f6f7a), Hex(0x1d4048), 0.12F, 0.8F, 172},
               0.2F);
    const Range Wood = {0.70F, 0.03F, 2, 0.2F, Hex(0x07141a), Hex(0x07141a), 1, 0, 173};
    PaintRange(Target, Wood, 0);
    Dice Chances(174);
    const auto Ground = [&](float X) { return RidgeAt(Wood, X); };
    const QPainterPath Firs = FirRow(0, Aspect, 0.009F, 0.045F, Ground, Chances);
    Target.Paint([&](QPainter& P) { P.fillPath(Firs, ToColor(Hex(0x07141a))); });
    Target.ShadeRows(Line, 1,
                     [&](float X, float Y, Rgb) { return StillLake(Target, X, Y, Line, 175); });
    const Range Bank = {0.95F, 0.11F, 0.9F, 0.1F, Hex(0x9fd0cc), Hex(0x3d6f78), 0.12F, 0.2F, 186};
    PaintRange(Target, Bank, 0.1F);
    const auto Near = [&](float X) { return RidgeAt(Bank, X) + 0.02F; };
    const QPainterPath Tall = FirRow(Aspect * 0.58F, Aspect * 1.05F, 0.035F, 0.36F, Near, Chances);
    Target.Paint([&](QPainter& P) { P.fillPath(Tall, ToColor(Hex(0x041014))); });
    Target.Bloom(0.6F, 0.03F, 0.3F);
    return Target.Develop(0.018F, 0.3F);
}

}  // namespace neb::demo
