// How a slide manager follows what is done in other windows: two of them on one album, and the
// import beside them.
#include "SlideRig.h"
#include "windows/import/frmDirSelect.h"

namespace neb {
namespace {

using namespace harness;

class SlideDBMFollow : public SlideRig {
  protected:
    // Two windows on one slide; W is the second, in which the steps are done.
    void OpenTwo(std::int32_t ID) {
        First = &OpenSlide(ID);
        OpenSlide(ID);
    }
    // Runs checks and steps in the first window.
    void InFirst(const std::function<void()>& Do) {
        frmSlideDBM* Second = std::exchange(W, First);
        Do();
        W = Second;
    }
    void DeleteHere() {
        Boxes.Expect(
            u"Are you sure you want to delete the selected slide defintion?\n"
            "WARNING: If you procede the slide will be deleted from all\n"
            "Slide Shows that use it?"_s,
            BoxAnswer::Yes);
        Boxes.Expect(u"Slide Deleted Successfully."_s);
        Push("cmdDelete");
    }
    void Send(const char* EventType, const EventKeys& Keys) {
        BroadcastEvent(u"Album"_s, QString::fromLatin1(EventType), nullptr, Keys);
    }
    void DeleteAlbum(std::int32_t ID) {
        DropAlbum(Engine, ID);
        Send("Delete", {ID});
    }
    frmSlideDBM* First = nullptr;
};

TEST_F(SlideDBMFollow, AChangedSlideIsShownAsItIsNow) {
    OpenTwo(AddSlide(u"a"_s));
    Type(u"changed"_s);
    Push("cmdRotate1");
    Push("cmdSave");
    InFirst([&] {
        EXPECT_EQ("changed", Text());
        EXPECT_EQ(QSize(30, 40), Shown().size());
        EXPECT_EQ("000001 changed", Box("cboSlides").currentText().toStdString());
        EXPECT_FALSE(Dirty());
    });
}

TEST_F(SlideDBMFollow, ANewSlideComesIntoTheListAndTheChoiceStays) {
    const auto ID = AddSlide(u"b"_s);
    OpenTwo(ID);
    Push("cmdNew");
    PickPicture(MakePicture(Pics / u"a.png"_s));
    Type(u"a"_s);
    Push("cmdSave");
    InFirst([&] {
        EXPECT_EQ(3, Box("cboSlides").count());
        EXPECT_EQ(ID, Chosen());
        EXPECT_EQ(2, Index());
        EXPECT_EQ("b", Text());
    });
}

TEST_F(SlideDBMFollow, ChangesOfTheUsersOwnStayWhenOthersSave) {
    const auto ID = AddSlide(u"a"_s), Other = AddSlide(u"b"_s);
    OpenTwo(ID);
    InFirst([&] { Type(u"mine"_s); });
    Choose("cboSlides", Other);
    Type(u"0"_s);
    Push("cmdSave");
    InFirst([&] {
        EXPECT_EQ("mine", Text());
        EXPECT_TRUE(Dirty());
        EXPECT_EQ(ID, Chosen());
        EXPECT_EQ("000002 0", Box("cboSlides").itemText(1).toStdString());
        Push("cmdSave");
    });
    EXPECT_EQ("mine", Slide(ID).SlideText.toStdString());
}

TEST_F(SlideDBMFollow, ASlideOfAnotherAlbumIsNoConcern) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    Slide(ID).SlideText = u"unseen"_s;
    Send("Add Slides", {AlbumID + 1, 1});
    Send("Delete Slides", {AlbumID + 1, ID});
    BroadcastEvent(u"Slide Show"_s, u"Delete"_s, nullptr, {AlbumID, ID});
    BroadcastEvent(u"album"_s, u"Delete"_s, nullptr, {AlbumID, ID});
    EXPECT_EQ("a", Text());
    EXPECT_EQ(2, Box("cboSlides").count());
}

TEST_F(SlideDBMFollow, ADeletedSlideOnViewIsCleared) {
    OpenTwo(AddSlide(u"a"_s));
    DeleteHere();
    InFirst([&] {
        EXPECT_EQ(-1, Index());
        EXPECT_EQ(1, Box("cboSlides").count());
        EXPECT_EQ("", Text());
        EXPECT_TRUE(ShowsMessage());
        EXPECT_FALSE(IsOn("cmdDelete"));
        Push("cmdNext");
        EXPECT_EQ(-1, Index());
    });
}

TEST_F(SlideDBMFollow, AnotherDeletedSlideLeavesTheListAlone) {
    const auto ID = AddSlide(u"b"_s), Other = AddSlide(u"a"_s);
    OpenTwo(ID);
    InFirst([&] { Type(u"mine"_s); });
    Choose("cboSlides", Other);
    DeleteHere();
    InFirst([&] {
        EXPECT_EQ(ID, Chosen());
        EXPECT_EQ(2, Box("cboSlides").count());
        EXPECT_EQ("mine", Text());
        EXPECT_TRUE(Dirty());
    });
}

TEST_F(SlideDBMFollow, ChangesToASlideThatWasDeletedCanBeSavedAsANewOne) {
    OpenTwo(AddSlide(u"a"_s));
    InFirst([&] {
        PickPicture(MakePicture(Pics / u"mine.png"_s, 50, 20));
        Type(u"mine"_s);
    });
    DeleteHere();
    InFirst([&] {
        EXPECT_EQ("mine", Text());
        EXPECT_TRUE(Dirty());
        Push("cmdSave");
    });
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ("mine", Slide(2).SlideText.toStdString());
    EXPECT_EQ(QSize(50, 20), SizeOf(Stored(u"00000002.jpg"_s)));
}

TEST_F(SlideDBMFollow, ATurnedSlideThatWasDeletedCanBeSavedAsANewOne) {
    OpenTwo(AddSlide(u"a"_s));
    InFirst([&] { Push("cmdRotate1"); });
    DeleteHere();
    InFirst([&] {
        EXPECT_EQ(QSize(30, 40), Shown().size());
        Push("cmdSave");
        EXPECT_FALSE(Dirty());
    });
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ("a", Slide(2).SlideText.toStdString());
    EXPECT_EQ("00000002.JPG", Slide(2).SlideLoc.toStdString());
    EXPECT_EQ(QSize(30, 40), SizeOf(Stored(u"00000002.jpg"_s)));
}

TEST_F(SlideDBMFollow, ATurnedSlideThatWasDeletedIsKeptWhenTheDiskIsFullAtFirst) {
    OpenTwo(AddSlide(u"a"_s));
    InFirst([&] { Push("cmdRotate1"); });
    DeleteHere();
    SetHostWatcher([](HostStep Step, const QString& Path, qint64& Length) {
        if (Step == HostStep::Write && Path.contains(u".jpg"_s)) Length = 1;
    });
    Boxes.Expect(
        u"The file cannot be written. (no space left on device)\n"_s + Stored(u"00000002.jpg"_s),
        u"Operation Failed"_s);
    InFirst([&] { Push("cmdSave"); });
    SetHostWatcher({});
    InFirst([&] { Push("cmdSave"); });
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ(QSize(30, 40), SizeOf(Stored(u"00000002.jpg"_s)));
}

TEST_F(SlideDBMFollow, ATurnedSlideOfADeletedAlbumCanGoIntoAnother) {
    const auto Other = MakeAlbum(u"Other"_s);
    OpenSlide(AddSlide(u"a"_s));
    Push("cmdRotate1");
    DeleteAlbum(AlbumID);
    ExpectDiscard(BoxAnswer::Cancel);
    Choose("cboAlbum", Other);
    Push("cmdSave");
    AlbumID = Other;
    ASSERT_EQ(1u, Album().Slides.size());
    EXPECT_EQ(QSize(30, 40), SizeOf(Stored(Album().Slides[0]->SlideLoc)));
}

TEST_F(SlideDBMFollow, ADeletedAlbumLeavesNothingChosen) {
    const auto Other = MakeAlbum(u"Other"_s);
    OpenSlide(AddSlide(u"a"_s));
    DeleteAlbum(AlbumID);
    EXPECT_EQ(-1, Box("cboAlbum").currentIndex());
    EXPECT_EQ(1, Box("cboAlbum").count());
    EXPECT_EQ(0, Box("cboSlides").count());
    EXPECT_EQ("Slide Manager", W->windowTitle().toStdString());
    EXPECT_EQ("", Text());
    Choose("cboAlbum", Other);
    DeleteAlbum(Other);
    EXPECT_EQ(0, Box("cboAlbum").count());
    EXPECT_EQ("Slide Manager", W->windowTitle().toStdString());
}

TEST_F(SlideDBMFollow, AnotherDeletedAlbumLeavesTheListAlone) {
    const auto Other = MakeAlbum(u"Another"_s);
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    Type(u"mine"_s);
    DeleteAlbum(Other);
    EXPECT_EQ(1, Box("cboAlbum").count());
    EXPECT_EQ(AlbumID, Chosen("cboAlbum"));
    EXPECT_EQ(ID, Chosen());
    EXPECT_EQ("mine", Text());
}

TEST_F(SlideDBMFollow, ChangesInAnAlbumThatWasDeletedCanGoIntoAnother) {
    const auto Other = MakeAlbum(u"Other"_s);
    OpenSlide(AddSlide(u"a"_s));
    PickPicture(MakePicture(Pics / u"mine.png"_s, 50, 20));
    Type(u"mine"_s);
    DeleteAlbum(AlbumID);
    EXPECT_EQ("mine", Text());
    EXPECT_EQ(QSize(50, 20), Shown().size());
    Boxes.Expect(u"Could not find the album."_s);
    Push("cmdSave");
    ExpectDiscard(BoxAnswer::Cancel);
    Choose("cboAlbum", Other);
    EXPECT_EQ(Other, Chosen("cboAlbum"));
    EXPECT_EQ(0, Index());
    EXPECT_EQ("mine", Text());
    Push("cmdSave");
    const auto& Kept = Engine.GetAlbum(Other)->Slides;
    ASSERT_EQ(1u, Kept.size());
    EXPECT_EQ("mine", Kept[0]->SlideText.toStdString());
    AlbumID = Other;
    EXPECT_EQ(QSize(50, 20), SizeOf(Stored(Kept[0]->SlideLoc)));
}

TEST_F(SlideDBMFollow, ANewAlbumAndANewNameComeIntoTheList) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    const auto New = MakeAlbum(u"A new one"_s);
    Send("Insert", {New});
    EXPECT_EQ(2, Box("cboAlbum").count());
    EXPECT_EQ(AlbumID, Chosen("cboAlbum"));
    EXPECT_EQ(ID, Chosen());
    Type(u"mine"_s);
    ASSERT_TRUE(Engine.SaveAlbum(AlbumID, u"Zoo"_s));
    Send("Update", {AlbumID});
    EXPECT_EQ("Slide Manager - Zoo", W->windowTitle().toStdString());
    EXPECT_EQ("Zoo", Box("cboAlbum").currentText().toStdString());
    EXPECT_EQ(ID, Chosen());
    EXPECT_EQ("mine", Text());
    EXPECT_TRUE(Dirty());
}

