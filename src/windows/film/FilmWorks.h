// What the window of films has others do: rehearse, estimate, make a film, and hand it to the
// desktop. In one place, so that a test can stand in for what takes its time.
#pragma once

#include "show/film/FilmEstimate.h"
#include "show/film/FilmMaker.h"

namespace neb {

// All but Open are called on threads of their own.
struct FilmWorks {
    std::function<decltype(PlanFilm)> Plan = PlanFilm;
    std::function<decltype(EstimateFilm)> Estimate = EstimateFilm;
    std::function<decltype(CheckRoomForFilm)> CheckRoom = CheckRoomForFilm;
    std::function<decltype(MakeFilm)> Make = MakeFilm;
    // How the film will look, before it is made; null where nothing comes up.
    std::function<QImage(const FilmOrder& Order, const FilmPlan& Plan)> FirstLook;
    // A file or a folder, in the desktop's own program for it.
    std::function<void(const QString& Path)> Open;
};

FilmWorks& TheFilmWorks();
// Those of the program, as long as no test has put others in their place.
FilmWorks OwnFilmWorks();

}  // namespace neb
