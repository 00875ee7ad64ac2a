// The proportions of a picture, told from the first bytes of its file.
#include "pictures/PictureShape.h"

#include <random>

#include "harness/WithoutExtraFormats.h"
#include "pictures/Blocks.h"
#include "pictures/Pictures.h"
#include "pictures/TurnedJpegs.h"
#include "pictures/formats/PictureFormats.h"
#include "pictures/notes/JpegParts.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

// A file that tells how much of it has been read.
struct ReadFiles {
    QSize Shape() {
        FilePieces Pieces([this](qint64 At, qint64 Length) { return Piece(At, Length); });
        return ShapeOf(Pieces);
    }
    QByteArray Piece(qint64 At, qint64 Length) {
        ++Times;
        Read += Length;
        Farthest = std::max(Farthest, At);
        return Bytes.mid(At, Length);
    }
    QByteArray Bytes;
    int Times = 0;
    qint64 Read = 0, Farthest = 0;
};

QSize ShapeOfBytes(const QByteArray& Bytes) {
    return ReadFiles{Bytes}.Shape();
}

QStringList Samples(const char* Folder) {
    QStringList Found;
    for (const QFileInfo& Each : QDir(harness::DataFile(Folder)).entryInfoList(QDir::Files))
        if (Each.suffix() != u"sh") Found << Each.filePath();
    return Found;
}

bool TellsNone(const QString& Sample) {
    for (const char* Ending : {".heic", ".avif"})
        if (Sample.endsWith(QLatin1String(Ending))) return true;
    return false;
}

QByteArray FrameOf(quint16 Width, quint16 Height) {
    return QByteArray::fromHex("FFC0000B08") + BigEndian(Height) + BigEndian(Width) +
           QByteArray::fromHex("01011100");
}

}  // namespace

class PictureShapeOf : public ::testing::Test {
  protected:
    QSize Shape(const QByteArray& Bytes) {
        WriteFile(Folder / QStringLiteral("picture.jpg"), Bytes);
        return PictureShape(Folder / QStringLiteral("picture.jpg"));
    }
    const harness::TempFolder Folder{};
};

TEST_F(PictureShapeOf, ATurnedJpegIsThatOfThePictureUpright) {
    for (const Lying& How : AllLying) {
        const QSize Stored = How.Orientation >= 5 ? QSize(320, 480) : QSize(480, 320);
        const QByteArray Jpeg = JpegOf(Fields(How.TL, How.TR, How.BL, How.BR, Stored));
        for (bool BigEndian : {false, true})
            EXPECT_EQ(QSize(480, 320), Shape(WithExif(Jpeg, ExifBlock(BigEndian, How.Orientation))))
                << How.Orientation;
    }
}

TEST_F(PictureShapeOf, AJpegIsKnownFromItsFirstBytes) {
    const QByteArray Jpeg = JpegOf(Fields(Red, Green, Blue, Grey, {1024, 256}));
    EXPECT_EQ(QSize(1024, 256), Shape(Jpeg));
    EXPECT_EQ(QSize(1024, 256), Shape(Jpeg.left(1000))) << "no pixel is needed";
    EXPECT_EQ(QSize(1024, 256), Shape(WithExif(Jpeg, QByteArray(65000, 'x')).left(70000)));
}

TEST_F(PictureShapeOf, OtherFormatsTellTheirs) {
    for (const char* Format : {"png", "bmp"}) {
        const QString File = Folder / QStringLiteral("picture.") + QLatin1String(Format);
        ASSERT_TRUE(Fields(Red, Green, Blue, Grey, {70, 20}).save(File));
        EXPECT_EQ(QSize(70, 20), PictureShape(File));
    }
}

