// The light on sheets of paper: shadows that fade out, the white back of a picture, flat and bent.
// Used by the engines that turn pages and roll pictures up.
#pragma once

#include "effects/drawing/Pixels.h"

namespace neb::effects {

constexpr QRgb kPaper = 0xFFF4F1EAu;
constexpr int kThrough = 51;  // of 256: how much of a picture shows on its back
constexpr int kFlatLight = 244;

// The back of the sheet where it lies flat; its brightness on a curl by the height there, of One.
QRgb BackOf(QRgb C);
void BackSpan(QRgb* Out, int Count);
inline int LightAt(int Height) {
    const int Down = (Height >> 8) * (Height >> 8) >> 8;
    return kFlatLight - (Down * 120 >> 8);
}

// A bent back that bears the colours From and has Light of 256, laid over what Out has.
void CurlSpan(QRgb* Out, const QRgb* From, const int* Light, const int* Seen, int Count);

// Darkens by Most (of One) where the way is 0, less and less towards 256 * One, where it ends; the
// way grows by Step from pixel to pixel.
void FadeSpan(QRgb* Out, int Way, int Step, int Most, int Count);

}  // namespace neb::effects
