// Texts on pages: within their places, alike on the screen and in a PDF; captions and feet of
// sheets.
#include "printing/TextLines.h"

#include <atomic>
#include <thread>

#include "harness/ByTheClock.h"
#include "printing/PdfWriter.h"
#include "printing/PrintRig.h"
#include "printing/SheetComposer.h"

namespace neb {
namespace {

using namespace tests;

QPainterPath OutlinesOf(const PlacedText& Text) {
    return InkOf(Text).Outlines;
}

QRectF BoxOf(const QString& Text, const QRectF& Place, TextSide Side = TextSide::Left) {
    return OutlinesOf({Text, Place, Side}).boundingRect();
}

void ExpectWithin(const QRectF& Box, const QRectF& Place) {
    constexpr double Overhang = 0.02;  // of a letter that leans out of its own room
    EXPECT_FALSE(Box.isEmpty());
    EXPECT_GE(Box.left(), Place.left() - Overhang);
    EXPECT_GE(Box.top(), Place.top() - Overhang);
    EXPECT_LE(Box.right(), Place.right() + Overhang);
    EXPECT_LE(Box.bottom(), Place.bottom() + Overhang);
}

TEST(TextLines, ATextStandsAtTheSideThatItIsGiven) {
    const QRectF Place(1, 2, 3, 0.3);
    EXPECT_NEAR(BoxOf(u"Lamp"_s, Place).left(), 1, 0.02);
    EXPECT_LT(BoxOf(u"Lamp"_s, Place).right(), 2);
    EXPECT_NEAR(BoxOf(u"Lamp"_s, Place, TextSide::Right).right(), 4, 0.02);
    ExpectWithin(BoxOf(u"Lamp"_s, Place), Place);
}

TEST(TextLines, ALineTakesAsMuchRoomAsNinePointsDo) {
    const double Height = BoxOf(u"Hg"_s, {0, 0, 3, 0.3}).height();
    EXPECT_GT(Height, 0.08);
    EXPECT_LT(Height, 0.15);
}

TEST(TextLines, WhatHasNoRoomInALineGoesOnInTheNext) {
    const QString Long = u"a summer at the lake with everybody"_s;
    const QRectF OneLine(0, 0, 1.5, 0.16), TwoLines(0, 0, 1.5, 0.34);
    ExpectWithin(BoxOf(Long, OneLine), OneLine);
    ExpectWithin(BoxOf(Long, TwoLines), TwoLines);
    EXPECT_GT(BoxOf(Long, TwoLines).height(), BoxOf(Long, OneLine).height() + 0.1);
    EXPECT_GT(BoxOf(u"one\ntwo"_s, TwoLines).height(),
              BoxOf(u"one two"_s, TwoLines).height() + 0.1);
}

TEST(TextLines, WhatHasNoRoomAtAllIsCutShortByAnEllipsis) {
    const QRectF Place(0, 0, 1.5, 0.34);
    const QString Endless = u"word "_s.repeated(100);
    ExpectWithin(BoxOf(Endless, Place), Place);
    ExpectWithin(BoxOf(u"unbroken"_s.repeated(100), Place), Place);
    ExpectWithin(BoxOf(u"line\n"_s.repeated(100), Place), Place);
    const QRectF OneLine(0, 0, 0.6, 0.16);
    EXPECT_EQ(OutlinesOf({u"lamps of the garden"_s, OneLine}).elementCount(),
              OutlinesOf({u"lamps of the gardens and more"_s, OneLine}).elementCount());
}

// A file that was loaded may hold any text: whoever prints it waits for each of them.
TEST(TextLines, ATextBeyondAllMeasureIsShortenedAsQuicklyAsALongOne) {
    const QRectF Place(0, 0, 1.5, 0.34);
    const QPainterPath Expected = OutlinesOf({u"unbroken"_s.repeated(500), Place});
    const double Begun = harness::WorkedMs();
    EXPECT_EQ(Expected, OutlinesOf({u"unbroken"_s.repeated(30000), Place}));
    EXPECT_LT(harness::WorkedMs() - Begun, 1000);
    EXPECT_GT(BoxOf(u"unbroken"_s.repeated(30000), {0, 0, 1.5, 100}).height(), 1);
}

TEST(TextLines, InALowPlaceTheLettersAreSmaller) {
    const QRectF Low(0, 0, 2, 0.05);
    ExpectWithin(BoxOf(u"Hg"_s, Low), Low);
}

TEST(TextLines, ABlankTextHasNoOutlines) {
    EXPECT_TRUE(BoxOf(u" \n "_s, {0, 0, 2, 1}).isEmpty());
}

// A font may have an emoji as a picture alone.
TEST(TextLines, AnEmojiIsDrawnAndTheWordsAroundItStayRight) {
    const QRectF Place(1, 2, 3, 0.3);
    const TextInk Ink = InkOf({u"Rose \U0001F9C1 Lamp"_s, Place});
    ASSERT_EQ(1u, Ink.Emojis.size());
    ExpectWithin(Ink.Emojis[0].Place, Place);
    const QImage Shown = Ink.Emojis[0].Picture.convertToFormat(QImage::Format_ARGB32);
    int Coloured = 0;
    for (int Y = 0; Y < Shown.height(); ++Y)
        for (int X = 0; X < Shown.width(); ++X) Coloured += qAlpha(Shown.pixel(X, Y)) > 128;
    EXPECT_GT(Coloured, Shown.width() * Shown.height() / 5);
    const QRectF Rose = BoxOf(u"Rose"_s, Place);
    EXPECT_GT(Ink.Emojis[0].Place.left(), Rose.right());
    QPainterPath Under;
    Under.addRect(Ink.Emojis[0].Place.adjusted(0.01, 0, -0.01, 0));
    EXPECT_FALSE(Ink.Outlines.intersects(Under)) << "no letter lies over it";
    EXPECT_GT(Ink.Outlines.boundingRect().right(), Ink.Emojis[0].Place.right()) << "Lamp follows";
}

// The size of the letter at the left, in thousandths of an inch.
QSize LeftmostShape(const QString& Text) {
    QRectF Found;
    for (const QPolygonF& Each : OutlinesOf({Text, {0, 0, 4, 0.3}}).toSubpathPolygons()) {
        const QRectF Box = Each.boundingRect();
        if (Found.isNull() || Box.left() < Found.left()) Found = Box;
    }
    return (Found.size() * 1000).toSize();
}

TEST(TextLines, WordsReadFromTheRightStandOnTheirSideInTheirOwnOrder) {
    const QRectF Place(0, 0, 4, 0.3);
    EXPECT_NEAR(BoxOf(u"שלום"_s, Place).left(), 0, 0.03) << "under its picture";
    EXPECT_NEAR(BoxOf(u"مرحبا 12"_s, Place).left(), 0, 0.03);
    EXPECT_NEAR(BoxOf(u"Лето"_s, Place).left(), 0, 0.03);
    EXPECT_EQ(LeftmostShape(u"LWM"_s), LeftmostShape(u"ש LWM"_s)) << "it goes on at the left";
    EXPECT_NE(LeftmostShape(u"LWM"_s), LeftmostShape(u"ש"_s));
}

TEST(TextLines, ThreadsMayMakeThemSideBySide) {
    const PlacedText Text{u"a summer at the lake with everybody"_s, {0, 0, 1.5, 0.34}};
    const QPainterPath Expected = OutlinesOf(Text);
    std::vector<std::thread> Threads;
    std::atomic<int> Alike = 0;
    for (int I = 0; I < 4; ++I)
        Threads.emplace_back([&] {
            for (int J = 0; J < 20; ++J) Alike += OutlinesOf(Text) == Expected;
        });
    for (std::thread& Each : Threads) Each.join();
    EXPECT_EQ(80, Alike);
}

class TextsOnPages : public ::testing::Test {
  protected:
    TextsOnPages() { SaveJpeg(Picture(), Plain(Qt::magenta, {80, 60})); }
    QString Picture() const { return Folder / u"picture.jpg"_s; }
    // Each text with its place, a line each.
    static std::string Texts(const PrintDocument& Document, int Page) {
        QStringList Lines;
        for (const PlacedText& Each : Document.TextsOn(Page)) {
            const QRectF& P = Each.Place;
            Lines << u"%1 %2,%3 %4x%5"_s.arg(Each.Text).arg(P.x()).arg(P.y()).arg(P.width()).arg(
                         P.height()) +
                         (Each.Side == TextSide::Right ? u" right"_s : QString());
        }
        return Lines.join(u'\n').toStdString();
    }
    PrintDocument Composed(GridWish Wish, const SheetContents& Contents) const {
        PrintDocument Document({Picture(), {}});
        auto Grid = GridFor(Wish);
        EXPECT_TRUE(Grid);
        ComposeSheets(Document, *Grid, Contents);
        return Document;
    }

