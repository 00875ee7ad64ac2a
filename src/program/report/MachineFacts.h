// What the program runs on, as far as it can be told without opening anything: for the report of a
// problem.
#pragma once

#include <QStringList>

namespace neb {

// Version and build, toolkit, system, desktop, screens, processors, memory, language, sound; a line
// each, in English.
QStringList MachineFacts();

// By what the user and his computer are called here: to be left out of whatever is sent.
QStringList UserNames();

}  // namespace neb
