// Thousands of damaged files: bits flipped, cut, with pieces lost or doubled. Each ends in a
// sentence or in a sound that keeps its promises, soon and without taking much memory.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QElapsedTimer>
#include <random>

#include "harness/ByTheClock.h"
#include "sound/SoundData.h"

using namespace neb;
using namespace neb::tests;

namespace {

constexpr int DamagedEach = 150;
constexpr qint64 ReadEach = 3000;  // frames, at several places
constexpr int MostMilliseconds = 2000;
constexpr long MostKilobytes = 1 << 19;  // with what a sanitizer holds back

qsizetype Place(const QByteArray& Bytes, std::mt19937& Random) {
    return static_cast<qsizetype>(Random() % static_cast<size_t>(Bytes.size()));
}

// Where formats keep their measures, bits flip more often than elsewhere.
void FlipBits(QByteArray& Bytes, std::mt19937& Random) {
    const int Flips = 1 + int(Random() % 8);
    for (int I = 0; I < Flips; ++I) {
        const auto At = Random() % 2 ? Place(Bytes, Random) : Place(Bytes.left(128), Random);
        Bytes[At] = static_cast<char>(Bytes[At] ^ (1 << Random() % 8));
    }
}

void Overwrite(QByteArray& Bytes, std::mt19937& Random) {
    const auto At = Place(Bytes, Random);
    Bytes.replace(At, std::min<qsizetype>(4, Bytes.size() - At),
                  QByteArray(4, Random() % 2 ? '\xFF' : '\0'));
}

using Damage = void (*)(QByteArray& Bytes, std::mt19937& Random);
constexpr Damage Damages[] = {
    &FlipBits,
    &FlipBits,
    &Overwrite,
    [](QByteArray& Bytes, std::mt19937& Random) { Bytes.truncate(Place(Bytes, Random)); },
    [](QByteArray& Bytes, std::mt19937& Random) { Bytes.remove(Place(Bytes, Random), 500); },
    [](QByteArray& Bytes, std::mt19937& Random) {
        Bytes.insert(Place(Bytes, Random), Bytes.mid(Place(Bytes, Random), 700));
    }};

// Reads here and there; what was read at a place is what is read there again.
void UseSound(SoundDecoder& Sound, std::mt19937& Random) {
    ASSERT_GE(Sound.Frames(), 0);
    ASSERT_GE(Sound.Channels(), 1);
    ASSERT_LE(Sound.Channels(), 8);
    ASSERT_GT(Sound.Rate(), 0);
    ASSERT_LE(Loudest(ReadFrames(Sound, ReadEach)), 1.0);
    for (int I = 0; I < 3; ++I) {
        const auto At = static_cast<qint64>(Random() % (static_cast<quint64>(Sound.Frames()) + 1));
        Sound.Seek(At);
        const auto Samples = ReadFrames(Sound, ReadEach);
        ASSERT_LE(static_cast<qint64>(Samples.size()), (Sound.Frames() - At) * Sound.Channels());
        ASSERT_LE(Loudest(Samples), 1.0);
    }
}

long PeakKilobytes() {
    rusage Usage = {};
    getrusage(RUSAGE_SELF, &Usage);
    return Usage.ru_maxrss;
}

void Try(const harness::TempFolder& Folder, const QByteArray& Bytes, std::mt19937& Random,
         int& Sounds) {
    try {
        UseSound(*OpenBytes(Folder, Bytes), Random);
        ++Sounds;
    } catch (const Fault& Reason) {
        EXPECT_GT(Reason.What().size(), 20);
    }
}

}  // namespace

TEST(SoundDecoderDamaged, EveryDamagedFileEndsInASoundOrASentence) {
    harness::GoByTheClock();
    const harness::TempFolder Folder;
    std::mt19937 Random(20);
    const long Before = PeakKilobytes();
    for (const DirEntry& Entry : ListDir(harness::DataFile("sound/"))) {
        SCOPED_TRACE(Entry.Name.toStdString());
        const QByteArray Whole = ReadFile(harness::DataFile("sound/") + Entry.Name);
        if (!RefusalOf(harness::DataFile("sound/") + Entry.Name).isEmpty()) continue;
        int Sounds = 0;
        for (int I = 0; I < DamagedEach; ++I) {
            QByteArray Bytes = Whole;
            Damages[size_t(I) % std::size(Damages)](Bytes, Random);
            QElapsedTimer Time;
            Time.start();
            Try(Folder, Bytes, Random, Sounds);
            EXPECT_LT(Time.elapsed(), MostMilliseconds) << I;
        }
        EXPECT_GT(Sounds, DamagedEach / 10);
    }
    EXPECT_LT(PeakKilobytes() - Before, MostKilobytes);
}

TEST(SoundDecoderDamaged, ReadingADamagedMp3ThroughGivesItsLengthExactly) {
    const harness::TempFolder Folder;
    std::mt19937 Random(21);
    for (const char* Name : {"cbr.mp3", "vbr-noheader.mp3", "mpeg25.mp3", "cover.mp3"})
        for (int I = 0; I < 40; ++I) {
            QByteArray Bytes = ReadFile(SoundFile(Name));
            Damages[size_t(I) % std::size(Damages)](Bytes, Random);
            WriteFile(Folder / "a", Bytes);
            if (!RefusalOf(Folder / "a").isEmpty()) continue;
            const auto Sound = OpenSound(Folder / "a");
            EXPECT_EQ(Sound->Frames(), CountThrough(*Sound)) << Name << " " << I;
        }
}

TEST(SoundDecoderDamaged, FilesThatLieAboutTheirLengthTakeNoMemory) {
    const harness::TempFolder Folder;
    const long Before = PeakKilobytes();
    QByteArray Flac = ReadFile(SoundFile("short.flac"));
    for (int I = 22; I < 26; ++I) Flac[I] = '\xFF';  // 2^36 frames
    Flac[21] = static_cast<char>(Flac[21] | 0x0F);
    EXPECT_EQ(8820, OpenBytes(Folder, Flac)->Frames());
    QByteArray Tag("ID3\x03\0\0\x7F\x7F\x7F\x7F", 10);  // 256 MB of titles
    const auto Sound = OpenBytes(Folder, Tag + ReadFile(SoundFile("cbr.mp3")));
    EXPECT_EQ(66150, Sound->Frames());
    const auto Middle =
        OpenBytes(Folder, ReadFile(SoundFile("cbr.mp3")) + Tag + ReadFile(SoundFile("cbr.mp3")));
    EXPECT_EQ(2 * 66150, Middle->Frames());
    EXPECT_LT(PeakKilobytes() - Before, 20000);
}
