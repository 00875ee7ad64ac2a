// What a picture's file says of it goes along with it into the album, and its place only where it
// may.
#include "pictures/notes/PictureNotes.h"
#include "pictures/notes/SaidUpright.h"

#include <QBuffer>
#include <atomic>
#include <random>
#include <thread>

#include "pictures/NotedPictures.h"
#include "pictures/PictureWords.h"
#include "pictures/formats/TiffTags.h"

using namespace neb;
using namespace neb::tests;

namespace {

const PictureKeeping Own{OwnSize, true}, OwnWithoutPlace{OwnSize, false};

quint32 CrcOf(const QByteArray& Bytes) {
    quint32 Crc = ~0U;
    for (const char Byte : Bytes) {
        Crc ^= uchar(Byte);
        for (int I = 0; I < 8; ++I) Crc = Crc >> 1 ^ (Crc & 1 ? 0xEDB88320 : 0);
    }
    return ~Crc;
}

QByteArray BigEndian(quint32 Number) {
    QByteArray Bytes = MadeExif::Bytes(Number, 4);
    std::reverse(Bytes.begin(), Bytes.end());
    return Bytes;
}

QByteArray PngWith(const QByteArray& Block, QSize Size) {
    QByteArray Png;
    QBuffer Into(&Png);
    Motif(Size).save(&Into, "PNG");
    const QByteArray Chunk = "eXIf" + Block;
    return Png.insert(33, BigEndian(quint32(Block.size())) + Chunk + BigEndian(CrcOf(Chunk)));
}

// Grey pixels in one strip, with words and a place.
QByteArray Tiff(QSize Size) {
    using Exif = MadeExif;
    Exif Made;
    const quint32 Strip = Made.AddBytes(QByteArray(Size.width() * Size.height(), '\x50'));
    const quint32 Place = Made.Add(PlaceTags());
    const quint32 Details = Made.Add({Exif::Text(0x9003, "2003:12:24 18:30:00")});
    Made.StartWith(Made.Add(
        {Exif::Long(0x0100, quint32(Size.width())), Exif::Long(0x0101, quint32(Size.height())),
         Exif::Short(0x0102, 8), Exif::Short(0x0103, 1), Exif::Short(0x0106, 1),
         Exif::Text(0x010E, "Grandmother by the tree"), Exif::Long(0x0111, Strip),
         Exif::Short(0x0115, 1), Exif::Long(0x0116, quint32(Size.height())),
         Exif::Long(0x0117, quint32(Size.width() * Size.height())), Exif::Long(0x8769, Details),
         Exif::Long(0x8825, Place)}));
    return Made.Block();
}

QByteArray Fitted(const QByteArray& Bytes, const PictureKeeping& Keeping) {
    const harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("picture.any");
    WriteFile(File, Bytes);
    return FittedJpeg(File, Keeping);
}

QString Words(const TiffTags& Tags) {
    return QString::fromLatin1(Tags.Bytes(0x010E)).remove(QChar(0));
}

QString Taken(const TiffTags& Tags) {
    return QString::fromLatin1(Tags.BytesBehind(0x8769, 0x9003)).remove(QChar(0));
}

void ExpectCameraWords(const QByteArray& Block) {
    const TiffTags Tags(Block);
    EXPECT_EQ("Grandmother by the tree", Words(Tags).toStdString());
    EXPECT_EQ("2003:12:24 18:30:00", Taken(Tags).toStdString());
    EXPECT_EQ(1, Tags.Orientation());
}

bool HasPlace(const QByteArray& Jpeg) {
    const QByteArray Block = ExifIn(Jpeg), Seconds = MadeExif::Bytes(4711, 4);
    return TiffTags(Block).Value(0x8825).has_value() || Block.contains(Seconds) ||
           Jpeg.contains("GPSLatitude");
}

QByteArray PixelPart(const QByteArray& Jpeg) {
    const auto Head = HeadOf(Jpeg);
    return Jpeg.mid(Head.back().At + Head.back().Length);
}

}  // namespace

TEST(PictureNotes, APictureThatIsWrittenAnewKeepsItsWordsItsDateAndItsPlace) {
    const QSize Large(1100, 800);
    const QByteArray Jpeg = Noted(JpegOf(Motif(Large)), 1, Large);
    for (const QByteArray& Bytes : {Jpeg, PngWith(CameraBlock(1, Large), Large), Tiff(Large)}) {
        const QByteArray Stored = Fitted(Bytes, {});
        ExpectCameraWords(ExifIn(Stored));
        EXPECT_TRUE(HasPlace(Stored));
        EXPECT_FALSE(HasPlace(Fitted(Bytes, {SlideLimit, false})));
    }
}

