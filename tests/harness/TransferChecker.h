// What a transfer must make of a database, worked out from its rules apart from the routine that
// does it, on what lies on the disk alone; and every difference from that as a line of text. For
// all tests of transfers, those through the windows too.
#pragma once

#include <string>

#include "harness/DatabaseReader.h"

namespace neb::harness {

struct StatedTransfer {
    std::int32_t SrcAlbumID = 0;
    std::int32_t SrcSlideShowID = 0;  // 0: the whole album
    std::int32_t DstAlbumID = 0;      // 0: a new one
    std::int32_t DstSlideShowID = 0;  // of a show's transfer; 0: a new one, else it is replaced
    bool Replace = false;             // of an album's transfer into one that is there
    QString NewAlbumName = {};        // as given, with straight quotes
    QString NewSlideShowName = {};
    bool WithoutMissing = false;  // the user goes on without files that are missing or unreadable
};

// The destination as it must be afterwards. Source and destination are of one moment before the
// transfer; they are one database where their folders are.
DatabaseState Dictated(const DatabaseState& Source, const DatabaseState& Destination,
                       const StatedTransfer& What);

// What Found has other than Wanted, a line each; empty when nothing. Names of files are compared
// without regard to case, as the program finds them; files left in Temp are differences.
std::string DifferencesFrom(const DatabaseState& Wanted, const DatabaseState& Found);

// Both at once.
std::string CheckTransfer(const DatabaseState& SourceBefore, const DatabaseState& DestinationBefore,
                          const DatabaseState& DestinationAfter, const StatedTransfer& What);

}  // namespace neb::harness
