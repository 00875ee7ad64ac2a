// Pictures of open ground: desert dunes, a sea of clouds, a lavender field.
#include <vector>

#include "Props.h"
#include "Ranges.h"
#include "Scenes.h"
#include "Terrain.h"

namespace neb::demo {
namespace {

// A dune climbs gently against the wind and falls off steeply behind its crest.
float DuneProfile(float T) {
    const float Part = T - std::floor(T);
    return Part < 0.70F ? std::pow(Part / 0.70F, 1.5F)
                        : Square((1 - Part) / 0.30F) * (0.5F + 0.5F * (1 - Part) / 0.30F);
}

float DuneHeight(float X, float Z) {
    const float Bend =
        0.55F * Noise(X * 0.16F, Z * 0.16F, 251) + 0.18F * Noise(X * 0.45F, Z * 0.45F, 202);
    const float Along = (X * 0.62F + Z * 0.78F) * 0.17F + Bend;
    const float Second =
        (X * 0.80F - Z * 0.55F) * 0.10F + 0.4F * Noise(X * 0.1F + 5, Z * 0.1F, 203);
    const float Tall = 0.75F + 0.45F * Noise(X * 0.09F, Z * 0.09F, 204);
    return 1.25F * Tall * DuneProfile(Along) + 0.7F * DuneProfile(Second);
}

constexpr Stop DesertSky[] = {
    {0, Hex(0x3f74b0)}, {0.2F, Hex(0x86aed0)}, {0.36F, Hex(0xf2d8b4)}, {0.42F, Hex(0xffdcae)}};

Rgb DesertAir(float X, float Y) {
    const float Wisp =
        Smooth(0.1F, 0.7F, Fbm(X * 1.1F + Y, Y * 9, 6, 205)) * Smooth(0.4F, 0.25F, Y);
    return Mix(Ramp(DesertSky, Y), Hex(0xfff4e6), 0.7F * Wisp);
}

Rgb SandAt(const Terrain& Ground, const Spot& Place, Rgb Sun) {
    const float Bend = 2.2F * Noise(Place.X * 0.8F, Place.Z * 0.8F, 206);
    const float Ripple =
        std::sin((Place.X * 0.5F + Place.Z) * 26 + 3 * Bend) * Smooth(9, 2, Place.Z);
    const float Facing = Place.Nx * Sun.R + Place.Ny * Sun.G + Place.Nz * Sun.B + 0.05F * Ripple;
    const float Light = std::max(0.0F, Facing) * Sunlit(Ground, Place, Sun, 5, 10);
    const float Grain = 1 + 0.05F * Fbm(Place.X * 9, Place.Z * 9, 3, 207);
    const Rgb Shade = Hex(0x6b4050) * (0.75F + 0.35F * Place.Ny);
    const Rgb Sand = Mix(Shade, Hex(0xffb667) * 1.12F, Smooth(0, 0.75F, Light)) * Grain;
    return Mix(Sand, Hex(0xf6d6b0), 0.85F * (1 - std::exp(-Place.Z / 30)));
}

}  // namespace

QImage PaintDunes(QSize Size) {
    Picture Target(Size);
    Target.Shade([](float X, float Y, Rgb) { return DesertAir(X, Y); });
    Terrain Ground;
    Ground.Height = DuneHeight;
    Ground.Eye = 3.0F;
    Ground.Horizon = 0.37F;
    Ground.Focal = 1.15F;
    Ground.Near = 1.5F;
    Ground.Far = 80;
    Ground.Fine = 0.0012F;
    Ground.Slope = -0.01F;
    const Rgb Sun = {-0.80F, 0.42F, 0.43F};
    DrawTerrain(Target, Ground, [&](const Spot& Place) { return SandAt(Ground, Place, Sun); });
    return Target.Develop(0.014F, 0.25F);
}

namespace {

float BillowHeight(float X, float Z) {
    const float Wide = Fbm(X * 0.20F, Z * 0.20F, 2, 211);
    const float Bx = X + 0.25F * Noise(X * 1.3F, Z * 1.3F, 217),
                Bz = Z + 0.25F * Noise(X * 1.3F + 9, Z * 1.3F, 218);
    const float Puff = std::fabs(Noise(Bx * 0.62F, Bz * 0.62F, 212));
    const float Small = std::fabs(Noise(Bx * 1.5F + 3, Bz * 1.5F, 213));
    const float Tiny = std::fabs(Noise(Bx * 3.6F, Bz * 3.6F + 2, 214));
    const float Fine = std::fabs(Noise(Bx * 8.1F, Bz * 8.1F + 2, 219));
    const float Mass = Smooth(-0.5F, 0.5F, Wide);
    return 1.0F * Wide +
           (0.35F + 0.65F * Mass) * (0.95F * Puff + 0.42F * Small + 0.13F * Tiny + 0.03F * Fine);
}

constexpr Stop HighSky[] = {{0, Hex(0x2a5a9c)},
                            {0.22F, Hex(0x6f9bcc)},
                            {0.38F, Hex(0xe8b4a8)},
                            {0.45F, Hex(0xffc98c)},
                            {0.5F, Hex(0xffe6b8)}};

Rgb HighAir(float X, float Y, float SunX) {
    const float Away = std::hypot(X - SunX, Y - 0.39F);
    const float Wisp =
        Smooth(0.05F, 0.7F, Fbm(X * 0.9F + Y, Y * 9, 6, 215)) * Smooth(0.42F, 0.2F, Y);
    Rgb C = Mix(Ramp(HighSky, Y), Hex(0xffe8dc), 0.55F * Wisp);
    C = C + Hex(0xff9a50) * (0.25F * Bell(Away, 0.42F)) +
        Hex(0xffd890) * (0.35F * Bell(Away, 0.10F));
    return Mix(C, Hex(0xfffbe8) * 1.3F, Smooth(0.046F, 0.043F, Away));
}

Rgb CloudAt(const Spot& Place, Rgb Sun) {
    const float Facing = Place.Nx * Sun.R + Place.Ny * Sun.G + Place.Nz * Sun.B;
    const float Light = Clamp01(0.38F + 0.62F * Facing);
    const float Deep = Smooth(-0.55F, 1.0F, Place.Height);
    Rgb C = Mix(Hex(0x4f649c), Hex(0xa091b4), Deep);
    C = Mix(C, Mix(Hex(0xf0a088), Hex(0xffe9cc), Deep),
            Smooth(0.28F, 1.0F, Light) * (0.25F + 0.75F * Deep));
    const float Toward = Bell(Place.X / Place.Z - Sun.R / Sun.B, 0.55F);
    const Rgb Haze = Mix(Hex(0xcfa9b4), Hex(0xffc98a), Toward);
    return Mix(C, Haze, 0.92F * (1 - std::exp(-Place.Z / 24)));
}

}  // namespace

QImage PaintClouds(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect(), SunX = Aspect * 0.68F;
    Target.Shade([&](float X, float Y, Rgb) { return HighAir(X, Y, SunX); });
    PaintRange(Target, {0.45F, 0.34F, 0.9F, 1, Hex(0x7c82b0), Hex(0xf0c0a8), 0.16F, 0.7F, 216},
               SunX);
    Terrain Ground;
    Ground.Height = BillowHeight;
    Ground.Eye = 3.4F;
    Ground.Horizon = 0.42F;
    Ground.Focal = 1.0F;
    Ground.Near = 2.2F;
    Ground.Far = 90;
    Ground.Fine = 0.003F;
    Ground.Slope = 0.030F;
    const Rgb Sun = {0.45F, 0.38F, 0.81F};
    DrawTerrain(Target, Ground, [&](const Spot& Place) { return CloudAt(Place, Sun); });
    Target.Bloom(0.85F, 0.06F, 0.25F);
    return Target.Develop(0.01F, 0.2F);
}

namespace {

constexpr float FieldLine = 0.43F;
constexpr Stop ProvenceSky[] = {{0, Hex(0x4c5f9e)},
                                {0.18F, Hex(0x9a86b4)},
                                {0.31F, Hex(0xf0a58c)},
                                {0.40F, Hex(0xffcf8c)},
                                {0.45F, Hex(0xffe2a8)}};

Rgb ProvenceAir(float X, float Y, float SunX) {
    const float Away = std::hypot(X - SunX, Y - 0.36F);
    Rgb C = Ramp(ProvenceSky, Y) + Hex(0xff8a40) * (0.22F * Bell(Away, 0.38F));
    const float Deck = Fbm(X * 1.7F + Y * 2, Y * 9, 6, 221);
    const float Rim =
        Clamp01(0.45F + 3 * (Deck - Fbm(X * 1.7F + Y * 2 + 0.02F, Y * 9 + 0.12F, 6, 221)));
    const float Cloud = Smooth(0.0F, 0.55F, Deck) * Smooth(0.40F, 0.22F, Y);
    C = Mix(C, Mix(Hex(0x7d6a98), Hex(0xffc09a), Rim), 0.8F * Cloud);
    C = C + Hex(0xffd890) * (0.32F * Bell(Away, 0.08F));
    return Mix(C, Hex(0xfffae0) * 1.25F, Smooth(0.031F, 0.028F, Away));
}

// Rows run to one far point; each is a round hedge, lit from the side of the sun.
Rgb LavenderAt(float X, float Y, float PointX) {
    const float Down = Y - FieldLine + 0.012F, Away = 0.30F / Down;
    const float Across = (X - PointX) * Away * 3.1F + 0.05F * Noise(Away * 1.5F, 2, 222);
    const float Row = std::floor(Across), Part = Across - Row - 0.5F;
    const float Far = Smooth(0.03F, 0.20F, Down);
    const float Bushes =
        0.55F * Noise(Across * 5, Away * 20, 223) + 0.45F * Noise(Across * 11, Away * 46, 224);
    const float Spikes = Noise(Across * 34, Away * 70 + Row, 225);
    const float Round = std::fabs(Part) * 2 + 0.16F * Bushes * Far;
    const float Hedge = Smooth(1.0F, 0.80F, Round);
    const float Side = std::sqrt(std::max(0.0F, 1 - Square(std::min(1.0F, Round))));
    const float Light =
        Clamp01(0.30F + 0.45F * Side + 0.42F * Part + 0.28F * Bushes * Far + 0.24F * Spikes * Far);
    Rgb Bloom = Mix(Hex(0x2f1a58), Hex(0x7b4fb8), Smooth(0, 0.55F, Light));
    Bloom = Mix(Bloom, Hex(0xd9a4e0), Smooth(0.5F, 1.0F, Light));
    Bloom = Mix(Bloom, Hex(0x55693f), 0.6F * Smooth(0.55F, 0.9F, Round));
    const Rgb Path = Mix(Hex(0x2c1f24), Hex(0x6e4c3c), Clamp01(0.5F + 0.6F * Bushes));
    const Rgb C = Mix(Path, Bloom, Mix(0.85F, Hedge, Far));
    return Mix(C, Hex(0xe0a08c), 0.60F * Smooth(0.20F, 0.0F, Down));
}

// The crown is a heap of clouds of leaves, each lit from the side of the sun.
void PaintCrown(QPainter& P, float X, float Y, float High, Dice& Chances) {
    for (int I = 0; I < 26; ++I) {
        const float Turn = Chances.Range(0, 6.2832F), Out = std::sqrt(Chances.Next());
        const float Cx = X + std::cos(Turn) * Out * High * 0.36F,
                    Cy = Y + std::sin(Turn) * Out * High * 0.24F;
        const float R = High * Chances.Range(0.07F, 0.13F);
        for (int Leaf = 0; Leaf < 90; ++Leaf) {
            const float T = Chances.Range(0, 6.2832F), Away = std::sqrt(Chances.Next());
            const float Dx = std::cos(T) * Away, Dy = std::sin(T) * Away * 0.75F;
            const float Lit = Clamp01(0.22F + 0.34F * (Dx - Dy) + 0.30F * (Cx - X) / High +
                                      Chances.Range(-0.12F, 0.16F));
            P.setBrush(ToColor(Mix(Hex(0x1f2a1e), Hex(0xc09a4c), Lit)));
            const float Size = High * Chances.Range(0.008F, 0.017F);
            Disc(P, Cx + Dx * R, Cy + Dy * R, Size, Size * 0.7F);
        }
    }
}

void PaintLoneTree(QPainter& P, float X, float Y, float High) {
    Dice Chances(226);
    const Rgb Bark = Hex(0x33242a);
    P.setBrush(ToColor(Hex(0x2a1838), 0.45F));
    Disc(P, X - High * 0.25F, Y, High * 0.45F, High * 0.025F);
    P.fillPath(Shape({{X - High * 0.045F, Y},
                      {X - High * 0.018F, Y - High * 0.4F},
                      {X + High * 0.018F, Y - High * 0.4F},
                      {X + High * 0.05F, Y}}),
               ToColor(Bark));
    P.setPen(QPen(ToColor(Bark), static_cast<qreal>(High) * 0.022, Qt::SolidLine, Qt::RoundCap));
    for (const float Side : {-0.24F, -0.10F, 0.12F, 0.26F})
        P.drawLine(QPointF(X, Y - High * 0.33F), QPointF(X + High * Side, Y - High * 0.60F));
    P.setPen(Qt::NoPen);
    PaintCrown(P, X, Y - High * 0.66F, High, Chances);
}

struct Spike {
    float X, Y, Long, Light;
};

// Flower spikes on the near hedges, in the order from far to near.
std::vector<Spike> GrowSpikes(float Aspect, float PointX) {
    Dice Chances(229);
    std::vector<Spike> Spikes;
    for (int I = 0; I < 15000; ++I) {
        const float Down = 0.10F + 0.50F * std::sqrt(Chances.Next()),
                    Away = 0.30F / (Down + 0.012F);
        const float Off = Chances.Range(-0.42F, 0.42F);
        const float Row = std::floor(Chances.Range(-PointX, Aspect - PointX) * Away * 3.1F);
        const float X = PointX + (Row + 0.5F + Off) / (Away * 3.1F);
        const float Round = std::sqrt(1 - Square(Off * 2));
        Spikes.push_back({X, FieldLine + Down - 0.055F * Down * Round,
                          0.055F * Down * Chances.Range(0.7F, 1.3F),
                          0.25F + 0.45F * Off + 0.35F * Round + Chances.Range(-0.2F, 0.25F)});
    }
    std::sort(Spikes.begin(), Spikes.end(),
              [](const Spike& A, const Spike& B) { return A.Y < B.Y; });
    return Spikes;
}

void PaintSpikes(QPainter& P, float Aspect, float PointX) {
    Dice Chances(230);
    for (const Spike& S : GrowSpikes(Aspect, PointX)) {
        const Rgb C = Mix(Hex(0x3c2270), Hex(0xd6a8ea), Clamp01(S.Light));
        P.setPen(QPen(ToColor(C, 0.92F), static_cast<qreal>(S.Long) * 0.24, Qt::SolidLine,
                      Qt::RoundCap));
        P.drawLine(QPointF(S.X, S.Y),
                   QPointF(S.X + S.Long * Chances.Range(-0.28F, 0.28F), S.Y - S.Long));
    }
    P.setPen(Qt::NoPen);
}

void PaintFarm(QPainter& P, float X, float Y, float Size) {
    P.fillPath(Shape({{X, Y}, {X, Y - Size * 0.45F}, {X + Size, Y - Size * 0.45F}, {X + Size, Y}}),
               ToColor(Hex(0x9c7868)));
    P.fillPath(Shape({{X + Size * 0.72F, Y},
                      {X + Size * 0.72F, Y - Size * 0.45F},
                      {X + Size * 0.86F, Y - Size * 0.62F},
                      {X + Size, Y - Size * 0.45F},
                      {X + Size, Y}}),
               ToColor(Hex(0xe0ac84)));
    P.fillPath(Shape({{X - Size * 0.05F, Y - Size * 0.43F},
                      {X + Size * 0.08F, Y - Size * 0.66F},
                      {X + Size * 0.88F, Y - Size * 0.66F},
                      {X + Size * 0.74F, Y - Size * 0.43F}}),
               ToColor(Hex(0x8a4638)));
    P.setBrush(ToColor(Hex(0x4a3440)));
    for (const float Off : {0.12F, 0.34F, 0.54F})
        P.drawRect(QRectF(X + Size * Off, Y - Size * 0.32F, Size * 0.07F, Size * 0.13F));
    for (const float Off : {-0.35F, -0.22F, 1.18F}) {
        const float High = Size * (1.1F + Off * 0.2F);
        P.setBrush(ToColor(Hex(0x2f3828)));
        Disc(P, X + Size * Off, Y - High * 0.5F, Size * 0.06F, High * 0.5F);
    }
}

}  // namespace

QImage PaintLavender(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect(), SunX = Aspect * 0.72F;
    Target.Shade([&](float X, float Y, Rgb) { return ProvenceAir(X, Y, SunX); });
    PaintRange(Target, {0.42F, 0.07F, 1.1F, 0.5F, Hex(0x9a88a8), Hex(0xf0b890), 0.08F, 0.2F, 227},
               SunX);
    PaintRange(Target, {0.44F, 0.04F, 1.6F, 0.2F, Hex(0x6a6274), Hex(0xc09078), 0.06F, 0.2F, 228},
               SunX);
    Target.ShadeRows(FieldLine, 1,
                     [&](float X, float Y, Rgb) { return LavenderAt(X, Y, Aspect * 0.56F); });
    Target.Paint([&](QPainter& P) {
        PaintSpikes(P, Aspect, Aspect * 0.56F);
        PaintFarm(P, Aspect * 0.50F, FieldLine + 0.006F, 0.085F);
        PaintLoneTree(P, Aspect * 0.20F, FieldLine + 0.022F, 0.24F);
    });
    Target.Bloom(0.85F, 0.05F, 0.2F);
    return Target.Develop(0.014F, 0.3F);
}

}  // namespace neb::demo
