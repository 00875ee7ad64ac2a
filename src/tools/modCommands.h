// The commands of nebctl as one table, and the choice among them. A new command is a new row.
#pragma once

#include <QStringList>
#include <span>

#include "tools/ToolIO.h"

namespace neb {

struct Command {
    const char* Name;
    const char* Arguments;                                 // as the usage line shows them
    const char* Summary;                                   // one line for the list of commands
    const char* Help;                                      // the rest of the command's own help
    int (*Run)(const QStringList& Arguments, ToolIO& IO);  // returns the exit code
};

std::span<const Command> Commands();

// Runs what the arguments (without the program's name) ask for and returns the exit code. Faults
// end as a line on Err.
int RunTool(const QStringList& Arguments, ToolIO& IO);

// The one directory that a command works on, without closing separator trouble; nothing after a
// line on Err when there is not exactly one argument or no such directory.
std::optional<QString> OneDirectory(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
