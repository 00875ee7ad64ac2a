// How paths are spelled: for lists in which one place shall stand once.
#pragma once

#include <QString>

namespace neb {

// An absolute path without ".", "..", doubled and closing separators; a relative one is seen from
// the working directory. Nothing is looked up: what a link is called stays.
QString CleanPath(const QString& Path);

}  // namespace neb
