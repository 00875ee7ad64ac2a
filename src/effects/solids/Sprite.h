// A rectangle of a picture drawn anywhere in a frame: moved, turned and scaled, with smooth edges
// and a soft shadow about it. Used by the engines of flying tiles and of turning pictures.
#pragma once

#include <QRect>

#include "effects/drawing/HalfSizes.h"

namespace neb::effects {

// Where a rectangle goes. Places are pixels of One, angles of One turn.
struct SpritePlace {
    std::int64_t X, Y;  // of its middle, in the frame
    int Angle = 0;      // clockwise
    int Size = One;     // of One; nothing is drawn below One / 256
};

class Sprite {
  public:
    Sprite() = default;
    // The picture's smaller versions are read where the size asks for it.
    Sprite(const HalfSizes& Source, const QRect& Part, const SpritePlace& Place);

    // The rows of the frame that it may touch, with a shadow of such width.
    bool Touches(int Y, int Shadow = 0) const {
        return Y >= mTop - Shadow && Y <= mBottom + Shadow;
    }
    int Top() const { return mTop; }
    int Bottom() const { return mBottom; }

    static constexpr int kBand = 32;  // the most rows that are drawn at once
    // Draws what lies in the rows Y0 up to Y1, at most kBand, of the frame.
    void DrawRows(const Frame& F, int Y0, int Y1) const;
    // The pixels of a row that it hides: what lies behind them need not be drawn.
    void FindHidden(int Y, int Width, int& From, int& To) const;
    // Darkens a row about it, most at its edges. Wide: pixels, Depth: 0..256; Width: of the frame.
    void DrawShadow(QRgb* Out, int Y, int Width, int Wide, int Depth) const;

  private:
    // One direction of the rectangle along a row of the frame.
    struct Axis {
        std::int64_t Start;  // the place at pixel 0, counted from the rectangle's first side
        int Step;            // from pixel to pixel
        int Length;          // of the rectangle
    };
    struct Run {
        int From, To;
    };
    // What a row of the frame shows of it: pixels at all, and pixels in full.
    struct Line {
        Axis A, B;
        Run Seen, Whole;
    };
    Line LineAt(int Y, int Width) const;
    void DrawEdges(QRgb* Out, const Line& L, int Width) const;
    Axis AcrossAt(int Y) const;
    Axis DownAt(int Y) const;
    // The pixels of a row whose places lie within the rectangle made larger by Margin all round.
    static Run Inside(const Axis& A, const Axis& B, std::int64_t Margin, int Width);
    int CoverAt(const Axis& A, int X) const;
    bool CopyWhole(QRgb* Out, int U, int V, int Du, int Dv, int Count) const;
    void Read(QRgb* Out, const Axis& A, const Axis& B, Run R) const;

    const HalfSizes* mSource = nullptr;
    int mTop = 0, mBottom = -1;
    std::int64_t mX = 0, mY = 0;
    int mCos = 0, mSin = 0;  // steps in the picture for one pixel to the right
    int mSize = One, mGrain = One;
    int mLeft = 0, mUp = 0, mWide = 0, mTall = 0;  // of the rectangle in the picture, of One
};

}  // namespace neb::effects
