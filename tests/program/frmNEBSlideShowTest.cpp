// The start, the menu and the end of the program, on the real main window.
#include "program/frmNEBSlideShow.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include "MainWindowRig.h"
#include "controls/grid/FlexGrid.h"
#include "db/clsDBEngine.h"
#include "harness/ScriptedBoxes.h"
#include "harness/TempFolder.h"
#include "harness/WithoutExtraFormats.h"
#include "harness/WithoutPrivileges.h"
#include "program/frmAbout.h"
#include "settings/SettingKeys.h"
#include "settings/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/compose/frmSlideShowDBM.h"
#include "windows/film/frmFilm.h"
#include "windows/frame/Openers.h"
#include "windows/import/frmNewAlbumWzd1.h"
#include "windows/import/frmQuickShow.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/rehearsal/frmRehearsal.h"
#include "windows/show/frmPreferences.h"
#include "windows/show/frmSlideShowProjector.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
namespace {

TEST_F(MainWindow, AFirstStartMakesTheFoldersAndTheGlobals) {
    Start();
    EXPECT_TRUE(mWindow->isVisible());
    EXPECT_TRUE(FolderExists(DBPath() + "Albums"));
    EXPECT_TRUE(FolderExists(DBPath() + "Temp"));
    EXPECT_FALSE(ReadOnlyDB);
    ASSERT_TRUE(DBEngine);
    EXPECT_EQ(DBEngine->NextAlbumID, 1);
    ASSERT_TRUE(ImageBuffer);
    EXPECT_TRUE(ImageBuffer->UseSmallFiles);
    EXPECT_EQ(ImageBuffer->BufferGrid, mWindow->flxBuffer());
    EXPECT_FALSE(mWindow->flxBuffer()->isVisible());
    EXPECT_TRUE(FileSystem);
}

// The program of these tests has no pictures to measure with, which the test says when it runs.
TEST_F(MainWindow, TheSpeedTestRunsAtTheFirstStartAndNeverAgain) {
    DeleteFile(SettingsDir() + INIFileName());
    mBoxes.WhileNextIsOpen([this] {
        EXPECT_TRUE(mWindow->isVisible());
        EXPECT_FALSE(mWindow->close()) << "the start is not over";
        EXPECT_TRUE(mWindow->isVisible());
    });
    mBoxes.Expect("Missing Component, Speed Test aborted.", {}, BoxIcon::Plain, BoxAnswer::Ok);
    Start();
    EXPECT_EQ(OpenSettings().GetValue({}, "Timeout", {}), "10");
    EXPECT_TRUE(FolderExists(DBPath() + "Temp")) << "the start goes on";
    mWindow.reset();
    Start();
}

TEST_F(MainWindow, TheRecordsReachTheDiskAtTheEndAndOnlyThen) {
    Start();
    SaveAlbum("Holidays");
    EXPECT_FALSE(FileExists(DBPath() + "Albums.dat"));
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(FileSize(DBPath() + "Albums.dat"), 86);
    EXPECT_EQ(DBEngine, nullptr);
    EXPECT_EQ(ImageBuffer, nullptr);
    EXPECT_EQ(FileSystem, nullptr);
    Start();
    EXPECT_TRUE(DBEngine->FindAlbum(0, "HOLIDAYS"));
}

TEST_F(MainWindow, SettingsThatCannotBeWrittenDoNotKeepTheProgramFromStarting) {
    DeleteFile(SettingsDir() + INIFileName());
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"QLM.ini")) throw Fault("no", Path);
    });
    mBoxes.Expect("Missing Component, Speed Test aborted.");
    EXPECT_NO_THROW(Start());
    EXPECT_TRUE(DBEngine);
}

TEST_F(MainWindow, TheMenuBarLeavesTheKeysOfTheButtonsInsideAlone) {
    Start();
    mWindow->OpenQuickShow();
    QSet<QKeySequence> Menus;
    for (const QAction* Header : mWindow->menuBar()->actions()) {
        EXPECT_FALSE(Menus.contains(QKeySequence::mnemonic(Header->text())));
        Menus.insert(QKeySequence::mnemonic(Header->text()));
    }
    for (const QPushButton* Button : Find<frmQuickShow>()->findChildren<QPushButton*>())
        EXPECT_FALSE(Menus.contains(Button->shortcut()) && !Button->shortcut().isEmpty())
            << qPrintable(Button->text());
}

