// Keys of Alt that two things of one window share, so that neither is reached at once.
#pragma once

#include <QStringList>
#include <QWidget>

namespace neb::harness {

// A line a find. A window inside the main window shares the keys of its menu bar; each menu of the
// main window is looked at by itself.
QStringList SharedLettersIn(const QWidget& Window);

}  // namespace neb::harness
