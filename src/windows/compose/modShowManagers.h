// From a slide of a show to the slide show manager that has the show in hand. For whoever tells of
// a slide, by the table of openers.
#pragma once

#include <cstdint>

namespace neb {

// Stands on the slide in the manager that shows this show; opens one where there is none.
void ShowSlideInManager(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t SlideID);

}  // namespace neb
