// A hostile program in the locked room reaches for all that there is outside: it ends, or gets
// nothing, and nothing outside has changed.
#include <fcntl.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include "support/locked/HostileProcess.h"
#include "support/locked/OutsideWorld.h"

namespace neb {
namespace {

class Lock : public ::testing::Test {
  protected:
    void SetUp() override { SKIP_WHERE_WATCHED(); }

    // It has ended, the next is there at once, and nobody outside has seen anything.
    void ExpectEnds(LockedEnd How, const Task& Its) {
        {
            LockedPool::Lent Process(mPool);
            EXPECT_EQ(How, OutcomeOf(*Process, Its).End);
        }
        LockedPool::Lent Next(mPool);
        EXPECT_TRUE(OutcomeOf(*Next, {}).Answered);
        EXPECT_TRUE(mOutside.IsUntouched());
    }

    OutsideWorld mOutside;
    LockedPool mPool{HostileProgram(), 1};
};

TEST_F(Lock, IsFullWhereTheKernelHasAllOfIt) {
    const LockReport Report = LockedProcess(HostileProgram()).Report();
    EXPECT_TRUE(Report.IsLocked());
    EXPECT_GT(Report.SystemCalls, 20);
    EXPECT_LT(Report.SystemCalls, 45);
}

TEST_F(Lock, LetsItDoItsWork) {
    LockedProcess Process(HostileProgram());
    for (int I = 0; I < 3; ++I) {
        const Outcome Its = OutcomeOf(Process, {});
        EXPECT_TRUE(Its.Answered);
        EXPECT_EQ(1, Its.Result);
    }
}

TEST_F(Lock, EndsWhatOpensAFileByWhicheverWay) {
    const QByteArray Path = mOutside.WitnessPath();
    for (const QByteArray& Each :
         {Path, QByteArray("/proc/self/root" + Path), QByteArray("../../../../../../../.." + Path)})
        ExpectEnds(LockedEnd::Forbidden, {Deed::OpenToSpoil, {}, Each});
    for (const long Call : {SYS_open, SYS_creat, SYS_truncate, SYS_unlink, SYS_rmdir, SYS_readlink,
                            SYS_chdir, SYS_stat, SYS_access})
        ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {Call, AtText, 0}, Path});
    for (const long Call :
         {SYS_openat, SYS_openat2, SYS_unlinkat, SYS_faccessat, SYS_mknodat, SYS_name_to_handle_at})
        ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {Call, AT_FDCWD, AtText, 0}, Path});
}

TEST_F(Lock, EndsWhatReachesForTheNetwork) {
    ExpectEnds(LockedEnd::Forbidden, {Deed::ReachTcp, {mOutside.Port()}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::ReachSocket, {}, mOutside.SocketPath()});
    ExpectEnds(LockedEnd::Forbidden, {Deed::ReachName, {}, mOutside.Name()});
}

TEST_F(Lock, EndsWhatStartsAnotherProcess) {
    ExpectEnds(LockedEnd::Forbidden, {Deed::Fork});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Thread});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_execve, AtText, 0, 0}, "/bin/true"});
    ExpectEnds(LockedEnd::Forbidden,
               {Deed::Call, {SYS_execveat, AT_FDCWD, AtText, 0, 0}, "/bin/true"});
    for (const long Call : {SYS_fork, SYS_vfork, SYS_clone, SYS_clone3})
        ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {Call}});
}

TEST_F(Lock, EndsWhatReachesForTheProgramInFront) {
    const long Program = ::getpid();
    for (const long Signal : {SIGUSR1, SIGKILL})
        ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_kill, Program, Signal}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_tgkill, Program, Program, SIGABRT}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_tkill, Program, SIGUSR1}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_ptrace, PTRACE_ATTACH, Program}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_process_vm_readv, Program}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_process_vm_writev, Program}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_pidfd_open, Program}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_prlimit64, Program}});
}

