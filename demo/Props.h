// Things that stand in more than one of the painted pictures: trees, birds, skies, stars.
// Places and sizes are in heights of the picture, as in Picture.h.
#pragma once

#include <QPainterPath>

#include "Noise.h"
#include "Picture.h"

namespace neb::demo {

// A fir standing on Base, of the given height, no two quite alike.
QPainterPath Fir(float X, float Base, float High, Dice& Chances);
// A row of firs of various heights along a line of ground.
QPainterPath FirRow(float From, float To, float Gap, float High,
                    const std::function<float(float X)>& Ground, Dice& Chances);
// A gull seen from afar, wings up.
QPainterPath Bird(float X, float Y, float Span, float Lift);
// A polygon from pairs of x and y.
QPainterPath Shape(std::initializer_list<QPointF> Corners);
// A disc that fades towards its rim; Core is the share of full strength.
QBrush GlowBrush(float X, float Y, float Radius, Rgb Colour, float Alpha, float Core = 0);
void Glow(QPainter& Painter, float X, float Y, float Radius, Rgb Colour, float Alpha,
          float Core = 0);
void Disc(QPainter& Painter, float X, float Y, float Rx, float Ry);

// Light of the stars at a place; Density is the share of cells that hold one.
Rgb Stars(float X, float Y, float Density, std::uint32_t Seed);

// The height of a mountain range's outline at X, about -0.5 to 1.
float Outline(float X, float Rough, std::uint32_t Seed);

}  // namespace neb::demo
