// What an album stores of a picture: its size, its quality, and when its bytes stay as they are.
#include <QBuffer>

#include "pictures/NotedPictures.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/TiffTags.h"
#include "pictures/notes/JpegTurn.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

const PictureKeeping FullHd{{1920, 1080}, true}, FourK{{3840, 2160}, true}, Own{OwnSize, true};

class Fitting : public ::testing::Test {
  protected:
    QByteArray Fitted(const QByteArray& Bytes, const PictureKeeping& Keeping = {}) {
        WriteFile(mFile, Bytes);
        return FittedJpeg(mFile, Keeping);
    }
    quint32 FaultOf(const QByteArray& Bytes, const PictureKeeping& Keeping) {
        try {
            Fitted(Bytes, Keeping);
        } catch (const Fault& Reason) {
            EXPECT_EQ(mFile, Reason.File());
            return Reason.Number();
        }
        return 0;
    }

    const harness::TempFolder mFolder{};
    const QString mFile = mFolder / QStringLiteral("picture.any");
};

// With the half colours that cameras use.
QByteArray CameraJpeg(const QImage& Picture) {
    QByteArray Bytes;
    QBuffer Into(&Bytes);
    Picture.save(&Into, "JPEG", 90);
    return Bytes;
}

QByteArray PngOf(const QImage& Picture) {
    QByteArray Bytes;
    QBuffer Into(&Bytes);
    Picture.save(&Into, "PNG");
    return Bytes;
}

QImage Pixels(const QByteArray& Bytes) {
    return DecodePicture(Bytes).Picture;
}

QSize SizeOf(const QByteArray& Jpeg) {
    return PartsOf(Jpeg)->Stored;
}

QByteArray PartOf(const QByteArray& Jpeg, int Marker) {
    for (const JpegPart& Part : HeadOf(Jpeg))
        if (Part.Marker == Marker) return Part.Content.toByteArray();
    return {};
}

// The step of the coarsest thing there is: 1 at quality 100, 3 at 92.
int FirstStep(const QByteArray& Jpeg) {
    return uchar(PartOf(Jpeg, 0xDB).at(1));
}

bool HasFullColours(const QByteArray& Jpeg) {
    const QByteArray Frame = PartOf(Jpeg, 0xC0);
    return Frame.size() == 15 && Frame[7] == 0x11 && Frame[10] == 0x11 && Frame[13] == 0x11;
}

int Farthest(const QImage& A, const QImage& B) {
    int Far = A.size() == B.size() ? 0 : 255;
    for (int Y = 0; Far < 255 && Y < A.height(); ++Y)
        for (int X = 0; X < A.width(); ++X)
            Far = std::max(Far, Distance(A.pixel(X, Y), B.pixel(X, Y)));
    return Far;
}

// A little of everything, so that no two places are alike.
QImage Scene(QSize Size) {
    QImage Picture = Motif(Size);
    for (int Y = 0; Y < Size.height(); ++Y)
        for (int X = 0; X < Size.width(); ++X) {
            const QRgb At = Picture.pixel(X, Y);
            Picture.setPixel(X, Y,
                             qRgb(qRed(At) * 3 / 4 + X % 64, qGreen(At) * 3 / 4 + Y % 64,
                                  (qBlue(At) * 3 + X * 255 / Size.width()) / 4));
        }
    return Picture;
}

}  // namespace

TEST_F(Fitting, TheRuleHoldsWithTheNumbersOfEachLimit) {
    struct {
        QSize Full;
        PictureKeeping Keeping;
        QSize Stored;
    } const Cases[] = {
        {{1024, 768}, {}, {1024, 768}},       {{1025, 768}, {}, {1024, 767}},
        {{2048, 1536}, {}, {1024, 768}},      {{768, 1024}, {}, {576, 768}},
        {{1921, 1080}, FullHd, {1920, 1079}}, {{2400, 1800}, FullHd, {1440, 1080}},
        {{1080, 1920}, FullHd, {608, 1080}},  {{1920, 1080}, FullHd, {1920, 1080}},
        {{3841, 2160}, FourK, {3840, 2159}},  {{4000, 2000}, FourK, {3840, 1920}},
        {{4001, 17}, FourK, {3840, 16}},      {{4001, 17}, Own, {4001, 17}},
    };
    for (const auto& Case : Cases) {
        EXPECT_EQ(Case.Stored, SizeOf(Fitted(PngOf(Motif(Case.Full)), Case.Keeping)));
        EXPECT_EQ(Case.Stored, SizeOf(Fitted(CameraJpeg(Motif(Case.Full)), Case.Keeping)))
            << Case.Full.width() << " by " << Case.Full.height();
    }
}

TEST_F(Fitting, AtTheLeastSizeEveryPictureIsWrittenAnewAtFullQuality) {
    for (const QByteArray& Bytes : {CameraJpeg(Scene({320, 240})), PngOf(Scene({320, 240}))}) {
        const QByteArray Stored = Fitted(Bytes);
        EXPECT_NE(Bytes, Stored);
        EXPECT_EQ(1, FirstStep(Stored));
        EXPECT_TRUE(HasFullColours(Stored));
    }
}

