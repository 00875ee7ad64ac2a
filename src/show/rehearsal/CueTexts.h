// A cue of a rehearsal in words, for nebctl rehearse and the rehearsal's window alike.
#pragma once

#include "show/rehearsal/RehearsalFindings.h"

namespace neb {

QString TimeText(double Seconds);  // "m:ss.t"
QString SoundWord(const CueSound& Sound);
// Whether something is to be heard of it.
bool Sounds(const CueSound& Sound);
// What becomes of the sound while the slide is up. That it ends when the slide goes is no news.
QString SoundText(const RehearsalCue& Cue);
// "12 slides, running time 1:23.4, 2 problems, 1 note"; without a full stop.
QString SummaryText(size_t Slides, double RunningTime, const RehearsalFindings& Found,
                    RehearsalEnd End);

}  // namespace neb
