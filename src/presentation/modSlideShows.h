// Starts slide shows, for every window that offers one, and keeps the values that outlast a show.
#pragma once

#include <QString>
#include <cstdint>

namespace neb {

extern std::int32_t CurrentSlideSeq;     // place of the slide on the screen; 0: none yet
extern std::int32_t CurrentSlideShowID;  // the show that CurrentSlideSeq belongs to
extern double SlideTimeout;              // seconds that a slide stays up by default

// Runs a show on the full screen; returns when the user has left it. Faults are ignored.
void RunSlideShow(std::int32_t AlbumID, const QString& AlbumName, std::int32_t SlideShowID);

// Shows preferences; SlideTimeout is then as they say. Faults are ignored.
void EditSlideShowPreferences();

}  // namespace neb
