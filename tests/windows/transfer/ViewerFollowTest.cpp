// The viewers while other windows change what they show.
#include "ViewRig.h"
#include "db/Changes.h"
#include "windows/lists/SlideRows.h"

namespace neb {
namespace {

using namespace harness;

class ViewerFollow : public ViewRig {
  protected:
    ViewerFollow() {
        AddSlides(Engine, {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        clsNEBSlideShow& Show = AddShow(Engine, u"Spring"_s);
        ShowID = Show.SlideShowID;
        int Seq = 0;
        for (const std::int32_t SlideID : {4, 2, 4, 1})
            Show.SaveDetail(SlideID, ++Seq, QString::number(SlideID * 11));
        OfAlbum = ViewAlbum(Engine);
        OfShow = ViewShow(Engine, Show);
    }
    ~ViewerFollow() override {
        OfAlbum->Unload();
        OfShow->Unload();
    }

    template <class Answered>
    static void Do(Answered Given) {
        ASSERT_TRUE(Given);
        Given->Now();
    }
    // The chosen row, and the slide in it.
    static std::string Chosen(const ViewerForm& Of) {
        const int Row = GridOf(Of).Row();
        return Row < 0 ? "none"
                       : std::to_string(Row) + ":" + std::to_string(SlideIn(GridOf(Of), Row));
    }
    void Choose(int OfAlbumRow, int OfShowRow) {
        GridOf(*OfAlbum).SetRow(OfAlbumRow);
        GridOf(*OfShow).SetRow(OfShowRow);
    }
    std::string TitleOf(const ViewerForm& Of) const {
        return Of.windowTitle().remove(Db.Path()).toStdString();
    }

    std::int32_t ShowID = 0;
    std::shared_ptr<frmAlbumView> OfAlbum;
    std::shared_ptr<frmSlideShowView> OfShow;
    Changes Door{Engine};
};

TEST_F(ViewerFollow, ARenamedAlbumChangesBothTitlesAndKeepsTheRows) {
    Choose(2, 2);
    Do(Door.RenameAlbum(AlbumID, u"Park"_s));
    EXPECT_EQ("Album [:Park]", TitleOf(*OfAlbum));
    EXPECT_EQ("Slide Show [:Park:Spring]", TitleOf(*OfShow));
    EXPECT_EQ("a|b|c|d", Shown(*OfAlbum));
    EXPECT_EQ("44|22|44|11", Shown(*OfShow));
    EXPECT_EQ("2:3", Chosen(*OfAlbum));
    EXPECT_EQ("2:4", Chosen(*OfShow)) << "the second place of a slide that stands twice";
}

TEST_F(ViewerFollow, ASavedCaptionFindsItsPlaceInTheAlbumAndIsNoneOfTheShow) {
    Choose(1, 1);
    Do(Door.SaveCaption(AlbumID, 2, u"x"_s));
    EXPECT_EQ("a|c|d|x", Shown(*OfAlbum));
    EXPECT_EQ("3:2", Chosen(*OfAlbum));
    EXPECT_EQ("44|22|44|11", Shown(*OfShow));
    EXPECT_EQ("1:2", Chosen(*OfShow));
}

TEST_F(ViewerFollow, ASavedCaptionIsShownInTheShowWhereThatHasNone) {
    Album(Engine).GetSlideShow(ShowID)->Details[2]->SlideText.clear();
    OfShow->Unload();
    OfShow = ViewShow(Engine, *Album(Engine).GetSlideShow(ShowID));
    EXPECT_EQ("44|22|d|11", Shown(*OfShow));
    Choose(1, 2);
    Do(Door.SaveCaption(AlbumID, 4, u"Dahlias"_s));
    EXPECT_EQ("44|22|Dahlias|11", Shown(*OfShow));
    EXPECT_EQ("2:4", Chosen(*OfShow));
}

TEST_F(ViewerFollow, ANewSlideComesIntoTheAlbumAlone) {
    clsNEBSlide Slide;
    Slide.SlideText = u"bb"_s;
    Do(Door.SaveSlide(AlbumID, Slide));
    EXPECT_EQ("a|b|bb|c|d", Shown(*OfAlbum));
    EXPECT_EQ("44|22|44|11", Shown(*OfShow));
}

TEST_F(ViewerFollow, AnotherPictureOfASlideIsShownInEveryRow) {
    const QRgb Before = ColourIn(*OfShow, 0);
    MakePicture(PicturePath(Engine, 4), 60, 40, Qt::blue);
    DeleteFile(SmallPath(Engine, 4));
    Buffer.ClearAlbum(AlbumID);
    Do(Door.SaveSlide(AlbumID, *Album(Engine).GetSlide(4)));
    for (const int Row : {0, 2}) {
        EXPECT_NE(Before, ColourIn(*OfShow, Row));
        EXPECT_GT(qBlue(ColourIn(*OfShow, Row)), 200);
    }
    EXPECT_GT(qBlue(ColourIn(*OfAlbum, 3)), 200);
    EXPECT_GT(qRed(ColourIn(*OfShow, 1)), 200) << "the others stay";
    EXPECT_EQ("44|22|44|11", Shown(*OfShow));
}

TEST_F(ViewerFollow, ADeletedSlideLeavesTheRowsAndNoBoxComesUp) {
    Choose(3, 2);
    Do(Door.DeleteSlide(AlbumID, 4));
    EXPECT_EQ("a|b|c", Shown(*OfAlbum));
    EXPECT_EQ("2:3", Chosen(*OfAlbum)) << "the one that has come to its place";
    EXPECT_EQ("22|11", Shown(*OfShow));
    Do(Door.RenameAlbum(AlbumID, u"Park"_s));
    EXPECT_EQ("22|11", Shown(*OfShow)) << "though the show has places for it";
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(ViewerFollow, TheLastSlidesThatGoLeaveAnEmptyAlbum) {
    for (const std::int32_t SlideID : {1, 2, 3, 4}) Do(Door.DeleteSlide(AlbumID, SlideID));
    const QImage Emptied = GridOf(*OfAlbum).grab().toImage();
    Do(Door.DeleteAlbum(AlbumID));
    EXPECT_NE(Emptied, GridOf(*OfAlbum).grab().toImage()) << "it has gone: another text";
}

TEST_F(ViewerFollow, ADeletedAlbumEmptiesBoth) {
    Do(Door.DeleteAlbum(AlbumID));
    EXPECT_EQ(0, GridOf(*OfAlbum).Rows());
    EXPECT_EQ(0, GridOf(*OfShow).Rows());
    EXPECT_TRUE(OfAlbum->isVisible() && OfShow->isVisible());
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(ViewerFollow, ADeletedShowEmptiesItsOwnViewerAlone) {
    Do(Door.DeleteShow(AlbumID, ShowID));
    EXPECT_EQ("", Shown(*OfShow));
    EXPECT_EQ("a|b|c|d", Shown(*OfAlbum));
}

TEST_F(ViewerFollow, AReplacedShowIsShownAnewUnderItsNewName) {
    Choose(0, 1);
    clsNEBSlideShow Show;
    Show.SlideShowID = ShowID;
    Show.SlideShowName = u"Autumn"_s;
    Show.SaveDetail(3, 1, u"first"_s);
    Show.SaveDetail(2, 2, u"second"_s);
    Do(Door.SaveShow(AlbumID, std::move(Show)));
    EXPECT_EQ("first|second", Shown(*OfShow));
    EXPECT_EQ("Slide Show [:Garden:Autumn]", TitleOf(*OfShow));
    EXPECT_EQ("1:2", Chosen(*OfShow));
}

TEST_F(ViewerFollow, WhatChangesElsewhereLeavesThemAlone) {
    const std::int32_t Second = MakeAlbum(u"Sea"_s);
    clsNEBSlideShow& Another = AddShow(Engine, u"Winter"_s);
    GridOf(*OfAlbum).SetTextMatrix(0, ColText, u"untouched"_s);
    GridOf(*OfShow).SetTextMatrix(0, ColText, u"untouched"_s);
    Do(Door.RenameAlbum(Second, u"Ocean"_s));
    Do(Door.DeleteAlbum(Second));
    EXPECT_EQ(0u, Shown(*OfAlbum).find("untouched"));
    Do(Door.DeleteShow(AlbumID, Another.SlideShowID));
    EXPECT_EQ(0u, Shown(*OfAlbum).find("untouched"));
    EXPECT_EQ(0u, Shown(*OfShow).find("untouched"));
}

TEST_F(ViewerFollow, AnAlbumOfAnotherDatabaseUnderTheSameNumberStaysAsItIs) {
    AddSlides(Other, {u"theirs"_s});
    ASSERT_EQ(AlbumID, OtherID);
    const auto Theirs = ViewAlbum(Other);
    Do(Door.DeleteAlbum(AlbumID));
    EXPECT_EQ("theirs", Shown(*Theirs));
}

TEST_F(ViewerFollow, ChangesDuringAFillAreFollowedWhenItIsOver) {
    for (const auto& Each :
         {std::shared_ptr<ViewerForm>(OfAlbum), std::shared_ptr<ViewerForm>(OfShow)})
        Each->Unload();
    AtValue(2, [&] {
        Do(Door.RenameAlbum(AlbumID, u"Park"_s));
        Do(Door.DeleteSlide(AlbumID, 1));
        Do(Door.SaveCaption(AlbumID, 2, u"z"_s));
    });
    OfAlbum = ViewAlbum(Engine);
    EXPECT_EQ("c|d|z", Shown(*OfAlbum));
    EXPECT_EQ("Album [:Park]", TitleOf(*OfAlbum));
    EXPECT_EQ(nullptr, harness::Open<frmLoading>());
}

TEST_F(ViewerFollow, AnAlbumDeletedDuringAFillLeavesNoRows) {
    OfAlbum->Unload();
    AtValue(2, [&] { Do(Door.DeleteAlbum(AlbumID)); });
    OfAlbum = ViewAlbum(Engine);
    EXPECT_EQ(0, GridOf(*OfAlbum).Rows());
}

TEST_F(ViewerFollow, AThousandSlidesDeletedOneByOneAreFollowedInNoTime) {
    std::int32_t SlideID = 0;
    const QString Far = MakePicture(Pics / u"far.jpg"_s);
    for (int I = 0; I < 1000; ++I) {
        SlideID = 0;
        Album(Engine).SaveSlide2(SlideID, u"n"_s, Far, {}, false, false, Engine);
    }
    OfAlbum->Unload();
    OfAlbum = ViewAlbum(Engine);
    ASSERT_EQ(1004, GridOf(*OfAlbum).Rows());
    int Fills = 0;
    WhenOpen<frmLoading>([&](frmLoading&) { ++Fills; });
    for (std::int32_t Each = SlideID; Each > SlideID - 1000; --Each)
        Do(Door.DeleteSlide(AlbumID, Each));
    EXPECT_EQ("a|b|c|d", Shown(*OfAlbum));
    EXPECT_EQ(0, Fills) << "without a fill for each";
}

}  // namespace
}  // namespace neb
