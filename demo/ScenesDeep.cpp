// Under the sea: light from above, a reef below, fish between them.
#include <QLinearGradient>

#include "Props.h"
#include "Scenes.h"

namespace neb::demo {
namespace {

constexpr Stop Depths[] = {{0, Hex(0x9ff0e4)},
                           {0.14F, Hex(0x3fc4d0)},
                           {0.40F, Hex(0x1688b4)},
                           {0.72F, Hex(0x0c5690)},
                           {1, Hex(0x083a6c)}};

Rgb WaterAt(float X, float Y, float SunX) {
    Rgb C = Ramp(Depths, Y + 0.03F * Fbm(X * 2, Y * 2, 3, 451));
    const float Turn = (X - SunX) / (Y + 0.55F);
    const float Ray =
        Smooth(0.0F, 0.8F, Noise(Turn * 7, 0.3F, 452) + 0.5F * Noise(Turn * 19, 1, 453) + 0.15F);
    C = C + Hex(0xc8fff0) *
                (0.38F * Ray * Smooth(0.95F, 0.1F, Y) * Bell(X - SunX - Turn * 0.2F, 0.85F));
    const float Away = 0.08F / (Y + 0.035F);
    const float Roof = Ridged(X * 3 * (0.5F + Away), Away * 9, 4, 454);
    C = C + Hex(0xf0fff8) * (0.40F * Smooth(0.55F, 0.95F, Roof) * Smooth(0.17F, 0.02F, Y));
    return C + Hex(0xe8fff4) * (0.45F * Bell(std::hypot((X - SunX) * 0.7F, Y + 0.02F), 0.15F));
}

Rgb SandAt(float X, float Y, float Line) {
    const float Down = Y - Line, Away = 0.30F / (Down + 0.10F);
    const float Px = X * Away * 3, Py = Away * 8;
    const Cell First = Worley(Px + 0.5F * Noise(Px, Py, 455), Py, 456);
    const float Net = Smooth(0.16F, 0, First.Edge);
    const float Ripple = 0.5F + 0.5F * std::sin(Py * 9 + 3 * Noise(Px * 0.8F, Py * 0.8F, 457));
    Rgb C = Mix(Hex(0x3a8a9c), Hex(0x9fd0b8), 0.30F + 0.25F * Ripple);
    C = C + Hex(0xd8fff0) * (0.38F * Net);
    return Mix(C, Hex(0x11699c), Smooth(0.16F, 0.0F, Down));
}

float SandLine(float X) {
    return 0.80F + 0.03F * Noise(X * 1.6F, 1, 458) + 0.02F * std::cos(X * 3);
}

// A branching coral; each fork is thinner and shorter.
void PaintCoral(QPainter& P, float X, float Y, float Long, float Turn, int Forks, Rgb Colour,
                Dice& Chances) {
    const float Ex = X + Long * std::sin(Turn), Ey = Y - Long * std::cos(Turn);
    P.setPen(QPen(ToColor(Colour), static_cast<qreal>(Long) * 0.34, Qt::SolidLine, Qt::RoundCap));
    P.drawLine(QPointF(X, Y), QPointF(Ex, Ey));
    P.setPen(QPen(ToColor(Colour * 1.25F + Hex(0x181818), 0.5F), static_cast<qreal>(Long) * 0.10,
                  Qt::SolidLine, Qt::RoundCap));
    P.drawLine(QPointF(X + Long * 0.06F, Y), QPointF(Ex + Long * 0.06F, Ey));
    for (int I = 0; Forks > 0 && I < 3; ++I)
        PaintCoral(P, Ex, Ey, Long * Chances.Range(0.62F, 0.82F),
                   Turn + Chances.Range(-0.75F, 0.75F), Forks - 1, Colour, Chances);
}

// A rock overgrown with round tufts.
void PaintReef(QPainter& P, float X, float Y, float Wide, float High, Rgb Deep, Dice& Chances) {
    constexpr Rgb Tufts[] = {Hex(0xd85a6a), Hex(0xe88a4a), Hex(0x9a5ab8),
                             Hex(0x3f8a6a), Hex(0xd8b04a), Hex(0x4a6ab0)};
    for (int I = 0; I < 1500; ++I) {
        const float T = static_cast<float>(I) / 1500, Angle = Chances.Range(-1.57F, 1.57F);
        const float Out = std::sqrt(Chances.Next()) * (1 - 0.1F * T);
        const float Px = X + std::sin(Angle) * Wide * Out, Py = Y - std::cos(Angle) * High * Out;
        const float R = Chances.Range(0.005F, 0.014F);
        const Rgb Tuft =
            Mix(Mix(Deep,
                    Tufts[static_cast<size_t>(std::fabs(Noise(Px * 9, Py * 9, 463)) * 9 +
                                              Chances.Next()) %
                          6],
                    0.35F + 0.35F * Noise(Px * 14, Py * 14, 462)),
                Hex(0x1a6a9c), 0.20F);
        P.setBrush(ToColor(Tuft * (0.40F + 0.75F * Out * Out)));
        Disc(P, Px, Py, R, R);
        P.setBrush(ToColor(Tuft * 1.5F + Hex(0x101c18), 0.5F));
        Disc(P, Px - R * 0.2F, Py - R * 0.35F, R * 0.5F, R * 0.4F);
    }
}

void PaintKelp(QPainter& P, float X, float High, Rgb Colour, Dice& Chances) {
    float Px = X;
    for (float Y = 1.02F; Y > 1 - High; Y -= 0.016F) {
        const float Nx = X + 0.03F * std::sin(Y * 9 + X * 30);
        P.setPen(QPen(ToColor(Colour), 0.005));
        P.drawLine(QPointF(Px, Y + 0.016F), QPointF(Nx, Y));
        Px = Nx;
        P.setPen(Qt::NoPen);
        const float Side = Chances.Odds(0.5F) ? 1.0F : -1.0F, Long = Chances.Range(0.025F, 0.05F);
        QPainterPath Blade(QPointF(Nx, Y));
        Blade.quadTo(Nx + Side * Long * 0.5F, Y - Long * 0.5F, Nx + Side * Long, Y - Long * 0.3F);
        Blade.quadTo(Nx + Side * Long * 0.5F, Y + Long * 0.05F, Nx, Y);
        P.fillPath(Blade, ToColor(Colour * Chances.Range(0.8F, 1.3F)));
    }
}

struct Fish {
    Rgb Back, Side, Band;
};
constexpr Fish Kinds[] = {{Hex(0xd8681c), Hex(0xffa53c), Hex(0xfff4e4)},
                          {Hex(0x2a50a8), Hex(0x5a9ae8), Hex(0xffe04a)},
                          {Hex(0xd8b020), Hex(0xffe45c), Hex(0x2a2a3a)}};

QPainterPath FishBody(float Long) {
    QPainterPath Body(QPointF(-Long * 0.5F, 0));
    Body.cubicTo(-Long * 0.25F, -Long * 0.34F, Long * 0.12F, -Long * 0.28F, Long * 0.30F,
                 -Long * 0.04F);
    Body.lineTo(Long * 0.52F, -Long * 0.20F);
    Body.quadTo(Long * 0.44F, 0, Long * 0.52F, Long * 0.20F);
    Body.lineTo(Long * 0.30F, Long * 0.04F);
    Body.cubicTo(Long * 0.12F, Long * 0.28F, -Long * 0.25F, Long * 0.30F, -Long * 0.5F, 0);
    return Body;
}

void PaintFish(QPainter& P, float X, float Y, float Long, float Turn, const Fish& Kind,
               float Haze) {
    const Rgb Sea = Hex(0x1a7cae);
    P.save();
    P.translate(static_cast<qreal>(X), static_cast<qreal>(Y));
    P.rotate(static_cast<double>(Turn));
    QPainterPath Fin(QPointF(-Long * 0.18F, -Long * 0.20F));
    Fin.quadTo(Long * 0.02F, -Long * 0.42F, Long * 0.20F, -Long * 0.26F);
    Fin.lineTo(Long * 0.16F, -Long * 0.08F);
    P.fillPath(Fin, ToColor(Mix(Kind.Back, Sea, Haze)));
    QLinearGradient Scales(0, -Long * 0.25F, 0, Long * 0.25F);
    Scales.setColorAt(0, ToColor(Mix(Kind.Back, Sea, Haze)));
    Scales.setColorAt(0.45, ToColor(Mix(Kind.Side, Sea, Haze)));
    Scales.setColorAt(1, ToColor(Mix(Kind.Back * 0.7F, Sea, Haze)));
    P.fillPath(FishBody(Long), Scales);
    P.save();
    P.setClipPath(FishBody(Long));
    P.setBrush(ToColor(Mix(Kind.Band, Sea, Haze), 0.9F));
    for (const float At : {-0.22F, 0.06F}) Disc(P, Long * At, 0, Long * 0.045F, Long * 0.4F);
    P.restore();
    P.setBrush(ToColor(Mix(Hex(0xffffff), Sea, Haze)));
    Disc(P, -Long * 0.36F, -Long * 0.04F, Long * 0.035F, Long * 0.035F);
    P.setBrush(ToColor(Mix(Hex(0x101018), Sea, Haze)));
    Disc(P, -Long * 0.365F, -Long * 0.04F, Long * 0.02F, Long * 0.02F);
    P.restore();
}

void PaintShoal(QPainter& P, float X, float Y, int Count, float Long, const Fish& Kind, float Haze,
                Dice& Chances) {
    for (int I = 0; I < Count; ++I) {
        const float Along = Chances.Range(-1, 1),
                    Off = Chances.Range(-1, 1) * (1 - 0.6F * std::fabs(Along));
        PaintFish(P, X + Along * Long * 6.5F, Y + Off * Long * 2.2F + Along * Along * Long,
                  Long * Chances.Range(0.75F, 1.15F), 8 * Along + Chances.Range(-6, 6), Kind, Haze);
    }
}

void PaintBubbles(QPainter& P, float X, float Y, int Count, Dice& Chances) {
    for (int I = 0; I < Count; ++I) {
        const float R = Chances.Range(0.003F, 0.011F), Rise = Chances.Next();
        const float Px = X + 0.03F * std::sin(Rise * 9) + Chances.Range(-0.02F, 0.02F),
                    Py = Y - Rise * 0.5F;
        P.setPen(QPen(ToColor(Hex(0xe8fffa), 0.6F), static_cast<qreal>(R) * 0.2));
        P.setBrush(ToColor(Hex(0xc8fff4), 0.15F));
        Disc(P, Px, Py, R, R);
        P.setPen(Qt::NoPen);
        P.setBrush(ToColor(Hex(0xffffff), 0.85F));
        Disc(P, Px - R * 0.35F, Py - R * 0.4F, R * 0.2F, R * 0.2F);
    }
}

void PaintReefs(QPainter& P, float Aspect, Dice& Chances) {
    PaintReef(P, Aspect * 0.10F, 1.02F, 0.34F, 0.36F, Hex(0x143a5a), Chances);
    PaintReef(P, Aspect * 0.93F, 1.02F, 0.40F, 0.30F, Hex(0x143a5a), Chances);
    constexpr Rgb Corals[] = {Hex(0xd84a6a), Hex(0xf0905a), Hex(0xa05ac0)};
    constexpr QPointF Places[] = {
        {0.20, 0.80}, {0.06, 0.70}, {0.80, 0.86}, {0.90, 0.76}, {0.30, 0.97}};
    for (size_t I = 0; I < std::size(Places); ++I)
        PaintCoral(P, static_cast<float>(Places[I].x()) * Aspect, static_cast<float>(Places[I].y()),
                   0.052F, 0, 4, Corals[I % 3], Chances);
    P.setPen(Qt::NoPen);
}

}  // namespace

QImage PaintUnderwater(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect(), SunX = Aspect * 0.56F;
    Dice Chances(461);
    Target.Shade([&](float X, float Y, Rgb) {
        const float Line = SandLine(X);
        return Y < Line ? WaterAt(X, Y, SunX) : SandAt(X, Y, Line);
    });
    Target.Paint(
        [&](QPainter& P) {
            PaintReef(P, Aspect * 0.30F, 0.84F, 0.30F, 0.17F, Hex(0x155a8c), Chances);
        },
        0.012F);
    Target.Shade([&](float X, float Y, Rgb C) {
        return Mix(C, WaterAt(X, Y, SunX), 0.30F * Smooth(0.9F, 0.7F, Y));
    });
    Target.Paint([&](QPainter& P) {
        PaintShoal(P, Aspect * 0.60F, 0.34F, 46, 0.030F, Kinds[1], 0.55F, Chances);
        PaintReefs(P, Aspect, Chances);
        for (const float X : {0.012F, 0.05F, 0.965F, 0.995F, 0.92F})
            PaintKelp(P, Aspect * X, Chances.Range(0.45F, 0.75F), Hex(0x1f5a3c), Chances);
        PaintShoal(P, Aspect * 0.36F, 0.56F, 13, 0.066F, Kinds[0], 0.10F, Chances);
        PaintShoal(P, Aspect * 0.74F, 0.64F, 7, 0.085F, Kinds[2], 0.06F, Chances);
        PaintBubbles(P, Aspect * 0.20F, 0.70F, 26, Chances);
        PaintBubbles(P, Aspect * 0.82F, 0.62F, 18, Chances);
    });
    Target.Bloom(0.85F, 0.05F, 0.3F);
    return Target.Develop(0.012F, 0.35F);
}

}  // namespace neb::demo
