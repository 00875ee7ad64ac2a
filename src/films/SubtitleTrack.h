// The captions of a film, for the player to show. Used by FilmEncoder.
#pragma once

#include "films/FilmMuxer.h"

namespace neb {

// Before the film is begun; without subtitles there is no such track.
void AddSubtitleTrack(FilmMuxer& Muxer, const FilmSetup& Setup);

}  // namespace neb
