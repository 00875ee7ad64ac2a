// Walks over files and lists of directories, as fast as the host can list names: for work that
// asks for names and numbers alone. They may run on helper threads. Used by the count of pictures
// and the tree of directories.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "support/KeepGoing.h"

namespace neb {

struct FileWalk {
    // Whether a file of this name (in the host's own encoding, without directory) is looked for.
    std::function<bool(std::string_view Name)> Wants;
    // A wanted name of an ordinary file that the user may read. Links to files are files; hidden
    // files (HiddenNames.h) are none, and hidden folders below Dir are not entered.
    std::function<void()> Found;
    // Asked after every entry of a directory; false ends the walk at once.
    KeepGoing GoOn;
};

// In the order in which the host lists. Walks a directory and, when Recurse, all below it, whatever
// the depth. What cannot be listed holds nothing. Links to directories are followed, but never to
// one on the way down.
void WalkFiles(const QString& Dir, bool Recurse, const FileWalk& Walk);

// The number of the medium on which a directory lies at the moment: another one when a medium has
// been unmounted from under the path. None when there is no directory or it does not answer.
std::optional<std::uint64_t> MediumOf(const QString& Dir);

// The order in which directories are shown: without regard to case, equal ones by character code.
bool FolderNameLess(const QString& A, const QString& B);
// The names of the directories in a directory, links to directories too, in that order; hidden
// ones are left out. Empty when it cannot be listed.
QStringList ListFolders(const QString& Dir);

}  // namespace neb