// A scan in 16 bits easily has a hundred million bytes.
TEST(PictureNotes, AnEnormousFileKeepsItsWordsToo) {
    const QByteArray Padding(70 << 20, '\0');
    const QByteArray Block = ExifIn(Fitted(Tiff({40, 30}) + Padding, {}));
    ExpectCameraWords(Block);
}

TEST(PictureNotes, PacketsAndTheWordsOfAgenciesStay) {
    const QByteArray Stored = Fitted(Noted(JpegOf(Motif({1100, 800})), 1, {1100, 800}), {});
    EXPECT_TRUE(Stored.contains("Words in a packet"));
    EXPECT_TRUE(Stored.contains("Words of an agency"));
    const QByteArray Placeless =
        Fitted(Noted(JpegOf(Motif({1100, 800})), 1, {1100, 800}), {SlideLimit, false});
    EXPECT_TRUE(Placeless.contains("Words in a packet"));
}

TEST(PictureNotes, WhatWasTrueOfTheOldPixelsAloneGoes) {
    const QByteArray Stored = Fitted(Noted(JpegOf(Motif({800, 1100})), 6, {800, 1100}), {});
    const QByteArray Block = ExifIn(Stored);
    const TiffTags Tags(Block);
    EXPECT_EQ(1, Tags.Orientation());
    EXPECT_EQ(1024U, Tags.ValueBehind(0x8769, 0xA002));
    EXPECT_EQ(745U, Tags.ValueBehind(0x8769, 0xA003));
    EXPECT_FALSE(Block.contains("small picture"));
    EXPECT_FALSE(Block.contains("SECRET"));
    EXPECT_FALSE(Stored.contains("tiff:Orientation"));
    EXPECT_FALSE(PartsOf(Stored)->IsTurnedByXmp());
}

TEST(PictureNotes, APictureThatSaysNothingSaysNothingInTheAlbum) {
    const QByteArray Stored = Fitted(JpegOf(Motif({1100, 800})), {});
    for (const JpegPart& Part : HeadOf(Stored))
        EXPECT_FALSE(Part.Marker > 0xE0 && Part.Marker < 0xF0) << Part.Marker;
}

TEST(PictureNotes, AKeptPictureLosesItsPlaceAndNothingElse) {
    const QByteArray Jpeg = Noted(JpegOf(Motif({64, 48})), 1, {64, 48});
    EXPECT_TRUE(HasPlace(Jpeg));
    EXPECT_EQ(Jpeg, Fitted(Jpeg, Own));
    const QByteArray Stored = Fitted(Jpeg, OwnWithoutPlace);
    EXPECT_FALSE(HasPlace(Stored));
    EXPECT_EQ(PixelPart(Jpeg), PixelPart(Stored));
    ExpectCameraWords(ExifIn(Stored));
    EXPECT_EQ(ExifIn(Jpeg).size(), ExifIn(Stored).size());
    EXPECT_FALSE(ExifIn(Stored).contains("SECRET")) << "the maker's notes may tell the place";
    EXPECT_TRUE(ExifIn(Stored).contains("small picture"));
    EXPECT_TRUE(Stored.contains("Words in a packet"));
    EXPECT_TRUE(Stored.contains("Words of an agency"));
}

TEST(PictureNotes, AKeptPictureWithoutAPlaceStaysByteForByte) {
    const QByteArray Jpeg = WithExif(JpegOf(Motif({64, 48})), ExifBlock(true, 1));
    EXPECT_EQ(Jpeg, Fitted(Jpeg, OwnWithoutPlace));
}

TEST(PictureNotes, APlaceGoesWhereverABlockHasIt) {
    using Exif = MadeExif;
    Exif Made;
    const quint32 Place = Made.Add(PlaceTags()), Again = Made.Add(PlaceTags()),
                  Third = Made.Add(PlaceTags());
    const quint32 Details =
        Made.Add({Exif::Text(0x9003, "2003:12:24 18:30:00"), Exif::Long(0x8825, Third)});
    Made.StartWith(
        Made.Add({Exif::Text(0x010E, "Grandmother by the tree"), Exif::Long(0x8769, Details),
                  Exif::Long(0x8825, Place), Exif::Long(0x8825, Again)}));
    const QByteArray Stored =
        Fitted(WithExif(JpegOf(Motif({64, 48})), Made.Block()), OwnWithoutPlace);
    ExpectCameraWords(ExifIn(Stored));
    EXPECT_FALSE(HasPlace(Stored));
}

