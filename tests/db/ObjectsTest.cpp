// Albums, shows and their sorted views; deletion with files; clearing for transfers.
#include <gtest/gtest.h>

#include "Fixtures.h"
#include "db/modAlbumFiles.h"
#include "harness/Refusals.h"
#include "harness/ScriptedBoxes.h"
#include "support/Fault.h"

namespace neb {
namespace {

using namespace harness;

class ObjectsTest : public ::testing::Test {
  protected:
    ObjectsTest() {
        std::int32_t AlbumID = 0;
        Engine->SaveAlbum(AlbumID, u"album"_s);
        Album = Engine->GetAlbum(AlbumID);
        MakeDirs(SlidesFolder(Engine->DBPath(), AlbumID));
        MakeDirs(SoundTracksFolder(Engine->DBPath(), AlbumID));
    }
    std::int32_t NewSlide(const QString& Text) {
        std::int32_t SlideID = 0;
        EXPECT_TRUE(Album->SaveSlide(SlideID, Text, {}, {}, false, false, *Engine));
        for (const char* Rest : {".jpg", "Small.bmp", ".wav"})
            WriteFile(SlideFile(SlideID, Rest), "x");
        return SlideID;
    }
    clsNEBSlideShow* NewShow(const QString& Name, const std::vector<std::int32_t>& Slides) {
        std::int32_t ShowID = 0;
        EXPECT_TRUE(Album->SaveSlideShow(ShowID, Name, 0, *Engine));
        clsNEBSlideShow* Show = Album->GetSlideShow(ShowID);
        for (const std::int32_t SlideID : Slides)
            Show->SaveDetail(SlideID, static_cast<std::int32_t>(Show->Details.size()) + 1, {});
        return Show;
    }
    QString SlideFile(std::int32_t SlideID, const char* Rest) const {
        return SlidesFolder(Dir.Path(), 1) + FileStem(SlideID) + QLatin1String(Rest);
    }
    QString SoundFile(const char* Name) const {
        return SoundTracksFolder(Dir.Path(), 1) + QLatin1String(Name);
    }
    TempFolder Dir;
    ScriptedBoxes Boxes;
    std::unique_ptr<clsDBEngine> Engine = OpenEngine(Dir.Path());
    clsNEBAlbum* Album = nullptr;
};

TEST_F(ObjectsTest, FilesAreNamedByTheSlidesNumberInEightDigits) {
    EXPECT_EQ(FileStem(123), u"00000123");
    EXPECT_EQ(FileStem(1234567890), u"1234567890");
    EXPECT_EQ(ThumbnailName(123), u"00000123Small.bmp");
    EXPECT_EQ(SlidesFolder(u"/db/"_s, 7), u"/db/Albums/7/Slides/");
    EXPECT_EQ(SoundTracksFolder(u"/db/"_s, 7), u"/db/Albums/7/SoundTracks/");
}

TEST_F(ObjectsTest, NewObjectsAreEmpty) {
    const clsNEBSlide Slide;
    EXPECT_EQ(Slide.SlideID, 0);
    EXPECT_FALSE(Slide.Override || Slide.Repeat);
    const clsNEBSlideShowSoundTrack Track;
    EXPECT_FALSE(Track.Repeat || Track.FitToSong || Track.Fade);
    EXPECT_EQ(Track.SlideSeqStart + Track.SlideSeqEnd + Track.SoundTrackSeq, 0);
    const clsNEBSlideShow Show;
    EXPECT_TRUE(Show.Details.empty() && Show.SoundTracks.empty() && Show.DetailIndex.empty());
}

TEST_F(ObjectsTest, SlidesAreListedByCaptionThenByNumber) {
    for (const char* Text : {"beta", "ALPHA", "Beta", "alpha", "beta"})
        NewSlide(QLatin1String(Text));
    MemoryComboList List;
    Album->LoadSlidesCombo(List);
    QStringList Texts;
    for (int I = 0; I < List.ListCount(); ++I) Texts << List.List(I);
    EXPECT_EQ(Texts, QStringList({"000002 ALPHA", "000004 alpha", "000001 beta", "000003 Beta",
                                  "000005 beta"}));
    EXPECT_EQ(List.ItemData(1), 4);
}

TEST_F(ObjectsTest, WithNoSlidesTheViewIsEmptied) {
    const std::int32_t SlideID = NewSlide(u"a"_s);
    Album->SortSlides();
    EXPECT_EQ(Album->SlideIndex.size(), 1U);
    Album->DeleteSlide(SlideID, *Engine);
    EXPECT_EQ(Album->SlideIndex.size(), 1U);  // views follow on demand alone
    Album->SortSlides();
    EXPECT_TRUE(Album->SlideIndex.empty());
}

TEST_F(ObjectsTest, WithNoShowsTheViewStays) {
    NewShow(u"s"_s, {});
    Album->SortSlideShows();
    Album->DeleteSlideShow(1, *Engine);
    Album->SortSlideShows();
    EXPECT_EQ(Album->SlideShowIndex.size(), 1U);
    MemoryComboList List;
    Album->LoadSlideShowsCombo(List);
    EXPECT_EQ(List.ListCount(), 0);
}

TEST_F(ObjectsTest, ShowsOfTheSameNameFallAsTheExchangeSortLeavesThem) {
    for (const char* Name : {"m", "m", "m", "a"}) NewShow(QLatin1String(Name), {});
    MemoryComboList List;
    Album->LoadSlideShowsCombo(List);
    EXPECT_EQ(List.ItemData(0), 4);
    EXPECT_EQ(List.ItemData(1), 2);
    EXPECT_EQ(List.ItemData(2), 3);
    EXPECT_EQ(List.ItemData(3), 1);
}

TEST_F(ObjectsTest, ASlideIsChangedInPlace) {
    std::int32_t SlideID = NewSlide(u"a"_s);
    const clsNEBSlide* Before = Album->GetSlide(SlideID);
    EXPECT_TRUE(Album->SaveSlide(SlideID, u"b"_s, u"l"_s, u"s"_s, true, true, *Engine));
    EXPECT_EQ(SlideID, 1);
    EXPECT_EQ(Album->GetSlide(1), Before);
    EXPECT_EQ(Before->SlideText + Before->SlideLoc + Before->SoundTrackLoc, u"bls");
    EXPECT_TRUE(Before->Override && Before->Repeat);
}

TEST_F(ObjectsTest, AnUnknownSlideNumberMakesANewSlideUnderANewNumber) {
    std::int32_t SlideID = 55;
    clsNEBSlide* Slide = Album->SaveSlide2(SlideID, u"a"_s, {}, {}, false, false, *Engine);
    EXPECT_EQ(SlideID, 1);
    ASSERT_NE(Slide, nullptr);
    EXPECT_EQ(Slide, Album->GetSlide(1));
    EXPECT_EQ(Engine->NextSlideID, 2);
}

TEST_F(ObjectsTest, AShowIsChangedInPlaceOrMadeNew) {
    std::int32_t ShowID = 8;
    EXPECT_TRUE(Album->SaveSlideShow(ShowID, u"a"_s, 1, *Engine));
    EXPECT_EQ(ShowID, 1);
    EXPECT_TRUE(Album->SaveSlideShow(ShowID, u"b"_s, 2, *Engine));
    ASSERT_EQ(Album->SlideShows.size(), 1U);
    EXPECT_EQ(Album->SlideShows[0]->SlideShowName, u"b");
    EXPECT_EQ(Album->SlideShows[0]->ProgressionMethod, 2);
}

TEST_F(ObjectsTest, ASlideIsFoundByNumberOrByRow) {
    NewSlide(u"b"_s);
    NewSlide(u"a"_s);
    EXPECT_EQ(Album->GetSlide(0, 0), nullptr);
    EXPECT_EQ(Album->GetSlide(1)->SlideText, u"b");
    EXPECT_EQ(Album->GetSlide(1, 1)->SlideText, u"a");  // the view is built by itself
    EXPECT_EQ(Album->GetSlide(0, 2)->SlideText, u"b");
    EXPECT_THROW(Album->GetSlide(0, 3), Fault);
}

TEST_F(ObjectsTest, AShowIsFoundByRowOnlyInAViewThatWasBuilt) {
    NewShow(u"s"_s, {});
    EXPECT_THROW(Album->GetSlideShow(0, 1), Fault);
    Album->SortSlideShows();
    EXPECT_EQ(Album->GetSlideShow(0, 1)->SlideShowID, 1);
    EXPECT_EQ(Album->GetSlideShow(2), nullptr);
    EXPECT_THROW(Album->GetSlideShow(0, 2), Fault);
}

TEST_F(ObjectsTest, TwoDetailsOfOneNumberAreKeptAndTheFirstIsFound) {
    clsNEBSlideShow Show;
    EXPECT_TRUE(Show.SaveDetail(10, 1, u"first"_s));
    EXPECT_TRUE(Show.SaveDetail(20, 1, u"second"_s));
    EXPECT_EQ(Show.Details.size(), 2U);
    EXPECT_EQ(Show.GetDetail(1)->SlideText, u"first");
    EXPECT_EQ(Show.GetDetail(2), nullptr);
    EXPECT_EQ(Show.GetSoundTrack(1), nullptr);
}

TEST_F(ObjectsTest, AfterClearingTheViewOfDetailsIsStale) {
    clsNEBSlideShow* Show = NewShow(u"s"_s, {1, 2});
    Show->SortDetails();
    Show->ClearDetails();
    EXPECT_EQ(Show->DetailIndex.size(), 2U);
    Show->SortDetails();
    EXPECT_EQ(Show->DetailIndex.size(), 2U);
    MemoryComboList List;
    Show->LoadDetailsCombo(List);
    EXPECT_EQ(List.ListCount(), 0);
    Show->SaveDetail(9, 5, {});
    Show->LoadDetailsCombo(List);
    ASSERT_EQ(List.ListCount(), 1);
    EXPECT_EQ(List.List(0), u"5");
    EXPECT_EQ(List.ItemData(0), 9);
}

TEST_F(ObjectsTest, DetailsAndTracksAreListedByNumber) {
    clsNEBSlideShow Show;
    for (const std::int32_t Seq : {10, 9, 100}) {
        Show.SaveDetail(Seq * 2, Seq, {});
        Show.SaveSoundTrack(Seq, {}, 1, 2, false, false, false);
    }
    MemoryComboList List;
    Show.LoadDetailsCombo(List);
    EXPECT_EQ(List.List(0) + List.List(1) + List.List(2), u"910100");
    EXPECT_EQ(List.ItemData(2), 200);
    Show.LoadSoundTracksCombo(List);
    EXPECT_EQ(List.List(0), u"9");
    EXPECT_EQ(List.ItemData(0), 9);
    Show.ClearSoundTracks();
    Show.LoadSoundTracksCombo(List);
    EXPECT_EQ(List.ListCount(), 0);
}

TEST_F(ObjectsTest, ASlideGoesWithItsFilesAndLeavesDetailsAlone) {
    const std::int32_t SlideID = NewSlide(u"a"_s), Other = NewSlide(u"b"_s);
    const clsNEBSlideShow* Show = NewShow(u"s"_s, {SlideID});
    EXPECT_TRUE(Album->DeleteSlide(SlideID, *Engine));
    EXPECT_EQ(Album->GetSlide(SlideID), nullptr);
    for (const char* Rest : {".jpg", "Small.bmp", ".wav"}) {
        EXPECT_FALSE(FileExists(SlideFile(SlideID, Rest))) << Rest;
        EXPECT_TRUE(FileExists(SlideFile(Other, Rest))) << Rest;
    }
    EXPECT_EQ(Show->Details.size(), 1U);
}

TEST_F(ObjectsTest, DeletingWhatIsNotThereIsTrueAndTouchesNothing) {
    NewSlide(u"a"_s);
    WriteFile(SlideFile(77, ".jpg"), "stray");
    EXPECT_TRUE(Album->DeleteSlide(0, *Engine));
    EXPECT_TRUE(Album->DeleteSlide(77, *Engine));
    EXPECT_TRUE(Album->DeleteSlideShow(0, *Engine));
    EXPECT_TRUE(Album->DeleteSlideShow(77, *Engine));
    EXPECT_EQ(Album->Slides.size(), 1U);
    EXPECT_TRUE(FileExists(SlideFile(77, ".jpg")));
}

TEST_F(ObjectsTest, AFailureToDeleteOneFileStopsNothing) {
    const std::int32_t SlideID = NewSlide(u"a"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Delete && Path.endsWith(u".jpg")) throw Fault(u"in use"_s, Path);
    });
    EXPECT_TRUE(Album->DeleteSlide(SlideID, *Engine));
    SetHostWatcher({});
    EXPECT_EQ(Album->GetSlide(SlideID), nullptr);
    EXPECT_TRUE(FileExists(SlideFile(SlideID, ".jpg")));
    EXPECT_FALSE(FileExists(SlideFile(SlideID, ".wav")));
    EXPECT_FALSE(FileExists(SlideFile(SlideID, "Small.bmp")));
}

