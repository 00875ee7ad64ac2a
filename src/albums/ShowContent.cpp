#include "albums/ShowContent.h"

#include "support/modFUFL.h"

namespace neb {

bool ShowTrack::IsFilled() const {
    return SlideSeqStart && SlideSeqEnd && !SoundTrackLoc.isEmpty();
}

bool ShowTrack::IsNewFile() const {
    return IsFilled() && HoldsSeparator(SoundTrackLoc);
}

}  // namespace neb
