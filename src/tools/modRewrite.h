// nebctl rewrite: a database loaded and written again, never a read-only one.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunRewrite(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
