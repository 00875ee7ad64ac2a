// A sunset at sea and a lighthouse at dusk.
#include <QLinearGradient>

#include "Props.h"
#include "Scenes.h"

namespace neb::demo {
namespace {

constexpr float SeaLine = 0.58F;
constexpr Stop EveningSky[] = {{0, Hex(0x1d2f5e)},     {0.22F, Hex(0x4f4f88)},
                               {0.40F, Hex(0xb0617f)}, {0.50F, Hex(0xf08a5c)},
                               {0.56F, Hex(0xffbf66)}, {0.6F, Hex(0xffd888)}};

float CloudDeck(float X, float Y, std::uint32_t Seed) {
    const float Away = 0.16F / (SeaLine - Y + 0.07F);
    return Fbm((X - 0.9F) * Away * 1.5F + 4, Away * 4.4F, 6, Seed);
}

Rgb EveningAt(float X, float Y, float SunX, float SunY) {
    const float Away = std::hypot(X - SunX, (Y - SunY) * 1.15F);
    Rgb C = Ramp(EveningSky, Y) + Hex(0xff8030) * (0.45F * Bell(Away, 0.36F));
    const float Thick = CloudDeck(X, Y, 41);
    const float Cloud = Smooth(0.02F, 0.42F, Thick) * Smooth(SeaLine + 0.01F, SeaLine - 0.07F, Y);
    const float Rim = Clamp01((Thick - CloudDeck(X, Y + 0.012F, 41)) * 3.2F + 0.35F);
    const Rgb Shade = Mix(Hex(0x3a3560), Hex(0x9c4a58), Smooth(0.2F, 0.55F, Y));
    const Rgb Fire = Mix(Hex(0xd4687c), Hex(0xffb25e), Bell(Away, 0.75F));
    C = Mix(C, Mix(Shade, Fire, Rim), 0.88F * Cloud);
    C = C + Hex(0xffd090) * (0.55F * Bell(Away, 0.11F));
    return Mix(C, Hex(0xfff6d8) * 1.3F, Smooth(0.047F, 0.044F, std::hypot(X - SunX, Y - SunY)));
}

// How steeply the water leans at a place, in perspective; far waves are finer and flatter.
float Lean(float X, float Down, std::uint32_t Seed) {
    const float Away = 1 / (Down + 0.012F);
    const float Wide = X * Away, Deep = Away * 5.5F;
    return 0.6F * Noise(Wide * 0.55F, Deep * 0.6F, Seed) +
           0.5F * Noise(Wide * 1.6F + 4, Deep * 1.7F, Seed + 1) +
           0.35F * Noise(Wide * 4.6F, Deep * 4.1F, Seed + 2);
}

Rgb EveningSea(float X, float Y, float SunX, float SunY) {
    const float Down = Y - SeaLine, Tilt = Lean(X - SunX, Down, 51);
    const float Seen =
        SeaLine - Down * 0.75F - 0.03F - 0.16F * std::fabs(Tilt) * Smooth(0, 0.3F, Down);
    Rgb C = EveningAt(X + 0.05F * Tilt, std::max(0.0F, Seen), SunX, SunY + 9);
    C = C * Mix(0.82F, 0.42F, Smooth(0, 0.42F, Down)) * Hex(0xeae4ff);
    C = C * (0.86F + 0.4F * Tilt);
    const float Path = Bell(X - SunX, 0.035F + 0.34F * Down);
    const float Flash = Smooth(0.12F, 0.55F, Tilt + 0.36F * Path);
    C = C + Hex(0xffb060) * (1.1F * Flash * Path) + Hex(0xff9858) * (0.30F * Path);
    return Mix(C, Hex(0xffb878), 0.5F * Bell(Down, 0.012F));
}

void PaintYacht(QPainter& P, float X, float Y, float High) {
    const Rgb Dark = Hex(0x2a1d33);
    P.setBrush(ToColor(Dark));
    P.drawPath(Shape({{X - High * 0.30F, Y - High * 0.07F},
                      {X + High * 0.36F, Y - High * 0.09F},
                      {X + High * 0.25F, Y},
                      {X - High * 0.22F, Y}}));
    P.drawRect(QRectF(X - High * 0.006F, Y - High, High * 0.012F, High * 0.95F));
    QPainterPath Main(QPointF(X + High * 0.02F, Y - High * 0.97F));
    Main.quadTo(X + High * 0.26F, Y - High * 0.5F, X + High * 0.30F, Y - High * 0.14F);
    Main.lineTo(X + High * 0.02F, Y - High * 0.14F);
    P.fillPath(Main, ToColor(Hex(0x4a2f45)));
    QPainterPath Jib(QPointF(X - High * 0.02F, Y - High * 0.86F));
    Jib.quadTo(X - High * 0.10F, Y - High * 0.4F, X - High * 0.30F, Y - High * 0.12F);
    Jib.lineTo(X - High * 0.02F, Y - High * 0.13F);
    P.fillPath(Jib, ToColor(Hex(0x5c3848)));
}

void PaintGulls(QPainter& P, float X, float Y, std::uint32_t Seed, Rgb Colour) {
    Dice Chances(Seed);
    for (int I = 0; I < 7; ++I)
        P.fillPath(Bird(X + Chances.Range(0, 0.3F), Y + Chances.Range(0, 0.14F),
                        Chances.Range(0.015F, 0.036F), Chances.Range(0.004F, 0.010F)),
                   ToColor(Colour));
}

}  // namespace

QImage PaintSunset(QSize Size) {
    Picture Target(Size);
    const float SunX = Target.Aspect() * 0.60F, SunY = 0.515F;
    Target.Shade([&](float X, float Y, Rgb) {
        return Y < SeaLine ? EveningAt(X, Y, SunX, SunY) : EveningSea(X, Y, SunX, SunY);
    });
    Target.Paint([&](QPainter& P) {
        PaintYacht(P, Target.Aspect() * 0.27F, 0.622F, 0.26F);
        PaintYacht(P, Target.Aspect() * 0.83F, 0.592F, 0.06F);
        PaintGulls(P, Target.Aspect() * 0.40F, 0.17F, 52, Hex(0x2a1d40));
    });
    Target.Bloom(0.9F, 0.05F, 0.22F);
    return Target.Develop(0.012F, 0.3F);
}

namespace {

constexpr float DuskLine = 0.70F;
constexpr Stop DuskSky[] = {{0, Hex(0x131d3a)},     {0.25F, Hex(0x27406b)}, {0.48F, Hex(0x5a6b94)},
                            {0.62F, Hex(0xc48a8c)}, {0.70F, Hex(0xf5b384)}, {0.75F, Hex(0xffc890)}};
constexpr float TowerX = 0.98F, LampY = 0.245F;

Rgb DuskAt(float X, float Y) {
    Rgb C = Ramp(DuskSky, Y);
    const float Deck = Fbm(X * 1.6F + Y, Y * 4.2F + 7, 6, 81);
    const float Light = Deck - Fbm(X * 1.6F + Y, Y * 4.2F + 7.12F, 6, 81);
    const float Cloud = Smooth(-0.1F, 0.5F, Deck);
    const Rgb Body = Mix(Hex(0x243150), Hex(0xb27584), Smooth(0.2F, 0.68F, Y));
    C = Mix(C, Body + Hex(0xffa070) * Clamp01(1.4F * Light),
            0.8F * Cloud * Smooth(0.72F, 0.55F, Y));
    return C + Stars(X, Y, 0.3F, 82) * Smooth(0.42F, 0.05F, Y) * (1 - Cloud);
}

Rgb DuskSea(float X, float Y) {
    const float Down = Y - DuskLine, Tilt = Lean(X - 0.2F, Down, 83);
    Rgb C = DuskAt(X + 0.06F * Tilt,
                   std::max(0.0F, DuskLine - 0.03F - Down * 0.9F - 0.15F * std::fabs(Tilt)));
    C = C * Mix(0.8F, 0.45F, Smooth(0, 0.3F, Down)) * (0.9F + 0.45F * Tilt);
    const float Crest = Smooth(0.5F, 0.85F, Tilt);
    C = Mix(C, Hex(0xc9bcc8), 0.35F * Crest);
    const float Path = Bell(X - TowerX, 0.03F + 0.15F * Down);
    return C + Hex(0xffd080) * (0.7F * Path * Smooth(0, 0.5F, Tilt));
}

float CliffTop(float X) {
    const float Rise = Smooth(0.50F, 0.92F, X);
    return 0.86F - 0.20F * Rise - 0.035F * Ridged(X * 3, 1, 4, 84) + 0.012F * Noise(X * 9, 5, 85);
}

// Rock above, surf along the foot.
Rgb CliffAt(float X, float Y, Rgb Behind) {
    const float Top = CliffTop(X),
                Foot = 0.885F + 0.035F * Noise(X * 3.1F, 2, 86) + 0.06F * (X - 0.8F);
    const float Cover = Smooth(0, 0.002F, Y - Top) * Smooth(0.43F, 0.50F, X + 0.3F * (Y - 0.8F));
    const float Px = X * 7 + Y * 3, Py = Y * 13 - X * 2;
    const float Rock =
        Clamp01(0.36F + 1.1F * (Ridged(Px, Py, 5, 87) - Ridged(Px - 0.10F, Py - 0.08F, 5, 87)) +
                0.22F * Fbm(Px * 3, Py * 3, 3, 92));
    Rgb C = Mix(Hex(0x151929), Hex(0x857384), Rock);
    C = Mix(C, Hex(0x33452f), Smooth(0.035F, 0, Y - Top) * 0.8F);
    C = C + Hex(0xff9a60) * (0.25F * Smooth(0.8F, 0.5F, X) * Rock);
    const float Foam = Bell(Y - Foot, 0.022F) * Smooth(-0.35F, 0.4F, Fbm(X * 12, Y * 22, 4, 88));
    Rgb Both = Mix(Behind, C, Cover * Smooth(0.004F, -0.004F, Y - Foot));
    return Mix(Both, Hex(0xc3c8dc), 0.85F * Foam * Smooth(0.40F, 0.52F, X));
}

void PaintTower(QPainter& P) {
    const float Foot = CliffTop(TowerX) + 0.01F, Neck = LampY + 0.035F;
    QLinearGradient Round(TowerX - 0.045F, 0, TowerX + 0.045F, 0);
    Round.setColorAt(0, ToColor(Hex(0xf2d9cc)));
    Round.setColorAt(0.35F, ToColor(Hex(0xd8cdd2)));
    Round.setColorAt(1, ToColor(Hex(0x55587a)));
    const auto Half = [&](float Y) { return Mix(0.027F, 0.043F, (Y - Neck) / (Foot - Neck)); };
    const auto Ring = [&](float From, float To, const QBrush& Brush) {
        P.fillPath(Shape({{TowerX - Half(From), From},
                          {TowerX + Half(From), From},
                          {TowerX + Half(To), To},
                          {TowerX - Half(To), To}}),
                   Brush);
    };
    Ring(Neck, Foot, Round);
    QLinearGradient Red(TowerX - 0.045F, 0, TowerX + 0.045F, 0);
    Red.setColorAt(0, ToColor(Hex(0xe0624a)));
    Red.setColorAt(1, ToColor(Hex(0x571c2c)));
    const float Step = (Foot - Neck) / 6;
    for (int I = 1; I < 6; I += 2)
        Ring(Neck + Step * static_cast<float>(I), Neck + Step * static_cast<float>(I + 1), Red);
    P.setBrush(ToColor(Hex(0xffd98a)));
    for (const float Y : {0.36F, 0.47F, 0.57F})
        P.drawRoundedRect(QRectF(TowerX - 0.006F, Y, 0.011F, 0.02F), 0.005F, 0.005F);
}

void PaintLantern(QPainter& P) {
    P.setBrush(ToColor(Hex(0x2a2233)));
    P.drawRect(QRectF(TowerX - 0.038F, LampY + 0.028F, 0.076F, 0.009F));
    P.drawRect(QRectF(TowerX - 0.038F, LampY + 0.012F, 0.003F, 0.02F));
    P.drawRect(QRectF(TowerX + 0.035F, LampY + 0.012F, 0.003F, 0.02F));
    P.drawRect(QRectF(TowerX - 0.038F, LampY + 0.012F, 0.076F, 0.0025F));
    P.setBrush(ToColor(Hex(0xfff2c0)));
    P.drawRect(QRectF(TowerX - 0.021F, LampY - 0.018F, 0.042F, 0.046F));
    P.setBrush(ToColor(Hex(0x2a2233)));
    for (const float X : {-0.021F, -0.008F, 0.005F, 0.019F})
        P.drawRect(QRectF(TowerX + X, LampY - 0.018F, 0.002F, 0.046F));
    P.fillPath(Shape({{TowerX - 0.028F, LampY - 0.017F},
                      {TowerX, LampY - 0.05F},
                      {TowerX + 0.028F, LampY - 0.017F}}),
               ToColor(Hex(0x6d2430)));
    Disc(P, TowerX, LampY - 0.052F, 0.004F, 0.004F);
}

void PaintCottage(QPainter& P) {
    const float X = 1.10F, Y = CliffTop(1.13F) + 0.012F;
    P.fillPath(Shape({{X, Y}, {X, Y - 0.055F}, {X + 0.12F, Y - 0.055F}, {X + 0.12F, Y}}),
               ToColor(Hex(0x8d8696)));
    P.fillPath(Shape({{X - 0.01F, Y - 0.053F},
                      {X + 0.025F, Y - 0.10F},
                      {X + 0.10F, Y - 0.10F},
                      {X + 0.13F, Y - 0.053F}}),
               ToColor(Hex(0x4a2832)));
    P.setBrush(ToColor(Hex(0x57404a)));
    P.drawRect(QRectF(X + 0.085F, Y - 0.118F, 0.014F, 0.03F));
    P.setBrush(ToColor(Hex(0xffd27a)));
    for (const float Off : {0.018F, 0.075F}) P.drawRect(QRectF(X + Off, Y - 0.04F, 0.020F, 0.019F));
}

// The beam, brighter where the haze is thick.
Rgb BeamAt(float X, float Y) {
    const float Dx = TowerX - X, Dy = Y - LampY, Slope = Dy - 0.10F * Dx;
    const float Wide = 0.010F + 0.085F * std::fabs(Dx);
    const float Fall = std::exp(-std::fabs(Dx) * (Dx > 0 ? 1.1F : 4.0F));
    const float Haze = 0.75F + 0.4F * Fbm(X * 3, Y * 5, 3, 89);
    return Hex(0xffe2a0) * (0.62F * Bell(Slope, Wide) * Fall * Haze);
}

}  // namespace

QImage PaintLighthouse(QSize Size) {
    Picture Target(Size);
    Target.Shade([](float X, float Y, Rgb) { return Y < DuskLine ? DuskAt(X, Y) : DuskSea(X, Y); });
    Target.Shade([](float X, float Y, Rgb C) { return CliffAt(X, Y, C); });
    Target.Paint([](QPainter& P) {
        PaintTower(P);
        PaintCottage(P);
        PaintLantern(P);
        PaintGulls(P, 0.35F, 0.40F, 90, Hex(0x2a2f48));
    });
    Target.Shade([](float X, float Y, Rgb C) { return Screen(C, BeamAt(X, Y)); });
    Target.Add([](QPainter& P) { Glow(P, TowerX, LampY, 0.16F, Hex(0xffd890), 0.9F); });
    Target.Bloom(0.85F, 0.03F, 0.3F);
    return Target.Develop(0.014F, 0.35F);
}

}  // namespace neb::demo
