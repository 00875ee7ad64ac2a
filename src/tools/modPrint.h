// nebctl print: an album or a show as a PDF of sheets, as the program prints them. It changes
// nothing in the database.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunPrint(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
