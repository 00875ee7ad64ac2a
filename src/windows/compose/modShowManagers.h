// What is done to a stored show from more windows than the slide show manager: its slides are gone
// to in the manager that has the show in hand, and it is deleted.
#pragma once

#include <cstdint>
#include <optional>

#include "db/Changes.h"

namespace neb {

// Stands on the slide in the manager that shows this show; opens one where there is none.
void ShowSlideInManager(std::int32_t AlbumID, std::int32_t SlideShowID, std::int32_t SlideID);

// Asks whether a show is to go, and deletes it. Nothing where that is not wanted, or after the box
// that says what is in the way. Asker: the window that knows of it already.
std::optional<Announcement> DeleteShowAsked(std::int32_t AlbumID, std::int32_t SlideShowID,
                                            const QObject* Asker = nullptr);

// Asks whether a film of the show as it was last saved is wanted, where something is not saved: who
// waits for a film wants to know before.
bool StoredShowWillDo();

}  // namespace neb
