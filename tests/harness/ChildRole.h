// Work that a test has done by a second copy of its own program, so that a crash or a limit of
// memory hits the copy alone. Started with "--role NAME", the program runs the role and ends.
#pragma once

#include <map>
#include <string>

namespace neb::harness {

using Role = int (*)();  // the exit code of the copy

inline std::map<std::string, Role>& Roles() {
    static std::map<std::string, Role> Known;
    return Known;
}

// Declared at namespace level beside the test that starts the copy.
struct ChildRole {
    ChildRole(const char* Name, Role Run) { Roles()[Name] = Run; }
};

}  // namespace neb::harness
