// MP3 files as they come: with and without headers, tags, pictures, joined, cut and wrapped.
#include <gtest/gtest.h>

#include "sound/SoundData.h"

using namespace neb;
using namespace neb::tests;

namespace {

struct Sample {
    const char* Name;
    int Rate, Channels;
    qint64 Frames;
};

// A second and a half each. Where the encoder's header is there, exactly that is heard; else also
// the silence that it adds at both ends, in whole frames.
constexpr Sample Tones[] = {
    {"cbr.mp3", 44100, 2, 66150},          {"vbr.mp3", 44100, 2, 66150},
    {"cover.mp3", 44100, 1, 66150},        {"mpeg2.mp3", 22050, 1, 33075},
    {"cbr-noheader.mp3", 44100, 2, 67968}, {"vbr-noheader.mp3", 44100, 2, 67968},
    {"title.mp3", 24000, 1, 37440},        {"mono48.mp3", 48000, 1, 73728},
    {"mpeg25.mp3", 11025, 1, 17856}};

void ExpectSame(SoundDecoder& Sound, const Sample& Expected) {
    EXPECT_EQ(Expected.Rate, Sound.Rate());
    EXPECT_EQ(Expected.Channels, Sound.Channels());
    EXPECT_EQ(Expected.Frames, Sound.Frames());
    EXPECT_EQ(Expected.Frames, CountThrough(Sound));
}

QByteArray Bytes(const char* Name) {
    return ReadFile(SoundFile(Name));
}

// Bytes in which frames begin at many places, and never three in a row.
QByteArray StrayFrames(int Length) {
    QByteArray Noise;
    quint32 Seed = 7;
    while (Noise.size() < Length) {
        Seed = Seed * 1664525 + 1013904223;
        if (Noise.size() % 100 == 50) Noise += QByteArray("\xFF\xFB\x50\x64", 4);
        Noise += static_cast<char>(Seed >> 24);
    }
    return Noise;
}

QByteArray Wrapped(const QByteArray& Frames, quint16 Tag = 0x55) {
    return Riff(FormatChunk({44100, 2, 0, false}, Tag) + Chunk("data", Frames));
}

}  // namespace

TEST(SoundDecoderMpeg, EveryKindTellsItsExactLength) {
    for (const Sample& Each : Tones) {
        SCOPED_TRACE(Each.Name);
        const auto Sound = OpenSound(SoundFile(Each.Name));
        ExpectSame(*Sound, Each);
        const double Peak = Loudest(ReadThrough(*Sound));
        EXPECT_GT(Peak, 0.2);
        EXPECT_LT(Peak, 0.9);
    }
}

TEST(SoundDecoderMpeg, AJumpLandsOnTheVerySample) {
    for (const Sample& Each : Tones) {
        SCOPED_TRACE(Each.Name);
        EXPECT_LT(WorstAfterJumps(*OpenSound(SoundFile(Each.Name))), 1e-4);
    }
}

// The tone on the left rises from 200 to 6000 a second: where it is counted, it tells the place.
TEST(SoundDecoderMpeg, TheSoundIsWhereItWasBeforeItWasEncoded) {
    const auto Sound = OpenSound(SoundFile("cbr.mp3"));
    const auto All = ReadThrough(*Sound);
    for (double Second : {0.3, 0.75, 1.2}) {
        SCOPED_TRACE(Second);
        const auto From = static_cast<size_t>((Second - 0.05) * 44100);
        int Crossings = 0;
        for (size_t I = From; I < From + 4410; ++I)
            Crossings += (All[2 * I] < 0) != (All[2 * I + 2] < 0);
        EXPECT_NEAR(200 + 5800 * Second / 1.5, Crossings / 2.0 / 0.1, 60);
    }
}

TEST(SoundDecoderMpeg, ACutFileIsPlayedAsFarAsItsWholeFramesGo) {
    const auto Sound = OpenSound(SoundFile("cut.mp3"));
    EXPECT_EQ(27 * 1152, Sound->Frames());
    EXPECT_EQ(27 * 1152, CountThrough(*Sound));
    EXPECT_LT(WorstAfterJumps(*Sound), 1e-4);
    const harness::TempFolder Folder;
    for (int Length : {1000, 2000, 5000, 12000}) {
        const auto Cut = OpenBytes(Folder, Bytes("cbr-noheader.mp3").left(Length));
        EXPECT_NEAR(double(Length) / 418, double(Cut->Frames()) / 1152, 1);
        EXPECT_EQ(Cut->Frames(), CountThrough(*Cut));
    }
}

TEST(SoundDecoderMpeg, AFileWithoutItsBeginningIsPlayedFromTheNextFrame) {
    const harness::TempFolder Folder;
    const auto Sound = OpenBytes(Folder, Bytes("cbr-noheader.mp3").mid(1000));
    EXPECT_EQ(56 * 1152, Sound->Frames());
    EXPECT_EQ(Sound->Frames(), CountThrough(*Sound));
}