    harness::TempFolder Folder;
};

// A share of the dark dots that only one of the two pages has.
double Difference(const QImage& One, const QImage& Other) {
    int Dark = 0, Differing = 0;
    for (int Y = 0; Y < One.height(); ++Y)
        for (int X = 0; X < One.width(); ++X) {
            const bool InOne = qGray(One.pixel(X, Y)) < 128,
                       InOther = qGray(Other.pixel(X, Y)) < 128;
            Dark += InOne || InOther;
            Differing += InOne != InOther;
        }
    return Dark > 0 ? static_cast<double>(Differing) / Dark : 1;
}

TEST_F(TextsOnPages, LookAlikeOnTheScreenAndInAPdf) {
    PrintDocument Document({Picture(), {}});
    Document.StartDoc();
    Document.DrawText({u"Roses of the garden, and (in brackets) more of them"_s, {1, 1, 2, 0.34}});
    Document.DrawText({u"17 / 24"_s, {1, 2, 6.5, 0.2}, TextSide::Right});
    Document.EndDoc();
    WritePdf(Document, Folder / u"out.pdf"_s);
    const QImage InPdf = PageIn(Folder / u"out.pdf"_s, 1);
    QImage OnScreen(InPdf.size(), QImage::Format_RGB32);
    OnScreen.fill(Qt::white);
    QPainter Painter(&OnScreen);
    Document.PaintPage(Painter, 1, DotsToTheInch);
    Painter.end();
    EXPECT_LT(Difference(OnScreen, InPdf), 0.1);
}

// By hand: on a page that lies, two columns are 4.425 wide; a row is 6.5 high, of which the caption
// has 0.34. A picture of 4 to 3 is then 4.425 by 3.31875, the caption 0.04 below it.
TEST_F(TextsOnPages, CaptionsStandUnderTheirPicturesWithinTheCells) {
    const PrintDocument Document = Composed({.PerRow = 2, .RowsPerPage = 1, .Captions = true},
                                            {{Picture(), Picture()}, {u"Lamp"_s, u"Rose"_s}});
    EXPECT_EQ("Lamp 1,4.35875 4.425x0.3\nRose 5.575,4.35875 4.425x0.3", Texts(Document, 1));
    EXPECT_DOUBLE_EQ(4.425, Document.PlacesOn(1)[0].Place.width());
    EXPECT_DOUBLE_EQ(3.31875, Document.PlacesOn(1)[0].Place.height());
}

TEST_F(TextsOnPages, APictureThatFillsItsCellLeavesRoomForTheCaption) {
    const PrintDocument Document =
        Composed({.PerRow = 1, .RowsPerPage = 1, .KeepsRatio = false, .Captions = true},
                 {{Picture()}, {u"Lamp"_s}});
    EXPECT_DOUBLE_EQ(6.16, Document.PlacesOn(1)[0].Place.height());
    EXPECT_EQ("Lamp 1,7.2 9x0.3", Texts(Document, 1));
}

TEST_F(TextsOnPages, InALowCellTheCaptionHasAThird) {
    auto Grid = GridFor({.PerRow = 3, .RowsPerPage = 9, .Captions = true});
    ASSERT_TRUE(Grid);
    EXPECT_NEAR((6.5 - 8 * 0.15) / 9 / 3, Grid->CaptionHeight, 1e-12);
}

TEST_F(TextsOnPages, WithoutTheWishThereAreNone) {
    const PrintDocument Document = Composed({}, {{Picture()}, {u"Lamp"_s}});
    EXPECT_EQ("", Texts(Document, 1));
    EXPECT_EQ(0, Document.TextsOn(1).size());
}

TEST_F(TextsOnPages, AnEmptyCaptionTakesNoPlaceAmongTheTexts) {
    const PrintDocument Document = Composed({.Captions = true}, {{Picture()}, {QString()}});
    EXPECT_EQ("", Texts(Document, 1));
}

TEST_F(TextsOnPages, OnAWholeSheetEachCopyHasTheCaption) {
    const PrintDocument Document =
        Composed({.PerRow = 2, .RowsPerPage = 1, .WholeSheet = true, .Captions = true},
                 {{Picture()}, {u"Lamp"_s}});
    EXPECT_EQ("Lamp 1,4.35875 4.425x0.3\nLamp 5.575,4.35875 4.425x0.3", Texts(Document, 1));
}

TEST_F(TextsOnPages, EachPageHasItsNumberAndTheNameAtItsFoot) {
    SheetContents Contents{{Picture(), Picture(), Picture()}, {}, u"Garden"_s, true};
    const GridWish TwoAPage{.PerRow = 2, .RowsPerPage = 1, .Turn = PageTurn::Portrait};
    const PrintDocument Both = Composed(TwoAPage, Contents);
    EXPECT_EQ("1 / 2 5.33333,10.2 2.16667x0.2 right\nGarden 1,10.2 4.33333x0.2", Texts(Both, 1));
    EXPECT_EQ("2 / 2 5.33333,10.2 2.16667x0.2 right\nGarden 1,10.2 4.33333x0.2", Texts(Both, 2));
    Contents.PageNumbers = false;
    EXPECT_EQ("Garden 1,10.2 6.5x0.2", Texts(Composed(TwoAPage, Contents), 2));
    Contents = {{Picture()}, {}, {}, true};
    EXPECT_EQ("1 / 1 5.33333,10.2 2.16667x0.2 right", Texts(Composed(TwoAPage, Contents), 1));
}

// The foot lies on the page, whatever the paper.
TEST_F(TextsOnPages, TheFootIsOnThePaper) {
    for (const QSizeF Paper : {LetterPaper, A4Paper})
        for (const PageTurn Turn : {PageTurn::Portrait, PageTurn::Landscape}) {
            PrintDocument Document({Picture(), {}}, Paper);
            Document.SetOrientation(Turn);
            const QRectF Sheet({}, Document.PageSize());
            EXPECT_TRUE(Sheet.adjusted(0.25, 0.25, -0.25, -0.25).contains(FootPlace(Turn)));
        }
}

TEST_F(TextsOnPages, TheContentOfAPageIsWhatStandsOnIt) {
    PrintDocument Document({Picture(), {}});
    Document.StartDoc();
    Place(Document, {Picture(), {}}, {1, 1, 2, 2});
    Document.DrawText({u"Lamp"_s, {1, 3, 3, 0.5}});
    Document.NewPage();
    Document.EndDoc();
    EXPECT_EQ(QRectF(1, 1, 3, 2.5), Document.ContentOf(1));
    EXPECT_TRUE(Document.ContentOf(2).isEmpty());
    EXPECT_THROW(Document.DrawText({u"late"_s, {1, 3, 3, 0.5}}), Fault);
}

}  // namespace
}  // namespace neb
