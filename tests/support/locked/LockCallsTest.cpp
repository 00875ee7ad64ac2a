// Every system call that there is, with the filter as the one measure: it holds by itself.
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/syscall.h>

#include <set>

#include "support/locked/HostileProcess.h"
#include "support/locked/OutsideWorld.h"

namespace neb {
namespace {

// Beyond the last that any kernel has today.
constexpr long LastCall = 480;

// All that the room lets through or answers with an error: written down here once more, so that
// nobody adds to it unseen.
std::set<long> Known() {
    return {
        SYS_brk, SYS_munmap, SYS_mremap, SYS_madvise, SYS_mmap, SYS_mprotect,
            // time
            SYS_clock_gettime, SYS_clock_getres, SYS_gettimeofday, SYS_getrusage, SYS_times,
#if defined(SYS_time)
            SYS_time,
#endif
            // the end
            SYS_exit, SYS_exit_group, SYS_rt_sigprocmask, SYS_rt_sigreturn, SYS_restart_syscall,
            // locks
            SYS_futex, SYS_sched_yield,
            // who and where
            SYS_getpid, SYS_gettid, SYS_getuid, SYS_geteuid, SYS_getgid, SYS_getegid,
            SYS_sched_getaffinity, SYS_sysinfo, SYS_uname, SYS_getcpu, SYS_getrandom,
            // answered with an error
            SYS_newfstatat, SYS_fstat, SYS_statx, SYS_getcwd
    };
}

// A debugger's probes, which newer kernels let pass every filter: a signal or an error where there
// is none.
bool IsOfProbes([[maybe_unused]] long Call) {
#if defined(__x86_64__)
    return Call == 335 || Call == 336;
#else
    return false;
#endif
}

TEST(LockCalls, ThatAreNotListedEndTheProcess) {
    SKIP_WHERE_WATCHED();
    const Told Alone(OnlyThis, "filter");
    const std::set<long> Listed = Known();
    for (long Call = 0; Call <= LastCall; ++Call) {
        if (Listed.contains(Call)) continue;
        // a descriptor that is none: read and write are for the line alone
        const Outcome Its = OutcomeOf({Deed::Call, {Call, -1, -1, -1, -1}});
        if (IsOfProbes(Call)) {
            EXPECT_TRUE(Its.End != LockedEnd::None || Its.Error != 0) << "call " << Call;
            continue;
        }
        ASSERT_EQ(LockedEnd::Forbidden, Its.End) << "call " << Call;
    }
}

TEST(LockCalls, ThatAskWhatAStreamIsGetNoAnswer) {
    SKIP_WHERE_WATCHED();
    const Told Alone(OnlyThis, "filter");
    LockedProcess Process(HostileProgram());
    for (const long Call : {SYS_newfstatat, SYS_fstat, SYS_statx})
        EXPECT_EQ(EBADF, OutcomeOf(Process, {Deed::Call, {Call, AT_FDCWD, AtText}, "/"}).Error);
    EXPECT_EQ(ENOTTY, OutcomeOf(Process, {Deed::Call, {SYS_ioctl, 2, TCGETS}}).Error);
}

TEST(LockCalls, ThatAskForTheFolderFindNone) {
    SKIP_WHERE_WATCHED();
    const Told Alone(OnlyThis, "filter");
    EXPECT_EQ(ENOENT, OutcomeOf({Deed::Call, {SYS_getcwd, 0, 0}}).Error);
}

// The program would look at memory that it then had to find anew.
TEST(LockCalls, ThatTakeAwayWhatTheProgramLooksAtEndTheProcess) {
    SKIP_WHERE_WATCHED();
    const Told Alone(OnlyThis, "filter");
    constexpr long Page = 4096;
    EXPECT_EQ(LockedEnd::Forbidden,
              OutcomeOf({Deed::Call, {SYS_madvise, 0, Page, MADV_REMOVE}}).End);
    EXPECT_EQ(LockedEnd::None, OutcomeOf({Deed::Call, {SYS_madvise, 0, 0, MADV_DONTNEED}}).End);
}

// Among them the one that says that its time is up.
TEST(LockCalls, ThatHoldSignalsBackAreRefused) {
    SKIP_WHERE_WATCHED();
    const Told Alone(OnlyThis, "filter");
    for (const long How : {SIG_BLOCK, SIG_SETMASK})
        EXPECT_EQ(EPERM, OutcomeOf({Deed::Call, {SYS_rt_sigprocmask, How, 0, 0, 8}}).Error);
}

// What each measure keeps shut where it is the only one that a kernel has.
struct Alone {
    const char* Measure;
    LockedEnd End;
    int File, Tcp, Socket, Name, Signal;  // errors; 0: it lets that be
};
constexpr Alone Measures[] = {
    {"filter", LockedEnd::Forbidden, 0, 0, 0, 0, 0},
    {"landlock", LockedEnd::None, EACCES, EACCES, 0, EPERM, EPERM},
    {"namespaces", LockedEnd::None, ENOENT, ENETUNREACH, ENOENT, ECONNREFUSED, 0},
    {"limits", LockedEnd::None, EMFILE, EMFILE, EMFILE, EMFILE, 0},
};

class AMeasure : public ::testing::TestWithParam<Alone> {
  protected:
    void SetUp() override {
        SKIP_WHERE_WATCHED();
        const LockReport Report = LockedProcess(HostileProgram()).Report();
        constexpr int WithScopes = 6;
        if (Is("landlock") && Report.Landlock < WithScopes)
            GTEST_SKIP() << "Landlock of version " << Report.Landlock;
        if (Is("namespaces") && !(Report.EmptyRoot && Report.OwnNetwork))
            GTEST_SKIP() << "no namespaces";
    }
    bool Is(const char* Name) const { return std::strcmp(GetParam().Measure, Name) == 0; }
    void ExpectShut(int Error, const Task& Its) {
        if (Error == 0 && GetParam().End == LockedEnd::None) return;
        const Outcome Came = OutcomeOf(Its);
        EXPECT_EQ(GetParam().End, Came.End);
        EXPECT_EQ(Error, Came.Error);
        EXPECT_TRUE(mOutside.IsUntouched());
    }

