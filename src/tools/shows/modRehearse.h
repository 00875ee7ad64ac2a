// nebctl rehearse: runs a show in a moment and prints its cue sheet and what is wrong with it. It
// changes nothing on the disk.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunRehearse(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
