// The check of a folder that was written for a disc: whether its files are still as they were.
#pragma once

namespace neb {

// Asks for the folder, compares it with its list of check sums under a progress window, and tells
// what it has found.
void CheckDisc();

}  // namespace neb
