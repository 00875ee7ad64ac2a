// The check of all stored pictures and sounds of a database: every byte is read and compared with
// the lists of check sums that the albums keep, and what lies there with what the records name.
// Lists that are missing or were cut short are put right on the way. Used by the window that checks
// all pictures and by nebctl.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "support/files/CheckSums.h"

namespace neb {

class clsDBEngine;

struct PictureFinding {
    enum class Kind { Changed, Empty, Missing, Unreadable, Stray };
    Kind Is;
    QString Path;          // in full
    QString What;          // "the picture of slide 3"; empty: no record names it
    QString Album;         // its name; empty where there is no record of one
    QString Line() const;  // "changed: the picture of slide 3 in the album "Garden": PATH"
};

struct PicturesChecked {
    std::vector<PictureFinding> Found;
    int Files = 0;         // that were compared
    int NewLists = 0;      // albums whose files could not be compared, and can from now on
    int WithoutLists = 0;  // albums whose files could not be compared, nor can they yet
    bool IsWhole = false;  // it was not stopped
};

// What becomes of lists that are not right: in a database that is read-only, or in use by somebody
// else, they stay.
enum class SumsLists { PutRight, LeftAlone };

// Reads on a thread of its own; GoOn is called many times a second on the caller's, also while a
// slow medium does not answer, and ends the check by answering false: what was found until then
// counts. The records are those of now. A thumbnail that is missing is no finding: it is made when
// it is wanted; one that is damaged is made anew with the lists. Throws Fault when a list cannot be
// written.
PicturesChecked CheckAllPictures(const clsDBEngine& theDB, SumsLists Lists,
                                 const SumsGoOn& GoOn = {});

}  // namespace neb
