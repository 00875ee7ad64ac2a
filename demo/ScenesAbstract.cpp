// Pictures that are no photographs: a Julia set, a rose window, a mill engraved in lines.
#include <QLinearGradient>

#include "Props.h"
#include "Ranges.h"
#include "Scenes.h"

namespace neb::demo {
namespace {

constexpr Stop Enamel[] = {{0, Hex(0x050b24)},     {0.16F, Hex(0x12408c)}, {0.34F, Hex(0x58b4d8)},
                           {0.46F, Hex(0xf8f2dc)}, {0.62F, Hex(0xf2a93a)}, {0.80F, Hex(0x9c2c28)},
                           {1, Hex(0x050b24)}};

// How long a point takes to run away, and how near it is to the set; lit like a relief.
Rgb JuliaAt(float X, float Y) {
    float Zx = X, Zy = Y, Dx = 1, Dy = 0;
    constexpr float Cx = -0.7454F, Cy = 0.1130F;
    constexpr int Most = 260;
    for (int I = 0; I < Most; ++I) {
        const float Tx = 2 * (Zx * Dx - Zy * Dy);
        Dy = 2 * (Zx * Dy + Zy * Dx);
        Dx = Tx;
        const float Nx = Zx * Zx - Zy * Zy + Cx;
        Zy = 2 * Zx * Zy + Cy;
        Zx = Nx;
        const float Far = Zx * Zx + Zy * Zy;
        if (Far < 400) continue;
        const float Even = static_cast<float>(I) + 1 - std::log2(std::log2(Far) / 2);
        const float Turn = std::sqrt(Even) * 0.255F + 0.03F;
        // The slope of the time to run away is the direction that the relief faces.
        const float Length = Dx * Dx + Dy * Dy + 1e-20F;
        const float Ux = (Zx * Dx + Zy * Dy) / Length, Uy = (Zy * Dx - Zx * Dy) / Length;
        const float Size = std::sqrt(Ux * Ux + Uy * Uy) + 1e-20F;
        const float Light = Clamp01(0.5F + 0.5F * (Ux * 0.70F + Uy * 0.70F) / Size);
        return Ramp(Enamel, Turn - std::floor(Turn)) * (0.62F + 0.55F * Light);
    }
    return Hex(0x050816);
}

}  // namespace

QImage PaintJulia(QSize Size) {
    Picture Target(Size);
    const float Middle = Target.Aspect() / 2, Step = Target.Unit() / 4;
    Target.Shade([&](float X, float Y, Rgb) {
        Rgb Sum;
        for (const float Ox : {-Step, Step})
            for (const float Oy : {-Step, Step}) {
                const float Px = (X + Ox - Middle) * 0.62F + 0.06F,
                            Py = (Y + Oy - 0.5F) * 0.62F - 0.02F;
                Sum = Sum + JuliaAt(Px * 0.94F - Py * 0.34F, Px * 0.34F + Py * 0.94F);
            }
        return Sum * 0.25F;
    });
    Target.Bloom(0.85F, 0.02F, 0.15F);
    return Target.Develop(0.008F, 0.35F);
}

namespace {

constexpr float Pi = 3.14159265F;

struct GlassRing {
    float From, To;  // radii
    float Parts;
    float Shift;  // in parts
    Rgb First, Second, Third;
};
constexpr GlassRing GlassRings[] = {
    {0.00F, 0.028F, 1, 0, Hex(0xfff0b0), Hex(0xfff0b0), Hex(0xfff0b0)},
    {0.028F, 0.075F, 6, 0, Hex(0xf2b23c), Hex(0xd86a28), Hex(0xffd860)},
    {0.075F, 0.185F, 12, 0, Hex(0xc01f2c), Hex(0x1d4fa8), Hex(0xf2a52c)},
    {0.185F, 0.315F, 12, 0.5F, Hex(0x1b3f9c), Hex(0x2f86c8), Hex(0x7a2a88)},
    {0.315F, 0.395F, 24, 0, Hex(0xd8342c), Hex(0x1c7a54), Hex(0xf6c84a)},
    {0.395F, 0.465F, 24, 0.5F, Hex(0x173a8e), Hex(0x4f2a86), Hex(0x2a9ac0)}};

// The distance to the lead of the outline, below 0 within a pane; each pane of a ring is the
// same picture turned, with a round light in the middle of the larger ones.
Rgb GlassAt(const GlassRing& Ring, float Out, float Angle, float Px, float Py, float* Lead) {
    const float Part = Angle / (2 * Pi) * Ring.Parts + Ring.Shift;
    const float Index = std::floor(Part), Across = Part - Index - 0.5F;
    const float Width = 2 * Pi * Out / Ring.Parts;
    const float Middle = (Ring.From + Ring.To) / 2, Half = (Ring.To - Ring.From) / 2;
    const float Px1 = Across * Width, Py1 = Out - Middle;
    const float Light = std::hypot(Px1, Py1) - Half * 0.50F;
    const bool Rosette = Ring.Parts > 1 && Half > 0.05F;
    const float Border =
        std::min({(0.5F - std::fabs(Across)) * Width, Ring.To - Out, Out - Ring.From});
    *Lead = Ring.Parts > 1 ? Border : Ring.To - Out;
    const Cell Piece = Worley(std::fabs(Px1) * 26 + Ring.Parts, Py1 * 26, 431);
    if (Half > 0.03F) *Lead = std::min(*Lead, Piece.Edge / 26 * 1.6F);
    Rgb C = static_cast<int>(Index) % 2 ? Ring.First : Ring.Second;
    C = Mix(C, Ring.Third, static_cast<float>(Piece.Id >> 24) / 255 * 0.75F);
    if (Rosette) {
        *Lead = std::min(*Lead, std::fabs(Light));
        if (Light < 0) C = Mix(Ring.Third, Hex(0xfff2b0), 0.25F);
    }
    return C * (1 + 0.30F * Fbm(Px * 22, Py * 22, 4, 432));
}

Rgb RoseAt(float Dx, float Dy, float Soft) {
    const float Out = std::hypot(Dx, Dy), Angle = std::atan2(Dy, Dx) + Pi;
    for (const GlassRing& Ring : GlassRings) {
        if (Out >= Ring.To) continue;
        float Lead = 0;
        Rgb C = GlassAt(Ring, Out, Angle, Dx, Dy, &Lead);
        C = C * (0.95F + 0.85F * Bell(std::hypot(Dx + 0.06F, Dy + 0.10F), 0.34F));
        C = C * (0.72F + 0.28F * Smooth(0, 0.012F, Lead));
        return Mix(Hex(0x14121a), C, Smooth(0.0022F - Soft, 0.0022F + Soft, Lead));
    }
    // The stone frame, a round moulding with a groove.
    const float T = (Out - 0.465F) / 0.03F;
    const float Round = std::sin(Clamp01(T) * Pi) * (1 - 0.5F * Bell(T - 0.5F, 0.08F));
    const float Side = (-Dx - Dy) / Out * 0.5F;
    const float Grit = Fbm(Dx * 60, Dy * 60, 3, 433);
    return Mix(Hex(0x4a4540), Hex(0xb8aea0),
               Clamp01(0.25F + 0.4F * Round + 0.45F * Side * (T - 0.5F) * 2 + 0.12F * Grit));
}

}  // namespace

QImage PaintRoseWindow(QSize Size) {
    Picture Target(Size);
    const float Middle = Target.Aspect() / 2;
    const float Soft = Target.Unit();
    Target.Shade([&](float X, float Y, Rgb) { return RoseAt(X - Middle, Y - 0.5F, Soft); });
    Target.Bloom(0.55F, 0.02F, 0.35F);
    QImage Image = Target.Develop(0.008F, 0).convertToFormat(QImage::Format_ARGB32);
    for (int Row = 0; Row < Image.height(); ++Row) {
        QRgb* Line = reinterpret_cast<QRgb*>(Image.scanLine(Row));
        for (int Column = 0; Column < Image.width(); ++Column) {
            const float Dx = (static_cast<float>(Column) + 0.5F) * Target.Unit() - Middle;
            const float Dy = (static_cast<float>(Row) + 0.5F) * Target.Unit() - 0.5F;
            const float Cover = Clamp01((0.495F - std::hypot(Dx, Dy)) / Target.Unit() + 0.5F);
            Line[Column] = (Line[Column] & 0xffffffU) | static_cast<QRgb>(Cover * 255) << 24;
        }
    }
    return Image;
}

namespace {

void PaintSails(QPainter& P, float X, float Y, float Long) {
    for (int I = 0; I < 4; ++I) {
        P.save();
        P.translate(static_cast<qreal>(X), static_cast<qreal>(Y));
        P.rotate(24 + 90.0 * I);
        P.setBrush(ToColor(Hex(0x101010)));
        P.drawRect(QRectF(-Long * 0.012F, -Long, Long * 0.024F, Long));
        P.setBrush(ToColor(Hex(0xc8c8c8)));
        P.drawRect(QRectF(0, -Long * 0.98F, Long * 0.20F, Long * 0.80F));
        P.setPen(QPen(ToColor(Hex(0x101010)), static_cast<qreal>(Long) * 0.012));
        for (int Bar = 0; Bar <= 9; ++Bar) {
            const float At = -Long * (0.18F + 0.80F * static_cast<float>(Bar) / 9);
            P.drawLine(QPointF(-Long * 0.03F, At), QPointF(Long * 0.20F, At));
        }
        for (const float Side : {0.067F, 0.133F, 0.20F})
            P.drawLine(QPointF(Long * Side, -Long * 0.18F), QPointF(Long * Side, -Long * 0.98F));
        P.setPen(Qt::NoPen);
        P.restore();
    }
}

void PaintMill(QPainter& P, float X, float Foot, float High) {
    QLinearGradient Round(X - High * 0.2F, 0, X + High * 0.2F, 0);
    Round.setColorAt(0, ToColor(Hex(0xf0f0f0)));
    Round.setColorAt(0.35, ToColor(Hex(0xb8b8b8)));
    Round.setColorAt(1, ToColor(Hex(0x303030)));
    P.fillPath(Shape({{X - High * 0.12F, Foot - High * 0.80F},
                      {X + High * 0.12F, Foot - High * 0.80F},
                      {X + High * 0.20F, Foot},
                      {X - High * 0.20F, Foot}}),
               Round);
    P.setBrush(ToColor(Hex(0x2a2a2a)));
    P.drawRect(QRectF(X - High * 0.24F, Foot - High * 0.36F, High * 0.48F, High * 0.022F));
    for (float Post = -0.24F; Post < 0.25F; Post += 0.06F)
        P.drawRect(QRectF(X + High * Post, Foot - High * 0.42F, High * 0.007F, High * 0.07F));
    P.drawRect(QRectF(X - High * 0.24F, Foot - High * 0.42F, High * 0.487F, High * 0.008F));
    QPainterPath Cap(QPointF(X - High * 0.14F, Foot - High * 0.79F));
    Cap.cubicTo(X - High * 0.13F, Foot - High, X + High * 0.11F, Foot - High, X + High * 0.15F,
                Foot - High * 0.79F);
    P.fillPath(Cap, ToColor(Hex(0x383838)));
    P.setBrush(ToColor(Hex(0x151515)));
    P.drawRoundedRect(QRectF(X - High * 0.035F, Foot - High * 0.13F, High * 0.08F, High * 0.13F),
                      0.01, 0.01);
    for (const float Y : {0.24F, 0.55F, 0.68F})
        P.drawRect(QRectF(X - High * 0.02F, Foot - High * Y, High * 0.035F, High * 0.05F));
    PaintSails(P, X - High * 0.03F, Foot - High * 0.84F, High * 0.66F);
}

Rgb MillAir(float X, float Y) {
    const float Deck = Fbm(X * 1.5F, Y * 3.4F, 5, 441);
    const float Rim = Deck - Fbm(X * 1.5F - 0.1F, Y * 3.4F - 0.16F, 5, 441);
    const float Cloud = Smooth(-0.02F, 0.25F, Deck);
    const float Tone = Mix(0.62F + 0.30F * Y, 0.93F + 0.8F * Rim, Cloud);
    return Hex(0xffffff) * Clamp01(Tone);
}

Rgb MillWater(const Picture& Above, float X, float Y) {
    const float Down = Y - 0.72F;
    const float Wave = Noise(X * 5, Down * 60 / (1 + 5 * Down), 442);
    return Above.Sample(X + 0.012F * Wave, 0.715F - Down * 1.25F) * (0.80F + 0.15F * Wave);
}

// Each line swells where the picture is dark, as the burin of an engraver would cut it.
bool Inked(float X, float Y, float Tone, float Gap) {
    const float Wave = 0.006F * std::sin(X * 9 + Y * 4) + 0.004F * std::sin(X * 23);
    const float First = std::fabs((Y + Wave) / Gap - std::floor((Y + Wave) / Gap) - 0.5F) * 2;
    const float Lean = (Y * 0.75F + X * 0.66F + Wave) / (Gap * 1.15F);
    const float Second = std::fabs(Lean - std::floor(Lean) - 0.5F) * 2;
    const float Dark = 1 - Tone;
    return First < Smooth(0.06F, 0.80F, Dark) * 0.92F || Second < Smooth(0.55F, 1.02F, Dark);
}

void PaintReeds(QPainter& P, float Aspect) {
    Dice Chances(443);
    P.setBrush(Qt::NoBrush);
    for (int I = 0; I < 150; ++I) {
        const float Side = Square(Chances.Next()) * 0.45F,
                    X = Chances.Odds(0.5F) ? Side : Aspect - Side;
        const float Tall = Chances.Range(0.08F, 0.27F) * (1 - Side),
                    Bend = Chances.Range(-0.05F, 0.05F);
        QPainterPath Blade(QPointF(X, 1.01F));
        Blade.quadTo(X, 1 - Tall * 0.6F, X + Bend, 1 - Tall);
        P.setPen(QPen(ToColor(Hex(0x080808)), 0.0035));
        P.drawPath(Blade);
    }
    P.setPen(Qt::NoPen);
}

}  // namespace

QImage PaintWindmill(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect();
    Target.Shade([](float X, float Y, Rgb) { return MillAir(X, Y); });
    const Range Far = {0.71F, 0.03F, 2, 0.1F, Hex(0x787878), Hex(0x989898), 0.1F, 0, 444};
    PaintRange(Target, Far, 0);
    Target.Paint([&](QPainter& P) {
        P.fillRect(QRectF(0, 0.695, Aspect, 0.03), ToColor(Hex(0x3a3a3a)));
        PaintMill(P, Aspect * 0.60F, 0.71F, 0.47F);
        for (const auto& [X, High] : {std::pair{0.17F, 0.18F}, {0.27F, 0.13F}, {0.36F, 0.12F}})
            PaintMill(P, Aspect * X, 0.705F, High);
        for (int I = 0; I < 5; ++I)
            P.fillPath(Bird(Aspect * 0.25F + 0.06F * static_cast<float>(I),
                            0.25F - 0.03F * static_cast<float>(I % 3), 0.035F, 0.010F),
                       ToColor(Hex(0x101010)));
    });
    Target.ShadeRows(0.72F, 1, [&](float X, float Y, Rgb) { return MillWater(Target, X, Y); });
    Target.Paint([&](QPainter& P) { PaintReeds(P, Aspect); });
    QImage Image(Size, QImage::Format_Mono);
    const float Gap = std::max(0.0105F, 4.2F * Target.Unit());
    for (int Row = 0; Row < Size.height(); ++Row)
        for (int Column = 0; Column < Size.width(); ++Column) {
            const float X = (static_cast<float>(Column) + 0.5F) * Target.Unit(),
                        Y = (static_cast<float>(Row) + 0.5F) * Target.Unit();
            Image.setPixel(Column, Row,
                           Inked(X, Y, Clamp01(Luma(Target.At(Column, Row))), Gap) ? 0 : 1);
        }
    Image.setColorTable({qRgb(0, 0, 0), qRgb(255, 255, 255)});
    return Image;
}

}  // namespace neb::demo