TEST_F(ObjectsTest, AShowGoesWithItsSoundsAndLeavesSlides) {
    NewShow(u"s"_s, {NewSlide(u"a"_s)});
    for (const char* Name : {"00000001_1.mp3", "00000001_2.wav", "00000002_1.mp3"})
        WriteFile(SoundFile(Name), "x");
    EXPECT_TRUE(Album->DeleteSlideShow(1, *Engine));
    EXPECT_TRUE(Album->SlideShows.empty());
    EXPECT_FALSE(FileExists(SoundFile("00000001_1.mp3")));
    EXPECT_FALSE(FileExists(SoundFile("00000001_2.wav")));
    EXPECT_TRUE(FileExists(SoundFile("00000002_1.mp3")));
    EXPECT_EQ(Album->Slides.size(), 1U);
}

TEST_F(ObjectsTest, ClearingAnAlbumEmptiesItAndItsFolders) {
    NewShow(u"s"_s, {NewSlide(u"a"_s)});
    WriteFile(SoundFile("song"), "x");
    EXPECT_TRUE(Engine->ClearAlbumData(*Album));
    EXPECT_TRUE(Album->Slides.empty() && Album->SlideShows.empty());
    EXPECT_EQ(Album->AlbumName, u"album");
    EXPECT_TRUE(ListDir(SlidesFolder(Dir.Path(), 1)).empty());
    EXPECT_TRUE(ListDir(SoundTracksFolder(Dir.Path(), 1)).empty());
    EXPECT_TRUE(FolderExists(SlidesFolder(Dir.Path(), 1)));
    EXPECT_TRUE(Engine->ClearAlbumData(*Album));  // empty folders are no failure
}

