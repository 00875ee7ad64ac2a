// Which pictures of an album or a show are printed, in which order.
#include "printing/SlidesToPrint.h"

#include "db/Fixtures.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"

namespace neb {
namespace {

using namespace harness;

class SlidesToPrintTest : public ::testing::Test {
  protected:
    SlidesToPrintTest() {
        Engine = OpenEngine(Dir.Path());
        std::int32_t AlbumID = 0;
        Engine->SaveAlbum(AlbumID, u"Holiday"_s);
        Album = Engine->GetAlbum(AlbumID);
    }
    std::int32_t Slide(const QString& Caption, const QString& File) {
        std::int32_t SlideID = 0;
        Album->SaveSlide(SlideID, Caption, File, {}, false, false, *Engine);
        return SlideID;
    }
    clsNEBSlideShow& Show(const std::vector<std::pair<std::int32_t, std::int32_t>>& Places) {
        std::int32_t ShowID = 0;
        Album->SaveSlideShow(ShowID, u"Show"_s, 1, *Engine);
        for (const auto& [SlideSeq, SlideID] : Places)
            Engine->SaveSlideShowDetail(ShowID, Album->AlbumID, SlideID, SlideSeq, {});
        return *Album->GetSlideShow(ShowID);
    }
    QString InAlbum(const QString& Name) const {
        return SlidesFolder(Dir.Path(), Album->AlbumID) + Name;
    }
    static std::vector<std::string> Said(const SlidesToPrint& Slides) {
        std::vector<std::string> Texts;
        for (const BoxRequest& Box : Slides.Missing) Texts.push_back(Box.Text.toStdString());
        return Texts;
    }

    TempFolder Dir;
    std::unique_ptr<clsDBEngine> Engine;
    clsNEBAlbum* Album = nullptr;
};

TEST_F(SlidesToPrintTest, AnAlbumIsPrintedInTheOrderOfItsCaptions) {
    Slide(u"pier"_s, u"1.jpg"_s);
    Slide(u"Boat"_s, u"2.jpg"_s);
    Slide(u"boat"_s, u"/elsewhere/3.jpg"_s);
    const SlidesToPrint Slides = SlidesOf(*Album, Dir.Path());
    EXPECT_EQ(Slides.Paths,
              (QStringList{InAlbum(u"2.jpg"_s), u"/elsewhere/3.jpg"_s, InAlbum(u"1.jpg"_s)}));
    EXPECT_TRUE(Slides.Missing.empty());
}

TEST_F(SlidesToPrintTest, AnEmptyAlbumHasNothingToPrint) {
    EXPECT_TRUE(SlidesOf(*Album, Dir.Path()).Paths.isEmpty());
}

TEST_F(SlidesToPrintTest, AShowIsPrintedInItsRunningOrder) {
    const std::int32_t Pier = Slide(u"pier"_s, u"1.jpg"_s), Boat = Slide(u"boat"_s, u"2.jpg"_s);
    const SlidesToPrint Slides =
        SlidesOf(*Album, Show({{3, Pier}, {1, Pier}, {2, Boat}}), Dir.Path());
    EXPECT_EQ(Slides.Paths,
              (QStringList{InAlbum(u"1.jpg"_s), InAlbum(u"2.jpg"_s), InAlbum(u"1.jpg"_s)}));
    EXPECT_TRUE(Slides.Missing.empty());
}

TEST_F(SlidesToPrintTest, PlacesWithoutADetailOrASlideAreToldOfAndPassedOver) {
    const std::int32_t Pier = Slide(u"pier"_s, u"1.jpg"_s);
    const SlidesToPrint Slides =
        SlidesOf(*Album, Show({{1, 77}, {2, Pier}, {5, Pier}}), Dir.Path());
    EXPECT_EQ(Slides.Paths, QStringList{InAlbum(u"1.jpg"_s)});
    EXPECT_EQ(Said(Slides),
              (std::vector<std::string>{"Slide #1 not found.", "Detail #3 not found."}));
}

TEST_F(SlidesToPrintTest, OfTwoDetailsWithOneNumberTheFirstIsPrinted) {
    const std::int32_t Pier = Slide(u"pier"_s, u"1.jpg"_s), Boat = Slide(u"boat"_s, u"2.jpg"_s);
    const SlidesToPrint Slides = SlidesOf(*Album, Show({{1, Boat}, {1, Pier}}), Dir.Path());
    EXPECT_EQ(Slides.Paths, QStringList{InAlbum(u"2.jpg"_s)});
    EXPECT_EQ(Said(Slides), std::vector<std::string>{"Detail #2 not found."});
}

TEST_F(SlidesToPrintTest, WhatStandsInLiesBesideTheProgram) {
    EXPECT_EQ(NoSlideFile(), AppPath() + u"NoSlide.bmp"_s);
}

}  // namespace
}  // namespace neb
