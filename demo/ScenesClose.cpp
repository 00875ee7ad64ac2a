// Things seen from close by: dew on a leaf, rain on a window, flowers in a garden.
#include <QLinearGradient>

#include "Props.h"
#include "Scenes.h"

namespace neb::demo {
namespace {

struct Drop {
    float X, Y, Radius;
};

// Drops of many sizes that do not touch, the large ones first.
std::vector<Drop> Scatter(float Aspect, int Tries, float Largest, float Falling,
                          std::uint32_t Seed) {
    Dice Chances(Seed);
    std::vector<Drop> Drops;
    for (int I = 0; I < Tries; ++I) {
        const float Share = 1 - static_cast<float>(I) / static_cast<float>(Tries);
        const Drop New = {
            Chances.Range(-0.05F, Aspect + 0.05F), Chances.Range(-0.05F, 1.05F),
            Largest * (0.05F + 0.95F * std::pow(Share, Falling)) * Chances.Range(0.6F, 1.1F)};
        const bool Free = std::none_of(Drops.begin(), Drops.end(), [&](const Drop& D) {
            return std::hypot(D.X - New.X, D.Y - New.Y) < (D.Radius + New.Radius) * 1.12F;
        });
        if (Free) Drops.push_back(New);
    }
    return Drops;
}

struct Pane {
    float Wide;    // how far round a drop sees
    float Shadow;  // how dark it lies on what is below
    float Gleam;   // the light it mirrors
};

// A drop is a lens: it shows what lies behind it upside down, dark at the rim towards the
// light and bright on the far side.
Rgb DropAt(const Picture& Behind, const Drop& D, float X, float Y, Pane Glass, Rgb C) {
    const float Dx = (X - D.X) / D.Radius, Dy = (Y - D.Y) / D.Radius, Out = std::hypot(Dx, Dy);
    if (Out > 1.0F + Behind.Unit() / D.Radius) return C;
    const float Bulge = 0.35F + Out * Out, Reach = Glass.Wide + D.Radius, Gleam = Glass.Gleam;
    Rgb Seen = Behind.Sample(D.X - Dx * Reach * Bulge, D.Y - Dy * Reach * Bulge);
    const float Across = (Dx + Dy) * 0.7071F;
    Seen = Seen * (1.02F + 0.62F * Across * Out - 0.35F * Square(Square(Out)));
    Seen = Seen + Hex(0xffffff) * (0.22F * Bell(Out - 0.78F, 0.17F) * Smooth(0.1F, 0.9F, Across));
    Seen = Seen + Hex(0xffffff) * (Gleam * Bell(std::hypot(Dx + 0.40F, Dy + 0.42F), 0.13F));
    Seen = Seen + Hex(0xffffff) * (0.27F * Gleam * Bell(std::hypot(Dx + 0.18F, Dy + 0.62F), 0.06F));
    return Mix(C, Seen, Clamp01((1 - Out) * D.Radius / Behind.Unit() + 0.5F));
}

template <class F>
void ForDisc(Picture& Target, float X, float Y, float Radius, F Colour) {
    const int Left = std::max(0, static_cast<int>((X - Radius) / Target.Unit()));
    const int Right = std::min(Target.Width(), static_cast<int>((X + Radius) / Target.Unit()) + 2);
    const int Top = std::max(0, static_cast<int>((Y - Radius) / Target.Unit()));
    const int Bottom =
        std::min(Target.Height(), static_cast<int>((Y + Radius) / Target.Unit()) + 2);
    for (int Row = Top; Row < Bottom; ++Row)
        for (int Column = Left; Column < Right; ++Column) {
            Rgb& Pixel = Target.At(Column, Row);
            Pixel = Colour((static_cast<float>(Column) + 0.5F) * Target.Unit(),
                           (static_cast<float>(Row) + 0.5F) * Target.Unit(), Pixel);
        }
}

void PaintDrops(Picture& Target, const std::vector<Drop>& Drops, Pane Glass) {
    const Picture Behind = Target;
    for (const Drop& D : Drops) {
        const float Reach = D.Radius * 1.5F, Off = D.Radius * 0.22F;
        ForDisc(Target, D.X + Off, D.Y + Off, Reach, [&](float X, float Y, Rgb C) {
            const float Out = std::hypot(X - D.X - Off, Y - D.Y - Off) / D.Radius;
            const float Hot =
                Bell(std::hypot(X - D.X - Off * 3.6F, Y - D.Y - Off * 3.6F), D.Radius * 0.3F);
            return C * (1 - Glass.Shadow * Smooth(1.3F, 0.7F, Out)) +
                   C * (Glass.Shadow * 1.4F * Hot);
        });
    }
    for (const Drop& D : Drops)
        ForDisc(Target, D.X, D.Y, D.Radius,
                [&](float X, float Y, Rgb C) { return DropAt(Behind, D, X, Y, Glass, C); });
}

// One leaf that fills the picture: a midrib from corner to corner, side veins, fine cells.
Rgb LeafAt(float X, float Y) {
    const float Along = (X + (1 - Y)) * 0.7071F, Across = (X - (1 - Y)) * 0.7071F;
    const float Bend = Across + 0.05F * std::sin(Along * 2.2F);
    const float Side =
        (Along - std::fabs(Bend) * 0.85F - 0.35F * Bend * Bend) * 6.5F + (Bend > 0 ? 0.5F : 0);
    const float Part = std::fabs(Side - std::floor(Side) - 0.5F) * 2;
    const float Mid = Bell(Bend, 0.013F),
                Vein = Smooth(0.90F, 0.985F, Part) * Smooth(0.75F, 0.2F, std::fabs(Bend));
    const Cell Fine = Worley(X * 26, Y * 26, 401);
    const float Net = Smooth(0.10F, 0.0F, Fine.Edge);
    const float Swell = std::cos((Part - 0.1F) * 1.5F);
    const float Light = 0.50F + 0.22F * Swell + 0.18F * Fbm(X * 3, Y * 3, 3, 402) -
                        0.35F * Smooth(0.1F, 0.9F, std::fabs(Bend)) +
                        0.22F * (1 - X * 0.5F - Y * 0.5F);
    Rgb C = Mix(Hex(0x0d3a16), Hex(0x5cb02c), Clamp01(Light));
    C = C + Hex(0xa8d840) * (0.30F * Smooth(0.7F, 1.15F, Light));
    C = Mix(C, Hex(0xa6d860), 0.10F * Net + 0.42F * Vein);
    C = C * (1 - 0.35F * Bell(Bend - 0.026F, 0.014F));
    return Mix(C, Hex(0xc4e684), 0.85F * Mid);
}

}  // namespace

QImage PaintDew(QSize Size) {
    Picture Target(Size);
    Target.Shade([](float X, float Y, Rgb) { return LeafAt(X, Y); });
    const Picture Sharp = Target;
    Target.Blur(0.012F);
    const Picture Soft = Target;
    // Only a band across the middle is in focus, as through a macro lens.
    Target.Shade([&](float X, float Y, Rgb C) {
        return Mix(C, Sharp.Sample(X, Y),
                   Smooth(0.42F, 0.12F, std::fabs(Y - 0.52F + 0.15F * (X - 0.5F))));
    });
    PaintDrops(Target, Scatter(Target.Aspect(), 1100, 0.125F, 9, 403), {0.20F, 0.55F, 1.3F});
    Target.Bloom(0.85F, 0.02F, 0.3F);
    return Target.Develop(0.01F, 0.4F);
}

namespace {

constexpr Rgb StreetLights[] = {Hex(0xffb24a), Hex(0xffd890), Hex(0xff5a3a), Hex(0x4fd0c0),
                                Hex(0xff8a3c), Hex(0x6aa8ff), Hex(0xf25a9c), Hex(0xfff0c8)};

Rgb StreetAt(float X, float Y) {
    const Rgb Sky = Mix(Hex(0x0b1230), Hex(0x2b2a58), Smooth(0, 0.55F, Y));
    Rgb C = Mix(Sky, Hex(0x14101f), Smooth(0.55F, 0.95F, Y));
    C = C + Hex(0xff8a40) * (0.30F * Bell(Y - 0.60F, 0.13F) * (1 + 0.5F * Noise(X * 3, 1, 411)));
    return C + Hex(0x30508a) * (0.20F * Smooth(0, 0.7F, Fbm(X * 2, Y * 2, 3, 412)));
}

// A light out of focus is a disc with a brighter rim.
void PaintBokeh(QPainter& P, float X, float Y, float Radius, Rgb Colour, float Alpha) {
    QRadialGradient Disc1(QPointF(X, Y), Radius);
    Disc1.setColorAt(0, ToColor(Colour, Alpha * 0.62F));
    Disc1.setColorAt(0.80, ToColor(Colour, Alpha * 0.72F));
    Disc1.setColorAt(0.93, ToColor(Colour, Alpha));
    Disc1.setColorAt(1, ToColor(Colour, 0));
    P.setBrush(Disc1);
    Disc(P, X, Y, Radius, Radius);
}

void PaintStreet(QPainter& P, float Aspect) {
    Dice Chances(413);
    for (int I = 0; I < 130; ++I) {
        const float X = Chances.Range(0, Aspect), Spread = Chances.Range(-1, 1);
        const float Y = 0.56F + 0.40F * Spread * std::fabs(Spread);
        const float R = Chances.Range(0.018F, 0.040F) + 0.045F * Square(Chances.Next());
        const Rgb C = StreetLights[Chances.Below(8)];
        PaintBokeh(P, X, Y, R, C, Chances.Range(0.14F, 0.46F));
    }
}

// Runs of water down the pane: a large drop at the end of a wet trail.
void PaintTrails(Picture& Target, std::vector<Drop>& Drops) {
    Dice Chances(414);
    for (int I = 0; I < 11; ++I) {
        const float X = Target.Aspect() * (static_cast<float>(I) + Chances.Range(0.1F, 0.9F)) / 11;
        const float End = Chances.Range(0.25F, 0.95F), R = Chances.Range(0.014F, 0.024F);
        for (float Y = Chances.Range(-0.1F, 0.2F); Y < End; Y += R * Chances.Range(0.55F, 2.2F)) {
            const float Part = R * Chances.Range(0.18F, 0.5F);
            Drops.push_back({X + 0.012F * Noise(Y * 7, static_cast<float>(I), 415), Y, Part});
        }
        Drops.push_back({X + 0.012F * Noise(End * 7, static_cast<float>(I), 415), End, R});
    }
}

}  // namespace

QImage PaintRainyWindow(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect();
    Target.Shade([](float X, float Y, Rgb) { return StreetAt(X, Y); });
    Target.Add([&](QPainter& P) { PaintStreet(P, Aspect); });
    Target.Blur(0.006F);
    std::vector<Drop> Drops = Scatter(Aspect, 2600, 0.034F, 16, 416);
    PaintTrails(Target, Drops);
    PaintDrops(Target, Drops, {0.30F, 0.22F, 0.45F});
    Target.Bloom(0.8F, 0.03F, 0.3F);
    return Target.Develop(0.018F, 0.4F);
}

namespace {

Rgb GardenAt(float X, float Y) {
    const float Sun = Bell(std::hypot(X - 1.1F, Y - 0.05F), 0.6F);
    const float Leaves = Fbm(X * 3.2F, Y * 3.2F, 4, 421);
    Rgb C = Mix(Hex(0x9fc46a), Hex(0x2f6a34), Smooth(0.05F, 0.85F, Y + 0.25F * Leaves));
    C = Mix(C, Hex(0xd7e6a0), 0.5F * Smooth(0.1F, 0.6F, Leaves) * Smooth(0.7F, 0.1F, Y));
    return C + Hex(0xffe8a0) * (0.55F * Sun);
}

struct Bloom {
    Rgb Inner, Outer, Heart;
};
constexpr Bloom Kinds[] = {{Hex(0xd8201c), Hex(0xff6a4a), Hex(0x221018)},
                           {Hex(0xe06aa8), Hex(0xffc4dc), Hex(0xf6c23c)},
                           {Hex(0xf4f0fa), Hex(0xffffff), Hex(0xf2b71e)},
                           {Hex(0x5a4fc8), Hex(0x9aa4ff), Hex(0x2a2060)},
                           {Hex(0xf29a1c), Hex(0xffd860), Hex(0x8a3a10)}};

void PaintPetals(QPainter& P, const Bloom& Kind, float Size, int Count, float Turn, float Light) {
    for (int I = 0; I < Count; ++I) {
        P.save();
        P.rotate(static_cast<double>(Turn) + 360.0 * I / Count);
        QPainterPath Petal(QPointF(0, 0));
        const float Wide = Size * (Count > 8 ? 0.20F : 0.52F);
        Petal.cubicTo(-Wide, -Size * 0.35F, -Wide * 0.95F, -Size * 0.95F, 0, -Size);
        Petal.cubicTo(Wide * 0.95F, -Size * 0.95F, Wide, -Size * 0.35F, 0, 0);
        QLinearGradient Silk(0, 0, 0, -Size);
        Silk.setColorAt(0, ToColor(Kind.Inner * (0.6F * Light)));
        Silk.setColorAt(0.5, ToColor(Kind.Inner * Light));
        Silk.setColorAt(1, ToColor(Kind.Outer * Light));
        P.setPen(QPen(ToColor(Kind.Inner * 0.6F, 0.4F), static_cast<qreal>(Size) * 0.015));
        P.setBrush(Silk);
        P.drawPath(Petal);
        P.restore();
    }
    P.setPen(Qt::NoPen);
}

void PaintFlower(QPainter& P, float X, float Y, float Size, int Kind, Dice& Chances) {
    P.save();
    P.translate(static_cast<qreal>(X), static_cast<qreal>(Y));
    P.rotate(static_cast<double>(Chances.Range(-18, 18)));
    P.scale(1, static_cast<qreal>(Chances.Range(0.62F, 0.9F)));
    const int Count = Kind == 2 ? 15 : 5 + Chances.Below(2);
    const float Turn = Chances.Range(0, 90);
    PaintPetals(P, Kinds[Kind], Size, Count, Turn, 0.80F);
    PaintPetals(P, Kinds[Kind], Size * 0.86F, Count, Turn + 180.0F / static_cast<float>(Count),
                1.0F);
    Glow(P, 0, 0, Size * 0.36F, Kinds[Kind].Heart, 1, 0.62F);
    for (int I = 0; I < 22; ++I) {
        const float Angle = Chances.Range(0, 6.2832F), Out = Size * Chances.Range(0.16F, 0.34F);
        P.setBrush(ToColor(Mix(Kinds[Kind].Heart, Hex(0xffe9a0), Chances.Range(0.2F, 0.9F))));
        Disc(P, std::cos(Angle) * Out, std::sin(Angle) * Out, Size * 0.022F, Size * 0.022F);
    }
    P.restore();
}

void PaintStem(QPainter& P, float X, float Y, float Size, float Haze, Dice& Chances) {
    const Rgb Green = Mix(Hex(0x2f6a2c), Hex(0x8fb860), Haze * 0.5F + Chances.Range(0, 0.3F));
    QPainterPath Stem(QPointF(X, Y));
    const float Sway = Chances.Range(-0.05F, 0.05F);
    Stem.quadTo(X + Sway, Y + 0.25F, X + Sway * 0.4F, 1.05F);
    P.setBrush(Qt::NoBrush);
    P.setPen(QPen(ToColor(Green), static_cast<qreal>(Size) * 0.10, Qt::SolidLine, Qt::RoundCap));
    P.drawPath(Stem);
    P.setPen(Qt::NoPen);
    for (const float Side : {-1.0F, 1.0F}) {
        const float Y0 = Y + Size * Chances.Range(2, 4);
        QPainterPath Leaf(QPointF(X + Sway * 0.4F, Y0));
        Leaf.quadTo(X + Side * Size * 0.5F, Y0 - Size * 1.1F, X + Side * Size * 1.4F,
                    Y0 - Size * 1.3F);
        Leaf.quadTo(X + Side * Size * 1.0F, Y0 - Size * 0.2F, X + Sway * 0.4F, Y0);
        P.fillPath(Leaf, ToColor(Green * Chances.Range(0.8F, 1.15F)));
    }
}

struct Bed {
    int Count;
    float Top, Bottom, Size, Soft;
};
constexpr Bed Beds[] = {{60, 0.34F, 0.62F, 0.032F, 0.010F},
                        {34, 0.44F, 0.78F, 0.052F, 0.005F},
                        {13, 0.34F, 0.80F, 0.088F, 0},
                        {3, 0.86F, 0.98F, 0.16F, 0.014F}};

void PaintBed(QPainter& P, const Bed& B, float Aspect, Dice& Chances) {
    for (int I = 0; I < B.Count; ++I) {
        const float X = Aspect * (static_cast<float>(I * 7 % B.Count) + Chances.Next()) /
                        static_cast<float>(B.Count);
        const float Y = Mix(B.Top, B.Bottom, Chances.Next()),
                    Size = B.Size * Chances.Range(0.7F, 1.15F);
        PaintStem(P, X, Y, Size, B.Soft * 60, Chances);
        PaintFlower(P, X, Y, Size, Chances.Below(5), Chances);
    }
}

void PaintGrass(QPainter& P, float Aspect, Dice& Chances) {
    P.setBrush(Qt::NoBrush);
    for (int I = 0; I < 700; ++I) {
        const float X = Chances.Range(0, Aspect), Tall = Chances.Range(0.1F, 0.32F);
        QPainterPath Blade(QPointF(X, 1.02F));
        Blade.quadTo(X + Chances.Range(-0.02F, 0.02F), 1 - Tall * 0.6F,
                     X + Chances.Range(-0.08F, 0.08F), 1 - Tall);
        P.setPen(QPen(ToColor(Mix(Hex(0x1f4f22), Hex(0x9cc25a), Chances.Next())), 0.003,
                      Qt::SolidLine, Qt::RoundCap));
        P.drawPath(Blade);
    }
    P.setPen(Qt::NoPen);
}

}  // namespace

QImage PaintGarden(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect();
    Dice Chances(422);
    Target.Shade([](float X, float Y, Rgb) { return GardenAt(X, Y); });
    Target.Add([&](QPainter& P) {
        for (int I = 0; I < 46; ++I)
            PaintBokeh(P, Chances.Range(0, Aspect), Chances.Range(0, 0.5F),
                       Chances.Range(0.015F, 0.055F), Hex(0xfff0b0), Chances.Range(0.05F, 0.26F));
    });
    Target.Paint([&](QPainter& P) { PaintGrass(P, Aspect, Chances); }, 0.006F);
    for (const Bed& B : Beds)
        Target.Paint([&](QPainter& P) { PaintBed(P, B, Aspect, Chances); }, B.Soft);
    Target.Shade([](float X, float Y, Rgb C) {
        return C + Hex(0xffdc90) * (0.22F * Bell(std::hypot(X - 1.1F, Y), 0.7F));
    });
    Target.Bloom(0.85F, 0.04F, 0.2F);
    return Target.Develop(0.012F, 0.3F);
}

}  // namespace neb::demo
