// Which slides the sound tracks of a show cover while it is composed: what is proposed for a new
// one, how a track stays on its slides when these change places, and how all slides are spread
// over the tracks. Used by the slide show manager and its draft; no window is needed.
#pragma once

#include <set>

#include "albums/ShowContent.h"
#include "support/Answer.h"

namespace neb {

using SlideOrder = std::vector<std::int32_t>;  // slides by their numbers, place 1 first

SlideOrder OrderOf(const std::vector<ShowSlide>& Slides);

// Places, from 1.
struct TrackRange {
    int First = 0, Last = 0;
    bool operator==(const TrackRange&) const = default;
};

// For a row that has none: the slides behind the last of all tracks, or the whole show where there
// is no other. None where there are no such slides.
std::optional<TrackRange> ProposedRange(const std::vector<ShowTrack>& Tracks, size_t SlideCount);

// The tracks after the show had its slides in the order Before and has them in the order After;
// Moved are those that were taken to another place. A slide that comes in between two slides of a
// track is one of its slides, one that goes out is no longer. So a track reaches from the first to
// the last of its slides that stayed in the order, and over its moved ones that still adjoin; where
// all of them were moved it goes with them, to the longest run that they make. One whose slides
// have all left has no places. A place that is none of the show stays as it was typed.
std::vector<ShowTrack> TracksFollowing(std::vector<ShowTrack> Tracks, const SlideOrder& Before,
                                       const SlideOrder& After,
                                       const std::set<std::int32_t>& Moved = {});

// Spreads all slides of the show over the tracks that have a file, in their order and in
// proportion to their lengths, each at least one slide, and fits them. Seconds: the length of each
// row's file, above 0, by row; those without a file are passed over. Refused where there is no
// track, fewer slides than tracks, or where nothing can be fitted, in a manual show.
Answer<std::vector<ShowTrack>> FitAllTracks(const ShowContent& Show,
                                            const std::vector<double>& Seconds);

}  // namespace neb
