// The file system object that the path test asks: what exists, and forced deletion.
#pragma once

#include <QString>

#include "support/files/modHostFiles.h"

namespace neb {

class clsFileSystem {
  public:
    // A drive letter with its colon, and optionally a separator; hosts without drives have none.
    bool DriveExists(const QString& Drive) const {
#ifdef _WIN32
        return Drive.size() >= 2 && Drive.size() <= 3 && Drive[1] == u':' &&
               neb::FolderExists(Drive.left(2) + u'/');
#else
        Q_UNUSED(Drive);
        return false;
#endif
    }
    bool FileExists(const QString& Path) const {
        return neb::FileExists(Path);
    }
    bool FolderExists(const QString& Path) const {
        return neb::FolderExists(Path);
    }
    void DeleteFile(const QString& Path) const {
        neb::DeleteFile(Path);
    }
};

}  // namespace neb
