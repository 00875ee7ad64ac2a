#include "windows/film/modFilms.h"

#include "windows/film/frmFilm.h"

namespace neb {

void ShowFilm(std::int32_t AlbumID, std::int32_t SlideShowID) {
    NewForm<frmFilm>()->MakeFilmOf(AlbumID, SlideShowID);
}

void StopFilms() {
    for (const auto& Each : LoadedForms())
        if (const auto Window = std::dynamic_pointer_cast<frmFilm>(Each)) Window->StopUnasked();
}

}  // namespace neb