TEST(PictureNotes, APlaceGoesFromCopiesAndFromPartsOfOtherForms) {
    const auto Resource = [](quint32 Kind, const QByteArray& Bytes) {
        return "8BIM" + BigEndian(Kind).right(2) + QByteArray(2, '\0') +
               BigEndian(quint32(Bytes.size())) + Bytes + QByteArray(Bytes.size() % 2, '\0');
    };
    const QByteArray Words = IptcResource("Words of an agency");
    const QByteArray Plain = WithMore(JpegOf(Motif({64, 48})),
                                      JpegPartOf(PhotoshopMarker, PhotoshopMark + Words + "end") +
                                          JpegPartOf(0xEB, "JP proof of origin"));
    EXPECT_EQ(Plain, Fitted(Plain, OwnWithoutPlace));
    const QByteArray Copies =
        Resource(0x0422, CameraBlock(1, {64, 48})) + Words + Resource(0x0424, XmpPacket(1)) + "end";
    const QByteArray Told = WithMore(
        JpegOf(Motif({64, 48})), JpegPartOf(PhotoshopMarker, PhotoshopMark + Copies) +
                                     JpegPartOf(0xEB, "JP proof of origin") +
                                     JpegPartOf(0xEB, "JP \"exif:GPSLatitude\": \"48,51.785N\"") +
                                     JpegPartOf(0xFE, "LATITUDE 48.85 north"));
    EXPECT_EQ(Told, Fitted(Told, Own));
    EXPECT_EQ(Plain, Fitted(Told, OwnWithoutPlace));
}

TEST(PictureNotes, ATurnedPictureSaysThatItIsUpright) {
    const QByteArray Jpeg = Noted(JpegOf(Motif({64, 48})), 6, {64, 48});
    const QByteArray Stored = Fitted(Jpeg, Own);
    const QByteArray Block = ExifIn(Stored);
    ExpectCameraWords(Block);
    EXPECT_EQ(48U, TiffTags(Block).ValueBehind(0x8769, 0xA002));
    EXPECT_EQ(64U, TiffTags(Block).ValueBehind(0x8769, 0xA003));
    EXPECT_TRUE(Stored.contains("tiff:Orientation=\"1\""));
    EXPECT_TRUE(Block.contains("SECRET")) << "the maker's notes stay at their place";
    EXPECT_EQ(0U, TiffTags(Block).Value(0x0201).value_or(0));
    EXPECT_TRUE(HasPlace(Stored));
    EXPECT_FALSE(HasPlace(Fitted(Jpeg, OwnWithoutPlace)));
}

TEST(PictureNotes, ManyThreadsReadTheSame) {
    const QByteArray Jpeg = Noted(JpegOf(Motif()), 1, {48, 32});
    const QByteArray Kept = NotesFor({48, 32}, Jpeg, true), Bare = WithoutPlace(Jpeg);
    std::atomic<int> Different = 0;
    const auto Read = [&] {
        for (int I = 0; I < 50; ++I)
            Different += NotesFor({48, 32}, Jpeg, true) != Kept || WithoutPlace(Jpeg) != Bare;
    };
    {
        std::vector<std::jthread> Threads;
        for (int I = 0; I < 4; ++I) Threads.emplace_back(Read);
    }
    EXPECT_EQ(0, Different);
    EXPECT_GT(Kept.size(), 500);
}

TEST(PictureNotes, BlocksThatAreDamagedDoNoHarm) {
    std::mt19937 Random(11);
    const QByteArray Jpeg = Noted(JpegOf(Motif({32, 32})), 6, {32, 32});
    const qsizetype Head = HeadOf(Jpeg).back().At;
    for (int Round = 0; Round < 400; ++Round) {
        QByteArray Broken = Jpeg;
        for (int I = 0; I < 1 + Round % 30; ++I)
            Broken[24 + qsizetype(Random() % size_t(Head - 24))] = static_cast<char>(Random());
        const QByteArray Without = WithoutPlace(Broken), Said = SaidUpright(Broken);
        EXPECT_LE(Without.size(), Broken.size() + 2000);
        EXPECT_EQ(Said.size(), Broken.size());
        EXPECT_LT(NotesFor({32, 32}, Broken, true).size(), 200000);
    }
}
