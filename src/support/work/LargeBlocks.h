// Memory for pictures, given back to the system as soon as nobody needs it. For work that takes
// and drops many of them on several threads: a film.
#pragma once

namespace neb {

// From now on, in the whole process. As the allocator would have it, what a thread has dropped
// stays with that thread, and a film would need a quarter more.
void GiveLargeBlocksBack();

}  // namespace neb