TEST_F(PictureShapeOf, ATiffTellsItsOwnTurnedOrDamaged) {
    const QString Turned = PictureFile(QStringLiteral("turned.tif"));
    EXPECT_EQ(MakeThumbnail(PictureFile(QStringLiteral("lab.tif"))).size(), ThumbnailSize);
    ImgX Picture;
    Picture.Load(Turned);
    EXPECT_EQ(Picture.FullSize(), PictureShape(Turned));
    const QByteArray Whole = ReadFile(PictureFile(QStringLiteral("rgb8-lzw.tif")));
    for (qsizetype At = 4; At < Whole.size(); At += At < 400 ? 1 : 97) {
        QByteArray Broken = Whole;
        Broken[At] = static_cast<char>(Broken[At] ^ 0x5A);
        const QSize Is = Shape(Broken);
        EXPECT_LE(std::max(Is.width(), Is.height()), LongestSide);
    }
}

// Paths in the records have the letters of another system.
TEST_F(PictureShapeOf, TheNameIsFoundInWhateverCase) {
    EXPECT_EQ(QSize(64, 32), Shape(JpegOf(Fields(Red, Green, Blue, Grey, {64, 32}))));
    EXPECT_EQ(QSize(64, 32), PictureShape(Folder / QStringLiteral("PICTURE.JPG")));
}

TEST_F(PictureShapeOf, WhatIsNoPictureHasNone) {
    EXPECT_TRUE(Shape("x").isEmpty());
    EXPECT_TRUE(Shape({}).isEmpty());
    EXPECT_TRUE(Shape(JpegOf(Fields(Red, Green, Blue, Grey, {64, 64})).left(20)).isEmpty());
    EXPECT_TRUE(PictureShape(Folder / QStringLiteral("none.jpg")).isEmpty());
    EXPECT_TRUE(PictureShape({}).isEmpty());
    EXPECT_TRUE(PictureShape(Folder.Path()).isEmpty());
}

TEST_F(PictureShapeOf, EverySampleIsOfTheSizeThatItIsReadIn) {
    int Told = 0;
    for (const QString& Sample : Samples("pictures/") + Samples("today/")) {
        const QSize Full = DecodePicture(ReadFile(Sample)).Full;
        EXPECT_EQ(TellsNone(Sample) ? QSize() : Full, PictureShape(Sample)) << qPrintable(Sample);
        Told += !TellsNone(Sample);
    }
    EXPECT_GT(Told, 50);
}

TEST_F(PictureShapeOf, AWbmpOfMoreThanOneDigitTellsItsSize) {
    EXPECT_EQ(QSize(200, 130),
              ShapeOfBytes(QByteArray::fromHex("000081488102") + QByteArray(25 * 130, '\0')));
}

TEST_F(PictureShapeOf, ABitmapThatCarriesAnotherFileIsOfItsSize) {
    const QByteArray Jpeg = JpegOf(Fields(Red, Green, Blue, Grey, {64, 32}));
    const QByteArray Header = LittleEndian<quint32>(54) + LittleEndian<quint32>(40) +
                              LittleEndian<qint32>(7) + LittleEndian<qint32>(9) +
                              QByteArray::fromHex("0100000004000000") + QByteArray(20, '\0');
    const QByteArray Bmp = "BM" + QByteArray(8, '\0') + Header;
    ASSERT_EQ(54, Bmp.size());
    EXPECT_EQ(QSize(64, 32), ShapeOfBytes(Bmp + WithExif(Jpeg, ExifBlock(true, 1))));
    EXPECT_EQ(QSize(32, 64), ShapeOfBytes(Bmp + WithExif(Jpeg, ExifBlock(true, 6))));
    EXPECT_EQ(QSize(7, 9), ShapeOfBytes(Bmp + "something else"));
}

TEST_F(PictureShapeOf, WhatIsNoPictureOfOursHasNone) {
    const QString Webp = harness::DataFile("today/plain.webp");
    EXPECT_EQ(QSize(48, 32), PictureShape(Webp));
    const harness::WithoutExtraFormats Without;
    EXPECT_TRUE(PictureShape(Webp).isEmpty());
}