TEST_F(ObjectsTest, AFailureToClearAnAlbumIsShown) {
    NewSlide(u"a"_s);
    SetHostWatcher([](HostStep Step, const QString& Path, qint64&) {
        if (Step == HostStep::Delete) throw Fault(u"It is in use."_s, Path);
    });
    ExpectRefused(Engine->ClearAlbumData(*Album),
                  u"Failed to clear the album.\nIt is in use.\n"_s + SlideFile(1, ".jpg"),
                  u"Clear Album Failed"_s, BoxIcon::Critical);
    SetHostWatcher({});
}

TEST_F(ObjectsTest, ClearingAShowTakesTheSlidesThatOnlyItUses) {
    const std::int32_t Own = NewSlide(u"own"_s), Shared = NewSlide(u"shared"_s),
                       Loose = NewSlide(u"loose"_s);
    clsNEBSlideShow* Show = NewShow(u"s"_s, {Own, Shared, Own});
    NewShow(u"t"_s, {Shared});
    Show->SaveSoundTrack(1, u"00000001_1.mp3"_s, 1, 2, false, false, false);
    WriteFile(SoundFile("00000001_1.mp3"), "x");
    WriteFile(SoundFile("00000001_2.mp3"), "not named by a track");
    EXPECT_TRUE(Engine->ClearSlideShowData(*Album, *Show));
    EXPECT_TRUE(Show->Details.empty() && Show->SoundTracks.empty());
    EXPECT_EQ(Show->SlideShowName, u"s");
    EXPECT_EQ(Album->GetSlide(Own), nullptr);
    EXPECT_FALSE(FileExists(SlideFile(Own, "Small.bmp")));
    for (const std::int32_t Kept : {Shared, Loose}) {
        EXPECT_NE(Album->GetSlide(Kept), nullptr);
        EXPECT_TRUE(FileExists(SlideFile(Kept, ".jpg")));
    }
    EXPECT_FALSE(FileExists(SoundFile("00000001_1.mp3")));
    EXPECT_TRUE(FileExists(SoundFile("00000001_2.mp3")));
}

