// What the bulk slide manager does without a window: captions that are typed, saved all at once,
// and slides that go.
#include <gtest/gtest.h>

#include "albums/BulkSlides.h"
#include "db/clsDBEngine.h"
#include "harness/TempFolder.h"

namespace neb {
namespace {

using namespace harness;
using namespace Qt::StringLiterals;

class BulkSlides : public ::testing::Test {
  protected:
    BulkSlides() {
        Engine.SetDBPath(Db.Path());
        Engine.InitializeDB();
        EXPECT_TRUE(Engine.SaveAlbum(AlbumID, u"Garden"_s));
        for (const QString& Caption : {u"a"_s, u"b"_s, u"c"_s}) {
            std::int32_t SlideID = 0;
            Album().SaveSlide(SlideID, Caption, {}, {}, false, false, Engine);
        }
        Engine.Listeners.Noted = [this](const Change& What) { Noted.push_back(What); };
        Engine.Listeners.Told = [this](const Change& What, const QObject*) {
            Told.push_back(What);
        };
    }
    clsNEBAlbum& Album() { return *Engine.GetAlbum(AlbumID); }
    std::string Captions() {
        QStringList All;
        for (const auto& Slide : Album().Slides) All << Slide->SlideText;
        return All.join(u'|').toStdString();
    }

    TempFolder Db;
    clsDBEngine Engine;
    std::int32_t AlbumID = 0;
    std::vector<Change> Noted, Told;
};

TEST(CaptionEditsTest, ACaptionTypedBackToTheStoredOneIsNoEdit) {
    clsNEBSlide Rose;
    Rose.SlideID = 7;
    Rose.SlideText = u"Rose"_s;
    CaptionEdits Edits;
    Edits.Note(7, u"Tulip"_s, &Rose);
    EXPECT_EQ(u"Tulip"_s, Edits.ShownOf(Rose));
    Edits.Note(7, u"Rose"_s, &Rose);
    Rose.SlideText = u"changed elsewhere"_s;
    EXPECT_EQ(u"changed elsewhere"_s, Edits.ShownOf(Rose));
}

TEST(CaptionEditsTest, WhatIsTypedStaysUntilItIsForgotten) {
    clsNEBSlide Rose;
    Rose.SlideID = 7;
    CaptionEdits Edits;
    Edits.Note(7, u"Tulip"_s, nullptr);
    EXPECT_EQ(u"Tulip"_s, Edits.ShownOf(Rose));
    Edits.Forget(7);
    EXPECT_EQ(u""_s, Edits.ShownOf(Rose));
    Edits.Note(7, u"Tulip"_s, &Rose);
    Edits.Clear();
    EXPECT_EQ(u""_s, Edits.ShownOf(Rose));
}

TEST_F(BulkSlides, CaptionsAreNotedEachAndToldOnce) {
    {
        CaptionSave Saved(Engine, nullptr, AlbumID);
        EXPECT_TRUE(Saved.Save(1, u"x"_s));
        EXPECT_FALSE(Saved.Save(99, u"y"_s));
        EXPECT_TRUE(Saved.Save(3, u"z"_s));
        EXPECT_EQ(2, Saved.Tally().Done);
        EXPECT_EQ(1, Saved.Tally().Failed);
        EXPECT_TRUE(Told.empty());
        Saved.Tell();
    }
    EXPECT_EQ("x|b|z", Captions());
    EXPECT_EQ((std::vector<Change>{{Change::Kind::SlideSaved, AlbumID, 1},
                                   {Change::Kind::SlideSaved, AlbumID, 3}}),
              Noted);
    EXPECT_EQ((std::vector<Change>{{Change::Kind::CaptionsSaved, AlbumID}}), Told);
}

TEST_F(BulkSlides, CaptionsThatStayAsTheyAreAreNotTold) {
    CaptionSave Saved(Engine, nullptr, AlbumID);
    EXPECT_TRUE(Saved.Save(1, u"a"_s));
    Saved.Tell();
    EXPECT_TRUE(Told.empty());
}

TEST_F(BulkSlides, AnAlbumThatHasGoneTakesNoCaptions) {
    CaptionSave Saved(Engine, nullptr, AlbumID);
    Engine.DeleteAlbum(AlbumID);
    EXPECT_FALSE(Saved.Save(1, u"x"_s));
    EXPECT_EQ(1, Saved.Tally().Failed);
}

TEST_F(BulkSlides, SlidesGoOneByOneUntilItIsEnough) {
    const SlideTally Tally = DeleteSlides(Engine, nullptr, AlbumID, {3, 1, 2},
                                          [Left = 2]() mutable { return --Left > 0; });
    EXPECT_EQ(2, Tally.Done);
    EXPECT_EQ("b", Captions());
    EXPECT_EQ((std::vector<Change>{{Change::Kind::SlideDeleted, AlbumID, 3},
                                   {Change::Kind::SlideDeleted, AlbumID, 1}}),
              Told);
    ASSERT_EQ(1u, Album().SlideIndex.size()) << "sorted anew";
}

}  // namespace
}  // namespace neb
