// Sounds decoded by processes behind a locked door: the same to the bit as without, and whatever a
// hostile file makes of its decoder, it is one sound that ends, and the next one plays.
#include "sound/workers/SoundsLocked.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>

#include "sound/SoundData.h"
#include "sound/workers/SoundsHere.h"
#include "support/locked/LockedProcess.h"

using namespace neb;
using namespace neb::tests;
using namespace Qt::StringLiterals;

namespace {

// All that a reader says of a file, and all samples that it gives, read on and here and there.
struct Heard {
    QString Refusal;
    int Rate = 0, Channels = 0;
    qint64 Frames = 0;
    std::vector<std::vector<float>> Samples;
    SongTags Tags;
};

void ReadOn(SoundDecoder& Sound, qint64 Step, Heard& All) {
    for (auto Block = ReadFrames(Sound, Step); !Block.empty(); Block = ReadFrames(Sound, Step))
        All.Samples.push_back(std::move(Block));
    All.Samples.push_back(ReadFrames(Sound, Step));
}

// Each from a fresh start: what some decoders give after a jump depends, in the last bits, on where
// they were before it.
void ReadAll(SoundReader& Reader, const QString& Path, Heard& All) {
    const auto Sound = Reader.Open(Path);
    All.Rate = Sound->Rate();
    All.Channels = Sound->Channels();
    All.Frames = Sound->Frames();
    ReadOn(*Sound, 1024, All);
    ReadOn(*Reader.Open(Path), 4999, All);
    for (const qint64 Place : {All.Frames / 2, All.Frames / 3, All.Frames - 1, All.Frames + 7}) {
        const auto Other = Reader.Open(Path);
        Other->Seek(Place);
        for (int I = 0; I < 3; ++I) All.Samples.push_back(ReadFrames(*Other, 1024));
    }
}

void ExpectSame(const Heard& One, const Heard& Other) {
    EXPECT_EQ(One.Refusal, Other.Refusal);
    EXPECT_EQ(One.Tags, Other.Tags);
    EXPECT_EQ(std::tuple(One.Rate, One.Channels, One.Frames),
              std::tuple(Other.Rate, Other.Channels, Other.Frames));
    ASSERT_EQ(One.Samples.size(), Other.Samples.size());
    for (size_t I = 0; I < One.Samples.size(); ++I)
        ASSERT_TRUE(One.Samples[I] == Other.Samples[I]) << "block " << I;
}

Heard HeardBy(SoundReader& Reader, const QString& Path) {
    Heard All;
    All.Tags = Reader.Tags(Path);
    try {
        ReadAll(Reader, Path, All);
    } catch (const Fault& Reason) {
        All.Refusal = Reason.Text();
    }
    return All;
}

// Enough for a machine that has much else to do, and soon over.
constexpr double Hasty = 0.1;

SoundsLocked& Door() {
    static SoundsLocked Its;
    return Its;
}

class HostileSounds : public ::testing::Test {
  protected:
    QString File(const char* When, const QByteArray& What) {
        const QString Path = Folder / u"%1 %2.wav"_s.arg(QLatin1String(When), QLatin1String(What));
        WriteFile(Path, QByteArray("HOSTILE\n") + When + '\n' + What + "\nand more");
        return Path;
    }
    QString RefusedBecause(const QString& Path) {
        try {
            Reader.Open(Path);
            return {};
        } catch (const Fault& Reason) {
            return Reason.File() == Path ? Reason.What() : u"a fault without its path"_s;
        }
    }
    void ExpectTheNextPlays() {
        EXPECT_EQ(66150, CountThrough(*Reader.Open(SoundFile("cbr.mp3"))));
    }