TEST_F(MainWindow, TempIsEmptiedAtTheEnd) {
    Start();
    WriteFile(DBPath() + "Temp/tmp.wav", "x");
    WriteFile(DBPath() + "Temp/noextension", "x");
    mWindow->close();
    EXPECT_TRUE(ListMask(DBPath() + "Temp/*.*").empty());
}

TEST_F(MainWindow, AReadOnlyDatabaseIsShownAndNeverWritten) {
    Start();
    SaveAlbum("Holidays");
    mWindow->close();
    QFile::setPermissions(DBPath() + "NextIDs.dat", QFileDevice::ReadOwner);
    const auto Before = FileTime(DBPath() + "Albums.dat");
    WriteFile(DBPath() + "Temp/left.tmp", "x");

    Start();
    EXPECT_TRUE(ReadOnlyDB);
    EXPECT_FALSE(Entry("mnuAlbumNew")->isEnabled());
    SaveAlbum("More");
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(FileSize(DBPath() + "Albums.dat"), 86);
    EXPECT_EQ(FileTime(DBPath() + "Albums.dat"), Before);
    EXPECT_TRUE(ListMask(DBPath() + "Temp/*.*").empty());
}

TEST_F(MainWindow, AReadOnlyDatabaseRunsNoSpeedTest) {
    Start();
    mWindow->close();
    QFile::setPermissions(DBPath() + "NextIDs.dat", QFileDevice::ReadOwner);
    DeleteFile(SettingsDir() + INIFileName());
    Start();
    EXPECT_EQ(mBoxes.ShownCount(), 0);
    EXPECT_EQ(OpenSettings().GetValue({}, "Timeout", "none"), "none");
}

TEST_F(MainWindow, TheLogTellsTheStartWhenItIsWanted) {
    CommandLine Line;
    Line.Debug = true;
    Start(Line);
    QStringList Messages;
    for (const QByteArray& Row : ReadFile(OwnPath() + "QLM.log").trimmed().split('\n')) {
        const QList<QByteArray> Columns = Row.split('\t');
        ASSERT_EQ(Columns.size(), 3);
        EXPECT_EQ(Columns[1], "Information");
        Messages << QString::fromUtf8(Columns[2]);
    }
    const QStringList Expected = {"Showing Main Form",
                                  "Starting Initializing and Buffering Database",
                                  "Completed Initializing and Buffering Database",
                                  "Check if Read-Only",
                                  "If not read-only, call Speed Tests routine.",
                                  "Attempt to make child dirs.",
                                  "Load Completed Successfully."};
    EXPECT_EQ(Messages, Expected);
}

TEST_F(MainWindow, WithoutTheSwitchThereIsNoLog) {
    Start();
    EXPECT_FALSE(FileExists(OwnPath() + "QLM.log"));
}

TEST_F(MainWindow, SlideShowManagersOpenFromTheMenuAndForWhoeverWantsOne) {
    Start();
    SaveAlbum("Garden");
    std::int32_t ShowID = 0;
    DBEngine->GetAlbum(1)->SaveSlideShow(ShowID, "Walk", 1, *DBEngine);
    EXPECT_EQ(Entry("mnuSlideShowMgr")->shortcut(), QKeySequence("Ctrl+M"));
    Press("mnuSlideShowMgr");
    auto* Area = mWindow->findChild<QMdiArea*>();
    ASSERT_EQ(Area->subWindowList().size(), 1);
    EXPECT_EQ(Area->subWindowList()[0]->widget()->windowTitle(), "Slide Show Manager");
    TheOpeners().SlideShowMgr(1, ShowID);
    ASSERT_EQ(Area->subWindowList().size(), 2);
    auto* Shown = qobject_cast<frmSlideShowDBM*>(Area->subWindowList()[1]->widget());
    ASSERT_TRUE(Shown);
    EXPECT_EQ(Shown->windowTitle(), "Slide Show Manager - Garden");
    EXPECT_EQ(Shown->findChild<QLineEdit*>("txtName")->text(), "Walk");
}

