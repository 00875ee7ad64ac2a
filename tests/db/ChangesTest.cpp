// The door through which records change: each change is done, then noted, then told.
#include <gtest/gtest.h>

#include <QObject>

#include "Fixtures.h"
#include "db/Changes.h"
#include "db/modAlbumFiles.h"
#include "harness/Refusals.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;
using Kind = Change::Kind;

class ChangesTest : public ::testing::Test {
  protected:
    ChangesTest() {
        Engine.SetDBPath(Dir.Path());
        Engine.InitializeDB();
        Engine.Listeners.Noted = [this](const Change& What) { Noted.push_back(What); };
        Engine.Listeners.Told = [this](const Change& What, const QObject* Asker) {
            Told.push_back(What);
            Askers.push_back(Asker);
        };
    }
    std::int32_t MakeAlbum() { return Changes(Engine).MakeAlbum(u"Garden"_s)->What().AlbumID; }
    std::int32_t MakeSlide(std::int32_t AlbumID, const QString& Text) {
        clsNEBSlide Slide;
        Slide.SlideText = Text;
        return Changes(Engine).SaveSlide(AlbumID, Slide)->What().SlideID;
    }
    void Forget() {
        Noted.clear();
        Told.clear();
        Askers.clear();
    }

    TempFolder Dir;
    clsDBEngine Engine;
    QObject Window;
    std::vector<Change> Noted, Told;
    std::vector<const QObject*> Askers;
};

clsNEBSlideShow ShowOf(const QString& Name, const std::vector<std::int32_t>& SlideIDs) {
    clsNEBSlideShow Show;
    Show.SlideShowName = Name;
    std::int32_t Seq = 0;
    for (std::int32_t Each : SlideIDs) Show.SaveDetail(Each, ++Seq, {});
    return Show;
}

TEST_F(ChangesTest, AnAlbumIsMadeNotedAndTold) {
    const std::int32_t AlbumID = MakeAlbum();
    ASSERT_NE(Engine.GetAlbum(AlbumID), nullptr);
    const std::vector<Change> Expected{{Kind::AlbumMade, AlbumID}};
    EXPECT_EQ(Noted, Expected);
    EXPECT_EQ(Told, Expected);
}

TEST_F(ChangesTest, WhoAskedIsNamedToThoseWhoAreTold) {
    Changes(Engine, &Window).MakeAlbum(u"Yard"_s)->Now();
    EXPECT_EQ(Askers, std::vector<const QObject*>{&Window});
}

TEST_F(ChangesTest, WhatIsRefusedIsNeitherNotedNorTold) {
    MakeAlbum();
    Forget();
    ExpectRefused(Changes(Engine).MakeAlbum(u"Garden"_s),
                  u"An Album with this name already exists."_s);
    ExpectRefused(Changes(Engine).MakeAlbum(u" "_s), u"You must specify an Album name."_s);
    ExpectRefused(Changes(Engine).RenameAlbum(77, u"x"_s), u"The Album was not found."_s);
    ExpectRefused(Changes(Engine).SaveSlide(77, {}), u"The Album was not found."_s);
    ExpectRefused(Changes(Engine).SaveShow(77, ShowOf(u"x"_s, {})), u"The Album was not found."_s);
    ExpectRefused(Changes(Engine).SaveCaption(1, 77, u"x"_s), u"Slide could not be found."_s);
    EXPECT_TRUE(Noted.empty());
    EXPECT_TRUE(Told.empty());
    EXPECT_EQ(Engine.Albums.size(), 1U);
}

TEST_F(ChangesTest, TheUserMayBeToldBeforeTheOtherWindows) {
    {
        const auto Renamed = Changes(Engine).RenameAlbum(MakeAlbum(), u"Yard"_s);
        EXPECT_EQ(Noted.size(), 2U) << "noted at once";
        EXPECT_EQ(Told.size(), 1U) << "of the making alone";
    }
    EXPECT_EQ(Told.back(), (Change{Kind::AlbumRenamed, 1}));
    EXPECT_EQ(Engine.GetAlbum(1)->AlbumName, u"Yard");
}

TEST_F(ChangesTest, AnAnnouncementIsToldOnceWhereverItGoes) {
    MakeAlbum();
    Forget();
    auto Renamed = Changes(Engine).RenameAlbum(1, u"Yard"_s);
    Announcement Kept = std::move(*Renamed);
    Kept.Now();
    Kept.Now();
    EXPECT_EQ(Told.size(), 1U);
}

