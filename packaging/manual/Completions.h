// What bash proposes behind the names of the two programs, made of the tables that their own --help
// prints. Used by neb-make-package-files.
#pragma once

#include <QByteArray>

namespace neb {

QByteArray ProgramCompletion();  // a script that bash-completion loads for neb-slide-show
QByteArray ToolCompletion();     // the same for nebctl

}  // namespace neb
