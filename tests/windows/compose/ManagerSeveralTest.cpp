// Several slide show managers side by side, on one album and on two, and the windows that change an
// album under them: who follows, and what stays as it was composed.
#include "ManagerRig.h"
#include "windows/albums/frmAlbumDelete.h"
#include "windows/albums/frmAlbumRename.h"
#include "windows/albums/modAlbumNames.h"

namespace neb {
namespace {

using namespace harness;

class ManagerSeveral : public ManagerRig {
  protected:
    // The steps that follow are done in that window.
    void In(Mgr& Of) {
        W = &Of;
        Activate(Of);
    }
    static std::string ListsOf(Mgr& Of) {
        return Captions(NonSelected(Of)) + " / " + Captions(Selected(Of));
    }
    void SaveIn(Mgr& Of) {
        In(Of);
        SaveWell();
    }
    void DeleteSlideInSlideManager(std::int32_t SlideID) {
        MakePicture(App / u"NoSlide.bmp"_s, 60, 40, Qt::gray);
        const auto Slides = NewForm<frmSlideDBM>();
        Slides->LoadSlideMgr();
        Activate(*Slides);
        for (const auto& [Box, Data] : {std::pair{"cboAlbum", AlbumID}, {"cboSlides", SlideID}}) {
            auto& Choice = harness::In<QComboBox>(*Slides, Box);
            Choice.setCurrentIndex(Choice.findData(Data));
        }
        Boxes.Expect(
            u"Are you sure you want to delete the selected slide defintion?\n"
            "WARNING: If you procede the slide will be deleted from all\n"
            "Slide Shows that use it?"_s,
            BoxAnswer::Yes);
        Boxes.Expect(u"Slide Deleted Successfully."_s);
        Press(*Slides, "cmdDelete");
        Slides->Unload();
    }
    void DeleteAlbumInItsWindow(std::int32_t Album) {
        Boxes.Expect(
            u"Are you sure you want to delete the selected Album?\n"
            "If you proceed all the slides and slide shows within\nwill be lost."_s,
            BoxAnswer::Yes);
        WhenOpen<frmAlbumDelete>([](frmAlbumDelete& Shown) { Press(Shown, "cmdDelete"); });
        EXPECT_TRUE(ShowDeleteAlbum(Album));
    }
};

TEST_F(ManagerSeveral, AShowFollowsAlthoughACaptionOfTheAlbumChangedBefore) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Mgr& One = *W;
    Mgr& Other = OpenMgr(AlbumID, Walk);
    const auto Bulk = OpenBulk(AlbumID);
    Edit(Bulk, 0, u"anemone"_s);
    SaveExpecting(Bulk, u"1 slides successfully saved."_s);
    EXPECT_EQ("c|d|e / anemone|b", ListsOf(Other));
    In(One);
    Push("cmdMoveRightAll");
    SaveIn(One);
    EXPECT_EQ(" / anemone|b|c|d|e", ListsOf(Other)) << "nothing was composed there";
}

TEST_F(ManagerSeveral, AShowFollowsAlthoughASlideOfItWasDeletedBefore) {
    const std::int32_t Walk = OpenGarden({1, 2, 3});
    Mgr& One = *W;
    Mgr& Other = OpenMgr(AlbumID, Walk);
    DeleteSlideInSlideManager(2);
    EXPECT_EQ("d|e / a|c", ListsOf(Other));
    EXPECT_EQ("d|e / a|c", ListsOf(One));
    In(One);
    Push("cmdMoveRightAll");
    SaveIn(One);
    EXPECT_EQ(" / a|c|d|e", ListsOf(Other)) << "nothing was composed there";
}

TEST_F(ManagerSeveral, SlidesDeletedElsewhereLeaveEveryShowThatIsBeingComposed) {
    const std::int32_t Walk = OpenGarden({1, 2, 3});
    Mgr& One = *W;
    Pick(Right(), {2});
    Push("cmdMoveUp");
    Mgr& Other = OpenMgr(AlbumID);
    Push("cmdMoveRightAll");
    Begin(Right(), 1, clsImageBuffer::ColText, u"Rose"_s);
    DeleteSlideInSlideManager(3);
    EXPECT_EQ("d|e / a|b", ListsOf(One));
    EXPECT_EQ(" / a|Rose|d|e", ListsOf(Other)) << "what was being typed as well";
    SaveIn(One);
    EXPECT_EQ("Walk 0 1:1[] 2:2[]", Stored(Walk));
    In(Other);
    EXPECT_EQ("1|2|3|4", Places());
    Name().setText(u"All"_s);
    SaveWell();
    EXPECT_EQ("All 0 1:1[] 2:2[Rose] 3:4[] 4:5[]", Stored(2));
}

TEST_F(ManagerSeveral, AnAlbumWhoseShowsWereReplacedOffersThoseThatAreThere) {
    const std::int32_t Walk = OpenGarden({1, 2});
    AddShow(u"Alley"_s, {3});
    Album().ClearContents();
    AddAlbumSlides({u"x"_s, u"y"_s});
    const std::int32_t Path = AddShow(u"Path"_s, {7, 6});
    Tell(u"Album"_s, u"Update"_s, {AlbumID});
    EXPECT_EQ("x|y / ", Lists());
    EXPECT_EQ("<NEW SLIDE SHOW>|Path", Entries("cboSlideShows"));
    EXPECT_EQ(-1, Combo("cboSlideShows").currentIndex()) << Walk << " is gone";
    Choose("cboSlideShows", Path);
    EXPECT_EQ(" / y|x", Lists());
}

TEST_F(ManagerSeveral, TwoUsersOfOneShowSaveOneAfterTheOther) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Mgr& One = *W;
    PutCaption(0, u"Rose"_s);
    Mgr& Other = OpenMgr(AlbumID, Walk);
    PutCaption(1, u"Tulip"_s);
    SaveIn(One);
    EXPECT_EQ("Walk 0 1:1[Rose] 2:2[]", Stored(Walk));
    EXPECT_EQ("c|d|e / a|Tulip", ListsOf(Other)) << "what is composed there stays";
    SaveIn(Other);
    EXPECT_EQ("Walk 0 1:1[] 2:2[Tulip]", Stored(Walk));
    EXPECT_EQ("c|d|e / a|Tulip", ListsOf(One)) << "nothing has changed there since the save";
}

