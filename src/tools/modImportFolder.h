// nebctl import: a folder of pictures into an album and, if wanted, a show, by the rules of the
// import windows.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunImport(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
