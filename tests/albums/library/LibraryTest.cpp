// Albums and shows at a glance, and what is found in their names and captions.
#include <gtest/gtest.h>

#include <QThread>

#include "albums/library/LibraryList.h"
#include "albums/library/LibrarySearch.h"
#include "db/Changes.h"
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "harness/ByTheClock.h"
#include "harness/Sanitizer.h"
#include "harness/TempFolder.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class Library : public ::testing::Test {
  protected:
    Library() {
        Engine.SetDBPath(Dir.Path());
        Engine.InitializeDB();
    }
    std::int32_t AddAlbum(const QString& Name) {
        std::int32_t AlbumID = 0;
        EXPECT_TRUE(Engine.SaveAlbum(AlbumID, Name));
        return AlbumID;
    }
    std::int32_t AddSlide(std::int32_t AlbumID, const QString& Caption,
                          const QString& Loc = u"x"_s) {
        std::int32_t SlideID = 0;
        Engine.GetAlbum(AlbumID)->SaveSlide2(SlideID, Caption, Loc, {}, false, false, Engine);
        return SlideID;
    }
    std::int32_t AddShow(std::int32_t AlbumID, const QString& Name,
                         const std::vector<std::int32_t>& SlideIDs) {
        std::int32_t ShowID = 0, Place = static_cast<std::int32_t>(SlideIDs.size());
        Engine.GetAlbum(AlbumID)->SaveSlideShow(ShowID, Name, 0, Engine);
        // as records may lie: the last place first
        for (auto Each = SlideIDs.rbegin(); Each != SlideIDs.rend(); ++Each)
            Engine.GetAlbum(AlbumID)->GetSlideShow(ShowID)->SaveDetail(*Each, Place--, {});
        return ShowID;
    }
    std::string Names() {
        QStringList All;
        for (const LibraryEntry& Each : LibraryOf(Engine))
            All << (Each.SlideShowID ? u"-"_s : QString()) + Each.Name +
                       u" %1/%2"_s.arg(Each.Slides).arg(Each.Shows);
        return All.join(u'|').toStdString();
    }
    // What was found, as its keys: albums, shows, slides.
    std::string Found(const QString& Sought, size_t Most = 100) {
        const LibraryHits Hits = Search.Find(Engine, Sought, Most);
        QStringList All;
        for (const LibraryHit& Each : Hits.Albums) All << u"a%1"_s.arg(Each.AlbumID);
        for (const LibraryHit& Each : Hits.Shows) All << u"w%1"_s.arg(Each.SlideShowID);
        for (const LibraryHit& Each : Hits.Slides) All << u"s%1"_s.arg(Each.SlideID);
        return All.join(u' ').toStdString();
    }

    harness::TempFolder Dir;
    clsDBEngine Engine;
    LibrarySearch Search;
};

TEST_F(Library, AlbumsComeByTheirNamesEachWithItsShowsInTheirs) {
    EXPECT_EQ("", Names());
    const auto Sea = AddAlbum(u"sea"_s), Garden = AddAlbum(u"Garden"_s);
    const auto A = AddSlide(Garden, u"a"_s), B = AddSlide(Garden, u"b"_s);
    AddSlide(Sea, u"c"_s);
    AddShow(Garden, u"winter"_s, {B, A, B});
    AddShow(Garden, u"Summer"_s, {A});
    EXPECT_EQ("Garden 2/2|-Summer 1/0|-winter 3/0|sea 1/0", Names());
    Engine.DeleteAlbum(Sea);
    Engine.DeleteAlbum(Garden);
    EXPECT_EQ("", Names());
}

TEST_F(Library, ACoverIsTheFirstSlideThatHasAPictureAndIsThere) {
    const auto Garden = AddAlbum(u"Garden"_s);
    EXPECT_EQ(nullptr, CoverOf(Engine, Garden, 0));
    AddSlide(Garden, u"words alone"_s, u"  "_s);
    EXPECT_EQ(nullptr, CoverOf(Engine, Garden, 0));
    const auto A = AddSlide(Garden, u"a"_s), B = AddSlide(Garden, u"b"_s);
    const auto Show = AddShow(Garden, u"walk"_s, {77, B, A});
    EXPECT_EQ(A, CoverOf(Engine, Garden, 0)->SlideID);
    EXPECT_EQ(B, CoverOf(Engine, Garden, Show)->SlideID) << "slide 77 is no more";
    EXPECT_EQ(nullptr, CoverOf(Engine, Garden, 99));
    EXPECT_EQ(nullptr, CoverOf(Engine, 99, 0));
}

TEST_F(Library, AnAlbumWasChangedWhenItsFoldersWereLast) {
    const auto Garden = AddAlbum(u"Garden"_s);
    EXPECT_FALSE(LastChangeOf(Dir.Path(), Garden));
    MakeDirs(SlidesFolder(Dir.Path(), Garden));
    MakeDirs(SoundTracksFolder(Dir.Path(), Garden));
    ASSERT_TRUE(LastChangeOf(Dir.Path(), Garden));
    EXPECT_LT(LastChangeOf(Dir.Path(), Garden)->secsTo(QDateTime::currentDateTime()), 60);
    const auto Before = *LastChangeOf(Dir.Path(), Garden);
    QThread::msleep(20);
    WriteFile(SlidesFolder(Dir.Path(), Garden) + u"00000001.jpg"_s, "x");
    EXPECT_GT(*LastChangeOf(Dir.Path(), Garden), Before);
    EXPECT_EQ(LastChangeOf(Dir.Path(), Garden), FileTime(SlidesFolder(Dir.Path(), Garden)));
}

