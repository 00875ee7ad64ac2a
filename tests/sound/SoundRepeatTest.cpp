// A sound that repeats goes from its end to its start without a gap, a seam or a frame too many.
#include "PulledVoice.h"
#include "SdlRig.h"
#include "sound/SoundData.h"

using namespace neb;
using namespace neb::sounds;

namespace {

// What a listener gets of a sound of so many frames that are counted.
void ExpectRounds(const Samples& Heard, qint64 Length, qint64 From = 0, size_t First = 0) {
    for (size_t I = First; I < Heard.size() / 2; ++I)
        ASSERT_EQ(Count()((From + static_cast<qint64>(I)) % Length, 0), Left(Heard, I))
            << "frame " << I << " of rounds of " << Length;
}

std::shared_ptr<SoundVoice> Repeating(PulledMixer& Pulled, const TestSound& Sound) {
    const auto Voice = Pulled.Voice(Sound);
    Voice->PutRepeat(true);
    Voice->Run();
    return Voice;
}

}  // namespace

TEST(SoundRepeat, EveryLengthGoesRoundToTheFrame) {
    for (const qint64 Length : {1, 2, 7, 351, 352, 353, 1023, 1024, 2048, 5000, 44100, 44101}) {
        PulledMixer Pulled;
        const auto Voice = Repeating(Pulled, {Count(), Length});
        ExpectRounds(Pulled.Pull(100000), Length);
        EXPECT_TRUE(Voice->IsRunning());
    }
}

TEST(SoundRepeat, ASoundThatWasDecodedAheadGoesRoundAllTheSame) {
    for (const qint64 Length : {1000, 43000, 100000}) {
        PulledMixer Pulled;
        const auto Voice = Pulled.Voice({Count(), Length});
        Pulled.Mixer.Feed();
        Voice->PutRepeat(true);
        Voice->Run();
        ExpectRounds(Pulled.Pull(250000), Length);
    }
}

TEST(SoundRepeat, ASoundThatPlaysAlreadyGoesRoundFromThenOn) {
    for (const int Before : {10, 4000, 4999}) {
        PulledMixer Pulled;
        const auto Voice = Pulled.RunningVoice({Count(), 5000});
        Samples Heard = Pulled.Pull(Before);
        Voice->PutRepeat(true);
        Append(Heard, Pulled.Pull(20000));
        ExpectRounds(Heard, 5000);
    }
}

TEST(SoundRepeat, ASoundThatIsOverBeginsAgain) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 5000});
    Pulled.Pull(6000);
    Voice->PutRepeat(true);
    EXPECT_EQ(0, Voice->Position());
    ExpectRounds(Pulled.Pull(12000), 5000);
}

TEST(SoundRepeat, OnceItNoLongerRepeatsTheRoundIsTheLast) {
    for (const int Before : {10, 4000, 4999, 5000, 17777, 80000}) {
        PulledMixer Pulled;
        const auto Voice = Repeating(Pulled, {Count(), 5000});
        Samples Heard = Pulled.Pull(Before);
        Voice->PutRepeat(false);
        const int Rest = 5000 - Before % 5000;
        Append(Heard, Pulled.Pull(Rest - 1));
        EXPECT_LT(Voice->Position(), Voice->Duration()) << Before;
        Append(Heard, Pulled.Pull(1));
        ExpectRounds(Heard, 5000);
        EXPECT_EQ(Voice->Duration(), Voice->Position()) << Before;
        EXPECT_EQ(0, Peak(Pulled.Pull(2000)));
    }
}

TEST(SoundRepeat, ChangingOnesMindLosesNothing) {
    PulledMixer Pulled;
    const auto Voice = Repeating(Pulled, {Count(), 5000});
    Samples Heard;
    for (int I = 0; I < 40; ++I) {
        Append(Heard, Pulled.Pull(1001));
        Voice->PutRepeat(false);
        Append(Heard, Pulled.PullUnfed(1));
        Voice->PutRepeat(true);
    }
    ExpectRounds(Heard, 5000);
}

TEST(SoundRepeat, ThePositionGoesRoundAndIsNeverTheEnd) {
    PulledMixer Pulled;
    const auto Voice = Repeating(Pulled, {Count(), 5000});
    for (int I = 1; I < 40; ++I) {
        Pulled.Pull(777);
        EXPECT_NEAR((I * 777 % 5000) / 44100.0, Voice->Position(), 1e-9);
        EXPECT_LT(Voice->Position(), Voice->Duration());
    }
}

