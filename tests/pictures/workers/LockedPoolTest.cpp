// Processes kept warm: who gets which, what comes in the place of one that has ended, and that
// those nobody wants go.
#include "support/locked/LockedPool.h"

#include <gtest/gtest.h>
#include <signal.h>

#include <QTest>
#include <set>
#include <thread>

#include "harness/HostileReading.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace std::chrono_literals;
using Lent = LockedPool::Lent;
using Wanted = LockedPool::Wanted;

class LockedPoolOfHostiles : public ::testing::Test {
  protected:
    static LockedProgram Program() { return harness::HostileReading::Program(); }
    static bool Comes(const std::function<bool()>& What) { return QTest::qWaitFor(What, 20000); }
    static bool Lives(qint64 Pid) { return ::kill(static_cast<pid_t>(Pid), 0) == 0; }
    static qint64 Use(LockedPool& Pool, Wanted Which = Wanted::Any) {
        return Lent(Pool, Which)->Pid();
    }
    static void Kill(qint64 Pid) { ASSERT_EQ(0, ::kill(static_cast<pid_t>(Pid), SIGKILL)); }
};

TEST_F(LockedPoolOfHostiles, LendsTheSameOneAgain) {
    LockedPool Pool(Program(), 2);
    const qint64 First = Use(Pool);
    EXPECT_EQ(First, Use(Pool));
    EXPECT_EQ(1, Pool.Waiting());
}

TEST_F(LockedPoolOfHostiles, LendsTheOneThatWasMadeReadyBefore) {
    LockedPool Pool(Program(), 2);
    EXPECT_EQ(0, Pool.Waiting());
    Pool.WarmUp();
    ASSERT_TRUE(Comes([&] { return Pool.Waiting() == 1; }));
    Pool.WarmUp();
    {
        const Lent Its(Pool);
        EXPECT_TRUE(Its.IsFresh());
        EXPECT_EQ(0, Pool.Waiting()) << "one was enough";
    }
    EXPECT_FALSE(Lent(Pool).IsFresh());
}

TEST_F(LockedPoolOfHostiles, GivesWhoWantsAFreshOneNoOther) {
    LockedPool Pool(Program(), 2);
    const qint64 Used = Use(Pool);
    const Lent Its(Pool, Wanted::Fresh);
    EXPECT_TRUE(Its.IsFresh());
    EXPECT_NE(Used, const_cast<Lent&>(Its)->Pid());
}

TEST_F(LockedPoolOfHostiles, ReplacesOneThatEnds) {
    LockedPool Pool(Program(), 2);
    {
        Lent Its(Pool);
        Its->EndBecause(LockedEnd::Crashed);
    }
    ASSERT_TRUE(Comes([&] { return Pool.Waiting() == 2; })) << "one, and one for when it ends, too";
    {
        Lent Its(Pool);
        EXPECT_EQ(1, Pool.Waiting()) << "the next is there already";
        Its->EndBecause(LockedEnd::Crashed);
    }
    EXPECT_GE(Pool.Waiting(), 1);
}

TEST_F(LockedPoolOfHostiles, DoesNotLendOneThatWasEndedWhileItWaited) {
    LockedPool Pool(Program(), 1);
    const qint64 First = Use(Pool);
    Kill(First);
    // the system closes its line when it ends it, in its own time
    const QString State = QStringLiteral("/proc/%1/stat").arg(First);
    ASSERT_TRUE(Comes([&] {
        QFile File(State);
        return !File.open(QIODevice::ReadOnly) || File.readAll().contains(") Z ");
    }));
    EXPECT_NE(First, Use(Pool));
}

TEST_F(LockedPoolOfHostiles, KeepsOneOfSeveralAfterAWhile) {
    LockedPool Pool(Program(), 3, 300ms);
    std::set<qint64> All;
    {
        Lent A(Pool), B(Pool), C(Pool);
        All = {A->Pid(), B->Pid(), C->Pid()};
    }
    ASSERT_EQ(3u, All.size());
    ASSERT_TRUE(Comes([&] { return Pool.Waiting() == 1; }));
    EXPECT_TRUE(Comes([&] { return std::count_if(All.begin(), All.end(), Lives) == 1; }));
    EXPECT_TRUE(All.contains(Use(Pool)));
}

TEST_F(LockedPoolOfHostiles, DoesNotKeepOneThatIsRetired) {
    LockedPool Pool(Program(), 1);
    qint64 First = 0;
    {
        Lent Its(Pool);
        First = Its->Pid();
        Its.Retire();
    }
    EXPECT_FALSE(Lives(First));
    EXPECT_NE(First, Use(Pool));
}

TEST_F(LockedPoolOfHostiles, GoesBesideThoseWhoHang) {
    LockedPool Pool(Program(), 1);
    Lent Hanging(Pool);
    Lent Second(Pool);
    EXPECT_NE(Hanging->Pid(), Second->Pid());
}

TEST_F(LockedPoolOfHostiles, EndsAllThatItHas) {
    qint64 First = 0;
    {
        LockedPool Pool(Program(), 2);
        First = Use(Pool);
        Pool.WarmUp();
    }
    EXPECT_FALSE(Lives(First));
}

TEST_F(LockedPoolOfHostiles, TellsOfAProgramThatIsMissing) {
    LockedPool Pool(ReadingLocked::ProgramAt(QStringLiteral("/nowhere/at-all"), "x"), 1);
    Pool.WarmUp();
    for (int I = 0; I < 3; ++I) EXPECT_THROW(Use(Pool), Fault);
    EXPECT_THROW(Pool.Report(), Fault);
}

TEST_F(LockedPoolOfHostiles, IsTheSameForManyThreads) {
    LockedPool Pool(Program(), 3, 1ms);
    std::vector<std::thread> All;
    for (int Thread = 0; Thread < 6; ++Thread)
        All.emplace_back([&, Thread] {
            for (int I = 0; I < 12; ++I) {
                Lent Its(Pool, I % 4 ? Wanted::Any : Wanted::Fresh);
                EXPECT_EQ(LockedEnd::None, Its->End());
                if ((I + Thread) % 5 == 0) Its->EndBecause(LockedEnd::Crashed);
                if (I % 3 == 0) Pool.WarmUp();
            }
        });
    for (std::thread& Each : All) Each.join();
    EXPECT_TRUE(Comes([&] { return Pool.Waiting() <= 1; }));
}

}  // namespace
}  // namespace neb
