// The real program, started twice on the same albums: the second start ends at once and the first
// one opens what it was given.
#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <csignal>

#include "MeasuredMachine.h"
#include "controls/forms/Form.h"
#include "db/modDatabaseLock.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "program/modMain.h"
#include "program/opening/InstanceServer.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/HostNames.h"
#include "windows/WindowSteps.h"

namespace neb {
namespace {

using namespace harness;

// Whether somebody has opened a file of this name in a folder since.
class Openings {
  public:
    explicit Openings(const QString& Folder) : mNotes(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        ::inotify_add_watch(mNotes, HostBytes(Folder).constData(), IN_OPEN);
    }
    ~Openings() { ::close(mNotes); }
    bool Await(const QByteArray& Name) {
        return QTest::qWaitFor([&] { return Read().contains(Name); }, 20000);
    }
    const QByteArray& Read() {
        char Into[4096];
        for (ssize_t Length; (Length = ::read(mNotes, Into, sizeof Into)) > 0;)
            mSeen.append(Into, Length);
        return mSeen;
    }

  private:
    int mNotes;
    QByteArray mSeen;  // the names stand in it
};

class SecondStart : public ::testing::Test {
  protected:
    SecondStart() {
        SetDocumentsPath(Documents.Path());
        test::MarkAsMeasured();
        for (const char* Name : {"Garden/rose.png", "Lake/boat.png"})
            MakePicture(Pics / QString::fromLatin1(Name));
    }
    ~SecondStart() override {
        for (QProcess* Each : {&First, &Second}) {
            if (Each->state() == QProcess::NotRunning) continue;
            ADD_FAILURE() << "it goes on";
            Each->kill();
            Each->waitForFinished(20000);
        }
        DocumentsPath.clear();
        DBPathCache.clear();
    }
    void Run(QProcess& Program, const QStringList& Words) {
        QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
        Environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        Environment.insert(u"XDG_RUNTIME_DIR"_s, Session.Path().chopped(1));
        Program.setProcessEnvironment(Environment);
        Program.setWorkingDirectory(&Program == &Second ? Pics.Path() : Documents.Path());
        Program.start(QStringLiteral(NEB_BINARY_DIR "/bin/neb-slide-show"),
                      QStringList{u"--documents"_s, Documents.Path()} + Words);
        ASSERT_TRUE(Program.waitForStarted(20000));
    }
    // Until it stands: in its folder for scratch files it has tried to write.
    void StartFirst(const QStringList& Words = {}) {
        Run(First, Words);
        const QString Temp = Documents / u"NEB/NEB Slide Show/Temp"_s;
        ASSERT_TRUE(QTest::qWaitFor([&] { return FolderExists(Temp); }, 20000));
    }
    static void ExpectEnd(QProcess& Program) {
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return Program.state() == QProcess::NotRunning; }, 20000));
        EXPECT_EQ(QProcess::NormalExit, Program.exitStatus());
        EXPECT_EQ(0, Program.exitCode());
    }
    void StartSecond(const QStringList& Words) {
        Run(Second, Words);
        ExpectEnd(Second);
        EXPECT_EQ(QProcess::Running, First.state());
    }
    void EndFirst() {
        QTest::qWait(300);
        First.terminate();
        ExpectEnd(First);
    }

    TempFolder Documents, Session, Pics;
    QProcess First, Second;
};

TEST_F(SecondStart, HandsItsFolderToTheOneThatRuns) {
    Openings Garden(Pics / u"Garden"_s);
    StartFirst();
    StartSecond({u"Garden"_s});
    EXPECT_TRUE(Garden.Await("rose.png"));
    EndFirst();
}

TEST_F(SecondStart, HandsOverWhatIsNoText) {
    const QString Strange = Pics / HostName("B\xE4ume");
    MakeDirs(Strange);
    CopyFile(Pics / u"Garden/rose.png"_s, Strange + u"/leaf.png"_s);
    Openings Trees(Strange);
    StartFirst();
    Run(Second, {u"file://"_s + Pics.Path() + u"B%E4ume"_s});
    ExpectEnd(Second);
    EXPECT_TRUE(Trees.Await("leaf.png"));
    EndFirst();
}