TEST_F(MainWindow, EveryMenuEntryIsInItsPlace) {
    Start();
    for (const char* Name : {"mnuAlbumNew",        "mnuAlbumRename",     "mnuAlbumDelete",
                             "mnuAlbumExport",     "mnuAlbumImport",     "mnuAlbumPrint",
                             "mnuSlideMgr",        "mnuSlideMgrBulk",    "mnuSlideShowMgr",
                             "mnuSlideShowExport", "mnuSlideShowImport", "mnuSlideShowPrint",
                             "mnuSlideShowPrefs",  "mnuSlideShowViewer", "mnuSlideShowRehearse",
                             "mnuSlideShowFilm",   "mnuQuickShow",       "mnuSpeedTest",
                             "mnuRestore",         "mnuHelpContents",    "mnuHelpIndex",
                             "mnuCopyReport",      "mnuAbout",           "mnuExit"})
        EXPECT_TRUE(Entry(Name)) << Name;
    for (const char* Name : {"mnuFileHdr", "mnuAlbumHdr", "mnuSlideShowHdr", "mnuImportExportHdr",
                             "mnuPrintHdr", "mnuWindows", "mnuHelpHdr"})
        EXPECT_TRUE(mWindow->menuBar()->findChild<QMenu*>(QString::fromLatin1(Name))) << Name;
}

TEST_F(MainWindow, NoTwoEntriesOfAMenuShareAMnemonicAndNoTwoAShortcut) {
    Start();
    QStringList Shortcuts;
    for (QAction* Header : mWindow->menuBar()->actions()) {
        QString Mnemonics;
        for (QAction* Each : Header->menu()->actions()) {
            if (Each->isSeparator()) continue;
            const QChar Letter = Each->text()[Each->text().indexOf('&') + 1].toLower();
            EXPECT_FALSE(Mnemonics.contains(Letter)) << Each->text().toStdString();
            Mnemonics += Letter;
            if (!Each->shortcut().isEmpty()) Shortcuts << Each->shortcut().toString();
        }
    }
    EXPECT_EQ(Shortcuts.removeDuplicates(), 0);
}

TEST_F(MainWindow, QuickShowWindowsStandInTheCascade) {
    Start();
    Press("mnuQuickShow");
    Press("mnuQuickShow");
    const auto Frames = mWindow->findChild<QMdiArea*>()->subWindowList();
    ASSERT_EQ(Frames.size(), 2);
    EXPECT_EQ(Frames[0]->pos(), QPoint(0, 0));
    EXPECT_EQ(Frames[1]->pos(), QPoint(22, 22));
    EXPECT_TRUE(Frames[1]->isVisible());
}

TEST_F(MainWindow, CtrlBOpensABulkSlideManagerEachTime) {
    Start();
    SaveAlbum("Holidays");
    EXPECT_TRUE(Entry("mnuSlideMgrBulk")->isEnabled());
    EXPECT_EQ(Entry("mnuSlideMgrBulk")->shortcut(), QKeySequence("Ctrl+B"));
    Press("mnuSlideMgrBulk");
    Press("mnuSlideMgrBulk");
    const auto Frames = mWindow->findChild<QMdiArea*>()->subWindowList();
    ASSERT_EQ(Frames.size(), 2);
    for (const QMdiSubWindow* Each : Frames) {
        EXPECT_TRUE(qobject_cast<frmSlideMgrBulk*>(Each->widget()));
        EXPECT_EQ(Each->windowTitle(), "Bulk Slide Manager - Holidays");
        EXPECT_TRUE(Each->isVisible());
    }
    EXPECT_EQ(Frames[1]->pos(), QPoint(22, 22));
    QTest::keyClick(Frames[0]->widget(), Qt::Key_Escape);
    EXPECT_TRUE(Frames[0]->isVisible()) << "Esc leaves captions that are being typed";
    EXPECT_TRUE(mWindow->close());
    EXPECT_TRUE(LoadedForms().empty());
}

