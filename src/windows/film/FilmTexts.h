// What the window of films checks of a file before the film, and says of it afterwards. Used by
// frmFilm.
#pragma once

#include <QStringList>

#include "show/film/FilmMaker.h"

namespace neb {

// That it has a name in a folder that is there, that this is none of a folder, and all that
// CheckFilmOrder asks.
Answer<> CheckFilmFile(const FilmOrder& Order);
// The files that would go when it is made.
QStringList FilesToReplace(const FilmOrder& Order);
// What is asked before they go; at least one.
QString ReplaceText(const QStringList& There);
// As long as the size of a film is not known yet.
QString FindingOutSize();
// "The film is made: Garden.mp4, 1:23, 34 MB"
QString MadeText(const QString& Path, const FilmReport& Report);

}  // namespace neb
