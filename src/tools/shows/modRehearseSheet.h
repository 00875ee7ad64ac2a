// The cue sheet of a rehearsed show: a table for people, or JSON. Used by nebctl rehearse.
#pragma once

#include "db/clsNEBSlideShow.h"
#include "show/rehearsal/RehearsalFindings.h"
#include "tools/words/ToolIO.h"

namespace neb {

struct CueSheet {
    QString Album;  // its name
    const clsNEBSlideShow& SlideShow;
    double Timeout = 0;  // seconds a slide stays up as a rule
    const RehearsedShow& Run;
    const RehearsalFindings& Findings;
    double RunningTime = 0;  // seconds
};

void PrintCueSheet(const CueSheet& Sheet, std::ostream& Out);
void PrintCueSheetAsJson(const CueSheet& Sheet, std::ostream& Out);

}  // namespace neb