TEST_F(MainWindow, SlideManagersOpenAsChildrenAsManyAsAreWanted) {
    Start();
    SaveAlbum("Holidays");
    EXPECT_EQ(Entry("mnuSlideMgr")->shortcut(), QKeySequence("Ctrl+E"));
    EXPECT_TRUE(Entry("mnuSlideMgr")->isEnabled());
    Press("mnuSlideMgr");
    Press("mnuSlideMgr");
    const auto Frames = mWindow->findChild<QMdiArea*>()->subWindowList();
    ASSERT_EQ(Frames.size(), 2);
    for (const QMdiSubWindow* Frame : Frames) {
        ASSERT_TRUE(qobject_cast<frmSlideDBM*>(Frame->widget()));
        EXPECT_TRUE(Frame->widget()->isVisible());
        const auto* Albums = Frame->widget()->findChild<QComboBox*>("cboAlbum");
        EXPECT_TRUE(QTest::qWaitFor([&] { return Albums->count() == 1; }, 2000));
    }
    EXPECT_EQ(Frames[1]->pos(), QPoint(22, 22));
}

TEST_F(MainWindow, ASlideManagerComesBackAsLargeAsItWasAndMaximised) {
    Start();
    SaveAlbum("Holidays");
    for (const bool Maximised : {false, true}) {
        Press("mnuSlideMgr");
        auto* Frame = mWindow->findChild<QMdiArea*>()->subWindowList().first();
        EXPECT_EQ(Frame->isMaximized(), false);
        if (Maximised)
            Frame->showMaximized();
        else
            Frame->resize(Frame->size() + QSize(30, 20));
        const QSize Size = Frame->size();
        Find<frmSlideDBM>()->Unload();
        Press("mnuSlideMgr");
        Frame = mWindow->findChild<QMdiArea*>()->subWindowList().first();
        EXPECT_EQ(Frame->isMaximized(), Maximised);
        EXPECT_EQ(Frame->size(), Size);
        Find<frmSlideDBM>()->Unload();
    }
}

TEST_F(MainWindow, ASlideManagerWithChangesKeepsTheProgramOpenWhenTheUserWants) {
    Start();
    SaveAlbum("Holidays");
    Press("mnuSlideMgr");
    Find<frmSlideDBM>()->findChild<QLineEdit*>("txtDscr")->setText("mine");
    const QString Question = "Are you sure you want to discard the changes to the current slide?";
    mBoxes.Expect(Question, BoxAnswer::No);  // without an album there is nowhere to save it
    EXPECT_FALSE(mWindow->close());
    EXPECT_TRUE(Find<frmSlideDBM>());
    mBoxes.Expect(Question, BoxAnswer::Yes);
    EXPECT_TRUE(mWindow->close());
}

TEST_F(MainWindow, TheFrameOfAChildClosesItAndTheChildCanCloseItself) {
    Start();
    Press("mnuQuickShow");
    auto* Area = mWindow->findChild<QMdiArea*>();
    Area->subWindowList().first()->close();
    DoEvents();
    EXPECT_EQ(Find<frmQuickShow>(), nullptr);
    EXPECT_TRUE(Area->subWindowList().isEmpty());

    Press("mnuQuickShow");
    QTest::mouseClick(Find<frmQuickShow>()->findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
    DoEvents();
    EXPECT_EQ(Find<frmQuickShow>(), nullptr);
    EXPECT_TRUE(Area->subWindowList().isEmpty());
}

TEST_F(MainWindow, CannotBeClosedBeforeItIsLoaded) {
    bool Closed = true;
    mWindow = std::make_unique<frmNEBSlideShow>();
    QTimer::singleShot(0, [&] { Closed = mWindow->close(); });
    mWindow->Form_Load({});
    EXPECT_FALSE(Closed);
    EXPECT_TRUE(mWindow->isVisible());
    EXPECT_TRUE(mWindow->close());
}

TEST_F(MainWindow, TheSettingsSayWhetherTheKindsOfTodayArePictures) {
    const harness::WithoutExtraFormats GivesThemBack;
    Start();
    EXPECT_TRUE(ExtraFormatsAreOn());
    mWindow->close();
    clsSettings Settings = OpenSettings();
    Settings.PutValue("Pictures", "ExtraFormats", "False");
    Settings.Save();
    Start();
    EXPECT_FALSE(ExtraFormatsAreOn());
}

TEST_F(MainWindow, EscapeLeavesAChildWithItsWorkOpen) {
    Start();
    Press("mnuQuickShow");
    QTest::keyClick(Find<frmQuickShow>(), Qt::Key_Escape);
    DoEvents();
    EXPECT_TRUE(Find<frmQuickShow>()->isVisible());
}

TEST_F(MainWindow, TheEndUnloadsEveryWindow) {
    Start();
    Press("mnuQuickShow");
    EXPECT_TRUE(mWindow->close());
    EXPECT_TRUE(LoadedForms().empty());
    const clsSettings Settings = OpenSettings();
    EXPECT_FALSE(Settings.GetValue("frmQuickShow", "Height", {}).isEmpty());
}

TEST_F(MainWindow, WhileChangesCannotBeStoredTheStatusBarSaysSo) {
    Start();
    const auto& Told = *mWindow->statusBar()->findChild<QLabel*>("lblUnstored");
    QTest::qWait(1100);
    EXPECT_FALSE(Told.isVisible());
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 0;
    });
    SaveAlbum("Holidays");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Told.isVisible(); }, 5000));
    EXPECT_TRUE(Told.text().startsWith("The last changes are not on the disk yet"));
    EXPECT_TRUE(Told.toolTip().contains(DBPath())) << "which file";
    SetHostWatcher({});
    EXPECT_TRUE(DBEngine->IsSessionStored());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Told.isVisible(); }, 5000));
    EXPECT_TRUE(mWindow->close());
}

