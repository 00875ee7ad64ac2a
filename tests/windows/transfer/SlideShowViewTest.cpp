// The viewer of slide shows, where it is not the viewer of albums: the order and the captions of
// the show, and what it says of details that lead nowhere.
#include "ViewRig.h"

namespace neb {
namespace {

using namespace harness;

class SlideShowView : public ViewRig {
  protected:
    // A show of these slides in this order, each with the caption "n".
    clsNEBSlideShow& ShowOf(clsDBEngine& In, const std::vector<std::int32_t>& SlideIDs) {
        clsNEBSlideShow& Show = AddShow(In, u"Spring"_s);
        for (std::int32_t SlideID : SlideIDs) {
            const auto Seq = static_cast<std::int32_t>(Show.Details.size()) + 1;
            Show.SaveDetail(SlideID, Seq, QString::number(Seq));
        }
        return Show;
    }
    void ExpectNoSlide(int Number) {
        Boxes.Expect(u"Could not find the Slide for Slide Show Detail #%1"_s.arg(Number), QString(),
                     BoxIcon::Plain, BoxAnswer::Ok);
    }
    void ExpectNoDetail(int Number) {
        Boxes.Expect(u"Could not find Slide Show Detail #%1"_s.arg(Number), QString(),
                     BoxIcon::Plain, BoxAnswer::Ok);
    }
};

TEST_F(SlideShowView, ListsTheShowInItsOrderWithItsOwnCaptions) {
    for (clsDBEngine* Each : {&Engine, &Other}) {
        AddSlides(*Each, {u"a"_s, u"b"_s, u"c"_s});
        clsNEBSlideShow& Show = AddShow(*Each, u"Spring"_s);
        Show.SaveDetail(1, 30, u"last"_s);
        Show.SaveDetail(3, 10, u"first"_s);
        Show.SaveDetail(2, 20, {});
        const auto View = ViewShow(*Each, Show);
        EXPECT_EQ(("Slide Show [" + Each->DBPath() + ':' + Album(*Each).AlbumName + ":Spring]")
                      .toStdString(),
                  View->windowTitle().toStdString());
        EXPECT_EQ("first|b|last", Shown(*View));
        EXPECT_EQ("3|2|1", Shown(*View, ColKey));
        EXPECT_EQ(PicturePath(*Each, 3).toStdString(),
                  GridOf(*View).TextMatrix(0, ColFile).toStdString());
        for (int Row = 0; Row < 3; ++Row) EXPECT_FALSE(IsBlank(*View, Row));
        EXPECT_TRUE(View->isVisible());
    }
}

TEST_F(SlideShowView, ASlideThatIsShownTwiceHasTwoRows) {
    for (clsDBEngine* Each : {&Engine, &Other}) {
        AddSlides(*Each, {u"a"_s, u"b"_s});
        const auto View = ViewShow(*Each, ShowOf(*Each, {1, 2, 1}));
        EXPECT_EQ("1|2|3", Shown(*View));
        EXPECT_EQ("1|2|1", Shown(*View, ColKey));
        EXPECT_FALSE(IsBlank(*View, 2));
    }
}

TEST_F(SlideShowView, SaysWhichDetailsLeadToNoSlideAndListsTheOthers) {
    for (clsDBEngine* Each : {&Engine, &Other}) {
        AddSlides(*Each, {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        clsNEBSlideShow& Show = ShowOf(*Each, {1, 2, 3, 4});
        Album(*Each).DeleteSlide(2, *Each);
        Album(*Each).DeleteSlide(4, *Each);
        ExpectNoSlide(2);
        ExpectNoSlide(4);
        EXPECT_EQ("1|3", Shown(*ViewShow(*Each, Show)));
    }
    EXPECT_EQ(4, Boxes.ShownCount());
}

TEST_F(SlideShowView, SaysWhichDetailVanishesDuringTheFill) {
    AddSlides(Other, {u"a"_s, u"b"_s, u"c"_s});
    clsNEBSlideShow& Show = ShowOf(Other, {1, 2, 3});
    AtValue(1, [&] { Show.Details.erase(Show.Details.begin() + 1); });
    ExpectNoDetail(2);
    EXPECT_EQ("1|3", Shown(*ViewShow(Other, Show)));
}

TEST_F(SlideShowView, ClosedWhileABoxIsOpenItEndsThere) {
    AddSlides(Other, {u"a"_s, u"b"_s, u"c"_s});
    clsNEBSlideShow& Show = ShowOf(Other, {1, 2, 99, 98});
    auto View = NewForm<frmSlideShowView>();
    Boxes.WhileNextIsOpen([&] { View->Unload(); });
    ExpectNoSlide(3);
    View->ViewSlideShow(Other, OtherID, u"Attic"_s, Show.SlideShowID, u"Spring"_s);
    EXPECT_FALSE(View->IsLoaded() || View->isVisible());
    EXPECT_EQ("1|2", Shown(*View));
    EXPECT_EQ(nullptr, Open<frmLoading>());
}

TEST_F(SlideShowView, AShowThatGoesDuringTheFillEndsItWithoutABox) {
    AddSlides(Other, {u"a"_s, u"b"_s, u"c"_s});
    clsNEBSlideShow& Show = ShowOf(Other, {1, 2, 3});
    AtValue(1, [&] { Album(Other).DeleteSlideShow(Show.SlideShowID, Other); });
    EXPECT_EQ("1", Shown(*ViewShow(Other, Show)));
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(SlideShowView, AShowThatIsEmptyOrGoneAndAnAlbumThatIsGoneGiveAnEmptyList) {
    AddSlides(Other, {u"a"_s});
    clsNEBSlideShow& Show = ShowOf(Other, {1, 1});
    Show.SortDetails();
    Show.ClearDetails();  // its sorted view stays as it was
    EXPECT_EQ(0, GridOf(*ViewShow(Other, Show)).Rows());
    for (const auto& [InAlbum, ShowID] : {std::pair{OtherID, 99}, {99, Show.SlideShowID}}) {
        const auto View = NewForm<frmSlideShowView>();
        View->ViewSlideShow(Other, InAlbum, u"Attic"_s, ShowID, u"Spring"_s);
        EXPECT_EQ(0, GridOf(*View).Rows());
        EXPECT_TRUE(View->isVisible());
    }
    EXPECT_EQ(0, Boxes.ShownCount());
}

TEST_F(SlideShowView, NeverWritesIntoAnotherDatabase) {
    AddSlides(Other, {u"a"_s, u"b"_s});
    clsNEBSlideShow& Show = ShowOf(Other, {2, 1});
    Other.FinalizeDB();
    const QStringList Before = Everything(OtherDb.Path());
    const auto View = ViewShow(Other, Show);
    EXPECT_FALSE(IsBlank(*View, 0) || IsBlank(*View, 1));
    Press(*View, "cmdClose");
    EXPECT_EQ(Before, Everything(OtherDb.Path()));
}

TEST_F(SlideShowView, KeysAndDoubleClicksShowThePictureAndEscCloses) {
    AddSlides(Other, {u"a"_s, u"b"_s});
    const auto View = ViewShow(Other, ShowOf(Other, {2, 1}));
    EXPECT_EQ(1, PopupsDuring([&] { DoubleClickCell(GridOf(*View), 1, ColText); }));
    Activate(*View);
    Press(Qt::Key_Up);
    EXPECT_EQ(1, PopupsDuring([] { Press(Qt::Key_Return); }));
    Activate(*View);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(View->IsLoaded());
    const clsSettings Settings = OpenSettings();
    EXPECT_GE(Settings.GetValue("frmSlideShowView", "Height", {}).toInt(), 6315);
}

}  // namespace
}  // namespace neb
