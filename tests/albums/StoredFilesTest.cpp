// What the program stores in an album's folder and takes from it, seen from outside: after every
// step the list of check sums is right, and nothing lies there that no record names.
#include <gtest/gtest.h>

#include "albums/AlbumRemoval.h"
#include "albums/SlideSave.h"
#include "albums/modImport.h"
#include "db/AlbumSums.h"
#include "db/SongNames.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/DatabaseReader.h"
#include "harness/TempFolder.h"
#include "pictures/Pictures.h"
#include "pictures/TurnedJpegs.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

class StoredFiles : public ::testing::Test {
  protected:
    StoredFiles() {
        Engine.SetDBPath(Dir.Path());
        Engine.InitializeDB();
        Engine.KeepSession();
        EXPECT_TRUE(NewAlbum(Door, Engine, u"Garden"_s));
    }
    ~StoredFiles() override { SetHostWatcher({}); }
    std::int32_t Enter(const QByteArray& Picture) {
        return *EnterPicture(
            Door, Engine, 1,
            {u"Rose"_s, [&] { return Picture; }, QImage(72, 72, QImage::Format_RGB32)});
    }
    clsNEBSlide& Slide(std::int32_t ID) { return *Engine.GetAlbum(1)->GetSlide(ID); }
    // Saves what Do makes of the slide.
    void Save(std::int32_t ID, const std::function<void(SlideInHand&)>& Do,
              const SlideInHand::JpegMaker& Jpeg = {}) {
        SlideInHand InHand;
        ID == 0 ? InHand.TakeNew(1) : InHand.Take(1, Slide(ID));
        Do(InHand);
        EXPECT_TRUE(SaveSlide(Engine, nullptr, InHand, Jpeg));
    }
    static SlideInHand::JpegMaker Makes(const QByteArray& Bytes) {
        return [Bytes] { return Bytes; };
    }
    // These files and no others, each with its check sum.
    void ExpectFiles(const char* Names) {
        EXPECT_TRUE(Engine.IsSessionStored());
        const DatabaseState Now = ReadDatabase(Dir.Path());
        EXPECT_TRUE(Now.Irregular.empty()) << Now.Irregular.front().toStdString();
        EXPECT_TRUE(Now.Sums.contains(u"Albums/1/"_s));
        QStringList Found;
        for (const auto& [Path, Content] : Now.Files) Found << Path.section(u'/', 2);
        EXPECT_EQ(Names, Found.join(u' ').toStdString());
    }

    TempFolder Dir;
    clsDBEngine Engine;
    Changes Door{Engine};
    const QString Slides = SlidesFolder(Dir.Path(), 1);
};

TEST_F(StoredFiles, ASlideAllItsLife) {
    Enter("one");
    ExpectFiles("Slides/00000001.jpg Slides/00000001Small.bmp");
    Save(
        1, [](SlideInHand&) {}, Makes("another"));
    ExpectFiles("Slides/00000001.jpg");
    EXPECT_EQ("another", ReadFile(Slides + u"00000001.jpg"_s));
    Save(1, [](SlideInHand& InHand) { InHand.Record("wave"); });
    ExpectFiles("Slides/00000001.jpg Slides/00000001.wav");
    Save(1, [](SlideInHand& InHand) { InHand.Record("longer wave"); });
    ExpectFiles("Slides/00000001.jpg Slides/00000001.wav");
    EXPECT_EQ("longer wave", ReadFile(Slides + u"00000001.wav"_s));
    Save(1, [](SlideInHand& InHand) { InHand.ClearSound(); });
    ExpectFiles("Slides/00000001.jpg");
    Save(
        0, [](SlideInHand& InHand) { InHand.SetCaption(u"new"_s); }, Makes("two"));
    ExpectFiles("Slides/00000001.jpg Slides/00000002.jpg");
    ASSERT_TRUE(DeleteSlide(Engine, nullptr, 1, 1));
    ExpectFiles("Slides/00000002.jpg");
}

TEST_F(StoredFiles, APictureAndASoundOfOtherEndingsGoWhenTheyAreReplaced) {
    Enter("one");
    RenameFile(Slides + u"00000001.jpg"_s, Slides + u"00000001.png"_s);
    WriteFile(Slides + u"00000001.mp3"_s, "sound");
    WriteFile(AlbumSumsPath(AlbumFolder(Dir.Path(), 1)), {});
    for (const char* Name : {"00000001.png", "00000001.mp3", "00000001Small.bmp"})
        ListStored(Slides + QLatin1String(Name));
    clsNEBSlide Changed = Slide(1);
    Changed.SlideLoc = u"00000001.png"_s;
    Changed.SoundTrackLoc = u"00000001.mp3"_s;
    ASSERT_TRUE(Door.SaveSlide(1, Changed));
    ExpectFiles("Slides/00000001.mp3 Slides/00000001.png Slides/00000001Small.bmp");
    Save(
        1, [](SlideInHand& InHand) { InHand.Record("wave"); }, Makes("two"));
    ExpectFiles("Slides/00000001.jpg Slides/00000001.wav");
}

TEST_F(StoredFiles, APictureNamedInSmallLettersIsNotTakenForAnotherWhenItIsReplaced) {
    Enter("one");
    clsNEBSlide Changed = Slide(1);
    Changed.SlideLoc = u"00000001.jpg"_s;
    ASSERT_TRUE(Door.SaveSlide(1, Changed));
    Save(
        1, [](SlideInHand&) {}, Makes("two"));
    ExpectFiles("Slides/00000001.jpg");
}

