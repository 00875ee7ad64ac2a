// What belongs to other records than those that are there is never thrown away: it is kept beside
// its place under a name with its date, and the user is told. Used by the journals.
#pragma once

#include <QString>

namespace neb {

// Renames a file or folder, "Session.journal" to "Session 2026-11-22 02.16.35.journal" say; nothing
// is replaced. When: milliseconds since 1970, UTC. The new path, the name flushed. Throws Fault.
QString PutAside(const QString& Path, qint64 When);

}  // namespace neb
