// What of a window cannot be read or reached: texts larger than their controls, controls outside
// their window, tools that have no place in their bar, a window or a menu larger than the screen,
// tips longer than the status bar.
#pragma once

#include <QStringList>
#include <QWidget>

namespace neb::harness {

// A line a find, with the control's name; empty when all of the window can be seen. The window is
// on the screen, or a child of the main window that is.
QStringList CutsIn(const QWidget& Window);

}  // namespace neb::harness
