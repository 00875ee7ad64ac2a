// What a box and a modal window do behind their end, so that the keyboard is where it was before
// when the work goes on.
#pragma once

namespace neb {

// Lets the desktop hand the keyboard back to the window below, a quarter of a second at most.
void AwaitFocus();

}  // namespace neb
