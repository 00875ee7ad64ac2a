// nebctl transfer: an album or a show from one database to another, by the rules of the transfer
// windows.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunTransfer(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
