// The film's own encoder, out of the module that is loaded when the first film is made. Used by
// FilmWriter, which declares MakeFilmEncoder; tests put encoders of their own in its place.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "films/FilmEncoder.h"

namespace neb {

// The module of the program, beside the folder that it lies in.
QString FilmModule();
// What a module makes encoders with; it stays loaded. Throws Fault, with its path, where it is not
// there, or is none.
MakeFilmEncoderFunction LoadFilmModule(const QString& Path);

// In the place of the module; {} for the module again; for tests alone.
using FilmEncoderMaker = std::function<std::unique_ptr<FilmEncoder>(const FilmSetup&, FilmSink)>;
void SetFilmEncoderMaker(FilmEncoderMaker Maker);

}  // namespace neb
