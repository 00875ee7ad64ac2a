// A file that is written beside the one whose place it is to take: until then that one stays as it
// is, and afterwards nothing is beside it. Used by what writes documents piece by piece.
#pragma once

#include <optional>

#include "support/files/modHostFiles.h"

namespace neb {

class FileBeside {
  public:
    explicit FileBeside(const QString& Path);  // throws Fault with that path, as all of these
    ~FileBeside();                             // the file goes unless it took its place
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void Write(const char* Data, qint64 Length);
    void TakePlace();  // all of it is on the disk before

  private:
    const QString mPath, mBeside;
    std::optional<HostWriter> mWriter;
    bool mKept = false;
};

}  // namespace neb
