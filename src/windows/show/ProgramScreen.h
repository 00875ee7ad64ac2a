// The screen on which the program stands, for windows that fill it or lie in its middle.
#pragma once

class QScreen;

namespace neb {

// The screen of the main window, else of the window in use, else the first one; null on a desktop
// without any screen.
QScreen* ProgramScreen();

}  // namespace neb
