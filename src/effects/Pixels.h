// Work on spans of pixels shared by the engines: mixing, shading, and sampling a picture between
// its pixels. All of it is whole-number arithmetic, so that the width of the machine's vectors
// does not change a bit; weights run from 0 to 256.
#pragma once

#include <QRgb>
#include <cstdint>
#include <cstring>
#include <vector>

#include "effects/Engine.h"
#include "effects/Fixed.h"

// Compiled a second time for wider vectors where the machine has them.
#if defined(__x86_64__) && defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && \
    !defined(__clang__)
#define NEB_WIDE __attribute__((target_clones("avx2", "default")))
#else
#define NEB_WIDE
#endif

namespace neb::effects {

inline void CopySpan(QRgb* Out, const QRgb* From, int Count) {
    if (Count > 0) std::memcpy(Out, From, static_cast<std::size_t>(Count) * sizeof(QRgb));
}
void FillSpan(QRgb* Out, QRgb Colour, int Count);
// Out = Old where the weight is 0, New where it is 256. Out may be Old or New.
void MixSpan(QRgb* Out, const QRgb* Old, const QRgb* New, int Weight, int Count);
void MixSpanWithColour(QRgb* Out, const QRgb* From, QRgb Colour, int Weight, int Count);

// The four parts of a pixel in four lanes of 16 bits, so that one multiplication does them all.
inline std::uint64_t Spread(QRgb C) {
    return ((std::uint64_t{C} & 0xFF00FF00u) << 24) | (C & 0x00FF00FFu);
}
inline QRgb Gather(std::uint64_t L) {
    return static_cast<QRgb>((L & 0x00FF00FFu) | ((L >> 24) & 0xFF00FF00u));
}
constexpr std::uint64_t kHalves = 0x0080008000800080u;
constexpr std::uint64_t kLaneBytes = 0x00FF00FF00FF00FFu;

inline std::uint64_t MixLanes(std::uint64_t A, std::uint64_t B, int Weight) {
    const auto W = static_cast<std::uint64_t>(Weight);
    return ((A * (256 - W) + B * W + kHalves) >> 8) & kLaneBytes;
}
inline QRgb Mix(QRgb A, QRgb B, int Weight) {
    return Gather(MixLanes(Spread(A), Spread(B), Weight));
}

constexpr QRgb kBlack = 0xFF000000u;

inline QRgb Darken(QRgb C, int Darkness) {
    const std::uint64_t Lanes = Spread(C) * static_cast<std::uint64_t>(256 - Darkness) + kHalves;
    return Gather((Lanes >> 8) & kLaneBytes) | kBlack;
}

// Two pixels side by side in eight lanes.
using PairLanes = std::uint16_t __attribute__((vector_size(16)));
using PairBytes = std::uint8_t __attribute__((vector_size(8)));
using PairHalves = std::uint64_t __attribute__((vector_size(16)));

inline PairLanes LoadPair(const QRgb* P) {
    PairBytes B;
    std::memcpy(&B, P, sizeof B);
    return __builtin_convertvector(B, PairLanes);
}

QRgb SampleThin(const Picture& P, int U, int V);

// The pixel at a place between pixels; U and V of One, pixel centres at whole numbers. Places
// outside take the nearest edge pixel. The picture is at least 2 by 2.
inline QRgb SampleWithin(const Picture& P, int U, int V) {
    U = Clamp(U, 0, (P.Width - 1) << 16);
    V = Clamp(V, 0, (P.Height - 1) << 16);
    const int X = (U >> 16) - ((U >> 16) == P.Width - 1);
    const int Y = (V >> 16) - ((V >> 16) == P.Height - 1);
    const auto Right = static_cast<std::uint64_t>((U - (X << 16)) >> 8);
    const auto Low = static_cast<std::uint16_t>((V - (Y << 16)) >> 8);
    const auto High = static_cast<std::uint16_t>(256 - Low);
    const QRgb* Top = P.Row(Y) + X;
    const PairLanes Upright = (LoadPair(Top) * High + LoadPair(Top + P.Stride) * Low + 128) >> 8;
    constexpr std::uint64_t Four = 0x0001000100010001u;
    const PairHalves Sides = {(256 - Right) * Four, Right * Four};
    const PairLanes Weighed = Upright * reinterpret_cast<PairLanes>(Sides);
    const auto Swapped = __builtin_shufflevector(Weighed, Weighed, 4, 5, 6, 7, 0, 1, 2, 3);
    const PairBytes Bytes = __builtin_convertvector((Weighed + Swapped + 128) >> 8, PairBytes);
    QRgb Out;
    std::memcpy(&Out, &Bytes, sizeof Out);
    return Out;
}
// The same for pictures of any size.
inline QRgb Sample(const Picture& P, int U, int V) {
    return P.Width > 1 && P.Height > 1 ? SampleWithin(P, U, V) : SampleThin(P, U, V);
}
// The same where one pixel of the frame covers Du by Dv of the picture: pictures that shrink
// are averaged, so that nothing sparkles.
QRgb SampleArea(const Picture& P, int U, int V, int Du, int Dv);
// A run of a row of such places: U grows by Du from pixel to pixel, V stays.
void SampleRow(QRgb* Out, const Picture& P, std::int64_t U, int Du, int V, int Dv, int Count);
void DarkenSpan(QRgb* Out, int Darkness, int Count);
// How much of a pixel at Place lies within 0..Length, both of One: 0..256, for smooth edges.
inline int Coverage(int Place, int Length) {
    const int Inside = Place < Length - Place ? Place : Length - Place;
    return Clamp((Inside + One / 2) >> 8, 0, 256);
}

// Room for one line of intermediate values, kept by the thread from frame to frame.
template <typename T>
T* Scratch(int Count) {
    thread_local std::vector<T> Room;
    if (Room.size() < static_cast<std::size_t>(Count)) Room.resize(static_cast<std::size_t>(Count));
    return Room.data();
}

}  // namespace neb::effects
