// The refusal of a second instance, also when the first one has left its lock behind by a crash.
#include "program/modMain.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <csignal>

#include "MeasuredMachine.h"
#include "controls/forms/DesktopBoxes.h"
#include "db/clsDBEngine.h"
#include "db/modDatabaseLock.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "program/Workspace.h"
#include "program/frmAbout.h"
#include "program/frmNEBSlideShow.h"
#include "settings/modNEBSlideShow.h"
#include "support/files/modHostFiles.h"
#include "windows/frame/Openers.h"
#include "windows/slides/frmSlideDBM.h"

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

// Two programs that hold no lock would overwrite each other.
TEST(Main, APlaceWhereNoLockCanBeWrittenIsNotOpenedToBeChanged) {
    harness::ScriptedBoxes Boxes;
    InstanceLock Lock(DatabaseLockPath(QStringLiteral("/proc/1/nothing here/")));
    Boxes.Expect(
        "The albums cannot be opened, as nothing can be written beside them: No such file or "
        "directory.\n\nNothing has been changed.",
        "Albums Cannot Be Opened", BoxIcon::Critical, BoxAnswer::Ok);
    EXPECT_FALSE(BecomeTheInstance(Lock));
}

TEST(Main, AlbumsThatAreOpenOnAnotherMachineAreOpenedOnlyWhereTheUserSaysSo) {
    harness::TempFolder Database;
    harness::ScriptedBoxes Boxes;
    const QByteArray Left = "7\nneb-slide-show\nthe-laptop\nanother-machine\nanother-start\n";
    WriteFile(DatabaseLockPath(Database.Path()), Left);
    const QString Asked =
        "These albums are open on the computer \"the-laptop\", or the program has crashed "
        "there.\n\nWhen two programs write the same albums, what one of them has changed is lost. "
        "Only go on when the program is not running there.\n\nOpen the albums here?";
    Boxes.Expect(Asked, "Albums In Use", BoxIcon::Question, BoxAnswer::No);
    {
        InstanceLock Lock(DatabaseLockPath(Database.Path()));
        EXPECT_FALSE(BecomeTheInstance(Lock));
    }
    EXPECT_EQ(BoxAnswer::No, Boxes.Last().Default);
    EXPECT_EQ(Left, ReadFile(DatabaseLockPath(Database.Path())));
    Boxes.Expect(Asked, "Albums In Use", BoxIcon::Question, BoxAnswer::Yes);
    InstanceLock Lock(DatabaseLockPath(Database.Path()));
    EXPECT_TRUE(BecomeTheInstance(Lock));
}

// The real program, started and asked to end by the system.
TEST(Main, SettingsThatCannotBeReadEndInABox) {
    harness::TempFolder Documents;
    harness::ScriptedBoxes Boxes;
    SetDocumentsPath(Documents.Path());
    MakeDirs(SettingsDir());
    const QString Pipe = SettingsDir() + INIFileName();
    ASSERT_EQ(::mkfifo(QFile::encodeName(Pipe).constData(), 0600), 0);
    Boxes.Expect(
        "The settings cannot be read, so that it is not known where the albums are.\n\nThe "
        "file cannot be read: it is no ordinary file.\n" +
            Pipe,
        "Settings Cannot Be Read", BoxIcon::Critical, BoxAnswer::Ok);
    EXPECT_FALSE(DatabaseToOpen());
    DeleteFile(Pipe);
    EXPECT_EQ(DatabaseToOpen(), SettingsDir());
    EXPECT_TRUE(FolderExists(SettingsDir()));
}

