// Makes a film of a show: runs it on a clock that does not wait, draws what is seen and mixes what
// is heard, frame by frame and sample by sample, and hands both to the writer. On whichever thread
// calls it; what it uses is its own. Used by the film's window and nebctl film.
#pragma once

#include "show/film/FilmPlan.h"

namespace neb {

struct FilmProgress {
    double Seconds = 0, Total = 0;  // of the film
    qint64 Bytes = 0;               // written so far
    std::int32_t SlideSeq = 0;      // that is up
};

// Called on the film's own thread, several times a second of work.
struct FilmWatch {
    std::function<bool(const FilmProgress& SoFar)> GoesOn;     // false: no more of it is wanted
    std::function<void(const QImage& Frame, double At)> Look;  // a frame, as large as the film
};

enum class FilmEnd { Made, Stopped };

struct FilmReport {
    FilmEnd End = FilmEnd::Made;
    double Seconds = 0;
    qint64 Bytes = 0;
    std::vector<RehearsalCue> Cues;  // each slide with its transition, as they are in the film
    std::vector<RehearsalFinding> Faults;  // pictures and sounds that are missing in it
};

// Nothing of a film that was stopped or failed is left. Throws Fault: the disk is full, the folder
// cannot be written to, no slide of the show comes up.
FilmReport MakeFilm(clsDBEngine& Copy, const FilmOrder& Order, const FilmPlan& Plan,
                    const FilmWatch& Watch = {});

}  // namespace neb
