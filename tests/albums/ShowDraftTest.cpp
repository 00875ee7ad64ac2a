// A show as it is taken up to be composed, and when it counts as changed.
#include "albums/ShowDraft.h"

#include <gtest/gtest.h>

#include "albums/modLoadShow.h"
#include "db/clsDBEngine.h"
#include "harness/TempFolder.h"

namespace neb::harness {
namespace {

using namespace Qt::StringLiterals;

TEST(LoadedShow, HasTheFirstOfTwoSlidesOfOnePlace) {
    TempFolder Dir;
    clsDBEngine Engine;
    Engine.SetDBPath(Dir.Path());
    Engine.InitializeDB();
    std::int32_t AlbumID = 0, ShowID = 0;
    ASSERT_TRUE(Engine.SaveAlbum(AlbumID, u"Garden"_s));
    Engine.GetAlbum(AlbumID)->SaveSlideShow(ShowID, u"Walk"_s, 0, Engine);
    clsNEBSlideShow& Show = *Engine.GetAlbum(AlbumID)->GetSlideShow(ShowID);
    const std::pair<int, int> Stored[] = {{7, 2}, {8, 1}, {9, 2}};
    for (const auto& [SlideID, Place] : Stored) Show.SaveDetail(SlideID, Place, {});
    auto Loaded = LoadShow(Engine, AlbumID, ShowID);
    ASSERT_TRUE(Loaded);
    ASSERT_EQ(2U, Loaded->Slides.size());
    EXPECT_EQ(8, Loaded->Slides[0].SlideID);
    EXPECT_EQ(7, Loaded->Slides[1].SlideID);
}

class Draft : public ::testing::Test {
  protected:
    Draft() {
        Now = {.AlbumID = 1,
               .SlideShowID = 2,
               .Name = u"Walk"_s,
               .Slides = {{1, u"a"_s, u"a"_s}, {2, u"Rose"_s, u"b"_s}},
               .Tracks = {{}, {.SlideSeqStart = 1, .SlideSeqEnd = 2, .SoundTrackLoc = u"x"_s}}};
        Show.Compose(Now);
        Show.SetAsStored();
    }
    bool IsChanged() {
        Show.Compose(Now);
        return Show.IsChanged();
    }
    ShowContent Now;
    ShowDraft Show;
};

TEST_F(Draft, IsNotChangedAsItWasStored) {
    EXPECT_FALSE(IsChanged());
    EXPECT_EQ(u"Walk"_s, Show.Content().Name);
}

TEST_F(Draft, IsChangedByEachOfItsParts) {
    const std::function<void(ShowContent&)> Changes[] = {
        [](ShowContent& C) { C.AlbumID = 3; },
        [](ShowContent& C) { C.Name = u"walk"_s; },
        [](ShowContent& C) { C.ProgressionMethod = 1; },
        [](ShowContent& C) { C.Slides.pop_back(); },
        [](ShowContent& C) { std::swap(C.Slides[0], C.Slides[1]); },
        [](ShowContent& C) { C.Slides[0].SlideText.clear(); },
        [](ShowContent& C) { C.Slides[1].SlideText = u"Tulip"_s; },
        [](ShowContent& C) { C.Slides[1].SlideText = u"b"_s; },
        [](ShowContent& C) { C.Tracks[1].Fade = true; },
        [](ShowContent& C) { C.Tracks[0].SlideSeqStart = 0; },
        [](ShowContent& C) { std::swap(C.Tracks[0], C.Tracks[1]); },
    };
    const ShowContent Stored = Now;
    int Number = 0;
    for (const auto& Change : Changes) {
        Now = Stored;
        Change(Now);
        EXPECT_TRUE(IsChanged()) << ++Number;
    }
    Now = Stored;
    EXPECT_FALSE(IsChanged());
}

TEST_F(Draft, IsNotChangedByACaptionThatTheSlideHasElsewhere) {
    Now.Slides[0].SlideText = Now.Slides[0].OwnText = u"anemone"_s;
    EXPECT_FALSE(IsChanged());
    Now.Slides[1].OwnText = u"begonia"_s;
    EXPECT_FALSE(IsChanged()) << "its own caption stays";
}

TEST_F(Draft, IsNotChangedBySlidesThatLeftTheAlbum) {
    Show.DropSlides({2, 9});
    EXPECT_EQ(1u, Show.Content().Slides.size());
    Now.Slides.pop_back();
    EXPECT_EQ(1, Show.Content().Tracks[1].SlideSeqEnd) << "the track stays on what is left";
    Now.Tracks = Show.Content().Tracks;
    EXPECT_FALSE(IsChanged());
    Now.Slides.clear();
    EXPECT_TRUE(IsChanged());
}

TEST_F(Draft, IsMeasuredAgainstWhatWasShownLast) {
    Now.Name = u"Run"_s;
    EXPECT_TRUE(IsChanged());
    Show.SetAsStored();
    EXPECT_FALSE(IsChanged());
}

}  // namespace
}  // namespace neb::harness
