// The search for pictures in a directory tree, without a window: which names and types count, and
// the walk, which runs on a thread of its own so that a slow or dead medium holds nobody up. Find
// Graphics takes what it has found, directory by directory, in the order in which people read
// names.
#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <system_error>
#include <vector>

#include "support/files/modHostFiles.h"
#include "support/work/Job.h"

namespace neb {

// The entries of the list of types, such as "JPEG/JPG", for the kinds that count now.
QStringList GraphicTypes();
// Whether an upper-cased extension with its period is one of the selected entries.
bool IsSelectedType(const QString& Extension, const QStringList& Selected);
// What a file name filter that somebody typed is taken for: a wild-card mask.
QString NormalFilter(const QString& Text);

// The texts of the list of results: the size in KB, and the date and time of the last change
// (local time).
QString SizeText(qint64 Bytes);
QString DateText(qint64 SecondsSince1970);

// One directory of the walk.
struct SearchStep {
    QString Directory;               // as it was given, or its parent's and its name
    std::vector<QStringList> Files;  // name, path with separator, size, date
    std::error_code Error;  // it could not be listed to the end; the walk goes on behind it, but
                            // not where the medium has gone (no_such_device)
};

// The folders of a database in which nothing lies that could be imported: its albums, and what the
// program keeps for itself.
QStringList OwnFolders(const QString& DBPath);

class GraphicsSearch {
  public:
    using Lister = std::function<std::vector<DirEntry>(const QString& Dir, std::error_code&)>;

    // Begins to walk. The filter is a normal one. A directory that does not exist holds nothing; a
    // symbolic link back to a directory on the way down is not entered, nor are those LeftOut.
    GraphicsSearch(const QString& Directory, const QString& Filter, const QStringList& Types,
                   Lister List = {}, const QStringList& LeftOut = {});
    ~GraphicsSearch();  // the walk ends
    GraphicsSearch(const GraphicsSearch&) = delete;
    GraphicsSearch& operator=(const GraphicsSearch&) = delete;

    // Waits so long at most; false when the next directory is not there yet.
    bool Wait(int Milliseconds);
    bool AtEnd() const;  // known after a Wait that was true
    SearchStep Take();   // after a Wait that was true, not at the end

  private:
    struct Shared;
    class Walk;
    std::shared_ptr<Shared> mShared;
    std::unique_ptr<Job<>> mJob;
};

}  // namespace neb
