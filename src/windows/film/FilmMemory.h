// What is remembered of the films that were made: all that was chosen, and the folder; and the
// names of films. Used by FilmChoices.
#pragma once

#include "show/film/FilmOrder.h"

namespace neb {

// As the last film was asked for. Path is the folder alone, with closing separator: where the last
// one went, or else the user's films.
FilmOrder RememberedFilm();
void RememberFilm(const FilmOrder& Order);

const FilmFormatRow& RowOf(FilmFormat Format);
// The show's name as a file can have it.
QString FilmNameOf(const QString& ShowName);
// The path with the ending of that format in place of another film's; a name without an ending of
// letters gets it besides.
QString WithFilmEnding(const QString& Path, FilmFormat Format);

}  // namespace neb
