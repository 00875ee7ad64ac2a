// Going back to earlier albums, as a user does it in the real main window.
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTreeWidget>

#include "MainWindowRig.h"
#include "controls/grid/FlexGrid.h"
#include "db/Changes.h"
#include "db/modAlbumFiles.h"
#include "db/modLoadRecords.h"
#include "db/records/Generations.h"
#include "harness/AwaitActive.h"
#include "support/Fault.h"
#include "windows/albums/frmRestore.h"
#include "windows/lists/clsImageBuffer.h"
#include "windows/slides/frmSlideDBM.h"
#include "windows/slides/frmSlideMgrBulk.h"

namespace neb {
namespace {

const QString RestoreQuestion =
    "Do you want all albums and slide shows back as they were saved on %1?\n"
    "Those of now are kept among the earlier ones. All windows are closed first.";

class TheRestore : public MainWindow {
  protected:
    // A program that was ended three times: with "Sea", with "Ocean", and with "Hills" besides.
    TheRestore() {
        EndWith({"Sea"});
        EndWith({"Ocean"});
        EndWith({"Ocean", "Hills"});
    }
    void EndWith(const QStringList& Names) {
        Start();
        for (int I = 0; I < Names.size(); ++I) {
            std::int32_t AlbumID = I < static_cast<int>(DBEngine->Albums.size()) ? I + 1 : 0;
            ASSERT_TRUE(DBEngine->SaveAlbum(AlbumID, Names[I]));
        }
        EXPECT_TRUE(mWindow->close());
        mWindow.reset();
    }
    static QStringList NamesNow() {
        QStringList Names;
        for (const auto& Album : DBEngine->Albums) Names << Album->AlbumName;
        return Names;
    }
    static QStringList NamesOnDisk() {
        clsDBEngine Engine;
        Engine.SetDBPath(DBPath());
        Engine.InitializeDB(Recovery::InMemory);
        QStringList Names;
        for (const auto& Album : Engine.Albums) Names << Album->AlbumName;
        return Names;
    }
    static QTreeWidget& List(frmRestore& Window) {
        return *Window.findChild<QTreeWidget*>("trvStates");
    }
    static QString Differences(frmRestore& Window) {
        return Window.findChild<QPlainTextEdit*>("txtDifferences")->toPlainText();
    }
    static QPushButton& Button(frmRestore& Window, const char* Name) {
        return *Window.findChild<QPushButton*>(QString::fromLatin1(Name));
    }
    static void Choose(frmRestore& Window, int Row) {
        QTreeWidget& Tree = List(Window);
        const QRect Place = Tree.visualItemRect(Tree.topLevelItem(Row));
        QTest::mouseClick(Tree.viewport(), Qt::LeftButton, {}, Place.center());
    }
    static void PressRestore(frmRestore& Window) {
        QTest::mouseClick(&Button(Window, "cmdRestore"), Qt::LeftButton);
    }
    static QString TimeIn(frmRestore& Window, int Row) {
        return List(Window).topLevelItem(Row)->text(0);
    }
    void ExpectQuestion(const QString& Time, BoxAnswer Answer, const QString& More = {}) {
        mBoxes.Expect(RestoreQuestion.arg(Time) + More, "Restore Confirmation", BoxIcon::Question,
                      Answer);
    }
    void ExpectDone(const QString& Time, const QString& More = {}) {
        mBoxes.Expect("The albums are as they were saved on " + Time + "." + More,
                      "Operation Completed", BoxIcon::Information, BoxAnswer::Ok);
    }
    // Opens the window from the menu and acts in it.
    void InWindow(std::function<void(frmRestore&)> Do) {
        bool Opened = false;
        WhenOpen<frmRestore>([&, Do = std::move(Do)](frmRestore& Window) {
            Opened = true;
            Do(Window);
        });
        Press("mnuRestore");
        EXPECT_TRUE(Opened);
    }
};

TEST_F(TheRestore, TheWindowListsWhatWasKeptAndSaysWhatDiffers) {
    Start();
    InWindow([](frmRestore& Window) {
        ASSERT_EQ(List(Window).topLevelItemCount(), 2);
        EXPECT_EQ(List(Window).topLevelItem(0)->text(1), "1");
        EXPECT_EQ(Differences(Window), "Albums that go: \"Hills\".");
        Choose(Window, 1);
        EXPECT_EQ(Differences(Window),
                  "Albums that go: \"Hills\".\n"
                  "Albums that get their earlier names: \"Sea\" instead of \"Ocean\".");
        EXPECT_TRUE(Button(Window, "cmdRestore").isEnabled());
    });
    EXPECT_EQ(NamesNow(), (QStringList{"Ocean", "Hills"}));
}

TEST_F(TheRestore, ARestoreBringsTheAlbumsBackAndKeepsThoseOfNow) {
    Start();
    const clsDBEngine* const Engine = DBEngine;
    const std::int32_t NextAlbumID = DBEngine->NextAlbumID;
    InWindow([&](frmRestore& Window) {
        Choose(Window, 1);
        const QString Time = TimeIn(Window, 1);
        ExpectQuestion(Time, BoxAnswer::Yes);
        ExpectDone(Time);
        PressRestore(Window);
        EXPECT_EQ(List(Window).topLevelItemCount(), 3);
        EXPECT_EQ(List(Window).topLevelItem(0)->text(1), "2");
        EXPECT_TRUE(Window.isEnabled());
    });
    EXPECT_EQ(DBEngine, Engine);
    EXPECT_EQ(NamesNow(), QStringList{"Sea"});
    EXPECT_EQ(NamesOnDisk(), QStringList{"Sea"});
    EXPECT_EQ(DBEngine->NextAlbumID, NextAlbumID);
    // the windows show them
    Press("mnuSlideMgr");
    ASSERT_TRUE(Find<frmSlideDBM>());
    const auto* Albums = Find<frmSlideDBM>()->findChild<QComboBox*>("cboAlbum");
    ASSERT_TRUE(Albums);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Albums->count() == 1; }, 2000));
    EXPECT_EQ(Albums->itemText(0), "Sea");
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(NamesOnDisk(), QStringList{"Sea"});
}

