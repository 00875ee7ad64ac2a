// Old-style metafiles, put together record by record.
#include "pictures/Metafiles.h"
#include "pictures/formats/PictureFaults.h"

using namespace neb;
using namespace neb::tests;

namespace {

// No pen, and a brush, both selected.
Wmf Filled(QColor C) {
    return Wmf().Pen(Qt::black, 5).Brush(C).Select(0).Select(1);
}

// Two by two pixels of 24 bits: below red and green, above blue and cyan.
const QByteArray SmallDib = QByteArray::fromHex(
    "28000000"
    "02000000"
    "02000000"
    "0100"
    "1800"
    "00000000"
    "10000000"
    "00000000"
    "00000000"
    "00000000"
    "00000000"
    "0000ff"
    "00ff00"
    "0000"
    "ff0000"
    "ffff00"
    "0000");

void ExpectAt(const QImage& Picture, int X, int Y, QColor Colour) {
    ASSERT_TRUE(Picture.valid(X, Y));
    EXPECT_LE(Distance(Picture.pixel(X, Y), Colour.rgb()), 1)
        << X << "," << Y << ": " << std::hex << Picture.pixel(X, Y);
}

// Whether something dark stands in a rectangle.
bool HasInk(const QImage& Picture, const QRect& Where) {
    for (int Y = Where.top(); Y <= Where.bottom(); ++Y)
        for (int X = Where.left(); X <= Where.right(); ++X)
            if (qGray(Picture.pixel(X, Y)) < 100) return true;
    return false;
}

}  // namespace

TEST(WmfPlayer, DrawsTheSampleWithShapesBitmapAndText) {
    const QImage Picture = Loaded(harness::DataFile("hand.wmf")).Picture();
    ASSERT_EQ(QSize(192, 192), Picture.size());
    ExpectAt(Picture, 50, 50, Qt::red);
    ExpectAt(Picture, 143, 48, Qt::red);
    ExpectAt(Picture, 48, 160, Qt::red);
    ExpectAt(Picture, 115, 115, Qt::blue);
    ExpectAt(Picture, 155, 115, Qt::cyan);
    ExpectAt(Picture, 115, 155, Qt::red);
    ExpectAt(Picture, 155, 155, Qt::green);
    ExpectAt(Picture, 5, 5, Qt::white);
    EXPECT_TRUE(HasInk(Picture, {20, 102, 34, 18}));
}

TEST(WmfPlayer, TheSizeIsThatOn96DotsAnInch) {
    QByteArray Bytes = Filled(Qt::red).Box(0, 0, 200, 100).Bytes();
    EXPECT_EQ(QSize(200, 100), Wmf::PlayedBytes(Bytes).size());
    Bytes[14] = char(192);
    EXPECT_EQ(QSize(100, 50), Wmf::PlayedBytes(Bytes).size());
}

TEST(WmfPlayer, WithoutAPlaceableHeaderTheWindowIsTheSize) {
    Wmf File;
    File.Add(0x020B, {-10, -20}).Add(0x020C, {60, 120});
    File.Brush(Qt::blue).Select(0).Pen(Qt::black, 5).Select(1).Box(-20, -10, 40, 20);
    const QImage Picture = File.Played(false);
    ASSERT_EQ(QSize(120, 60), Picture.size());
    ExpectAt(Picture, 2, 2, Qt::blue);
    ExpectAt(Picture, 57, 27, Qt::blue);
    ExpectAt(Picture, 63, 33, Qt::white);
}

TEST(WmfPlayer, AWindowThatGrowsUpwardsTurnsTheDrawing) {
    Wmf File;
    File.Add(0x020B, {100, 0}).Add(0x020C, {-100, 200});
    File.Brush(Qt::blue).Select(0).Pen(Qt::black, 5).Select(1).Box(0, 0, 100, 50);
    const QImage Picture = File.Played();
    ExpectAt(Picture, 50, 75, Qt::blue);
    ExpectAt(Picture, 50, 25, Qt::white);
}

TEST(WmfPlayer, SavedStateComesBackWithClipAndBrush) {
    Wmf File = Filled(Qt::red);
    File.Add(0x001E, {}).Add(0x0416, {100, 50, 0, 0});
    File.Brush(Qt::blue).Select(2).Box(0, 0, 200, 100);
    File.Add(0x0127, {-1}).Box(150, 0, 200, 100);
    const QImage Picture = File.Played();
    ExpectAt(Picture, 25, 50, Qt::blue);
    ExpectAt(Picture, 100, 50, Qt::white);
    ExpectAt(Picture, 175, 50, Qt::red);
}

