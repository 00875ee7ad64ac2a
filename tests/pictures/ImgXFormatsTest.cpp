// Every format and kind of pixel gives the same motif.
#include "harness/WithoutExtraFormats.h"
#include "pictures/Pictures.h"
#include "pictures/formats/PictureFaults.h"
#include "support/work/AheadQueue.h"

using namespace neb;
using harness::WithoutExtraFormats;
using namespace neb::tests;

namespace {

enum class Kind { Colour, Grey, Bilevel, Clear };
struct FileCase {
    const char* Name;
    Kind What;
    int Tolerance;
};
void PrintTo(const FileCase& Case, std::ostream* Out) {
    *Out << Case.Name;
}

const FileCase Cases[] = {
    {"rgb24.bmp", Kind::Colour, 0},       {"palette8.bmp", Kind::Colour, 0},
    {"packed8.bmp", Kind::Colour, 0},     {"alpha32.bmp", Kind::Clear, 0},
    {"bilevel.bmp", Kind::Bilevel, 0},    {"os2.bmp", Kind::Colour, 0},
    {"rgb444.jpg", Kind::Colour, 3},      {"rgb420.jpg", Kind::Colour, 3},
    {"progressive.jpg", Kind::Colour, 3}, {"grey.jpg", Kind::Grey, 2},
    {"cmyk.jpg", Kind::Colour, 3},        {"rgb8.png", Kind::Colour, 0},
    {"rgb16.png", Kind::Colour, 0},       {"interlaced.png", Kind::Colour, 0},
    {"palette.png", Kind::Colour, 0},     {"grey8.png", Kind::Grey, 0},
    {"grey16.png", Kind::Grey, 0},        {"bilevel.png", Kind::Bilevel, 0},
    {"alpha8.png", Kind::Clear, 0},       {"alpha16.png", Kind::Clear, 0},
    {"rgb8-none.tif", Kind::Colour, 0},   {"rgb8-lzw.tif", Kind::Colour, 0},
    {"rgb8-zip.tif", Kind::Colour, 0},    {"rgb8-rle.tif", Kind::Colour, 0},
    {"rgb8-jpeg.tif", Kind::Colour, 3},   {"rgb16.tif", Kind::Colour, 0},
    {"bigendian.tif", Kind::Colour, 0},   {"grey8.tif", Kind::Grey, 0},
    {"grey16.tif", Kind::Grey, 0},        {"palette.tif", Kind::Colour, 0},
    {"group4.tif", Kind::Bilevel, 0},     {"alpha.tif", Kind::Clear, 0},
    {"tiled.tif", Kind::Colour, 0},       {"cmyk8.tif", Kind::Colour, 1},
    {"cmyk16.tif", Kind::Colour, 1},      {"lab.tif", Kind::Colour, 3},
    {"float.tif", Kind::Colour, 1},       {"turned.tif", Kind::Colour, 0},
    {"rgb8.psd", Kind::Colour, 0},        {"rgb16.psd", Kind::Colour, 0},
    {"grey8.psd", Kind::Grey, 0},         {"cmyk.psd", Kind::Colour, 1},
    {"alpha.psd", Kind::Clear, 0},        {"layers.psd", Kind::Colour, 0},
    {"top24.tga", Kind::Colour, 0},       {"bottom24.tga", Kind::Colour, 0},
    {"packed24.tga", Kind::Colour, 0},    {"palette.tga", Kind::Colour, 0},
    {"grey.tga", Kind::Grey, 0},          {"alpha32.tga", Kind::Clear, 0},
    {"rgb24.pcx", Kind::Colour, 0},       {"palette8.pcx", Kind::Colour, 0},
    {"bilevel.pcx", Kind::Bilevel, 0},    {"bilevel.wbmp", Kind::Bilevel, 0},
};

void ExpectMotif(const QImage& Picture, Kind What, int Tolerance) {
    const auto Level = [](int L) { return QColor(L, L, L); };
    if (What == Kind::Colour) ExpectFields(Picture, Red, Green, Blue, Grey, Tolerance);
    if (What == Kind::Clear) ExpectFields(Picture, Red, Green, Blue, Qt::white, Tolerance);
    if (What == Kind::Grey)
        ExpectFields(Picture, Level(54), Level(114), Level(18), Level(128), Tolerance);
    if (What == Kind::Bilevel)
        ExpectFields(Picture, Qt::black, Qt::white, Qt::black, Qt::white, Tolerance);
}

class EveryFile : public testing::TestWithParam<FileCase> {};

}  // namespace

TEST_P(EveryFile, GivesTheMotif) {
    const ImgX Picture = Loaded(PictureFile(QString::fromLatin1(GetParam().Name)));
    EXPECT_EQ(QSize(48, 32), Picture.Picture().size());
    EXPECT_EQ(QSize(48, 32), Picture.FullSize());
    EXPECT_EQ(QImage::Format_RGB32, Picture.Picture().format());
    EXPECT_EQ(0xFFU, Picture.Picture().pixel(0, 0) >> 24);
    ExpectMotif(Picture.Picture(), GetParam().What, GetParam().Tolerance);
}

