// A stored show is given another name, and nothing else of it changes.
#include <gtest/gtest.h>

#include "albums/modSaveShow.h"
#include "db/clsDBEngine.h"
#include "harness/Refusals.h"
#include "harness/TempFolder.h"

namespace neb {
namespace {

using namespace Qt::StringLiterals;

class ShowRenamed : public ::testing::Test {
  protected:
    ShowRenamed() {
        Engine.SetDBPath(Dir.Path());
        Engine.InitializeDB();
        EXPECT_TRUE(Engine.SaveAlbum(AlbumID, u"Garden"_s));
        for (std::int32_t* Each : {&Walk, &Run})
            Album().SaveSlideShow(*Each, Each == &Walk ? u"Walk"_s : u"Run"_s, 1, Engine);
        Show().SaveDetail(7, 1, u"words"_s);
        Show().SaveSoundTrack(1, u"00000001_1.mp3"_s, 1, 1, true, false, true);
        Engine.Listeners.Told = [this](const Change& What, const QObject*) {
            Told.push_back(What);
        };
    }
    clsNEBAlbum& Album() { return *Engine.GetAlbum(AlbumID); }
    clsNEBSlideShow& Show() { return *Album().GetSlideShow(Walk); }
    auto Rename(const QString& Name) { return RenameShow(Engine, AlbumID, Walk, Name); }

    harness::TempFolder Dir;
    clsDBEngine Engine;
    std::int32_t AlbumID = 0, Walk = 0, Run = 0;
    std::vector<Change> Told;
};

TEST_F(ShowRenamed, KeepsItsSlidesAndTracks) {
    EXPECT_TRUE(Rename(u"\"Stroll\""_s));
    EXPECT_EQ("\u201cStroll\u201d", Show().SlideShowName.toStdString()) << "quotes are cleaned";
    EXPECT_EQ(1, Show().ProgressionMethod);
    EXPECT_EQ("words", Show().GetDetail(1)->SlideText.toStdString());
    EXPECT_EQ("00000001_1.mp3", Show().GetSoundTrack(1)->SoundTrackLoc.toStdString());
    EXPECT_TRUE(Show().GetSoundTrack(1)->Fade);
    ASSERT_EQ(1U, Told.size());
    EXPECT_EQ((Change{Change::Kind::ShowReplaced, AlbumID, 0, Walk}), Told[0]);
}

TEST_F(ShowRenamed, TakesItsOwnNameInOtherLetters) {
    EXPECT_TRUE(Rename(u"WALK"_s));
    EXPECT_EQ("WALK", Show().SlideShowName.toStdString());
}

TEST_F(ShowRenamed, IsRefusedTheNameOfAnotherAndNoNameAtAll) {
    harness::ExpectRefused(Rename(u"run"_s),
                           u"A Slide Show with this name already exists in this Album."_s,
                           u"Slide Show Name Already In Use"_s, BoxIcon::Information);
    harness::ExpectRefused(Rename(u"  "_s), u"You have to enter a name for the slide show."_s);
    EXPECT_EQ("Walk", Show().SlideShowName.toStdString());
    EXPECT_TRUE(Told.empty());
}

TEST_F(ShowRenamed, IsRefusedWhenItHasGone) {
    Album().TakeSlideShow(Walk);
    EXPECT_FALSE(Rename(u"Stroll"_s));
    Album().TakeSlideShow(Run);
    EXPECT_FALSE(Rename(u"Stroll"_s)) << "the last one, too";
    EXPECT_TRUE(Album().SlideShows.empty());
}

}  // namespace
}  // namespace neb
