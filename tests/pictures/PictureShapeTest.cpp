// The proportions of a picture, told from the first bytes of its file.
#include "pictures/PictureShape.h"

#include "pictures/Pictures.h"
#include "pictures/TurnedJpegs.h"
#include "pictures/formats/PictureFormats.h"

using namespace neb;
using namespace neb::tests;

class PictureShapeOf : public ::testing::Test {
  protected:
    QSize Shape(const QByteArray& Bytes) {
        WriteFile(Folder / QStringLiteral("picture.jpg"), Bytes);
        return PictureShape(Folder / QStringLiteral("picture.jpg"));
    }
    const harness::TempFolder Folder;
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
