#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "support/locked/Lock.h"

namespace neb {
namespace {

constexpr const char* EmptyAsCanBe = "mode=0555,size=4k,nr_inodes=1";

// Nothing of it is seen outside: what is mounted here stays here. The new root lies on the old one,
// which is then taken away from under it, with all that was mounted in it.
bool ChangeRoot() {
    constexpr unsigned long Bare = MS_RDONLY | MS_NOSUID | MS_NODEV | MS_NOEXEC;
    return ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("none", "/", "tmpfs", Bare, EmptyAsCanBe) == 0 && ::chdir("/..") == 0 &&
           ::syscall(SYS_pivot_root, ".", ".") == 0 && ::umount2(".", MNT_DETACH) == 0 &&
           ::chdir("/") == 0;
}

// Where the root is no mount of its own, as behind chroot: one that is nowhere mounted at all.
bool StepOutOfRoot() {
    constexpr unsigned Create = 6;  // FSCONFIG_CMD_CREATE; <linux/mount.h> clashes with ours
    constexpr unsigned Bare = 0xF;  // MOUNT_ATTR_: RDONLY, NOSUID, NODEV, NOEXEC
    constexpr unsigned CloseOnExec = 1;
    const auto Kind = static_cast<int>(::syscall(SYS_fsopen, "tmpfs", CloseOnExec));
    if (Kind < 0) return false;
    ::syscall(SYS_fsconfig, Kind, Create, nullptr, nullptr, 0);
    const auto Root = static_cast<int>(::syscall(SYS_fsmount, Kind, CloseOnExec, Bare));
    ::close(Kind);
    if (Root < 0) return false;
    const bool Done = ::fchdir(Root) == 0 && ::chroot(".") == 0 && ::chdir("/") == 0;
    ::close(Root);
    return Done;
}

}  // namespace

OwnSpaces EnterOwnSpaces() {
    // Gives the rights to all others. An administrator has them where this is refused.
    ::unshare(CLONE_NEWUSER);
    ::unshare(CLONE_NEWIPC);
    ::unshare(CLONE_NEWUTS);
    return {.Root = ::unshare(CLONE_NEWNS) == 0, .Network = ::unshare(CLONE_NEWNET) == 0};
}

bool LeaveFiles() {
    return ChangeRoot() || StepOutOfRoot();
}

}  // namespace neb
