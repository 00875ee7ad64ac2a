// Reads pictures for the program, behind the door, until the program is gone. The entry of the
// processes that do it; a test puts a hostile reader there.
#pragma once

#include <functional>

#include "pictures/workers/PictureReading.h"
#include "support/locked/LockedRoom.h"

namespace neb {

// BeforeEach: called before a request is taken; for a test.
[[noreturn]] void ServePictures(LockedRoom& Room, PictureReader& Reader,
                                const std::function<void()>& BeforeEach = {});

}  // namespace neb