    harness::TempFolder Folder;
    SoundsLocked Reader{QStringLiteral(NEB_BINARY_DIR "/tests/hostile/neb-hostile-sounds"), "",
                        Hasty};
};

constexpr const char* EveryDeed[] = {"crash",
                                     "end",
                                     "throw",
                                     "wait",
                                     "take memory",
                                     "open a file",
                                     "start a process",
                                     "ask for too much",
                                     "ask for less than nothing",
                                     "ask before the start",
                                     "ask it beyond the memory",
                                     "ask it before the memory",
                                     "ask for ever",
                                     "say gibberish",
                                     "say an unknown word",
                                     "say a request",
                                     "tell of tags",
                                     "tell of too long tags",
                                     "tell of a problem without end",
                                     "tell of too many samples",
                                     "tell of too few samples"};

TEST(SoundsLocked, EverySampleSoundsTheSameToTheBit) {
    SoundsHere Here;
    for (const DirEntry& Entry : ListDir(harness::DataFile("sound/"))) {
        SCOPED_TRACE(Entry.Name.toStdString());
        const QString Path = harness::DataFile("sound/") + Entry.Name;
        const Heard Plain = HeardBy(Here, Path);
        ExpectSame(Plain, HeardBy(Door(), Path));
    }
}

TEST(SoundsLocked, EveryKindOfWavSoundsTheSameToTheBit) {
    SoundsHere Here;
    const harness::TempFolder Folder;
    for (const WavShape& Shape : {WavShape{44100, 1, 8},
                                  {48000, 2, 24},
                                  {22050, 6, 16},
                                  {192000, 8, 32, true},
                                  {8000, 1, 64, true}}) {
        WriteFile(Folder / u"a.wav"_s, WavBytes(Shape, 70001));
        const Heard Plain = HeardBy(Here, Folder / u"a.wav"_s);
        EXPECT_EQ(70001, Plain.Frames);
        ExpectSame(Plain, HeardBy(Door(), Folder / u"a.wav"_s));
    }
}

TEST(SoundsLocked, EveryDamagedSoundComesOutTheSame) {
    constexpr int Each = 12;
    SoundsHere Here;
    const harness::TempFolder Folder;
    std::mt19937 Random(22);
    int Sounds = 0;
    for (const DirEntry& Entry : ListDir(harness::DataFile("sound/")))
        for (int I = 0; I < Each; ++I) {
            QByteArray Bytes = ReadFile(harness::DataFile("sound/") + Entry.Name);
            for (int Flip = 0; Flip < 6; ++Flip)
                Bytes[static_cast<qsizetype>(Random() % (Flip % 2 ? 128 : size_t(Bytes.size())))] =
                    static_cast<char>(Random());
            if (I % 3 == 0) Bytes.truncate(static_cast<qsizetype>(Random() % size_t(Bytes.size())));
            WriteFile(Folder / u"a"_s, Bytes);
            const Heard Plain = HeardBy(Here, Folder / u"a"_s);
            Sounds += Plain.Refusal.isEmpty();
            SCOPED_TRACE(Entry.Name.toStdString() + ' ' + std::to_string(I));
            ExpectSame(Plain, HeardBy(Door(), Folder / u"a"_s));
        }
    EXPECT_GT(Sounds, 50);
}

TEST(SoundsLocked, WhatIsNoFileOrNoSoundIsRefusedByTheSameWords) {
    SoundsHere Here;
    const harness::TempFolder Folder;
    WriteFile(Folder / u"empty.wav"_s, {});
    WriteFile(Folder / u"text.mp3"_s, QByteArray(5000, 'x'));
    WriteFile(Folder / u"nine.wav"_s, WavBytes({44100, 9, 16}, 100));
    for (const char* Name : {"empty.wav", "text.mp3", "nine.wav"}) {
        const QString Path = Folder / QString::fromLatin1(Name);
        EXPECT_GT(HeardBy(Here, Path).Refusal.size(), 20);
        EXPECT_EQ(HeardBy(Here, Path).Refusal, HeardBy(Door(), Path).Refusal);
    }
    EXPECT_THROW(Door().Open(Folder / u"none.wav"_s), Fault);
    EXPECT_THROW(Door().Open(Folder.Path()), Fault);
}

TEST(SoundsLocked, AreAsManyAsAShowWants) {
    std::vector<std::unique_ptr<SoundDecoder>> Open;
    for (int I = 0; I < 12; ++I) Open.push_back(Door().Open(SoundFile("cbr.mp3")));
    for (const auto& Each : Open) EXPECT_EQ(66150, CountThrough(*Each));
}

TEST(SoundsLocked, SayHowFarTheyAreLocked) {
    const LockReport Report = Door().Report();
    EXPECT_GT(Report.SystemCalls, 0);
    EXPECT_TRUE(Report.IsLocked());
}

TEST_F(HostileSounds, ThatBreakOutWhenTheyAreOpenedAreRefusedAndTheNextPlays) {
    for (const char* What : EveryDeed) {
        SCOPED_TRACE(What);
        EXPECT_TRUE(RefusedBecause(File("open", What)).contains(u"cannot be played"));
        ExpectTheNextPlays();
    }
}

TEST_F(HostileSounds, ThatLieAboutTheirMeasuresAreRefused) {
    for (const char* What : {"no rate", "a rate too many", "no channels", "a channel too many",
                             "channels below none", "frames below none", "frames without end"})
        EXPECT_EQ(u"The sound cannot be played: it brings its reader down."_s,
                  RefusedBecause(File("lie", What)))
            << What;
    ExpectTheNextPlays();
}

TEST_F(HostileSounds, ThatBreakOutWhileTheyPlayEndThereAndTheNextPlays) {
    for (const char* What : EveryDeed) {
        SCOPED_TRACE(What);
        const auto Sound = Reader.Open(File("read", What));
        std::vector<float> Samples(2048);
        EXPECT_EQ(0, Sound->Read(Samples.data(), 1024));
        Sound->Seek(5);
        EXPECT_EQ(0, Sound->Read(Samples.data(), 1024));
        ExpectTheNextPlays();
    }
}

TEST_F(HostileSounds, ThatBreakOutAtAJumpEndThereAndTheNextPlays) {
    for (const char* What : EveryDeed) {
        SCOPED_TRACE(What);
        const auto Sound = Reader.Open(File("seek", What));
        std::vector<float> Samples(2048);
        EXPECT_EQ(1024, Sound->Read(Samples.data(), 1024));
        Sound->Seek(5);
        EXPECT_EQ(0, Sound->Read(Samples.data(), 1024));
        ExpectTheNextPlays();
    }
}

TEST_F(HostileSounds, ThatTakeAllTimeAreEnded) {
    EXPECT_EQ(u"The sound cannot be played: it takes too long to be read."_s,
              RefusedBecause(File("open", "spin")));
    EXPECT_EQ(u"The sound cannot be played: it takes too long to be read."_s,
              RefusedBecause(File("open", "wait")));
    ExpectTheNextPlays();
}

TEST_F(HostileSounds, GiveNoSampleThatIsNoneAndNotOneTooMany) {
    const auto Sound = Reader.Open(File("play", "on"));
    const auto All = ReadThrough(*Sound);
    EXPECT_EQ(size_t(2 * 100000), All.size());
    EXPECT_LE(Loudest(All), 1.0);
    for (const float Each : All) ASSERT_TRUE(std::isfinite(Each));
    for (const char* When : {"too many", "too few"}) {
        const auto Other = Reader.Open(File(When, ""));
        std::vector<float> Samples(2048);
        EXPECT_EQ(0, Other->Read(Samples.data(), 1024)) << When;
    }
    ExpectTheNextPlays();
}

TEST_F(HostileSounds, HaveNoTags) {
    for (const char* What : EveryDeed) {
        SCOPED_TRACE(What);
        SetSoundReader(&Reader);
        EXPECT_EQ(SongTags(), ReadSongTags(File("tags", What)));
        SetSoundReader(nullptr);
    }
    const SongTags Long = Reader.Tags(File("long", ""));
    EXPECT_LT(Long.Title.size(), 1 << 18);
    EXPECT_EQ(u"two lines"_s, Long.Artist);
    EXPECT_EQ((SongTags{u"Song"_s, u"Band"_s}), Reader.Tags(SoundFile("cover.mp3")));
}

TEST_F(HostileSounds, AreNotTriedAgainAfterThreeTimes) {
    const QString Path = File("open", "crash");
    for (int I = 0; I < 3; ++I)
        EXPECT_EQ(u"The sound cannot be played: it brings its reader down."_s,
                  RefusedBecause(Path));
    EXPECT_TRUE(RefusedBecause(Path).contains(u"three times"));
    DeleteFile(Path);
    CopyFile(SoundFile("cbr.mp3"), Path);
    EXPECT_EQ(66150, CountThrough(*Reader.Open(Path))) << "another file of that name is tried";
}

TEST_F(HostileSounds, DoNotEndWhatPlaysBesideThem) {
    const auto Song = Reader.Open(SoundFile("cbr.mp3"));
    const auto Bad = Reader.Open(File("read", "crash"));
    std::vector<float> Samples(2048);
    EXPECT_EQ(1024, Song->Read(Samples.data(), 1024));
    EXPECT_EQ(0, Bad->Read(Samples.data(), 1024));
    EXPECT_EQ(66150, CountThrough(*Song));
}

TEST(SoundsLockedPart, ThatIsMissingIsToldOf) {
    SoundsLocked None(u"/nowhere/neb-sounds"_s, "", 1);
    EXPECT_THROW(None.Open(SoundFile("cbr.mp3")), Fault);
    EXPECT_THROW(None.Report(), Fault);
}

}  // namespace
