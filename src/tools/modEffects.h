// nebctl effects: looks at the transitions without a display: lists and measures them, draws single
// frames and the sheet of all of them.
#pragma once

#include <QStringList>

#include "tools/words/ToolIO.h"

namespace neb {

int RunEffects(const QStringList& Arguments, ToolIO& IO);
void PrintEffectsHelp(std::ostream& Stream);  // of each of its parts

}  // namespace neb
