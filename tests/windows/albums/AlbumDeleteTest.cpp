// Deleting an album: the question, the record, the files and folders; and what must stay: the
// other albums, what is not the program's, and everything that a link leads to.
#include <sys/stat.h>

#include <QFile>

#include "AlbumHarness.h"
#include "harness/HastyClock.h"
#include "harness/WithoutPrivileges.h"

namespace neb {
namespace {

using namespace harness;

class AlbumDelete : public AlbumWindows {
  protected:
    // An album with two pictures, their thumbnails and a sound.
    std::int32_t MakeFullAlbum(const QString& Name) {
        const std::int32_t AlbumID = MakeAlbum(Name);
        for (const char* File : {"00000001.jpg", "00000001Small.bmp", "00000002.JPG", "noending"})
            WriteFile(InSlides(AlbumID, File), "x");
        WriteFile(SoundTracksFolder(Db.Path(), AlbumID) + u"00000001.mp3"_s, "x");
        return AlbumID;
    }
    QString Folder(std::int32_t AlbumID) const { return AlbumFolder(Db.Path(), AlbumID); }
    QString InSlides(std::int32_t AlbumID, const char* File) const {
        return SlidesFolder(Db.Path(), AlbumID) + QString::fromLatin1(File);
    }
    void DeleteIt(std::int32_t AlbumID) {
        ExpectQuestion(BoxAnswer::Yes);
        EXPECT_TRUE(Delete(AlbumID, [](frmAlbumDelete& Window) {
            Press(Window, "cmdDelete");
            EXPECT_FALSE(Window.IsLoaded());
        }));
        EXPECT_EQ(nullptr, Engine.GetAlbum(AlbumID));
        EXPECT_EQ("Album Delete " + std::to_string(AlbumID), Heard());
    }
    static void Link(const QString& To, const QString& Path) { EXPECT_TRUE(QFile::link(To, Path)); }
};

TEST_F(AlbumDelete, TakesTheAlbumOutOfTheDatabaseAndOffTheDisk) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    const std::int32_t Other = MakeFullAlbum(u"Orchard"_s);
    std::int32_t ShowID = 0;
    Engine.GetAlbum(AlbumID)->SaveSlideShow(ShowID, u"Spring"_s, 0, Engine);
    DeleteIt(AlbumID);
    EXPECT_FALSE(NameExists(Folder(AlbumID)));
    EXPECT_EQ("Orchard", NameOf(Other));
    EXPECT_EQ(4u, ListDir(SlidesFolder(Db.Path(), Other)).size());
    EXPECT_EQ(1u, ListDir(SoundTracksFolder(Db.Path(), Other)).size());
    Engine.FinalizeDB();
    clsDBEngine Again;
    Again.SetDBPath(Db.Path());
    Again.InitializeDB();
    ASSERT_EQ(1u, Again.Albums.size());
    EXPECT_TRUE(Again.Albums[0]->SlideShows.empty());
}

TEST_F(AlbumDelete, TheListenersSeeAnAlbumThatHasGone) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    bool WasGone = false;
    Others->OnEvent = [&] { WasGone = !Engine.GetAlbum(AlbumID) && !NameExists(Folder(AlbumID)); };
    DeleteIt(AlbumID);
    EXPECT_TRUE(WasGone);
}

