// Emptying an album or a show before a transfer writes new contents into it. Used by the engine.
#pragma once

#include "support/Answer.h"

namespace neb {

class clsDBEngine;
class clsNEBAlbum;
class clsNEBSlideShow;

// Empty the object and take its files off the disk; a show takes the slides along that no other
// show of the album uses. Refused, with what went wrong, when a file cannot be deleted: the object
// is empty by then.
Answer<> ClearAlbumContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum);
Answer<> ClearSlideShowContents(const clsDBEngine& theDB, clsNEBAlbum& theAlbum,
                                clsNEBSlideShow& theSlideShow);

}  // namespace neb