TEST_F(Lock, EndsWhatWritesToAnyDescriptorButItsLine) {
    for (const long Each : {0L, 4L, 5L, 6L, 17L, 1023L, -1L})
        ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_write, Each, AtText, 1}, "x"});
    for (const long Each : {0L, 1L, 2L, 4L, 5L, 1023L})
        ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_read, Each, 0, 0}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::WriteAll});
}

TEST_F(Lock, LosesWhatALibrarySaysToTheStreams) {
    LockedProcess Process(HostileProgram());
    for (const long Stream : {STDOUT_FILENO, STDERR_FILENO}) {
        const Outcome Its =
            OutcomeOf(Process, {Deed::Call, {SYS_write, Stream, AtText, 4}, "word"});
        EXPECT_EQ(-1, Its.Result);
        EXPECT_EQ(EBADF, Its.Error);
    }
    EXPECT_TRUE(OutcomeOf(Process, {}).Answered);
}

TEST_F(Lock, EndsWhatMakesAProgramOfItsMemory) {
    constexpr long Private = MAP_PRIVATE | MAP_ANONYMOUS;
    LockedProcess Process(HostileProgram());
    EXPECT_GT(OutcomeOf(Process, {Deed::Call, {SYS_mmap, 0, 4096, PROT_READ | PROT_WRITE, Private}})
                  .Result,
              0);
    for (const long Mode : {PROT_EXEC, PROT_READ | PROT_EXEC, PROT_READ | PROT_WRITE | PROT_EXEC})
        ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_mmap, 0, 4096, Mode, Private}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_mprotect, AtText, 4096, PROT_EXEC}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_mmap, 0, 4096, PROT_READ, MAP_SHARED}});
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {SYS_pkey_mprotect, AtText, 4096, PROT_EXEC}});
}

TEST_F(Lock, EndsWhatTriesTheEntranceForOtherPrograms) {
#if defined(__x86_64__)
    ExpectEnds(LockedEnd::Forbidden, {Deed::OldDoor});
    constexpr long OtherNumbers = 0x40000000;
    ExpectEnds(LockedEnd::Forbidden, {Deed::Call, {OtherNumbers | SYS_getpid}});
#else
    GTEST_SKIP() << "this processor has one entrance";
#endif
}

TEST_F(Lock, LetsNoThreadBeMadeAnythingButAThread) {
    const Told Threads(BeLike, "threads");
    LockedProcess Process(HostileProgram());
    EXPECT_EQ(42, OutcomeOf(Process, {Deed::Thread}).Result);
    EXPECT_EQ(ENOSYS, OutcomeOf(Process, {Deed::Call, {SYS_clone3}}).Error);
    EXPECT_EQ(LockedEnd::Forbidden, OutcomeOf({Deed::Fork}).End);
    constexpr long Thread = CLONE_THREAD | CLONE_VM | CLONE_SIGHAND | CLONE_FILES;
    for (const long Flags : {long(SIGCHLD), long(CLONE_VM | CLONE_VFORK | SIGCHLD),
                             Thread | CLONE_NEWUSER, Thread & ~CLONE_THREAD})
        EXPECT_EQ(LockedEnd::Forbidden, OutcomeOf({Deed::Call, {SYS_clone, Flags, 0, 0}}).End);
    EXPECT_EQ(LockedEnd::Forbidden,
              OutcomeOf({Deed::Call, {SYS_execve, AtText, 0, 0}, "/bin/true"}).End);
}

TEST_F(Lock, IsNotBelievedInWhereAThreadWasStartedBefore) {
    const Told Busy(BeLike, "busy");
    const LockReport Report = LockedProcess(HostileProgram()).Report();
    EXPECT_EQ(0, Report.Landlock) << "it holds for one thread alone";
    EXPECT_FALSE(Report.NoNewPrivileges);
    EXPECT_FALSE(Report.IsLocked());
    EXPECT_GT(Report.SystemCalls, 0) << "the filter is on all of them";
}

}  // namespace
}  // namespace neb
