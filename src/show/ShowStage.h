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
    // A plain box; events go on meanwhile, and the show with them.
    virtual void Tell(const QString& Message) = 0;
};

}  // namespace neb