TEST_F(SecondStart, WaitsForOneThatIsJustStarting) {
    Openings Garden(Pics / u"Garden"_s), Lake(Pics / u"Lake"_s);
    Run(First, {Pics / u"Garden"_s});
    const QString Lock = DatabaseLockPath(Documents / u"NEB/NEB Slide Show/"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return FileExists(Lock); }, 20000));
    StartSecond({u"Lake"_s});
    EXPECT_TRUE(Garden.Await("rose.png"));
    EXPECT_TRUE(Lake.Await("boat.png"));
    EndFirst();
}

TEST_F(SecondStart, WithNothingToOpenEndsAtOnce) {
    StartFirst();
    QElapsedTimer Since;
    Since.start();
    StartSecond({});
    EXPECT_LT(Since.elapsed(), 15000);
    EndFirst();
}

TEST_F(SecondStart, TakesItsPlaceWhereItHasCrashed) {
    StartFirst();
    First.kill();
    ASSERT_TRUE(First.waitForFinished(20000));
    Openings Lake(Pics / u"Lake"_s);
    Run(Second, {u"Lake"_s});
    EXPECT_TRUE(Lake.Await("boat.png"));
    QTest::qWait(300);
    Second.terminate();
    ExpectEnd(Second);
}

// The box stands there until somebody answers it.
TEST_F(SecondStart, IsRefusedWhereTheOneThatRunsHangs) {
    StartFirst();
    QTest::qWait(300);
    ASSERT_EQ(0, ::kill(static_cast<pid_t>(First.processId()), SIGSTOP));
    Run(Second, {u"Lake"_s});
    QTest::qWait(8000);
    EXPECT_EQ(QProcess::Running, Second.state());
    Second.kill();
    EXPECT_TRUE(Second.waitForFinished(20000));
    ASSERT_EQ(0, ::kill(static_cast<pid_t>(First.processId()), SIGCONT));
    EndFirst();
}

class CalledInstance : public ::testing::Test {
  protected:
    // What becomes of a start while another holds the lock, which answers so, one after the other.
    bool Becomes(std::vector<HandedOver> Answers) {
        InstanceLock Held(DatabaseLockPath(Database.Path()));
        EXPECT_TRUE(Held.TryLock());
        InstanceLock Mine(DatabaseLockPath(Database.Path()));
        return BecomeTheInstance(Mine, [&] {
            const HandedOver Next = Answers.at(std::min<size_t>(size_t(Calls), Answers.size() - 1));
            ++Calls;
            return Next;
        });
    }
    void ExpectBox() {
        Boxes.Expect(u"You can only run a single instance of NEB Slide Show at a time."_s,
                     u"Operation Denied"_s, BoxIcon::Information, BoxAnswer::Ok);
    }
    TempFolder Database;
    ScriptedBoxes Boxes;
    int Calls = 0;
};

TEST_F(CalledInstance, ThatTakesItNeedsNoWords) {
    EXPECT_FALSE(Becomes({HandedOver::Taken}));
    EXPECT_EQ(1, Calls);
}

TEST_F(CalledInstance, ThatIsStartingIsCalledAgain) {
    EXPECT_FALSE(Becomes({HandedOver::NotThere, HandedOver::NotThere, HandedOver::Taken}));
    EXPECT_EQ(3, Calls);
}

TEST_F(CalledInstance, ThatDoesNotAnswerIsToldAsEver) {
    ExpectBox();
    EXPECT_FALSE(Becomes({HandedOver::NotTaken}));
    EXPECT_EQ(1, Calls);
}

TEST_F(CalledInstance, ThatIsNeverThereIsToldAsEverAfterAWhile) {
    ExpectBox();
    EXPECT_FALSE(Becomes({HandedOver::NotThere}));
    EXPECT_GT(Calls, 2);
}

TEST_F(CalledInstance, ThatEndsMeanwhileLeavesItsPlace) {
    auto Held = std::make_unique<InstanceLock>(DatabaseLockPath(Database.Path()));
    ASSERT_TRUE(Held->TryLock());
    InstanceLock Mine(DatabaseLockPath(Database.Path()));
    EXPECT_TRUE(BecomeTheInstance(Mine, [&] {
        Held.reset();
        return HandedOver::NotThere;
    }));
}

}  // namespace
}  // namespace neb