TEST(SoundRepeat, APauseAndANewPlaceAreAsInAnyOtherSound) {
    PulledMixer Pulled;
    const auto Voice = Repeating(Pulled, {Count(), 5000});
    Pulled.Pull(12000);
    Voice->Halt();
    Pulled.Pull(3000);
    EXPECT_NEAR(2000 / 44100.0, Voice->Position(), 1e-9);
    Voice->Run();
    ExpectRounds(Pulled.Pull(9000), 5000, 2000, kFadeFrames);
    Voice->PutPosition(4410 / 44100.0);
    ExpectRounds(Pulled.Pull(9000), 5000, 4410, kFadeFrames);
    Voice->PutPosition(Voice->Duration());
    ExpectRounds(Pulled.Pull(9000), 5000, 0, kFadeFrames);
}

// A tone of whole swings has no end that could be heard: what comes out is the endless tone.
TEST(SoundRepeat, AtAnyRateThereIsNoSeam) {
    for (const int Rate : {8000, 11025, 22050, 32000, 44056, 48000, 96000, 192000}) {
        const qint64 Length = Rate / 8;  // 125 swings of 1000 Hz, or nearly so
        const double Hertz = 125.0 * Rate / static_cast<double>(Length);
        PulledMixer Pulled;
        const auto Voice = Repeating(Pulled, {Tone(Hertz, 0.5, Rate), Length, Rate});
        const Samples Heard = Pulled.Pull(10 * 44100);  // some eighty rounds
        const Wave Endless = Tone(Hertz);
        for (size_t I = 2000; I < Heard.size() / 2; ++I)
            ASSERT_NEAR(Endless(static_cast<qint64>(I), 0), Left(Heard, I), 4e-4)
                << Rate << " " << I;
        EXPECT_LT(Voice->Position(), Voice->Duration());
    }
}

TEST(SoundRepeat, ASoundWithoutFramesStaysSilent) {
    PulledMixer Pulled;
    const auto Empty = Repeating(Pulled, {Count(), 0});
    EXPECT_EQ(0, Peak(Pulled.Pull(3000)));
    TestSound Torn{Count(), 5000};
    Torn.BreaksOffAt = 0;
    const auto Nothing = Repeating(Pulled, Torn);
    EXPECT_EQ(0, Peak(Pulled.Pull(3000)));
}

TEST(SoundRepeat, ADamagedSoundRepeatsWhatThereIs) {
    PulledMixer Pulled;
    TestSound Torn{Count(), 90000};
    Torn.BreaksOffAt = 3000;
    const auto Voice = Repeating(Pulled, Torn);
    ExpectRounds(Pulled.Pull(20000), 3000);
    EXPECT_LE(Voice->Position(), 3000 / 44100.0);
}

// Of files of all kinds: the second and the tenth round are the first, one behind the other.
TEST(SoundRepeat, FilesOfEveryKindGoRoundToTheFrame) {
    for (const char* Name : {"cbr.mp3", "vbr.mp3", "cover.mp3", "short.flac", "short.ogg",
                             "short.aiff", "mulaw.wav", "ms.wav"}) {
        const QString Path = neb::tests::SoundFile(Name);
        StereoReader Once(OpenSound(Path));
        Samples Round(2 * 44100 * 4);
        Round.resize(2 * static_cast<size_t>(Once.Read(Round.data(), 44100 * 4)));
        const bool AsItIs = OpenSound(Path)->Rate() == kMixRate;
        PulledMixer Pulled;
        const auto Voice = std::make_shared<SoundVoice>(OpenSound(Path), 0);
        Pulled.Mixer.Add(Voice);
        Voice->PutRepeat(true);
        Voice->Run();
        const auto Frames = static_cast<int>(Round.size() / 2);
        double Worst = 0;
        for (int Time = 0; Time < 10; ++Time) {
            const Samples Heard = Pulled.Pull(Frames);
            // Where the rate is converted the first and last moments of a round lean on what lies
            // beyond them.
            const size_t Edge = AsItIs ? 0 : 2000;
            for (size_t I = Edge; I + Edge < Round.size() && (AsItIs || Time == 0); ++I)
                Worst = std::max(Worst, static_cast<double>(std::abs(Heard[I] - Round[I])));
        }
        EXPECT_LT(Worst, 1e-4) << Name;
        EXPECT_GT(Frames, 1000) << Name;
    }
}
