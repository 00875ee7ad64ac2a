#include "support/locked/Lock.h"

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace neb {
namespace {

bool DropRights() {
    // As many as there can be in the two words of a kernel's set.
    for (int Each = 0; Each < 64; ++Each) ::prctl(PR_CAPBSET_DROP, Each, 0, 0, 0);
    ::prctl(PR_CAP_AMBIENT, PR_CAP_AMBIENT_CLEAR_ALL, 0, 0, 0);
    __user_cap_header_struct Head = {_LINUX_CAPABILITY_VERSION_3, 0};
    const __user_cap_data_struct None[_LINUX_CAPABILITY_U32S_3] = {};
    return ::syscall(SYS_capset, &Head, None) == 0;
}

bool SetLimit(__rlimit_resource What) {
    const rlimit None = {0, 0};
    return ::setrlimit(What, &None) == 0;
}

}  // namespace

bool GiveUpNewPrivileges() {
    const bool Fixed = ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
    const bool NoCore = ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0;
    return DropRights() && Fixed && NoCore;
}

bool SetLimits(const LockNeeds& Needs) {
    // Not the memory that is locked for the system's own use of it: it is none of a file's.
    bool Done = true;
    for (const auto What :
         {RLIMIT_CORE, RLIMIT_MEMLOCK, RLIMIT_MSGQUEUE, RLIMIT_NICE, RLIMIT_RTPRIO})
        Done = SetLimit(What) && Done;
    // What the watchman has to say goes to a file.
    if (IsWatchedBuild) return false;
    for (const auto What : {RLIMIT_NOFILE, RLIMIT_FSIZE}) Done = SetLimit(What) && Done;
    return (Needs.Threads || SetLimit(RLIMIT_NPROC)) && Done;
}

}  // namespace neb
