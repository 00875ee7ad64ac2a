// nebctl check: what is wrong with a database, one finding a line. It changes nothing on the disk.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunCheck(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
