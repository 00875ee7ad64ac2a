// nebctl sandbox: how far the processes are locked that read foreign pictures and sounds.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunSandbox(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
