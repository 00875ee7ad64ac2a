// One slide of an album: its caption, its picture and its own sound. Plain data, owned by the
// album; windows read it and hand changed values back through the album's SaveSlide.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

class clsNEBSlide {
  public:
    std::int32_t SlideID = 0;
    QString SlideText;
    QString SlideLoc;       // a name in the album's Slides folder, or a full path outside
    QString SoundTrackLoc;  // the same; empty for none
    bool Override = false;  // its own sound is played in place of the show's track
    bool Repeat = false;
};

}  // namespace neb
