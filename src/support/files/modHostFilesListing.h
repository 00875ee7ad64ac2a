// A directory while it is listed, by the host's own calls: for the host file routines alone.
// Listings of hundreds of thousands of names go through here.
#pragma once

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace neb {

class OpenDir {
  public:
    explicit OpenDir(const std::string& Path) : mDir(opendir(Path.c_str())) {
        if (!mDir) mError = std::error_code(errno, std::generic_category());
    }
    ~OpenDir() {
        if (mDir) closedir(mDir);
    }
    OpenDir(const OpenDir&) = delete;
    OpenDir& operator=(const OpenDir&) = delete;

    explicit operator bool() const { return mDir != nullptr; }
    int Number() const { return dirfd(mDir); }
    // Null at the end, and when the listing breaks off: Error tells which.
    const dirent* Next() {
        errno = 0;
        const dirent* Entry = readdir(mDir);
        if (!Entry && errno != 0) mError = std::error_code(errno, std::generic_category());
        return Entry;
    }
    const std::error_code& Error() const { return mError; }

  private:
    DIR* mDir;
    std::error_code mError;
};

enum class Kind { Folder, File, Other };

// Of what a link leads to. The listing mostly tells, and the host need not be asked once more.
inline Kind KindOf(const OpenDir& Dir, const dirent& Entry) {
    if (Entry.d_type == DT_DIR) return Kind::Folder;
    if (Entry.d_type == DT_REG) return Kind::File;
    if (Entry.d_type != DT_LNK && Entry.d_type != DT_UNKNOWN) return Kind::Other;
    struct stat Real = {};
    if (fstatat(Dir.Number(), Entry.d_name, &Real, 0) != 0) return Kind::Other;
    if (S_ISDIR(Real.st_mode)) return Kind::Folder;
    return S_ISREG(Real.st_mode) ? Kind::File : Kind::Other;
}

inline bool IsLink(const OpenDir& Dir, const dirent& Entry) {
    if (Entry.d_type != DT_UNKNOWN) return Entry.d_type == DT_LNK;
    struct stat Own = {};
    return fstatat(Dir.Number(), Entry.d_name, &Own, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISLNK(Own.st_mode);
}

// "." and "..".
inline bool IsDots(const char* Name) {
    return Name[0] == '.' && (Name[1] == '\0' || (Name[1] == '.' && Name[2] == '\0'));
}

}  // namespace neb
