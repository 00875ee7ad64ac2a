// Opens the rehearsal of a slide show, for every window that offers one.
#pragma once

#include <cstdint>

namespace neb {

// As the show is stored.
void ShowRehearsal(std::int32_t AlbumID, std::int32_t SlideShowID);

}  // namespace neb