TEST_F(ChangesTest, AnAnnouncementIsToldAlsoWhenAFaultPassesBy) {
    MakeAlbum();
    Forget();
    try {
        const auto Renamed = Changes(Engine).RenameAlbum(1, u"Yard"_s);
        throw Fault(u"No."_s);
    } catch (const Fault&) {
        EXPECT_EQ(Told.size(), 1U);
    }
}

TEST_F(ChangesTest, AListenerThatFailsDoesNotEndWhatIsBeingToldAtTheEndOfItsLife) {
    Engine.Listeners.Told = [](const Change&, const QObject*) { throw std::bad_alloc(); };
    {
        const auto Made = Changes(Engine).MakeAlbum(u"Yard"_s);
        EXPECT_TRUE(Made);
    }
    auto Renamed = Changes(Engine).RenameAlbum(1, u"Garden"_s);
    EXPECT_THROW(Renamed->Now(), std::bad_alloc) << "one that is told in time tells of it";
    EXPECT_EQ(Engine.GetAlbum(1)->AlbumName, u"Garden");
}

TEST_F(ChangesTest, NamesAreStoredComposed) {
    const auto Made = Changes(Engine).MakeAlbum(u"e\u0301"_s);
    EXPECT_EQ(u"\u00e9"_s, Engine.GetAlbum(1)->AlbumName);
    EXPECT_TRUE(Changes(Engine).RenameAlbum(1, u"\u0438\u0306"_s));
    EXPECT_EQ(u"\u0439"_s, Engine.GetAlbum(1)->AlbumName);
    clsNEBSlideShow Show;
    Show.SlideShowName = u"e\u0301"_s;
    EXPECT_TRUE(Changes(Engine).SaveShow(1, std::move(Show)));
    EXPECT_EQ(u"\u00e9"_s, Engine.GetAlbum(1)->SlideShows[0]->SlideShowName);
}

TEST_F(ChangesTest, AnAnnouncementThatIsTakenBackIsNeverTold) {
    {
        auto Made = Changes(Engine).MakeAlbum(u"Yard"_s);
        Made->Never();
    }
    EXPECT_TRUE(Told.empty());
    EXPECT_EQ(Noted.size(), 1U);
}

TEST_F(ChangesTest, ASlideIsMadeAndChangedWithAllItsFields) {
    const std::int32_t AlbumID = MakeAlbum();
    const std::int32_t SlideID = MakeSlide(AlbumID, u"Roses"_s);
    Forget();
    clsNEBSlide Slide{SlideID, u"Tulips"_s, u"1.JPG"_s, u"1.wav"_s, true, true};
    EXPECT_EQ(Changes(Engine).SaveSlide(AlbumID, Slide)->What().SlideID, SlideID);
    const clsNEBSlide& Stored = *Engine.GetAlbum(AlbumID)->GetSlide(SlideID);
    EXPECT_EQ(Stored.SlideText, u"Tulips");
    EXPECT_EQ(Stored.SlideLoc, u"1.JPG");
    EXPECT_EQ(Stored.SoundTrackLoc, u"1.wav");
    EXPECT_TRUE(Stored.Override && Stored.Repeat);
    EXPECT_EQ(Told, (std::vector<Change>{{Kind::SlideSaved, AlbumID, SlideID}}));
}

TEST_F(ChangesTest, ANewSlideGetsANumberThatNoPictureHas) {
    const std::int32_t AlbumID = MakeAlbum(), Taken = Engine.NextSlideID;
    const QString Folder = SlidesFolder(Dir.Path(), AlbumID);
    MakeDirs(Folder);
    WriteFile(Folder + FileStem(Taken) + u".jpg"_s, "left by a crash");
    EXPECT_EQ(Taken + 1, MakeSlide(AlbumID, u"Rose"_s));
}

TEST_F(ChangesTest, ManyCaptionsAreNotedOneByOneAndToldAsOne) {
    const std::int32_t AlbumID = MakeAlbum();
    const std::int32_t One = MakeSlide(AlbumID, u"a"_s), Other = MakeSlide(AlbumID, u"b"_s);
    Forget();
    {
        Changes Door(Engine, &Window);
        const Announcement All = Door.AsOne(Kind::CaptionsSaved, AlbumID);
        EXPECT_TRUE(Door.SaveCaption(AlbumID, One, u"c"_s));
        EXPECT_TRUE(Door.SaveCaption(AlbumID, Other, u"d"_s));
        EXPECT_TRUE(Told.empty());
    }
    EXPECT_EQ(Noted, (std::vector<Change>{{Kind::SlideSaved, AlbumID, One},
                                          {Kind::SlideSaved, AlbumID, Other}}));
    EXPECT_EQ(Told, (std::vector<Change>{{Kind::CaptionsSaved, AlbumID}}));
    EXPECT_EQ(Engine.GetAlbum(AlbumID)->GetSlide(Other)->SlideText, u"d");
}