TEST_F(ManagerSeveral, ARenamedShowIsCalledSoInTheOtherLists) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Mgr& One = *W;
    Mgr& Other = OpenMgr(AlbumID, Walk);
    Mgr& New = OpenMgr(AlbumID);
    Push("cmdMoveRightAll");
    Name().setText(u"Alley"_s);
    In(One);
    Name().setText(u"Alley"_s);
    SaveIn(One);
    In(Other);
    EXPECT_EQ("Alley", Name().text().toStdString());
    EXPECT_EQ("Alley", Combo("cboSlideShows").currentText().toStdString());
    In(New);
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley", Entries("cboSlideShows"));
    EXPECT_EQ(0, Combo("cboSlideShows").currentIndex());
    Boxes.Expect(u"A Slide Show with this name already exists in this Album."_s);
    Push("cmdSave");
    EXPECT_EQ(" / a|b|c|d|e", Lists());
    Name().setText(u"Walk"_s);
    SaveWell();
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley|Walk", Entries("cboSlideShows"));
    In(Other);
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley|Walk", Entries("cboSlideShows"));
    EXPECT_EQ(Walk, Chosen());
}

TEST_F(ManagerSeveral, AShowThatWasDeletedElsewhereLeavesTheOtherListsAndWhatTheyHold) {
    const std::int32_t Walk = OpenGarden({1, 2});
    AddShow(u"Alley"_s, {3});
    Mgr& One = *W;
    Mgr& Other = OpenMgr(AlbumID, 2);
    Mgr& Same = OpenMgr(AlbumID, Walk);
    Begin(Right(), 1, clsImageBuffer::ColText, u"Rose"_s);
    In(One);
    Boxes.Expect(u"Are you sure you want to delete the selected slide show?"_s, BoxAnswer::Yes);
    Boxes.Expect(u"Slide Show Deleted Successfully."_s);
    Push("cmdDelete");
    In(Other);
    EXPECT_EQ("<NEW SLIDE SHOW>|Alley", Entries("cboSlideShows"));
    EXPECT_EQ(2, Chosen());
    EXPECT_EQ("a|b|d|e / c", Lists());
    In(Same);
    EXPECT_EQ(-1, Combo("cboSlideShows").currentIndex());
    EXPECT_EQ("c|d|e / a|Rose", Lists());
    EXPECT_EQ("Walk", Name().text().toStdString());
}

