// A picture while it is painted: floating-point light, so that glow and haze stay smooth.
// The scenes work in units of its height: y runs from 0 (top) to 1, x from 0 to Aspect().
#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>
#include <functional>
#include <vector>

#include "Colour.h"

namespace neb::demo {

using PaintCall = std::function<void(QPainter&)>;

QColor ToColor(Rgb Colour, float Alpha = 1);

class Picture {
  public:
    explicit Picture(QSize Size);

    int Width() const { return mWidth; }
    int Height() const { return mHeight; }
    float Aspect() const { return static_cast<float>(mWidth) / static_cast<float>(mHeight); }
    float Unit() const { return 1.0F / static_cast<float>(mHeight); }  // one pixel

    Rgb& At(int Column, int Row) { return mPixels[static_cast<size_t>(Row * mWidth + Column)]; }
    const Rgb& At(int Column, int Row) const {
        return mPixels[static_cast<size_t>(Row * mWidth + Column)];
    }
    // The light at a place between pixels; beyond the border the border's.
    Rgb Sample(float X, float Y) const;

    // Calls Colour(x, y, the light so far) for every pixel and keeps what it returns.
    template <class F>
    void Shade(F Colour) {
        ShadeRows(0, 1, Colour);
    }
    // The same for the rows from y = Top to Bottom only.
    template <class F>
    void ShadeRows(float Top, float Bottom, F Colour);

    // Paints on top with a painter in the units above. Soft is a blur of the layer, in heights.
    void Paint(const PaintCall& Call, float Soft = 0);
    void Add(const PaintCall& Call, float Soft = 0);  // as light on what is there
    void Blur(float Radius);                          // in heights
    // What is brighter than Threshold glows around.
    void Bloom(float Threshold, float Radius, float Strength);

    // The end: darker corners, the grain of a film, light above 1 folded back. RGB32.
    QImage Develop(float Grain = 0.012F, float Vignette = 0.25F) const;

  private:
    QImage Layer(const PaintCall& Call, float Soft) const;
    void BoxRows(int Radius);
    void Turn();

    int mWidth;
    int mHeight;
    std::vector<Rgb> mPixels;
};

template <class F>
void Picture::ShadeRows(float Top, float Bottom, F Colour) {
    const float Scale = Unit();
    const int First = std::clamp(static_cast<int>(Top / Scale), 0, mHeight);
    const int Last = std::clamp(static_cast<int>(std::ceil(Bottom / Scale)), 0, mHeight);
    for (int Row = First; Row < Last; ++Row) {
        const float Y = (static_cast<float>(Row) + 0.5F) * Scale;
        for (int Column = 0; Column < mWidth; ++Column) {
            Rgb& Pixel = At(Column, Row);
            Pixel = Colour((static_cast<float>(Column) + 0.5F) * Scale, Y, Pixel);
        }
    }
}

}  // namespace neb::demo