TEST_F(MainWindow, AFullDiskAtTheEndKeepsTheProgramOpenWhenTheUserWants) {
    Start();
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 0;
    });
    SaveAlbum("Holidays");
    int Asked = 0;
    TheServices().Boxes = nullptr;  // answered below, whatever the exact text
    class Answers : public MessageBoxes {
      public:
        explicit Answers(int& Count) : mCount(Count) {}
        BoxAnswer Show(const BoxRequest& Request) override {
            ++mCount;
            EXPECT_TRUE(Request.Text.contains("could not be saved"));
            EXPECT_TRUE(Request.Text.contains(DBPath())) << "what is wrong";
            EXPECT_TRUE(Request.Text.contains("Mend what is wrong")) << "what to do";
            EXPECT_EQ(Request.YesWords, "&End and Lose the Changes");
            EXPECT_EQ(Request.Default, BoxAnswer::No);
            return mGiven;
        }
        BoxAnswer mGiven = BoxAnswer::No;
        int& mCount;
    } Given(Asked);
    TheServices().Boxes = &Given;
    EXPECT_FALSE(mWindow->close());
    EXPECT_EQ(Asked, 1);
    ASSERT_TRUE(DBEngine);
    SetHostWatcher({});
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(FileSize(DBPath() + "Albums.dat"), 86);
    TheServices().Boxes = &mBoxes;
}

TEST_F(MainWindow, OnlyTheAnswerInWordsEndsTheProgramUnsaved) {
    Start();
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 0;
    });
    SaveAlbum("Holidays");
    const harness::LettingGo Given;  // answers by the button in words
    EXPECT_TRUE(mWindow->close());
    SetHostWatcher({});
    EXPECT_EQ(DBEngine, nullptr);
    EXPECT_FALSE(FileExists(DBPath() + "Albums.dat"));
}

TEST_F(MainWindow, AnEndThatCannotSaveLosesNothingOfWhatIsKeptInTheJournal) {
    Start();
    SaveAlbum("Holidays");
    ASSERT_TRUE(DBEngine->IsSessionStored());
    SetHostWatcher([](HostStep Step, const QString&, qint64& Length) {
        if (Step == HostStep::Write) Length = 0;
    });
    BoxRequest Asked;
    {
        class Ends : public MessageBoxes {
          public:
            explicit Ends(BoxRequest& Asked) : mAsked(Asked) {}
            BoxAnswer Show(const BoxRequest& Request) override {
                mAsked = Request;
                return BoxAnswer::Yes;
            }
            BoxRequest& mAsked;
        } Boxes(Asked);
        TheServices().Boxes = &Boxes;
        EXPECT_TRUE(mWindow->close());
        TheServices().Boxes = &mBoxes;
    }
    SetHostWatcher({});
    EXPECT_TRUE(Asked.Text.contains("the next start brings them back"));
    EXPECT_EQ(Asked.YesWords, "&End, the Changes Are Kept");
    EXPECT_EQ(Asked.Default, BoxAnswer::No);
    EXPECT_FALSE(FileExists(DBPath() + "Albums.dat"));
    Start();
    ASSERT_EQ(DBEngine->Albums.size(), 1U);
    EXPECT_EQ(DBEngine->Albums[0]->AlbumName, "Holidays");
    const QRegularExpression Notice(
        QStringLiteral("^1 change of \\d+ [A-Z][a-z]+, \\d\\d:\\d\\d, was brought back\\.$"));
    EXPECT_TRUE(Notice.match(mWindow->statusBar()->currentMessage()).hasMatch())
        << mWindow->statusBar()->currentMessage().toStdString();
}

