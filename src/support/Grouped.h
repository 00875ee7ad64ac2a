// Numbers for people, for every text that counts pictures, pages, files or captions, or tells of
// the room that files need.
#pragma once

#include <QString>

namespace neb {

// Its thousands parted as the user's language does it: "1,000" or "1.000".
QString Grouped(qint64 Number);
// "1.2 GB", "640 MB", "12 KB", as powers of 1000.
QString ShortSize(qint64 Bytes);

}  // namespace neb