TEST_F(TheRestore, WhatWasReplacedComesBackInTheSameWindow) {
    Start();
    InWindow([&](frmRestore& Window) {
        for (const int Row : {1, 0}) {
            Choose(Window, Row);
            const QString Time = TimeIn(Window, Row);
            ExpectQuestion(Time, BoxAnswer::Yes);
            ExpectDone(Time);
            PressRestore(Window);
        }
    });
    EXPECT_EQ(NamesNow(), (QStringList{"Ocean", "Hills"}));
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(NamesOnDisk(), (QStringList{"Ocean", "Hills"}));
}

TEST_F(TheRestore, TheQuestionsDefaultIsNoAndNoChangesNothing) {
    Start();
    const size_t Kept = ListGenerations(DBPath()).size();
    InWindow([&](frmRestore& Window) {
        ExpectQuestion(TimeIn(Window, 0), BoxAnswer::No);
        PressRestore(Window);
        EXPECT_EQ(mBoxes.Last().Default, BoxAnswer::No);
        EXPECT_EQ(mBoxes.Last().Buttons, BoxButtons::YesNo);
    });
    EXPECT_EQ(NamesNow(), (QStringList{"Ocean", "Hills"}));
    EXPECT_EQ(ListGenerations(DBPath()).size(), Kept);
}

TEST_F(TheRestore, ItWorksByTheKeyboardAlone) {
    Start();
    InWindow([&](frmRestore& Window) {
        ASSERT_TRUE(harness::AwaitActive(Window));
        EXPECT_EQ(Window.focusWidget(), &List(Window));
        const QString Time = TimeIn(Window, 1);
        QTest::keyClick(&List(Window), Qt::Key_Down);
        EXPECT_TRUE(Differences(Window).contains("\"Sea\""));
        ExpectQuestion(Time, BoxAnswer::Yes);
        ExpectDone(Time);
        QTest::keyClick(&List(Window), Qt::Key_R, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([] { return NamesNow() == QStringList{"Sea"}; }, 2000));
        QTest::keyClick(&List(Window), Qt::Key_Escape);
        EXPECT_FALSE(Window.IsLoaded());
    });
}

TEST_F(TheRestore, AWindowWithChangesAsksAndNoStopsTheRestore) {
    Start();
    Press("mnuSlideMgr");
    Find<frmSlideDBM>()->findChild<QLineEdit*>("txtDscr")->setText("mine");
    const QString Discard = "Are you sure you want to discard the changes to the current slide?";
    InWindow([&](frmRestore& Window) {
        ExpectQuestion(TimeIn(Window, 1), BoxAnswer::Yes);
        mBoxes.Expect(Discard, BoxAnswer::Cancel);
        Choose(Window, 1);
        PressRestore(Window);
        EXPECT_TRUE(Find<frmSlideDBM>());
        EXPECT_EQ(mWindow->statusBar()->currentMessage(),
                  "Nothing was restored: a window stayed open.");
        EXPECT_EQ(NamesNow(), (QStringList{"Ocean", "Hills"}));
        ExpectQuestion(TimeIn(Window, 1), BoxAnswer::Yes);
        mBoxes.Expect(Discard, BoxAnswer::Discard);
        ExpectDone(TimeIn(Window, 1));
        PressRestore(Window);
        EXPECT_FALSE(Find<frmSlideDBM>());
    });
    EXPECT_EQ(NamesNow(), QStringList{"Sea"});
}

