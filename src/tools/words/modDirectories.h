// The directories that the words of a command name.
#pragma once

#include <QStringList>
#include <optional>

#include "tools/words/ToolIO.h"

namespace neb {

// The database directory that a command works on, with closing separator: the argument itself or,
// where that is a documents folder, the database that the program keeps below it. Nothing after a
// line on Err when there is not exactly one argument or no such directory.
std::optional<QString> OneDirectory(const QStringList& Arguments, ToolIO& IO);
// Any folder that is there, with closing separator; nothing after a line on Err.
std::optional<QString> FolderNamed(const QString& Argument, ToolIO& IO);

}  // namespace neb
