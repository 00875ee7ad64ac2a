#include "Props.h"

#include <QRadialGradient>

namespace neb::demo {
namespace {

// One side of a fir from the top down; Side is -1 for the left, 1 for the right.
QPolygonF FirSide(float X, float Base, float High, float Wide, float Side, Dice& Chances) {
    QPolygonF Points;
    const int Tiers = 9 + Chances.Below(4);
    for (int I = 1; I <= Tiers; ++I) {
        const float T = static_cast<float>(I) / static_cast<float>(Tiers);
        const float Y = Base - High * (1 - T * 0.93F);
        const float Out = Wide * std::pow(T, 0.85F) * Chances.Range(0.75F, 1.15F);
        const float Droop = High * 0.022F * Chances.Range(0.6F, 1.6F);
        Points << QPointF(X + Side * Out, Y + Droop) << QPointF(X + Side * Out * 0.42F, Y);
    }
    return Points;
}

}  // namespace

QPainterPath Fir(float X, float Base, float High, Dice& Chances) {
    const float Wide = High * Chances.Range(0.17F, 0.24F);
    const QPolygonF Left = FirSide(X, Base, High, Wide, -1, Chances);
    QPolygonF All = FirSide(X, Base, High, Wide, 1, Chances);
    const float Trunk = High * 0.018F;
    All.prepend(QPointF(X, Base - High));
    All << QPointF(X + Trunk, Base - High * 0.07F) << QPointF(X + Trunk, Base + High * 0.02F)
        << QPointF(X - Trunk, Base + High * 0.02F) << QPointF(X - Trunk, Base - High * 0.07F);
    for (qsizetype I = Left.size() - 1; I >= 0; --I) All << Left[I];
    QPainterPath Path;
    Path.addPolygon(All);
    Path.closeSubpath();
    Path.setFillRule(Qt::WindingFill);
    return Path;
}

QPainterPath FirRow(float From, float To, float Gap, float High,
                    const std::function<float(float X)>& Ground, Dice& Chances) {
    QPainterPath Path;
    Path.setFillRule(Qt::WindingFill);
    for (float X = From; X < To; X += Gap * Chances.Range(0.5F, 1.6F)) {
        const float Stand = Noise(X * 0.55F / High + 9, 2, 17);
        if (Stand < -0.30F) continue;
        const float Tall = High * (0.40F + 0.25F * Stand + 0.70F * Square(Chances.Next()));
        Path.addPath(Fir(X, Ground(X) + Tall * 0.10F, Tall, Chances));
    }
    return Path;
}

QPainterPath Bird(float X, float Y, float Span, float Lift) {
    const float Half = Span / 2, Thick = Span * 0.07F;
    QPainterPath Path(QPointF(X - Half, Y - Lift));
    Path.quadTo(X - Half * 0.4F, Y - Lift * 1.3F, X, Y);
    Path.quadTo(X + Half * 0.4F, Y - Lift * 1.5F, X + Half, Y - Lift * 1.1F);
    Path.quadTo(X + Half * 0.35F, Y - Lift * 0.7F, X, Y + Thick);
    Path.quadTo(X - Half * 0.35F, Y - Lift * 0.6F, X - Half, Y - Lift);
    return Path;
}

QPainterPath Shape(std::initializer_list<QPointF> Corners) {
    QPainterPath Path;
    Path.addPolygon(QPolygonF(QList<QPointF>(Corners)));
    Path.closeSubpath();
    return Path;
}

QBrush GlowBrush(float X, float Y, float Radius, Rgb Colour, float Alpha, float Core) {
    QRadialGradient Gradient(X, Y, Radius);
    Gradient.setColorAt(0, ToColor(Colour, Alpha));
    constexpr int Steps = 12;
    for (int I = 0; I <= Steps; ++I) {
        const float T = static_cast<float>(I) / Steps;
        Gradient.setColorAt(Mix(Core, 1, T), ToColor(Colour, Alpha * Square(1 - T)));
    }
    return QBrush(Gradient);
}

void Glow(QPainter& Painter, float X, float Y, float Radius, Rgb Colour, float Alpha, float Core) {
    Painter.setBrush(GlowBrush(X, Y, Radius, Colour, Alpha, Core));
    Disc(Painter, X, Y, Radius, Radius);
}

void Disc(QPainter& Painter, float X, float Y, float Rx, float Ry) {
    Painter.drawEllipse(QPointF(X, Y), static_cast<qreal>(Rx), static_cast<qreal>(Ry));
}

Rgb Stars(float X, float Y, float Density, std::uint32_t Seed) {
    Rgb Sum;
    constexpr float Scales[] = {26, 55, 110, 190};
    for (const float Scale : Scales) {
        const float Px = X * Scale + 0.4F * Y * Scale, Py = Y * Scale;
        const int Ix = static_cast<int>(std::floor(Px)), Iy = static_cast<int>(std::floor(Py));
        ++Seed;
        if (Chance(Ix, Iy, Seed) > Density) continue;
        const float Cx = 0.15F + 0.7F * Chance(Ix, Iy, Seed + 50);
        const float Cy = 0.15F + 0.7F * Chance(Ix, Iy, Seed + 51);
        const float Dx = Px - static_cast<float>(Ix) - Cx, Dy = Py - static_cast<float>(Iy) - Cy;
        const float Off = std::hypot(Dx - 0.4F * Dy, Dy) / Scale;
        const float Bright = std::pow(Chance(Ix, Iy, Seed + 52), 5.0F) * 60 / (Scale + 34);
        const float Size = 0.0006F + 0.0010F * Bright;
        const Rgb Tint = Mix(Hex(0xa8c6ff), Hex(0xffdcb0), Chance(Ix, Iy, Seed + 53));
        Sum = Sum + Tint * (Bell(Off, Size) * (0.22F + 1.5F * Bright));
    }
    return Sum;
}

float Outline(float X, float Rough, std::uint32_t Seed) {
    const float Slope = Ridged(X, 0.37F, 6, Seed) - 0.35F;
    const float Swell = Fbm(X * 0.6F, 4.1F, 3, Seed + 40);
    return Rough * Slope + (1 - Rough) * (0.5F * Swell + 0.2F);
}

}  // namespace neb::demo