TEST(WmfPlayer, SeveralPolygonsLeaveHolesWhereTheyOverlap) {
    Wmf File = Filled(Qt::red);
    File.Add(0x0538, {2, 4, 4, 0, 0, 100, 0, 100, 100, 0, 100, 25, 25, 75, 25, 75, 75, 25, 75});
    const QImage Picture = File.Played();
    ExpectAt(Picture, 10, 50, Qt::red);
    ExpectAt(Picture, 50, 50, Qt::white);
}

TEST(WmfPlayer, DrawingTwiceByExclusionGivesTheGroundBack) {
    Wmf File = Filled(Qt::white);
    File.Add(0x0104, {7}).Box(0, 0, 100, 100).Box(50, 0, 150, 100);
    const QImage Picture = File.Played();
    ExpectAt(Picture, 25, 50, Qt::black);
    ExpectAt(Picture, 75, 50, Qt::white);
    ExpectAt(Picture, 125, 50, Qt::black);
    EXPECT_EQ(0xFFU, Picture.pixel(25, 50) >> 24);
}

TEST(WmfPlayer, DeletedPlacesInTheTableAreUsedAgain) {
    Wmf File = Filled(Qt::red);
    File.Add(0x01F0, {1}).Brush(Qt::green).Select(1).Box(0, 0, 200, 100);
    ExpectAt(File.Played(), 100, 50, Qt::green);
}

TEST(WmfPlayer, LinesHaveTheirWidthInUnits) {
    Wmf File;
    File.Pen(Qt::red, 0, 20).Select(0).Add(0x0214, {50, 0}).Add(0x0213, {50, 200});
    const QImage Picture = File.Played();
    ExpectAt(Picture, 100, 42, Qt::red);
    ExpectAt(Picture, 100, 58, Qt::red);
    ExpectAt(Picture, 100, 36, Qt::white);
}

TEST(WmfPlayer, APieIsCutCounterClockwiseFromTheFirstRay) {
    Wmf File = Filled(Qt::red);
    // From the ray to the right to the ray straight up: the upper right quarter.
    File.Add(0x081A, {0, 50, 50, 100, 100, 100, 0, 0});
    const QImage Picture = File.Played();
    ExpectAt(Picture, 65, 35, Qt::red);
    ExpectAt(Picture, 35, 35, Qt::white);
    ExpectAt(Picture, 65, 65, Qt::white);
}

TEST(WmfPlayer, APieBetweenOneRayAndItselfIsWhole) {
    Wmf File = Filled(Qt::red);
    File.Add(0x081A, {50, 100, 50, 100, 100, 100, 0, 0});
    const QImage Picture = File.Played();
    for (const QPoint At : {QPoint(65, 35), {35, 35}, {65, 65}})
        ExpectAt(Picture, At.x(), At.y(), Qt::red);
}

TEST(WmfPlayer, BitmapsAreMirroredByNegativeMeasures) {
    Wmf File;
    File.Add(0x0B41, {0x20, 0xCC, 2, 2, 0, 0, 100, -100, 0, 100}, SmallDib);
    const QImage Picture = File.Played();
    ExpectAt(Picture, 25, 25, Qt::cyan);
    ExpectAt(Picture, 75, 25, Qt::blue);
    ExpectAt(Picture, 25, 75, Qt::green);
}

TEST(WmfPlayer, APartOfABitmapIsCountedFromTheTopOrTheBottomAsTheRecordHasIt) {
    Wmf FromTop, FromBottom;
    FromTop.Add(0x0B41, {0x20, 0xCC, 1, 1, 0, 0, 100, 100, 0, 0}, SmallDib);
    FromBottom.Add(0x0F43, {0x20, 0xCC, 0, 1, 1, 0, 0, 100, 100, 0, 0}, SmallDib);
    ExpectAt(FromTop.Played(), 50, 50, Qt::blue);
    ExpectAt(FromBottom.Played(), 50, 50, Qt::red);
}

TEST(WmfPlayer, ABitmapRecordWithoutBitmapFillsByItsRule) {
    Wmf File = Filled(Qt::red);
    File.Add(0x0940, {0x21, 0xF0, 0, 0, 0, 50, 50, 10, 10});
    File.Add(0x061D, {0x42, 0, 50, 50, 10, 100});
    const QImage Picture = File.Played();
    ExpectAt(Picture, 30, 30, Qt::red);
    ExpectAt(Picture, 120, 30, Qt::black);
    ExpectAt(Picture, 80, 30, Qt::white);
}

