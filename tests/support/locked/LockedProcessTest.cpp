// What a process behind the door can do to the line, the memory and the time of the program in
// front of it.
#include "support/locked/LockedProcess.h"

#include <sys/wait.h>

#include <QElapsedTimer>
#include <QFile>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "support/Fault.h"
#include "support/locked/HostileProcess.h"
#include "support/work/ProcessEnd.h"

namespace neb {
namespace {

constexpr qint64 MiB = 1 << 20;

TEST(LockedProcess, EndsAtWhatIsNoMessage) {
    for (const Nonsense Each : {Nonsense::Short, Nonsense::Long, Nonsense::Garbage,
                                Nonsense::OtherVersion, Nonsense::OtherCheck})
        EXPECT_EQ(LockedEnd::Nonsense, OutcomeOf({Deed::Say, {std::int64_t(Each)}}).End)
            << static_cast<int>(Each);
    EXPECT_NE(LockedEnd::None, OutcomeOf({Deed::Say, {std::int64_t(Nonsense::Empty)}}).End);
}

TEST(LockedProcess, ThatSpeaksUnaskedIsNotThereForWhatComesNext) {
    LockedProcess Process(HostileProgram());
    EXPECT_TRUE(Process.StaysQuiet());
    EXPECT_EQ(1, OutcomeOf(Process, {Deed::SayTwice}).Result);
    // the second message may still be on its way
    while (Process.StaysQuiet()) continue;
    EXPECT_EQ(LockedEnd::Nonsense, Process.End());
}

TEST(LockedProcess, TellsHowItEnded) {
    EXPECT_EQ(LockedEnd::Crashed, OutcomeOf({Deed::Leave, {0}}).End);
    EXPECT_EQ(LockedEnd::Crashed, OutcomeOf({Deed::Leave, {1}}).End);
    EXPECT_EQ(LockedEnd::Crashed, OutcomeOf({Deed::Abort}).End);
    EXPECT_EQ(LockedEnd::Crashed, OutcomeOf({Deed::Fault, {64}}).End);
}

TEST(LockedProcess, StaysAsItEnded) {
    LockedProcess Process(HostileProgram());
    EXPECT_EQ(LockedEnd::Crashed, OutcomeOf(Process, {Deed::Abort}).End);
    EXPECT_EQ(LockedEnd::Crashed, OutcomeOf(Process, {}).End);
    Process.EndBecause(LockedEnd::Nonsense);
    EXPECT_EQ(LockedEnd::Crashed, Process.End());
    EXPECT_FALSE(Process.StaysQuiet());
}

TEST(LockedProcess, EndsAtOnceWhereTheProgramEnds) {
    const auto StartsLate = [] {
        const LockedProcess First(HostileProgram());
        EndProcess(0);
        try {
            const LockedProcess Late(HostileProgram());
        } catch (const Fault&) {
            std::_Exit(0);
        }
        std::_Exit(1);
    };
    EXPECT_EXIT(StartsLate(), ::testing::ExitedWithCode(0), "");
}

TEST(LockedProcess, CannotChangeWhatTheMemoryOfBothIs) {
    const Told Tampering(BeLike, "tampering");
    EXPECT_EQ(0, OutcomeOf({Deed::Tampering}).Result);
}

TEST(LockedProcess, CannotWriteWhatItIsGivenToRead) {
    LockedProcess Process(HostileProgram());
    const Outcome Its = OutcomeOf(Process, {Deed::UnlockIn, {}, "given"});
    EXPECT_EQ(-1, Its.Result);
    EXPECT_EQ(EACCES, Its.Error);
    EXPECT_EQ(LockedEnd::Crashed, OutcomeOf(Process, {Deed::WriteIn, {}, "given"}).End);
    EXPECT_STREQ("given", reinterpret_cast<const char*>(Process.In()));
}

TEST(LockedProcess, GetsNoMoreMemoryThanItsWorkMayCost) {
    SKIP_WHERE_WATCHED();
    LockedProcess Process(HostileProgram());
    for (const qint64 Most : {32 * MiB, 8 * MiB, 96 * MiB}) {
        const Outcome Its = OutcomeOf(Process, {Deed::TakeMemory, {}, {}, {Most, 20, 60}});
        ASSERT_TRUE(Its.Answered);
        EXPECT_LE(Its.Result, Most);
    }
    LockedProcess Another(HostileProgram());
    const Outcome Its = OutcomeOf(Another, {Deed::TakeMemory, {}, {}, {32 * MiB, 20, 60}});
    EXPECT_GE(Its.Result, 30 * MiB) << "what it may cost is there";
    EXPECT_EQ(LockedEnd::Crashed,
              OutcomeOf(Another, {Deed::TakeByNew, {}, {}, {32 * MiB, 20, 60}}).End);
}

TEST(LockedProcess, GetsNoMoreOfTheProcessorThanItsWorkMayCost) {
    EXPECT_EQ(LockedEnd::TooLong, OutcomeOf({Deed::Spin, {}, {}, {64 * MiB, 0.5, 60}}).End);
}

TEST(LockedProcess, IsNotWaitedForLongerThanItsWorkMayTake) {
    QElapsedTimer Clock;
    Clock.start();
    EXPECT_EQ(LockedEnd::TooLong, OutcomeOf({Deed::Sleep, {}, {}, {64 * MiB, 60, 0.05}}).End);
    EXPECT_EQ(LockedEnd::TooLong, OutcomeOf({Deed::Spin, {}, {}, {64 * MiB, 60, 0.05}}).End);
    EXPECT_LT(Clock.elapsed(), 30000);
}

TEST(LockedProcess, ThatWasUsedUpBeforeHasItsTimeAnewForEachPiece) {
    LockedProcess Process(HostileProgram());
    for (int I = 0; I < 3; ++I)
        EXPECT_TRUE(OutcomeOf(Process, {Deed::Greet, {}, {}, {64 * MiB, 0.2, 20}}).Answered);
}

TEST(LockedProcess, IsGoneWhenItIsNoLongerWanted) {
    pid_t Idle = 0, AtWork = 0;
    {
        LockedProcess First(HostileProgram()), Second(HostileProgram());
        Idle = static_cast<pid_t>(First.Pid());
        AtWork = static_cast<pid_t>(Second.Pid());
        Second.Send(LockedMessage(HostileKind::Do, {std::int64_t(Deed::Sleep)}));
    }
    for (const pid_t Each : {Idle, AtWork}) {
        EXPECT_EQ(-1, ::kill(Each, 0));
        EXPECT_EQ(-1, ::waitpid(Each, nullptr, WNOHANG)) << "nothing of it is left";
    }
}

TEST(LockedProcess, ThatIsMissingOrNoneOfOursIsAFault) {
    LockedProgram Missing = HostileProgram();
    Missing.Path += QStringLiteral("-not-there");
    EXPECT_THROW(LockedProcess{Missing}, Fault);
    LockedProgram Other = HostileProgram();
    Other.Path = QStringLiteral("/bin/true");
    EXPECT_THROW(LockedProcess{Other}, Fault);
}

TEST(LockedPool, GivesAnotherWhereTheOneThatWaitedHasEnded) {
    LockedPool Pool(HostileProgram(), 1);
    pid_t First = 0;
    {
        LockedPool::Lent Process(Pool);
        First = static_cast<pid_t>(Process->Pid());
        EXPECT_TRUE(OutcomeOf(*Process, {}).Answered);
    }
    ::kill(First, SIGKILL);
    siginfo_t Info;
    ::waitid(P_PID, static_cast<id_t>(First), &Info, WEXITED | WNOWAIT);
    LockedPool::Lent Process(Pool);
    EXPECT_NE(First, Process->Pid());
    EXPECT_TRUE(OutcomeOf(*Process, {}).Answered);
}

TEST(LockedPool, KeepsOneThatHasDoneItsWork) {
    LockedPool Pool(HostileProgram(), 1);
    qint64 First = 0;
    for (int I = 0; I < 3; ++I) {
        LockedPool::Lent Process(Pool);
        EXPECT_TRUE(OutcomeOf(*Process, {}).Answered);
        if (I == 0) First = Process->Pid();
        EXPECT_EQ(First, Process->Pid());
    }
}

// It has said all that it had to say, and waits for more.
bool IsAsleep(qint64 Pid) {
    QFile File(QStringLiteral("/proc/%1/stat").arg(Pid));
    return File.open(QIODevice::ReadOnly) && File.readAll().contains(") S ");
}

TEST(LockedPool, DoesNotGiveOnOneThatHasSpokenUnasked) {
    LockedPool Pool(HostileProgram(), 1);
    qint64 First = 0;
    {
        LockedPool::Lent Process(Pool);
        First = Process->Pid();
        EXPECT_EQ(1, OutcomeOf(*Process, {Deed::SayTwice}).Result);
        while (!IsAsleep(First)) ::usleep(1000);
    }
    LockedPool::Lent Process(Pool);
    const Outcome Its = OutcomeOf(*Process, {});
    EXPECT_TRUE(Its.Answered);
    EXPECT_EQ(1, Its.Result);
    EXPECT_NE(First, Process->Pid());
}

}  // namespace
}  // namespace neb
