// The walks over directories that look for pictures, and where they may not look. Used by the
// import windows, the directory selector and the command line.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>

#include "support/MediaTypes.h"

namespace neb {

// The folder of the albums below Root is no source of pictures: what to say of a path that begins
// like it, to the letter. Root ends in a separator.
std::optional<QString> WhyReservedForAlbums(const QString& Path, const QString& Root);

// Asked after every directory entry; false ends the walk at once.
using WalkPoll = std::function<bool()>;

// The full paths of a directory's pictures in listing order, then, when Recurse, those of its
// subdirectories, depth first. A directory that cannot be listed holds none; a symbolic link back
// to a directory on the way down is not entered. Pictures found before a stop are in the list.
QStringList ScanDirectory(const QString& Directory, bool Recurse, const WalkPoll& Poll);

// A count that may run on a helper thread: who waits for it sees how far it is and may end it.
struct RunningCount {
    std::atomic<std::int32_t> SoFar = 0;
    std::atomic<bool> Stop = false;
};

// The number of pictures that can be opened, in the directory and, when Recurse, all below it; 0
// for a path that does not exist. Ended by Stop: what was counted until then.
std::int32_t CountGraphicFiles(const QString& Directory, bool Recurse, RunningCount& Count);

}  // namespace neb
