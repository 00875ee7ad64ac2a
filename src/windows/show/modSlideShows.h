// Starts slide shows, for every window that offers one.
#pragma once

#include <QString>
#include <cstdint>

#include "show/ShowMemory.h"

namespace neb {

struct ShowWorld;

// Runs a show on the full screen; returns when the user has left it. Faults are ignored.
void RunSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID);
// The same in another world than the desktop's.
void RunSlideShowIn(const ShowWorld& World, std::int32_t AlbumID, const QString& AlbumName,
                    std::int32_t SlideShowID);

// Shows preferences; SlideTimeout is then as they say. Faults are ignored.
void EditSlideShowPreferences();

}  // namespace neb