TEST_F(SlideDBMFollow, AnAlbumThatWasReplacedAsAWholeIsShownAsItIsNow) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    Engine.ClearAlbumData(Album());
    AddSlide(u"from elsewhere"_s);
    Send("Update", {AlbumID});
    EXPECT_EQ(2, Box("cboSlides").count());
    EXPECT_EQ("000002 from elsewhere", Box("cboSlides").itemText(1).toStdString());
    EXPECT_EQ(0, Index());
    EXPECT_EQ("", Text());
}

TEST_F(SlideDBMFollow, NothingIsAskedOrToldMeanwhile) {
    const auto ID = AddSlide(u"a"_s);
    OpenSlide(ID);
    DeleteFile(Stored(u"00000001.jpg"_s));
    Send("Add Slides", {AlbumID, 0});
    EXPECT_TRUE(ShowsMessage());
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(SlideDBMFollow, TheImportAsksForAnAlbumFirst) {
    OpenWindow();
    Boxes.Expect(u"You must first select an album to import into."_s, u"Missing User Input"_s,
                 BoxIcon::Information, BoxAnswer::Ok);
    In<QAction>(*W, "mnuImport").trigger();
}

TEST_F(SlideDBMFollow, TheImportRefusesTheFolderOfTheAlbums) {
    OpenAlbum();
    WriteFile(App / u"DS.ini"_s, (Db / u"Albums"_s).toUtf8() + '\n');
    WhenOpen<frmDirSelect>([](frmDirSelect& Selector) { Press(Selector, "cmdSelect"); });
    Boxes.Expect(u"This directory is reserved for Albums.  You cannot import from it."_s);
    In<QAction>(*W, "mnuImport").trigger();
    EXPECT_FALSE(Open<frmImportFilter>());
}

TEST_F(SlideDBMFollow, TheImportBringsThePicturesOfADirectoryIntoTheAlbum) {
    MakePictures(2);
    MakePicture(Pics / u"below/c.jpg"_s);
    OpenAlbum();
    WriteFile(App / u"DS.ini"_s, Pics.Path().toUtf8() + '\n');
    WhenOpen<frmDirSelect>([](frmDirSelect& Selector) {
        In<QCheckBox>(Selector, "chkRecurseDir").click();
        Press(Selector, "cmdSelect");
    });
    WhenOpen<frmImportFilter>([](frmImportFilter& Filter) {
        EXPECT_EQ("Picture Import Filter - Garden", Filter.windowTitle().toStdString());
        EXPECT_TRUE(Filter.isModal());
        Press(Filter, "cmdMoveRightAll");
        Press(Filter, "cmdImport");
    });
    Boxes.Expect(u"3 slides successfully imported."_s);
    In<QAction>(*W, "mnuImport").trigger();
    EXPECT_EQ(3u, Album().Slides.size());
    EXPECT_EQ(4, Box("cboSlides").count());
    EXPECT_EQ(0, Index());
}

TEST_F(SlideDBMFollow, ACancelledImportChangesNothing) {
    OpenAlbum();
    WhenOpen<frmDirSelect>([](frmDirSelect& Selector) { Press(Selector, "cmdCancel"); });
    In<QAction>(*W, "mnuImport").trigger();
    EXPECT_TRUE(Album().Slides.empty());
}

}  // namespace
}  // namespace neb
