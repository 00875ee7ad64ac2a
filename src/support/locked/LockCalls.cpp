#include <errno.h>
#include <sched.h>
#include <seccomp.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <initializer_list>
#include <set>
#include <string>

#include "support/locked/Lock.h"

namespace neb {
namespace {

// Names rather than numbers: each processor and each C library has its own of them, and those that
// this one does not have are left out.
struct Calls {
    bool ForThreadsAlone;
    std::initializer_list<const char*> Names;
};

const Calls Always[] = {
    // memory that is the process's own; to make some is below
    {false, {"brk", "munmap", "mremap"}},
    // the time of day, and how much of it has been taken
    {false,
     {"clock_gettime", "clock_gettime64", "clock_getres", "clock_getres_time64", "gettimeofday",
      "time", "times", "getrusage"}},
    // an end, by itself or at a fault
    {false, {"exit", "exit_group", "rt_sigreturn", "sigreturn", "restart_syscall"}},
    // locks between threads, which libraries use with one thread too
    {false, {"futex", "futex_time64", "sched_yield"}},
    // who it is, what machine it is on and a random number: nothing of the user's is told
    {false,
     {"getpid", "gettid", "getuid", "geteuid", "getgid", "getegid", "getuid32", "geteuid32",
      "getgid32", "getegid32", "sched_getaffinity", "sysinfo", "uname", "getcpu", "getrandom"}},
    // what the C library does at the start of a thread; the thread itself is below
    {true, {"set_robust_list", "rseq", "sched_getparam", "sched_getscheduler"}},
};

// Answered with an error and left undone, where a library cannot be kept from asking.
struct Refusal {
    const char* Name;
    int Error;
};
const Refusal Refused[] = {
    // where no /proc tells where the program lies, Qt asks for the folder that it was started in:
    // there is none any more
    {"getcwd", ENOENT},
    // the C library asks what a stream is before its first byte: there is no stream any more
    {"newfstatat", EBADF},
    {"fstat", EBADF},
    {"fstat64", EBADF},
    {"fstatat64", EBADF},
    {"statx", EBADF},
};

class Filter {
  public:
    Filter() : mFilter(::seccomp_init(SCMP_ACT_KILL_PROCESS)) {
        if (!mFilter) return;
        ::seccomp_attr_set(mFilter, SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS);
        ::seccomp_attr_set(mFilter, SCMP_FLTATR_CTL_TSYNC, 1);
    }
    ~Filter() {
        if (mFilter) ::seccomp_release(mFilter);
    }
    Filter(const Filter&) = delete;
    Filter& operator=(const Filter&) = delete;

    void Allow(const char* Name, std::initializer_list<scmp_arg_cmp> Where = {}) {
        if (Add(SCMP_ACT_ALLOW, Name, Where)) mAllowed.insert(Name);
    }
    void Refuse(const char* Name, int Error, std::initializer_list<scmp_arg_cmp> Where = {}) {
        Add(SCMP_ACT_ERRNO(static_cast<unsigned>(Error)), Name, Where);
    }
    // The number of those allowed; 0 where there is no filter.
    int Load() {
        const bool On = mFilter && mIsWhole && ::seccomp_load(mFilter) == 0;
        return On ? static_cast<int>(mAllowed.size()) : 0;
    }

  private:
    bool Add(std::uint32_t Action, const char* Name, std::initializer_list<scmp_arg_cmp> Where) {
        const int Number = ::seccomp_syscall_resolve_name(Name);
        if (!mFilter || Number < 0) return false;  // not on this processor
        const bool Added =
            ::seccomp_rule_add_array(mFilter, Action, Number, static_cast<unsigned>(Where.size()),
                                     Where.begin()) == 0;
        mIsWhole = mIsWhole && Added;
        return Added;
    }