TEST_F(AlbumDelete, NothingHappensWithNo) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    ExpectQuestion(BoxAnswer::No);
    EXPECT_FALSE(Delete(AlbumID, [](frmAlbumDelete& Window) {
        Press(Window, "cmdDelete");
        EXPECT_TRUE(Window.isVisible());
        Press(Window, "cmdClose");
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_EQ("Garden", NameOf(AlbumID));
    EXPECT_EQ(4u, ListDir(SlidesFolder(Db.Path(), AlbumID)).size());
    EXPECT_EQ("", Heard());
}

TEST_F(AlbumDelete, AsksForAnAlbumFirst) {
    MakeAlbum(u"Garden"_s);
    ExpectFirstSelect();
    EXPECT_FALSE(Delete(0, [](frmAlbumDelete& Window) {
        EXPECT_EQ("Delete Album", Window.windowTitle().toStdString());
        EXPECT_EQ("", Chosen(Window));
        Press(Window, "cmdDelete");
    }));
    EXPECT_EQ(1u, Engine.Albums.size());
}

TEST_F(AlbumDelete, WithoutAlbumsEverythingIsOffButClose) {
    EXPECT_FALSE(Delete(0, [](frmAlbumDelete& Window) {
        EXPECT_EQ("cboAlbum lblAlbum cmdDelete",
                  Off(Window, {"cboAlbum", "lblAlbum", "cmdDelete", "cmdClose"}));
        EXPECT_TRUE(In<QLabel>(Window, "lblHint").isVisible());
        Key(Window, Qt::Key_Return);
        EXPECT_FALSE(Window.IsLoaded());
    }));
}

TEST_F(AlbumDelete, AnAlbumWithoutAFolderGoes) {
    std::int32_t AlbumID = 0;
    Engine.SaveAlbum(AlbumID, u"Garden"_s);
    DeleteIt(AlbumID);
}

TEST_F(AlbumDelete, AFileThatCannotGoStaysWithItsFoldersAlone) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Delete && Path.endsWith(u"00000001.jpg"))
            throw Fault(u"in use"_s, Path);
    });
    DeleteIt(AlbumID);
    EXPECT_TRUE(FileExists(InSlides(AlbumID, "00000001.jpg")));
    EXPECT_EQ(1u, ListDir(SlidesFolder(Db.Path(), AlbumID)).size());
    EXPECT_EQ(1u, ListDir(Folder(AlbumID)).size()) << "the sounds have gone";
}

TEST_F(AlbumDelete, AFolderWithoutPermissionStaysAsItIs) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    for (const QString& Open : {Db.Path(), Folder(AlbumID), SoundTracksFolder(Db.Path(), AlbumID)})
        chmod(QFile::encodeName(Open), 0777);
    chmod(QFile::encodeName(SlidesFolder(Db.Path(), AlbumID)), 0555);
    {
        const WithoutPrivileges User;
        DeleteIt(AlbumID);
    }
    EXPECT_EQ(4u, ListDir(SlidesFolder(Db.Path(), AlbumID)).size());
    EXPECT_FALSE(NameExists(SoundTracksFolder(Db.Path(), AlbumID)));
    chmod(QFile::encodeName(SlidesFolder(Db.Path(), AlbumID)), 0755);
}

TEST_F(AlbumDelete, WhatIsNotTheProgramsStays) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    WriteFile(Folder(AlbumID) + u"read me.txt"_s, "mine");
    MakePicture(InSlides(AlbumID, "raw/a.jpg"));
    DeleteIt(AlbumID);
    EXPECT_EQ("mine", ReadFile(Folder(AlbumID) + u"read me.txt"_s));
    EXPECT_TRUE(FileExists(InSlides(AlbumID, "raw/a.jpg")));
    EXPECT_EQ(1u, ListDir(SlidesFolder(Db.Path(), AlbumID)).size());
}

TEST_F(AlbumDelete, LinksAmongTheFilesGoAndWhatTheyLeadToStays) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    const QString Picture = MakePicture(Pics / u"a.jpg"_s);
    WriteFile(Db / u"precious"_s, "mine");
    Link(Picture, InSlides(AlbumID, "00000003.jpg"));
    Link(Pics.Path(), InSlides(AlbumID, "pictures"));
    Link(Pics / u"nowhere"_s, InSlides(AlbumID, "lost"));
    // A name on this system, not the way to a file elsewhere.
    Link(Pics / u"nowhere"_s, InSlides(AlbumID, "..\\..\\..\\precious"));
    DeleteIt(AlbumID);
    EXPECT_FALSE(NameExists(Folder(AlbumID)));
    EXPECT_TRUE(FileExists(Picture));
    EXPECT_EQ("mine", ReadFile(Db / u"precious"_s));
}

TEST_F(AlbumDelete, AFolderThatIsALinkIsNotEmptied) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const QString Picture = MakePicture(Pics / u"a.jpg"_s);
    DeleteFolder(SlidesFolder(Db.Path(), AlbumID));
    Link(Pics.Path(), SlidesFolder(Db.Path(), AlbumID).chopped(1));
    DeleteIt(AlbumID);
    EXPECT_FALSE(NameExists(Folder(AlbumID)));
    EXPECT_TRUE(FileExists(Picture));
}

TEST_F(AlbumDelete, AnAlbumThatLiesElsewhereLosesItsLinkAlone) {
    std::int32_t AlbumID = 0;
    Engine.SaveAlbum(AlbumID, u"Garden"_s);
    const QString Picture = MakePicture(Pics / u"Slides/a.jpg"_s);
    MakeDirs(Db / u"Albums"_s);
    Link(Pics.Path(), Folder(AlbumID).chopped(1));
    DeleteIt(AlbumID);
    EXPECT_FALSE(NameExists(Folder(AlbumID).chopped(1)));
    EXPECT_TRUE(FileExists(Picture));
}