TEST_F(MainWindow, AFolderThatCannotBeWrittenIsSaidAtTheStart) {
    class Notes : public MessageBoxes {
      public:
        BoxAnswer Show(const BoxRequest& Request) override {
            Titles << Request.Title;
            return BoxAnswer::Ok;
        }
        QStringList Titles;
    } Boxes;
    TheServices().Boxes = &Boxes;
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains("Temp"))
            throw Fault(QStringLiteral("no permission"), Path);
    });
    Start();
    EXPECT_EQ(Boxes.Titles, QStringList("Albums Cannot Be Written"));
    EXPECT_TRUE(DBEngine);
    SetHostWatcher({});
    TheServices().Boxes = &mBoxes;
}

TEST_F(MainWindow, PlayingWithoutAnActiveShowOffersToChooseOne) {
    Start();
    SaveAlbum("Holiday");
    const std::int32_t AlbumID = DBEngine->Albums.front()->AlbumID;
    ASSERT_TRUE(Changes(*DBEngine).SaveShow(AlbumID, {}));
    for (const BoxAnswer Given : {BoxAnswer::Yes, BoxAnswer::No}) {
        mBoxes.Expect("You must first select an Active Slide Show in Preferences!",
                      "No Active Slide Show", BoxIcon::Information, Given);
        int Opened = 0;
        if (Given == BoxAnswer::Yes) WhenPreferencesOpen([&](frmPreferences&) { ++Opened; });
        Press("mnuSlideShowViewer");
        EXPECT_EQ(Opened, Given == BoxAnswer::Yes ? 1 : 0);
        EXPECT_FALSE(Find<frmSlideShowProjector>());
    }
}

TEST_F(MainWindow, PlayingWhereThereIsNoShowOffersToMakeTheFirst) {
    Start();
    mBoxes.Expect("There is no slide show yet. Quick Show turns a folder of pictures into one.",
                  "No Active Slide Show", BoxIcon::Information, BoxAnswer::Yes);
    Press("mnuSlideShowViewer");
    ASSERT_TRUE(Find<frmQuickShow>());
    Find<frmQuickShow>()->Unload();
    SaveAlbum("Holiday");
    const QString Composed =
        "There is no slide show yet. The Slide Show Manager composes one from the slides of an "
        "album.";
    mBoxes.Expect(Composed, BoxAnswer::No);
    Press("mnuSlideShowRehearse");
    EXPECT_TRUE(LoadedForms().empty());
    mBoxes.Expect(Composed, BoxAnswer::Yes);
    Press("mnuSlideShowViewer");
    EXPECT_TRUE(Find<frmSlideShowDBM>());
}

TEST_F(MainWindow, PlayingGoesOnWithTheShowThatIsThenChosenInPreferences) {
    Start();
    std::int32_t AlbumID = 0, ShowID = 0;
    ASSERT_TRUE(DBEngine->SaveAlbum(AlbumID, "Holiday"));
    DBEngine->GetAlbum(AlbumID)->SaveSlideShow(ShowID, "Lake", 0, *DBEngine);
    mBoxes.Expect("You must first select an Active Slide Show in Preferences!",
                  "No Active Slide Show", BoxIcon::Information, BoxAnswer::Yes);
    WhenPreferencesOpen([&](frmPreferences& Window) {
        Window.findChild<QComboBox*>("cboAlbums")->setCurrentText("Holiday");
        Window.findChild<QComboBox*>("cboSlideShows")->setCurrentText("Lake");
        QTest::mouseClick(Window.findChild<QPushButton*>("cmdApply"), Qt::LeftButton);
    });
    int Shown = 0;
    mBoxes.WhileNextIsOpen([&] {
        ++Shown;
        QTimer::singleShot(0, qApp, [] { Find<frmSlideShowProjector>()->Unload(); });
    });
    mBoxes.Expect("Slide #1 of the current slide show does not exist!");
    Press("mnuSlideShowViewer");
    EXPECT_EQ(Shown, 1);
}