    scmp_filter_ctx mFilter;
    std::set<std::string> mAllowed;
    bool mIsWhole = true;
};

scmp_arg_cmp Is(unsigned Argument, std::uint64_t Value) {
    return {Argument, SCMP_CMP_EQ, Value, 0};
}

scmp_arg_cmp HasOf(unsigned Argument, std::uint64_t Mask, std::uint64_t Value) {
    return {Argument, SCMP_CMP_MASKED_EQ, Mask, Value};
}

// Memory that no file stands behind and that is no program.
void AllowMemory(Filter& Its) {
    for (const char* const Name : {"mmap", "mmap2"})
        Its.Allow(Name,
                  {HasOf(2, PROT_EXEC, 0), HasOf(3, MAP_ANONYMOUS | MAP_HUGETLB, MAP_ANONYMOUS)});
    Its.Allow("mprotect", {HasOf(2, PROT_EXEC, 0)});
    // Of what the program looks at nothing is taken away.
    Its.Allow("madvise", {{2, SCMP_CMP_NE, MADV_REMOVE, 0}});
}

// The line to the program. What a library writes to the streams that are closed is lost.
void AllowLine(Filter& Its) {
    Its.Allow("read", {Is(0, LockedTalk)});
    Its.Allow("write", {Is(0, LockedTalk)});
    for (const char* const Name : {"write", "writev"})
        for (const int Stream : {STDOUT_FILENO, STDERR_FILENO})
            Its.Refuse(Name, EBADF, {Is(0, static_cast<std::uint64_t>(Stream))});
}

// Whether a stream is a terminal is asked before it is written to; any other ioctl is a device's.
void RefuseToTellOfTerminals(Filter& Its) {
    Its.Refuse("ioctl", ENOTTY, {Is(1, TCGETS)});
}

// abort(), and nothing else of a signal: to itself alone. No signal is held back, least of all the
// one that its time is up; abort() would, but does without.
void AllowAbort(Filter& Its) {
    Its.Allow("rt_sigprocmask", {Is(0, SIG_UNBLOCK)});
    for (const auto How : {SIG_BLOCK, SIG_SETMASK})
        Its.Refuse("rt_sigprocmask", EPERM, {Is(0, static_cast<std::uint64_t>(How))});
    const auto Me = static_cast<std::uint64_t>(::getpid());
    Its.Allow("tgkill", {Is(0, Me), Is(2, SIGABRT)});
}

// A thread of this process; a process of its own is another thing by its flags. What asks by
// clone3, where they cannot be seen, asks by clone after that.
void AllowThreads(Filter& Its) {
    constexpr std::uint64_t Shared = CLONE_THREAD | CLONE_VM | CLONE_SIGHAND | CLONE_FILES;
    constexpr std::uint64_t Spaces = CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET | CLONE_NEWNS |
                                     CLONE_NEWIPC | CLONE_NEWUTS | CLONE_NEWCGROUP;
    Its.Allow("clone", {HasOf(0, Shared | Spaces | CLONE_UNTRACED | CLONE_PTRACE, Shared)});
    Its.Refuse("clone3", ENOSYS);
    Its.Allow("prctl", {Is(0, PR_SET_NAME)});
    // the two signals that the C library keeps for its threads; the first thread makes them ready
    for (const std::uint64_t Own : {32, 33}) Its.Allow("rt_sigaction", {Is(0, Own)});
}

}  // namespace

int FilterSystemCalls(const LockNeeds& Needs) {
    if (IsWatchedBuild) return 0;
    Filter Its;
    for (const auto& [ForThreadsAlone, Names] : Always)
        for (const char* const Name : Names)
            if (Needs.Threads || !ForThreadsAlone) Its.Allow(Name);
    for (const auto& [Name, Error] : Refused) Its.Refuse(Name, Error);
    AllowMemory(Its);
    AllowLine(Its);
    RefuseToTellOfTerminals(Its);
    AllowAbort(Its);
    if (Needs.Threads) AllowThreads(Its);
    return Its.Load();
}

}  // namespace neb
