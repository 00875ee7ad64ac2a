// Puts things of an album back as they were: the part of the one door for changes (db/Changes) by
// which an undo passes. For History.
#pragma once

#include "db/Changes.h"

namespace neb {

// Swaps what there is for these, which are then what there was, in the order in which to put that
// back. Noted, in the session's journal by one entry where order counts: what comes back takes its
// place among the others. The files that the records name are there before. Throws what the noting
// throws; nothing has changed then. The answer tells the windows.
std::vector<Announcement> PutBack(clsDBEngine& theDB, AlbumParts& Parts);

}  // namespace neb
