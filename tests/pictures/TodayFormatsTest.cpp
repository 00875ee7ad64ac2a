// The formats that cameras and phones of today write: every kind of pixel gives the motif, what is
// cut is told, and everything else that a file of several pictures has is passed over.
#include "harness/WithoutExtraFormats.h"
#include "pictures/Blocks.h"
#include "pictures/Pictures.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureSniff.h"
#include "pictures/workers/PictureReading.h"

using namespace neb;
using namespace neb::tests;

namespace {

enum class Kind { Colour, Grey, Clear, Wide, Swapped };
struct TodayCase {
    const char* Name;
    Kind What = Kind::Colour;
    int Tolerance = 0;
    QSize Size = {48, 32};
};
void PrintTo(const TodayCase& Case, std::ostream* Out) {
    *Out << Case.Name;
}

const TodayCase Cases[] = {
    {"lossless.heic", Kind::Colour, 2},
    {"lossy.heic", Kind::Colour, 2},
    {"deep.heic", Kind::Colour, 2},
    {"half.heic", Kind::Colour, 2},
    {"clear.heic", Kind::Clear, 2},
    {"grey.heic", Kind::Grey, 2},
    {"exif.heic", Kind::Colour, 2},
    {"profile.heic", Kind::Swapped, 3},
    {"plain.avif", Kind::Colour, 2},
    {"half.avif", Kind::Colour, 3},
    {"deep.avif", Kind::Colour, 2},
    {"grey.avif", Kind::Grey, 2},
    {"clear.avif", Kind::Clear, 2},
    {"mixed.avif", Kind::Clear, 2},
    {"tiles.avif", Kind::Colour, 2, {128, 128}},
    {"turned.avif", Kind::Colour, 2},
    {"mirrored.avif", Kind::Colour, 2},
    {"wide.avif", Kind::Wide, 2},
    {"profile.avif", Kind::Swapped, 3},
    {"plain.jp2"},
    {"plain.j2k"},
    {"clear.jp2", Kind::Clear},
    {"grey.jp2", Kind::Grey},
    {"deep.jp2"},
    {"tiles.jp2", Kind::Colour, 0, {128, 128}},
    {"half.jp2", Kind::Colour, 2},
    {"plain.webp"},
    {"clear.webp", Kind::Clear},
    {"moving.webp"},
    {"plain.gif"},
    {"interlaced.gif"},
    {"clear.gif", Kind::Clear},
    {"moving.gif"},
};

QString TodayFile(const char* Name) {
    return harness::DataFile("today/") + QString::fromLatin1(Name);
}

void ExpectMotif(const QImage& Picture, Kind What, int Tolerance) {
    const auto Level = [](int L) { return QColor(L, L, L); };
    if (What == Kind::Colour) ExpectFields(Picture, Red, Green, Blue, Grey, Tolerance);
    if (What == Kind::Clear) ExpectFields(Picture, Red, Green, Blue, Qt::white, Tolerance);
    if (What == Kind::Grey)
        ExpectFields(Picture, Level(54), Level(114), Level(18), Level(128), Tolerance);
    // The green of the wider colours is a stronger one than the screen's same number.
    if (What == Kind::Wide) ExpectFields(Picture, Red, QColor(0, 163, 0), Blue, Grey, Tolerance);
    if (What == Kind::Swapped) ExpectFields(Picture, Blue, Green, Red, Grey, Tolerance);
}

QString Written(const harness::TempFolder& Folder, const QByteArray& Bytes) {
    const QString File = Folder / QStringLiteral("file");
    WriteFile(File, Bytes);
    return File;
}

quint32 FaultOfBytes(const QByteArray& Bytes) {
    const harness::TempFolder Folder;
    return FaultOf(Written(Folder, Bytes));
}

class EveryFileOfToday : public testing::TestWithParam<TodayCase> {};

}  // namespace

TEST_P(EveryFileOfToday, GivesTheMotif) {
    const ImgX Picture = Loaded(TodayFile(GetParam().Name));
    EXPECT_EQ(GetParam().Size, Picture.Picture().size());
    EXPECT_EQ(GetParam().Size, Picture.FullSize());
    EXPECT_EQ(QImage::Format_RGB32, Picture.Picture().format());
    EXPECT_EQ(0xFFU, Picture.Picture().pixel(0, 0) >> 24);
    ExpectMotif(Picture.Picture(), GetParam().What, GetParam().Tolerance);
}

TEST_P(EveryFileOfToday, IsKnownByItsContentWhateverItsName) {
    const harness::TempFolder Folder;
    const QString Copy = Folder / QStringLiteral("picture.jpg");
    CopyFile(TodayFile(GetParam().Name), Copy);
    ExpectMotif(Loaded(Copy).Picture(), GetParam().What, GetParam().Tolerance);
}

TEST_P(EveryFileOfToday, IsNoPictureWhereTheKindsOfTodayAreSwitchedOff) {
    const harness::WithoutExtraFormats Off;
    EXPECT_EQ(FaultUnknownPicture, FaultOf(TodayFile(GetParam().Name)));
    EXPECT_FALSE(LooksLikePicture(ReadFile(TodayFile(GetParam().Name))));
}

