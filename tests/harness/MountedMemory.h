// A medium that a test may take away: memory mounted on a directory. Only the administrator may
// mount; a test that is run by anybody else asks IsThere and is skipped.
#pragma once

#include <sys/mount.h>

#include <QString>

namespace neb::harness {

class MountedMemory {
  public:
    explicit MountedMemory(const QString& Dir, const char* Options = "size=64m")
        : mDir(Dir), mIsThere(mount("none", qPrintable(Dir), "tmpfs", 0, Options) == 0) {}
    ~MountedMemory() { TakeAway(); }
    MountedMemory(const MountedMemory&) = delete;
    MountedMemory& operator=(const MountedMemory&) = delete;

    bool IsThere() const { return mIsThere; }
    // As a stick that is pulled out: at once, whoever may be reading it.
    void TakeAway() {
        if (mIsThere) mIsThere = umount2(qPrintable(mDir), MNT_DETACH) != 0;
    }

  private:
    QString mDir;
    bool mIsThere;
};

}  // namespace neb::harness