// Never a record without its picture: whoever notes the deletion finds the file still there.
TEST_F(ChangesTest, TheRecordOfADeletedSlideGoesBeforeItsFiles) {
    const std::int32_t AlbumID = MakeAlbum(), SlideID = MakeSlide(AlbumID, u"a"_s);
    const QString Picture = SlidesFolder(Engine.DBPath(), AlbumID) + u"00000001.jpg"_s;
    MakeDirs(SlidesFolder(Engine.DBPath(), AlbumID));
    WriteFile(Picture, "x");
    bool RecordGone = false, PictureThere = false;
    Engine.Listeners.Noted = [&](const Change&) {
        RecordGone = Engine.GetAlbum(AlbumID)->Slides.empty();
        PictureThere = FileExists(Picture);
    };
    EXPECT_TRUE(Changes(Engine).DeleteSlide(AlbumID, SlideID));
    EXPECT_TRUE(RecordGone);
    EXPECT_TRUE(PictureThere);
    EXPECT_FALSE(FileExists(Picture));
}

TEST_F(ChangesTest, AShowIsReplacedInOneGoAndStaysTheSameObject) {
    const std::int32_t AlbumID = MakeAlbum(), SlideID = MakeSlide(AlbumID, u"a"_s);
    Forget();
    const std::int32_t ShowID =
        Changes(Engine).SaveShow(AlbumID, ShowOf(u"One"_s, {SlideID}))->What().SlideShowID;
    clsNEBSlideShow* Stored = Engine.GetAlbum(AlbumID)->GetSlideShow(ShowID);
    ASSERT_NE(Stored, nullptr);
    clsNEBSlideShow Next = ShowOf(u"Two"_s, {SlideID, SlideID});
    Next.SlideShowID = ShowID;
    Next.ProgressionMethod = 1;
    Next.SaveSoundTrack(1, u"a.mp3"_s, 1, 2, true, false, true);
    EXPECT_TRUE(Changes(Engine).SaveShow(AlbumID, std::move(Next)));
    EXPECT_EQ(Engine.GetAlbum(AlbumID)->GetSlideShow(ShowID), Stored);
    EXPECT_EQ(Stored->SlideShowName, u"Two");
    EXPECT_EQ(Stored->ProgressionMethod, 1);
    EXPECT_EQ(Stored->Details.size(), 2U);
    ASSERT_EQ(Stored->SoundTracks.size(), 1U);
    EXPECT_TRUE(Stored->SoundTracks[0]->Fade);
    EXPECT_EQ(Told, (std::vector<Change>{{Kind::ShowMade, AlbumID, 0, ShowID},
                                         {Kind::ShowReplaced, AlbumID, 0, ShowID}}));
}

TEST_F(ChangesTest, AShowThatCannotBeNotedIsAsItWasBefore) {
    const std::int32_t AlbumID = MakeAlbum();
    const std::int32_t Slide = MakeSlide(AlbumID, u"Rose"_s);
    const std::int32_t Show =
        Changes(Engine).SaveShow(AlbumID, ShowOf(u"Walk"_s, {Slide}))->What().SlideShowID;
    Engine.Listeners.Noted = [](const Change&) { throw Fault(u"full"_s); };
    clsNEBSlideShow Other = ShowOf(u"Run"_s, {});
    Other.SlideShowID = Show;
    EXPECT_THROW(Changes(Engine).SaveShow(AlbumID, std::move(Other)), Fault);
    EXPECT_THROW(Changes(Engine).SaveShow(AlbumID, ShowOf(u"Swim"_s, {})), Fault);
    const auto& Shows = Engine.GetAlbum(AlbumID)->SlideShows;
    ASSERT_EQ(1, std::ssize(Shows));
    EXPECT_EQ(u"Walk", Shows[0]->SlideShowName);
    EXPECT_EQ(1, std::ssize(Shows[0]->Details));
}

