// An autumn wood and a winter evening.
#include <QLinearGradient>

#include "Props.h"
#include "Ranges.h"
#include "Scenes.h"

namespace neb::demo {
namespace {

constexpr float WoodLine = 0.66F;

struct WoodRow {
    float Foot;  // where the trunks stand
    float Thick;
    int Trunks;
    int Leaves;
    float Leaf;
    float Haze;
    std::uint32_t Seed;
};
constexpr WoodRow WoodRows[] = {{0.660F, 0.007F, 46, 11000, 0.0046F, 0.80F, 301},
                                {0.680F, 0.012F, 26, 10000, 0.0056F, 0.58F, 302},
                                {0.715F, 0.020F, 15, 9000, 0.0068F, 0.36F, 303},
                                {0.780F, 0.034F, 8, 6500, 0.0084F, 0.14F, 304},
                                {0.900F, 0.062F, 4, 3600, 0.0105F, 0.0F, 305}};

constexpr Rgb LeafColours[] = {Hex(0xd9541e), Hex(0xf08a24), Hex(0xf6b73c), Hex(0xb8361c),
                               Hex(0xffd35c), Hex(0xc9761f), Hex(0x9aa03a)};

Rgb WoodLight(float X, float Y, float SunX) {
    const float Away = std::hypot(X - SunX, (Y - 0.36F) * 0.9F);
    Rgb C = Mix(Hex(0xffe9b0), Hex(0xd98f3c), Smooth(0, 0.75F, Away));
    C = C * (1 + 0.12F * Fbm(X * 4, Y * 4, 4, 306));
    return C + Hex(0xfff4cc) * (0.35F * Bell(Away, 0.22F));
}

// A carpet of leaves, with a path that winds to the light.
Rgb WoodFloor(float X, float Y, float SunX) {
    const float Down = Y - WoodLine, Away = 0.2F / (Down + 0.02F);
    const float Grit =
        0.55F * Noise(X * Away * 9, Away * 26, 307) + 0.45F * Noise(X * Away * 22, Away * 60, 308);
    const float Middle =
        SunX + 0.16F * std::sin(Down * 7.5F) * Smooth(0, 0.3F, Down) - 0.12F * Down;
    const float Path =
        Smooth(1.0F, 0.6F, std::fabs(X - Middle) / (0.02F + 0.55F * Down) + 0.12F * Grit);
    Rgb C = Mix(Hex(0x6b2f14), Hex(0xd9812c), Clamp01(0.5F + 0.55F * Grit));
    C = Mix(C, Mix(Hex(0x8a5a34), Hex(0xe0b27c), Clamp01(0.5F + 0.35F * Grit)), 0.85F * Path);
    const float Bars = Smooth(-0.2F, 0.5F, Noise((X - SunX) / (Down + 0.25F) * 5, 3, 309));
    C = C * (0.50F + 0.55F * Bars) + Hex(0xffa040) * (0.16F * Bars * Bell(X - SunX, 0.5F));
    return Mix(C, Hex(0xffe0a0), 0.75F * Smooth(0.16F, 0, Down));
}

QPainterPath Trunk(float X, float Foot, float Thick, Dice& Chances) {
    const float Lean = Chances.Range(-0.04F, 0.04F), Bow = Chances.Range(-0.02F, 0.02F);
    QPainterPath Path(QPointF(X - Thick * 0.9F, Foot + Thick * 0.2F));
    Path.quadTo(X - Thick * 0.5F, Foot - Thick * 0.6F, X - Thick * 0.46F, Foot - 0.12F);
    Path.quadTo(X - Thick * 0.4F + Bow, Foot * 0.5F, X + Lean - Thick * 0.28F, -0.02F);
    Path.lineTo(X + Lean + Thick * 0.28F, -0.02F);
    Path.quadTo(X + Thick * 0.4F + Bow, Foot * 0.5F, X + Thick * 0.46F, Foot - 0.12F);
    Path.quadTo(X + Thick * 0.5F, Foot - Thick * 0.6F, X + Thick * 0.9F, Foot + Thick * 0.2F);
    return Path;
}

// A branch runs out thin, and so do the twigs that leave it.
void PaintBranch(QPainter& P, float X, float Y, float Thick, float Long, float Side, int Twigs,
                 Dice& Chances) {
    const float Ex = X + Side * Long, Ey = Y - Long * Chances.Range(0.45F, 0.85F);
    const float Mx = X + Side * Long * 0.5F, My = Y - Long * 0.12F;
    QPainterPath Arm(QPointF(X, Y - Thick * 0.5F));
    Arm.quadTo(Mx, My - Thick * 0.4F, Ex, Ey);
    Arm.quadTo(Mx, My + Thick * 0.4F, X, Y + Thick * 0.5F);
    P.drawPath(Arm);
    for (int I = 0; I < Twigs; ++I) {
        const float T = Chances.Range(0.3F, 0.8F), Keep = 1 - T;
        const float Tx = Keep * Keep * X + 2 * Keep * T * Mx + T * T * Ex;
        const float Ty = Keep * Keep * Y + 2 * Keep * T * My + T * T * Ey;
        PaintBranch(P, Tx, Ty, Thick * 0.5F * Keep + Thick * 0.12F,
                    Long * Chances.Range(0.3F, 0.5F), Side * Chances.Range(0.4F, 1.2F), Twigs / 2,
                    Chances);
    }
}

void PaintBranches(QPainter& P, float X, float Thick, Rgb Bark, Dice& Chances) {
    P.setBrush(ToColor(Bark));
    for (int I = 0; I < 7; ++I) {
        const float Side = Chances.Odds(0.5F) ? 1.0F : -1.0F, Y = Chances.Range(0.02F, 0.36F);
        PaintBranch(P, X, Y, Thick * Chances.Range(0.14F, 0.30F), Chances.Range(2, 4.6F) * Thick,
                    Side, 4, Chances);
    }
}

void PaintTrunks(QPainter& P, const WoodRow& Row, float Aspect, float SunX, Dice& Chances) {
    const float Gap = Aspect / static_cast<float>(Row.Trunks);
    for (int I = 0; I < Row.Trunks; ++I) {
        const float X = Gap * (static_cast<float>(I) + Chances.Range(0.1F, 0.9F));
        if (std::fabs(X - SunX) < (Row.Foot - 0.64F) * 0.75F) continue;
        const float Thick = Row.Thick * Chances.Range(0.6F, 1.25F);
        const Rgb Bark = Mix(Hex(0x2b1a14), Hex(0xf0c888), Row.Haze);
        const Rgb Edge = Mix(Hex(0x9a6a3c), Hex(0xffe4b0), Row.Haze);
        QLinearGradient Round(X - Thick * 0.5F, 0, X + Thick * 0.5F, 0);
        Round.setColorAt(0, ToColor(X > SunX ? Edge : Bark));
        Round.setColorAt(0.4, ToColor(Bark));
        Round.setColorAt(0.7, ToColor(Bark));
        Round.setColorAt(1, ToColor(X > SunX ? Bark : Edge));
        P.fillPath(Trunk(X, Row.Foot, Thick, Chances), Round);
        PaintBranches(P, X, Thick, Bark, Chances);
    }
}

// Leaves hang in clouds that thin out downwards, and let the light through in the middle.
void PaintLeaves(QPainter& P, const WoodRow& Row, float Aspect, float SunX, Dice& Chances) {
    for (int I = 0; I < Row.Leaves; ++I) {
        const float X = Chances.Range(-0.02F, Aspect + 0.02F),
                    Y = Square(Chances.Next()) * 0.60F - 0.02F;
        const float Room =
            Row.Haze < 0.5F ? 0.35F * Bell(X - SunX, 0.30F) * Smooth(0.02F, 0.3F, Y) : 0;
        if (Fbm(X * 3.1F, Y * 3.6F, 3, Row.Seed + 9) < -0.08F + Y * 0.55F + Room) continue;
        const float Glow = Bell(std::hypot(X - SunX, Y - 0.3F), 0.55F);
        Rgb C = LeafColours[Chances.Below(7)] * Chances.Range(0.55F, 1.0F);
        C = Mix(C, C * 1.25F + Hex(0x402808), Glow);
        C = Mix(C, Hex(0xffdf98), Row.Haze * 0.75F);
        P.setBrush(ToColor(C, Chances.Range(0.75F, 1)));
        const float R = Row.Leaf * Chances.Range(0.5F, 1.15F);
        Disc(P, X, Y, R, R * Chances.Range(0.45F, 0.9F));
    }
}

void PaintFallen(QPainter& P, float Aspect, Dice& Chances) {
    for (int I = 0; I < 3800; ++I) {
        const float Deep = std::sqrt(Chances.Next()), Y = WoodLine + 0.02F + Deep * 0.34F;
        const float R = 0.010F * (0.15F + Deep) * Chances.Range(0.5F, 1.2F);
        P.setBrush(ToColor(LeafColours[Chances.Below(6)] * Chances.Range(0.5F, 1.05F), 0.9F));
        Disc(P, Chances.Range(0, Aspect), Y, R, R * 0.45F);
    }
}

Rgb Sunbeams(float X, float Y, float SunX) {
    const float Dx = X - SunX, Dy = Y + 0.12F;
    const float Turn = std::atan2(Dx, Dy);
    const float Ray =
        Smooth(0.0F, 0.75F, Noise(Turn * 9, 1, 311) + 0.4F * Noise(Turn * 23, 2, 312));
    return Hex(0xffdc90) *
           (0.26F * Ray * Smooth(0.0F, 0.35F, Y) * Smooth(0.98F, 0.5F, Y) * Bell(Dx, 0.75F));
}

}  // namespace

QImage PaintAutumn(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect(), SunX = Aspect * 0.45F;
    Target.Shade([&](float X, float Y, Rgb) {
        return Y < WoodLine ? WoodLight(X, Y, SunX) : WoodFloor(X, Y, SunX);
    });
    Dice Chances(310);
    Target.Paint([&](QPainter& P) { PaintFallen(P, Aspect, Chances); });
    for (const WoodRow& Row : WoodRows) {
        Target.Paint([&](QPainter& P) {
            PaintTrunks(P, Row, Aspect, SunX, Chances);
            PaintLeaves(P, Row, Aspect, SunX, Chances);
        });
    }
    Target.Shade([&](float X, float Y, Rgb C) { return Screen(C, Sunbeams(X, Y, SunX)); });
    Target.Bloom(0.8F, 0.04F, 0.25F);
    return Target.Develop(0.016F, 0.4F);
}

namespace {

constexpr Stop WinterSky[] = {{0, Hex(0x35508c)},
                              {0.22F, Hex(0x7f86bc)},
                              {0.40F, Hex(0xe0a8b8)},
                              {0.52F, Hex(0xffd0b0)},
                              {0.6F, Hex(0xffe0bc)}};
constexpr Range SnowHills[] = {
    {0.53F, 0.17F, 1.5F, 1.0F, Hex(0xb9a9c8), Hex(0xf4cdc4), 0.16F, 0.55F, 321},
    {0.60F, 0.05F, 1.1F, 0.1F, Hex(0xb6b4d8), Hex(0xd8c4d8), 0.10F, 0.06F, 322},
    {0.70F, 0.07F, 0.8F, 0.05F, Hex(0xc2c6e6), Hex(0x9fb0dc), 0.18F, 0.05F, 323},
    {0.83F, 0.08F, 0.6F, 0.05F, Hex(0xdcdcf2), Hex(0x8ea4d6), 0.25F, 0.04F, 324},
};

// Snow lies on the sunny side of each tier; the tree beneath stays dark.
// One tier of boughs: drooping tips below, drawn together above.
struct Fringe {
    int Tips;
    float Hang;  // of what is between the tips, in parts of the height; above 0 round lumps
};

// One tier of boughs or of the snow on it: drawn together above, a fringe below.
QPainterPath Bough(float X, float Top, float Bottom, float Wide, Fringe Edge, Dice& Chances) {
    QPainterPath Path(QPointF(X, Top));
    const float Tall = Bottom - Top, Tips = static_cast<float>(Edge.Tips);
    Path.quadTo(X + Wide * 0.30F, Top + Tall * 0.55F, X + Wide, Bottom);
    for (int I = 1; I <= Edge.Tips; ++I) {
        const float T = static_cast<float>(I) / Tips, End = X + Wide * (1 - 2 * T);
        const float Sag = Tall * 0.22F * (1 - Square(1 - 2 * T)) * Chances.Range(0.4F, 1.2F);
        const float Hang = Tall * Edge.Hang * Chances.Range(0.6F, 1.3F);
        Path.quadTo(End + Wide / Tips, Bottom + Sag + Hang, End,
                    Bottom + (I < Edge.Tips ? Sag : 0));
    }
    Path.quadTo(X - Wide * 0.30F, Top + Tall * 0.55F, X, Top);
    return Path;
}

// Snow lies on each tier, bluish on the side away from the light; the needles show below it.
void PaintSnowFir(QPainter& P, float X, float Base, float High, Rgb Tree, Rgb Snow, Dice& Chances) {
    P.fillRect(QRectF(X - High * 0.02F, Base - High * 0.1F, High * 0.04F, High * 0.12F),
               ToColor(Tree * 0.8F));
    constexpr int Tiers = 8;
    for (int I = Tiers - 1; I >= 0; --I) {
        const float T = static_cast<float>(I) / Tiers,
                    Wide = High * (0.055F + 0.19F * T) * Chances.Range(0.9F, 1.1F);
        const float Top = Base - High * (1 - T * 0.86F), Bottom = Top + High * (0.13F + 0.09F * T);
        P.fillPath(Bough(X, Top, Bottom, Wide, {15, -0.14F}, Chances),
                   ToColor(Tree * Chances.Range(0.85F, 1.1F)));
        const float Off = High * 0.012F, Low = Bottom - High * (0.030F + 0.012F * T);
        QLinearGradient Light(X - Wide, 0, X + Wide, 0);
        Light.setColorAt(0, ToColor(Mix(Snow, Hex(0x7488c4), 0.75F)));
        Light.setColorAt(0.55, ToColor(Mix(Snow, Hex(0x9aaade), 0.35F)));
        Light.setColorAt(1, ToColor(Snow));
        P.fillPath(Bough(X + Off * 0.4F, Top - Off, Low, Wide * 0.84F, {5, 0.14F}, Chances), Light);
    }
}

void PaintSnowWood(Picture& Target, const Range& Hills, int Count, float High, float Haze,
                   std::uint32_t Seed) {
    Dice Chances(Seed);
    const Rgb Tree = Mix(Hex(0x16283c), Hex(0xd0b4c8), Haze),
              Snow = Mix(Hex(0xf6eefa), Hex(0xe8cfd8), Haze);
    Target.Paint([&](QPainter& P) {
        for (int I = 0; I < Count; ++I) {
            const float X = Chances.Range(-0.02F, Target.Aspect() + 0.02F);
            if (Noise(X * 2.3F, 5, Seed) < -0.05F) continue;
            const float Low = Square(Chances.Next()) * 0.05F;
            PaintSnowFir(P, X, RidgeAt(Hills, X) + 0.01F + Low, High * Chances.Range(0.5F, 1.15F),
                         Tree, Snow, Chances);
        }
    });
}

void PaintCabin(QPainter& P, float X, float Y, float Size) {
    Glow(P, X + Size * 0.5F, Y + Size * 0.10F, Size * 1.3F, Hex(0xffb050), 0.55F);
    P.fillPath(Shape({{X, Y}, {X, Y - Size * 0.40F}, {X + Size, Y - Size * 0.40F}, {X + Size, Y}}),
               ToColor(Hex(0x4a2f28)));
    P.setPen(QPen(ToColor(Hex(0x35201c)), static_cast<qreal>(Size) * 0.012));
    for (float Line = 0.06F; Line < 0.4F; Line += 0.065F)
        P.drawLine(QPointF(X, Y - Size * Line), QPointF(X + Size, Y - Size * Line));
    P.setPen(Qt::NoPen);
    P.setBrush(ToColor(Hex(0x5a3a34)));
    P.drawRect(QRectF(X + Size * 0.70F, Y - Size * 0.88F, Size * 0.11F, Size * 0.3F));
    QPainterPath Roof(QPointF(X - Size * 0.13F, Y - Size * 0.34F));
    Roof.quadTo(X + Size * 0.28F, Y - Size * 0.72F, X + Size * 0.5F, Y - Size * 0.84F);
    Roof.quadTo(X + Size * 0.72F, Y - Size * 0.72F, X + Size * 1.13F, Y - Size * 0.34F);
    Roof.quadTo(X + Size * 0.5F, Y - Size * 0.42F, X - Size * 0.13F, Y - Size * 0.34F);
    P.fillPath(Roof, ToColor(Hex(0xeae6f8)));
    for (const float Off : {0.12F, 0.68F}) {
        P.setBrush(ToColor(Hex(0xffd070)));
        P.drawRect(QRectF(X + Size * Off, Y - Size * 0.29F, Size * 0.19F, Size * 0.16F));
        P.setBrush(ToColor(Hex(0x4a2f28)));
        P.drawRect(
            QRectF(X + Size * (Off + 0.085F), Y - Size * 0.29F, Size * 0.016F, Size * 0.16F));
    }
    P.setBrush(ToColor(Hex(0x301a18)));
    P.drawRect(QRectF(X + Size * 0.41F, Y - Size * 0.31F, Size * 0.17F, Size * 0.31F));
}

void PaintSmoke(QPainter& P, float X, float Y, float Size) {
    Dice Chances(331);
    for (int I = 0; I < 26; ++I) {
        const float T = static_cast<float>(I) / 26;
        Glow(P, X + Size * (0.6F * T * T + Chances.Range(-0.05F, 0.05F)), Y - Size * 1.5F * T,
             Size * (0.06F + 0.26F * T), Hex(0xf0dce4), 0.32F * (1 - T));
    }
}

void PaintFlakes(QPainter& P, float Aspect, int Count, float Size, Dice& Chances) {
    for (int I = 0; I < Count; ++I)
        Glow(P, Chances.Range(0, Aspect), Chances.Next(), Size * Chances.Range(0.5F, 1.4F),
             Hex(0xffffff), Chances.Range(0.3F, 0.8F), 0.25F);
}

}  // namespace

QImage PaintWinter(QSize Size) {
    Picture Target(Size);
    const float Aspect = Target.Aspect(), SunX = Aspect * 0.80F;
    Target.Shade([&](float X, float Y, Rgb) {
        const float Away = std::hypot(X - SunX, Y - 0.45F);
        const float Wisp =
            Smooth(0.0F, 0.7F, Fbm(X * 1.4F + Y, Y * 8, 5, 325)) * Smooth(0.55F, 0.3F, Y);
        return Mix(Ramp(WinterSky, Y), Hex(0xffc8c8), 0.6F * Wisp) +
               Hex(0xffa870) * (0.35F * Bell(Away, 0.35F));
    });
    PaintRange(Target, SnowHills[0], SunX);
    PaintRange(Target, SnowHills[1], SunX);
    PaintSnowWood(Target, SnowHills[1], 150, 0.065F, 0.55F, 326);
    PaintRange(Target, SnowHills[2], SunX);
    PaintSnowWood(Target, SnowHills[2], 46, 0.15F, 0.22F, 327);
    PaintRange(Target, SnowHills[3], SunX);
    const float CabinX = Aspect * 0.53F, CabinY = RidgeAt(SnowHills[3], CabinX + 0.06F) + 0.03F;
    Target.Paint([&](QPainter& P) {
        PaintSmoke(P, CabinX + 0.11F, CabinY - 0.125F, 0.14F);
        PaintCabin(P, CabinX, CabinY, 0.145F);
        Dice Chances(328);
        for (const float X : {0.03F, 0.13F, 0.225F, 0.84F, 0.93F})
            PaintSnowFir(P, Aspect * X, 0.93F + Chances.Range(-0.06F, 0.03F),
                         Chances.Range(0.38F, 0.58F), Hex(0x12243a), Hex(0xfaf4fc), Chances);
    });
    Dice Chances(329);
    Target.Paint([&](QPainter& P) {
        PaintFlakes(P, Aspect, 420, 0.0028F, Chances);
        PaintFlakes(P, Aspect, 50, 0.008F, Chances);
    });
    Target.Bloom(0.85F, 0.04F, 0.2F);
    return Target.Develop(0.014F, 0.3F);
}

}  // namespace neb::demo
