// Fitting, turning, writing, and what a load that fails says.
#include <QBuffer>
#include <cmath>

#include "pictures/JpegWriter.h"
#include "pictures/LinearLight.h"
#include "pictures/PictureResize.h"
#include "pictures/Pictures.h"
#include "pictures/formats/PictureFaults.h"

using namespace neb;
using namespace neb::tests;

namespace {

struct FitCase {
    QSize Full, Fitted;
};

double NoiseRatio(const QImage& A, const QImage& B) {
    double Sum = 0;
    for (int Y = 0; Y < A.height(); ++Y)
        for (int X = 0; X < A.width(); ++X)
            Sum += std::pow(qGreen(A.pixel(X, Y)) - qGreen(B.pixel(X, Y)), 2);
    return 10 * std::log10(255 * 255 / (Sum / (A.width() * A.height())));
}

// Fine rings, in which bad resizing shows at once.
QImage Rings(QSize Size) {
    QImage Picture(Size, QImage::Format_RGB32);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X) {
            const int L = int(128 + 100 * std::sin((X * X + Y * Y) / 40000.0));
            Picture.setPixel(X, Y, qRgb(L, L, L));
        }
    return Picture;
}

QByteArray Segment(const QByteArray& Jpeg, uchar Marker) {
    for (qsizetype At = 2; At + 4 <= Jpeg.size() && uchar(Jpeg[At]) == 0xFF;) {
        const qsizetype Length = uchar(Jpeg[At + 2]) * 256 + uchar(Jpeg[At + 3]);
        if (uchar(Jpeg[At + 1]) == Marker) return Jpeg.mid(At + 4, Length - 2);
        if (uchar(Jpeg[At + 1]) == 0xDA) break;
        At += 2 + Length;
    }
    return {};
}

ImgX Holding(const QImage& Picture) {
    ImgX Held;
    Held.SetPicture(Picture);
    return Held;
}

}  // namespace

TEST(ImgX, WhatHasNoPixelsCannotBeWrittenAndSaysSo) {
    try {
        EncodeJpeg(QImage(), 90);
        FAIL();
    } catch (const Fault& Problem) {
        EXPECT_EQ(FaultNotSaved, Problem.Number());
    }
}

TEST(FitSize, FollowsTheRuleExactly) {
    const FitCase Cases[] = {{{1024, 768}, {1024, 768}},
                             {{1025, 768}, {1024, 767}},
                             {{1025, 800}, {984, 768}},
                             {{2048, 1536}, {1024, 768}},
                             {{768, 1024}, {576, 768}},
                             {{1, 5000}, {1, 768}},
                             {{5000, 1}, {1024, 1}},
                             {{640, 480}, {640, 480}},
                             {{1, 1}, {1, 1}},
                             {{1023, 769}, {1022, 768}},
                             {{4000, 3000}, {1024, 768}},
                             {{6000, 4000}, {1024, 683}},
                             // Exact halves: 512.5 and 513.5 go to the even neighbour.
                             {{1025, 1536}, {512, 768}},
                             {{1027, 1536}, {514, 768}},
                             {{2048, 3}, {1024, 2}},
                             {{2048, 1}, {1024, 1}},
                             {{2048, 5}, {1024, 2}},
                             {{1024, 769}, {1023, 768}}};
    for (const FitCase& Case : Cases)
        EXPECT_EQ(Case.Fitted, FitSize(Case.Full))
            << Case.Full.width() << " by " << Case.Full.height();
}

TEST(ImgX, AQuarterTurnRightMovesTopLeftToTopRight) {
    ImgX Picture = Holding(Motif());
    Picture.Rotate(90);
    EXPECT_EQ(QSize(32, 48), QSize(Picture.Width(), Picture.Height()));
    EXPECT_EQ(QSize(32, 48), Picture.FullSize());
    ExpectFields(Picture.Picture(), Blue, Red, Grey, Green, 0);
    Picture.Rotate(-90);
    EXPECT_EQ(Motif(), Picture.Picture());
}

TEST(ImgX, FourTurnsEitherWayAndTwoFlipsGiveThePictureBack) {
    ImgX Picture = Holding(Motif());
    for (int Degrees : {90, 90, 90, 90, -90, -90, -90, -90, 180, -180, 360})
        Picture.Rotate(Degrees);
    for (int Selector : {0, 0, 1, 1}) Picture.Flip(Selector);
    EXPECT_EQ(Motif(), Picture.Picture());
    EXPECT_EQ(QImage::Format_RGB32, Picture.Picture().format());
}

TEST(ImgX, FlipsGoLeftToRightAndTopToBottom) {
    ImgX Picture = Holding(Motif());
    Picture.Flip(0);
    ExpectFields(Picture.Picture(), Green, Red, Grey, Blue, 0);
    Picture.Flip(0);
    Picture.Flip(1);
    ExpectFields(Picture.Picture(), Blue, Grey, Red, Green, 0);
}

