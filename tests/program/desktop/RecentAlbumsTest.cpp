// Albums that are used stand in the desktop's list of recent things, unless nobody wants that, and
// lead back to themselves.
#include "program/desktop/RecentAlbums.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include "albums/modImport.h"
#include "db/modAlbumFiles.h"
#include "program/MainWindowRig.h"
#include "program/desktop/DesktopSettings.h"
#include "settings/SettingKeys.h"
#include "windows/frame/AlbumInHand.h"
#include "windows/gallery/AlbumPage.h"
#include "windows/home/HomePage.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class RecentAlbumsOf : public MainWindow {
  protected:
    RecentAlbumsOf() {
        qputenv("XDG_DATA_HOME", mData.Path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", mData.Path().toLocal8Bit());
    }
    ~RecentAlbumsOf() override {
        qunsetenv("XDG_DATA_HOME");
        qunsetenv("XDG_CONFIG_HOME");
    }
    void StartWithGarden() {
        Start();
        mRecent = std::make_unique<RecentAlbums>(mDesktop);
        QObject::connect(mWindow.get(), &frmNEBSlideShow::AlbumOpened, mWindow.get(),
                         [this](std::int32_t AlbumID) { mRecent->Used(AlbumID); });
        SaveAlbum(u"Garden"_s);
        MakeAlbumFolders(*DBEngine, mAlbumID = DBEngine->Albums.front()->AlbumID);
    }
    static QByteArray List() {
        return FileExists(RecentListFile()) ? ReadFile(RecentListFile()) : QByteArray();
    }

    harness::TempFolder mData;
    DesktopSettings mDesktop{QDBusConnection(QString())};
    std::unique_ptr<RecentAlbums> mRecent;
    std::int32_t mAlbumID = 0;
};

TEST_F(RecentAlbumsOf, AnAlbumThatIsLookedThroughStandsThere) {
    StartWithGarden();
    EXPECT_FALSE(List().contains("Garden")) << "it was made, but not looked at";
    mWindow->Home().ShowAlbum(mAlbumID);
    EXPECT_TRUE(List().contains("<title>Garden</title>")) << List().toStdString();
    EXPECT_TRUE(List().contains(AddressOfAlbum(mAlbumID).toUtf8()));
    EXPECT_EQ(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser,
              QFileInfo(RecentListFile()).permissions())
        << "what somebody uses is nobody else's business";
}

TEST_F(RecentAlbumsOf, SoDoesOneThatIsWorkedOn) {
    StartWithGarden();
    NoteAlbumInHand(mAlbumID);
    Press("mnuSlideMgr");
    EXPECT_TRUE(QTest::qWaitFor([] { return List().contains("<title>Garden</title>"); }, 5000))
        << List().toStdString();
}

TEST_F(RecentAlbumsOf, ItGoesWithTheAlbumAndFollowsItsName) {
    StartWithGarden();
    mWindow->Home().ShowAlbum(mAlbumID);
    ASSERT_TRUE(Changes(*DBEngine).RenameAlbum(mAlbumID, u"Park"_s));
    DoEvents();
    EXPECT_TRUE(List().contains("<title>Park</title>")) << List().toStdString();
    EXPECT_FALSE(List().contains("Garden"));
    ASSERT_TRUE(Changes(*DBEngine).DeleteAlbum(mAlbumID));
    DoEvents();
    EXPECT_FALSE(List().contains("Park")) << List().toStdString();
    EXPECT_TRUE(List().contains("</xbel>"));
}

TEST_F(RecentAlbumsOf, NothingIsNotedWhereTheUserDoesNotWantIt) {
    StartWithGarden();
    clsSettings Settings = OpenSettings();
    PutFlag(Settings, Setting::RecentAlbums, false);
    Settings.Save();
    mWindow->Home().ShowAlbum(mAlbumID);
    EXPECT_FALSE(FileExists(RecentListFile()));
    PutFlag(Settings, Setting::RecentAlbums, true);
    Settings.Save();
    MakeDirs(mData / u"gtk-3.0"_s);
    WriteFile(mData / u"gtk-3.0/settings.ini"_s, "[Settings]\ngtk-recent-files-enabled=0\n");
    mWindow->Home().ShowAlbum(mAlbumID);
    EXPECT_FALSE(FileExists(RecentListFile()));
}

TEST_F(RecentAlbumsOf, ADamagedListStaysAsItIs) {
    StartWithGarden();
    WriteFile(RecentListFile(), "<xbel> and no more");
    mWindow->Home().ShowAlbum(mAlbumID);
    EXPECT_EQ("<xbel> and no more", List().toStdString());
    EXPECT_EQ(1, QDir(mData.Path()).entryList(QDir::Files).size()) << "and nothing beside it";
}

TEST_F(RecentAlbumsOf, ItsAddressLeadsBackToTheAlbum) {
    StartWithGarden();
    mWindow->OpenPaths({QUrl(AddressOfAlbum(mAlbumID)).toLocalFile()});
    DoEvents();
    ASSERT_TRUE(mWindow->Home().Album());
    EXPECT_EQ(mAlbumID, mWindow->Home().Album()->AlbumID());
    EXPECT_TRUE(mWindow->Home().Album()->isVisible());
    EXPECT_TRUE(LoadedForms().empty()) << "no quick show of the album's own files";
}

}  // namespace
}  // namespace neb
