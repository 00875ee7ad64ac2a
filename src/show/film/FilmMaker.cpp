#include "show/film/FilmMaker.h"

#include "support/Fault.h"

namespace neb {

FilmReport MakeFilm(clsDBEngine&, const FilmOrder& Order, const FilmPlan&, const FilmWatch&) {
    throw Fault(QStringLiteral("No film can be made yet."), Order.Path);
}

}  // namespace neb
