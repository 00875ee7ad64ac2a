#include "films/FilmEncoder.h"

#include <stdexcept>

namespace neb {

FilmEncoder* NebMakeFilmEncoder(const FilmSetup&, FilmSink) {
    throw std::runtime_error("There is no encoder.");
}

}  // namespace neb
