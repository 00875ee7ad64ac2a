// Numbers for people, their thousands parted as the user's language does it: "1,000" or "1.000".
// For every text that counts pictures, pages, files or captions.
#pragma once

#include <QString>

namespace neb {

QString Grouped(qint64 Number);

}  // namespace neb
