// What a rehearsal has to say about a show before an audience sees it: problems, which somebody
// should mend, and notes, which may well be meant. Used by nebctl rehearse.
#pragma once

#include <QSize>
#include <functional>
#include <vector>

#include "show/rehearsal/Rehearsal.h"

namespace neb {

class clsDBEngine;

struct RehearsalFinding {
    std::int32_t SlideSeq = 0;  // where it shows first; 0: the show as a whole
    QString Text;               // one line that names the slide and the file

    bool operator==(const RehearsalFinding&) const = default;
};

// Both in the order of the slides.
struct RehearsalFindings {
    std::vector<RehearsalFinding> Problems, Notes;
};

// A whole run that has ended.
struct RehearsedShow {
    clsDBEngine& Engine;
    std::int32_t AlbumID = 0, SlideShowID = 0;  // both are there
    const RehearsalLog& Log;
    RehearsalEnd End = RehearsalEnd::CameRound;
    QSize Screen{1920, 1080};  // pixels, for the captions; empty: none are shown
    RehearsalOptions Options;  // as the rehearsal had them
};

RehearsalFindings FindProblems(const RehearsedShow& Show);

}  // namespace neb
