// What other windows make of an album that is renamed or deleted, with the real windows; and that
// a read-only database is shown by them and never changed.
#include "AlbumHarness.h"
#include "harness/FolderState.h"

namespace neb {
namespace {

using namespace harness;

class AlbumChange : public AlbumWindows {
  protected:
    void DeleteIt(std::int32_t AlbumID) {
        ExpectQuestion(BoxAnswer::Yes);
        EXPECT_TRUE(Delete(AlbumID, [](frmAlbumDelete& Window) { Press(Window, "cmdDelete"); }));
    }
    static void RenameIt(std::int32_t AlbumID, const QString& Name) {
        EXPECT_TRUE(Rename(AlbumID, [&](frmAlbumRename& Window) { RenameTo(Window, Name); }));
    }
};

TEST_F(AlbumChange, ImportWindowsFollowTheNameOfTheirAlbum) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const std::int32_t Other = MakeAlbum(u"Lake"_s);
    const auto First = ShowFilter(AlbumID, {});
    const auto Second = ShowFilter(AlbumID, {});
    const auto Stranger = ShowFilter(Other, {});
    RenameIt(AlbumID, u"Mary's orchard"_s);
    for (const auto& Window : {First, Second})
        EXPECT_EQ(u"Picture Import Filter - Mary’s orchard"_s.toStdString(),
                  Window->windowTitle().toStdString());
    EXPECT_EQ("Picture Import Filter - Garden", Stranger->windowTitle().toStdString());
    for (const auto& Window : {First, Second, Stranger}) Window->Unload();
}

TEST_F(AlbumChange, AnImportWindowKeepsItsNameWhenTheNewOneIsRefused) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    MakeAlbum(u"Lake"_s);
    const auto Window = ShowFilter(AlbumID, {});
    Boxes.Expect(u"An Album with this name already exists."_s);
    EXPECT_FALSE(Rename(AlbumID, [](frmAlbumRename& Asked) { RenameTo(Asked, u"Lake"_s); }));
    EXPECT_EQ("Picture Import Filter - Garden", Window->windowTitle().toStdString());
    Window->Unload();
}

TEST_F(AlbumChange, ImportWindowsCloseWithTheirAlbum) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const std::int32_t Other = MakeAlbum(u"Lake"_s);
    MakePictures(2);
    const auto First = ShowFilter(AlbumID, Pics.Path());
    const auto Second = ShowFilter(AlbumID, Pics.Path());
    const auto Stranger = ShowFilter(Other, Pics.Path());
    DeleteIt(AlbumID);
    EXPECT_FALSE(First->IsLoaded());
    EXPECT_FALSE(Second->IsLoaded());
    EXPECT_TRUE(Stranger->isVisible());
    EXPECT_EQ(2, NonSelected(*Stranger).Rows());
    EXPECT_TRUE(FileExists(Pics / u"a.jpg"_s));
    Stranger->Unload();
}

TEST_F(AlbumChange, AnotherNameWindowFollowsTheNewNameAndKeepsItsChoice) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const std::int32_t Other = MakeAlbum(u"Lake"_s);
    Delete(Other, [&](frmAlbumDelete& Window) {
        RenameIt(AlbumID, u"Orchard"_s);
        EXPECT_EQ("Lake|Orchard", Listed(Window));
        EXPECT_EQ("Lake", Chosen(Window));
        RenameIt(Other, u"Sea"_s);
        EXPECT_EQ("Sea", Chosen(Window));
    });
}

TEST_F(AlbumChange, AnAlbumThatGoesIsNoLongerChosenElsewhereAndIsNotMadeAnew) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    MakeAlbum(u"Lake"_s);
    ExpectQuestion(BoxAnswer::Yes);
    EXPECT_FALSE(Rename(AlbumID, [&](frmAlbumRename& Window) {
        Delete(AlbumID, [](frmAlbumDelete& Beside) { Press(Beside, "cmdDelete"); });
        EXPECT_EQ("Lake", Listed(Window));
        EXPECT_EQ("", Chosen(Window));
        ExpectFirstSelect();
        RenameTo(Window, u"Orchard"_s);
        EXPECT_TRUE(Window.isVisible());
    }));
    ASSERT_EQ(1u, Engine.Albums.size());
    EXPECT_EQ("Lake", Engine.Albums[0]->AlbumName.toStdString());
    EXPECT_EQ("Album Delete 1", Heard());
}

