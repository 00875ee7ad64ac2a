// A whole show rehearsed, as plain values that need no database any more: what comes up when, what
// is heard of which track and clip, and what is wrong. Made beside a window, on any thread, from a
// copy of the show. Used by the window of the rehearsal and by what prints it.
#pragma once

#include <QSize>
#include <memory>

#include "show/rehearsal/RehearsalFindings.h"

namespace neb {

// A slide that has come up.
struct RehearsalRow {
    double At = 0, Seconds = 0;  // from the start, and how long
    std::int32_t SlideSeq = 0, SlideID = 0;
    QString Caption, Picture;  // as a viewer reads it; a path
    QString Track, Clip;       // the names of the sounds that it has; empty for none
    bool ClipSounds = false;   // its clip is what is to be heard
    CueSound Sound;
    QString SoundText;     // what becomes of it, in words
    QStringList Problems;  // each a line
};

struct RehearsalSheet {
    QString Album, Show;  // their names
    bool IsManual = false;
    double RunningTime = 0;  // seconds
    RehearsalEnd End = RehearsalEnd::CameRound;
    std::vector<RehearsalRow> Rows;  // as they come up
    RehearsalFindings Findings;

    // "12 slides, running time 1:23.4, 2 problems"
    QString Summary() const;
};

// The album's show alone, with all that a rehearsal asks for, apart from the database; null where
// it is not there.
std::shared_ptr<clsDBEngine> CopyForRehearsal(const clsDBEngine& theDB, std::int32_t AlbumID,
                                              std::int32_t SlideShowID);
// Runs it. Options.GoesOn may end it sooner. Screen: in pixels, for the captions; empty where none
// are shown. Log: takes what was noted, where that is wanted.
RehearsalSheet MakeRehearsalSheet(clsDBEngine& Copy, QSize Screen,
                                  const RehearsalOptions& Options = {},
                                  RehearsalLog* Log = nullptr);

}  // namespace neb
