// The base of the effects that bend pictures: a grid of nodes tells for every few pixels where they
// read, how wide, which picture and how bright; between the nodes all of it runs on evenly. Used by
// the engines of ripples, waves and lenses.
#pragma once

#include "effects/drawing/Engine.h"
#include "effects/drawing/Fixed.h"

namespace neb::effects {

// What a node holds, all of One. Places are ways from the pixel's own place; the spread is half the
// way along which a picture is averaged, where it is squeezed.
enum WarpPart {
    OldAcross,
    OldDown,
    OldSpreadAcross,
    OldSpreadDown,
    NewAcross,
    NewDown,
    NewSpreadAcross,
    NewSpreadDown,
    NewWeight,  // 0 old, One new; may run on past both, which keeps edges sharp
    Light,      // -One black, One white
    WarpParts
};

struct WarpNode {
    int At[WarpParts];
};

class WarpEngine : public Engine {
  public:
    void Draw(const Frame& F, int Y0, int Y1) const override;

    static constexpr int kBlock = 128;  // pixels across that are drawn at once
    static constexpr int kLines = 16;   // and down

  protected:
    // How the two pictures are bent: in the same way, so that only the old one's parts of the nodes
    // count, or each in its own.
    enum class Bend { Alike, Apart };
    WarpEngine(QSize Size, Bend How);

    // Before the lines of a frame; tables go to Scratch.
    virtual void Prepare(const Frame&) const {}
    // The nodes of one line: node N stands at the pixel (N << Bits, Y). They come all nought.
    virtual void FillLine(const Frame& F, int Y, int Bits, WarpNode* Nodes, int Count) const = 0;

  private:
    void DrawLines(const Frame& F, const WarpNode* Nodes, int Count, int Top, int Y0, int Y1) const;

    int mBits;
    bool mAlike;
};

}  // namespace neb::effects
