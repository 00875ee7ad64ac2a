// Renaming an album: the checks in their order, the engine's refusals, odd names, the keyboard.
#include "AlbumHarness.h"
#include "db/Changes.h"
#include "harness/AwaitActive.h"

namespace neb {
namespace {

using namespace harness;

const QList<const char*> Controls = {"cboAlbum", "lblAlbum",  "txtAlbumName",
                                     "Label1",   "cmdCancel", "cmdSave"};

class AlbumRename : public AlbumWindows {};

TEST_F(AlbumRename, GivesTheChosenAlbumItsNewNameAndTellsTheOthers) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const QByteArray Kept = "a picture";
    WriteFile(SlidesFolder(Db.Path(), AlbumID) + u"00000001.jpg"_s, Kept);
    EXPECT_TRUE(Rename(AlbumID, [](frmAlbumRename& Window) {
        EXPECT_EQ("Garden", Chosen(Window));
        RenameTo(Window, u"Orchard"_s);
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_EQ("Orchard", NameOf(AlbumID));
    EXPECT_EQ("Album Update 1", Heard());
    EXPECT_EQ(Kept, ReadFile(SlidesFolder(Db.Path(), AlbumID) + u"00000001.jpg"_s));
}

TEST_F(AlbumRename, TheListenersSeeTheNewName) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    std::string Seen;
    Others->OnEvent = [&] { Seen = NameOf(AlbumID); };
    Rename(AlbumID, [](frmAlbumRename& Window) { RenameTo(Window, u"Orchard"_s); });
    EXPECT_EQ("Orchard", Seen);
}

TEST_F(AlbumRename, ItsTextsSpeakOfTheNoun) {
    MakeAlbum(u"Garden"_s);
    Rename(0, [](frmAlbumRename& Window) {
        EXPECT_EQ("Rename Album", Window.windowTitle().toStdString());
        EXPECT_EQ("New Album Name", In<QLabel>(Window, "Label1").text().toStdString());
        Window.SetAdjective(u"Slide Show"_s);
        EXPECT_EQ("Rename Slide Show", Window.windowTitle().toStdString());
        EXPECT_EQ("New Slide Show Name", In<QLabel>(Window, "Label1").text().toStdString());
    });
}

TEST_F(AlbumRename, WithoutAlbumsEverythingIsOffButCancel) {
    EXPECT_FALSE(Rename(0, [](frmAlbumRename& Window) {
        EXPECT_EQ("cboAlbum lblAlbum txtAlbumName Label1 cmdSave", Off(Window, Controls));
        EXPECT_TRUE(In<QLabel>(Window, "lblHint").text().contains(u"New Album"));
        EXPECT_TRUE(In<QLabel>(Window, "lblHint").isVisible());
        Press(Window, "cmdCancel");
        EXPECT_FALSE(Window.IsLoaded());
    }));
}

TEST_F(AlbumRename, ListsTheAlbumsByNameAndChoosesNoneByItself) {
    MakeAlbum(u"Pears"_s);
    MakeAlbum(u"apples"_s);
    ExpectFirstSelect();
    EXPECT_FALSE(Rename(0, [](frmAlbumRename& Window) {
        EXPECT_EQ("apples|Pears", Listed(Window));
        EXPECT_EQ("", Off(Window, Controls));
        EXPECT_FALSE(In<QLabel>(Window, "lblHint").isVisible());
        RenameTo(Window, {});
        EXPECT_TRUE(Window.IsLoaded());
    }));
    EXPECT_EQ("", Heard());
}

TEST_F(AlbumRename, AnAlbumThatIsNotThereIsNotChosen) {
    MakeAlbum(u"Garden"_s);
    Rename(77, [](frmAlbumRename& Window) { EXPECT_EQ("", Chosen(Window)); });
}

TEST_F(AlbumRename, RefusesANameOfBlanks) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    for (int Time = 0; Time < 2; ++Time)
        Boxes.Expect(u"You must enter an Album name."_s, u"Invalid User Input"_s,
                     BoxIcon::Information, BoxAnswer::Ok);
    Boxes.Expect(u"You must enter a Slide Show name."_s, u"Invalid User Input"_s);
    EXPECT_FALSE(Rename(AlbumID, [](frmAlbumRename& Window) {
        RenameTo(Window, {});
        RenameTo(Window, u"   "_s);
        Window.SetAdjective(u"Slide Show"_s);
        RenameTo(Window, {});
        EXPECT_TRUE(Window.IsLoaded());
    }));
    EXPECT_EQ("Garden", NameOf(AlbumID));
    EXPECT_EQ("", Heard());
}

TEST_F(AlbumRename, BeginsWithTheOldNameAllOfItSelected) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    MakeAlbum(u"Orchard"_s);
    EXPECT_TRUE(Rename(AlbumID, [](frmAlbumRename& Window) {
        ASSERT_TRUE(neb::harness::AwaitActive(Window));
        auto& Field = In<QLineEdit>(Window, "txtAlbumName");
        EXPECT_EQ(&Field, Window.focusWidget());
        EXPECT_EQ("Garden", Field.selectedText().toStdString());
        QTest::keyClick(&Field, Qt::Key_End);
        QTest::keyClicks(&Field, u" 2"_s);
        Key(Window, Qt::Key_Return);
    }));
    EXPECT_EQ("Garden 2", NameOf(AlbumID));
}

TEST_F(AlbumRename, ShowsTheNameOfTheAlbumThatIsChosenUntilOneIsTyped) {
    MakeAlbum(u"Apples"_s);
    MakeAlbum(u"Pears"_s);
    Rename(0, [](frmAlbumRename& Window) {
        ASSERT_TRUE(neb::harness::AwaitActive(Window));
        auto& Field = In<QLineEdit>(Window, "txtAlbumName");
        auto& Albums = In<QComboBox>(Window, "cboAlbum");
        EXPECT_EQ("", Field.text().toStdString());
        QTest::keyClick(&Albums, Qt::Key_Down);
        EXPECT_EQ("Apples", Field.text().toStdString());
        QTest::keyClick(&Albums, Qt::Key_Down);
        EXPECT_EQ("Pears", Field.text().toStdString());
        EXPECT_EQ("Pears", Field.selectedText().toStdString());
        Field.setFocus();
        QTest::keyClicks(&Field, u"it's"_s);
        Albums.setFocus();
        EXPECT_EQ(u"it’s"_s, Field.text());
        QTest::keyClick(&Albums, Qt::Key_Up);
        EXPECT_EQ(u"it’s"_s, Field.text());
    });
}

TEST_F(AlbumRename, FollowsANewNameThatTheAlbumGetsElsewhere) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Rename(AlbumID, [&](frmAlbumRename& Window) {
        auto Renamed = Changes(Engine).RenameAlbum(AlbumID, u"Yard"_s);
        Renamed->Now();
        EXPECT_EQ("Yard", In<QLineEdit>(Window, "txtAlbumName").text().toStdString());
    });
}

