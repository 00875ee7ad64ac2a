// The show that becomes a film, rehearsed: what comes up when, and what is wrong with it, known
// before the first frame is drawn. Made beside a window, on any thread, from a copy of the show.
// Used by FilmMaker, FilmEstimate and whoever asks for a film.
#pragma once

#include "show/film/FilmOrder.h"
#include "show/rehearsal/RehearsalSheet.h"

namespace neb {

struct FilmPlan {
    RehearsalSheet Sheet;  // the slides of the film, from its start
    RehearsalLog Log;      // the same as it was noted
};

// Copy: of CopyForRehearsal. GoesOn: as RehearsalOptions has it.
FilmPlan PlanFilm(clsDBEngine& Copy, const FilmOrder& Order,
                  const std::function<bool(std::int32_t SlideSeq)>& GoesOn = {});

// What the film's file is told of it: chapters, subtitles where they are wanted, title, cover.
FilmSetup SetupOf(const FilmPlan& Plan, const FilmOrder& Order);
// Subtitles as the text of an ".srt" file, UTF-8.
QByteArray SubtitleText(const std::vector<FilmSubtitle>& Subtitles);
std::vector<FilmSubtitle> SubtitlesOf(const FilmPlan& Plan);

}  // namespace neb
