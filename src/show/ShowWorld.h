// The world that a show runs in: its database, its clock, its sound and its memory. The projector's
// is the desktop's; a rehearsal hands in one of its own, and so both may run side by side.
#pragma once

#include "show/ShowMemory.h"
#include "show/ShowSound.h"
#include "support/Services.h"

namespace neb {

class clsDBEngine;

// All of it outlives the show.
struct ShowWorld {
    clsDBEngine* Engine;  // null: no database is open, and the show says so
    Clock& Time;
    ShowSoundMaker Sound;
    ShowMemory& Place;
    // Asked at each slide: whether nothing shall move on the screen. None: things move.
    std::function<bool()> IsStill = {};
};

// The program's own database, clock, sound devices and memory, as they are now.
ShowWorld DesktopShowWorld();

}  // namespace neb
