// The icons of tool bars and buttons: the desktop's own where it has them, else the program's,
// drawn for light or for dark surroundings, and following the application's colours when these
// change.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace neb {

// Null when neither the desktop nor the program has an icon of this name ("import-directory").
QIcon ThemeIcon(const QString& IconName);
// In surroundings of its own colours, which stay.
QIcon ThemeIcon(const QString& IconName, const QPalette& Palette);

}  // namespace neb
