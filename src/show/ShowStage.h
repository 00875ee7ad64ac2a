// What a running show needs of whoever shows it: the projector's window puts it on the screen, a
// rehearsal writes it down.
#pragma once

#include <QString>

#include "show/EffectChooser.h"

namespace neb {

class ShowStage {
  public:
    virtual ~ShowStage() = default;
    // As a label takes it: "&&" for an ampersand.
    virtual void ShowCaption(const QString& Text) = 0;
    // Ends a transition that still runs and begins the one to this picture; what Choice leaves
    // empty stays as it was. False when the picture cannot be read. One that is not here at once
    // comes later (true): the run hears of it by PictureLate, PictureCame and PictureFailed, unless
    // another picture has been asked for by then.
    virtual bool ShowPicture(const QString& Path, const EffectChoice& Choice) = 0;
    // The picture that will probably come next.
    virtual void Prefetch(const QString& Path) = 0;
    // Starts or stops the ticks: Timer1 every 100 ms, Timer2 every 1000 ms; a timer that runs
    // begins its time anew.
    virtual void SetTimer1(bool On) = 0;
    virtual void SetTimer2(bool On) = 0;
    // One tick of Timer1 more, after so many milliseconds: a slide whose time ends between two of
    // them is followed when it is over, and not when the next one comes.
    virtual void TickAfter(int Milliseconds) = 0;
    // A plain box, which comes up once the step of the show is over: the call returns at once, and
    // the show goes on behind the box.
    virtual void Tell(const QString& Message) = 0;
};

}  // namespace neb
