// What stands in the slide show manager, without the window: the show that is being composed, its
// slides in their order and its sound tracks. Saving works on this.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace neb {

struct ShowSlide {
    std::int32_t SlideID = 0;
    QString SlideText;  // the caption in this show
    QString OwnText;    // the caption of the slide itself
};

// A row of the list of tracks; an empty one has these values.
struct ShowTrack {
    std::optional<double> SlideSeqStart;  // a place in the show, as it was typed; none: nothing was
    std::optional<double> SlideSeqEnd;
    bool Repeat = false;
    bool FitToSong = false;
    bool Fade = false;
    // A name in the album's SoundTracks folder, or the full path of a new file; no blanks around.
    QString SoundTrackLoc;

    // A row with both places and a file. Of any other but an empty one a save tells.
    bool IsFilled() const;
    // Its file lies outside, or was chosen by its path, and is still to be copied into the album.
    bool IsNewFile() const;
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
