// The start of the program on damaged albums, on albums that cannot be written, and where they are
// not there at all.
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include "MainWindowRig.h"
#include "db/Changes.h"
#include "db/DamageTable.h"
#include "db/recovery/DatabaseHealth.h"
#include "harness/MemoryFolder.h"
#include "harness/WithoutPrivileges.h"
#include "program/modMain.h"
#include "support/Fault.h"
#include "support/modFUFL.h"
#include "windows/albums/frmDamage.h"

namespace neb {
namespace {

using namespace harness;

class Damaged : TempInMemory, public MainWindow {
  protected:
    void SetUp() override { MakeAnew(); }
    void MakeAnew() {
        const QByteArray Settings = ReadFile(DBPath() + INIFileName());
        DeleteTree(DBPath());
        MakeDirs(DBPath());
        WriteFile(DBPath() + INIFileName(), Settings);
        MakeWholeDatabase(DBPath());
        MakeDirs(DBPath() + u"Temp"_s);
    }
    static QPushButton& Button(frmDamage& Window, const char* Name) {
        return *Window.findChild<QPushButton*>(QLatin1String(Name));
    }
    static QString Wrong(frmDamage& Window) {
        return Window.findChild<QPlainTextEdit*>(u"txtWrong"_s)->toPlainText();
    }
    // Starts, does that in the window of damage, and tells whether the start goes on.
    bool StartAnd(const std::function<void(frmDamage&)>& Do) {
        mWindow = std::make_unique<frmNEBSlideShow>();
        bool Opened = false;
        WhenOpen<frmDamage>([&](frmDamage& Window) {
            Opened = true;
            Do(Window);
        });
        const bool GoesOn = mWindow->Form_Load({});
        EXPECT_TRUE(Opened);
        return GoesOn;
    }
    void ExpectMended(const QString& What) {
        mBoxes.Expect(What + u"\n\nThe files of before are kept here:\n"_s + KeptFolder(),
                      "Damaged Albums", BoxIcon::Information, BoxAnswer::Ok);
    }
    // The box names the second of the mending: that of the test, or the next.
    static QString KeptFolder() {
        while (QTime::currentTime().msec() > 500) QTest::qWait(10);
        return DBPath() + u"Backups/Damaged "_s +
               QDateTime::currentDateTime().toString(u"yyyy-MM-dd hh.mm.ss") + u'/';
    }
    static QStringList NamesNow() {
        QStringList Names;
        for (const auto& Album : DBEngine->Albums) Names << Album->AlbumName;
        return Names;
    }
};

TEST_F(Damaged, EveryDamageIsToldAndEscEndsWithNothingChanged) {
    for (const RecordFile File : AllRecordFiles)
        for (const Damage Kind : AllDamage) {
            if (Kind == Damage::Unreadable) continue;
            MakeAnew();
            Harm(DBPath(), File, Kind);
            const auto Before = BytesBelow(DBPath());
            EXPECT_FALSE(StartAnd([&](frmDamage& Window) {
                EXPECT_TRUE(Wrong(Window).contains(QLatin1String(RecordFileName(File))))
                    << NameOf(File, Kind) << ": " << Wrong(Window).toStdString();
                EXPECT_TRUE(Button(Window, "cmdRestore").isDefault());
                QTest::keyClick(&Window, Qt::Key_Escape);
                EXPECT_FALSE(Window.IsLoaded());
            })) << NameOf(File, Kind);
            EXPECT_FALSE(DBEngine);
            mWindow.reset();
            EXPECT_TRUE(BytesBelow(DBPath()) == Before) << NameOf(File, Kind);
            ASSERT_FALSE(HasFailure());
        }
}

TEST_F(Damaged, EnterBringsTheLastGoodAlbumsBack) {
    Harm(DBPath(), RecordFile::Albums, Damage::Empty);
    EXPECT_TRUE(StartAnd([this](frmDamage& Window) {
        EXPECT_TRUE(Window.findChild<QLabel*>(u"lblGood"_s)
                        ->text()
                        .contains(u": 1 album, 4 slides, 2 slide shows."_s));
        const QString Saved = Window.findChild<QLabel*>(u"lblGood"_s)
                                  ->text()
                                  .section(u"saved on "_s, 1)
                                  .section(u": "_s, 0, 0);
        ExpectMended(u"The albums are as they were saved on %1."_s.arg(Saved));
        QTest::keyClick(&Window, Qt::Key_Return);
    }));
    EXPECT_EQ(NamesNow(), QStringList{u"Sea"_s});
    EXPECT_EQ(DBEngine->NextSlideID, 9) << "above the pictures of the other album";
    EXPECT_TRUE(mWindow->close());
    EXPECT_TRUE(LookAtHealth(DBPath()).IsSound());
}

TEST_F(Damaged, WhereOnlyWholeTextsAreLostEnterGoesOn) {
    {
        const auto Engine = OpenEngine(DBPath());
        std::int32_t AlbumID = 0;
        ASSERT_TRUE(Engine->SaveAlbum(AlbumID, QString::fromUtf8("Лето")));
        Engine->FinalizeDB();
    }
    DeleteFile(DBPath() + u"Words.dat"_s);
    EXPECT_FALSE(StartAnd([&](frmDamage& Window) {
        EXPECT_TRUE(Wrong(Window).startsWith(u"Words.dat is missing."_s))
            << Wrong(Window).toStdString();
        EXPECT_TRUE(Button(Window, "cmdGoOn").isDefault()) << Wrong(Window).toStdString();
        EXPECT_TRUE(Window.findChild<QLabel*>(u"lblGood"_s)
                        ->text()
                        .contains(u"Going on loses no more than letters"_s));
        QTest::keyClick(&Window, Qt::Key_Escape);
    }));
}

TEST_F(Damaged, TheWindowSaysHowMuchGoingOnWouldLeave) {
    const auto LeftAfter = [this](RecordFile File) {
        Harm(DBPath(), File, Damage::Empty);
        QString Text;
        EXPECT_FALSE(StartAnd([&](frmDamage& Window) {
            Text = Window.findChild<QLabel*>(u"lblGood"_s)->text().section(u"\n\n"_s, 1);
            QTest::keyClick(&Window, Qt::Key_Escape);
        }));
        mWindow.reset();
        return Text.toStdString();
    };
    EXPECT_EQ(LeftAfter(RecordFile::NextIDs),
              "What is left now: 2 albums, 8 slides, 4 slide shows.");
    EXPECT_EQ(LeftAfter(RecordFile::Albums),
              "What is left now: 2 albums, 8 slides, 4 slide shows.");
}

TEST_F(Damaged, AClickGoesOnWithWhatIsLeft) {
    Harm(DBPath(), RecordFile::NextIDs, Damage::Empty);
    EXPECT_TRUE(StartAnd([this](frmDamage& Window) {
        ExpectMended(u"The program goes on with what is left of the albums."_s);
        QTest::mouseClick(&Button(Window, "cmdGoOn"), Qt::LeftButton);
    }));
    EXPECT_EQ(NamesNow(), (QStringList{u"Sea"_s, u"Hills"_s}));
    EXPECT_EQ(DBEngine->NextSlideID, 9);
    EXPECT_TRUE(mWindow->close());
    mWindow.reset();
    Start();  // nothing more is asked
    EXPECT_EQ(NamesNow(), (QStringList{u"Sea"_s, u"Hills"_s}));
}

TEST_F(Damaged, AClickOrTheCloseButtonEnds) {
    Harm(DBPath(), RecordFile::Slides, Damage::Missing);
    const auto Before = BytesBelow(DBPath());
    EXPECT_FALSE(StartAnd([](frmDamage& Window) {
        QTest::mouseClick(&Button(Window, "cmdEnd"), Qt::LeftButton);
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_FALSE(StartAnd([](frmDamage& Window) { Window.close(); }));
    EXPECT_TRUE(mWindow->close()) << "the program ends, and writes nothing";
    EXPECT_TRUE(BytesBelow(DBPath()) == Before);
}

TEST_F(Damaged, WithoutEarlierAlbumsEnterEnds) {
    DeleteTree(DBPath() + u"Backups"_s);
    Harm(DBPath(), RecordFile::Albums, Damage::Missing);
    const auto Before = BytesBelow(DBPath());
    EXPECT_FALSE(StartAnd([](frmDamage& Window) {
        EXPECT_FALSE(Button(Window, "cmdRestore").isEnabled());
        EXPECT_TRUE(Window.findChild<QLabel*>(u"lblGood"_s)->text().startsWith(u"There are no"));
        QTest::keyClick(&Window, Qt::Key_Return);
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_TRUE(BytesBelow(DBPath()) == Before);
}

TEST_F(Damaged, AMendingThatFailsLeavesTheWindowOpen) {
    Harm(DBPath(), RecordFile::Albums, Damage::Missing);
    const auto Before = AllRecords(DBPath());
    EXPECT_FALSE(StartAnd([this](frmDamage& Window) {
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write) throw Fault(u"full"_s, u"x"_s);
            static_cast<void>(Path);
        });
        mBoxes.Expect("That did not succeed. No file is lost.\n\nfull\nx", "Operation Failed",
                      BoxIcon::Critical, BoxAnswer::Ok);
        QTest::mouseClick(&Button(Window, "cmdRestore"), Qt::LeftButton);
        SetHostWatcher({});
        EXPECT_TRUE(Window.IsLoaded());
    }));
    EXPECT_EQ(AllRecords(DBPath()), Before);
}

TEST_F(Damaged, AnInterruptedSessionThatDoesNotGoWithTheAlbumsIsKeptAndTold) {
    {
        const auto Engine = OpenEngine(DBPath());
        Engine->KeepSession();
        Changes Door(*Engine);
        ASSERT_TRUE(Door.RenameAlbum(1, u"renamed"_s));
        ASSERT_TRUE(Engine->IsSessionStored());
    }
    const QByteArray Session = ReadFile(SessionJournalPath(DBPath()));
    Harm(DBPath(), RecordFile::Slides, Damage::Empty);
    QString Told;
    class Notes : public MessageBoxes {
      public:
        explicit Notes(QString& Into) : mInto(Into) {}
        BoxAnswer Show(const BoxRequest& Request) override {
            mInto = Request.Text;
            return BoxAnswer::Ok;
        }

      private:
        QString& mInto;
    } Boxes(Told);
    TheServices().Boxes = &Boxes;
    EXPECT_TRUE(StartAnd(
        [](frmDamage& Window) { QTest::mouseClick(&Button(Window, "cmdGoOn"), Qt::LeftButton); }));
    TheServices().Boxes = &mBoxes;
    EXPECT_EQ(NamesNow()[0], u"Sea"_s);
    const QString Kept = Told.section(u"They are kept here:\n"_s, 1);
    ASSERT_FALSE(Kept.isEmpty()) << Told.toStdString();
    EXPECT_EQ(ReadFile(Kept), Session);
}

// As the administrator one reads everything.
TEST_F(Damaged, AlbumsThatCannotBeReadAreNotTakenForNewOnes) {
    Harm(DBPath(), RecordFile::Slides, Damage::Unreadable);
    for (QString Dir = DBPath(); Dir.startsWith(mDocuments.Path()); Dir = GetParentDir(Dir))
        ASSERT_EQ(0, chmod(qPrintable(Dir), 0755));
    const auto Before = BytesBelow(DBPath());
    mBoxes.Expect(
        "The albums are damaged, and cannot be written where they lie. What is left of them is "
        "shown; nothing is changed.\n\nSlides.dat: The file cannot be read: Permission denied.",
        "Damaged Albums", BoxIcon::Information, BoxAnswer::Ok);
    {
        const WithoutPrivileges Ordinary;
        Start();
        EXPECT_TRUE(ReadOnlyDB);
        EXPECT_EQ(NamesNow(), (QStringList{u"Sea"_s, u"Hills"_s}));
        EXPECT_TRUE(mWindow->close());
    }
    EXPECT_TRUE(BytesBelow(DBPath()) == Before);
}

class ReadOnlyStart : public Damaged {
  protected:
    // To be looked at by others than its owner.
    void OpenToLook(const QString& Dir) const {
        ASSERT_EQ(0, chmod(qPrintable(Dir), 0755));
        for (const DirEntry& Each : ListDir(Dir)) {
            const QString Path = Dir + Each.Name;
            if (Each.IsFolder)
                OpenToLook(Path + u'/');
            else
                ASSERT_EQ(0, chmod(qPrintable(Path), 0644));
        }
    }
    void ExpectOnlyLookedAt(const QString& Fixed) {
        const auto Before = BytesBelow(DBPath());
        {
            const WithoutPrivileges Ordinary;
            Start();
            EXPECT_TRUE(ReadOnlyDB);
            EXPECT_FALSE(Entry("mnuAlbumNew")->isEnabled());
            EXPECT_EQ(
                mWindow->statusBar()->currentMessage(),
                u"These albums can be looked at, but not changed: %1 cannot be written."_s.arg(
                    Fixed));
            EXPECT_EQ(NamesNow(), (QStringList{u"Sea"_s, u"Hills"_s}));
            EXPECT_TRUE(mWindow->close()) << "and nothing fails at the end";
        }
        mWindow.reset();
        EXPECT_TRUE(BytesBelow(DBPath()) == Before);
    }
};

TEST_F(ReadOnlyStart, TheDatabaseOfAnotherUserIsReadOnly) {
    OpenToLook(mDocuments.Path());
    EXPECT_TRUE(MayWriteDatabase(DBPath()));
    ExpectOnlyLookedAt(DBPath());
}

TEST_F(ReadOnlyStart, ATempThatCannotBeWrittenMakesItReadOnly) {
    OpenToLook(mDocuments.Path());
    ASSERT_EQ(0, chmod(qPrintable(DBPath()), 0777));
    ExpectOnlyLookedAt(DBPath() + u"Temp/"_s);
}

TEST_F(ReadOnlyStart, ARecordFileThatCannotBeWrittenMakesItReadOnly) {
    OpenToLook(mDocuments.Path());
    for (const char* Each : {"", "Temp", "Temp/Journal"})
        ASSERT_EQ(0, chmod(qPrintable(DBPath() + QLatin1String(Each)), 0777));
    for (const RecordFile File : AllRecordFiles)
        ASSERT_EQ(0, chmod(qPrintable(RecordPath(DBPath(), File)), 0666));
    {
        const WithoutPrivileges Ordinary;
        EXPECT_TRUE(MayWriteDatabase(DBPath()));
    }
    ASSERT_EQ(0, chmod(qPrintable(RecordPath(DBPath(), RecordFile::Slides)), 0644));
    ExpectOnlyLookedAt(RecordPath(DBPath(), RecordFile::Slides));
}

// A write that was cut short in a folder of somebody else.
TEST_F(ReadOnlyStart, AJournalThatCannotBeCarriedOutBarsNoStart) {
    const auto Engine = OpenEngine(DBPath());
    Engine->Albums[0]->AlbumName = u"Ocean"_s;
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Delete && Path.endsWith(u".dat")) throw Fault(u"no"_s, Path);
    });
    EXPECT_THROW(Engine->FinalizeDB(), Fault);
    Start();  // it cannot be carried out now, either
    EXPECT_EQ(NamesNow()[0], u"Ocean"_s);
    SetHostWatcher({});
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(OpenEngine(DBPath())->Albums[0]->AlbumName, u"Ocean"_s);
    EXPECT_EQ(ReadJournal(DBPath()), JournalState::None);
}

TEST_F(Damaged, APictureWithoutARecordKeepsItsNumberWithoutAWord) {
    WriteFile(DBPath() + u"Albums/1/Slides/00000077.jpg"_s, "left by a crash");
    Start();
    EXPECT_EQ(DBEngine->NextSlideID, 78);
}

}  // namespace
}  // namespace neb