TEST_F(TheRestore, EveryWindowIsAskedBeforeTheFirstOfThemGoes) {
    Start();
    Press("mnuSlideMgrBulk");
    Press("mnuSlideMgr");
    Find<frmSlideDBM>()->findChild<QLineEdit*>("txtDscr")->setText("mine");
    InWindow([&](frmRestore& Window) {
        ExpectQuestion(TimeIn(Window, 1), BoxAnswer::Yes);
        mBoxes.Expect("Are you sure you want to discard the changes to the current slide?",
                      BoxAnswer::Cancel);
        Choose(Window, 1);
        PressRestore(Window);
        EXPECT_TRUE(Find<frmSlideMgrBulk>()) << "it was opened first";
        EXPECT_TRUE(Find<frmSlideDBM>());
    });
    EXPECT_EQ(NamesNow(), (QStringList{"Ocean", "Hills"}));
    mBoxes.Expect("Are you sure you want to discard the changes to the current slide?",
                  BoxAnswer::Discard);
    EXPECT_TRUE(mWindow->close());
}

TEST_F(TheRestore, WantOfMemoryIsToldAndLeavesTheWindowUsable) {
    Start();
    InWindow([&](frmRestore& Window) {
        ExpectQuestion(TimeIn(Window, 0), BoxAnswer::Yes);
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.contains("Backups")) throw std::bad_alloc();
        });
        mBoxes.Expect(
            "The albums could not be restored. Nothing has changed.\n\n"
            "There is not enough memory to do this.",
            "Operation Failed", BoxIcon::Critical, BoxAnswer::Ok);
        PressRestore(Window);
        SetHostWatcher({});
        EXPECT_TRUE(Window.isEnabled());
        const QString Time = TimeIn(Window, 0);
        ExpectQuestion(Time, BoxAnswer::Yes);
        ExpectDone(Time);
        PressRestore(Window);
    });
    EXPECT_EQ(NamesNow(), QStringList{"Ocean"});
}

TEST_F(TheRestore, PicturesThatAreGoneAreNamedBeforeAndAfter) {
    Start();
    std::int32_t SlideID = 0;
    DBEngine->GetAlbum(2)->SaveSlide(SlideID, "x", "gone.jpg", {}, false, false, *DBEngine);
    EXPECT_TRUE(mWindow->close());
    EndWith({"Ocean", "Mountains"});
    Start();
    const QString Path = SlidesFolder(DBPath(), 2) + "gone.jpg";
    const QString Missing = "1 picture or sound of them is missing by now.";
    InWindow([&](frmRestore& Window) {
        EXPECT_TRUE(Differences(Window).endsWith(Missing + "\n" + Path))
            << Differences(Window).toStdString();
        const QString Time = TimeIn(Window, 0);
        ExpectQuestion(Time, BoxAnswer::Yes, "\n\n" + Missing);
        mBoxes.WhileNextIsOpen([&] { EXPECT_EQ(mBoxes.Last().Details, Path); });
        ExpectDone(Time, "\n\n" + Missing);
        PressRestore(Window);
        EXPECT_EQ(mBoxes.Last().Details, Path);
    });
}

TEST_F(TheRestore, ThumbnailsOfBeforeAreForgotten) {
    Start();
    mWindow->flxBuffer()->SetCols(6);
    const int Row = mWindow->flxBuffer()->AddItem();
    mWindow->flxBuffer()->SetCellData(Row, clsImageBuffer::ColAlbumID, 2.0);
    InWindow([&](frmRestore& Window) {
        ExpectQuestion(TimeIn(Window, 0), BoxAnswer::Yes);
        ExpectDone(TimeIn(Window, 0));
        PressRestore(Window);
    });
    EXPECT_EQ(mWindow->flxBuffer()->FindRow(clsImageBuffer::ColAlbumID, 2.0), -1);
}

