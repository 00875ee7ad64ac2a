// Behind the locked door every format gives what it gives without one, to the last bit and to the
// last word, whether it is the first picture that is read there or one of many.
#include <random>

#include "harness/WithoutExtraFormats.h"
#include "pictures/NotedPictures.h"
#include "pictures/formats/PictureFaults.h"
#include "pictures/formats/PictureSniff.h"
#include "pictures/workers/MadePictures.h"
#include "support/locked/Lock.h"

using namespace neb;
using namespace neb::tests;

namespace {

// The words of a process that has ended at work are none of a decoder's.
void ExpectItLives(const Outcome& Is) {
    EXPECT_FALSE(Is.Sentence.startsWith(QLatin1String("The picture cannot be read: it t")) ||
                 Is.Sentence.contains(QLatin1String("its reader down")))
        << Is.Sentence.toStdString();
}

void ExpectAllSame(const std::vector<NamedFile>& Files) {
    ASSERT_FALSE(Files.empty());
    ReadingLocked Locked;
    for (const NamedFile& Each : Files) {
        SCOPED_TRACE(Each.Name);
        EXPECT_EQ(0U, Decoded(Locked, Each.Bytes).Number);
        ExpectSame(Locked, Each.Bytes);
    }
}

// What the format is needs no looking up: the kinds that differ in what a library loads for them.
const char* const FirstOfAll[] = {
    "rgb420.jpg", "cmyk.jpg",     "progressive.jpg", "rgb8.png",      "alpha16.png",
    "rgb24.bmp",  "palette8.pcx", "alpha32.tga",     "bilevel.wbmp",  "rgb8-lzw.tif",
    "rgb16.tif",  "lab.tif",      "float.tif",       "rgb8-jpeg.tif", "group4.tif",
    "cmyk16.tif", "rgb8.psd",     "rgb16.psd",       "cmyk.psd",      "layers.psd",
    "photo.pcd",  "lossy.heic",   "profile.heic",    "plain.avif",    "profile.avif",
    "tiles.avif", "plain.jp2",    "plain.j2k",       "plain.webp",    "moving.webp",
    "clear.webp", "plain.gif",    "moving.gif",      "deep.heic",     "deep.avif"};

QByteArray SampleOf(const char* Name) {
    for (const NamedFile& Each : AllSamples())
        if (Each.Name == Name) return Each.Bytes;
    ADD_FAILURE() << Name;
    return {};
}

void FlipBits(QByteArray& Bytes, std::mt19937& Random) {
    for (unsigned I = 0; I <= Random() % 5; ++I) {
        const auto Range = static_cast<size_t>(Random() % 2 ? std::min<qsizetype>(Bytes.size(), 200)
                                                            : Bytes.size());
        const auto At = static_cast<qsizetype>(Random() % Range);
        Bytes[At] = static_cast<char>(Bytes[At] ^ (1 << Random() % 8));
    }
}

// The sample with other numbers where its width and height stand.
QByteArray Giant(const char* Name, std::initializer_list<qsizetype> Places, int Width, bool Big) {
    constexpr quint32 Side = 60000;
    QByteArray Bytes = SampleOf(Name);
    for (const qsizetype At : Places)
        for (int I = 0; I < Width; ++I)
            Bytes[At + I] = static_cast<char>(Side >> 8 * (Big ? Width - 1 - I : I));
    return Bytes;
}

// Where the four bytes of the width of 48 and those of the height follow each other.
QByteArray GiantAnywhere(const char* Name) {
    const QByteArray Size = QByteArray::fromHex("0000003000000020");
    QByteArray Bytes = SampleOf(Name);
    EXPECT_TRUE(Bytes.contains(Size)) << Name;
    return Bytes.replace(Size, QByteArray::fromHex("0000753000007530"));
}

// A photograph of a maker whose own notes are read in a way of their own, with words in letters of
// two bytes.
QByteArray PhotographBy(const char* Maker) {
    using Exif = MadeExif;
    Exif Made;
    const QByteArray Words = QByteArray("UNICODE\0", 8) + QByteArray("o\0r\0a\0l\0", 8);
    const quint32 Details = Made.Add({Exif::Text(0x9003, "2003:12:24 18:30:00"),
                                      {0x927C, 7, 64, QByteArray(Maker).leftJustified(64, '\1')},
                                      {0x9286, 7, quint32(Words.size()), Words}});
    Made.StartWith(
        Made.Add({Exif::Text(0x010E, "Grandmother by the tree"), Exif::Text(0x010F, Maker),
                  Exif::Text(0x0110, "Model One"), Exif::Long(0x8769, Details)}));
    return WithExif(JpegOf(Motif()), Made.Block());
}

}  // namespace

