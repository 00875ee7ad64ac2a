// nebctl history: the earlier states that a database keeps of itself, and what differs from now.
#pragma once

#include <QStringList>
#include <optional>

#include "db/records/Generations.h"
#include "tools/words/ToolIO.h"

namespace neb {

int RunHistory(const QStringList& Arguments, ToolIO& IO);

// For the other commands: the time of a state as the history shows it, and a line on Err where the
// records of before could not be kept (WriteDatabase).
QString TextOfTime(const Generation& Each);
void TellNotKept(ToolIO& IO, const std::optional<Fault>& Reason);

}  // namespace neb
