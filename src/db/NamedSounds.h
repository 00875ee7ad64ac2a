// Which sounds in an album's folder of tracks records still name: before a file there goes or is
// replaced, whoever does it asks. Shows that were saved from one another used to share their files.
#pragma once

#include <QString>
#include <cstdint>
#include <set>

namespace neb {

class clsDBEngine;

// The upper-case names of those that another show of the album plays, or that any other show or
// slide names by a full path. SlideShowID: the show that asks; 0 for one that is not stored yet.
std::set<QString> SoundsNamedBesides(const clsDBEngine& theDB, std::int32_t AlbumID,
                                     std::int32_t SlideShowID);

}  // namespace neb