TEST_F(ChangesTest, ADeletedShowTakesItsSoundsAlongAndLeavesItsSlides) {
    const std::int32_t AlbumID = MakeAlbum(), SlideID = MakeSlide(AlbumID, u"a"_s);
    const std::int32_t ShowID =
        Changes(Engine).SaveShow(AlbumID, ShowOf(u"One"_s, {SlideID}))->What().SlideShowID;
    const QString Sound = SoundTracksFolder(Engine.DBPath(), AlbumID) + u"00000001_1.mp3"_s;
    MakeDirs(SoundTracksFolder(Engine.DBPath(), AlbumID));
    WriteFile(Sound, "x");
    Forget();
    EXPECT_TRUE(Changes(Engine).DeleteShow(AlbumID, ShowID));
    EXPECT_EQ(Engine.GetAlbum(AlbumID)->GetSlideShow(ShowID), nullptr);
    EXPECT_NE(Engine.GetAlbum(AlbumID)->GetSlide(SlideID), nullptr);
    EXPECT_FALSE(FileExists(Sound));
    EXPECT_EQ(Told, (std::vector<Change>{{Kind::ShowDeleted, AlbumID, 0, ShowID}}));
}

TEST_F(ChangesTest, AnAlbumIsDeletedFromTheRecordsAlone) {
    const std::int32_t AlbumID = MakeAlbum();
    MakeDirs(SlidesFolder(Engine.DBPath(), AlbumID));
    EXPECT_TRUE(Changes(Engine).DeleteAlbum(AlbumID));
    EXPECT_TRUE(Engine.Albums.empty());
    EXPECT_TRUE(FolderExists(SlidesFolder(Engine.DBPath(), AlbumID)));
    EXPECT_EQ(Told.back(), (Change{Kind::AlbumDeleted, AlbumID}));
}

TEST_F(ChangesTest, ADatabaseThatNobodyFollowsChangesAllTheSame) {
    Engine.Listeners = {};
    EXPECT_EQ(MakeSlide(MakeAlbum(), u"a"_s), 1);
    EXPECT_TRUE(Told.empty());
}

// A transfer's whole album comes in through the door as well.
AlbumToPut AlbumOf(std::int32_t AlbumID, const QString& Name) {
    AlbumToPut What{{}, {AlbumID + 1, 50, 60}};
    What.Album.AlbumID = AlbumID;
    What.Album.AlbumName = Name;
    What.Album.Slides.push_back(std::make_unique<clsNEBSlide>());
    What.Album.Slides.back()->SlideID = 49;
    What.Album.SlideShows.push_back(std::make_unique<clsNEBSlideShow>());
    What.Album.SlideShows.back()->SlideShowID = 59;
    return What;
}

TEST_F(ChangesTest, AnAlbumThatIsPutComesWithItsCountersAndIsToldOnce) {
    auto Put = Changes(Engine).PutAlbum(AlbumOf(1, u"Sea"_s), 0);
    ASSERT_EQ(1U, Put.size());
    EXPECT_EQ((Change{Kind::AlbumMade, 1}), Put[0].What());
    EXPECT_EQ((std::vector<Change>{{Kind::AlbumMade, 1}}), Noted);
    EXPECT_TRUE(Told.empty());
    EXPECT_EQ(u"Sea", Engine.AlbumIndex.at(0).Name);
    EXPECT_EQ(2, Engine.NextAlbumID);
    EXPECT_EQ(50, Engine.NextSlideID);
    EXPECT_EQ(60, Engine.NextSlideShowID);
    Put.clear();
    EXPECT_EQ((std::vector<Change>{{Kind::AlbumMade, 1}}), Told);
}

TEST_F(ChangesTest, AnAlbumThatIsPutOverAnotherKeepsTheObjectAndTellsOfItsShow) {
    const std::int32_t AlbumID = MakeAlbum();
    MakeSlide(AlbumID, u"old"_s);
    const clsNEBAlbum* Object = Engine.GetAlbum(AlbumID);
    Forget();
    { const auto Put = Changes(Engine).PutAlbum(AlbumOf(AlbumID, u"Sea"_s), 59); }
    EXPECT_EQ(Object, Engine.GetAlbum(AlbumID));
    EXPECT_EQ(49, Object->Slides.at(0)->SlideID);
    EXPECT_EQ(
        (std::vector<Change>{{Kind::AlbumReplaced, AlbumID}, {Kind::ShowMade, AlbumID, 0, 59}}),
        Told);
    Forget();
    { const auto Put = Changes(Engine).PutAlbum(AlbumOf(AlbumID, u"Sea"_s), 59); }
    EXPECT_EQ(
        (std::vector<Change>{{Kind::AlbumReplaced, AlbumID}, {Kind::ShowReplaced, AlbumID, 0, 59}}),
        Told);
}

}  // namespace
}  // namespace neb