    OutsideWorld mOutside;
    Told mAlone{OnlyThis, GetParam().Measure};
};

TEST_P(AMeasure, KeepsFilesAndNetworkShutByItself) {
    const Alone& Its = GetParam();
    const QByteArray Path = mOutside.WitnessPath();
    ExpectShut(Its.File, {Deed::OpenToSpoil, {}, Path});
    ExpectShut(Its.File, {Deed::OpenToSpoil, {}, "../../../../../../.." + Path});
    ExpectShut(Its.Tcp, {Deed::ReachTcp, {mOutside.Port()}});
    ExpectShut(Its.Socket, {Deed::ReachSocket, {}, mOutside.SocketPath()});
    ExpectShut(Its.Name, {Deed::ReachName, {}, mOutside.Name()});
    ExpectShut(Its.Signal, {Deed::Call, {SYS_kill, ::getpid(), SIGUSR1}});
}

INSTANTIATE_TEST_SUITE_P(Alone, AMeasure, ::testing::ValuesIn(Measures),
                         [](const auto& Info) { return std::string(Info.param.Measure); });

// The tests above would see it.
TEST(NoMeasure, LeavesEverythingOpen) {
    const Told None(OnlyThis, "none");
    EXPECT_EQ(LockReport(), LockedProcess(HostileProgram()).Report());
    for (const Deed Each :
         {Deed::OpenToSpoil, Deed::ReachTcp, Deed::ReachSocket, Deed::ReachName, Deed::Call}) {
        OutsideWorld Outside;
        const QByteArray Text = Each == Deed::OpenToSpoil   ? Outside.WitnessPath()
                                : Each == Deed::ReachSocket ? Outside.SocketPath()
                                                            : Outside.Name();
        const std::int64_t First = Each == Deed::Call ? SYS_kill : Outside.Port();
        EXPECT_GE(OutcomeOf({Each, {First, ::getpid(), SIGUSR1}, Text}).Result, 0);
        EXPECT_FALSE(Outside.IsUntouched()) << static_cast<int>(Each);
    }
}

TEST(NoMeasure, IsNeededForNoDescriptorToBeLeft) {
    const Told None(OnlyThis, "none");
    // those of the streams lie where they lay
    EXPECT_LE(OutcomeOf({Deed::WriteAll}).Result, 3);
}

}  // namespace
}  // namespace neb
