// What the window of films checks of a file before the film, and says of it afterwards. Used by
// frmFilm.
#pragma once

#include <QStringList>

#include "show/film/FilmMaker.h"

namespace neb {

// That it has a name, that this is none of a folder, and all that CheckFilmOrder asks.
Answer<> CheckFilmFile(const FilmOrder& Order);
// The files that would go when it is made.
QStringList FilesToReplace(const FilmOrder& Order);
// "The film is made: Garden.mp4, 1:23, 34 MB"
QString MadeText(const QString& Path, const FilmReport& Report);

}  // namespace neb
