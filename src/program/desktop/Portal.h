// Where the desktop's portal stands on the session's bus, whichever of its interfaces is asked
// (https://flatpak.github.io/xdg-desktop-portal/).
#pragma once

#include <QString>

namespace neb::portal {

inline const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString Object = QStringLiteral("/org/freedesktop/portal/desktop");

}  // namespace neb::portal
