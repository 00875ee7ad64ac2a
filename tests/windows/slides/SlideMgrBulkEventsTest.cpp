// Bulk slide managers follow what other windows do: each change with real windows on both sides,
// and what has been typed and not yet saved stays.
#include <algorithm>

#include "BulkRig.h"

namespace neb {
namespace {

using namespace harness;

constexpr auto EventPic = clsImageBuffer::ColPicture;
constexpr auto EventKey = clsImageBuffer::ColSlideID;

class SlideMgrBulkEvents : public BulkRig {
  protected:
    static void Tell(const QString& EventType, const EventKeys& Keys,
                     const QString& ObjectType = u"Album"_s) {
        BroadcastEvent(ObjectType, EventType, nullptr, Keys);
    }
    static QStringList AlbumNames(const Window& Of) {
        QStringList All;
        for (int I = 0; I < AlbumsOf(Of).count(); ++I) All << AlbumsOf(Of).itemText(I);
        return All;
    }
    // How often a loading window opened since.
    void CountFills() {
        SetDoEventsHook([this] {
            const bool Now = Open<frmLoading>() != nullptr;
            mFills += Now && !mWasOpen;
            mWasOpen = Now;
        });
    }
    int mFills = 0;
    bool mWasOpen = false;
};

TEST_F(SlideMgrBulkEvents, ADeleteInOneRemovesTheRowInTheOtherWithoutAFill) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window One = OpenBulk(AlbumID), Other = OpenBulk(AlbumID);
    Edit(Other, 2, u"Rose"_s);
    Edit(Other, 1, u"Gone"_s);
    GridOf(One).SetRow(1);
    int Fills = 0;
    ExpectQuestion(BoxAnswer::Yes);
    Boxes.WhileNextIsOpen([&] {
        EXPECT_EQ("a|Rose", Shown(Other));
        Fills = Open<frmLoading>() ? 1 : 0;
    });
    ExpectDone(u"1 slides successfully deleted."_s);
    Press(*One, "cmdDelete");
    EXPECT_EQ(0, Fills);
    EXPECT_EQ("a|c", Shown(One));
    EXPECT_EQ("a|Rose", Shown(Other));
    SaveExpecting(Other, u"1 slides successfully saved."_s);
    EXPECT_EQ("a|Rose", Shown(One));
}

TEST_F(SlideMgrBulkEvents, CaptionsSavedInOneComeToTheOther) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window One = OpenBulk(AlbumID), Other = OpenBulk(AlbumID);
    GridOf(Other).SetRow(0);
    Edit(Other, 2, u"Cherry"_s);
    GridOf(Other).SetRow(0);
    Edit(One, 0, u"zinnia"_s);
    SaveExpecting(One, u"1 slides successfully saved."_s);
    EXPECT_EQ("b|Cherry|zinnia", Shown(Other)) << "in the order of the captions that are saved";
    EXPECT_EQ(2, GridOf(Other).Row()) << "the slide that was chosen still is";
    EXPECT_TRUE(GridOf(Other).IsSelected(2));
    EXPECT_EQ(1, GridOf(Other).SelectedRows());
    SaveExpecting(Other, u"1 slides successfully saved."_s);
    EXPECT_EQ("zinnia", CaptionInAlbum(1)) << "the second save takes nothing back";
    EXPECT_EQ("Cherry", CaptionInAlbum(3));
}

TEST_F(SlideMgrBulkEvents, ATextInAnOpenEditorSurvivesAChangeFromElsewhere) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    TypeInto(Bulk, 0, u"Rose"_s);
    Album().GetSlide(1)->SlideText = u"other"_s;
    Tell(u"Add Slides"_s, {AlbumID, 1});
    EXPECT_EQ("Rose|b", Shown(Bulk));
    TypeInto(Bulk, 1, u"Tulip"_s);
    Tell(u"Add Slides"_s, {AlbumID, 0});
    EXPECT_EQ("Tulip|Rose", Shown(Bulk));
    TypeInto(Bulk, 0, u"x"_s);
    Album().DeleteSlide(2, Engine);
    Tell(u"Delete Slides"_s, {AlbumID, 2});
    EXPECT_EQ("Rose", Shown(Bulk));
    EXPECT_FALSE(GridOf(Bulk).IsEditing());
}

