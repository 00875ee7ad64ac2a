// Which files count as pictures, and the walks over directories that look for them. Used by the
// import windows, the directory selector and the command line.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>

namespace neb {

// Whether the name ends in one of the picture extensions, without regard to case.
bool IsPictureName(const QString& Name);

// Asked after every directory entry; false ends the walk at once.
using WalkPoll = std::function<bool()>;
// Lets events run now and then, however many entries there are, and asks GoesOn whenever it has.
WalkPoll YieldingPoll(std::function<bool()> GoesOn);

// The full paths of a directory's pictures in listing order, then, when Recurse, those of its
// subdirectories, depth first. A directory that cannot be listed holds none; a symbolic link back
// to a directory on the way down is not entered. Pictures found before a stop are in the list.
QStringList ScanDirectory(const QString& Directory, bool Recurse, const WalkPoll& Poll);

// The number of pictures that can be opened; 0 for a path that does not exist. Poll as above.
std::int32_t CountGraphicFiles(const QString& Directory, bool Recurse, const WalkPoll& Poll);

}  // namespace neb
