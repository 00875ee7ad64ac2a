// The files of a deleted album go. Used by the window that deletes albums.
#pragma once

#include <QString>
#include <cstdint>

#include "support/KeepGoing.h"

namespace neb {

class Changes;

// Takes the sounds, the pictures and the folders of an album off the disk, by the door that has
// deleted it: they are kept where that can be undone. What cannot be removed, and what is not the
// program's, stays with its folder. A link is removed, what it leads to is not. LetRun is called
// all the while.
void DeleteAlbumFiles(Changes& Door, const QString& DBPath, std::int32_t AlbumID,
                      const Yield& LetRun);

}  // namespace neb