TEST_F(StoredFiles, ASoundThatGoesTakesItsOptionsAlong) {
    Enter("one");
    Save(1, [](SlideInHand& InHand) {
        InHand.Record("wave");
        InHand.SetPlaying(true, true);
    });
    EXPECT_TRUE(Slide(1).Override && Slide(1).Repeat);
    Save(1, [](SlideInHand& InHand) { InHand.ClearSound(); });
    EXPECT_FALSE(Slide(1).Override || Slide(1).Repeat);
}

TEST_F(StoredFiles, AQuarterTurnGoesClockwise) {
    using namespace tests;
    Enter(JpegOf(Motif()));
    const TurnedSlide Made = TurnSlide(Dir.Path(), 1, Slide(1), 1, {});
    ExpectFields(QImage::fromData(Made.Jpeg), Blue, Red, Grey, Green, 4);
}

TEST_F(StoredFiles, NothingIsStoredOverAStrayFileAndItIsNotDeletedWithASlide) {
    WriteFile(Slides + u"00000001.jpg"_s, "somebody's");
    EXPECT_EQ(2, Enter("one"));
    Save(
        0, [](SlideInHand& InHand) { InHand.SetCaption(u"new"_s); }, Makes("two"));
    WriteFile(Slides + u"00000004.wav"_s, "somebody's sound");
    Save(
        0, [](SlideInHand& InHand) { InHand.SetCaption(u"new"_s); }, Makes("three"));
    EXPECT_EQ("somebody's", ReadFile(Slides + u"00000001.jpg"_s));
    EXPECT_EQ("somebody's sound", ReadFile(Slides + u"00000004.wav"_s));
    EXPECT_EQ("two", ReadFile(Slides + u"00000003.jpg"_s));
    EXPECT_EQ("three", ReadFile(Slides + u"00000005.jpg"_s));
    for (const std::int32_t Each : {2, 3, 5}) ASSERT_TRUE(DeleteSlide(Engine, nullptr, 1, Each));
    EXPECT_EQ(2u, ListDir(Slides).size());
}

TEST_F(StoredFiles, AThumbnailThatFindsNoRoomLeavesNothingOfThePicture) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.contains(u"Small.bmp"_s)) Length = 10;
    });
    EXPECT_THROW(Enter("one"), Fault);
    SetHostWatcher({});
    EXPECT_TRUE(Engine.GetAlbum(1)->Slides.empty());
    ExpectFiles("");
}

TEST_F(StoredFiles, AnAlbumWhoseFoldersFindNoRoomIsNone) {
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Write && Path.contains(u"Albums/2/"_s)) throw Fault(u"no"_s, Path);
    });
    EXPECT_THROW(static_cast<void>(NewAlbum(Door, Engine, u"Sea"_s)), Fault);
    SetHostWatcher({});
    EXPECT_EQ(1u, Engine.Albums.size());
    EXPECT_FALSE(NameExists(AlbumFolder(Dir.Path(), 2)));
}

TEST_F(StoredFiles, ACaptionComesInAsCleanAsATypedOne) {
    ASSERT_TRUE(EnterPicture(Door, Engine, 1, {u"Mother's \"Rose\""_s, [] { return "one"; }, {}}));
    EXPECT_EQ(u"Mother\u2019s \u201CRose\u201D"_s, Slide(1).SlideText);
}

TEST_F(StoredFiles, PicturesAreOnTheDiskBeforeTheJournalNamesThem) {
    ASSERT_TRUE(Engine.IsSessionStored());
    QStringList Steps;
    SetHostWatcher([&](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Rename && Path.endsWith(u"00000001.jpg"_s)) Steps << u"picture"_s;
        if (Step == HostStep::Rename && Path.endsWith(u"Small.bmp"_s)) Steps << u"thumbnail"_s;
        if (Step == HostStep::SyncVolume) Steps << u"flush"_s;
        if (Step == HostStep::Write && Path.contains(u"Session.journal"_s)) Steps << u"entry"_s;
    });
    Enter("one");
    ASSERT_TRUE(Engine.IsSessionStored());
    SetHostWatcher({});
    EXPECT_EQ(u"picture thumbnail flush entry"_s, Steps.join(u' '));
}

TEST_F(StoredFiles, AnAlbumOfEarlierVersionsGetsNoListByAnImport) {
    DeleteFile(AlbumSumsPath(AlbumFolder(Dir.Path(), 1)));
    MakeAlbumFolders(Engine, 1);
    Enter("one");
    EXPECT_FALSE(FileExists(AlbumSumsPath(AlbumFolder(Dir.Path(), 1))));
}

TEST_F(StoredFiles, AnAlbumGoesWithItsList) {
    Enter("one");
    DeleteAlbumFiles(Door, Dir.Path(), 1, [] {});
    EXPECT_FALSE(NameExists(AlbumFolder(Dir.Path(), 1)));
}

TEST_F(StoredFiles, AnAlbumGoesWithTheNamesOfItsSongsAndAHalfWrittenList) {
    const QString Album = AlbumFolder(Dir.Path(), 1);
    KeepSongNames(Album, {{u"00000001_1.mp3"_s, 5, u"Waltz.mp3"_s}});
    WriteFile(AlbumSumsPath(Album) + u".new"_s, "half");
    DeleteAlbumFiles(Door, Dir.Path(), 1, [] {});
    EXPECT_FALSE(NameExists(Album));
}

}  // namespace
}  // namespace neb
