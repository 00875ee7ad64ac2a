// Which names of files and folders are not the user's own: what the system, a desktop or a storage
// box has put beside the pictures. Used by every walk that collects, counts or searches; what the
// user names himself is never asked about here.
#pragma once

#include <QString>
#include <string_view>

namespace neb {

// Names are without directory, those of std::string_view in the host's own bytes.

// A file that begins with "." ("._a.jpg", the other half of a picture on a foreign disk), and the
// lists that desktops leave ("Thumbs.db", "desktop.ini").
bool IsHiddenFile(std::string_view Name);
bool IsHiddenFile(const QString& Name);
// A folder that begins with "." (".thumbs", ".Trash-1000"), the bins of other systems and of
// storage boxes, in which deleted pictures lie ("$RECYCLE.BIN", "#recycle"), what a disk check has
// found
// ("lost+found"), the system's own on a stick, and the small pictures of storage boxes ("@eaDir").
bool IsHiddenFolder(std::string_view Name);
bool IsHiddenFolder(const QString& Name);

}  // namespace neb