TEST_F(TheRestore, TheSessionThatWasKeptGoesWithTheRecordsThatAreThere) {
    Start();
    DBEngine->KeepSession();
    {
        auto Made = Changes(*DBEngine).MakeAlbum("Not yet written");
        ASSERT_TRUE(Made);
    }
    InWindow([&](frmRestore& Window) {
        Choose(Window, 1);
        ExpectQuestion(TimeIn(Window, 1), BoxAnswer::Yes);
        ExpectDone(TimeIn(Window, 1));
        PressRestore(Window);
    });
    ASSERT_TRUE(DBEngine->IsSessionStored());
    EXPECT_EQ(NamesOnDisk(), QStringList{"Sea"});  // a start after a kill has no more than that
    InWindow([&](frmRestore& Window) {
        ASSERT_EQ(List(Window).topLevelItemCount(), 4);
        EXPECT_EQ(List(Window).topLevelItem(0)->text(1), "3");
    });
}

TEST_F(TheRestore, WithoutRoomNothingChangesAndTheReasonIsTold) {
    Start();
    InWindow([&](frmRestore& Window) {
        ExpectQuestion(TimeIn(Window, 0), BoxAnswer::Yes);
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.contains("Backups")) throw Fault("full", "x");
        });
        mBoxes.Expect("The albums could not be restored. Nothing has changed.\n\nfull\nx",
                      "Operation Failed", BoxIcon::Critical, BoxAnswer::Ok);
        PressRestore(Window);
        SetHostWatcher({});
    });
    EXPECT_EQ(NamesNow(), (QStringList{"Ocean", "Hills"}));
    EXPECT_EQ(NamesOnDisk(), (QStringList{"Ocean", "Hills"}));
}

TEST_F(TheRestore, ARestoreThatIsCutShortIsFinishedByTheEnd) {
    Start();
    InWindow([&](frmRestore& Window) {
        ExpectQuestion(TimeIn(Window, 0), BoxAnswer::Yes);
        SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
            if (Step == HostStep::Write && Path.endsWith("Albums.dat")) throw Fault("full", "x");
        });
        mBoxes.Expect(
            "The albums are back, but they are not all written yet. The end of the program, or its "
            "next start, will do it.\n\nfull\nx",
            "Operation Failed", BoxIcon::Critical, BoxAnswer::Ok);
        PressRestore(Window);
        SetHostWatcher({});
    });
    EXPECT_EQ(NamesNow(), QStringList{"Ocean"});
    EXPECT_EQ(NamesOnDisk(), QStringList{"Ocean"});
    EXPECT_TRUE(mWindow->close());
    EXPECT_EQ(NamesOnDisk(), QStringList{"Ocean"});
    EXPECT_EQ(ReadJournal(DBPath()), JournalState::None);
}

TEST_F(TheRestore, AFileThatIsDamagedSinceIsNotRestored) {
    Start();
    InWindow([&](frmRestore& Window) {
        WriteFile(ListGenerations(DBPath())[1].Path, "damaged");
        Choose(Window, 1);
        EXPECT_EQ(Differences(Window), "The file of these albums is damaged or gone.");
        PressRestore(Window);
        EXPECT_EQ(List(Window).topLevelItemCount(), 1);
    });
    EXPECT_EQ(NamesNow(), (QStringList{"Ocean", "Hills"}));
}

TEST_F(TheRestore, IsOffInAReadOnlyDatabase) {
    QFile::setPermissions(DBPath() + "NextIDs.dat", QFileDevice::ReadOwner);
    Start();
    EXPECT_FALSE(Entry("mnuRestore")->isEnabled());
}

TEST_F(TheRestore, WithoutEarlierAlbumsTheWindowSaysWhen) {
    DeleteTree(DBPath() + "Backups");
    Start();
    InWindow([&](frmRestore& Window) {
        EXPECT_TRUE(Differences(Window).startsWith("There are no earlier albums yet."));
        EXPECT_FALSE(Button(Window, "cmdRestore").isEnabled());
        QTest::mouseClick(&Button(Window, "cmdClose"), Qt::LeftButton);
        EXPECT_FALSE(Window.IsLoaded());
    });
}

TEST_F(TheRestore, AnEndThatCannotKeepTheAlbumsOfBeforeSavesAndSaysSo) {
    Start();
    SaveAlbum("More");
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains("Backups")) throw Fault("full", "x");
    });
    mBoxes.Expect(
        "The albums are saved. Those of before could not be kept among the earlier ones.\n\n"
        "full\nx",
        "Earlier Albums", BoxIcon::Information, BoxAnswer::Ok);
    EXPECT_TRUE(mWindow->close());
    SetHostWatcher({});
    EXPECT_EQ(NamesOnDisk(), (QStringList{"Ocean", "Hills", "More"}));
}

}  // namespace
}  // namespace neb
