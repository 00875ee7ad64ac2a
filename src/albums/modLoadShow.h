// A stored show as the slide show manager takes it up, and whether what stands in the manager has
// been changed since. No window is needed.
#pragma once

#include <optional>

#include "albums/ShowContent.h"

namespace neb {

class clsNEBSlideShow;

// The rows of the list of tracks; a track is numbered by its row, from 1.
constexpr int TrackRows = 99;

// The show without its album. Slides come by their place, 1 to the number of places; OwnText stays
// empty. Each track stands at its number; one without a row is left out.
ShowContent StoredShow(const clsNEBSlideShow& Show);

bool SameContent(const ShowContent& One, const ShowContent& Other);

// The row, from 0, for a place as it was typed, in a list of so many rows; none when it is no
// number or no place in the list. A fraction is rounded.
std::optional<int> TypedPlace(const QString& Text, int Rows);

}  // namespace neb