TEST_F(Fitting, AboveItAJpegThatFitsStaysByteForByte) {
    for (const PictureKeeping& Keeping : {FullHd, FourK, Own})
        for (const QByteArray& Jpeg : {CameraJpeg(Scene({1333, 777})), JpegOf(Scene({16, 16})),
                                       Noted(CameraJpeg(Scene({200, 100})), 1, {200, 100})})
            EXPECT_EQ(Jpeg, Fitted(Jpeg, Keeping));
}

TEST_F(Fitting, AboveItOthersAreWrittenAtQuality92WithFullColours) {
    for (const QByteArray& Bytes : {PngOf(Scene({320, 240})), CameraJpeg(Scene({2500, 1800}))}) {
        const QByteArray Stored = Fitted(Bytes, FullHd);
        EXPECT_EQ(3, FirstStep(Stored));
        EXPECT_TRUE(HasFullColours(Stored));
    }
}

TEST_F(Fitting, EveryKindOfJpegThatIsReadIsKept) {
    for (const auto* Name : {"grey.jpg", "cmyk.jpg", "rgb420.jpg", "progressive.jpg"}) {
        const QString File = PictureFile(QLatin1String(Name));
        EXPECT_EQ(ReadFile(File), FittedJpeg(File, Own)) << Name;
    }
}

TEST_F(Fitting, ADamagedOneIsRefusedAndNotKept) {
    const QByteArray Jpeg = CameraJpeg(Scene({640, 480}));
    EXPECT_EQ(FaultEndsEarly, FaultOf(Jpeg.left(Jpeg.size() / 2), Own));
    EXPECT_EQ(FaultEndsEarly, FaultOf(Jpeg.left(300), Own));
    QByteArray Hollow = Jpeg;
    Hollow.replace(Jpeg.size() / 2, 40, QByteArray("\xFF\xD9").repeated(20));
    EXPECT_EQ(FaultEndsEarly, FaultOf(Hollow, Own));
}

TEST_F(Fitting, OnlyTheFirstPictureIsKeptOfThoseWithAnotherOrAFilmBehindThem) {
    const QByteArray First = CameraJpeg(Scene({64, 48})), Second = CameraJpeg(Scene({640, 480}));
    EXPECT_EQ(First, Fitted(First + Second, Own));
    EXPECT_EQ(First, Fitted(First +
                                QByteArray("\0\0\0\x18"
                                           "ftypmp42",
                                           12) +
                                Second,
                            Own));
    const QByteArray Padded = First + QByteArray(100, '\0');
    EXPECT_EQ(Padded, Fitted(Padded, Own)) << "nothing follows";
}

TEST_F(Fitting, AJpegOnItsSideIsTurnedWithoutLossWhereItsSidesAllow) {
    for (const Lying& Is : AllLying) {
        const QByteArray Jpeg =
            WithExif(JpegOf(Scene({48, 32})), ExifBlock(Is.Orientation % 2 == 0, Is.Orientation));
        const QByteArray Stored = Fitted(Jpeg, Own);
        EXPECT_EQ(1, PartsOf(Stored)->Orientation());
        EXPECT_EQ(PartOf(Jpeg, 0xDB).size(), PartOf(Stored, 0xDB).size());
        EXPECT_EQ(1, FirstStep(Stored)) << "not written anew";
        EXPECT_LE(Farthest(Pixels(Jpeg), Pixels(Stored)), 2) << Is.Orientation;
        EXPECT_FALSE(ExifIn(Stored).isEmpty());
    }
}

TEST_F(Fitting, AJpegOnItsSideWhoseSidesDoNotAllowItIsWrittenAnew) {
    for (const Lying& Is : AllLying) {
        if (Is.Orientation == 1) continue;
        const QByteArray Jpeg = WithExif(JpegOf(Scene({45, 35})), ExifBlock(true, Is.Orientation));
        const QByteArray Stored = Fitted(Jpeg, Own);
        // mirrored along a diagonal, no edge has to move
        EXPECT_EQ(Is.Orientation == 5 ? 1 : 3, FirstStep(Stored)) << Is.Orientation;
        EXPECT_LE(Farthest(Pixels(Jpeg), Pixels(Stored)), 60) << Is.Orientation;
        EXPECT_EQ(1, PartsOf(Stored)->Orientation());
    }
}

TEST_F(Fitting, APacketThatTurnsThePictureKeepsItFromBeingKept) {
    const QByteArray Jpeg = CameraJpeg(Scene({64, 48}));
    const QByteArray Packed = WithMore(Jpeg, JpegPartOf(ExifMarker, XmpMark + XmpPacket(6)));
    const QByteArray Stored = Fitted(Packed, Own);
    EXPECT_NE(Packed, Stored);
    EXPECT_FALSE(PartsOf(Stored)->IsTurnedByXmp());
}