TEST_F(PictureShapeOf, SidesBeyondAllLimitsAreNone) {
    EXPECT_EQ(QSize(50000, 1), ShapeOfBytes(JpegOf(QList<QByteArray>{FrameOf(50000, 1)})));
    EXPECT_TRUE(ShapeOfBytes(JpegOf(QList<QByteArray>{FrameOf(50001, 1)})).isEmpty());
    EXPECT_TRUE(ShapeOfBytes(JpegOf(QList<QByteArray>{FrameOf(0, 1)})).isEmpty());
}

// Cut anywhere, a file tells the same or nothing; only the side that it lies on may be unknown.
TEST_F(PictureShapeOf, CutFilesTellTheSameOrNothing) {
    for (const QString& Sample : Samples("pictures/") + Samples("today/")) {
        const QByteArray Whole = ReadFile(Sample);
        const QSize Is = ShapeOfBytes(Whole);
        for (qsizetype Length = 0; Length < Whole.size(); Length += Length < 400 ? 1 : 97) {
            const QSize Cut = ShapeOfBytes(Whole.left(Length));
            EXPECT_TRUE(Cut.isEmpty() || Cut == Is || Cut == Is.transposed())
                << qPrintable(Sample) << " " << Length;
        }
    }
}

TEST_F(PictureShapeOf, DamagedHeadsDoNoHarm) {
    std::mt19937 Random(7);
    for (const QString& Sample : Samples("pictures/") + Samples("today/")) {
        const QByteArray Whole = ReadFile(Sample);
        for (int Round = 0; Round < 100; ++Round) {
            QByteArray Broken = Whole;
            for (int I = 0; I < 4; ++I)
                Broken[static_cast<qsizetype>(
                    Random() % std::min<size_t>(static_cast<size_t>(Whole.size()), 300))] =
                    static_cast<char>(Random());
            const QSize Is = ShapeOfBytes(Broken);
            EXPECT_LE(std::max(Is.width(), Is.height()), LongestSide) << qPrintable(Sample);
        }
    }
}

TEST_F(PictureShapeOf, OfLargePartsBeforeThePixelsOnlyTheBeginningsAreRead) {
    const QByteArray Profile = "\xFF\xE2" + BigEndian<quint16>(65000) + QByteArray(64998, 'p');
    QList<QByteArray> Parts(100, Profile);
    Parts << JpegExif(6) << FrameOf(30, 20);
    ReadFiles File{JpegOf(Parts)};
    EXPECT_EQ(QSize(20, 30), File.Shape());
    EXPECT_LT(File.Times, 110);
    EXPECT_LT(File.Read, 100'000);
}

TEST_F(PictureShapeOf, NoPixelsOfAPngAreRead) {
    const QByteArray Header = PngChunkOf("IHDR", BigEndian<quint32>(40) + BigEndian<quint32>(30) +
                                                     QByteArray::fromHex("0802000000"));
    const QByteArray Pixels = PngChunkOf("IDAT", QByteArray(1'000'000, 'p'));
    ReadFiles File{PngOf({Header, Pixels, Pixels, PngChunkOf("eXIf", ExifTurned(8))})};
    EXPECT_EQ(QSize(30, 40), File.Shape());
    EXPECT_LT(File.Read, 30'000);
}

// Such files are made for those who follow every step.
TEST_F(PictureShapeOf, AFileOfEndlessStepsIsLeft) {
    const QByteArray Step =
        "\xFF\xE1" + BigEndian<quint16>(2000) + ExifMark + QByteArray(1992, 'x');
    ReadFiles Steps{"\xFF\xD8" + Step.repeated(20'000) + FrameOf(30, 20)};
    EXPECT_TRUE(Steps.Shape().isEmpty());
    ReadFiles Filled{"\xFF\xD8" + QByteArray(40'000'000, '\xFF') + FrameOf(30, 20)};
    EXPECT_TRUE(Filled.Shape().isEmpty());
    for (const ReadFiles* Each : {&Steps, &Filled}) {
        EXPECT_LE(Each->Times, 1001);
        EXPECT_LE(Each->Read, 8 << 20);
        EXPECT_GT(Each->Farthest, 100'000);
    }
}