// Whatever of it is missing; only films may lose pictures behind the first one.
TEST_P(EveryFileOfToday, EndsInAFaultWhereItIsCut) {
    const QByteArray Whole = ReadFile(TodayFile(GetParam().Name));
    const bool Film = QByteArrayView(GetParam().Name).startsWith("moving.gif");
    const qsizetype Most = Film ? Whole.size() / 3 : Whole.size() * 9 / 10;
    const harness::TempFolder Folder;
    for (qsizetype Length = 1; Length <= Most; Length += 1 + Most / 40)
        EXPECT_NE(0U, FaultOf(Written(Folder, Whole.left(Length)))) << Length;
    const quint32 Reason = FaultOf(Written(Folder, Whole.left(Most)));
    EXPECT_EQ(FaultEndsEarly, Reason);
}

INSTANTIATE_TEST_SUITE_P(Today, EveryFileOfToday, testing::ValuesIn(Cases));

TEST(TodayFormats, AreKnownByTheirBrandsWhereverTheseStand) {
    const auto Head = [](const QByteArray& Brands) {
        return BigEndian(static_cast<quint32>(8 + Brands.size())) + "ftyp" + Brands;
    };
    for (const char* Brand :
         {"heic", "heix", "hevc", "heim", "heis", "mif1", "msf1", "avif", "avis"}) {
        EXPECT_TRUE(LooksLikePicture(Head(QByteArray(Brand) + QByteArray(4, '\0')))) << Brand;
        EXPECT_TRUE(LooksLikePicture(Head(QByteArray("else\0\0\0\0", 8) + "miaf" + Brand)))
            << Brand;
    }
    EXPECT_FALSE(LooksLikePicture(Head(QByteArray("mp42\0\0\0\0", 8) + "isommp42")));
    EXPECT_FALSE(LooksLikePicture(Head(QByteArray("qt  \0\0\0\0", 8)) + "heic"));
}

TEST(TodayFormats, TheFirstOfSeveralPicturesInAJpegIsRead) {
    const harness::TempFolder Folder;
    const QString One = Folder / QStringLiteral("1.jpg"), Two = Folder / QStringLiteral("2.jpg");
    ASSERT_TRUE(Motif().save(One, "JPEG", 100));
    ASSERT_TRUE(
        Fields(Qt::black, Qt::black, Qt::black, Qt::black, {96, 64}).save(Two, "JPEG", 100));
    const QByteArray Index = QByteArray("MPF\0II*\0\x08\0\0\0\0\0\0\0\0\0", 18);
    const QByteArray First = ReadFile(One), Second = ReadFile(Two);
    const QByteArray Marked = First.left(2) + "\xFF\xE2" +
                              BigEndian(static_cast<quint16>(Index.size() + 2)) + Index +
                              First.mid(2);
    const QByteArray Film = Jp2Box("ftyp", QByteArray("mp42\0\0\0\0", 8) + "isommp42") +
                            Jp2Box("mdat", QByteArray(5000, '\x2A'));
    for (const QByteArray& All : {Marked + Second, Marked + QByteArray(100, '\0') + Second,
                                  First + Film, First + Film.left(3000)}) {
        const QString File = Folder / QStringLiteral("IMG_1.mpo");
        WriteFile(File, All);
        const QImage Picture = Loaded(File).Picture();
        EXPECT_EQ(QSize(48, 32), Picture.size());
        ExpectFields(Picture, Red, Green, Blue, Grey, 3);
    }
}

TEST(TodayFormats, AFilmBehindAHeicIsPassedOver) {
    const harness::TempFolder Folder;
    const QByteArray Film = Jp2Box("mpvd", QByteArray(5000, '\x2A'));
    const QString File = Written(Folder, ReadFile(TodayFile("lossy.heic")) + Film);
    ExpectFields(Loaded(File).Picture(), Red, Green, Blue, Grey, 2);
}

TEST(TodayFormats, PicturesBeyondTheLimitAreRefusedBeforeTheyAreDecoded) {
    const QByteArray Size = BigEndian<quint32>(48) + BigEndian<quint32>(32);
    const QByteArray Huge = BigEndian<quint32>(30000) + BigEndian<quint32>(30000);
    for (const char* Name : {"lossy.heic", "plain.avif", "plain.j2k"}) {
        QByteArray Bytes = ReadFile(TodayFile(Name));
        ASSERT_TRUE(Bytes.contains(Size)) << Name;
        EXPECT_EQ(FaultTooLarge, FaultOfBytes(Bytes.replace(Size, Huge))) << Name;
    }
    QByteArray Gif = ReadFile(TodayFile("plain.gif"));
    const QByteArray Sides = QByteArray::fromHex("30002000");
    EXPECT_EQ(FaultTooLarge, FaultOfBytes(Gif.replace(Sides, QByteArray::fromHex("fffffffF"))));
}

TEST(TodayFormats, ALargeJpeg2000IsDecodedOnlyAsFineAsItIsNeeded) {
    const QByteArray Bytes = ReadFile(TodayFile("tiles.jp2"));
    const auto Needs = [&](int Side) {
        return DecodePicture(Bytes, [=](QSize) { return QSize(Side, Side); });
    };
    EXPECT_EQ(QSize(32, 32), Needs(20).Picture.size());
    EXPECT_EQ(QSize(128, 128), Needs(20).Full);
    EXPECT_EQ(QSize(64, 64), Needs(64).Picture.size());
    EXPECT_EQ(QSize(128, 128), Needs(65).Picture.size());
    ExpectFields(Needs(20).Picture, Red, Green, Blue, Grey, 2);
}
