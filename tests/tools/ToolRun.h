// A command of nebctl as a script calls it: its exit code and what it prints.
#pragma once

#include <sstream>

#include "tools/modCommands.h"

namespace neb::harness {

struct ToolRun {
    int Code;
    std::string Out, Err;
};

inline ToolRun Tool(const QStringList& Arguments, bool Terminal = false) {
    std::ostringstream Out, Err;
    ToolIO IO{Out, Err, Terminal};
    const int Code = RunTool(Arguments, IO);
    return {Code, Out.str(), Err.str()};
}

}  // namespace neb::harness
