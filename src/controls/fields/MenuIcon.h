// An icon for an entry of a menu: upon the highlight of the chosen entry its own colours would
// hardly be seen.
#pragma once

#include <QIcon>
#include <QPalette>

namespace neb {

// The same, but in the colour of the highlighted text where it is painted as active.
QIcon MenuIcon(const QIcon& Icon, const QPalette& Palette);

}  // namespace neb