TEST(ImgX, ATurnByAnotherAngleLeavesWhiteCorners) {
    ImgX Picture = Holding(Fields(Red, Red, Red, Red));
    Picture.Rotate(45);
    ExpectNear(Picture.Picture(), 0.02, 0.02, Qt::white, 0);
    ExpectNear(Picture.Picture(), 0.5, 0.5, Red, 0);
}

TEST(ImgX, ResizingGivesExactlyTheSizeAskedForAndKeepsPlainColours) {
    for (int Selector : {3, 4})
        for (const QSize Size : {QSize(7, 5), QSize(72, 72), QSize(48, 32), QSize(301, 203)}) {
            ImgX Picture = Holding(Motif({480, 320}));
            Picture.Resize(Size.width(), Size.height(), Selector);
            EXPECT_EQ(Size, Picture.Picture().size());
            EXPECT_EQ(0xFFU, Picture.Picture().pixel(0, 0) >> 24);
            ExpectNear(Picture.Picture(), 0.25, 0.25, Red, Size.width() < 10 ? 12 : 1);
            ExpectNear(Picture.Picture(), 0.02, 0.98, Blue, Size.width() < 10 ? 12 : 1);
        }
}

TEST(ImgX, ThumbnailResizingIsTheMeanOfWhatIsCovered) {
    QImage Checks(144, 144, QImage::Format_RGB32);
    for (int Y = 0; Y < 144; ++Y)
        for (int X = 0; X < 144; ++X)
            Checks.setPixel(X, Y, (X + Y) % 2 ? qRgb(0, 0, 0) : qRgb(200, 100, 50));
    const QImage Small = ResizePicture(Checks, {72, 72}, ResizeFilter::Area);
    const auto Mean = [](int Value) {
        return int(Light().FromLight[(Light().ToLight[Value] + 1) / 2]);
    };
    EXPECT_GT(Mean(200), 140) << "half of the light looks brighter than half of the number";
    for (int I = 0; I < 72; ++I)
        EXPECT_EQ(qRgb(Mean(200), Mean(100), Mean(50)), Small.pixel(I, 71 - I));
}

TEST(ImgX, ResizingToNothingOrToAGiantIsAFault) {
    ImgX Picture = Holding(Motif());
    EXPECT_THROW(Picture.Resize(0, 10, 3), Fault);
    EXPECT_THROW(Picture.Resize(60000, 60000, 3), Fault);
    EXPECT_EQ(48, Picture.Width());
}

TEST(ImgX, AJpegHasItsColoursAtFullResolutionAndNothingElseInIt) {
    const QByteArray Jpeg = Holding(Motif({1024, 768})).ToJpeg();
    const QByteArray Frame = Segment(Jpeg, 0xC0);
    ASSERT_EQ(15, Frame.size());
    EXPECT_EQ(3, Frame[5]);
    for (int Component = 0; Component < 3; ++Component)
        EXPECT_EQ(0x11, Frame[7 + Component * 3]) << "component " << Component;
    EXPECT_TRUE(Segment(Jpeg, 0xE0).startsWith("JFIF"));
    for (int Marker = 0xE1; Marker <= 0xEF; ++Marker)
        EXPECT_TRUE(Segment(Jpeg, static_cast<uchar>(Marker)).isEmpty());
    EXPECT_TRUE(Segment(Jpeg, 0xFE).isEmpty());
}

TEST(ImgX, TheJpegQualityIs100UnlessSet) {
    ImgX Picture = Holding(Rings({400, 300}));
    EXPECT_EQ(100, Picture.JpgQuality());
    const qsizetype Best = Picture.ToJpeg().size();
    Picture.SetJpgQuality(50);
    EXPECT_LT(Picture.ToJpeg().size(), Best / 2);
}

TEST(ImgX, ASavedJpegReadsBackAsTheSamePicture) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("00000012.jpg");
    Holding(Rings({400, 300})).SaveJpeg(File);
    EXPECT_GT(NoiseRatio(Rings({400, 300}), Loaded(File).Picture()), 48);
}

TEST(ImgX, SavingWithoutAPictureOrIntoAMissingFolderIsAFault) {
    const harness::TempFolder Folder;
    EXPECT_THROW(ImgX().ToJpeg(), Fault);
    EXPECT_THROW(Holding(Motif()).SaveJpeg(Folder / QStringLiteral("none/a.jpg")), Fault);
}

TEST(ImgX, FittingFromFewerPixelsLooksLikeFittingFromAll) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("rings.jpg");
    Holding(Rings({4000, 3000})).SaveJpeg(File);
    ImgX All = Loaded(File);
    EXPECT_EQ(4000, All.Width());
    All.Resize(1024, 768, 3);
    const QImage Fitted = QImage::fromData(FittedJpeg(File), "JPEG");
    EXPECT_EQ(QSize(1024, 768), Fitted.size());
    EXPECT_GT(NoiseRatio(All.Picture(), Fitted), 38);
}

