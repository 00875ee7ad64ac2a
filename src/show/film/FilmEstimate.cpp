#include "show/film/FilmEstimate.h"

namespace neb {

std::optional<qint64> EstimateFilm(const FilmOrder&, const FilmPlan&,
                                   const std::function<bool()>&) {
    return std::nullopt;
}

Answer<> CheckRoomForFilm(const FilmOrder&, qint64) {
    return Done();
}

}  // namespace neb
