#include "Picture.h"

#include "Noise.h"

namespace neb::demo {
namespace {

// Straight up to 0.8, then ever flatter: highlights keep their colour.
float Fold(float V) {
    if (V <= 0.8F) return std::max(V, 0.0F);
    return 1 - 0.2F * std::exp(-(V - 0.8F) / 0.2F);
}

int ToByte(float V) {
    return static_cast<int>(std::clamp(Fold(V) * 255 + 0.5F, 0.0F, 255.0F));
}

Rgb FromPixel(QRgb Pixel) {
    return Hex(Pixel & 0xffffffU);
}

// Scaled down and up again: a cheap soft blur that keeps transparency right.
QImage Softened(const QImage& Image, int Radius) {
    const QSize Small(std::max(1, Image.width() / Radius), std::max(1, Image.height() / Radius));
    const QImage Reduced = Image.scaled(Small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QSize Middle = (Small + Image.size()) / 2;
    return Reduced.scaled(Middle, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(Image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

Rgb Ramp(std::span<const Stop> Stops, float T) {
    for (size_t I = 1; I < Stops.size(); ++I) {
        if (T > Stops[I].At) continue;
        const Stop& Before = Stops[I - 1];
        const float Share = Clamp01((T - Before.At) / (Stops[I].At - Before.At));
        return Mix(Before.Colour, Stops[I].Colour, Share);
    }
    return Stops.back().Colour;
}

QColor ToColor(Rgb Colour, float Alpha) {
    return QColor(ToByte(Colour.R), ToByte(Colour.G), ToByte(Colour.B),
                  static_cast<int>(Clamp01(Alpha) * 255));
}

Picture::Picture(QSize Size)
    : mWidth(Size.width()),
      mHeight(Size.height()),
      mPixels(static_cast<size_t>(mWidth) * static_cast<size_t>(mHeight)) {}

Rgb Picture::Sample(float X, float Y) const {
    const float Px = std::clamp(X / Unit() - 0.5F, 0.0F, static_cast<float>(mWidth - 1) - 0.001F);
    const float Py = std::clamp(Y / Unit() - 0.5F, 0.0F, static_cast<float>(mHeight - 1) - 0.001F);
    const int Ix = std::max(0, std::min(static_cast<int>(Px), mWidth - 2));
    const int Iy = std::max(0, std::min(static_cast<int>(Py), mHeight - 2));
    const float U = Px - static_cast<float>(Ix), V = Py - static_cast<float>(Iy);
    return Mix(Mix(At(Ix, Iy), At(Ix + 1, Iy), U), Mix(At(Ix, Iy + 1), At(Ix + 1, Iy + 1), U), V);
}

QImage Picture::Layer(const PaintCall& Call, float Soft) const {
    QImage Image(mWidth, mHeight, QImage::Format_ARGB32_Premultiplied);
    Image.fill(Qt::transparent);
    QPainter Painter(&Image);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(Qt::NoPen);
    Painter.scale(mHeight, mHeight);
    Call(Painter);
    Painter.end();
    const int Radius = static_cast<int>(Soft / Unit());
    return Radius < 2 ? Image : Softened(Image, Radius);
}

void Picture::Paint(const PaintCall& Call, float Soft) {
    const QImage Image = Layer(Call, Soft);
    for (int Row = 0; Row < mHeight; ++Row) {
        const QRgb* Line = reinterpret_cast<const QRgb*>(Image.constScanLine(Row));
        for (int Column = 0; Column < mWidth; ++Column) {
            if (!qAlpha(Line[Column])) continue;
            Rgb& Pixel = At(Column, Row);
            const float Rest = 1 - static_cast<float>(qAlpha(Line[Column])) / 255.0F;
            Pixel = Pixel * Rest + FromPixel(Line[Column]);
        }
    }
}

void Picture::Add(const PaintCall& Call, float Soft) {
    const QImage Image = Layer(Call, Soft);
    for (int Row = 0; Row < mHeight; ++Row) {
        const QRgb* Line = reinterpret_cast<const QRgb*>(Image.constScanLine(Row));
        for (int Column = 0; Column < mWidth; ++Column)
            if (qAlpha(Line[Column])) At(Column, Row) = At(Column, Row) + FromPixel(Line[Column]);
    }
}

void Picture::BoxRows(int Radius) {
    std::vector<Rgb> Line(static_cast<size_t>(mWidth));
    const float Share = 1.0F / static_cast<float>(2 * Radius + 1);
    for (int Row = 0; Row < mHeight; ++Row) {
        std::copy_n(&At(0, Row), mWidth, Line.begin());
        const auto Clamped = [&](int I) {
            return Line[static_cast<size_t>(std::clamp(I, 0, mWidth - 1))];
        };
        Rgb Sum;
        for (int I = -Radius; I <= Radius; ++I) Sum = Sum + Clamped(I);
        for (int Column = 0; Column < mWidth; ++Column) {
            At(Column, Row) = Sum * Share;
            Sum = Sum + Clamped(Column + Radius + 1) - Clamped(Column - Radius);
        }
    }
}

void Picture::Turn() {
    std::vector<Rgb> Turned(mPixels.size());
    for (int Row = 0; Row < mHeight; ++Row)
        for (int Column = 0; Column < mWidth; ++Column)
            Turned[static_cast<size_t>(Column * mHeight + Row)] = At(Column, Row);
    mPixels.swap(Turned);
    std::swap(mWidth, mHeight);
}

void Picture::Blur(float Radius) {
    const int Pixels = static_cast<int>(Radius / Unit() / 2);
    if (Pixels < 1) return;
    for (int Direction = 0; Direction < 2; ++Direction) {
        for (int Pass = 0; Pass < 3; ++Pass) BoxRows(Pixels);
        Turn();
    }
}

void Picture::Bloom(float Threshold, float Radius, float Strength) {
    constexpr int Step = 4;
    Picture Small(QSize(std::max(2, mWidth / Step), std::max(2, mHeight / Step)));
    const float Span = static_cast<float>(Step) * Unit();
    Small.Shade([&](float X, float Y, Rgb) {
        const float Px = X / Small.Unit() * Span, Py = Y / Small.Unit() * Span;
        const Rgb C = (Sample(Px - Unit(), Py - Unit()) + Sample(Px + Unit(), Py - Unit()) +
                       Sample(Px - Unit(), Py + Unit()) + Sample(Px + Unit(), Py + Unit())) *
                      0.25F;
        return C * Smooth(Threshold, Threshold + 0.3F, std::max({C.R, C.G, C.B}));
    });
    Small.Blur(Radius);
    Shade([&](float X, float Y, Rgb C) {
        return C + Small.Sample(X / Span * Small.Unit(), Y / Span * Small.Unit()) * Strength;
    });
}

QImage Picture::Develop(float Grain, float Vignette) const {
    QImage Image(mWidth, mHeight, QImage::Format_RGB32);
    const float Middle = Aspect() / 2, Reach = Square(Middle) + 0.25F;
    for (int Row = 0; Row < mHeight; ++Row) {
        QRgb* Line = reinterpret_cast<QRgb*>(Image.scanLine(Row));
        const float Dy = (static_cast<float>(Row) + 0.5F) * Unit() - 0.5F;
        for (int Column = 0; Column < mWidth; ++Column) {
            const float Dx = (static_cast<float>(Column) + 0.5F) * Unit() - Middle;
            const float Away = (Square(Dx) + Square(Dy)) / Reach;
            const Rgb C = At(Column, Row) * (1 - Vignette * Away * Away);
            const float Speck = (Chance(Column, Row, 77) + Chance(Column, Row, 78) - 1) * Grain;
            Line[Column] = qRgb(ToByte(C.R + Speck), ToByte(C.G + Speck), ToByte(C.B + Speck));
        }
    }
    return Image;
}

}  // namespace neb::demo
