// nebctl restore: an earlier state of a database in the place of the present one, which is kept.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunRestore(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
