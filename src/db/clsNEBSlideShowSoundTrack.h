// One sound track of a show, laid over a stretch of its slides. Plain data, owned by the show.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

class clsNEBSlideShowSoundTrack {
  public:
    std::int32_t SoundTrackSeq = 0;  // place among the tracks, from 1
    QString SoundTrackLoc;  // a name in the album's SoundTracks folder, or a full path outside
    std::int32_t SlideSeqStart = 0;
    std::int32_t SlideSeqEnd = 0;
    bool Repeat = false;
    bool FitToSong = false;
    bool Fade = false;
};

}  // namespace neb
