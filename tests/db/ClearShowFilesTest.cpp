// Which files go when a show is cleared for a transfer: all that bear the number of a slide that
// only this show used, whatever follows the number, and no others.
#include <gtest/gtest.h>

#include "Fixtures.h"
#include "db/modAlbumFiles.h"

namespace neb {
namespace {

using namespace harness;

class ClearShowFiles : public ::testing::Test {
  protected:
    ClearShowFiles() {
        std::int32_t AlbumID = 0;
        Engine->SaveAlbum(AlbumID, u"album"_s);
        Album = Engine->GetAlbum(AlbumID);
        Folder = SlidesFolder(Engine->DBPath(), AlbumID);
        MakeDirs(Folder);
        MakeDirs(SoundTracksFolder(Engine->DBPath(), AlbumID));
    }
    std::int32_t AddSlide(const QString& Text) {
        std::int32_t SlideID = 0;
        EXPECT_TRUE(Album->SaveSlide(SlideID, Text, {}, {}, false, false, *Engine));
        return SlideID;
    }
    clsNEBSlideShow& AddShow(const std::vector<std::int32_t>& SlideIDs) {
        std::int32_t ShowID = 0, Place = 0;
        EXPECT_TRUE(Album->SaveSlideShow(ShowID, u"show"_s, 0, *Engine));
        for (std::int32_t Each : SlideIDs)
            Album->GetSlideShow(ShowID)->SaveDetail(Each, ++Place, {});
        return *Album->GetSlideShow(ShowID);
    }
    void Make(const QStringList& Names) {
        for (const QString& Name : Names) WriteFile(Folder + Name, "x");
    }
    std::string Left() {
        QStringList Names;
        for (const DirEntry& Each : ListDir(Folder)) Names << Each.Name;
        return Names.join(u' ').toStdString();
    }

    TempFolder Dir;
    std::unique_ptr<clsDBEngine> Engine = OpenEngine(Dir.Path());
    clsNEBAlbum* Album = nullptr;
    QString Folder;
};

TEST_F(ClearShowFiles, AllThatBearTheNumberOfASlideThatOnlyTheShowUsed) {
    clsNEBSlideShow& Show = AddShow({AddSlide(u"own"_s)});
    Make({u"00000001.jpg"_s, u"00000001Small.bmp"_s, u"00000001.wav"_s, u"00000001_old.JPG"_s,
          u"00000001 Copy.tif"_s});
    EXPECT_TRUE(Engine->ClearSlideShowData(*Album, Show));
    EXPECT_EQ("", Left());
}

TEST_F(ClearShowFiles, NoneOfAnotherNumberAndNoneOfASlideThatStays) {
    const std::int32_t Own = AddSlide(u"own"_s), Shared = AddSlide(u"shared"_s);
    clsNEBSlideShow& Show = AddShow({Own, Shared, Own});
    AddShow({Shared});
    Make({u"00000001.jpg"_s, u"00000001_old.jpg"_s, u"00000002.jpg"_s, u"00000002_old.jpg"_s,
          u"00000010.jpg"_s, u"x00000001.jpg"_s});
    EXPECT_TRUE(Engine->ClearSlideShowData(*Album, Show));
    EXPECT_EQ("00000002.jpg 00000002_old.jpg 00000010.jpg x00000001.jpg", Left());
}

}  // namespace
}  // namespace neb