TEST_F(ManagerSeveral, AnAlbumIsDeletedWhileShowsOfItAreBeingComposed) {
    const std::int32_t Walk = OpenGarden({1, 2});
    const std::int32_t Garden = AlbumID;
    Mgr& Typing = *W;
    Begin(Right(), 0, clsImageBuffer::ColText, u"Rose"_s);
    Mgr& New = OpenMgr(Garden);
    Push("cmdMoveRightAll");
    SetTrack(0, {u"1"_s, u"2"_s, {}, {}, {}, MakeSound(u"a.wav"_s)});
    Begin(Tracks(), 1, TrackList::ColFile, u"/music/b.wav"_s);
    AlbumID = MakeAlbum(u"Attic"_s);
    AddAlbumSlides({u"chest"_s});
    Tell(u"Album"_s, u"Insert"_s, {AlbumID});
    Mgr& Attic = OpenMgr(AlbumID);
    Push("cmdMoveRightAll");
    PutCaption(0, u"trunk"_s);
    DeleteAlbumInItsWindow(Garden);
    EXPECT_EQ(" / trunk", ListsOf(Attic)) << "another album";
    EXPECT_EQ("Attic", Entries("cboAlbum"));
    for (Mgr* Each : {&Typing, &New}) {
        In(*Each);
        EXPECT_EQ("Slide Show Manager", W->windowTitle().toStdString());
        EXPECT_EQ(" / ", Lists());
        EXPECT_EQ("0/0", Counts());
        EXPECT_EQ("", TrackCells());
        EXPECT_EQ("", Entries("cboSlideShows"));
        EXPECT_FALSE(Right().IsEditing() || Tracks().IsEditing());
        Boxes.Expect(u"You must first select an album to save the slide show in."_s);
        Push("cmdSave");
        Choose("cboAlbum", AlbumID);
        EXPECT_EQ("chest / ", Lists());
    }
    EXPECT_EQ("none", Stored(Walk));
}

TEST_F(ManagerSeveral, ARenamedAlbumIsCalledSoInAllOfThemAndNothingComposedIsLost) {
    const std::int32_t Walk = OpenGarden({1, 2});
    Mgr& One = *W;
    Begin(Right(), 1, clsImageBuffer::ColText, u"Rose"_s);
    Mgr& Other = OpenMgr(AlbumID);
    Push("cmdMoveRightAll");
    Name().setText(u"Alley"_s);
    Mgr& None = OpenMgr(0);
    WhenOpen<frmAlbumRename>([](frmAlbumRename& Shown) {
        harness::In<QLineEdit>(Shown, "txtAlbumName").setText(u"Yard"_s);
        Press(Shown, "cmdSave");
    });
    EXPECT_TRUE(ShowRenameAlbum(AlbumID));
    EXPECT_EQ("Slide Show Manager - Yard", One.windowTitle().toStdString());
    EXPECT_EQ("c|d|e / a|Rose", ListsOf(One));
    EXPECT_EQ("Slide Show Manager - Yard", Other.windowTitle().toStdString());
    EXPECT_EQ(" / a|b|c|d|e", ListsOf(Other));
    In(None);
    EXPECT_EQ("Yard", Entries("cboAlbum"));
    EXPECT_EQ(-1, Combo("cboAlbum").currentIndex());
    In(One);
    EXPECT_EQ(Walk, Chosen());
    SaveIn(One);
    In(Other);
    EXPECT_EQ("Alley", Name().text().toStdString());
    SaveWell();
    EXPECT_EQ("Walk 0 1:1[] 2:2[Rose]", Stored(Walk));
    EXPECT_EQ("Alley 0 1:1[] 2:2[] 3:3[] 4:4[] 5:5[]", Stored(2));
}

}  // namespace
}  // namespace neb