TEST(WmfPlayer, DamagedBitmapsAreLeftAwayAndTheRestIsDrawn) {
    Wmf File = Filled(Qt::red);
    File.Add(0x0B41, {0x20, 0xCC, 2, 2, 0, 0, 100, 100, 0, 0}, SmallDib.left(50));
    ExpectAt(File.Box(100, 0, 200, 100).Played(), 150, 50, Qt::red);
}

TEST(WmfPlayer, TextStandsWhereItsAlignmentSays) {
    const auto Text = [](int Align, int X, int Y) {
        Wmf File;
        File.Add(0x02FB, {-20, 0, 0, 0, 400, 0, 0, 0, 0}, "DejaVu Sans").Select(0);
        File.Add(0x0102, {1}).Add(0x012E, {Align});
        File.Add(0x0A32, {Y, X, 3, 0}, "HHH");
        return File.Played();
    };
    EXPECT_TRUE(HasInk(Text(0, 100, 50), {100, 50, 45, 24}));
    EXPECT_FALSE(HasInk(Text(0, 100, 50), {0, 0, 200, 50}));
    EXPECT_TRUE(HasInk(Text(24 | 2, 100, 50), {50, 30, 49, 20}));
    EXPECT_FALSE(HasInk(Text(24 | 2, 100, 50), {101, 0, 99, 100}));
    EXPECT_FALSE(HasInk(Text(24, 100, 50), {0, 52, 200, 48}));
}

TEST(WmfPlayer, TextIsClippedToItsBoxWhereTheRecordSaysSo) {
    Wmf File;
    File.Add(0x02FB, {-40, 0, 0, 0, 400, 0, 0, 0, 0}, "DejaVu Sans").Select(0);
    File.Add(0x0102, {1}).Add(0x0A32, {10, 0, 5, 4, 0, 0, 40, 100}, "HHHHH");
    const QImage Picture = File.Played();
    EXPECT_TRUE(HasInk(Picture, {0, 0, 40, 100}));
    EXPECT_FALSE(HasInk(Picture, {42, 0, 150, 100}));
}

TEST(WmfPlayer, AFileThatCarriesABrokenDrawingIsPlayedItself) {
    QByteArray Bytes = ReadFile(harness::DataFile("draw.wmf"));
    const qsizetype Inner = Bytes.indexOf(" EMF") - 40;
    for (int I = 0; I < 80; ++I) Bytes[Inner + 120 + I] = char(0xFF);
    const QImage Picture = Wmf::PlayedBytes(Bytes);
    ExpectAt(Picture, 80, 50, Qt::red);
    ExpectAt(Picture, 266, 76, Qt::blue);
    ExpectAt(Picture, 300, 230, QColor(255, 165, 0));
}

TEST(WmfPlayer, AFileThatDoesNotReachItsEndMarkIsDamaged) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("cut.wmf");
    const QByteArray Bytes = Filled(Qt::red).Box(0, 0, 200, 100).Bytes();
    WriteFile(File, Bytes.chopped(6));
    EXPECT_EQ(FaultEndsEarly, FaultOf(File));
}

// Black ink on white, from the first pixel to the last.
TEST(WmfPlayer, TheRightmostAndTheLowestLineAreWholePixels) {
    Wmf File;
    File.Pen(Qt::black).Select(0);
    File.Add(0x0214, {0, 199}).Add(0x0213, {99, 199}).Add(0x0214, {99, 0}).Add(0x0213, {99, 199});
    File.Add(0x0214, {0, 0}).Add(0x0213, {0, 199}).Add(0x0214, {0, 0}).Add(0x0213, {99, 0});
    const QImage Picture = File.Played();
    ASSERT_EQ(QSize(200, 100), Picture.size());
    for (const QPoint Edge : {QPoint(0, 50), {199, 50}, {100, 0}, {100, 99}})
        ExpectAt(Picture, Edge.x(), Edge.y(), Qt::black);
    for (const QPoint Inside : {QPoint(1, 50), {198, 50}, {100, 1}, {100, 98}})
        ExpectAt(Picture, Inside.x(), Inside.y(), Qt::white);
}

TEST(WmfPlayer, ABoxEndsWithTheLastPixelBeforeItsRightAndLowerEdge) {
    Wmf File;
    File.Pen(Qt::black).Brush(Qt::red).Select(0).Select(1).Box(0, 0, 200, 100);
    const QImage Picture = File.Played();
    ASSERT_EQ(QSize(200, 100), Picture.size());
    for (const QPoint Edge : {QPoint(0, 50), {199, 50}, {100, 0}, {100, 99}})
        ExpectAt(Picture, Edge.x(), Edge.y(), Qt::black);
    for (const QPoint Inside : {QPoint(1, 50), {198, 50}, {100, 1}, {100, 98}})
        ExpectAt(Picture, Inside.x(), Inside.y(), Qt::red);
}

