// Printing an album: the checks in their order, where the pictures stand on the pages, long work
// that can be stopped.
#include "windows/printing/frmPrintAlbum.h"

#include "DialogRig.h"
#include "harness/Heartbeat.h"
#include "printing/SlidesToPrint.h"
#include "windows/frame/Openers.h"

namespace neb {
namespace {

using namespace harness;

class PrintAlbum : public DialogRig {
  protected:
    void Dialog(const std::function<void(frmPrintAlbum&)>& Do, std::int32_t Chosen) {
        const auto Window = NewForm<frmPrintAlbum>();
        Within<frmPrintAlbum>([&] { Window->PrintAlbum(Chosen); }, Do);
    }
    void Dialog(const std::function<void(frmPrintAlbum&)>& Do) { Dialog(Do, AlbumID); }
    // At each yield of the composing.
    static void AtYield(std::function<void()> Do) { SetDoEventsHook(std::move(Do)); }
};

TEST_F(PrintAlbum, OpensWithTheAlbumAndThreeByFourInLandscape) {
    const std::int32_t Other = MakeAlbum(u"Attic"_s);
    Dialog([&](frmPrintAlbum& W) {
        EXPECT_EQ("Garden", Chosen(W, "cboAlbum"));
        EXPECT_FALSE(In<QWidget>(W, "cboSlideShow").isVisible());
        EXPECT_EQ("3", Text(W, "txtSlidesPerRow"));
        EXPECT_EQ("4", Text(W, "txtRowsPerPage"));
        EXPECT_TRUE(IsChecked(W, "optLandscape"));
        EXPECT_TRUE(IsChecked(W, "chkMaintainRatio"));
        for (const char* Each : {"chkWholeSheet", "chkCaptions", "chkPageNumbers", "chkName"})
            EXPECT_FALSE(IsChecked(W, Each)) << Each;
        EXPECT_FALSE(In<QWidget>(W, "pbrProgress").isVisible());
        EXPECT_FALSE(In<QWidget>(W, "cmdStop").isVisible());
        EXPECT_EQ("&Print Preview", In<QPushButton>(W, "cmdPrint").text().toStdString());
        EXPECT_EQ("Print Album", W.windowTitle().toStdString());
    });
    Dialog([&](frmPrintAlbum& W) { EXPECT_EQ("Attic", Chosen(W, "cboAlbum")); }, Other);
    Dialog([&](frmPrintAlbum& W) { EXPECT_EQ("Attic", Chosen(W, "cboAlbum")) << "the first"; }, 0);
}

TEST_F(PrintAlbum, WithoutAlbumsOnlyClosingIsLeft) {
    ASSERT_TRUE(Engine.DeleteAlbum(AlbumID));
    Dialog([](frmPrintAlbum& W) {
        EXPECT_FALSE(IsOn(W, "cboAlbum"));
        EXPECT_FALSE(IsOn(W, "cmdPrint"));
        EXPECT_EQ("There are no albums yet. New Album in the menu Album makes one.", Says(W));
        Press(W, "cmdClose");
        EXPECT_FALSE(W.IsLoaded());
    });
}

TEST_F(PrintAlbum, ChecksTheAlbumThenTheColumnsThenTheRows) {
    AddSlide(u"rose"_s);
    const auto ExpectRefused = [](frmPrintAlbum& W) { EXPECT_EQ(nullptr, Preview(W)); };
    Dialog(
        [&](frmPrintAlbum& W) {
            Numbers(W, u"0"_s, u"0"_s);
            EXPECT_EQ(-1, In<QComboBox>(W, "cboAlbum").currentIndex());
            ExpectInformation(u"You must select an Album to print."_s, MissingInput);
            ExpectRefused(W);
            Choose(W, "cboAlbum", u"Garden"_s);
            ExpectInformation(u"You must have 1 or more slides per row."_s, InvalidInput);
            ExpectRefused(W);
            Retype(W, "txtSlidesPerRow", u"3 or so"_s);
            ExpectInformation(u"You must have 1 or more rows per page."_s, InvalidInput);
            ExpectRefused(W);
            Retype(W, "txtRowsPerPage", u""_s);
            ExpectInformation(u"You must have 1 or more rows per page."_s, InvalidInput);
            ExpectRefused(W);
            Retype(W, "txtRowsPerPage", u"0.9"_s);
            ExpectInformation(u"You must have 1 or more rows per page."_s, InvalidInput);
            ExpectRefused(W);
            Numbers(W, u"61"_s, u"4"_s);
            ExpectInformation(u"There is room for at most 60 columns on the page side by side."_s,
                              InvalidInput);
            ExpectRefused(W);
            EXPECT_TRUE(IsOn(W, "cmdPrint")) << "and can be tried again";
            Numbers(W, u"3"_s, u"4"_s);
            EXPECT_NE(nullptr, Preview(W));
        },
        AlbumID + 77);
}

TEST_F(PrintAlbum, LandscapePagesOfThreeByFour) {
    AddSlides(13);
    Dialog([](frmPrintAlbum& W) {
        EXPECT_EQ("13 slides, 2 pages", Says(W));
        const Composed Document = Preview(W);
        ASSERT_NE(nullptr, Document);
        EXPECT_EQ(PageTurn::Landscape, Document->Orientation());
        EXPECT_EQ(PaperOfCountry(), Document->Paper());
        EXPECT_EQ(QMarginsF(0.25, 0.25, 0.25, 0.25), Document->Margins());
        ASSERT_EQ(2, Document->PageCount());
        // cells of 2.9 by 1.5125, in which a picture of 3 to 2 is 2.26875 wide
        EXPECT_EQ(
            "1 1 2.26875 1.5125 | 4.05 1 2.26875 1.5125 | 7.1 1 2.26875 1.5125 | "
            "1 2.6625 2.26875 1.5125 | 4.05 2.6625 2.26875 1.5125 | 7.1 2.6625 2.26875 1.5125 | "
            "1 4.325 2.26875 1.5125 | 4.05 4.325 2.26875 1.5125 | 7.1 4.325 2.26875 1.5125 | "
            "1 5.9875 2.26875 1.5125 | 4.05 5.9875 2.26875 1.5125 | 7.1 5.9875 2.26875 1.5125",
            PlacesOn(Document, 1));
        EXPECT_EQ("1 1 2.26875 1.5125", PlacesOn(Document, 2));
        EXPECT_EQ("", TextsOn(Document, 1));
        EXPECT_TRUE(W.IsLoaded()) << "it stays open behind the preview";
    });
}

TEST_F(PrintAlbum, NoEmptyPageFollowsAFullOne) {
    AddSlides(12);
    Dialog([](frmPrintAlbum& W) {
        EXPECT_EQ("12 slides, 1 page", Says(W));
        EXPECT_EQ(1, Preview(W)->PageCount());
    });
}

TEST_F(PrintAlbum, PortraitSizesOfEveryShape) {
    AddSlide(u"a square"_s, {50, 50});
    AddSlide(u"b high"_s, {40, 80});
    AddSlide(u"c wide"_s, {120, 40});
    AddSlide(u"d just high"_s, {32, 40});
    Dialog([](frmPrintAlbum& W) {
        Click(W, "optPortrait");
        Numbers(W, u"2"_s, u"3"_s);
        Composed Document = Preview(W);
        ASSERT_NE(nullptr, Document);
        EXPECT_EQ(PageTurn::Portrait, Document->Orientation());
        // cells of 3.175 by 2.9
        EXPECT_EQ("1 1 2.9 2.9 | 4.325 1 1.45 2.9 | 1 4.05 3.175 1.05833 | 4.325 4.05 2.32 2.9",
                  PlacesOn(Document, 1));
        Click(W, "chkMaintainRatio");
        Document = Preview(W);
        EXPECT_EQ("1 1 3.175 2.9 | 4.325 1 3.175 2.9 | 1 4.05 3.175 2.9 | 4.325 4.05 3.175 2.9",
                  PlacesOn(Document, 1));
    });
}

TEST_F(PrintAlbum, TwoAndAHalfColumnsAreTwoAndThreeAndAHalfAreFour) {
    AddSlides(9);
    Dialog([](frmPrintAlbum& W) {
        Numbers(W, u"2.5"_s, u"1"_s);
        EXPECT_EQ("9 slides, 5 pages", Says(W));
        // cells of 4.425 by 6.5
        EXPECT_EQ("1 1 4.425 2.95 | 5.575 1 4.425 2.95", PlacesOn(Preview(W), 1));
        Retype(W, "txtSlidesPerRow", u"3.5"_s);
        EXPECT_EQ(3, Preview(W)->PageCount());
        Retype(W, "txtSlidesPerRow", u"3,5"_s);
        EXPECT_EQ(3, Preview(W)->PageCount());
        EXPECT_EQ("Garden", Preview(W)->Title().toStdString());
    });
}

TEST_F(PrintAlbum, AWholeSheetOfEachSlide) {
    AddSlide(u"rose"_s);
    AddSlide(u"tulip"_s, {40, 40});
    Dialog([](frmPrintAlbum& W) {
        Click(W, "chkWholeSheet");
        Numbers(W, u"2"_s, u"2"_s);
        EXPECT_EQ("2 slides, 2 pages", Says(W));
        Composed Document = Preview(W);
        ASSERT_EQ(2, Document->PageCount());
        // cells of 4.425 by 3.175
        EXPECT_EQ(
            "1 1 4.425 2.95 | 5.575 1 4.425 2.95 | 1 4.325 4.425 2.95 | 5.575 4.325 4.425 2.95",
            PlacesOn(Document, 1));
        EXPECT_EQ("rose.jpg rose.jpg rose.jpg rose.jpg", NamesOn(Document, 1));
        EXPECT_EQ("tulip.jpg tulip.jpg tulip.jpg tulip.jpg", NamesOn(Document, 2));
        Numbers(W, u"1"_s, u"1"_s);
        Document = Preview(W);
        ASSERT_EQ(2, Document->PageCount());
        EXPECT_EQ("1 1 9 6", PlacesOn(Document, 1));
        EXPECT_EQ("1 1 6.5 6.5", PlacesOn(Document, 2));
    });
}

TEST_F(PrintAlbum, TheSlidesStandInTheOrderOfTheirCaptions) {
    AddSlide(u"tulip"_s);
    AddSlide(u"Rose"_s);
    AddSlide(u"aster"_s);
    Dialog([](frmPrintAlbum& W) {
        EXPECT_EQ("aster.jpg Rose.jpg tulip.jpg", NamesOn(Preview(W), 1));
    });
}

TEST_F(PrintAlbum, PrintsTheStandInForAMissingAndForADamagedFile) {
    AddSlideAt(u"a"_s, u"gone.jpg"_s);
    AddSlideAt(u"b"_s, Pics / u"elsewhere.jpg"_s);
    AddSlideAt(u"c"_s, u"bad.jpg"_s);
    WriteFile(SlidesFolder(Engine.DBPath(), AlbumID) + u"bad.jpg"_s, "no picture");
    AddSlideAt(u"d"_s, MakePicture(Pics / u"there.jpg"_s));
    Dialog([](frmPrintAlbum& W) {
        const Composed Document = Preview(W);
        ASSERT_NE(nullptr, Document);
        EXPECT_EQ("NoSlide.bmp NoSlide.bmp NoSlide.bmp there.jpg", NamesOn(Document, 1));
    });
}

TEST_F(PrintAlbum, AnAlbumWithoutSlidesOpensNoPreviewAndSaysNothing) {
    Dialog([](frmPrintAlbum& W) {
        EXPECT_EQ("There are no slides to print.", Says(W));
        EXPECT_EQ("", Sketched(W));
        EXPECT_EQ(nullptr, Preview(W));
        EXPECT_TRUE(IsOn(W, "cmdPrint"));
        EXPECT_TRUE(W.IsLoaded());
    });
}

TEST_F(PrintAlbum, AnAlbumThatHasGoneMeanwhileIsToldOf) {
    AddSlide(u"rose"_s);
    Dialog([&](frmPrintAlbum& W) {
        ASSERT_TRUE(Engine.DeleteAlbum(AlbumID));
        Boxes.Expect(u"Album not found."_s, QString(), BoxIcon::Plain, BoxAnswer::Ok);
        EXPECT_EQ(nullptr, Preview(W));
        EXPECT_FALSE(In<QWidget>(W, "pbrProgress").isVisible());
        EXPECT_TRUE(IsOn(W, "cmdClose"));
    });
}

TEST_F(PrintAlbum, WithoutAnyPictureToStandInTheFaultIsToldAndTheWindowStaysUsable) {
    AddSlideAt(u"a"_s, u"gone.jpg"_s);
    const QString NoSlide = App / u"NoSlide.bmp"_s;
    const QByteArray Kept = ReadFile(NoSlide);
    DeleteFile(NoSlide);
    QString Problem;
    try {
        MeasurePicture({NoSlideFile(), {}});
    } catch (const Fault& Raised) {
        Problem = Raised.Text();
    }
    ASSERT_NE("", Problem);
    Dialog([&](frmPrintAlbum& W) {
        Boxes.Expect(Problem, u"Print Album"_s, BoxIcon::Critical, BoxAnswer::Ok);
        EXPECT_EQ(nullptr, Preview(W));
        EXPECT_EQ(Pointer::Default, ScreenPointer());
        EXPECT_FALSE(In<QWidget>(W, "pbrProgress").isVisible());
        WriteFile(NoSlide, Kept);
        EXPECT_NE(nullptr, Preview(W));
    });
}

TEST_F(PrintAlbum, CaptionsNameAndPageNumbersComeWhenTheyAreWanted) {
    AddSlides(3);
    Dialog([](frmPrintAlbum& W) {
        Numbers(W, u"2"_s, u"1"_s);
        for (const char* Each : {"chkCaptions", "chkName", "chkPageNumbers"}) Click(W, Each);
        const Composed Document = Preview(W);
        ASSERT_EQ(2, Document->PageCount());
        EXPECT_EQ("1 / 2|Garden|000|001", TextsOn(Document, 1));
        EXPECT_EQ("2 / 2|Garden|002", TextsOn(Document, 2));
    });
}

TEST_F(PrintAlbum, ShowsHowFarItIsOnTheDialogItself) {
    AddSlides(1000);
    Dialog([](frmPrintAlbum& W) {
        Numbers(W, u"5"_s, u"5"_s);
        const auto& Bar = In<QProgressBar>(W, "pbrProgress");
        QStringList Tips;
        std::vector<const char*> Disabled;
        AtYield([&] {
            EXPECT_TRUE(Bar.isVisible());
            if (Tips.isEmpty() || Tips.last() != Bar.toolTip()) Tips << Bar.toolTip();
            for (const char* Each :
                 {"cboAlbum", "cmdPrint", "cmdClose", "txtSlidesPerRow", "txtRowsPerPage",
                  "fraLayout", "chkMaintainRatio", "chkWholeSheet", "fraExtras"})
                EXPECT_FALSE(IsOn(W, Each)) << Each;
            EXPECT_TRUE(In<QWidget>(W, "cmdStop").isVisible());
            EXPECT_EQ(Pointer::Hourglass, ScreenPointer());
        });
        bool Behind = false;
        const Composed Document = Preview(W, [&] {
            SetDoEventsHook({});
            Behind = Bar.isVisible() && Bar.value() == 100 && !IsOn(W, "cmdPrint");
            EXPECT_EQ(Pointer::Default, ScreenPointer());
        });
        ASSERT_NE(nullptr, Document);
        EXPECT_EQ(40, Document->PageCount());
        EXPECT_TRUE(Behind) << "while the preview is open";
        ASSERT_FALSE(Tips.isEmpty());
        EXPECT_EQ("100.0% Completed", Tips.last().toStdString());
        static const QRegularExpression Form(u"^\\d+\\.\\d% Completed$"_s);
        for (const QString& Each : Tips) EXPECT_TRUE(Form.match(Each).hasMatch());
        EXPECT_FALSE(Bar.isVisible());
        EXPECT_TRUE(IsOn(W, "cmdPrint"));
        EXPECT_EQ("cmdPrint", W.focusWidget()->objectName().toStdString());
    });
}

TEST_F(PrintAlbum, IsNotClosedWhileItComposes) {
    AddSlides(50);
    Dialog([](frmPrintAlbum& W) {
        int Asked = 0;
        AtYield([&] {
            if (Asked++ > 0) return;
            W.close();
            QTest::keyClick(&W, Qt::Key_Escape);
            EXPECT_FALSE(W.Unload());
            EXPECT_TRUE(W.IsLoaded() && W.isVisible());
        });
        const Composed Document = Preview(W);
        EXPECT_GT(Asked, 0);
        ASSERT_NE(nullptr, Document);
        EXPECT_EQ(50, Document->PlaceCount());
    });
}

TEST_F(PrintAlbum, StopEndsItWithoutAPreviewAndTheDialogIsAsBefore) {
    AddSlides(50);
    QString Notice;
    TheOpeners().Notice = [&](const QString& Text) { Notice = Text; };
    Dialog([&](frmPrintAlbum& W) {
        AtYield([&] {
            if (IsOn(W, "cmdStop")) QTest::keyClick(&In<QWidget>(W, "cmdStop"), Qt::Key_Space);
        });
        EXPECT_EQ(nullptr, Preview(W));
        SetDoEventsHook({});
        EXPECT_EQ("Stopped; there is no preview.", Notice.toStdString());
        EXPECT_TRUE(IsOn(W, "cmdPrint"));
        EXPECT_FALSE(In<QWidget>(W, "cmdStop").isVisible());
        EXPECT_FALSE(In<QWidget>(W, "pbrProgress").isVisible());
        EXPECT_NE(nullptr, Preview(W)) << "and the next attempt succeeds";
    });
    TheOpeners().Notice = {};
}

TEST_F(PrintAlbum, NothingStandsStillWhileAThousandSlidesAreComposed) {
    AddSlides(1000);
    Dialog([](frmPrintAlbum& W) {
        Heartbeat Beats;
        EXPECT_NE(nullptr, Preview(W));
        EXPECT_LT(Beats.LongestStandstill(), 100);
    });
}

TEST_F(PrintAlbum, AReadOnlyDatabaseIsPrintedAsAnyOther) {
    AddSlide(u"rose"_s);
    ReadOnlyDB = true;
    Dialog([](frmPrintAlbum& W) { EXPECT_NE(nullptr, Preview(W)); });
}

TEST_F(PrintAlbum, EnterOpensThePreviewAndEscClosesTheWindow) {
    AddSlide(u"rose"_s);
    Dialog([](frmPrintAlbum& W) {
        bool Shown = false;
        WhenOpen<frmPrintPreview>([&](frmPrintPreview& Opened) {
            Shown = true;
            Opened.Unload();
        });
        QTest::keyClick(&In<QLineEdit>(W, "txtRowsPerPage"), Qt::Key_Return);
        EXPECT_TRUE(Shown);
        QTest::keyClick(&W, Qt::Key_Escape);
        EXPECT_FALSE(W.IsLoaded());
    });
}

TEST_F(PrintAlbum, TheDrawingFollowsEveryKey) {
    AddSlides(5);
    Dialog([](frmPrintAlbum& W) {
        auto& Rows = In<QLineEdit>(W, "txtRowsPerPage");
        EXPECT_EQ(5u, Sketch(W).Page().Pictures.size());
        // pictures of 4 to 3 in cells of 2.9 by 1.5125
        EXPECT_TRUE(Sketched(W).starts_with("1 1 2.01667 1.5125 | 4.05 1 ")) << Sketched(W);
        Rows.setFocus();
        QTest::keyClick(&Rows, Qt::Key_End);
        QTest::keyClick(&Rows, Qt::Key_Backspace);
        EXPECT_EQ("You must have 1 or more rows per page.", Says(W));
        EXPECT_EQ("", Sketched(W));
        QTest::keyClick(&Rows, Qt::Key_1);
        EXPECT_EQ("5 slides, 2 pages", Says(W));
        EXPECT_EQ(3u, Sketch(W).Page().Pictures.size());
        QTest::keyClick(&Rows, Qt::Key_Up);
        EXPECT_EQ("2", Text(W, "txtRowsPerPage"));
        EXPECT_EQ("5 slides, 1 page", Says(W));
        for (int I = 0; I < 3; ++I) QTest::keyClick(&Rows, Qt::Key_Down);
        EXPECT_EQ("1", Text(W, "txtRowsPerPage"));
        Click(W, "chkWholeSheet");
        EXPECT_EQ("5 slides, 5 pages", Says(W));
        Click(W, "optPortrait");
        EXPECT_EQ(PaperOfCountry(), Sketch(W).Page().Size);
        Retype(W, "txtSlidesPerRow", u"45"_s);
        EXPECT_EQ("There is room for at most 44 columns on the page side by side.", Says(W));
    });
}

TEST_F(PrintAlbum, AnotherAlbumIsCountedAsSoonAsItIsChosen) {
    AddSlides(2);
    MakeAlbum(u"Attic"_s);
    Dialog([](frmPrintAlbum& W) {
        EXPECT_EQ("2 slides, 1 page", Says(W));
        Choose(W, "cboAlbum", u"Attic"_s);
        EXPECT_EQ("There are no slides to print.", Says(W));
    });
}

}  // namespace
}  // namespace neb
