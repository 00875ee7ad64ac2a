// Pictures made larger and smaller row by row: places and shares are reckoned once a frame for
// all columns, then whole rows are mixed. Growing is smooth, shrinking (by up to two; the rest
// is done by HalfSizes) averages all it passes over. Used by the zooms.
#pragma once

#include <QRgb>
#include <cstdint>

#include "effects/drawing/Fixed.h"

namespace neb::effects {

// One direction of a picture that lies scaled in a frame; lengths of One.
struct ScaledAxis {
    std::int64_t Start = 0;   // in the frame
    std::int64_t Length = 0;  // in the frame, above 0
    int Size = 1;             // pixels of the picture
    int Level = 0;            // how often it has been halved
    int Pixels = 1;           // what is left of them
    bool Mirrored = false;    // goes on beyond its ends as in a mirror, else with its last pixel

    bool IsWhole() const { return Start == 0 && Length == std::int64_t{Size} << 16; }
    // How many of the picture's pixels lie in one of the frame's, of One.
    std::int64_t Ratio() const { return (std::int64_t{Size} << 32) / Length; }
    // How much of a pixel lies within it, 0..256.
    int CoverageAt(int Place) const;
    // The frame's pixels, of Count, that it touches, and those that it fills.
    int TouchedFrom(int Count) const;
    int TouchedTo(int Count) const;
    int FilledFrom(int Count) const;
    int FilledTo(int Count) const;
};

constexpr int kTaps = 4;
constexpr int kShares = 1 << 14;

// What one pixel of the frame is made of: neighbours from Start on and the share of each, of
// kShares together. Start is 0 where there are fewer than four.
struct Taps {
    int Start;
    std::int16_t Share[kTaps];
};

// Finds the taps of the pixels of a frame along one direction.
class TapFinder {
  public:
    TapFinder() = default;
    explicit TapFinder(const ScaledAxis& Axis);
    Taps At(int Place) const;

  private:
    int Inside(int Place) const;

    ScaledAxis mAxis;
    std::int64_t mStep = 0;    // pixels of the picture in one of the frame, of 2^24
    std::int64_t mHalf = One;  // how far one pixel of the frame reads to either side, of One
};

// The taps of the columns of a frame, laid out for ScaleRow.
struct ColumnTaps {
    int* Start;
    std::int16_t* Share;  // kTaps for each column
};
void FillColumns(const ColumnTaps& Columns, const ScaledAxis& Axis, int X0, int X1);

// The columns X0..X1 to Out[0..]; Row has at least four pixels.
void ScaleRow(QRgb* Out, const QRgb* Row, const ColumnTaps& Columns, int X0, int X1);
// The mean of four rows, Weights of 256 together.
void MixRows(QRgb* Out, const QRgb* const* Rows, const int* Weights, int Count);

}  // namespace neb::effects
