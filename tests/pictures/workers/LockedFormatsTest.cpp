// Behind the locked door every format gives what it gives without one, to the last bit and to the
// last word, whether it is the first picture that is read there or one of many.
#include <random>

#include "harness/WithoutExtraFormats.h"
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
