// Windows whose content needs more room than the screen has, in large letters say, show it in an
// area that scrolls; the row of buttons at their end stays in view. Every Form asks for it.
#pragma once

class QDialog;

namespace neb {

// Looks now, and whenever the content comes to need more: once a window scrolls it stays so. A
// child of the main window has the room that children have there.
void ScrollWithinScreen(QDialog& Of);

}  // namespace neb
