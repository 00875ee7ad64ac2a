// Lays the sample music over a show, as the show manager's sound tracks and the slide manager's
// clips would: the files go into the album under the names that the program gives them.
#pragma once

#include <QString>

// A piece fitted to the first three slides, and one over the next three that fades over the last
// of them, with a chime in its place at the middle one: laid over the first show that begins from
// now on. A show of fewer slides stays silent.
void LayMusicOverFirstShow(const QString& MusicDir);

// Where the slide manager lets the recorder save.
QString RecordedClipPath();
// What it does with the clip afterwards: a slide has it from now on, here the first one after the
// music, or the last one. Throws Fault.
void GiveRecordedClip();
