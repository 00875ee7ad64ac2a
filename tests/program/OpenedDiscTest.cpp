// A folder of albums that is dropped on the main window, and a database that is opened where it
// lies: on a disc, on a stick, in a folder that nobody may write.
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include "MainWindowRig.h"
#include "albums/DiscRig.h"
#include "db/modDatabaseLock.h"
#include "harness/MountedMemory.h"
#include "harness/WithoutPrivileges.h"
#include "program/Workspace.h"
#include "program/modMain.h"
#include "program/opening/OtherInstance.h"
#include "settings/SettingKeys.h"
#include "support/modFUFL.h"
#include "windows/disc/frmDiscFolder.h"
#include "windows/import/frmQuickShow.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/slides/frmSlideMgrBulk.h"
#include "windows/transfer/frmAlbumExport.h"

namespace neb {
namespace {

using namespace harness;

class OpenedDisc : public MainWindow {
  protected:
    OpenedDisc() {
        TheInstanceStarter() = [this](const QStringList& Arguments) {
            Started << Arguments.join(u' ');
            return Starts;
        };
    }
    ~OpenedDisc() override {
        TheInstanceStarter() = {};
        DocumentsPath.clear();
        DBPathCache.clear();
        ReadOnlyDB = false;
    }

    void WriteDisc(const QString& To) {
        ASSERT_TRUE(WriteDiscFolder(Source.Engine, Source.All(), To));
    }
    bool Drop(const QString& Folder) {
        return MainWindow::Drop(mWindow->Area().viewport(), {Folder});
    }
    static std::string NameOf(const frmQuickShow& Window) {
        return Window.findChild<QLineEdit*>(u"txtName"_s)->text().toStdString();
    }
    std::string Notice() const { return mWindow->statusBar()->currentMessage().toStdString(); }

    // As a visitor does it: looks through the albums, plays, chooses another show, exports.
    void LookThroughAll() {
        Press("mnuSlideMgrBulk");
        ASSERT_TRUE(Find<frmSlideMgrBulk>());
        Find<frmSlideMgrBulk>()->Unload();
        Play(u"Spring"_s);
        WhenPreferencesOpen([](frmPreferences& Window) {
            auto* Shows = Window.findChild<QComboBox*>(u"cboSlideShows"_s);
            EXPECT_EQ(u"Spring"_s, Shows->currentText());
            Shows->setCurrentIndex(Shows->findText(u"Walk"_s));
            QTest::mouseClick(Window.findChild<QPushButton*>(u"cmdApply"_s), Qt::LeftButton);
        });
        Press("mnuSlideShowPrefs");
        Play(u"Walk"_s);
        Press("mnuAlbumExport");
        ASSERT_TRUE(Find<frmAlbumExport>());
        Find<frmAlbumExport>()->Unload();
    }
    void Play(const QString& Show) {
        bool Played = false;
        WhenOpen<frmSlideShowProjector>([&](frmSlideShowProjector&) {
            Played = true;
            QTest::qWait(50);
        });
        Press("mnuSlideShowViewer");
        EXPECT_TRUE(Played) << Show.toStdString();
        const std::int32_t ShowID = ReadNumber(OpenSettings(), Setting::ActiveSlideShow);
        EXPECT_EQ(Show, DBEngine->Albums[0]->GetSlideShow(ShowID)->SlideShowName);
    }
    // Opens the folder, works in it and closes; not a byte, name or date of it may change.
    void Visit(const QString& Dir) {
        const QStringList Before = Everything(Dir);
        SetDocumentsPath(Dir);
        EXPECT_EQ(WithSeparator(Dir), DatabaseToOpen());
        InstanceLock First(DatabaseLockPath(DBPath())), Second(DatabaseLockPath(DBPath()));
        EXPECT_TRUE(BecomeTheInstanceOn(DBPath(), First));
        EXPECT_TRUE(BecomeTheInstanceOn(DBPath(), Second)) << "several may look at it";
        Start();
        EXPECT_TRUE(ReadOnlyDB);
        LookThroughAll();
        EXPECT_TRUE(mWindow->close());
        mWindow.reset();
        EXPECT_EQ("", Differences(Before, Everything(Dir)));
        EXPECT_EQ(0, Sha256Sum(Dir));
    }