// Else all that follows would prove nothing.
TEST(LockedFormats, AreReadBehindADoorThatIsShut) {
    if (IsWatchedBuild) GTEST_SKIP() << "the watchman of this build needs files";
    EXPECT_GT(ReadingLocked().Report().SystemCalls, 20);
}

TEST(LockedFormats, EverySampleIsTheSameBehindTheDoor) {
    const auto Files = AllSamples();
    EXPECT_GE(Files.size(), 85U);
    ExpectAllSame(Files);
}

TEST(LockedFormats, EveryMadePictureIsTheSameBehindTheDoor) {
    ExpectAllSame(MadePictures());
}

TEST(LockedFormats, EveryKindIsTheSameWhereItIsTheFirstThatIsRead) {
    ReadingHere Here;
    for (const char* const Name : FirstOfAll) {
        SCOPED_TRACE(Name);
        const QByteArray File = SampleOf(Name);
        ReadingLocked Fresh;
        const Outcome First = Decoded(Fresh, File);
        EXPECT_EQ(0U, First.Number);
        EXPECT_EQ(Decoded(Here, File), First);
    }
}

TEST(LockedFormats, EveryCutKindIsToldInTheSameWordsWhereItIsTheFirstThatIsRead) {
    ReadingHere Here;
    for (const char* const Name : FirstOfAll) {
        SCOPED_TRACE(Name);
        const QByteArray File = SampleOf(Name);
        ReadingLocked Fresh;
        const QByteArray Cut = File.left(File.size() * 2 / 3);
        EXPECT_EQ(Decoded(Here, Cut), Decoded(Fresh, Cut));
    }
}

TEST(LockedFormats, NotesPlacesAndTurnsAreTheSameBehindTheDoor) {
    ReadingHere Here;
    ReadingLocked Locked;
    std::vector<NamedFile> Files = AllSamples();
    for (const NamedFile& Each : MadeJpegs()) Files.push_back(Each);
    for (const NamedFile& Each : Files) {
        SCOPED_TRACE(Each.Name);
        EXPECT_EQ(MadeOf(Here, Each.Bytes), MadeOf(Locked, Each.Bytes));
    }
}

TEST(LockedFormats, NotesPlacesAndTurnsAreTheSameWhereTheyAreTheFirstWork) {
    ReadingHere Here;
    const std::vector<NamedFile> Jpegs = MadeJpegs();
    const auto Noted = std::ranges::find(Jpegs, "JPEG with words", &NamedFile::Name);
    ASSERT_NE(Jpegs.end(), Noted);
    const QByteArray File = Noted->Bytes;
    const auto Notes = [&](PictureReader& By) { return By.NotesFor({48, 32}, File, false); };
    const auto Place = [&](PictureReader& By) { return By.WithoutPlace(File); };
    const auto Turned = [&](PictureReader& By) { return By.Turned(File, {true, 1}).value(); };
    EXPECT_EQ(Notes(Here), Notes(*std::make_unique<ReadingLocked>()));
    EXPECT_EQ(Place(Here), Place(*std::make_unique<ReadingLocked>()));
    EXPECT_EQ(Turned(Here), Turned(*std::make_unique<ReadingLocked>()));
    EXPECT_GT(Notes(Here).size(), 100);
}

