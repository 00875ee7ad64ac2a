// What stands in the slide show manager, without the window: the show that is being composed, its
// slides in their order and its sound tracks as they were typed. Saving works on this.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace neb {

struct ShowSlide {
    std::int32_t SlideID = 0;
    QString SlideText;  // the caption in this show
    QString OwnText;    // the caption of the slide itself
};

// A row of the list of tracks, each cell as its text. Flags are "True" or "False", empty is false.
struct ShowTrack {
    QString SlideSeqStart;
    QString SlideSeqEnd;
    QString Repeat;
    QString FitToSong;
    QString Fade;
    QString SoundTrackLoc;  // a name in the album's SoundTracks folder, or the path of a new file

    // A row with a place and a file; any other is passed over.
    bool IsFilled() const;
    bool operator==(const ShowTrack&) const = default;
};

struct ShowContent {
    std::int32_t AlbumID = 0;      // 0: none chosen
    std::int32_t SlideShowID = 0;  // 0: a new show
    QString Name;
    std::int32_t ProgressionMethod = 0;  // 0 automatic, 1 manual
    std::vector<ShowSlide> Slides;       // place 1 first
    std::vector<ShowTrack> Tracks;       // number 1 first, empty rows included
};

}  // namespace neb