    TempFolder Home, Out;
    DiscSource Source{Home.Path()};
    QStringList Started;
    bool Starts = true;
};

// In the frame a key of the menu bar would be taken from it.
TEST_F(OpenedDisc, TheMenuOpensTheWindowThatWritesOneWithKeysOfItsOwn) {
    Start();
    Press("mnuDiscWrite");
    ASSERT_TRUE(Find<frmDiscFolder>());
    EXPECT_EQ(1, mWindow->Area().subWindowList().size());
    QSet<QKeySequence> Taken;
    for (const QAction* Header : mWindow->menuBar()->actions())
        Taken.insert(QKeySequence::mnemonic(Header->text()));
    Taken.remove(QKeySequence());  // a header without a key of its own
    const auto Take = [&Taken](const QString& Text) {
        const QKeySequence Key = QKeySequence::mnemonic(Text);
        if (Key.isEmpty()) return;
        EXPECT_FALSE(Taken.contains(Key)) << Text.toStdString();
        Taken.insert(Key);
    };
    for (const auto* Each : Find<frmDiscFolder>()->findChildren<QPushButton*>()) Take(Each->text());
    for (const auto* Each : Find<frmDiscFolder>()->findChildren<QLabel*>())
        if (Each->buddy()) Take(Each->text());
    EXPECT_EQ(7 + 5, Taken.size());
}

TEST_F(OpenedDisc, TheMenuChecksOne) {
    class Chosen : public FileDialogs {
      public:
        QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
        QString SaveFile(const QString&, const QString&, const QString&) override { return {}; }
        QString ChooseFolder(const QString&, const QString&) override { return Folder; }
        QString Folder;
    } Dialog;
    Start();
    Dialog.Folder = Out.Path();
    TheServices().Dialogs = &Dialog;
    mBoxes.Expect(
        u"There is no list of check sums in\n%1\nA folder that was written for a disc has "
        "one, named Sums.sha256."_s.arg(Out.Path()),
        u"Check a Disc"_s, BoxIcon::Information, BoxAnswer::Ok);
    Press("mnuDiscCheck");
    TheServices().Dialogs = nullptr;
}

TEST_F(OpenedDisc, AFolderOfAlbumsThatIsDroppedOpensInAnotherInstance) {
    WriteDisc(Out / u"disc"_s);
    Start();
    const clsDBEngine* Mine = DBEngine;
    ASSERT_TRUE(Drop(Out / u"disc"_s));
    EXPECT_EQ(QStringList(u"--documents "_s + (Out / u"disc/"_s)), Started);
    EXPECT_EQ(Mine, DBEngine) << "this one stays with its albums";
    EXPECT_EQ(
        "The albums in " + (Out / u"disc"_s).toStdString() + " open in a window of their own.",
        Notice());
    EXPECT_FALSE(Find<frmQuickShow>());
}

TEST_F(OpenedDisc, ADocumentsFolderThatIsDroppedOpensTheAlbumsBelowIt) {
    WriteDisc(Out / u"NEB/NEB Slide Show"_s);
    Start();
    ASSERT_TRUE(Drop(Out.Path()));
    EXPECT_EQ(QStringList(u"--documents "_s + (Out / u"NEB/NEB Slide Show/"_s)), Started);
}

TEST_F(OpenedDisc, AFolderOfPicturesThatIsDroppedOpensInQuickShow) {
    MakeDirs(Out / u"pictures"_s);
    Start();
    ASSERT_TRUE(Drop(Out / u"pictures"_s));
    ASSERT_TRUE(Find<frmQuickShow>());
    EXPECT_EQ("pictures", NameOf(*Find<frmQuickShow>()));
    EXPECT_TRUE(Started.isEmpty());
}

TEST_F(OpenedDisc, TheAlbumsThatAreOpenAreNotOpenedTwice) {
    Start();
    EXPECT_TRUE(mWindow->close());  // writes them for the first time
    mWindow.reset();
    Start();
    for (const QString& Folder : {DBPath(), mDocuments.Path()}) {
        ASSERT_TRUE(Drop(Folder));
        EXPECT_EQ(0u, Notice().find("The albums in")) << Notice();
        EXPECT_NE(std::string::npos, Notice().find("are those that are open here."));
    }
    EXPECT_TRUE(Started.isEmpty());
    EXPECT_FALSE(Find<frmQuickShow>());
}

TEST_F(OpenedDisc, AnInstanceThatCannotBeStartedIsTold) {
    WriteDisc(Out / u"disc"_s);
    Start();
    Starts = false;
    mBoxes.Expect(
        u"The program cannot be started once more to open the albums in %1."_s.arg(Out / u"disc"_s),
        u"Albums Cannot Be Opened"_s, BoxIcon::Critical, BoxAnswer::Ok);
    ASSERT_TRUE(Drop(Out / u"disc"_s));
    TheInstanceStarter() = {};
    EXPECT_FALSE(OpenInOtherInstance(Out / u"disc"_s))
        << "nothing is started unless it is said how";
}

TEST_F(OpenedDisc, AFolderOnAHardDiskIsVisitedWithoutATrace) {
    WriteDisc(Out / u"disc"_s);
    Visit(Out / u"disc/"_s);
}

TEST_F(OpenedDisc, AReadOnlyMediumIsVisitedWithoutATrace) {
    MakeDirs(Out / u"disc"_s);
    MountedMemory Medium(Out / u"disc"_s);
    if (!Medium.IsThere()) GTEST_SKIP() << "only the administrator may mount";
    WriteDisc(Out / u"disc"_s);
    ASSERT_EQ(0, mount("none", qPrintable(Out / u"disc"_s), "tmpfs", MS_REMOUNT | MS_RDONLY, ""));
    EXPECT_THROW(WriteFile(Out / u"disc/probe"_s, "x"), Fault);
    Visit(Out / u"disc/"_s);
}

// Whether the process has a handler of its own for the request to end.
bool MindsTermination(qint64 Process) {
    QFile Status(u"/proc/%1/status"_s.arg(Process));
    if (!Status.open(QIODevice::ReadOnly)) return false;
    for (const QByteArray& Line : Status.readAll().split('\n'))
        if (Line.startsWith("SigCgt:"))
            return Line.mid(7).trimmed().toULongLong(nullptr, 16) & (1ULL << (SIGTERM - 1));
    return false;
}

TEST_F(OpenedDisc, TheRealProgramOpensItAndEndsWithoutATrace) {
    const QString Dir = Out / u"disc/"_s;
    WriteDisc(Dir);
    const QStringList Before = Everything(Dir);
    QProcess Program;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    Environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    Environment.insert(u"HOME"_s, mDocuments.Path());
    Program.setProcessEnvironment(Environment);
    Program.start(QStringLiteral(NEB_BINARY_DIR "/bin/neb-slide-show"), {u"--documents"_s, Dir});
    ASSERT_TRUE(Program.waitForStarted(20000));
    const qint64 Process = Program.processId();
    ASSERT_TRUE(QTest::qWaitFor([&] { return MindsTermination(Process); }, 20000));
    QTest::qWait(300);
    EXPECT_EQ("", Differences(Before, Everything(Dir))) << "while it is open";
    Program.terminate();
    ASSERT_TRUE(Program.waitForFinished(20000));
    EXPECT_EQ(QProcess::NormalExit, Program.exitStatus());
    EXPECT_EQ(0, Program.exitCode());
    EXPECT_EQ("", Differences(Before, Everything(Dir)));
}

}  // namespace
}  // namespace neb
