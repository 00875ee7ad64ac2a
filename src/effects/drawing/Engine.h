// What every effect engine is made of: the pictures of one frame, and an object prepared once
// for a pair of pictures that draws any progress in any order. Used by the engines and by
// Transition.
#pragma once

#include <QRgb>
#include <QSize>
#include <functional>
#include <memory>

namespace neb::effects {

// A picture of 32-bit pixels; Stride is the way from row to row in pixels.
struct Picture {
    const QRgb* Bits = nullptr;
    qsizetype Stride = 0;
    int Width = 0;
    int Height = 0;
    const QRgb* Row(int Y) const { return Bits + Y * Stride; }
};

// The two pictures of a transition, of one size; they stay as they are while an engine lives, so
// that it may prepare from them what its frames need.
struct Pair {
    Picture Old;
    Picture New;
    QSize Size() const { return {Old.Width, Old.Height}; }
};

// One frame to be drawn. Both pictures and the frame are of one size.
struct Frame {
    Picture Old;
    Picture New;
    QRgb* Bits = nullptr;
    qsizetype Stride = 0;
    int Width = 0;
    int Height = 0;
    int Progress = 0;  // of One; strictly between 0 and One
    QRgb* Row(int Y) const { return Bits + Y * Stride; }
};

class Engine {
  public:
    virtual ~Engine() = default;
    // Draws the rows Y0 up to but not including Y1 of the frame; rows do not depend on which
    // others are drawn with them, so that several threads may share a frame.
    virtual void Draw(const Frame& F, int Y0, int Y1) const = 0;
};

using EngineMaker = std::function<std::unique_ptr<Engine>(const Pair&)>;

// An engine with its parameters: what a row of the catalogue holds.
struct Recipe {
    const char* EngineName;
    EngineMaker Make;
    // What has become the new picture stays so, each pixel moving one way from old to new.
    bool KeepsWhatItShowed = false;
};

}  // namespace neb::effects