TEST_F(AlbumRename, ANameInUseIsRefusedAndTheWindowWaitsForAnother) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    MakeAlbum(u"Orchard"_s);
    Boxes.Expect(u"An Album with this name already exists."_s);
    EXPECT_TRUE(Rename(AlbumID, [this](frmAlbumRename& Window) {
        ASSERT_TRUE(neb::harness::AwaitActive(Window));
        RenameTo(Window, u"Orchard"_s);
        EXPECT_TRUE(Window.IsLoaded());
        auto& Field = In<QLineEdit>(Window, "txtAlbumName");
        EXPECT_EQ(&Field, Window.focusWidget());
        EXPECT_EQ("Orchard", Field.selectedText().toStdString());
        EXPECT_EQ("", Heard());
        QTest::keyClicks(&Field, u"Yard"_s);
        Key(Window, Qt::Key_Return);
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_EQ("Yard", NameOf(AlbumID));
    EXPECT_EQ(2u, Engine.Albums.size());
    EXPECT_EQ("Album Update 1", Heard());
}

TEST_F(AlbumRename, ANameGrowsNoLongerThanItCanBeKept) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Boxes.Expect(u"Album names must be <= 80 characters long."_s);
    Rename(AlbumID, [](frmAlbumRename& Window) { RenameTo(Window, QString(81, u'n')); });
    EXPECT_EQ("Garden", NameOf(AlbumID));
    Rename(AlbumID, [](frmAlbumRename& Window) {
        ASSERT_TRUE(neb::harness::AwaitActive(Window));
        auto& Field = In<QLineEdit>(Window, "txtAlbumName");
        QTest::keyClicks(&Field, QString(82, u'n'));
        EXPECT_EQ(80, Field.text().size());
        EXPECT_EQ("80 of 80", In<QLabel>(Field, "lblNameCount").text().toStdString());
        Press(Window, "cmdSave");
    });
    EXPECT_EQ(std::string(80, 'n'), NameOf(AlbumID));
}

TEST_F(AlbumRename, QuotesBecomeTypographicWhenTypedAndWhenPasted) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Rename(AlbumID, [](frmAlbumRename& Window) {
        Window.activateWindow();
        ASSERT_TRUE(neb::harness::AwaitActive(Window));
        auto& Field = In<QLineEdit>(Window, "txtAlbumName");
        Field.clear();
        QTest::keyClicks(&Field, u"Mary's"_s);
        EXPECT_EQ(u"Mary’s"_s.toStdString(), Field.text().toStdString());
        Field.setText(u"\"Mary's\""_s);
        Field.setFocus();
        In<QComboBox>(Window, "cboAlbum").setFocus();
        EXPECT_EQ(u"“Mary’s”"_s.toStdString(), Field.text().toStdString());
        RenameTo(Window, u"the 'old' \"garden\""_s);
    });
    EXPECT_EQ(u"the ‘old’ “garden”"_s.toStdString(), NameOf(AlbumID));
}

