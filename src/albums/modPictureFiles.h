// The walks over directories that look for pictures, and where they may not look. Used by the
// import windows, the directory selector and the command line.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>

#include "support/Answer.h"
#include "support/KeepGoing.h"
#include "support/MediaTypes.h"
#include "support/work/Job.h"

namespace neb {

// The folder of the albums below Root is no source of pictures: a path that begins like it, to the
// letter, is refused. Root ends in a separator.
Answer<> CheckSource(const QString& Path, const QString& Root);

// The full paths of a directory's pictures in listing order, then, when Recurse, those of its
// subdirectories, depth first. A directory that cannot be listed holds none; a symbolic link back
// to a directory on the way down is not entered. GoOn is asked after every entry; pictures found
// before it ends the walk are in the list.
QStringList ScanDirectory(const QString& Directory, bool Recurse, const KeepGoing& GoOn);

// The number of pictures that can be opened, in the directory and, when Recurse, all below it; 0
// for a path that does not exist. Works for a job; ended by Stop: what was counted until then.
std::int32_t CountGraphicFiles(const QString& Directory, bool Recurse, JobState& Count);

}  // namespace neb
