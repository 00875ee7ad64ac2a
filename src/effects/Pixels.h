// Work on spans of pixels shared by the engines: mixing, shading, and sampling a picture between
// its pixels. All of it is whole-number arithmetic; weights run from 0 to 256.
#pragma once

#include <QRgb>
#include <cstdint>
#include <cstring>
#include <vector>

#include "effects/Engine.h"
#include "effects/Fixed.h"

namespace neb::effects {

inline void CopySpan(QRgb* Out, const QRgb* From, int Count) {
    if (Count > 0) std::memcpy(Out, From, static_cast<std::size_t>(Count) * sizeof(QRgb));
}
void FillSpan(QRgb* Out, QRgb Colour, int Count);
// Out = Old where the weight is 0, New where it is 256.
void MixSpan(QRgb* Out, const QRgb* Old, const QRgb* New, int Weight, int Count);
void MixSpanWithColour(QRgb* Out, const QRgb* From, QRgb Colour, int Weight, int Count);

// The four parts of a pixel in four lanes of 16 bits, so that one multiplication does them all.
inline std::uint64_t Spread(QRgb C) {
    return ((std::uint64_t{C} & 0xFF00FF00u) << 24) | (C & 0x00FF00FFu);
}
inline QRgb Gather(std::uint64_t L) {
    return static_cast<QRgb>((L & 0x00FF00FFu) | ((L >> 24) & 0xFF00FF00u));
}
inline std::uint64_t MixLanes(std::uint64_t A, std::uint64_t B, int Weight) {
    const auto W = static_cast<std::uint64_t>(Weight);
    return ((A * (256 - W) + B * W + 0x0080008000800080u) >> 8) & 0x00FF00FF00FF00FFu;
}
inline QRgb Mix(QRgb A, QRgb B, int Weight) {
    return Gather(MixLanes(Spread(A), Spread(B), Weight));
}

constexpr QRgb kBlack = 0xFF000000u;

// The pixel at a place between pixels; U and V of One, pixel centres at whole numbers. Places
// outside take the nearest edge pixel.
QRgb Sample(const Picture& P, int U, int V);
// The same where one pixel of the frame covers Du by Dv of the picture: pictures that shrink
// are averaged, so that nothing sparkles.
QRgb SampleArea(const Picture& P, int U, int V, int Du, int Dv);
// How much of a pixel at Place lies within 0..Length, both of One: 0..256, for smooth edges.
int Coverage(int Place, int Length);

// Room for one line of intermediate values, kept by the thread from frame to frame.
template <typename T>
T* Scratch(int Count) {
    thread_local std::vector<T> Room;
    if (Room.size() < static_cast<std::size_t>(Count)) Room.resize(static_cast<std::size_t>(Count));
    return Room.data();
}

}  // namespace neb::effects
