// Over which window a modal window, a box or a menu stands. The desktop keeps it in front of that
// one; without it a box may fall behind a show on the full screen, or bring up the main window. And
// the keyboard, which comes back to that window in the end.
#pragma once

class QWidget;

namespace neb {

// The modal window on top, else the active window, else the main window; null where there is none.
QWidget* WindowInUse();
// Puts a window that is not on the screen yet over another; nothing for a null one and for itself.
void StandOver(QWidget& Window, const QWidget* Below);
// Whether a modal window stands over a control, so that the user does not come at it.
bool IsOutOfReach(const QWidget& Control);
// Behind the end of such a window: lets the desktop hand the keyboard back to the one below, a
// quarter of a second at most.
void AwaitFocus();

}  // namespace neb