TEST_F(ObjectsTest, ClearingAnEmptyShowTouchesNoFile) {
    clsNEBSlideShow* Show = NewShow(u"s"_s, {});
    SetHostWatcher(
        [](HostStep, const QString& Path, qint64&) { ADD_FAILURE() << qPrintable(Path); });
    EXPECT_TRUE(Engine->ClearSlideShowData(*Album, *Show));
    SetHostWatcher({});
}

TEST_F(ObjectsTest, ASoundThatAnotherShowPlaysAsWellIsNotDeleted) {
    clsNEBSlideShow* Show = NewShow(u"s"_s, {});
    Show->SaveSoundTrack(1, u"00000001_1.mp3"_s, 1, 2, false, false, false);
    NewShow(u"t"_s, {})->SaveSoundTrack(1, u"00000001_1.MP3"_s, 1, 2, false, false, false);
    WriteFile(SoundFile("00000001_1.mp3"), "x");
    EXPECT_TRUE(Engine->ClearSlideShowData(*Album, *Show));
    EXPECT_TRUE(FileExists(SoundFile("00000001_1.mp3")));
}

TEST_F(ObjectsTest, ASoundOutsideTheAlbumIsNotDeleted) {
    clsNEBSlideShow* Show = NewShow(u"s"_s, {});
    WriteFile(Dir / "Albums/1/mine.mp3", "x");
    Show->SaveSoundTrack(1, u"../mine.mp3"_s, 1, 2, false, false, false);
    EXPECT_TRUE(Engine->ClearSlideShowData(*Album, *Show));
    EXPECT_TRUE(FileExists(Dir / "Albums/1/mine.mp3"));
}

TEST_F(ObjectsTest, AFailureToClearAShowIsShownAndStopsTheWork) {
    clsNEBSlideShow* Show = NewShow(u"s"_s, {});
    for (const char* Name : {"a.mp3", "b.mp3"}) {
        Show->SaveSoundTrack(1, QLatin1String(Name), 1, 2, false, false, false);
        WriteFile(SoundFile(Name), "x");
    }
    SetHostWatcher([](HostStep, const QString& Path, qint64&) { throw Fault(u"No."_s, Path); });
    ExpectRefused(Engine->ClearSlideShowData(*Album, *Show),
                  u"Failed to clear the slide show.\nNo.\n"_s + SoundFile("a.mp3"),
                  u"Clear Slide Show Failed"_s, BoxIcon::Critical);
    SetHostWatcher({});
    EXPECT_TRUE(FileExists(SoundFile("b.mp3")));
}

}  // namespace
}  // namespace neb