TEST(WmfPlayer, ALineOnTheVeryEdgeOfTheFrameIsNotCut) {
    Wmf File = Filled(Qt::red);
    File.Box(0, 0, 200, 100).Pen(Qt::black).Select(2);
    File.Add(0x0214, {0, 200}).Add(0x0213, {100, 200}).Add(0x0213, {100, 0});
    const QImage Picture = File.Played();
    ASSERT_EQ(QSize(201, 101), Picture.size());
    ExpectAt(Picture, 200, 50, Qt::black);
    ExpectAt(Picture, 100, 100, Qt::black);
    ExpectAt(Picture, 199, 99, Qt::red);
}

TEST(WmfPlayer, WhatReachesALittleBeyondTheFrameIsSeenWhole) {
    Wmf File = Filled(Qt::red);
    File.Box(50, 50, 208, 104);
    const QImage Picture = File.Played();
    ASSERT_EQ(QSize(208, 104), Picture.size());
    ExpectAt(Picture, 207, 103, Qt::red);
    ExpectAt(Picture, 50, 50, Qt::red);
    ExpectAt(Picture, 49, 49, Qt::white);
    Wmf Before = Filled(Qt::red);
    const QImage Left = Before.Box(-8, -4, 100, 50).Played();
    ASSERT_EQ(QSize(208, 104), Left.size());
    ExpectAt(Left, 0, 0, Qt::red);
    ExpectAt(Left, 107, 53, Qt::red);
    ExpectAt(Left, 108, 54, Qt::white);
}

TEST(WmfPlayer, ADrawingBesideItsFrameIsThePictureInItsPlace) {
    Wmf File = Filled(Qt::red);
    File.Box(60, 40, 250, 130).Brush(Qt::blue).Select(2).Box(240, 120, 250, 130);
    const QImage Picture = File.Played();
    ASSERT_EQ(QSize(190, 90), Picture.size());
    ExpectAt(Picture, 0, 0, Qt::red);
    ExpectAt(Picture, 189, 89, Qt::blue);
    ExpectAt(Picture, 180, 80, Qt::blue);
    ExpectAt(Picture, 179, 79, Qt::red);
}

TEST(WmfPlayer, WhatIsNotSeenDoesNotStretchThePicture) {
    const auto SizeWith = [](Wmf File) { return File.Played().size(); };
    Wmf White = Filled(Qt::white), Hollow = Filled(Qt::red), Clipped = Filled(Qt::red),
        Far = Filled(Qt::red), Text;
    EXPECT_EQ(QSize(200, 100), SizeWith(White.Box(-50, -50, 300, 200)));
    EXPECT_EQ(QSize(200, 100), SizeWith(Hollow.Brush(Qt::red, 1).Select(2).Box(0, 0, 300, 200)));
    EXPECT_EQ(QSize(200, 100), SizeWith(Clipped.Add(0x0416, {100, 200, 0, 0}).Box(0, 0, 300, 200)));
    EXPECT_EQ(QSize(200, 100), SizeWith(Far.Box(0, 0, 20000, 50)));
    EXPECT_EQ(QSize(200, 100), SizeWith(Text.Add(0x0A32, {95, 190, 5, 0}, "HHHHH")));
}

TEST(WmfPlayer, WithoutHeaderAndWindowTheDrawingIsTheSize) {
    Wmf File = Filled(Qt::red);
    File.Box(30, 20, 130, 90).Brush(Qt::blue).Select(2).Box(120, 80, 130, 90);
    const QImage Picture = File.Played(false);
    ASSERT_EQ(QSize(100, 70), Picture.size());
    ExpectAt(Picture, 0, 0, Qt::red);
    ExpectAt(Picture, 99, 69, Qt::blue);
}

TEST(WmfPlayer, EnlargedBitmapsKeepTheirSquares) {
    Wmf File = Filled(Qt::white);
    File.Box(0, 0, 200, 100).Add(0x0B41, {0x20, 0xCC, 2, 2, 0, 0, 100, 200, 0, 0}, SmallDib);
    const QImage Picture = File.Played();
    ExpectAt(Picture, 97, 20, Qt::blue);
    ExpectAt(Picture, 103, 20, Qt::cyan);
    ExpectAt(Picture, 97, 80, Qt::red);
    ExpectAt(Picture, 20, 47, Qt::blue);
    ExpectAt(Picture, 20, 53, Qt::red);
}
