// Slide show managers follow what other windows do, with real windows on both sides; what has been
// composed and not yet saved stays.
#include "ManagerRig.h"

namespace neb {
namespace {

using namespace harness;

class ManagerFollow : public ManagerRig {
  protected:
    void TellAlbum(const QString& EventType, const EventKeys& Keys) {
        Tell(u"Album"_s, EventType, Keys);
    }
    void TellShow(const QString& EventType, std::int32_t ShowID) {
        Tell(u"Slide Show"_s, EventType, {AlbumID, ShowID});
    }
    FlexGrid& All() { return In<FlexGrid>(*W, "flxBuffer"); }
    void Delete(std::int32_t SlideID) { Album().DeleteSlide(SlideID, Engine); }
};

TEST_F(ManagerFollow, DeletedSlidesLeaveAllThreeGrids) {
    OpenGarden({3, 1, 4});
    PutCaption(1, u"Rose"_s);
    Delete(3);
    Delete(2);
    TellAlbum(u"Delete Slides"_s, {AlbumID, 3});
    EXPECT_EQ("e / Rose|d", Lists());
    EXPECT_EQ("1|2", Places());
    EXPECT_EQ("1/2", Counts());
    EXPECT_EQ("a|d|e", Captions(All()));
}

TEST_F(ManagerFollow, AnAddedSlideComesToTheAlbumsListAndAChangedOneChangesInItsPlace) {
    OpenGarden({1, 2});
    AddSlide(u"f"_s, Qt::blue);
    TellAlbum(u"Add Slides"_s, {AlbumID, 6});
    EXPECT_EQ("c|d|e|f / a|b", Lists());
    EXPECT_EQ("4/2", Counts());
    Album().GetSlide(1)->SlideText = u"anemone"_s;
    Album().GetSlide(3)->SlideText = u"clover"_s;
    StorePicture(1, Qt::blue);
    DeleteFile(SlidesFolder(Engine.DBPath(), AlbumID) + ThumbnailName(1));
    TellAlbum(u"Add Slides"_s, {AlbumID, 1});
    EXPECT_EQ("c|d|e|f / anemone|b", Lists()) << "that slide alone";
    EXPECT_EQ("anemone", Right().TextMatrix(0, ColOwnText).toStdString());
    EXPECT_GT(Right().CellPicture(0, clsImageBuffer::ColPicture).pixelColor(36, 36).blue(), 245);
    TellAlbum(u"Add Slides"_s, {AlbumID, 99});
    TellAlbum(u"Add Slides"_s, {AlbumID});
    EXPECT_EQ("clover|d|e|f / anemone|b", Lists());
}

TEST_F(ManagerFollow, ACaptionOfTheShowsOwnStaysWhenTheSlidesChanges) {
    OpenGarden({1, 2});
    PutCaption(0, u"Rose"_s);
    Begin(Right(), 1, clsImageBuffer::ColText, u"Tulip"_s);
    for (int I = 1; I <= 2; ++I) Album().GetSlide(I)->SlideText = u"new %1"_s.arg(I);
    TellAlbum(u"Add Slides"_s, {AlbumID, 0});
    EXPECT_EQ("Rose|Tulip", Captions(Right()));
    EXPECT_EQ("new 1", Right().TextMatrix(0, ColOwnText).toStdString());
    Pick(Right(), {0});
    Push("cmdMoveLeftOne");
    Album().GetSlide(1)->SlideText = u"newer"_s;
    TellAlbum(u"Add Slides"_s, {AlbumID, 1});
    EXPECT_EQ("c|d|e|Rose / Tulip", Lists()) << "in the other list as well";
}

TEST_F(ManagerFollow, WhatIsSavedInTheBulkManagerComesOver) {
    OpenGarden({1, 2});
    PutCaption(1, u"Rose"_s);
    const auto Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"anemone"_s);
    Edit(Bulk, 1, u"begonia"_s);
    SaveExpecting(Bulk, u"2 slides successfully saved."_s);
    EXPECT_EQ("c|d|e / anemone|Rose", Lists());
    GridOf(Bulk).SetRow(0);
    ExpectQuestion(BoxAnswer::Yes);
    ExpectDone(u"1 slides successfully deleted."_s);
    Press(*Bulk, "cmdDelete");
    EXPECT_EQ("c|d|e / Rose", Lists());
}

TEST_F(ManagerFollow, AnAlbumDeletedElsewhereLeavesTheWindowEmpty) {
    OpenGarden({1, 2});
    MakeAlbum(u"Attic"_s);
    TellAlbum(u"Insert"_s, {2});
    EXPECT_EQ("Attic|Garden", Entries("cboAlbum"));
    EXPECT_EQ("c|d|e / a|b", Lists());
    Engine.DeleteAlbum(AlbumID);
    TellAlbum(u"Delete"_s, {AlbumID});
    EXPECT_EQ("Attic", Entries("cboAlbum"));
    EXPECT_EQ(-1, Combo("cboAlbum").currentIndex());
    EXPECT_EQ("Slide Show Manager", W->windowTitle().toStdString());
    EXPECT_EQ(" / ", Lists());
    EXPECT_EQ("", Entries("cboSlideShows"));
    EXPECT_EQ("", Name().text().toStdString());
    EXPECT_EQ("0/0", Counts());
}

TEST_F(ManagerFollow, AnotherAlbumThatIsDeletedOnlyLeavesTheList) {
    OpenGarden({1, 2});
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    TellAlbum(u"Insert"_s, {Attic});
    Push("cmdMoveRightAll");
    Engine.DeleteAlbum(Attic);
    TellAlbum(u"Delete"_s, {Attic});
    EXPECT_EQ("Garden", Entries("cboAlbum"));
    EXPECT_EQ("Slide Show Manager - Garden", W->windowTitle().toStdString());
    EXPECT_EQ(" / a|b|c|d|e", Lists());
}

TEST_F(ManagerFollow, ARenamedAlbumIsCalledSoAndWhatIsComposedStays) {
    OpenGarden({1, 2});
    Push("cmdMoveRightAll");
    PutCaption(4, u"Rose"_s);
    ASSERT_TRUE(Engine.SaveAlbum(AlbumID, u"Yard"_s));
    TellAlbum(u"Update"_s, {AlbumID});
    EXPECT_EQ("Slide Show Manager - Yard", W->windowTitle().toStdString());
    EXPECT_EQ(" / a|b|c|d|Rose", Lists());
    EXPECT_EQ(1, Chosen());
}

TEST_F(ManagerFollow, AnAlbumWithNewContentsShowsThem) {
    OpenGarden({1, 2});
    Delete(2);
    Delete(3);
    AddSlide(u"f"_s);
    TellAlbum(u"Update"_s, {AlbumID});
    EXPECT_EQ("d|e|f / a", Lists());
    EXPECT_EQ("a|d|e|f", Captions(All()));
}

TEST_F(ManagerFollow, AShowSavedInOneWindowComesToTheListOfTheOther) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Mgr& One = *W;
    OpenMgr(AlbumID, Walk);
    Pick(Left(), {0});
    Push("cmdMoveRightOne");
    W = &One;
    Push("cmdNew");
    Push("cmdMoveRightAll");
    Name().setText(u"Alley"_s);
    SaveWell();
    W = Windows.back().get();
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley|Walk", Entries("cboSlideShows"));
    EXPECT_EQ(Walk, Chosen());
    EXPECT_EQ("d|e / a|b|c", Lists());
}

