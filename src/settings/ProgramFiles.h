// Where the files lie that come with the program: its pictures, its help, the times of its
// transitions. They are only ever read. Used by AppPath.
#pragma once

#include <QString>

namespace neb {

// Of a program in this directory, with closing separator: share/neb-slide-show beside it where it
// is installed, else the directory itself.
QString ProgramFilesOf(const QString& ProgramDir);

}  // namespace neb
