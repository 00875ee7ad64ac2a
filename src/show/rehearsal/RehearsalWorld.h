// What a rehearsal puts in the place of the program's own clock, boxes, sound and database for as
// long as it lives. Used by Rehearsal alone.
#pragma once

#include "show/ShowSound.h"
#include "support/Services.h"

namespace neb {

class clsDBEngine;

class RehearsalWorld {
  public:
    struct Parts {
        clsDBEngine& Engine;
        Clock& Time;
        MessageBoxes& Boxes;
        SoundDevices& Sound;
        ShowSoundMaker Maker;
    };

    explicit RehearsalWorld(Parts Instead);
    ~RehearsalWorld();
    RehearsalWorld(const RehearsalWorld&) = delete;
    RehearsalWorld& operator=(const RehearsalWorld&) = delete;

  private:
    Services mServices;
    ShowSoundMaker mMaker;
    clsDBEngine* mEngine;
    bool mReadOnly;
    QString mDBPath;
    std::int32_t mSlideSeq, mSlideShowID;
    double mTimeout;
};

}  // namespace neb