TEST_F(AlbumChange, TheSameAlbumCannotBeDeletedTwice) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    EXPECT_FALSE(Delete(AlbumID, [&](frmAlbumDelete& First) {
        ExpectQuestion(BoxAnswer::Yes);
        QTimer::singleShot(0, &First, [&] {
            for (const auto& Each : LoadedForms())
                if (auto* Second = dynamic_cast<frmAlbumDelete*>(Each.get());
                    Second && Second != &First)
                    Press(*Second, "cmdDelete");
        });
        EXPECT_TRUE(ShowDeleteAlbum(AlbumID));
        EXPECT_EQ("cboAlbum lblAlbum cmdDelete",
                  Off(First, {"cboAlbum", "lblAlbum", "cmdDelete", "cmdClose"}));
        Press(First, "cmdDelete");
    }));
    EXPECT_EQ("Album Delete 1", Heard());
}

TEST_F(AlbumChange, ANewAlbumEntersTheListAndOtherEventsDoNot) {
    MakeAlbum(u"Garden"_s);
    Rename(1, [&](frmAlbumRename& Window) {
        const std::int32_t New = MakeAlbum(u"Lake"_s);
        for (const char* Event : {"Add Slides", "Delete Slides", "insert"})
            BroadcastEvent(u"Album"_s, QString::fromLatin1(Event), nullptr, {New, 1});
        BroadcastEvent(u"Slide Show"_s, u"Insert"_s, nullptr, {New, 1});
        BroadcastEvent(u"Slide Show"_s, u"Delete"_s, nullptr, {1, 1});
        EXPECT_EQ("Garden", Listed(Window));
        BroadcastEvent(u"Album"_s, u"Insert"_s, nullptr, {New});
        EXPECT_EQ("Garden|Lake", Listed(Window));
        EXPECT_EQ("Garden", Chosen(Window));
    });
}

TEST_F(AlbumChange, AReadOnlyDatabaseIsShownAndStaysToTheByte) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    MakePicture(SlidesFolder(Db.Path(), AlbumID) + u"00000001.jpg"_s);
    WriteFile(SoundTracksFolder(Db.Path(), AlbumID) + u"00000001.mp3"_s, "x");
    Engine.FinalizeDB();
    const QStringList Before = Everything(Db.Path());
    ASSERT_GT(Before.size(), 10);
    ReadOnlyDB = true;
    EXPECT_FALSE(Rename(AlbumID, [](frmAlbumRename& Window) {
        EXPECT_EQ("Garden", Listed(Window));
        EXPECT_TRUE(In<QLabel>(Window, "lblHint").text().contains(u"read-only"));
        EXPECT_FALSE(In<QLineEdit>(Window, "txtAlbumName").isEnabled());
        RenameTo(Window, u"Orchard"_s);
        Key(Window, Qt::Key_S, Qt::AltModifier);
        QTest::qWait(200);  // a letter presses its button for a while
        EXPECT_TRUE(Window.isVisible());
        Key(Window, Qt::Key_Return);
    }));
    EXPECT_FALSE(Delete(AlbumID, [](frmAlbumDelete& Window) {
        EXPECT_EQ("Garden", Chosen(Window));
        EXPECT_TRUE(In<QLabel>(Window, "lblHint").text().contains(u"read-only"));
        Press(Window, "cmdDelete");
        Key(Window, Qt::Key_D, Qt::AltModifier);
        QTest::qWait(200);
        EXPECT_TRUE(Window.isVisible());
        Key(Window, Qt::Key_Return);
    }));
    EXPECT_EQ("Garden", NameOf(AlbumID));
    EXPECT_EQ("", Heard());
    EXPECT_EQ("", Differences(Before, Everything(Db.Path())));
}

}  // namespace
}  // namespace neb