TEST(LockedFormats, WhatIsNoPictureIsToldInTheSameWords) {
    ReadingLocked Locked;
    for (const QByteArray& File : {QByteArray(), QByteArray("not a picture"), QByteArray(5000, 0)})
        ExpectSame(Locked, File);
    const harness::WithoutExtraFormats Off;
    EXPECT_EQ(FaultUnknownPicture, Decoded(Locked, SampleOf("plain.webp")).Number);
    ExpectSame(Locked, SampleOf("plain.avif"));
}

TEST(LockedFormats, EveryCutSampleEndsInTheSame) {
    ReadingHere Here;
    ReadingLocked Locked;
    for (const NamedFile& Each : AllSamples()) {
        SCOPED_TRACE(Each.Name);
        for (int Part = 0; Part < 24; ++Part) {
            const QByteArray Cut = Each.Bytes.left(Each.Bytes.size() * Part / 24);
            const Outcome Is = Decoded(Locked, Cut);
            ExpectItLives(Is);
            EXPECT_EQ(Decoded(Here, Cut), Is) << Cut.size();
        }
    }
}

TEST(LockedFormats, EverySampleWithFlippedBitsEndsInTheSame) {
    std::mt19937 Random(23);
    ReadingHere Here;
    ReadingLocked Locked;
    for (const NamedFile& Each : AllSamples())
        for (int Round = 0; Round < 12; ++Round) {
            SCOPED_TRACE(Each.Name + ", round " + std::to_string(Round));
            QByteArray Bytes = Each.Bytes;
            FlipBits(Bytes, Random);
            Outcome Is = Decoded(Locked, Bytes), Plain = Decoded(Here, Bytes);
            ExpectItLives(Is);
            // Pixels that a damaged file says nothing of stay as memory was.
            if (FormatOf(Bytes) == PictureFormat::Heif) Is.Picture = Plain.Picture = QImage();
            EXPECT_EQ(Plain, Is);
        }
}

TEST(LockedFormats, APictureThatIsTooLargeIsRefusedInTheSameWords) {
    ReadingLocked Locked;
    const QByteArray Giants[] = {
        Giant("rgb24.bmp", {18, 22}, 4, false), Giant("rgb444.jpg", {163, 165}, 2, true),
        GiantAnywhere("lossy.heic"), GiantAnywhere("plain.avif"), GiantAnywhere("plain.j2k")};
    for (const QByteArray& Each : Giants) {
        const Outcome Is = Decoded(Locked, Each);
        EXPECT_EQ(FaultTooLarge, Is.Number) << Each.left(12).constData();
        ExpectItLives(Is);
        ExpectSame(Locked, Each);
    }
    for (const QByteArray& Each :
         {Giant("rgb8.psd", {14, 18}, 4, true), Giant("rgb8.png", {16, 20}, 4, true),
          Giant("top24.tga", {12, 14}, 2, false), Giant("rgb24.pcx", {8, 10}, 2, false)})
        ExpectSame(Locked, Each);
}

TEST(LockedFormats, NotesOfEveryMakerAreTheSameBehindTheDoor) {
    ReadingHere Here;
    ReadingLocked Locked;
    for (const char* const Maker : {"Canon", "NIKON CORPORATION", "SONY", "Panasonic", "OLYMPUS",
                                    "FUJIFILM", "PENTAX", "CASIO", "Minolta", "SIGMA", "SAMSUNG"}) {
        const QByteArray File = PhotographBy(Maker);
        EXPECT_GT(Locked.NotesFor({48, 32}, File, true).size(), 100) << Maker;
        EXPECT_EQ(MadeOf(Here, File), MadeOf(Locked, File)) << Maker;
    }
}

// The library that reads it has pictures of that size in files where its own policy counts.
TEST(LockedFormats, APictureOf36MegapixelsAnd16BitsIsReadWithoutAFile) {
    ReadingLocked Locked;
    const Outcome Is = Decoded(Locked, FineTiff({6400, 5600}));
    EXPECT_EQ(QSize(6400, 5600), Is.Full) << Is.Sentence.toStdString();
    EXPECT_EQ(qRgb(0x42, 0x42, 0x42), Is.Picture.pixel(3000, 100));
    EXPECT_EQ(qRgb(0x42, 0x42, 0x42), Is.Picture.pixel(6399, 5599));
}
