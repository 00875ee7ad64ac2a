// One transition, prepared once for two pictures; draws the frame of any progress in any order,
// the same bits every time. Used by the transition view and by the speed measurements.
#pragma once

#include <QImage>
#include <memory>

#include "effects/drawing/Engine.h"

namespace neb {

class Transition {
  public:
    // Number: an effect of the catalogue; any other changes plainly. The pictures are
    // Format_RGB32, of one size, at least 1 by 1 (Fault otherwise); they are kept, and may be
    // given away or changed by the caller.
    Transition(int Number, const QImage& Old, const QImage& New);
    ~Transition();
    Transition(Transition&&) noexcept;
    Transition& operator=(Transition&&) noexcept;

    int Number() const { return mNumber; }
    QSize Size() const { return mOld.size(); }

    // Draws into Out, which is made to fit when it does not. Progress 0 is the old picture to
    // the bit, 1 the new one.
    void Draw(double Progress, QImage& Out) const;
    // Draws the rows First up to but not including Last alone; Out fits already (Fault
    // otherwise). Several threads may draw parts of one frame at a time.
    void DrawRows(double Progress, QImage& Out, int First, int Last) const;

  private:
    int mNumber;
    QImage mOld, mNew;
    effects::Pair mPair;
    std::unique_ptr<effects::Engine> mEngine;  // null: changes plainly
};

}  // namespace neb