TEST_F(AlbumDelete, FilesWhoseNamesAreNoTextGo) {
    const std::int32_t AlbumID = MakeAlbum(u"Garden"_s);
    const QByteArray Odd = QFile::encodeName(InSlides(AlbumID, "odd")) + '\xff';
    FILE* File = fopen(Odd, "w");
    ASSERT_TRUE(File);
    fclose(File);
    DeleteIt(AlbumID);
    EXPECT_FALSE(NameExists(Folder(AlbumID)));
}

TEST_F(AlbumDelete, AlbumsMadeOnAnotherSystemGoWhateverTheCaseOfTheirFolders) {
    std::int32_t AlbumID = 0;
    Engine.SaveAlbum(AlbumID, u"Garden"_s);
    MakePicture(Db / u"ALBUMS/1/SLIDES/00000001.JPG"_s);
    MakeDirs(Db / u"ALBUMS/1/soundtracks"_s);
    ASSERT_EQ(1, AlbumID);
    DeleteIt(AlbumID);
    EXPECT_TRUE(ListDir(Db / u"ALBUMS"_s).empty());
}

TEST_F(AlbumDelete, CannotBeLeftOrPressedAgainWhileTheFilesGo) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    const HastyClock Clock;  // every file takes its time
    int Yields = 0;
    SetDoEventsHook([&] {
        auto* Window = Open<frmAlbumDelete>();
        if (!Window || Engine.GetAlbum(AlbumID)) return;
        ++Yields;
        Press(*Window, "cmdDelete");
        Window->close();
        EXPECT_TRUE(Window->isVisible());
        EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
    });
    DeleteIt(AlbumID);
    EXPECT_GT(Yields, 0);
    EXPECT_FALSE(NameExists(Folder(AlbumID)));
}

TEST_F(AlbumDelete, WantOfMemoryWhileTheFilesGoLeavesTheWindowUsable) {
    const std::int32_t AlbumID = MakeFullAlbum(u"Garden"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Delete && Path.endsWith(u".mp3")) throw std::bad_alloc();
    });
    ExpectQuestion(BoxAnswer::Yes);
    Boxes.Expect(u"There is not enough memory to do this."_s, u"Operation Failed"_s);
    EXPECT_TRUE(Delete(AlbumID, [](frmAlbumDelete& Window) {
        Press(Window, "cmdDelete");
        SetHostWatcher({});
        EXPECT_TRUE(Window.isEnabled());
        EXPECT_EQ(Pointer::Default, ScreenPointer());
        Press(Window, "cmdClose");
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_EQ(nullptr, Engine.GetAlbum(AlbumID));
    EXPECT_EQ("Album Delete 1", Heard());
}

TEST_F(AlbumDelete, WorksByTheKeyboardAlone) {
    MakeFullAlbum(u"Apples"_s);
    const std::int32_t AlbumID = MakeFullAlbum(u"Pears"_s);
    // Enter alone deletes nothing.
    EXPECT_FALSE(Delete(AlbumID, [](frmAlbumDelete& Window) { Key(Window, Qt::Key_Return); }));
    ExpectQuestion(BoxAnswer::Yes);
    EXPECT_TRUE(Delete(0, [](frmAlbumDelete& Window) {
        Key(Window, Qt::Key_P);
        Key(Window, Qt::Key_Tab);
        Key(Window, Qt::Key_Return);
        EXPECT_FALSE(Window.IsLoaded());
    }));
    EXPECT_FALSE(NameExists(Folder(AlbumID)));
    EXPECT_EQ(1u, Engine.Albums.size());
    ExpectQuestion(BoxAnswer::No);
    EXPECT_FALSE(Delete(1, [this](frmAlbumDelete& Window) {
        Key(Window, Qt::Key_D, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Boxes.ShownCount() == 2; }, 2000));
        Key(Window, Qt::Key_C, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Window.IsLoaded(); }, 2000));
    }));
    EXPECT_FALSE(Delete(1, [](frmAlbumDelete& Window) {
        Key(Window, Qt::Key_Escape);
        EXPECT_FALSE(Window.IsLoaded());
    }));
}

}  // namespace
}  // namespace neb
