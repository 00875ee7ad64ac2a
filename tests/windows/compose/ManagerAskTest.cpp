// What the slide show manager asks before a show that was composed would go.
#include "ManagerRig.h"

namespace neb {
namespace {

using namespace harness;

class ManagerAsks : public ManagerRig {
  protected:
    // A show of a and b to which c is added, and another one of e.
    void OpenChanged() {
        Walk = OpenGarden({1, 2});
        Alley = AddShow(u"Alley"_s, {5});
        Tell(u"Slide Show"_s, u"Insert"_s, {AlbumID, Alley});
        Add();
    }
    void Add() {
        Pick(Left(), {0});
        Push("cmdMoveRightOne");
        EXPECT_EQ("d|e / a|b|c", Lists());
    }
    static constexpr const char* Before = "Walk 0 1:1[] 2:2[]";
    static constexpr const char* After = "Walk 0 1:1[] 2:2[] 3:3[]";
    std::int32_t Walk = 0, Alley = 0;
};

TEST_F(ManagerAsks, ClosingItKeepsDiscardsOrSaves) {
    OpenChanged();
    ExpectAsk(BoxAnswer::Cancel);
    EXPECT_FALSE(W->close());
    EXPECT_EQ("d|e / a|b|c", Lists());
    ExpectAsk(BoxAnswer::Discard);
    Push("cmdClose");
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(Before, Stored(Walk));
    OpenMgr(AlbumID, Walk);
    Add();
    ExpectAsk(BoxAnswer::Save);
    QTest::keyClick(W, Qt::Key_Escape);
    EXPECT_FALSE(W->IsLoaded());
    EXPECT_EQ(After, Stored(Walk));
}

TEST_F(ManagerAsks, AnotherShowIsShownWhenThisOneHasBeenDealtWith) {
    OpenChanged();
    Boxes.WhileNextIsOpen([&] { EXPECT_EQ(Walk, Chosen()); });
    ExpectAsk(BoxAnswer::Cancel);
    Choose("cboSlideShows", Alley);
    EXPECT_EQ(Walk, Chosen());
    EXPECT_EQ("d|e / a|b|c", Lists());
    ExpectAsk(BoxAnswer::Save);
    Choose("cboSlideShows", Alley);
    EXPECT_EQ(Alley, Chosen());
    EXPECT_EQ("a|b|c|d / e", Lists());
    EXPECT_EQ(After, Stored(Walk));
    EXPECT_EQ("Alley 0 1:5[]", Stored(Alley));
    Push("cmdMoveRightAll");
    ExpectAsk(BoxAnswer::Discard);
    Choose("cboSlideShows", Walk);
    EXPECT_EQ("d|e / a|b|c", Lists());
    EXPECT_EQ("Alley 0 1:5[]", Stored(Alley));
}

TEST_F(ManagerAsks, AnotherAlbumIsShownWhenTheShowHasBeenDealtWith) {
    OpenChanged();
    const std::int32_t Garden = AlbumID;
    AlbumID = MakeAlbum(u"Attic"_s);
    AddAlbumSlides({u"chest"_s});
    const std::int32_t Attic = std::exchange(AlbumID, Garden);
    Tell(u"Album"_s, u"Insert"_s, {Attic});
    ExpectAsk(BoxAnswer::Cancel);
    Choose("cboAlbum", Attic);
    EXPECT_EQ(Garden, Chosen("cboAlbum"));
    EXPECT_EQ(Walk, Chosen());
    EXPECT_EQ("d|e / a|b|c", Lists());
    ExpectAsk(BoxAnswer::Save);
    Choose("cboAlbum", Attic);
    EXPECT_EQ(After, Stored(Walk));
    EXPECT_EQ(Attic, Chosen("cboAlbum"));
    EXPECT_EQ("chest / ", Lists());
    Push("cmdMoveRightAll");
    ExpectAsk(BoxAnswer::Discard);
    Choose("cboAlbum", Garden);
    EXPECT_EQ("a|b|c|d|e / ", Lists());
}

TEST_F(ManagerAsks, ANewShowIsBegunWhenThisOneHasBeenDealtWith) {
    OpenChanged();
    ExpectAsk(BoxAnswer::Cancel);
    Push("cmdNew");
    EXPECT_EQ("d|e / a|b|c", Lists());
    ExpectAsk(BoxAnswer::Save);
    Push("cmdNew");
    EXPECT_EQ(0, Chosen());
    EXPECT_EQ("a|b|c|d|e / ", Lists());
    EXPECT_EQ(After, Stored(Walk));
}

TEST_F(ManagerAsks, ASaveThatIsRefusedKeepsTheWindow) {
    OpenNew();
    Name().setText(u"Empty"_s);
    ExpectAsk(BoxAnswer::Save);
    Boxes.Expect(u"You must select atleast 1 slide for the Slide Show."_s);
    EXPECT_FALSE(W->close());
    EXPECT_EQ("Empty", Name().text().toStdString());
}

TEST_F(ManagerAsks, AShowThatWasDeletedElsewhereCanStillBeSaved) {
    OpenChanged();
    Changes(Engine).DeleteShow(AlbumID, Walk)->Now();
    ExpectAsk(BoxAnswer::Save);
    EXPECT_TRUE(W->close());
    EXPECT_EQ(After, Stored(Album().SlideShows.back()->SlideShowID));
}

TEST_F(ManagerAsks, NothingWhereNothingWouldGo) {
    OpenChanged();
    Push("cmdCancel");
    EXPECT_EQ("c|d|e / a|b", Lists());
    Add();
    SaveWell();
    Changes(Engine).DeleteSlide(AlbumID, 3)->Now();
    Choose("cboSlideShows", Alley);
    EXPECT_EQ("a|b|d / e", Lists());
    Push("cmdMoveRightAll");
    Boxes.Expect(u"Are you sure you want to delete the selected slide show?"_s, BoxAnswer::Yes);
    Boxes.Expect(u"Slide Show Deleted Successfully."_s);
    Push("cmdDelete");
    EXPECT_EQ("a|b|d|e / ", Lists());
    Push("cmdMoveRightAll");
    Changes(Engine).DeleteAlbum(AlbumID)->Now();
    EXPECT_TRUE(W->close());
}

}  // namespace
}  // namespace neb