// The disk with it is not mounted.
TEST(Main, AlbumsWhosePlaceIsNotThereAreNotMade) {
    harness::TempFolder Documents;
    harness::ScriptedBoxes Boxes;
    SetDocumentsPath(Documents.Path());
    MakeDirs(SettingsDir());
    const QString Disk = Documents.Path() + "disk/";
    WriteFile(SettingsDir() + INIFileName(), "[General]\nDBPath=" + Disk.toUtf8() + "albums\n");
    Boxes.Expect("The folder of the albums is not there:\n" + Disk +
                     "albums/\n\nPerhaps it lies on a disk that is not connected. Connect it and "
                     "start the program once more, or choose another folder by the setting DBPath "
                     "in\n" +
                     SettingsDir() + INIFileName() + "\n\nNothing has been made there.",
                 "Albums Not Found", BoxIcon::Critical, BoxAnswer::Ok);
    EXPECT_FALSE(DatabaseToOpen());
    EXPECT_FALSE(FolderExists(Disk));
    MakeDirs(Disk);
    EXPECT_EQ(DatabaseToOpen(), Disk + "albums/");
    EXPECT_TRUE(FolderExists(Disk + "albums"));
}

TEST(Main, TheFirstStartMakesTheDocumentsFolderWithAllBelowItButNothingAboveIt) {
    harness::TempFolder Home;
    harness::ScriptedBoxes Boxes;
    SetDocumentsPath(Home.Path() + "Documents");
    EXPECT_EQ(DatabaseToOpen(), Home.Path() + "Documents/NEB/NEB Slide Show/");
    EXPECT_TRUE(FolderExists(SettingsDir()));
    SetDocumentsPath(Home.Path() + "disk/Documents");
    Boxes.Expect("The folder of the albums is not there:\n" + SettingsDir() +
                     "\n\nPerhaps it lies on a disk that is not connected. Connect it and "
                     "start the program once more, or choose another folder by the setting DBPath "
                     "in\n" +
                     SettingsDir() + INIFileName() + "\n\nNothing has been made there.",
                 "Albums Not Found", BoxIcon::Critical, BoxAnswer::Ok);
    EXPECT_FALSE(DatabaseToOpen());
    EXPECT_FALSE(FolderExists(Home.Path() + "disk"));
}

TEST(Main, ARequestToEndWaitsForTheWorkInAModalWindow) {
    harness::TempFolder Documents;
    harness::ScriptedBoxes Boxes;
    SetDocumentsPath(Documents.Path());
    test::MarkAsMeasured();
    frmNEBSlideShow Window;
    Window.Form_Load({});
    bool StillThere = false;
    QTimer::singleShot(0, &Window, [&StillThere] {
        NewForm<frmAbout>()->ShowModal();
        StillThere = DBEngine != nullptr;
    });
    QTimer::singleShot(100, &Window, [&Window] { CloseWhenIdle(Window); });
    QTimer::singleShot(10000, &Window, &QApplication::quit);
    QApplication::exec();
    EXPECT_TRUE(StillThere) << "what follows the modal window still has its database";
    EXPECT_EQ(DBEngine, nullptr);
    EXPECT_EQ(FileSize(DBPath() + "NextIDs.dat"), 12);
}

// The real boxes of a program that is asked to end; At is called with each that is open, counted
// from 1, and at last with none.
class EndAskedFor : public ::testing::Test {
  protected:
    EndAskedFor() {
        SetDocumentsPath(mDocuments.Path());
        test::MarkAsMeasured();
        TheServices().Boxes = &mBoxes;
        mWindow.Form_Load({});
        std::int32_t AlbumID = 0;
        EXPECT_TRUE(DBEngine->SaveAlbum(AlbumID, "Holidays"));
    }
    ~EndAskedFor() override {
        SetHostWatcher({});
        TheServices().Boxes = nullptr;
        TheOpeners() = {};
    }
    static std::shared_ptr<frmSlideDBM> OpenChanged() {
        auto Manager = NewForm<frmSlideDBM>();
        Manager->LoadSlideMgr();
        DoEvents();
        Manager->findChild<QComboBox*>("cboAlbum")->setCurrentIndex(0);
        Manager->findChild<QLineEdit*>("txtDscr")->setText("mine");
        return Manager;
    }
    void RunAsking(const std::function<void(int Number, QMessageBox* Open)>& At) {
        QPointer<QMessageBox> Seen;
        int Number = 0;
        QTimer Look;
        QObject::connect(&Look, &QTimer::timeout, &Look, [&] {
            auto* Open = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (Open == Seen && (Open || Number < 2)) return;
            Seen = Open;
            if (Open) ++Number;
            At(Number, Open);
        });
        Look.start(20);
        QTimer::singleShot(0, &mWindow, [this] { CloseWhenIdle(mWindow); });
        QTimer::singleShot(10000, &mWindow, [] {
            ADD_FAILURE() << "the program goes on";
            QApplication::exit();
        });
        QApplication::exec();
    }

