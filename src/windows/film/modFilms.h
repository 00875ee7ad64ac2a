// Opens the window that makes a film of a slide show, for every window that offers one.
#pragma once

#include <cstdint>

namespace neb {

// Of the show as it is stored.
void ShowFilm(std::int32_t AlbumID, std::int32_t SlideShowID);
// The system ends the session: nobody is there to be asked about films that are being made.
void StopFilms();

}  // namespace neb
