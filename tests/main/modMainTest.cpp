// The refusal of a second instance, also when the first one has left its lock behind by a crash.
#include "shell/main/modMain.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QProcess>
#include <QTest>

#include <csignal>

#include "db/modDatabaseLock.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "support/modHostFiles.h"

namespace neb {
namespace {

TEST(Main, ASecondInstanceIsRefusedWithABox) {
    harness::TempFolder Database;
    harness::ScriptedBoxes Boxes;
    InstanceLock First(DatabaseLockPath(Database.Path()));
    InstanceLock Second(DatabaseLockPath(Database.Path()));
    EXPECT_TRUE(BecomeTheInstance(First));
    Boxes.Expect("You can only run a single instance of NEB Slide Show at a time.",
                 "Operation Denied", BoxIcon::Information, BoxAnswer::Ok);
    EXPECT_FALSE(BecomeTheInstance(Second));
}

TEST(Main, ALockThatACrashHasLeftBehindDoesNotCount) {
    harness::TempFolder Database;
    harness::ScriptedBoxes Boxes;
    const pid_t Child = fork();
    if (Child == 0) {
        InstanceLock Crashing(DatabaseLockPath(Database.Path()));
        if (Crashing.TryLock()) raise(SIGKILL);
        _exit(1);
    }
    int Status = 0;
    ASSERT_EQ(waitpid(Child, &Status, 0), Child);
    ASSERT_TRUE(WIFSIGNALED(Status));
    ASSERT_TRUE(FileExists(DatabaseLockPath(Database.Path())));
    InstanceLock Next(DatabaseLockPath(Database.Path()));
    EXPECT_TRUE(BecomeTheInstance(Next));
}

TEST(Main, APlaceWhereNoLockCanBeWrittenLocksNothing) {
    harness::ScriptedBoxes Boxes;
    InstanceLock Lock(DatabaseLockPath(QStringLiteral("/proc/1/nothing here/")));
    EXPECT_TRUE(BecomeTheInstance(Lock));
}

// The real program, started and asked to end by the system.
TEST(Main, ARequestToEndSavesTheAlbums) {
    harness::TempFolder Documents;
    QProcess Program;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert("QT_QPA_PLATFORM", "offscreen");
    Program.setProcessEnvironment(Environment);
    Program.start(NEB_BINARY_DIR "/bin/neb-slide-show", {"--documents", Documents.Path()});
    const QString Database = Documents / "NEB/NEB Slide Show/";
    ASSERT_TRUE(QTest::qWaitFor([&] { return FolderExists(Database + "Temp"); }, 20000));
    QTest::qWait(200);
    EXPECT_FALSE(FileExists(Database + "NextIDs.dat"));
    Program.terminate();
    ASSERT_TRUE(Program.waitForFinished(20000));
    EXPECT_EQ(Program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(Program.exitCode(), 0);
    EXPECT_EQ(FileSize(Database + "NextIDs.dat"), 12);
}

}  // namespace
}  // namespace neb
