// One transition, prepared once for a size; draws the frame of any progress in any order, the
// same bits every time. Used by the transition view and by the speed measurements.
#pragma once

#include <QImage>
#include <memory>

#include "effects/Engine.h"

namespace neb {

class Transition {
  public:
    // Number: an effect of the catalogue; any other changes plainly. Size: of the pictures in
    // pixels, at least 1 by 1.
    Transition(int Number, QSize Size);
    ~Transition();
    Transition(Transition&&) noexcept;
    Transition& operator=(Transition&&) noexcept;

    int Number() const { return mNumber; }
    QSize Size() const { return mSize; }

    // Draws into Out, which is made to fit when it does not. All pictures are Format_RGB32 of
    // the prepared size (Fault otherwise). Progress 0 is the old picture to the bit, 1 the new.
    void Draw(const QImage& Old, const QImage& New, double Progress, QImage& Out) const;
    // Draws the rows First up to but not including Last alone; Out fits already. Several threads
    // may draw parts of one frame at a time.
    void DrawRows(const QImage& Old, const QImage& New, double Progress, QImage& Out, int First,
                  int Last) const;

  private:
    int mNumber;
    QSize mSize;
    std::unique_ptr<effects::Engine> mEngine;  // null: changes plainly
};

}  // namespace neb
