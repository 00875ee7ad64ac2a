// What would be different if an earlier state of a database came back, as plain lists and numbers.
// Shown by the window that restores and by nebctl.
#pragma once

#include <QStringList>

namespace neb {

class clsDBEngine;

// Albums, shows and slides are the same when their numbers are: these are never given out twice.
struct StateDifferences {
    QStringList AlbumsThen, AlbumsNow;  // names of the albums that are in one of the two alone
    QStringList AlbumsRenamed;          // "then" instead of "now"
    QStringList ShowsThen, ShowsNow;    // "show" of "album", of those that are in one alone
    int ShowsChanged = 0;               // in both, with another name, slides or sounds
    int SlidesThen = 0, SlidesNow = 0;  // in one alone
    int CaptionsChanged = 0;
    int SlidesChanged = 0;  // in both, with another picture or sound

    bool AreNone() const;
    // For people: a sentence each, what comes back first; one sentence when there are none.
    QStringList Sentences() const;
};

StateDifferences Compare(const clsDBEngine& Then, const clsDBEngine& Now);

// The pictures and sounds that the records name and that are not there: full paths, each once.
QStringList MissingFiles(const clsDBEngine& Records);

}  // namespace neb
