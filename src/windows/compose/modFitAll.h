// Measures the sound tracks of a show beside the window and spreads the slides over them. Used by
// the slide show manager.
#pragma once

#include <functional>

#include "albums/TrackRanges.h"
#include "show/rehearsal/Rehearsal.h"

namespace neb {

class Form;

// The seconds that a song lasts, asked on a thread of its own; throws Fault.
using SongMeasure = std::function<double(const QString& Path)>;

// The tracks as FitAllTracks makes them. Paths: the file of each row, empty for none. The windows
// go on painting meanwhile, and where it takes longer a window over Asker counts the songs and can
// stop it: the tracks stay as they are then. Refused, and the row named, where a file cannot be
// played or does not answer within ten seconds.
Answer<std::vector<ShowTrack>> FitAllAside(Form& Asker, const ShowContent& Show,
                                           const QStringList& Paths,
                                           const SongMeasure& Measure = &LengthOfSoundFile);

}  // namespace neb
