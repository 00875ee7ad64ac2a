// WAV files and their relatives, of every format that albums have collected over the years.
#include <gtest/gtest.h>

#include "sound/SoundData.h"

using namespace neb;
using namespace neb::tests;

namespace {

double WorstFromTone(SoundDecoder& Sound, const WavShape& Shape) {
    const auto All = ReadThrough(Sound);
    double Worst = 0;
    for (size_t I = 0; I < All.size(); ++I) {
        const auto Frame = static_cast<qint64>(I) / Shape.Channels;
        const int Channel = static_cast<int>(static_cast<qint64>(I) % Shape.Channels);
        Worst = std::max(Worst, std::fabs(All[I] - ToneAt(Shape, Frame, Channel)));
    }
    return Worst;
}

void ExpectTone(const WavShape& Shape, double Tolerance) {
    const harness::TempFolder Folder;
    const auto Sound = OpenBytes(Folder, WavBytes(Shape, 3000));
    EXPECT_EQ(Shape.Rate, Sound->Rate());
    EXPECT_EQ(Shape.Channels, Sound->Channels());
    EXPECT_EQ(3000, Sound->Frames());
    EXPECT_EQ(3000, CountThrough(*Sound));
    EXPECT_LT(WorstFromTone(*Sound, Shape), Tolerance);
    EXPECT_EQ(0, WorstAfterJumps(*Sound));
}

}  // namespace

TEST(SoundDecoderWave, EverySampleFormatIsReadToItsLastBit) {
    const std::pair<WavShape, double> Shapes[] = {
        {{44100, 2, 8, false}, 1.0 / 128},      {{44100, 2, 16, false}, 1.0 / 32768},
        {{44100, 2, 24, false}, 1.0 / 8000000}, {{44100, 2, 32, false}, 1e-7},
        {{44100, 2, 32, true}, 1e-7},           {{44100, 2, 64, true}, 1e-7}};
    for (const auto& [Shape, Tolerance] : Shapes) {
        SCOPED_TRACE(Shape.Bits);
        ExpectTone(Shape, Tolerance);
    }
}

TEST(SoundDecoderWave, EveryNumberOfChannelsUpToEightIsReadInOrder) {
    for (int Channels = 1; Channels <= 8; ++Channels) {
        SCOPED_TRACE(Channels);
        ExpectTone({48000, Channels, 16, false}, 1.0 / 32768);
    }
}

TEST(SoundDecoderWave, EveryRateIsTaken) {
    for (int Rate : {200, 4000, 8000, 11025, 22050, 32000, 37777, 96000, 192000, 384000, 1000000}) {
        SCOPED_TRACE(Rate);
        ExpectTone({Rate, 1, 16, false}, 1.0 / 32768);
    }
}

TEST(SoundDecoderWave, CompressedKindsAndRelativesAreReadAndFoundAgainAtEveryPlace) {
    const std::tuple<const char*, int, int, qint64> Files[] = {
        {"ima.wav", 44100, 2, 17675},  // whole blocks
        {"ms.wav", 44100, 1, 18324},    {"gsm.wav", 22050, 1, 8960},
        {"mulaw.wav", 44100, 1, 8820},  {"short.aiff", 22050, 1, 4410},
        {"short.flac", 22050, 1, 8820}, {"short.ogg", 44100, 1, 66150}};
    for (const auto& [Name, Rate, Channels, Frames] : Files) {
        SCOPED_TRACE(Name);
        const auto Sound = OpenSound(SoundFile(Name));
        EXPECT_EQ(Rate, Sound->Rate());
        EXPECT_EQ(Channels, Sound->Channels());
        EXPECT_EQ(Frames, Sound->Frames());
        EXPECT_EQ(Frames, CountThrough(*Sound));
        EXPECT_GT(Loudest(ReadThrough(*Sound)), 0.3);
        EXPECT_LT(WorstAfterJumps(*Sound), 1e-4);
    }
}

TEST(SoundDecoderWave, TheNameOfAFileDoesNotMatter) {
    const harness::TempFolder Folder;
    WriteFile(Folder / "a.mp3", WavBytes({}, 500));
    WriteFile(Folder / "b.WAV", ReadFile(SoundFile("vbr.mp3")));
    WriteFile(Folder / "c", ReadFile(SoundFile("short.flac")));
    EXPECT_EQ(500, OpenSound(Folder / "a.mp3")->Frames());
    EXPECT_EQ(66150, OpenSound(Folder / "b.wav")->Frames());
    EXPECT_EQ(8820, OpenSound(Folder / "c")->Frames());
}

TEST(SoundDecoderWave, ARecordingThatWasNeverClosedIsPlayedToItsEnd) {
    const harness::TempFolder Folder;
    const WavShape Shape;
    for (quint32 Length : {0U, 0x7FFFFFFFU, 0xFFFFFFFFU, 12345678U}) {
        SCOPED_TRACE(Length);
        const auto Sound = OpenBytes(Folder, WithDataLength(WavBytes(Shape, 3000), Length));
        EXPECT_EQ(3000, Sound->Frames());
        EXPECT_LT(WorstFromTone(*Sound, Shape), 1.0 / 32768);
    }
}