TEST_F(SlideMgrBulkEvents, AnAddedSlideComesAtTheEndWithItsThumbnail) {
    AddSlides({u"pear"_s, u"quince"_s});
    const Window Bulk = OpenBulk(AlbumID);
    GridOf(Bulk).SetRow(1);
    Edit(Bulk, 0, u"Rose"_s);
    AddSlide(u"apple"_s, Qt::blue);
    CountFills();
    Tell(u"Add Slides"_s, {AlbumID, 3});
    EXPECT_EQ("Rose|quince|apple", Shown(Bulk));
    EXPECT_EQ("1|2|3", Shown(Bulk, EventKey));
    EXPECT_GT(GridOf(Bulk).CellPicture(2, EventPic).pixelColor(36, 36).blue(), 245);
    EXPECT_EQ(0, mFills);
}

TEST_F(SlideMgrBulkEvents, AChangedSlideIsRefreshedInItsPlace) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    Album().GetSlide(1)->SlideText = u"zinnia"_s;
    StorePicture(1, Qt::blue);
    DeleteFile(SlidesFolder(Engine.DBPath(), AlbumID) + ThumbnailName(1));
    Tell(u"Add Slides"_s, {AlbumID, 1});
    EXPECT_EQ("zinnia|b", Shown(Bulk));
    EXPECT_GT(GridOf(Bulk).CellPicture(0, EventPic).pixelColor(36, 36).blue(), 245);
    Tell(u"Add Slides"_s, {AlbumID, 99});
    EXPECT_EQ("zinnia|b", Shown(Bulk));
}

TEST_F(SlideMgrBulkEvents, AnAlbumDeletedElsewhereLeavesTheWindowEmpty) {
    AddSlides({u"a"_s, u"b"_s});
    MakeAlbum(u"Attic"_s);
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"Rose"_s);
    Engine.DeleteAlbum(AlbumID);
    Tell(u"Delete"_s, {AlbumID});
    EXPECT_EQ("Bulk Slide Manager", Title(Bulk));
    EXPECT_EQ(-1, AlbumsOf(Bulk).currentIndex());
    EXPECT_EQ(QStringList(u"Attic"_s), AlbumNames(Bulk));
    EXPECT_EQ(0, GridOf(Bulk).Rows());
    Boxes.Expect(u"You must first select the album changes are to be made to."_s);
    Press(*Bulk, "cmdSave");
    AlbumsOf(Bulk).setCurrentIndex(0);
    EXPECT_EQ("Bulk Slide Manager - Attic", Title(Bulk));
}

TEST_F(SlideMgrBulkEvents, AnAlbumDeletedElsewhereTakesAnOpenEditorWithIt) {
    AddSlides({u"a"_s, u"b"_s});
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    std::int32_t SlideID = 0;
    Engine.GetAlbum(Attic)->SaveSlide2(SlideID, u"z"_s, {}, {}, false, false, Engine);
    const Window Bulk = OpenBulk(AlbumID);
    TypeInto(Bulk, 0, u"Rose"_s);
    Engine.DeleteAlbum(AlbumID);
    Tell(u"Delete"_s, {AlbumID});
    EXPECT_FALSE(GridOf(Bulk).IsEditing());
    EXPECT_EQ(0, GridOf(Bulk).Rows());
    AlbumsOf(Bulk).setCurrentIndex(0);
    EXPECT_EQ("z", Shown(Bulk)) << "what was typed is not for another album";
    Edit(Bulk, 0, u"Zinnia"_s);
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("Zinnia", Engine.GetAlbum(Attic)->GetSlide(SlideID)->SlideText.toStdString());
}

TEST_F(SlideMgrBulkEvents, ATextInAnOpenEditorSurvivesThatAnotherSlideGoes) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    const Window Bulk = OpenBulk(AlbumID);
    TypeInto(Bulk, 1, u"Rose"_s);
    Album().DeleteSlide(1, Engine);
    Tell(u"Delete Slides"_s, {AlbumID, 1});
    Tell(u"Add Slides"_s, {AlbumID, 0});
    EXPECT_EQ("Rose|c", Shown(Bulk));
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("Rose", CaptionInAlbum(2));
    EXPECT_EQ("c", CaptionInAlbum(3));
}

TEST_F(SlideMgrBulkEvents, AnEditorGoesWithItsSlideAndTheNextOneWorks) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    TypeInto(Bulk, 0, u"Rose"_s);
    Album().DeleteSlide(1, Engine);
    Tell(u"Delete Slides"_s, {AlbumID, 1});
    EXPECT_FALSE(GridOf(Bulk).IsEditing());
    EXPECT_EQ("b", Shown(Bulk));
    Edit(Bulk, 0, u"Tulip"_s);
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("Tulip", CaptionInAlbum(2));
}