TEST_F(ManagerFollow, AChangedShowIsShownAsItIsWhereNothingWasTouched) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Mgr& One = *W;
    OpenMgr(AlbumID, Walk);
    Mgr& Touched = OpenMgr(AlbumID, Walk);
    PutCaption(0, u"Rose"_s);
    Mgr& Other = *Windows[1];
    W = &One;
    Push("cmdMoveRightAll");
    Name().setText(u"Alley"_s);
    SaveWell();
    W = &Other;
    EXPECT_EQ(" / a|b|c|d|e", Lists());
    EXPECT_EQ("Alley", Name().text().toStdString());
    W = &Touched;
    EXPECT_EQ("c|d|e / Rose|b", Lists());
    EXPECT_EQ("Walk", Name().text().toStdString());
    EXPECT_EQ(Walk, Chosen());
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley", Entries("cboSlideShows"));
}

TEST_F(ManagerFollow, AShowDeletedElsewhereCanBeSavedAsANewOne) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Mgr& One = *W;
    OpenMgr(AlbumID, Walk);
    PutCaption(0, u"Rose"_s);
    W = &One;
    Boxes.Expect(u"Are you sure you want to delete the selected slide show?"_s, BoxAnswer::Yes);
    Boxes.Expect(u"Slide Show Deleted Successfully."_s);
    Push("cmdDelete");
    W = Windows.back().get();
    EXPECT_EQ("<NEW SLIDE SHOW>", Entries("cboSlideShows"));
    EXPECT_EQ(-1, Combo("cboSlideShows").currentIndex());
    EXPECT_EQ("c|d|e / Rose|b", Lists());
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[Rose] 2:2[]", Stored(2));
    EXPECT_EQ(2, Chosen());
    W = &One;
    EXPECT_EQ("<NEW SLIDE SHOW>|Walk", Entries("cboSlideShows"));
}