TEST(SoundDecoderMpeg, TagsAtEitherEndAreNoMusic) {
    const harness::TempFolder Folder;
    const QByteArray Frames = Bytes("cbr.mp3");
    const Sample& Expected = Tones[0];
    const QByteArray Noise = StrayFrames(40000);
    QByteArray Title = "TAG" + QByteArray(125, 'x');
    QByteArray Front("ID3\x03\x00\x00", 6);
    for (int Shift : {21, 14, 7, 0}) Front += static_cast<char>(Noise.size() >> Shift & 0x7F);
    QByteArray Foot("APETAGEX\xD0\x07\x00\x00", 12);
    Append(Foot, static_cast<quint32>(Noise.size() + 32));
    Foot += QByteArray(16, '\0');
    for (const QByteArray& All :
         {Frames + Title, Front + Noise + Frames, Front + Noise + Front + Noise + Frames,
          Frames + Noise + Foot, Frames + Noise + Foot + Title, QByteArray(5000, '\0') + Frames,
          Frames + Noise, Frames + Front + Noise})
        ExpectSame(*OpenBytes(Folder, All), Expected);
}

TEST(SoundDecoderMpeg, FramesInAWavFileAreFound) {
    const harness::TempFolder Folder;
    const QByteArray Frames = Bytes("cbr.mp3");
    const auto Plain = ReadThrough(*OpenSound(SoundFile("cbr.mp3")));
    const QByteArray Whole = Wrapped(Frames);
    const QByteArray Fact =
        Riff(FormatChunk({44100, 2, 0, false}, 0x55) + Chunk("fact", "1234") +
             Chunk("LIST", "odd") + Chunk("data", Frames) + Chunk("LIST", StrayFrames(3000)));
    for (const QByteArray& All : {Whole, Wrapped(Frames, 0x50), Fact, WithDataLength(Whole, 0),
                                  WithDataLength(Whole, 0xFFFFFFFF)})
        EXPECT_EQ(0, Difference(Plain, ReadThrough(*OpenBytes(Folder, All))));
}

TEST(SoundDecoderMpeg, JoinedFilesPlayOneAfterTheOther) {
    const harness::TempFolder Folder;
    const auto Sound = OpenBytes(Folder, Bytes("cbr.mp3") + Bytes("cover.mp3") + Bytes("vbr.mp3"));
    EXPECT_EQ(2, Sound->Channels());
    EXPECT_EQ(3 * 66150, Sound->Frames());
    const auto All = ReadThrough(*Sound);
    const auto Last = ReadThrough(*OpenSound(SoundFile("vbr.mp3")));
    EXPECT_EQ(size_t(6 * 66150), All.size());
    EXPECT_LT(Difference(Last, {All.end() - 2 * 66150, All.end()}), 1e-4);
    EXPECT_LT(WorstAfterJumps(*Sound, 9973), 1e-4);
}

TEST(SoundDecoderMpeg, RateAndChannelsOfTheFirstFrameHoldForTheWholeSound) {
    const harness::TempFolder Folder;
    const std::pair<const char*, const char*> Pairs[] = {{"cbr.mp3", "mpeg2.mp3"},
                                                         {"mpeg2.mp3", "cbr.mp3"},
                                                         {"vbr-noheader.mp3", "mono48.mp3"},
                                                         {"mpeg25.mp3", "vbr.mp3"}};
    for (const auto& [First, Second] : Pairs) {
        SCOPED_TRACE(First);
        const auto One = OpenSound(SoundFile(First)), Other = OpenSound(SoundFile(Second));
        const auto Both = OpenBytes(Folder, Bytes(First) + Bytes(Second));
        EXPECT_EQ(One->Rate(), Both->Rate());
        EXPECT_EQ(One->Channels(), Both->Channels());
        const double Seconds =
            double(One->Frames()) / One->Rate() + double(Other->Frames()) / Other->Rate();
        EXPECT_NEAR(Seconds, double(Both->Frames()) / Both->Rate(), 0.002);
        EXPECT_EQ(Both->Frames(), CountThrough(*Both));
        EXPECT_LT(WorstAfterJumps(*Both), 1e-4);
    }
}

TEST(SoundDecoderMpeg, DamageInTheMiddleIsLeftOutAndTheRestIsHeard) {
    const harness::TempFolder Folder;
    const QByteArray Whole = Bytes("cbr-noheader.mp3");
    for (const QByteArray& Hole : {StrayFrames(5000), QByteArray(20000, '\xFF'), QByteArray()}) {
        const auto Sound = OpenBytes(Folder, Whole.left(6000) + Hole + Whole.mid(12000));
        EXPECT_NEAR(Sound->Frames(), 67968 * (1 - 6000.0 / double(Whole.size())), 3 * 1152);
        EXPECT_EQ(Sound->Frames(), CountThrough(*Sound));
        EXPECT_LT(WorstAfterJumps(*Sound), 1e-4);
    }
}

TEST(SoundDecoderMpeg, AVeryShortSoundIsASound) {
    const harness::TempFolder Folder;
    const QByteArray Whole = Bytes("cbr-noheader.mp3");
    const int Ends[] = {835, 1253};  // of the second frame and the third
    for (int I = 0; I < 2; ++I) {
        SCOPED_TRACE(I);
        const auto Sound = OpenBytes(Folder, Whole.left(Ends[I]));
        EXPECT_EQ(1152 * (I + 2), Sound->Frames());
        EXPECT_EQ(Sound->Frames(), CountThrough(*Sound));
    }
}

TEST(SoundDecoderMpeg, StrayFramesInOtherFilesAreNoSound) {
    const harness::TempFolder Folder;
    for (int Length : {500, 5000, 500000}) {
        WriteFile(Folder / "stray", StrayFrames(Length));
        EXPECT_EQ("The file is not a sound that this program can play.",
                  RefusalOf(Folder / "stray").toStdString());
    }
}
