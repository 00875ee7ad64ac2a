// The button that Enter presses, for windows inside the main window's frame: there the toolkit
// forgets which one it was as soon as the focus has been on another.
#pragma once

#include <QDialog>

namespace neb {

// From now on the button of the window that is the default now is it again whenever the focus goes
// on from one that makes itself the default.
void KeepDefaultButton(QDialog& Of);

}  // namespace neb