TEST_F(MainWindow, TheActiveShowIsRehearsedAndFilmedFromTheMenu) {
    Start();
    std::int32_t AlbumID = 0, ShowID = 0, SlideID = 0;
    ASSERT_TRUE(DBEngine->SaveAlbum(AlbumID, "Holiday"));
    clsNEBAlbum& Album = *DBEngine->GetAlbum(AlbumID);
    Album.SaveSlideShow(ShowID, "Lake", 0, *DBEngine);
    Album.SaveSlide2(SlideID, "a", {}, {}, false, false, *DBEngine);
    Album.GetSlideShow(ShowID)->SaveDetail(SlideID, 1, {});
    clsSettings Settings = OpenSettings();
    PutNumber(Settings, Setting::ActiveAlbum, AlbumID);
    PutNumber(Settings, Setting::ActiveSlideShow, ShowID);
    Settings.Save();
    Press("mnuSlideShowRehearse");
    ASSERT_TRUE(QTest::qWaitFor([] { return Find<frmRehearsal>() != nullptr; }, 3000));
    EXPECT_EQ(Find<frmRehearsal>()->windowTitle(), "Rehearsal - Lake");
    TheOpeners().SlideOfShow(AlbumID, ShowID, SlideID);
    ASSERT_TRUE(Find<frmSlideShowDBM>());
    EXPECT_TRUE(Find<frmSlideShowDBM>()->IsAbout(AlbumID, ShowID));
    Press("mnuSlideShowFilm");
    ASSERT_TRUE(QTest::qWaitFor([] { return Find<frmFilm>() != nullptr; }, 3000));
    EXPECT_EQ(Find<frmFilm>()->windowTitle(), "Film - Lake");
}

TEST_F(MainWindow, PreferencesOpenFromTheMenu) {
    Start();
    int Opened = 0;
    WhenPreferencesOpen([&](frmPreferences& Window) {
        ++Opened;
        EXPECT_TRUE(Window.isModal());
    });
    EXPECT_TRUE(Entry("mnuSlideShowPrefs")->isEnabled());
    Press("mnuSlideShowPrefs");
    EXPECT_EQ(Opened, 1);
}

TEST_F(MainWindow, ANewAlbumIsAskedForFromTheMenu) {
    Start();
    EXPECT_TRUE(Entry("mnuAlbumNew")->isEnabled());
    EXPECT_EQ(Entry("mnuAlbumNew")->shortcut(), QKeySequence("Ctrl+N"));
    int Opened = 0;
    QTimer Poll;
    QObject::connect(&Poll, &QTimer::timeout, [&] {
        auto* Window = Find<frmNewAlbumWzd1>();
        if (!Window || !Window->isVisible()) return;
        ++Opened;
        EXPECT_TRUE(Window->isModal());
        Window->Unload();
    });
    Poll.start(2);
    Press("mnuAlbumNew");
    EXPECT_EQ(Opened, 1);
}

TEST_F(MainWindow, AnAlbumIsRenamedFromTheMenu) {
    Start();
    SaveAlbum("Holidays");
    EXPECT_TRUE(Entry("mnuAlbumRename")->isEnabled());
    WhenOpen<frmAlbumRename>([](frmAlbumRename& Window) {
        EXPECT_TRUE(Window.isModal());
        auto* Albums = Window.findChild<QComboBox*>("cboAlbum");
        EXPECT_EQ(Albums->currentIndex(), -1) << "the user is to choose";
        Albums->setCurrentIndex(0);
        Window.findChild<QLineEdit*>("txtAlbumName")->setText("Winter");
        QTest::mouseClick(Window.findChild<QPushButton*>("cmdSave"), Qt::LeftButton);
    });
    Press("mnuAlbumRename");
    EXPECT_TRUE(DBEngine->FindAlbum(0, "Winter"));
}