TEST_F(Fitting, APacketTurnsAPictureUnderWhateverNameItKnowsItsWords) {
    QByteArray Packet = XmpPacket(3);
    Packet.replace("tiff:", "ns1:").replace("xmlns:tiff", "xmlns:ns1");
    const QByteArray Packed =
        WithMore(CameraJpeg(Scene({64, 48})), JpegPartOf(ExifMarker, XmpMark + Packet));
    EXPECT_TRUE(PartsOf(Packed)->IsTurnedByXmp());
    EXPECT_FALSE(PartsOf(Fitted(Packed, Own))->IsTurnedByXmp());
}

TEST_F(Fitting, APacketTurnsNoPictureWhoseCameraSaysThatItIsUpright) {
    const QByteArray Jpeg = WithMore(CameraJpeg(Scene({64, 48})),
                                     JpegPartOf(ExifMarker, ExifMark + CameraBlock(1, {64, 48})) +
                                         JpegPartOf(ExifMarker, XmpMark + XmpPacket(6)));
    EXPECT_EQ(Jpeg, Fitted(Jpeg, Own));
}

TEST_F(Fitting, OfAPictureInMemoryATurnLosesNothing) {
    const QByteArray Jpeg = Noted(CameraJpeg(Scene({320, 240})), 1, {320, 240});
    WriteFile(mFile, Jpeg);
    for (const PictureKeeping& Keeping : {PictureKeeping(), Own}) {
        ImgX Picture = Loaded(mFile);
        Picture.Rotate(90);
        Picture.Flip(1);
        const QByteArray Stored = FittedJpeg(Picture, Keeping);
        EXPECT_EQ(FirstStep(Jpeg), FirstStep(Stored));
        EXPECT_FALSE(HasFullColours(Stored)) << "not written anew";
        EXPECT_LE(Farthest(Picture.Picture(), Pixels(Stored)), 60);
        EXPECT_EQ(QSize(240, 320), SizeOf(Stored));
    }
}

TEST_F(Fitting, FourTurnsEachStoredGiveTheSamePixelsBack) {
    const QByteArray Jpeg = CameraJpeg(Scene({320, 240}));
    for (const int Degrees : {90, -90}) {
        QByteArray Stored = Jpeg;
        for (int Turn = 0; Turn < 4; ++Turn) {
            WriteFile(mFile, Stored);
            ImgX Picture = Loaded(mFile);
            Picture.Rotate(Degrees);
            Stored = FittedJpeg(Picture);
        }
        EXPECT_EQ(Pixels(Jpeg), Pixels(Stored));
    }
}

TEST_F(Fitting, TurnsThatEndWhereTheyBeganGiveTheSameBytes) {
    const QByteArray Jpeg = CameraJpeg(Scene({333, 222}));
    WriteFile(mFile, Jpeg);
    ImgX Picture = Loaded(mFile);
    for (const int Selector : {0, 1}) Picture.Flip(Selector);
    Picture.Rotate(180);
    EXPECT_EQ(Jpeg, FittedJpeg(Picture, Own));
}

TEST_F(Fitting, ATurnedPictureThatNoLongerFitsIsFittedAgain) {
    WriteFile(mFile, CameraJpeg(Scene({1024, 768})));
    ImgX Picture = Loaded(mFile);
    Picture.Rotate(90);
    EXPECT_EQ(QSize(576, 768), SizeOf(FittedJpeg(Picture)));
    EXPECT_EQ(1, FirstStep(FittedJpeg(Picture)));
    EXPECT_EQ(QSize(768, 1024), SizeOf(FittedJpeg(Picture, FullHd)));
}

TEST_F(Fitting, WhatElseIsDoneToAPictureIsWrittenAnew) {
    WriteFile(mFile, CameraJpeg(Scene({320, 240})));
    ImgX Picture = Loaded(mFile);
    Picture.Rotate(90);
    Picture.Resize(100, 200, 3);
    EXPECT_EQ(QSize(100, 200), SizeOf(FittedJpeg(Picture, Own)));
    Picture = Loaded(mFile);
    Picture.Rotate(45);
    EXPECT_EQ(3, FirstStep(FittedJpeg(Picture, Own)));
    Picture = Loaded(mFile);
    EXPECT_EQ(1, FirstStep(FittedJpeg(Picture))) << "not turned at all";
}

TEST(PictureTurn, TwoTurnsAreWhatOneAfterTheOtherDoes) {
    const auto Do = [](const QImage& Picture, PictureTurn Turn) {
        const QImage Mirrored = Turn.Mirrored ? Picture.mirrored(true, false) : Picture;
        return Mirrored.transformed(QTransform().rotate(90 * Turn.Quarters));
    };
    for (int A = 1; A <= 8; ++A) {
        const auto First = PictureTurn::ToUpright(A);
        EXPECT_EQ(Upright(Motif(), A), Do(Motif(), First)) << A;
        for (int B = 1; B <= 8; ++B) {
            const auto Second = PictureTurn::ToUpright(B);
            EXPECT_EQ(Do(Do(Motif(), First), Second), Do(Motif(), First.Then(Second)));
        }
    }
}
