// The rules by which a composed show is kept: what must be right before it is, and how it is
// written. Used by the slide show manager; no window is needed.
#pragma once

#include <functional>
#include <optional>

#include "albums/ShowContent.h"
#include "support/Services.h"

namespace neb {

class clsDBEngine;

// The first thing that keeps a show from being saved, as the box that tells it; none when nothing
// does. Cleans the quotes of Name. Changes nothing else.
std::optional<BoxRequest> CheckShow(ShowContent& Content, const clsDBEngine& theDB);

// Replaces the stored show by the content, or makes a new one, and tells of it. New sound files
// are copied into the album and their rows take the names they have there; files that the show no
// longer plays are deleted. Between is called all the while that a file is copied. SlideShowID is
// the show's afterwards. False after a box that says why there is nothing to write to. Throws Fault
// when a file cannot be copied: Content still has everything, and a further save goes on from
// there.
bool WriteShow(ShowContent& Content, clsDBEngine& theDB, const std::function<void()>& Between = {});

}  // namespace neb
