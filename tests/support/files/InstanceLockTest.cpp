// Who may write a database: one program at a time, whatever became of the one before, on whichever
// machine it was.
#include "support/files/InstanceLock.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QSysInfo>
#include <csignal>

#include "harness/MountedMemory.h"
#include "harness/TempFolder.h"
#include "harness/WithoutPrivileges.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using harness::TempFolder;
using Is = LockAnswer::State;

QByteArray LeftBy(const char* Machine, const QByteArray& ID) {
    return QByteArray("1\nneb-slide-show\n") + Machine + '\n' + ID + "\nanother-start\n";
}

// What becomes of a lock in another process, which then ends by a kill.
template <class WorkToDo>
void InAChild(WorkToDo Work) {
    const pid_t Child = ::fork();
    if (Child == 0) {
        Work();
        ::kill(::getpid(), SIGKILL);
    }
    int Status = 0;
    ASSERT_EQ(Child, ::waitpid(Child, &Status, 0));
    ASSERT_TRUE(WIFSIGNALED(Status) && WTERMSIG(Status) == SIGKILL);
}

TEST(InstanceLock, IsRefusedToASecondHolderAndFreeAfterwards) {
    TempFolder Dir;
    {
        InstanceLock First(Dir / "lock"), Second(Dir / "lock");
        EXPECT_TRUE(First.TryLock());
        EXPECT_TRUE(First.TryLock()) << "it holds it already";
        EXPECT_EQ(Is::HeldHere, Second.TryLock().Is);
        EXPECT_EQ(Is::HeldHere, Second.TryLock(FromElsewhere::IsTakenOver).Is);
    }
    EXPECT_FALSE(FileExists(Dir / "lock"));
    InstanceLock Third(Dir / "lock");
    EXPECT_TRUE(Third.TryLock());
}

TEST(InstanceLock, OfAProgramThatCrashedDoesNotCount) {
    TempFolder Dir;
    InAChild([&] { static_cast<void>((new InstanceLock(Dir / "lock"))->TryLock()); });
    ASSERT_TRUE(FileExists(Dir / "lock"));
    InstanceLock Next(Dir / "lock");
    EXPECT_TRUE(Next.TryLock());
}

TEST(InstanceLock, ThatWasCutShortOrIsOfThisMachineDoesNotCount) {
    TempFolder Dir;
    for (const QByteArray& Left :
         {QByteArray(), QByteArray("garb"), LeftBy("renamed since", QSysInfo::machineUniqueId()),
          QByteArray("1\nneb-slide-show\na container\nother\n") + QSysInfo::bootUniqueId() + '\n',
          LeftBy(qPrintable(QSysInfo::machineHostName()), {})}) {
        WriteFile(Dir / "lock", Left);
        InstanceLock Next(Dir / "lock");
        EXPECT_TRUE(Next.TryLock()) << Left.toStdString();
    }
}

TEST(InstanceLock, OfAnotherMachineIsTakenOverOnlyWhereThatIsSaid) {
    TempFolder Dir;
    const QByteArray Left = LeftBy("the-laptop", "another-machine");
    WriteFile(Dir / "lock", Left);
    {
        InstanceLock Next(Dir / "lock");
        const LockAnswer Answered = Next.TryLock();
        EXPECT_EQ(Is::HeldElsewhere, Answered.Is);
        EXPECT_EQ("the-laptop", Answered.Machine.toStdString());
    }
    EXPECT_EQ(Left, ReadFile(Dir / "lock")) << "it is left as it was";
    InstanceLock Next(Dir / "lock"), Second(Dir / "lock");
    EXPECT_TRUE(Next.TryLock(FromElsewhere::IsTakenOver));
    EXPECT_EQ(Is::HeldHere, Second.TryLock().Is);
}

TEST(InstanceLock, OfALiveHolderIsRespectedWhateverTheFileSays) {
    TempFolder Dir;
    InstanceLock First(Dir / "lock");
    ASSERT_TRUE(First.TryLock());
    WriteFile(Dir / "lock", {});
    InstanceLock Second(Dir / "lock");
    EXPECT_EQ(Is::HeldHere, Second.TryLock().Is);
}

TEST(InstanceLock, TakesEitherSeparator) {
    TempFolder Dir;
    InstanceLock First(Dir.Path().chopped(1) + "\\lock");
    EXPECT_TRUE(First.TryLock());
    EXPECT_TRUE(FileExists(Dir / "lock"));
}

TEST(InstanceLock, IsNotTakenWhereNoneCanBeWritten) {
    InstanceLock Lock(QStringLiteral("/proc/1/nothing here/lock"));
    const LockAnswer Answered = Lock.TryLock();
    EXPECT_EQ(Is::CannotLock, Answered.Is);
    EXPECT_FALSE(Answered.Reason.isEmpty());
}

// The file cannot be written by anybody else, and in a folder as /tmp not even be deleted.
TEST(InstanceLock, OfAnotherUserIsRespectedAndDoesNotBarTheWayForEver) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs another user";
    for (const mode_t Mode : {0777, 01777}) {
        TempFolder Dir;
        ASSERT_EQ(0, ::chmod(QFile::encodeName(Dir.Path()).constData(), Mode));
        InAChild([&] { static_cast<void>((new InstanceLock(Dir / "lock"))->TryLock()); });
        ASSERT_EQ(0, ::chmod(QFile::encodeName(Dir / "lock").constData(), 0644));
        {
            InstanceLock Lives(Dir / "lock");
            ASSERT_TRUE(Lives.TryLock());
            const harness::WithoutPrivileges Other;
            InstanceLock Mine(Dir / "lock");
            EXPECT_EQ(Is::HeldHere, Mine.TryLock().Is);
        }
        InAChild([&] { static_cast<void>((new InstanceLock(Dir / "lock"))->TryLock()); });
        ASSERT_EQ(0, ::chmod(QFile::encodeName(Dir / "lock").constData(), 0644));
        const harness::WithoutPrivileges Other;
        InstanceLock Mine(Dir / "lock"), Second(Dir / "lock");
        EXPECT_TRUE(Mine.TryLock()) << Mode;
        EXPECT_EQ(Is::HeldHere, Second.TryLock().Is) << Mode;
    }
}

TEST(InstanceLock, ADiskWithoutRoomLetsOneHoldItAndNoOther) {
    TempFolder Dir;
    const harness::MountedMemory Disk(Dir.Path(), "size=64k");
    if (!Disk.IsThere()) GTEST_SKIP() << "nothing can be mounted here";
    EXPECT_THROW(WriteFile(Dir / "large", QByteArray(100'000, 'x')), Fault);
    InstanceLock First(Dir / "lock"), Second(Dir / "lock");
    EXPECT_TRUE(First.TryLock());
    EXPECT_EQ(0, FileSize(Dir / "lock"));
    EXPECT_EQ(Is::HeldHere, Second.TryLock().Is);
}

TEST(InstanceLock, ADiskWithoutRoomForANameCannotBeLocked) {
    TempFolder Dir;
    const harness::MountedMemory Disk(Dir.Path(), "nr_inodes=2");
    if (!Disk.IsThere()) GTEST_SKIP() << "nothing can be mounted here";
    WriteFile(Dir / "file", "x");
    InstanceLock First(Dir / "lock");
    EXPECT_EQ(Is::CannotLock, First.TryLock().Is);
}

}  // namespace
}  // namespace neb