TEST_F(AlbumRename, TheSameNameWithOtherQuotesIsADuplicate) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    MakeAlbum(u"Mary’s"_s);
    Boxes.Expect(u"An Album with this name already exists."_s);
    Rename(AlbumID, [](frmAlbumRename& Window) { RenameTo(Window, u"Mary's"_s); });
    EXPECT_EQ("Garden", NameOf(AlbumID));
}

TEST_F(AlbumRename, ANameOutsideTheRecordsCodePageComesBackWhole) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    Rename(AlbumID, [](frmAlbumRename& Window) { RenameTo(Window, u"Łódź – €"_s); });
    EXPECT_EQ(u"Łódź – €"_s.toStdString(), NameOf(AlbumID));
    Engine.FinalizeDB();
    clsDBEngine Again;
    Again.SetDBPath(Db.Path());
    Again.InitializeDB();
    ASSERT_TRUE(Again.GetAlbum(AlbumID));
    EXPECT_EQ(u"Łódź – €"_s.toStdString(), Again.GetAlbum(AlbumID)->AlbumName.toStdString());
}

TEST_F(AlbumRename, LeavesTheNameWithCancelWithEscapeAndByItsFrame) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const std::function<void(frmAlbumRename&)> Ways[] = {
        [](frmAlbumRename& Window) { Press(Window, "cmdCancel"); },
        [](frmAlbumRename& Window) { Key(Window, Qt::Key_Escape); },
        [](frmAlbumRename& Window) { Window.close(); },
    };
    for (const auto& Leave : Ways)
        EXPECT_FALSE(Rename(AlbumID, [&](frmAlbumRename& Window) {
            In<QLineEdit>(Window, "txtAlbumName").setText(u"Orchard"_s);
            Leave(Window);
            EXPECT_FALSE(Window.IsLoaded());
        }));
    EXPECT_EQ("Garden", NameOf(AlbumID));
    EXPECT_EQ("", Heard());
}

TEST_F(AlbumRename, WorksByTheKeyboardAlone) {
    MakeAlbum(u"Apples"_s);
    const std::int32_t AlbumID = MakeAlbum(u"Pears"_s);
    EXPECT_TRUE(Rename(0, [](frmAlbumRename& Window) {
        Key(Window, Qt::Key_P);  // in the list, to the first that begins so
        Key(Window, Qt::Key_Tab);
        QTest::keyClicks(Window.focusWidget(), u"Quinces"_s);
        Key(Window, Qt::Key_Return);
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_EQ("Quinces", NameOf(AlbumID));
    // Cancel does what it says when Enter is pressed on it.
    EXPECT_FALSE(Rename(AlbumID, [](frmAlbumRename& Window) {
        QTest::keyClicks(Window.focusWidget(), u"Plums"_s);
        Key(Window, Qt::Key_Tab);
        Key(Window, Qt::Key_Tab);
        Key(Window, Qt::Key_Return);
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_EQ("Quinces", NameOf(AlbumID));
}

TEST(AlbumNames, TheArticleFollowsTheFirstLetter) {
    for (const char* Word : {"Album", "effect", "Image", "object", "Umbrella"})
        EXPECT_TRUE(StartsWithVowel(QString::fromLatin1(Word))) << Word;
    for (const char* Word : {"Slide Show", "year", "", " Album", "1"})
        EXPECT_FALSE(StartsWithVowel(QString::fromLatin1(Word))) << Word;
}

}  // namespace
}  // namespace neb
