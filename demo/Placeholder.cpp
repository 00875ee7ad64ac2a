#include "Placeholder.h"

#include <QPainterPath>

#include "Props.h"

namespace neb::demo {
namespace {

// The letters are strokes of our own: a build machine may have no font at all. Each is drawn
// in a box of height 1, its foot at 0, small letters reaching up to -0.68.
struct Letter {
    char Name;
    float Wide;
    void (*Draw)(QPainterPath& Path);
};

void DrawBowl(QPainterPath& Path, double From, double Sweep) {
    const QRectF Box(0, -0.68, 0.62, 0.68);
    Path.arcMoveTo(Box, From);
    Path.arcTo(Box, From, Sweep);
}

void DrawStem(QPainterPath& Path, double X, double Top, double Bottom) {
    Path.moveTo(X, Top);
    Path.lineTo(X, Bottom);
}

void DrawN(QPainterPath& Path) {
    Path.moveTo(0, 0);
    Path.lineTo(0, -1);
    Path.lineTo(0.66, 0);
    Path.lineTo(0.66, -1);
}

void DrawE(QPainterPath& Path) {
    Path.moveTo(0.02, -0.36);
    Path.lineTo(0.60, -0.36);
    DrawBowl(Path, 4, 315);
}

void DrawT(QPainterPath& Path) {
    Path.moveTo(0.16, -0.92);
    Path.lineTo(0.16, -0.16);
    Path.quadTo(0.16, 0, 0.36, 0);
    Path.moveTo(0, -0.66);
    Path.lineTo(0.36, -0.66);
}

void DrawU(QPainterPath& Path) {
    Path.moveTo(0, -0.68);
    Path.lineTo(0, -0.26);
    Path.cubicTo(0, 0.08, 0.54, 0.08, 0.54, -0.26);
    DrawStem(Path, 0.54, -0.68, 0);
}

void DrawR(QPainterPath& Path) {
    DrawStem(Path, 0, -0.68, 0);
    Path.moveTo(0, -0.40);
    Path.quadTo(0.06, -0.70, 0.34, -0.67);
}

void DrawP(QPainterPath& Path) {
    DrawStem(Path, 0, -0.68, 0.28);
    DrawBowl(Path, 0, 360);
}

void DrawI(QPainterPath& Path) {
    DrawStem(Path, 0, -0.68, 0);
    DrawStem(Path, 0, -0.95, -0.945);
}

constexpr Letter Letters[] = {{'N', 0.66F, DrawN},
                              {'o', 0.62F, [](QPainterPath& Path) { DrawBowl(Path, 0, 360); }},
                              {'p', 0.62F, DrawP},
                              {'i', 0.0F, DrawI},
                              {'c', 0.56F, [](QPainterPath& Path) { DrawBowl(Path, 45, 270); }},
                              {'t', 0.36F, DrawT},
                              {'u', 0.54F, DrawU},
                              {'r', 0.34F, DrawR},
                              {'e', 0.60F, DrawE},
                              {' ', 0.24F, [](QPainterPath&) {}}};

QPainterPath Lettering(const char* Text) {
    constexpr double Gap = 0.26;
    QPainterPath Line;
    double X = 0;
    for (const char* Next = Text; *Next; ++Next)
        for (const Letter& L : Letters) {
            if (L.Name != *Next) continue;
            QPainterPath Path;
            L.Draw(Path);
            Line.addPath(Path.translated(X, 0));
            X += static_cast<double>(L.Wide) + Gap;
        }
    return Line.translated((Gap - X) / 2, 0);
}

void PaintWords(QPainter& P, double X, double Y, double High) {
    P.save();
    P.translate(X, Y);
    P.scale(High, High);
    P.setBrush(Qt::NoBrush);
    P.setPen(QPen(ToColor(Hex(0x9fa1a4)), 0.105, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    P.drawPath(Lettering("No picture"));
    P.restore();
}

void PaintScene(QPainter& P, const QRectF& Box) {
    P.setPen(QPen(ToColor(Hex(0x7b7d80)), 0.007, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    P.setBrush(Qt::NoBrush);
    const auto At = [&](double X, double Y) {
        return QPointF(Box.left() + Box.width() * X, Box.top() + Box.height() * Y);
    };
    QPainterPath Hills(At(0.10, 0.82));
    Hills.lineTo(At(0.36, 0.44));
    Hills.lineTo(At(0.53, 0.66));
    Hills.lineTo(At(0.66, 0.52));
    Hills.lineTo(At(0.90, 0.82));
    P.drawPath(Hills);
    P.drawEllipse(At(0.70, 0.28), 0.026, 0.026);
    P.setPen(Qt::NoPen);
}

void PaintFrame(QPainter& P, float Middle) {
    const QRectF Outer(Middle - 0.25F, 0.22, 0.50, 0.38);
    P.setBrush(ToColor(Hex(0x343537)));
    P.drawRoundedRect(Outer, 0.016, 0.016);
    P.setPen(QPen(ToColor(Hex(0x626467)), 0.0045));
    P.drawRoundedRect(Outer, 0.016, 0.016);
    const QRectF Inner = Outer.adjusted(0.035, 0.035, -0.035, -0.035);
    P.setBrush(ToColor(Hex(0x2a2b2c)));
    P.drawRect(Inner);
    PaintScene(P, Inner);
}

}  // namespace

QImage PaintPlaceholder(QSize Size) {
    Picture Target(Size);
    const float Middle = Target.Aspect() / 2;
    Target.Shade([&](float X, float Y, Rgb) {
        const float Away = std::hypot(X - Middle, Y - 0.45F);
        return Mix(Hex(0x3d3e40), Hex(0x262728), Smooth(0, 0.8F, Away));
    });
    Target.Paint(
        [&](QPainter& P) {
            P.setBrush(QColor(0, 0, 0, 110));
            P.drawRoundedRect(QRectF(Middle - 0.25F, 0.235, 0.50, 0.385), 0.02, 0.02);
        },
        0.02F);
    Target.Paint([&](QPainter& P) {
        PaintFrame(P, Middle);
        PaintWords(P, static_cast<double>(Middle), 0.745, 0.052);
    });
    return Target.Develop(0.006F, 0);
}

}  // namespace neb::demo
