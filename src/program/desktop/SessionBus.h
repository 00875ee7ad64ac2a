// Whether the user's session has a message bus, over which the desktop does things for programs.
#pragma once

namespace neb {

// Connecting without a bus would make the library start one, which takes its time.
bool HasSessionBus();

}  // namespace neb
