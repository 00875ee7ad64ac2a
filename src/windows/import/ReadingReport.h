// What a reading of directories and files has passed over, and why: told at its end, by name. The
// import windows have one from each reading.
#pragma once

#include <QString>
#include <QStringList>

namespace neb {

struct ReadingReport {
    QStringList Unreadable;  // a line each: the picture, and why
    QStringList OtherFiles;  // files of a kind that is no picture's
    QStringList Folders;     // a line each: a directory that could not be listed, and why

    bool IsEmpty() const { return Unreadable.isEmpty() && !HasFoldersOrOthers(); }
    // Whether there may be pictures among it that the user misses: films and texts beside the
    // pictures are nothing to stop anybody for.
    bool HasMissing() const { return !Unreadable.isEmpty() || !Folders.isEmpty(); }
    // "12 files were passed over."
    QString Line() const;
    // Shows all of it in a box, the names in its details.
    void Tell() const;

  private:
    bool HasFoldersOrOthers() const { return !Folders.isEmpty() || !OtherFiles.isEmpty(); }
    QString Text() const;
    QString Details() const;
};

}  // namespace neb