    harness::TempFolder mDocuments;
    DesktopBoxes mBoxes;
    frmNEBSlideShow mWindow;
};

TEST_F(EndAskedFor, ASecondRequestNeverGivesUpWhatCouldNotBeSaved) {
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 0;
    });
    int Boxes = 0;
    RunAsking([&](int Number, QMessageBox* Open) {
        Boxes = Number;
        EXPECT_TRUE(DBEngine);
        if (Open && Number == 1) return CloseWhenIdle(mWindow);
        SetHostWatcher({});
        if (Open) return QTest::keyClick(Open, Qt::Key_Escape);
        EXPECT_TRUE(mWindow.isVisible());
        CloseWhenIdle(mWindow);
    });
    EXPECT_EQ(2, Boxes);
    EXPECT_EQ(DBEngine, nullptr);
    EXPECT_EQ(FileSize(DBPath() + "Albums.dat"), 86);
}

TEST_F(EndAskedFor, ASecondRequestAsksOnceMoreAboutUnsavedWork) {
    const auto Manager = OpenChanged();
    int Boxes = 0;
    RunAsking([&](int Number, QMessageBox* Open) {
        Boxes = Number;
        EXPECT_TRUE(Manager->IsLoaded());
        EXPECT_EQ(Manager->findChild<QLineEdit*>("txtDscr")->text(), "mine");
        if (Open && Number == 1) return CloseWhenIdle(mWindow);
        if (Open) Open->button(QMessageBox::Discard)->click();
    });
    EXPECT_EQ(2, Boxes);
    EXPECT_EQ(DBEngine, nullptr);
}

TEST_F(EndAskedFor, TheWindowThatIsAskedAboutStandsInFront) {
    const auto Manager = OpenChanged();
    mWindow.findChild<QAction*>("mnuSlideMgrBulk")->trigger();
    DoEvents();
    const auto Front = [this] {
        return mWindow.Area().subWindowList(QMdiArea::StackingOrder).last()->widget();
    };
    EXPECT_NE(Front(), Manager.get());
    RunAsking([&](int, QMessageBox* Open) {
        if (!Open) return;
        EXPECT_EQ(Front(), Manager.get());
        Open->button(QMessageBox::Discard)->click();
    });
    EXPECT_EQ(DBEngine, nullptr);
}

TEST_F(EndAskedFor, WhoKeepsAWindowIsNotAskedAgain) {
    const auto Manager = OpenChanged();
    QTimer::singleShot(300, &mWindow,
                       [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    QTimer::singleShot(800, &mWindow, [] { QApplication::exit(); });
    QTimer::singleShot(0, &mWindow, [this] { CloseWhenIdle(mWindow); });
    QApplication::exec();
    EXPECT_TRUE(Manager->IsLoaded());
    EXPECT_TRUE(DBEngine);
    const harness::LettingGo Answers;
    EXPECT_TRUE(mWindow.close());
}

TEST(Main, HelpAndVersionNeedNoDisplay) {
    for (const QString Word : {"--help", "--version"}) {
        QProcess Program;
        QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
        Environment.insert("QT_QPA_PLATFORM", "xcb");
        Environment.insert("DISPLAY", ":4711");
        Program.setProcessEnvironment(Environment);
        Program.start(NEB_BINARY_DIR "/bin/neb-slide-show", {Word});
        ASSERT_TRUE(Program.waitForFinished(20000));
        EXPECT_EQ(Program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(Program.exitCode(), 0);
        EXPECT_TRUE(Program.readAllStandardOutput().contains("lide")) << qPrintable(Word);
    }
}

TEST(Main, ARequestToEndSavesTheAlbums) {
    harness::TempFolder Documents;
    SetDocumentsPath(Documents.Path());
    test::MarkAsMeasured();
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
