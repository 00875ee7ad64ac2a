// Printing a sheet of copies of one picture.
#include "windows/printing/frmPrintSheet.h"

#include "DialogRig.h"
#include "controls/picture/PictureView.h"

namespace neb {
namespace {

using namespace harness;

class PrintSheet : public DialogRig {
  protected:
    void Dialog(const QString& Path, const std::function<void(frmPrintSheet&)>& Do) {
        const auto Window = NewForm<frmPrintSheet>();
        Within<frmPrintSheet>([&] { Window->PrintSlide(Path, u"a rose"_s); }, Do);
    }
    void Dialog(int Width, int Height, const std::function<void(frmPrintSheet&)>& Do) {
        Dialog(MakePicture(Pics / u"rose.png"_s, Width, Height), Do);
    }
};

TEST_F(PrintSheet, OpensWithThreeByFourAndThePageTurnedToSuitThePicture) {
    const struct {
        int Width, Height;
        const char* Turn;
    } Rows[] = {{60, 40, "optLandscape"}, {50, 50, "optPortrait"}, {40, 60, "optPortrait"}};
    for (const auto& Row : Rows)
        Dialog(Row.Width, Row.Height, [&](frmPrintSheet& W) {
            EXPECT_EQ("3", Text(W, "txtSlidesPerRow"));
            EXPECT_EQ("4", Text(W, "txtRowsPerPage"));
            EXPECT_TRUE(IsChecked(W, Row.Turn)) << Row.Width;
            EXPECT_TRUE(IsChecked(W, "chkMaintainRatio"));
            EXPECT_EQ("12 copies", Says(W));
            EXPECT_EQ(QSize(Row.Width, Row.Height),
                      In<PictureView>(W, "imgSlide").Picture().size());
            EXPECT_EQ("&Copies Per Row", In<QLabel>(W, "lblSlidesPerRow").text().toStdString());
        });
}

TEST_F(PrintSheet, FillsOnePageWithCopies) {
    Dialog(60, 40, [](frmPrintSheet& W) {
        Numbers(W, u"2"_s, u"2"_s);
        Composed Document = Preview(W);
        ASSERT_NE(nullptr, Document);
        EXPECT_EQ(1, Document->PageCount());
        EXPECT_EQ(QMarginsF(0.25, 0.25, 0.25, 0.25), Document->Margins());
        // cells of 4.425 by 3.175
        const std::string Landscape =
            "1 1 4.425 2.95 | 5.575 1 4.425 2.95 | 1 4.325 4.425 2.95 | 5.575 4.325 4.425 2.95";
        EXPECT_EQ(Landscape, PlacesOn(Document, 1));
        EXPECT_EQ(Landscape, Sketched(W)) << "with the picture's own shape";
        EXPECT_EQ("rose.png rose.png rose.png rose.png", NamesOn(Document, 1));
        Click(W, "optPortrait");
        Numbers(W, u"2.5"_s, u"1"_s);
        Click(W, "chkMaintainRatio");
        Document = Preview(W);
        EXPECT_EQ("1 1 3.175 9 | 4.325 1 3.175 9", PlacesOn(Document, 1));
        EXPECT_EQ(PageTurn::Portrait, Document->Orientation());
    });
}

TEST_F(PrintSheet, RefusesInPlainBoxesWithoutATitle) {
    Dialog(60, 40, [this](frmPrintSheet& W) {
        const auto ExpectRefused = [&](const QString& Text) {
            EXPECT_EQ(Text.toStdString(), Says(W));
            EXPECT_EQ("", Sketched(W));
            Boxes.Expect(Text, QString(), BoxIcon::Plain, BoxAnswer::Ok);
            EXPECT_EQ(nullptr, Preview(W));
        };
        Numbers(W, u""_s, u"none"_s);
        ExpectRefused(u"You must have 1 or more copies per row."_s);
        Retype(W, "txtSlidesPerRow", u"1"_s);
        ExpectRefused(u"You must have 1 or more rows per page."_s);
        Retype(W, "txtRowsPerPage", u"45"_s);
        ExpectRefused(u"There is room for at most 44 rows on the page below each other."_s);
        Retype(W, "txtRowsPerPage", u"1"_s);
        EXPECT_EQ("1 1 9 6", PlacesOn(Preview(W), 1));
        EXPECT_EQ("1 copy", Says(W));
    });
}

TEST_F(PrintSheet, AMissingFileIsPrintedAsTheStandIn) {
    Dialog(Pics / u"gone.jpg"_s, [](frmPrintSheet& W) {
        Numbers(W, u"2"_s, u"1"_s);
        EXPECT_EQ("NoSlide.bmp NoSlide.bmp", NamesOn(Preview(W), 1));
    });
}

TEST_F(PrintSheet, CancelAndEscCloseIt) {
    Dialog(60, 40, [](frmPrintSheet& W) {
        Press(W, "cmdCancel");
        EXPECT_FALSE(W.IsLoaded());
    });
    Dialog(60, 40, [](frmPrintSheet& W) {
        QTest::keyClick(&W, Qt::Key_Escape);
        EXPECT_FALSE(W.IsLoaded());
    });
}

}  // namespace
}  // namespace neb