TEST(ImgX, SmallPicturesKeepTheirSizeInTheAlbum) {
    const QByteArray Jpeg = FittedJpeg(PictureFile(QStringLiteral("rgb8.png")));
    const QImage Picture = QImage::fromData(Jpeg, "JPEG");
    EXPECT_EQ(QSize(48, 32), Picture.size());
    ExpectFields(Picture, Red, Green, Blue, Grey, 2);
}

TEST(ImgX, AtLeastNeverGivesFewerPixelsThanFittingNeeds) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("any.jpg");
    for (const QSize Size :
         {QSize(1030, 800), QSize(2047, 1000), QSize(3000, 500), QSize(900, 4000)}) {
        Holding(Motif(Size)).SaveJpeg(File);
        ImgX Picture;
        Picture.LoadAtLeast(File, SlideLimit);
        EXPECT_EQ(Size, Picture.FullSize());
        EXPECT_GE(Picture.Width(), FitSize(Size).width());
        EXPECT_GE(Picture.Height(), FitSize(Size).height());
    }
}

TEST(Thumbnail, IsStretchedToExactly72By72FromAnyShape) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("any.jpg");
    for (const QSize Size : {QSize(1024, 768), QSize(768, 1024), QSize(4000, 100), QSize(10, 10)}) {
        Holding(Motif(Size)).SaveJpeg(File);
        const QImage Small = MakeThumbnail(File);
        EXPECT_EQ(QSize(72, 72), Small.size());
        ExpectFields(Small, Red, Green, Blue, Grey, 3);
    }
}

TEST(Thumbnail, OfAPhotographIsAsSharpAsOfAllItsPixels) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("rings.jpg");
    Holding(Rings({900, 600})).SaveJpeg(File);
    const double Near = NoiseRatio(MakeThumbnail(Loaded(File).Picture()), MakeThumbnail(File));
    EXPECT_GT(Near, 45);
}

TEST(Thumbnail, TheBitmapIsOf24BitsAndAlwaysTheSameBytes) {
    const QImage Small = MakeThumbnail(Motif());
    const QByteArray Bytes = ThumbnailBmp(Small);
    EXPECT_EQ(54 + 72 * 72 * 3, Bytes.size());
    EXPECT_EQ(Bytes, ThumbnailBmp(Small));
    EXPECT_EQ("BM", Bytes.left(2));
    EXPECT_EQ(24, Bytes[28]);
    QImage Read;
    ASSERT_TRUE(Read.loadFromData(Bytes, "BMP"));
    EXPECT_EQ(Small, Read.convertToFormat(QImage::Format_RGB32));
}

TEST(Thumbnail, RowsOfOddLengthArePadded) {
    QImage Read;
    ASSERT_TRUE(Read.loadFromData(ThumbnailBmp(Motif({7, 5})), "BMP"));
    EXPECT_EQ(Motif({7, 5}), Read.convertToFormat(QImage::Format_RGB32));
}

TEST(ImgXFaults, AMissingFileAFolderAndAForbiddenFileCannotBeOpened) {
    const harness::TempFolder Folder;
    EXPECT_EQ(0x8004028EU, FaultCannotOpen);
    EXPECT_EQ(FaultCannotOpen, FaultOf(Folder / QStringLiteral("missing.jpg")));
    EXPECT_EQ(FaultCannotOpen, FaultOf(Folder.Path()));
}

TEST(ImgXFaults, AFileThatIsNoPictureSaysSo) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("letter.jpg");
    WriteFile(File, "Dear all,\nthis is no picture.\n");
    EXPECT_EQ(FaultUnknownPicture, FaultOf(File));
    WriteFile(File, "");
    EXPECT_EQ(FaultEndsEarly, FaultOf(File));
}

TEST(ImgXFaults, ALoadThatFailsLeavesThePictureHeldBefore) {
    ImgX Picture = Holding(Motif());
    EXPECT_THROW(Picture.Load(QStringLiteral("/none")), Fault);
    EXPECT_EQ(Motif(), Picture.Picture());
}

TEST(ImgXFaults, TheSentenceNamesWhatIsWrongAndTheFile) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("cut.jpg");
    const QByteArray Jpeg = Holding(Rings({400, 300})).ToJpeg();
    WriteFile(File, Jpeg.left(Jpeg.size() / 2));
    try {
        Loaded(File);
        FAIL();
    } catch (const Fault& Reason) {
        EXPECT_EQ("The picture is damaged: it ends too early.", Reason.What().toStdString());
        EXPECT_TRUE(Reason.Text().contains(File));
    }
}

TEST(ImgXFaults, AJpegThatLacksOnlyItsClosingMarkIsWhole) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("unclosed.jpg");
    const QByteArray Jpeg = Holding(Motif()).ToJpeg();
    WriteFile(File, Jpeg.left(Jpeg.size() - 2));
    ExpectFields(Loaded(File).Picture(), Red, Green, Blue, Grey, 2);
}
