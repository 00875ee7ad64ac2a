// What a film says of itself beside its tracks: title, date, chapters, cover. Used by FilmMuxer.
#pragma once

#include "films/Av.h"
#include "films/FilmEncoder.h"

namespace neb {

class FilmMuxer;

void AddNotes(AVFormatContext& Film, const FilmSetup& Setup);

// Where a film keeps its cover, if it has a place for one.
enum class CoverPlace { None, Picture, Attachment };
// Before the film's head is written. The index of the cover's track, -1 where there is none.
int AddCover(FilmMuxer& Muxer, CoverPlace Place, const FilmSetup& Setup);

}  // namespace neb
