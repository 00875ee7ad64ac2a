#include "show/film/FilmPlan.h"

namespace neb {

FilmPlan PlanFilm(clsDBEngine& Copy, const FilmOrder& Order,
                  const std::function<bool(std::int32_t)>& GoesOn) {
    RehearsalOptions Options;
    Options.GoesOn = GoesOn;
    return {MakeRehearsalSheet(Copy, Order.Size, Options), {}};
}

}  // namespace neb