TEST_F(ManagerFollow, WindowsOnTwoAlbumsDoNotMeddle) {
    const std::int32_t Walk = OpenGarden({1, 2});
    const std::int32_t Garden = AlbumID;
    Mgr& One = *W;
    AlbumID = MakeAlbum(u"Attic"_s);
    AddAlbumSlides({u"chest"_s, u"trunk"_s});
    OpenNew();
    Push("cmdMoveRightAll");
    Name().setText(u"Walk"_s);
    SaveWell();
    EXPECT_EQ("Walk 0 1:6[] 2:7[]", Stored(2)) << "each album has its own names";
    W = &One;
    EXPECT_EQ("<NEW SLIDE SHOW>|Walk", Entries("cboSlideShows"));
    EXPECT_EQ("c|d|e / a|b", Lists());
    TellAlbum(u"Delete Slides"_s, {2, 1});
    TellShow(u"Delete"_s, Walk);
    EXPECT_EQ(Walk, Chosen());
    AlbumID = Garden;
    PutCaption(0, u"Rose"_s);
    SaveWell();
    W = Windows.back().get();
    EXPECT_EQ(" / chest|trunk", Lists());
    EXPECT_EQ(2, Chosen());
}

TEST_F(ManagerFollow, WhatConcernsOthersIsPassedOver) {
    OpenGarden({1, 2});
    Album().GetSlide(1)->SlideText = u"changed"_s;
    Delete(3);
    AddShow(u"Alley"_s, {1});
    TellAlbum(u"add slides"_s, {AlbumID, 1});
    TellAlbum(u"Add Slides"_s, {7, 1});
    TellAlbum(u"Add Slides"_s, {});
    Tell(u"Slide"_s, u"Add Slides"_s, {AlbumID, 1});
    Tell(u"Slide Show"_s, u"Add Slides"_s, {AlbumID, 1});
    Tell(u"Slide Show"_s, u"Insert"_s, {AlbumID});
    Tell(u"Slide Show"_s, u"Insert"_s, {7, 2});
    EXPECT_EQ("c|d|e / a|b", Lists());
    EXPECT_EQ("<NEW SLIDE SHOW>|Walk", Entries("cboSlideShows"));
}

TEST_F(ManagerFollow, AnAlbumDeletedWhileItIsReadLeavesTheWindowEmpty) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    AtValue(33, [this] {
        Engine.DeleteAlbum(AlbumID);
        TellAlbum(u"Delete"_s, {AlbumID});
    });
    OpenNew();
    EXPECT_EQ(" / ", Lists());
    EXPECT_EQ("Slide Show Manager", W->windowTitle().toStdString());
    EXPECT_TRUE(Left().Redraw());
    EXPECT_EQ("", Entries("cboSlideShows"));
}

TEST_F(ManagerFollow, SlidesThatChangeWhileTheAlbumIsReadAreShownOnceAndAsTheyAre) {
    AddAlbumSlides({u"a"_s, u"b"_s, u"c"_s});
    AtValue(66, [this] {
        Delete(2);
        TellAlbum(u"Delete Slides"_s, {AlbumID, 2});
        AddSlide(u"d"_s);
        TellAlbum(u"Add Slides"_s, {AlbumID, 4});
        Album().GetSlide(1)->SlideText = u"e"_s;
        TellAlbum(u"Add Slides"_s, {AlbumID, 0});
        AddShow(u"Alley"_s, {1});
        TellShow(u"Insert"_s, 1);
    });
    OpenNew();
    EXPECT_EQ("e|c|d / ", Lists());
    EXPECT_EQ("e|c|d", Captions(All()));
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley", Entries("cboSlideShows"));
    EXPECT_EQ(0, Combo("cboSlideShows").currentIndex());
    EXPECT_TRUE(Left().Redraw());
}

}  // namespace
}  // namespace neb
