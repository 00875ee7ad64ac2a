// A stored show as the slide show manager takes it up. No window is needed.
#pragma once

#include "albums/ShowContent.h"
#include "support/Answer.h"

namespace neb {

class clsDBEngine;

// The rows of the list of tracks; a track is numbered by its row, from 1.
constexpr int TrackRows = 99;

// A show of the album. Slides come by their place, 1 to the number of places; OwnText stays empty.
// Each track stands at its number; one without a row is left out. SlideShowID 0 is a new show, of
// which nothing is there yet; refused when the album or the show is gone.
Answer<ShowContent> LoadShow(const clsDBEngine& theDB, std::int32_t AlbumID,
                             std::int32_t SlideShowID);

}  // namespace neb
