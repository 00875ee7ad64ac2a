// The document: what is composed stands on its pages, and is painted where it stands.
#include "printing/PrintDocument.h"

#include "printing/PrintRig.h"
#include "printing/SheetComposer.h"

namespace neb {
namespace {

using namespace tests;

class PrintDocumentTest : public ::testing::Test {
  protected:
    PrintDocumentTest() { SaveJpeg(NoSlide(), Plain(Qt::magenta, {80, 60})); }
    QString NoSlide() const { return Folder / u"NoSlide.jpg"_s; }
    QString File(const char* Name, QColor Colour, QSize Size) const {
        SaveJpeg(Folder / QLatin1String(Name), Plain(Colour, Size));
        return Folder / QLatin1String(Name);
    }
    PrintDocument Empty() const { return PrintDocument({NoSlide(), {}}); }
    static CellGrid Grid(const GridWish& Wish) { return *GridFor(Wish); }

    harness::TempFolder Folder;
};

TEST_F(PrintDocumentTest, MeasuresAreTextsInInches) {
    EXPECT_EQ(InchText(2.0166666666666666), u"2.0166666666666666in");
    EXPECT_EQ(InchText(1), u"1in");
    for (const double Inches : {2.0 / 3, 0.0000413333, 6.5})
        EXPECT_EQ(InchesIn(InchText(Inches)), Inches);
    EXPECT_EQ(InchesIn(u".25in"_s), 0.25);
    for (const char* Text : {"", "in", "1", "1cm", "1,5in", "nanin", "infin", "1inin"})
        EXPECT_THROW(InchesIn(QLatin1String(Text)), Fault) << Text;
}

TEST_F(PrintDocumentTest, IsComposedPageByPage) {
    PrintDocument Document = Empty();
    EXPECT_EQ(Document.PageCount(), 0);
    Document.SetOrientation(PageTurn::Landscape);
    Document.StartDoc();
    EXPECT_EQ(Document.PageCount(), 1);
    Document.SetMarginLeft(u".25in"_s);
    Document.SetMarginRight(u".5in"_s);
    Document.SetMarginTop(u"1in"_s);
    Document.SetMarginBottom(u"2in"_s);
    Document.DrawPicture({u"a"_s, {}}, u"1in"_s, u"2in"_s, u"3in"_s, u"4in"_s);
    Document.NewPage();
    Document.NewPage();
    Document.DrawPicture({u"b"_s, {}}, u"1in"_s, u"1in"_s, u"1in"_s, u"1in"_s);
    Document.DrawPicture({u"a"_s, {}}, u"5in"_s, u"1in"_s, u"1in"_s, u"1in"_s);
    Document.EndDoc();
    EXPECT_EQ(Document.PageSize(), QSizeF(11, 8.5));
    EXPECT_EQ(Document.Margins(), QMarginsF(.25, 1, .5, 2));
    ASSERT_EQ(Document.PageCount(), 3);
    ASSERT_EQ(Document.PlacesOn(1).size(), 1U);
    EXPECT_EQ(Document.PlacesOn(1)[0].Place, QRectF(1, 2, 3, 4));
    EXPECT_TRUE(Document.PlacesOn(2).empty());
    ASSERT_EQ(Document.PlacesOn(3).size(), 2U);
    EXPECT_EQ(Document.Picture(Document.PlacesOn(3)[0].Picture).Path, u"b");
    EXPECT_EQ(Document.PlacesOn(3)[1].Picture, Document.PlacesOn(1)[0].Picture)
        << "a picture has one number";
}

TEST_F(PrintDocumentTest, StartingAgainForgetsWhatWasThere) {
    PrintDocument Document = Empty();
    Document.StartDoc();
    Place(Document, {u"a"_s, {}}, {1, 1, 1, 1});
    Document.NewPage();
    Document.EndDoc();
    Document.StartDoc();
    EXPECT_EQ(Document.PageCount(), 1);
    EXPECT_EQ(Document.PlaceCount(), 0);
}

TEST_F(PrintDocumentTest, NothingIsDrawnOutsideACompositionNorWithoutASize) {
    PrintDocument Document = Empty();
    EXPECT_THROW(Document.NewPage(), Fault);
    EXPECT_THROW(Document.EndDoc(), Fault);
    EXPECT_THROW(Place(Document, {u"a"_s, {}}, {1, 1, 1, 1}), Fault);
    Document.StartDoc();
    EXPECT_THROW(Place(Document, {u"a"_s, {}}, {1, 1, 0, 1}), Fault);
    EXPECT_THROW(Place(Document, {u"a"_s, {}}, {1, 1, 1, -1}), Fault);
    EXPECT_EQ(Document.PlaceCount(), 0);
}

TEST_F(PrintDocumentTest, APageIsPaintedAtEveryScale) {
    PrintDocument Document = Empty();
    Document.StartDoc();
    Place(Document, {File("red.jpg", Red, {40, 30}), {}}, {1, 2, 2, 1.5});
    Place(Document, {{}, JpegOf(Plain(Blue, {30, 30}))}, {4, 2, 1, 1});
    Document.EndDoc();
    for (const int Dots : {20, 300}) {
        QImage Page((Document.PageSize() * Dots).toSize(), QImage::Format_RGB32);
        Page.fill(Qt::white);
        QPainter Painter(&Page);
        Document.PaintPage(Painter, 1, Dots);
        EXPECT_EQ(WhereIs(Page, Red, Dots), QRectF(1, 2, 2, 1.5)) << Dots;
        EXPECT_EQ(WhereIs(Page, Blue, Dots), QRectF(4, 2, 1, 1)) << Dots;
    }
}

TEST_F(PrintDocumentTest, APageIsPaintedAtThePaintersOriginAndAsSharpAsItsDevice) {
    PrintDocument Document = Empty();
    Document.StartDoc();
    // Lines that are one dot wide on the device, two to the unit of the painter.
    QImage Lines(200, 200, QImage::Format_RGB32);
    for (int Y = 0; Y < 200; ++Y)
        for (int X = 0; X < 200; ++X) Lines.setPixelColor(X, Y, X % 2 ? Qt::white : Qt::black);
    QByteArray Png;
    QBuffer Buffer(&Png);
    ASSERT_TRUE(Lines.save(&Buffer, "png"));
    Place(Document, {{}, Png}, {0, 0, 1, 1});
    Document.EndDoc();
    QImage Page(300, 300, QImage::Format_RGB32);
    Page.setDevicePixelRatio(2);
    Page.fill(Qt::red);
    QPainter Painter(&Page);
    Painter.translate(20, 10);
    Document.PaintPage(Painter, 1, 100);
    Painter.end();
    EXPECT_EQ(Page.pixelColor(39, 19), QColor(Qt::red));
    EXPECT_EQ(Page.pixelColor(40, 20), QColor(Qt::black));
    EXPECT_EQ(Page.pixelColor(41, 20), QColor(Qt::white));
    EXPECT_EQ(Page.pixelColor(239, 219), QColor(Qt::white));
    EXPECT_EQ(Page.pixelColor(240, 220), QColor(Qt::red));
}

TEST_F(PrintDocumentTest, WhatCannotBeReadAnyMoreIsStoodInFor) {
    const QString Gone = File("gone.jpg", Red, {40, 30});
    PrintDocument Document = Empty();
    Document.StartDoc();
    Place(Document, {Gone, {}}, {1, 1, 2, 2});
    Document.EndDoc();
    DeleteFile(Gone);
    QImage Page(400, 400, QImage::Format_RGB32);
    Page.fill(Qt::white);
    QPainter Painter(&Page);
    Document.PaintPage(Painter, 1, 100);
    EXPECT_EQ(WhereIs(Page, Qt::magenta, 100), QRectF(1, 1, 2, 2));
    DeleteFile(NoSlide());
    EXPECT_THROW(Document.PaintPage(Painter, 1, 100), Fault);
}

TEST_F(PrintDocumentTest, SheetsAreFilledCellByCellAndEndWithTheLastPicture) {
    QStringList Paths;
    for (int I = 0; I < 5; ++I) Paths << File(("p" + std::to_string(I)).c_str(), Red, {40, 30});
    PrintDocument Document = Empty();
    const auto Sheets = ComposeSheets(Document, Grid({2, 1}), {Paths});
    EXPECT_TRUE(Sheets.Whole);
    EXPECT_TRUE(Sheets.StoodInFor.isEmpty());
    ASSERT_EQ(Document.PageCount(), 3);
    EXPECT_EQ(Document.Orientation(), PageTurn::Landscape);
    EXPECT_EQ(Document.Margins(), QMarginsF(.25, .25, .25, .25));
    EXPECT_EQ(Document.PlacesOn(2).size(), 2U);
    EXPECT_EQ(Document.PlacesOn(3).size(), 1U);
    // (9 - 0.15) / 2 = 4.425 wide; 3 / 4 of it high.
    EXPECT_EQ(Document.PlacesOn(3)[0].Place, QRectF(1, 1, 4.425, 4.425 * 0.75));
    EXPECT_EQ(Document.PlacesOn(2)[1].Place.x(), 1 + 4.425 + 0.15);
    ComposeSheets(Document, Grid({2, 1}), {Paths.mid(1)});
    EXPECT_EQ(Document.PageCount(), 2) << "no empty page follows a full one";
}

TEST_F(PrintDocumentTest, AWholeSheetShowsOnePictureInEveryCell) {
    GridWish Wish{2, 3, PageTurn::Portrait};
    Wish.WholeSheet = true;
    PrintDocument Document = Empty();
    const QString First = File("a.jpg", Red, {40, 30}), Second = File("b.jpg", Blue, {40, 30});
    ComposeSheets(Document, Grid(Wish), {{First, Second, First}});
    ASSERT_EQ(Document.PageCount(), 3);
    for (int Page = 1; Page <= 3; ++Page) {
        ASSERT_EQ(Document.PlacesOn(Page).size(), 6U);
        for (const PlacedPicture& Placed : Document.PlacesOn(Page))
            EXPECT_EQ(Document.Picture(Placed.Picture).Path, Page == 2 ? Second : First);
    }
}

TEST_F(PrintDocumentTest, MissingAndDamagedPicturesAreStoodInForAndNamed) {
    const QString Gone = Folder / u"gone.jpg"_s, Torn = File("torn.jpg", Red, {400, 30});
    WriteFile(Torn, ReadFile(Torn).left(200));
    PrintDocument Document = Empty();
    const auto Sheets =
        ComposeSheets(Document, Grid({1, 1}), {{Gone, File("a.jpg", Red, {40, 30}), Torn}});
    EXPECT_EQ(Sheets.StoodInFor, (QStringList{Gone, Torn}));
    EXPECT_EQ(Document.PageCount(), 3);
    EXPECT_EQ(Document.Picture(Document.PlacesOn(3)[0].Picture).Path, NoSlide());
    // Four by three, within 9 by 6.5.
    EXPECT_NEAR(Document.PlacesOn(3)[0].Place.width(), 6.5 * 4 / 3, 1e-9);
    DeleteFile(NoSlide());
    EXPECT_THROW(ComposeSheets(Document, Grid({1, 1}), {{Gone}}), Fault);
}

TEST_F(PrintDocumentTest, ComposingTellsOfEveryPictureAndCanBeEnded) {
    const QString One = File("a.jpg", Red, {40, 30});
    PrintDocument Document = Empty();
    std::vector<int> Told;
    const auto Sheets = ComposeSheets(Document, Grid({1, 1}), {{One, One, One, One}},
                                      [&](const PrintProgress& Now) {
                                          EXPECT_EQ(Now.Total, 4);
                                          Told.push_back(Now.Done);
                                          return Now.Done < 2;
                                      });
    EXPECT_FALSE(Sheets.Whole);
    EXPECT_EQ(Told, (std::vector{1, 2}));
}

TEST_F(PrintDocumentTest, NoPicturesMakeNoPage) {
    PrintDocument Document = Empty();
    ComposeSheets(Document, Grid({1, 1}), {{File("a.jpg", Red, {40, 30})}});
    ComposeSheets(Document, Grid({1, 1}), {{}});
    EXPECT_EQ(Document.PageCount(), 0);
}

TEST_F(PrintDocumentTest, ASingleSlideStandsAloneAtItsSize) {
    const QString Wide = File("wide.jpg", Red, {400, 200});
    PrintDocument Document = Empty();
    ASSERT_TRUE(ComposeSlide(Document, {5, 1, PageTurn::Portrait}, Wide));
    ASSERT_EQ(Document.PageCount(), 1);
    ASSERT_EQ(Document.PlaceCount(), 1);
    EXPECT_EQ(Document.PlacesOn(1)[0].Place, QRectF(1, 1, 5, 2.5));
    EXPECT_EQ(Document.PageSize(), LetterPaper);
    const auto Refused = ComposeSlide(Document, {7, 1, PageTurn::Portrait}, Wide);
    EXPECT_EQ(Refused.Refusal().Text, u"Picture must be <= 6.5 inches wide.");
    EXPECT_TRUE(ComposeSlide(Document, {6.5, 6.5, PageTurn::Landscape}, Folder / u"gone"_s));
    EXPECT_EQ(Document.Picture(0).Path, NoSlide());
}

}  // namespace
}  // namespace neb
