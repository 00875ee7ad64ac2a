// Printing a slide show: its own checks, its order, and what is missing in it.
#include "windows/printing/frmPrintSlideShow.h"

#include "DialogRig.h"
#include "windows/printing/modPrinting.h"

namespace neb {
namespace {

using namespace harness;

class PrintSlideShow : public DialogRig {
  protected:
    void Dialog(std::int32_t Album, std::int32_t Show,
                const std::function<void(frmPrintSlideShow&)>& Do) {
        Within<frmPrintSlideShow>([=] { ShowPrintSlideShow(Album, Show); }, Do);
    }
    std::int32_t Rose = AddSlide(u"rose"_s);
    std::int32_t Tulip = AddSlide(u"tulip"_s);
    std::int32_t Aster = AddSlide(u"aster"_s);
};

TEST_F(PrintSlideShow, OpensWithTheShow) {
    AddShow(u"Autumn"_s, {Aster});
    const std::int32_t Summer = AddShow(u"Summer"_s, {Rose, Tulip}).SlideShowID;
    MakeAlbum(u"Attic"_s);
    Dialog(AlbumID, Summer, [](frmPrintSlideShow& W) {
        EXPECT_EQ("Print Slide Show", W.windowTitle().toStdString());
        EXPECT_EQ("Garden", Chosen(W, "cboAlbum"));
        EXPECT_EQ("Summer", Chosen(W, "cboSlideShow"));
        EXPECT_EQ(2, In<QComboBox>(W, "cboSlideShow").count());
        EXPECT_EQ("2 slides, 1 page", Says(W));
        EXPECT_EQ("rose.jpg tulip.jpg", NamesOn(Preview(W), 1));
    });
}

TEST_F(PrintSlideShow, FromTheMenuTheFirstAlbumAndItsFirstShowAreChosen) {
    AddShow(u"Summer"_s, {Rose});
    AddShow(u"Autumn"_s, {Aster});
    Dialog(0, 0, [](frmPrintSlideShow& W) {
        EXPECT_EQ("Garden", Chosen(W, "cboAlbum"));
        EXPECT_EQ("Autumn", Chosen(W, "cboSlideShow"));
    });
}

TEST_F(PrintSlideShow, WithoutAlbumsAndWithoutShowsNothingCanBePrinted) {
    MakeAlbum(u"Attic"_s);
    AddShow(u"Summer"_s, {Rose});
    Dialog(0, 0, [](frmPrintSlideShow& W) {
        EXPECT_EQ("Attic", Chosen(W, "cboAlbum"));
        EXPECT_TRUE(IsOn(W, "cboAlbum"));
        EXPECT_FALSE(IsOn(W, "cboSlideShow"));
        EXPECT_FALSE(IsOn(W, "cmdPrint"));
        EXPECT_EQ("This album has no slide show yet. The Slide Show Manager makes one.", Says(W));
        Choose(W, "cboAlbum", u"Garden"_s);
        EXPECT_EQ("Summer", Chosen(W, "cboSlideShow"));
        EXPECT_TRUE(IsOn(W, "cboSlideShow"));
        EXPECT_TRUE(IsOn(W, "cmdPrint"));
        Choose(W, "cboAlbum", u"Attic"_s);
        EXPECT_EQ("", Chosen(W, "cboSlideShow"));
        EXPECT_FALSE(IsOn(W, "cmdPrint"));
    });
    for (const auto& Each : std::vector<std::int32_t>{1, 2}) ASSERT_TRUE(Engine.DeleteAlbum(Each));
    Dialog(0, 0, [](frmPrintSlideShow& W) {
        for (const char* Each : {"cboAlbum", "cboSlideShow", "cmdPrint"})
            EXPECT_FALSE(IsOn(W, Each)) << Each;
        EXPECT_EQ("There are no albums yet. New Album in the menu Album makes one.", Says(W));
    });
}

TEST_F(PrintSlideShow, ChecksTheAlbumThenTheShowThenTheNumbers) {
    AddShow(u"Summer"_s, {Rose});
    const auto ExpectRefused = [](frmPrintSlideShow& W) { EXPECT_EQ(nullptr, Preview(W)); };
    Dialog(77, 0, [&](frmPrintSlideShow& W) {
        Numbers(W, u"0"_s, u"0"_s);
        ExpectInformation(u"You must select an Album to print."_s, MissingInput);
        ExpectRefused(W);
    });
    Dialog(AlbumID, 77, [&](frmPrintSlideShow& W) {
        EXPECT_EQ("", Chosen(W, "cboSlideShow")) << "no other one is chosen in its place";
        Numbers(W, u"0"_s, u"0"_s);
        ExpectInformation(u"You must select a Slide Show to print."_s, MissingInput);
        ExpectRefused(W);
        EXPECT_EQ("You must select a Slide Show to print.", Says(W));
        QTest::keyClick(&In<QComboBox>(W, "cboSlideShow"), Qt::Key_Down);
        ExpectInformation(u"You must have 1 or more slides per row."_s, InvalidInput);
        ExpectRefused(W);
        Numbers(W, u"1"_s, u"0"_s);
        ExpectInformation(u"You must have 1 or more rows per page."_s, InvalidInput);
        ExpectRefused(W);
        Numbers(W, u"1"_s, u"1"_s);
        EXPECT_NE(nullptr, Preview(W));
    });
}

// What the caller wanted counts for the first album that is listed, and for no other.
TEST_F(PrintSlideShow, AnotherAlbumBeginsWithItsFirstShow) {
    AddShow(u"Autumn"_s, {Aster});
    const std::int32_t Summer = AddShow(u"Summer"_s, {Rose}).SlideShowID;
    MakeAlbum(u"Attic"_s);
    Dialog(AlbumID, Summer, [](frmPrintSlideShow& W) {
        EXPECT_EQ("Summer", Chosen(W, "cboSlideShow"));
        Choose(W, "cboAlbum", u"Attic"_s);
        Choose(W, "cboAlbum", u"Garden"_s);
        EXPECT_EQ("Autumn", Chosen(W, "cboSlideShow"));
    });
}

TEST_F(PrintSlideShow, ASlideThatStandsTwiceIsPrintedTwice) {
    const std::int32_t ID = AddShow(u"Walk"_s, {Tulip, Rose, Tulip}).SlideShowID;
    Dialog(AlbumID, ID, [](frmPrintSlideShow& W) {
        EXPECT_EQ("3 slides, 1 page", Says(W));
        const Composed Document = Preview(W);
        EXPECT_EQ("tulip.jpg rose.jpg tulip.jpg", NamesOn(Document, 1));
        EXPECT_EQ("1 1 2.26875 1.5125 | 4.05 1 2.26875 1.5125 | 7.1 1 2.26875 1.5125",
                  PlacesOn(Document, 1));
    });
}

TEST_F(PrintSlideShow, WhatIsMissingIsToldOfAndTheRestIsPrinted) {
    clsNEBSlideShow& Show = AddShow(u"Walk"_s, {Tulip});
    Show.SaveDetail(999, 2, {});
    Show.SaveDetail(Rose, 4, {});
    Show.SaveDetail(Aster, 5, {});
    const std::int32_t ID = Show.SlideShowID;
    Dialog(AlbumID, ID, [&](frmPrintSlideShow& W) {
        Boxes.Expect(u"Slide #2 not found."_s, QString(), BoxIcon::Plain, BoxAnswer::Ok);
        Boxes.Expect(u"Detail #3 not found."_s, QString(), BoxIcon::Plain, BoxAnswer::Ok);
        EXPECT_EQ("2 slides, 1 page", Says(W));
        EXPECT_EQ("tulip.jpg rose.jpg", NamesOn(Preview(W), 1));
    });
}

TEST_F(PrintSlideShow, AShowWithoutAnySlideOpensNoPreview) {
    const std::int32_t Bare = AddShow(u"Bare"_s, {}).SlideShowID;
    const std::int32_t Gone = AddShow(u"Gone"_s, {999}).SlideShowID;
    Dialog(AlbumID, Bare, [](frmPrintSlideShow& W) { EXPECT_EQ(nullptr, Preview(W)); });
    Dialog(AlbumID, Gone, [&](frmPrintSlideShow& W) {
        Boxes.Expect(u"Slide #1 not found."_s);
        EXPECT_EQ(nullptr, Preview(W));
        EXPECT_TRUE(IsOn(W, "cmdPrint"));
    });
}

TEST_F(PrintSlideShow, AShowOrAnAlbumThatHasGoneMeanwhileIsToldOf) {
    const std::int32_t ID = AddShow(u"Walk"_s, {Tulip}).SlideShowID;
    Dialog(AlbumID, ID, [&](frmPrintSlideShow& W) {
        ASSERT_TRUE(Album().DeleteSlideShow(ID, Engine));
        Boxes.Expect(u"Slide Show not found."_s, QString(), BoxIcon::Plain, BoxAnswer::Ok);
        EXPECT_EQ(nullptr, Preview(W));
        ASSERT_TRUE(Engine.DeleteAlbum(AlbumID));
        Boxes.Expect(u"Album not found."_s, QString(), BoxIcon::Plain, BoxAnswer::Ok);
        EXPECT_EQ(nullptr, Preview(W));
        EXPECT_TRUE(IsOn(W, "cmdClose"));
    });
}

TEST_F(PrintSlideShow, AnAlbumThatHasGoneBeforeItIsChosenIsToldOf) {
    AddShow(u"Walk"_s, {Tulip});
    const std::int32_t Attic = MakeAlbum(u"Zoo"_s);
    Dialog(0, 0, [&](frmPrintSlideShow& W) {
        ASSERT_TRUE(Engine.DeleteAlbum(Attic));
        Boxes.Expect(u"Could not find the album."_s);
        Choose(W, "cboAlbum", u"Zoo"_s);
        EXPECT_FALSE(IsOn(W, "cmdPrint"));
    });
}

TEST_F(PrintSlideShow, ItsOwnNameStandsAtTheFoot) {
    const std::int32_t ID = AddShow(u"Walk"_s, {Tulip}).SlideShowID;
    Dialog(AlbumID, ID, [](frmPrintSlideShow& W) {
        Click(W, "chkName");
        EXPECT_EQ("Walk", TextsOn(Preview(W), 1));
    });
}

}  // namespace
}  // namespace neb
