// Files that no record names any more, kept until the program ends: below Temp of their database,
// so that they come here and go back by a rename. What a session that was cut short has left here
// goes with the next one. For History.
#pragma once

#include <QString>

namespace neb {

class UndoFiles {
  public:
    // DBPath with closing separator.
    explicit UndoFiles(const QString& DBPath);
    ~UndoFiles();
    UndoFiles(const UndoFiles&) = delete;
    UndoFiles& operator=(const UndoFiles&) = delete;

    // Where the file, folder or link lies now; empty, and it is where it was, where it cannot be
    // moved: to another disk, say.
    QString Take(const QString& Path);
    // A second name, or a copy where the file system has no second names; empty where there is no
    // room for one.
    QString Hold(const QString& Path);
    // It goes for good, as far as it can.
    void Drop(const QString& Kept);
    // Puts it back to where there is nothing, or in the place of a file, with its line in the
    // album's check sums. Throws Fault; it is still here then.
    void PutBack(const QString& Kept, const QString& Path);

  private:
    QString NextPlace();

    const QString mDBPath, mFolder;
    int mCount = 0;
};

}  // namespace neb