TEST_F(SlideMgrBulkEvents, AnotherAlbumThatIsDeletedOnlyLeavesTheList) {
    AddSlides({u"a"_s});
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    const Window Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"Rose"_s);
    Engine.DeleteAlbum(Attic);
    Tell(u"Delete"_s, {Attic});
    EXPECT_EQ(QStringList(u"Garden"_s), AlbumNames(Bulk));
    EXPECT_EQ("Bulk Slide Manager - Garden", Title(Bulk));
    EXPECT_EQ("Rose", Shown(Bulk));
}

TEST_F(SlideMgrBulkEvents, NewAndRenamedAlbumsComeIntoTheListAndTheChoiceStays) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    GridOf(Bulk).SetRow(1);
    Edit(Bulk, 1, u"Rose"_s);
    std::int32_t Attic = MakeAlbum(u"Attic"_s);
    CountFills();
    Tell(u"Insert"_s, {Attic});
    EXPECT_EQ((QStringList{u"Attic"_s, u"Garden"_s}), AlbumNames(Bulk));
    ASSERT_TRUE(Engine.SaveAlbum(Attic, u"Roof"_s));
    Tell(u"Update"_s, {Attic});
    EXPECT_EQ((QStringList{u"Garden"_s, u"Roof"_s}), AlbumNames(Bulk));
    EXPECT_EQ(0, mFills);
    ASSERT_TRUE(Engine.SaveAlbum(AlbumID, u"Yard"_s));
    Tell(u"Update"_s, {AlbumID});
    EXPECT_EQ("Bulk Slide Manager - Yard", Title(Bulk));
    EXPECT_EQ(1, AlbumsOf(Bulk).currentIndex());
    EXPECT_EQ("a|Rose", Shown(Bulk));
    EXPECT_EQ(1, GridOf(Bulk).Row());
}

TEST_F(SlideMgrBulkEvents, AnAlbumWhoseContentsWereReplacedIsShownAnew) {
    AddSlides({u"a"_s, u"b"_s});
    const Window Bulk = OpenBulk(AlbumID);
    ASSERT_TRUE(Engine.ClearAlbumData(Album()));
    AddSlides({u"new"_s});
    Buffer.ClearAlbum(AlbumID);
    Tell(u"Update"_s, {AlbumID});
    EXPECT_EQ("new", Shown(Bulk));
    EXPECT_EQ("3", Shown(Bulk, EventKey));
}

TEST_F(SlideMgrBulkEvents, WhatConcernsOthersIsPassedOver) {
    AddSlides({u"a"_s});
    const std::int32_t Attic = MakeAlbum(u"Attic"_s);
    const Window Bulk = OpenBulk(AlbumID);
    Album().GetSlide(1)->SlideText = u"changed"_s;
    CountFills();
    Tell(u"Add Slides"_s, {Attic, 0});
    Tell(u"Add Slides"_s, {Attic, 1});
    Tell(u"Delete Slides"_s, {Attic, 1});
    Tell(u"add slides"_s, {AlbumID, 1});
    Tell(u"Add Slides"_s, {AlbumID, 1}, u"Slide Show"_s);
    Tell(u"Delete"_s, {AlbumID}, u"Slide Show"_s);
    EXPECT_EQ("a", Shown(Bulk));
    EXPECT_EQ(0, mFills);
}

TEST_F(SlideMgrBulkEvents, AnAlbumDeletedDuringTheFillLeavesTheWindowEmpty) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    AtValue(33, [this] {
        Engine.DeleteAlbum(AlbumID);
        Tell(u"Delete"_s, {AlbumID});
    });
    const Window Bulk = OpenBulk(AlbumID);
    EXPECT_EQ(0, GridOf(Bulk).Rows());
    EXPECT_TRUE(GridOf(Bulk).Redraw());
    EXPECT_EQ("Bulk Slide Manager", Title(Bulk));
}

TEST_F(SlideMgrBulkEvents, SlidesThatChangeDuringTheFillAreShownOnceAndAsTheyAre) {
    AddSlides({u"a"_s, u"b"_s, u"c"_s});
    AtValue(66, [this] {
        Album().DeleteSlide(2, Engine);
        Tell(u"Delete Slides"_s, {AlbumID, 2});
        AddSlide(u"d"_s);
        Tell(u"Add Slides"_s, {AlbumID, 4});
        Album().GetSlide(3)->SlideText = u"e"_s;
        Tell(u"Add Slides"_s, {AlbumID, 0});
    });
    const Window Bulk = OpenBulk(AlbumID);
    EXPECT_EQ("a|d|e", Shown(Bulk));
    EXPECT_TRUE(GridOf(Bulk).Redraw());
}

}  // namespace
}  // namespace neb