TEST_F(MainWindow, AnAlbumIsDeletedFromTheMenu) {
    Start();
    SaveAlbum("Holidays");
    EXPECT_TRUE(Entry("mnuAlbumDelete")->isEnabled());
    mBoxes.Expect(
        "Are you sure you want to delete the selected Album?\n"
        "If you proceed all the slides and slide shows within\nwill be lost.",
        BoxAnswer::Yes);
    WhenOpen<frmAlbumDelete>([](frmAlbumDelete& Window) {
        Window.findChild<QComboBox*>("cboAlbum")->setCurrentIndex(0);
        QTest::mouseClick(Window.findChild<QPushButton*>("cmdDelete"), Qt::LeftButton);
    });
    Press("mnuAlbumDelete");
    EXPECT_TRUE(DBEngine->Albums.empty());
}

TEST_F(MainWindow, PlayingAnAlbumThatIsGoneStopsWithoutAWord) {
    Start();
    clsSettings Settings = OpenSettings();
    Settings.PutValue({}, "ActiveAlbum", "7");
    Settings.PutValue({}, "ActiveSlideShow", "1");
    Settings.Save();
    Press("mnuSlideShowViewer");
    EXPECT_EQ(mBoxes.ShownCount(), 0);
}

TEST_F(MainWindow, AboutSaysTheVersionAndWhenThereIsNoSystemInformation) {
    Start();
    const QByteArray Path = qgetenv("PATH");
    qputenv("PATH", mProgram.Path().toUtf8());
    mBoxes.Expect("System Information Is Unavailable At This Time");
    bool Seen = false;
    QTimer::singleShot(0, [&] {
        auto* About = Find<frmAbout>();
        ASSERT_TRUE(About);
        Seen = About->findChild<QLabel*>("lblVersion")->text().startsWith("Version ");
        QTest::mouseClick(About->findChild<QPushButton*>("cmdSysInfo"), Qt::LeftButton);
        QTest::keyClick(About, Qt::Key_Return);
    });
    NewForm<frmAbout>()->ShowModal();
    qputenv("PATH", Path);
    EXPECT_TRUE(Seen);
}

TEST_F(MainWindow, SystemInformationStartsTheToolThatTheDesktopHas) {
    const QString Tool = mProgram / "hardinfo";
    WriteFile(Tool, "#!/bin/sh\ntouch \"$(dirname \"$0\")/started\"\n");
    QFile::setPermissions(Tool, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    const QByteArray Path = qgetenv("PATH");
    qputenv("PATH", mProgram.Path().toUtf8() + ':' + Path);
    StartSysInfo();
    qputenv("PATH", Path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return FileExists(mProgram / "started"); }, 3000));
}

// A journal that cannot be read may hold newer records.
TEST_F(MainWindow, ADatabaseThatCannotBeReadIsToldAndNothingIsWritten) {
    Start();
    SaveAlbum("Holidays");
    mWindow->close();
    const QByteArray Albums = ReadFile(DBPath() + "Albums.dat");
    QFile::setPermissions(mDocuments.Path(), QFileDevice::Permissions(0x7777));
    WriteFile(DBPath() + "Temp/Journal/Records.journal", "secret");
    QFile::setPermissions(DBPath() + "Temp/Journal/Records.journal", {});
    mWindow = std::make_unique<frmNEBSlideShow>();
    mBoxes.Expect(
        "The albums are damaged, and cannot be written where they lie. What is left of them is "
        "shown; nothing is changed.\n\nThe file cannot be read: Permission denied. " +
            DBPath() + "Temp/Journal/Records.journal",
        "Damaged Albums", BoxIcon::Information, BoxAnswer::Ok);
    {
        const harness::WithoutPrivileges User;
        EXPECT_TRUE(mWindow->Form_Load({}));
        EXPECT_TRUE(ReadOnlyDB);
        mWindow->close();
    }
    mWindow.reset();
    EXPECT_EQ(ReadFile(DBPath() + "Albums.dat"), Albums);
}

}  // namespace
}  // namespace neb