TEST_P(EveryFile, IsKnownByItsContentWhateverItsName) {
    const harness::TempFolder Folder;
    for (const char* Name : {"picture.jpg", "picture.tla", "picture"}) {
        const QString Copy = Folder / QString::fromLatin1(Name);
        CopyFile(PictureFile(QString::fromLatin1(GetParam().Name)), Copy);
        ExpectMotif(Loaded(Copy).Picture(), GetParam().What, GetParam().Tolerance);
    }
}

INSTANTIATE_TEST_SUITE_P(ImgX, EveryFile, testing::ValuesIn(Cases));

namespace {

// Two by two pixels of 16 bits, from the top: red, green, blue, white.
QByteArray Bitmap16(const QByteArray& Masks, const QByteArray& Pixels) {
    const char Offset = static_cast<char>(54 + Masks.size());
    QByteArray Bytes = "BM" + QByteArray::fromHex(
                                  "00000000"
                                  "00000000"
                                  "00000000"
                                  "28000000"
                                  "02000000"
                                  "feffffff"
                                  "0100"
                                  "1000"
                                  "00000000"
                                  "08000000"
                                  "00000000"
                                  "00000000"
                                  "00000000"
                                  "00000000");
    Bytes[2] = static_cast<char>(Offset + Pixels.size());
    Bytes[10] = Offset;
    Bytes[30] = Masks.isEmpty() ? 0 : 3;
    return Bytes + Masks + Pixels;
}

}  // namespace

TEST(ImgXFormats, BitmapsOf16BitsReachFullWhite) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("sixteen.bmp");
    const QByteArray Masks = QByteArray::fromHex(
        "00f80000"
        "e0070000"
        "1f000000");
    WriteFile(File, Bitmap16(Masks, QByteArray::fromHex("00f8"
                                                        "e007"
                                                        "1f00"
                                                        "ffff")));
    ExpectFields(Loaded(File).Picture(), Qt::red, Qt::green, Qt::blue, Qt::white, 0);
    WriteFile(File, Bitmap16({}, QByteArray::fromHex("007c"
                                                     "e003"
                                                     "1f00"
                                                     "ff7f")));
    ExpectFields(Loaded(File).Picture(), Qt::red, Qt::green, Qt::blue, Qt::white, 0);
}

TEST(ImgXFormats, APhotoCdGivesItsFullBasePicture) {
    const ImgX Picture = Loaded(harness::DataFile("photo.pcd"));
    EXPECT_EQ(QSize(768, 512), Picture.FullSize());
}

TEST(ImgXFormats, AnEnhancedMetafileIsDrawn) {
    const ImgX Picture = Loaded(harness::DataFile("draw.emf"));
    EXPECT_EQ(QSize(373, 273), Picture.FullSize());
    ExpectNear(Picture.Picture(), 0.01, 0.99, QColor(255, 255, 204), 1);
    ExpectNear(Picture.Picture(), 80 / 373.0, 50 / 273.0, Qt::red, 1);
    ExpectNear(Picture.Picture(), 266 / 373.0, 76 / 273.0, Qt::blue, 1);
    ExpectNear(Picture.Picture(), 300 / 373.0, 230 / 273.0, QColor(255, 165, 0), 1);
}

TEST(ImgXFormats, AnEnhancedMetafileWithAPhotographIsDrawn) {
    const ImgX Picture = Loaded(harness::DataFile("photo.emf"));
    EXPECT_EQ(QSize(718, 1047), Picture.FullSize());
    ExpectNear(Picture.Picture(), 0.25, 0.4, Qt::red, 2);
    ExpectNear(Picture.Picture(), 0.75, 0.6, Qt::blue, 2);
    ExpectNear(Picture.Picture(), 0.5, 0.05, Qt::white, 0);
}

TEST(ImgXFormats, AMetafileIsDrawnFromTheEnhancedOneItCarries) {
    const QImage Carried = Loaded(harness::DataFile("draw.wmf")).Picture();
    EXPECT_EQ(Loaded(harness::DataFile("draw.emf")).Picture(), Carried);
}

TEST(ImgXFormats, FormatsThatCameLaterCanBeSwitchedOff) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("motif.webp");
    ASSERT_TRUE(Motif().save(File, "WEBP", 100));
    ExpectFields(Loaded(File).Picture(), Red, Green, Blue, Grey, 3);
    const WithoutExtraFormats Off;
    EXPECT_EQ(FaultUnknownPicture, FaultOf(File));
}

TEST(ImgXFormats, SeveralThreadsReadTheSamePicturesAsOne) {
    std::vector<QString> Files;
    for (int Round = 0; Round < 3; ++Round) {
        for (const FileCase& Case : Cases)
            Files.push_back(PictureFile(QString::fromLatin1(Case.Name)));
        for (const char* Name : {"draw.emf", "draw.wmf", "hand.wmf", "photo.pcd"})
            Files.push_back(harness::DataFile(Name));
    }
    AheadQueue<QString, QImage> Queue(
        Files, [](const QString& File) { return Loaded(File).Picture(); }, 12);
    while (!Queue.AtEnd()) {
        const QString File = Queue.Next();
        EXPECT_EQ(Loaded(File).Picture(), Queue.Take()) << File.toStdString();
    }
}
