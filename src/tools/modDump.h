// nebctl dump: all records of a database as JSON. It changes nothing on the disk.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunDump(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
