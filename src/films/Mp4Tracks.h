// What the library's muxer cannot be told of an MP4's tracks. Used by FilmMuxer.
#pragma once

#include "films/FilmOutput.h"

namespace neb {

// Subtitles are for who asks for them. The muxer marks the first track of each kind as one that a
// player shows by itself; this takes the mark away from them, in a film that has ended.
void UnmarkSubtitles(FilmOutput& Output);

}  // namespace neb
