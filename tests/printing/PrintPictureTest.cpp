// Which pictures go into a PDF as they are, and how large each is without decoding it.
#include "printing/PrintPicture.h"

#include <QColorSpace>

#include "pictures/NotedPictures.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/notes/JpegParts.h"
#include "printing/PrintRig.h"

namespace neb {
namespace {

using namespace tests;

TEST(PlainJpegs, AreToldBySizeAndOrientation) {
    for (const Lying& How : AllLying) {
        const QByteArray Jpeg = JpegOf(Noise({64, 40}, 1));
        const auto Plain = ReadPlainJpeg(WithExif(Jpeg, ExifBlock(true, How.Orientation)));
        ASSERT_TRUE(Plain) << How.Orientation;
        EXPECT_EQ(Plain->Stored, QSize(64, 40));
        EXPECT_EQ(Plain->Orientation, How.Orientation);
    }
}

struct FileRow {
    const char* Name;
    bool IsPlain;
};
const FileRow Files[] = {{"rgb420.jpg", true},      {"rgb444.jpg", true}, {"grey.jpg", true},
                         {"progressive.jpg", true}, {"cmyk.jpg", false},  {"rgb8.png", false},
                         {"rgb8-jpeg.tif", false}};

TEST(PlainJpegs, AreThoseThatEveryReaderShowsAlike) {
    for (const FileRow& Row : Files) {
        const QByteArray Bytes = ReadFile(PictureFile(QString::fromLatin1(Row.Name)));
        EXPECT_EQ(ReadPlainJpeg(Bytes).has_value(), Row.IsPlain) << Row.Name;
    }
}

TEST(PlainJpegs, AreInTheColoursOfTheScreen) {
    const harness::TempFolder Folder;
    QImage Picture = Noise({32, 32}, 2);
    const std::pair<QColorSpace, bool> Spaces[] = {
        {QColorSpace::SRgb, true}, {QColorSpace::AdobeRgb, false}, {QColorSpace::DisplayP3, false}};
    for (const auto& [Space, IsPlain] : Spaces) {
        Picture.setColorSpace(Space);
        ASSERT_TRUE(Picture.save(Folder / u"profiled.jpg"_s));
        const QByteArray Bytes = ReadFile(Folder / u"profiled.jpg"_s);
        ASSERT_TRUE(Bytes.contains("ICC_PROFILE"));
        EXPECT_EQ(ReadPlainJpeg(Bytes).has_value(), IsPlain) << Space.description().toStdString();
    }
}

TEST(PlainJpegs, AreNotInTheWideColoursThatACameraTellsOf) {
    for (const QByteArray Index : {"R98", "R03"}) {
        MadeExif Made;
        const quint32 Interop = Made.Add({MadeExif::Text(1, Index)});
        const quint32 Details = Made.Add({MadeExif::Long(0xA005, Interop)});
        Made.StartWith(Made.Add({MadeExif::Long(0x8769, Details)}));
        const QByteArray Jpeg = WithExif(JpegOf(Noise({32, 32}, 2)), Made.Block());
        EXPECT_EQ(ReadPlainJpeg(Jpeg).has_value(), Index == "R98") << Index.constData();
    }
}

// Three colours that only their names tell from a brightness and two differences.
QByteArray NamedColours(bool Told) {
    QByteArray Jpeg = ReadFile(PictureFile(QStringLiteral("rgb444.jpg")));
    for (const char* Part : {"\xFF\xC0", "\xFF\xDA"}) {
        const qsizetype At = Jpeg.indexOf(Part), First = At + (uchar(Part[1]) == 0xC0 ? 10 : 5),
                        Step = uchar(Part[1]) == 0xC0 ? 3 : 2;
        for (int I = 0; I < 3; ++I) Jpeg[First + I * Step] = "RGB"[I];
    }
    if (!Told) Jpeg.replace("JFIF", "NONE");
    return Jpeg;
}

TEST(PlainJpegs, TellInWhichColoursTheyAre) {
    EXPECT_TRUE(ReadPlainJpeg(NamedColours(true)));
    EXPECT_FALSE(ReadPlainJpeg(NamedColours(false)));
}

TEST(PlainJpegs, AreNotTurnedByAPacket) {
    const QByteArray Jpeg = ReadFile(PictureFile(QStringLiteral("rgb444.jpg")));
    for (const int Orientation : {1, 6})
        for (const QByteArray Prefix : {"tiff", "ns1"}) {
            const QByteArray Packet = "<x xmlns:" + Prefix + "=\"http://ns.adobe.com/tiff/1.0/\" " +
                                      Prefix + ":Orientation=\"" + QByteArray::number(Orientation) +
                                      "\"/>";
            const QByteArray Packed = WithMore(Jpeg, JpegPartOf(ExifMarker, XmpMark + Packet));
            EXPECT_EQ(Orientation == 1, ReadPlainJpeg(Packed).has_value());
        }
}

TEST(PlainJpegs, AreWhole) {
    for (const char* Name : {"rgb444.jpg", "progressive.jpg"}) {
        const QByteArray Bytes = ReadFile(PictureFile(QString::fromLatin1(Name)));
        ASSERT_TRUE(ReadPlainJpeg(Bytes));
        for (qsizetype Length = 0; Length < Bytes.size(); ++Length)
            ASSERT_FALSE(ReadPlainJpeg(Bytes.left(Length))) << Length << " of " << Bytes.size();
        EXPECT_TRUE(ReadPlainJpeg(Bytes + "what a camera adds")) << "what follows counts not";
    }
}

TEST(PlainJpegs, AnyDamagedByteIsReadToItsEnd) {
    const QByteArray Bytes = ReadFile(PictureFile(u"progressive.jpg"_s));
    for (qsizetype At = 0; At < Bytes.size(); ++At)
        for (const char Byte : {'\0', '\xFF', '\x7F'}) {
            QByteArray Damaged = Bytes;
            Damaged[At] = Byte;
            const auto Plain = ReadPlainJpeg(Damaged);
            ASSERT_FALSE(Plain && Plain->Stored.isEmpty());
        }
}

TEST(PrintPictures, AreMeasuredUpright) {
    const harness::TempFolder Folder;
    const QByteArray Turned = WithExif(JpegOf(Noise({64, 40}, 1)), ExifBlock(false, 6));
    WriteFile(Folder / u"turned.jpg"_s, Turned);
    EXPECT_EQ(MeasurePicture({Folder / u"turned.jpg"_s, {}}), QSize(40, 64));
    EXPECT_EQ(MeasurePicture({{}, Turned}), QSize(40, 64));
    EXPECT_EQ(MeasurePicture({PictureFile(u"cmyk.jpg"_s), {}}), QSize(48, 32));
    EXPECT_EQ(MeasurePicture({PictureFile(u"turned.tif"_s), {}}), QSize(48, 32));
}

TEST(PrintPictures, OneThatCannotBeDecodedIsAFaultWithItsName) {
    const harness::TempFolder Folder;
    const QString Cut = Folder / u"cut.jpg"_s, None = Folder / u"none.jpg"_s;
    WriteFile(Cut, JpegOf(Noise({64, 40}, 3)).left(900));
    for (const QString& Path : {Cut, None}) try {
            MeasurePicture({Path, {}});
            ADD_FAILURE() << Path.toStdString();
        } catch (const Fault& Reason) {
            EXPECT_EQ(Reason.File(), Path);
        }
}

TEST(PrintPictures, HaveNoMorePixelsThanAreAskedFor) {
    const harness::TempFolder Folder;
    const QString File = Folder / u"large.jpg"_s;
    SaveJpeg(File, Motif({1200, 800}));
    const QImage Small = PixelsOf({File, {}}, {150, 100});
    EXPECT_EQ(Small.size(), QSize(150, 100));
    ExpectFields(Small, Red, Green, Blue, Grey, 4);
    EXPECT_EQ(PixelsOf({File, {}}, {60, 100}).size(), QSize(60, 100)) << "stretched";
    EXPECT_EQ(PixelsOf({File, {}}, {9000, 600}).size(), QSize(1200, 600)) << "never made larger";
}

}  // namespace
}  // namespace neb
