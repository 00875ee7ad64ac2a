// Emptying an album or a show for the new contents of a transfer: what goes, and its going. Used by
// the engine, and by transfers, which let things go only when the new ones are there.
#pragma once

#include <QStringList>
#include <cstdint>
#include <set>
#include <vector>

#include "support/Answer.h"

namespace neb {

class clsDBEngine;
class clsNEBAlbum;
class clsNEBSlideShow;

// What goes with an album or a show.
struct Clearing {
    std::vector<std::int32_t> Slides;  // each once, in the show's order; of an album: all
    QStringList Folders;               // all that lies in them; full paths with closing separator
    QStringList Stems;                 // of slides: full paths, and how their files begin
    QStringList Files;                 // full paths
    bool operator==(const Clearing&) const = default;
};
// The files that are there of it, full paths. Looks at the disk.
QStringList FilesOf(const Clearing& What);
Clearing ClearingOf(const clsDBEngine& theDB, const clsNEBAlbum& theAlbum);
// The slides that no other show of the album uses, and the sounds that no other one plays.
Clearing ClearingOf(const clsDBEngine& theDB, const clsNEBAlbum& theAlbum,
                    const clsNEBSlideShow& theSlideShow);

// The sounds that the other shows of the album play, upper-cased: two shows can share files.
std::set<QString> SoundsOfOthers(const clsNEBAlbum& theAlbum, std::int32_t SlideShowID);

// Empty the object and take its files off the disk; a show takes the slides along that no other
// show of the album uses. Refused, with what went wrong, when a file cannot be deleted: the object
// is empty by then.
Answer<> ClearAlbumContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum);
Answer<> ClearSlideShowContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum,
                                clsNEBSlideShow& theSlideShow);

}  // namespace neb
