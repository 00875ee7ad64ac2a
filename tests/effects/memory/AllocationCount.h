// Counts the allocations of a thread. Linked as a source of its own into the programs that ask, for
// it takes the place of the C library's malloc and its kin in all of the program.
#pragma once

namespace neb::effectstest {

// False beside a sanitizer or another C library: then nothing is counted.
bool CountsAllocations();
// By malloc and its kin and by operator new, since the thread began.
int AllocationsOfThisThread();

}  // namespace neb::effectstest
