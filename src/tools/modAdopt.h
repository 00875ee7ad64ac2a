// nebctl adopt: slides again of pictures that no record names any more.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunAdopt(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