TEST(SoundDecoderWave, AnEmptySoundWithATitleBehindItStaysEmpty) {
    const harness::TempFolder Folder;
    for (const char* Title : {"even", "odd", ""}) {
        const auto Sound = OpenBytes(Folder, Riff(FormatChunk({}, 1) + Chunk("data", {}) +
                                                  Chunk("LIST", Title) + Chunk("note", "12")));
        EXPECT_EQ(0, Sound->Frames());
    }
}

TEST(SoundDecoderWave, ADataLengthThatIsTooShortEndsTheSound) {
    const harness::TempFolder Folder;
    const auto Sound = OpenBytes(Folder, WithDataLength(WavBytes({}, 3000), 4000));
    EXPECT_EQ(1000, Sound->Frames());
    EXPECT_EQ(1000, CountThrough(*Sound));
}

TEST(SoundDecoderWave, ACutFileIsPlayedAsFarAsItGoes) {
    const harness::TempFolder Folder;
    const QByteArray Whole = WavBytes({}, 3000);
    for (int Frames : {0, 1, 100, 2999}) {
        SCOPED_TRACE(Frames);
        const auto Sound = OpenBytes(Folder, Whole.left(44 + 4 * Frames + (Frames ? 3 : 0)));
        EXPECT_EQ(Frames, Sound->Frames());
        EXPECT_EQ(Frames, CountThrough(*Sound));
    }
}

TEST(SoundDecoderWave, CutFilesOfCompressedKindsTellWhatCanReallyBeRead) {
    const harness::TempFolder Folder;
    for (const char* Name :
         {"ima.wav", "ms.wav", "gsm.wav", "mulaw.wav", "short.aiff", "short.flac", "short.ogg"}) {
        SCOPED_TRACE(Name);
        const QByteArray Whole = ReadFile(SoundFile(Name));
        const qint64 Full = OpenSound(SoundFile(Name))->Frames();
        const auto Sound = OpenBytes(Folder, Whole.left(Whole.size() * 6 / 10));
        EXPECT_GT(Sound->Frames(), Full / 4);
        EXPECT_LT(Sound->Frames(), Full);
        EXPECT_EQ(Sound->Frames(), CountThrough(*Sound));
    }
}

TEST(SoundDecoderWave, AStreamedFileThatDoesNotTellItsLengthIsCounted) {
    const harness::TempFolder Folder;
    QByteArray Flac = ReadFile(SoundFile("short.flac"));
    Flac[21] = static_cast<char>(Flac[21] & 0xF0);  // the frames, 36 bits: none told
    for (int I = 22; I < 26; ++I) Flac[I] = 0;
    const auto Sound = OpenBytes(Folder, Flac);
    EXPECT_EQ(8820, Sound->Frames());
    EXPECT_EQ(8820, CountThrough(*Sound));
    EXPECT_LT(WorstAfterJumps(*Sound), 1e-4);
}

TEST(SoundDecoderWave, AnEmptySoundIsASoundOfNoLength) {
    const harness::TempFolder Folder;
    const auto Sound = OpenBytes(Folder, WavBytes({}, 0));
    float Sample[2];
    EXPECT_EQ(0, Sound->Frames());
    EXPECT_EQ(0, Sound->Read(Sample, 1));
    Sound->Seek(0);
    EXPECT_EQ(0, Sound->Read(Sample, 1));
}

TEST(SoundDecoderWave, SamplesStayWithinTheFullLevelAndAreNumbers) {
    const harness::TempFolder Folder;
    QByteArray Bytes;
    for (float Value : {3.0F, -3.0F, 1.0F, -1.0F, std::numeric_limits<float>::quiet_NaN(),
                        std::numeric_limits<float>::infinity(), 0.25F})
        Append(Bytes, Value);
    const auto Sound =
        OpenBytes(Folder, Riff(FormatChunk({44100, 1, 32, true}, 3) + Chunk("data", Bytes)));
    EXPECT_EQ((std::vector<float>{1, -1, 1, -1, 0, 1, 0.25F}), ReadThrough(*Sound));
}

TEST(SoundDecoderWave, PlacesOutsideTheSoundAreItsEnds) {
    const harness::TempFolder Folder;
    const auto Sound = OpenBytes(Folder, WavBytes({}, 300));
    Sound->Seek(100000);
    EXPECT_TRUE(ReadFrames(*Sound, 10).empty());
    Sound->Seek(300);
    EXPECT_TRUE(ReadFrames(*Sound, 10).empty());
    Sound->Seek(-5);
    EXPECT_EQ(600U, ReadFrames(*Sound, 1000).size());
}
