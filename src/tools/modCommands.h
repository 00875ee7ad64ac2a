// The commands of nebctl as one table, and the choice among them. A new command is a new row, which
// carries its usage, its help and its handler; a new part of "effects" is a row in modEffects.cpp.
#pragma once

#include <QStringList>
#include <span>
#include <string>

#include "tools/words/ToolIO.h"

namespace neb {

enum class Wants { Nothing, Drawing };  // Drawing: the toolkit's fonts and readers

struct Command {
    const char* Name;
    const char* Arguments;                                 // as the usage line shows them
    const char* Summary;                                   // one line for the list of commands
    const char* Help;                                      // the rest of the command's own help
    int (*Run)(const QStringList& Arguments, ToolIO& IO);  // returns the exit code
    Wants Needs = Wants::Nothing;
    void (*PrintMoreHelp)(std::ostream& Stream) = nullptr;  // for one with a table of its own
};

std::span<const Command> Commands();
// The help without its usage lines, that of a table of its own included.
std::string HelpOf(const Command& Row);
const Command* FindCommand(const QString& Name);  // nullptr: there is none

// Runs what the arguments (without the program's name) ask for and returns the exit code. Faults
// end as a line on Err.
int RunTool(const QStringList& Arguments, ToolIO& IO);

}  // namespace neb