TEST_F(Library, WordsAreFoundInNamesAndCaptionsWhateverTheirCaseAndAccents) {
    const auto Garden = AddAlbum(u"Gärten"_s), Sea = AddAlbum(u"Sea"_s);
    const auto Rose = AddSlide(Garden, u"Röslein rot,\nim Garten"_s);
    const auto Boat = AddSlide(Sea, u"A boat, ROSÉ-coloured"_s);
    const auto Show = AddShow(Sea, u"Rosen auf See"_s, {Boat});
    const auto Name = [](char Kind, std::int32_t ID) { return Kind + std::to_string(ID); };
    EXPECT_EQ(Name('w', Show) + ' ' + Name('s', Rose) + ' ' + Name('s', Boat), Found(u"ros"_s));
    EXPECT_EQ(Name('a', Garden) + ' ' + Name('s', Rose), Found(u"garten"_s));
    EXPECT_EQ(Name('s', Rose), Found(u"GARTEN rös"_s)) << "all words, in any order";
    EXPECT_EQ(Name('a', Sea), Found(u"sea"_s));
    EXPECT_EQ("", Found(u"  "_s));
    EXPECT_EQ("", Found(u"rot sea"_s)) << "two lines hold no words together";
    EXPECT_EQ("", Found(u"garten\nsea"_s));
}

TEST_F(Library, NoMoreSlidesAreGivenThanWantedAndAllAreCounted) {
    const auto Garden = AddAlbum(u"Garden"_s);
    for (int I = 0; I < 30; ++I) AddSlide(Garden, u"rose rose"_s);
    const LibraryHits Hits = Search.Find(Engine, u"rose"_s, 20);
    EXPECT_EQ(20U, Hits.Slides.size());
    EXPECT_EQ(30, Hits.AllSlides) << "a line counts once";
}

TEST_F(Library, WhatHasChangedIsFoundOnceItsAlbumWasForgotten) {
    const auto Garden = AddAlbum(u"Garden"_s), Sea = AddAlbum(u"Sea"_s);
    const auto Slide = AddSlide(Garden, u"rose"_s);
    EXPECT_EQ("s" + std::to_string(Slide), Found(u"rose"_s));
    EXPECT_EQ(2U, Search.KnownAlbums());
    Changes(Engine).SaveCaption(Garden, Slide, u"tulip"_s);
    Search.Forget(Garden);
    EXPECT_EQ(1U, Search.KnownAlbums()) << "the others are still known";
    EXPECT_EQ("", Found(u"rose"_s));
    EXPECT_EQ("s" + std::to_string(Slide), Found(u"tulip"_s));
    Engine.DeleteAlbum(Sea);
    EXPECT_EQ("", Found(u"sea"_s)) << "one that is gone is not found, forgotten or not";
}

TEST_F(Library, AllIsLearnedInPartsBeforeAnybodySearches) {
    for (int I = 0; I < 20; ++I) AddSlide(AddAlbum(u"Album %1"_s.arg(I)), u"rose"_s);
    EXPECT_FALSE(Search.Learn(Engine, -1)) << "no time at all";
    EXPECT_EQ(0U, Search.KnownAlbums());
    EXPECT_TRUE(Search.Learn(Engine, 60'000));
    EXPECT_EQ(20U, Search.KnownAlbums());
    EXPECT_TRUE(Search.Learn(Engine, 60'000));
}

// What a user waits for between two keys, measured: the first search learns all captions. The limit
// is far above what it takes, so that a busy machine is not taken for a slow program.
TEST_F(Library, AHundredThousandCaptionsAreLookedThroughBetweenTwoKeys) {
    for (int A = 0; A < 500; ++A) {
        const auto Album = AddAlbum(u"Álbum %1"_s.arg(A));
        for (int S = 0; S < 200; ++S)
            AddSlide(Album, u"Bäume am See, Bild %1 von %2"_s.arg(S).arg(A));
    }
    const auto Milliseconds = [](auto Do) {
        const double Begun = harness::WorkedMs();
        Do();
        return harness::WorkedMs() - Begun;
    };
    const double List = Milliseconds([&] { EXPECT_EQ(500U, LibraryOf(Engine).size()); });
    const double First = Milliseconds([&] { Search.Find(Engine, u"b"_s, 500); });
    const double Common = Milliseconds([&] { Search.Find(Engine, u"baume"_s, 500); });
    const double Rare = Milliseconds([&] { Search.Find(Engine, u"bild 77 von 123"_s, 500); });
    std::printf("list %.1f ms, first %.1f ms, common %.1f ms, rare %.1f ms\n", List, First, Common,
                Rare);
    EXPECT_EQ(2, Search.Find(Engine, u"bild 177 von 123"_s, 500).AllSlides);
    if (harness::RunsUnderSanitizer) return;
    EXPECT_LT(List, 100);
    EXPECT_LT(First, 1500);
    EXPECT_LT(Common, 300);
    EXPECT_LT(Rare, 300);
}

}  // namespace
}  // namespace neb
