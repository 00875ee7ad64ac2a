#include "sound/mixing/SoundVoice.h"

#include <limits>

#include "PulledVoice.h"
#include "support/Fault.h"

using namespace neb;
using namespace neb::sounds;

namespace {

float Counted(qint64 Frame) {
    return Count()(Frame, 0);
}

}  // namespace

TEST(SoundVoice, StereoAtTheMixersRateComesOutUnchanged) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 100000});
    const Samples Heard = Pulled.Pull(100000);
    for (size_t I = 0; I < 100000; ++I) {
        ASSERT_EQ(Counted(static_cast<qint64>(I)), Heard[2 * I]) << I;
        ASSERT_EQ(-Counted(static_cast<qint64>(I)), Heard[2 * I + 1]) << I;
    }
}

TEST(SoundVoice, NothingSoundsBeforeItRuns) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Constant(0.5F)});
    EXPECT_FALSE(Voice->IsRunning());
    EXPECT_EQ(0, Peak(Pulled.Pull(3000)));
    EXPECT_EQ(0, Voice->Position());
    Voice->Run();
    EXPECT_TRUE(Voice->IsRunning());
    EXPECT_EQ(0.5F, Left(Pulled.Pull(1), 0));
}

TEST(SoundVoice, ThePositionIsWhatWasHandedOut) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 100000});
    Pulled.Pull(12345);
    EXPECT_EQ(12345 / 44100.0, Voice->Position());
    Pulled.Pull(1);
    EXPECT_EQ(12346 / 44100.0, Voice->Position());
}

TEST(SoundVoice, APositionThatIsPutReadsBackExactly) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Count(), 100000, 48000, 1});
    for (const double Seconds : {0.1, 1.2345678901, 0.0, 2.0833, Voice->Duration(), 1e-9}) {
        Voice->PutPosition(Seconds);
        EXPECT_EQ(Seconds, Voice->Position());
        Pulled.Pull(5000);
        EXPECT_EQ(Seconds, Voice->Position());
    }
}

TEST(SoundVoice, APositionBeyondTheEndIsTheEnd) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Count(), 44100});
    for (const double Seconds : {1.5, 1e300, std::numeric_limits<double>::infinity()}) {
        Voice->PutPosition(Seconds);
        EXPECT_EQ(1.0, Voice->Position());
    }
}

TEST(SoundVoice, APositionThatIsNoneIsRefusedAndTheOldOneStays) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Count(), 44100});
    Voice->PutPosition(0.25);
    for (const double Seconds : {-0.001, -std::numeric_limits<double>::infinity(),
                                 std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(Voice->PutPosition(Seconds), Fault);
        EXPECT_EQ(0.25, Voice->Position());
    }
}

TEST(SoundVoice, TheDurationIsFramesByRate) {
    PulledMixer Pulled;
    EXPECT_EQ(100001 / 48000.0, Pulled.Voice({Count(), 100001, 48000})->Duration());
    EXPECT_EQ(7 / 44100.0, Pulled.Voice({Count(), 7})->Duration());
}

TEST(SoundVoice, AtTheEndThePositionIsExactlyTheDurationAtEveryRateAndLength) {
    for (const int Rate : {8000, 11025, 22050, 32000, 44056, 44100, 48000, 96000})
        for (const qint64 Length : {1, 351, 352, 1023, 1024, 2048, 5000, 12347}) {
            PulledMixer Pulled;
            const auto Voice = Pulled.RunningVoice({Constant(0.1F), Length, Rate});
            const auto Out = static_cast<int>((Length * 44100 + Rate - 1) / Rate);
            Pulled.Pull(Out - 1);
            EXPECT_LT(Voice->Position(), Voice->Duration()) << Rate << ' ' << Length;
            Pulled.Pull(1);
            EXPECT_EQ(Voice->Duration(), Voice->Position()) << Rate << ' ' << Length;
            EXPECT_TRUE(Voice->IsRunning());
            EXPECT_EQ(0, Peak(Pulled.Pull(2000)));
            EXPECT_EQ(Voice->Duration(), Voice->Position());
        }
}

TEST(SoundVoice, NoPlaceBeforeTheEndReadsAsTheEnd) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Constant(0.1F), 8000, 8000});
    Voice->PutPosition(4000.4 / 8000);
    Voice->Run();
    Pulled.Pull(22049);
    EXPECT_LT(Voice->Position(), 1);
    Pulled.Pull(1);
    EXPECT_EQ(1, Voice->Position());
}

TEST(SoundVoice, AnEmptyFileIsAtItsEndFromTheStart) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 0});
    EXPECT_EQ(0, Voice->Duration());
    EXPECT_EQ(0, Peak(Pulled.Pull(2000)));
    EXPECT_EQ(0, Voice->Position());
    EXPECT_TRUE(Voice->IsRunning());
}

TEST(SoundVoice, ADamagedRestIsTheEnd) {
    PulledMixer Pulled;
    TestSound Sound{Constant(0.5F), 44100};
    Sound.BreaksOffAt = 10000;
    const auto Voice = Pulled.RunningVoice(Sound);
    const Samples Heard = Pulled.Pull(20000);
    EXPECT_EQ(1.0, Voice->Position());
    EXPECT_EQ(0.5F, Left(Heard, 10000 - kFadeFrames - 1));
    EXPECT_EQ(0, Left(Heard, 10000));
    EXPECT_LT(std::abs(Left(Heard, 9999)), 0.002);
}

TEST(SoundVoice, TheEndComesBackToLifeWithANewPosition) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 5000});
    Pulled.Pull(6000);
    EXPECT_EQ(Voice->Duration(), Voice->Position());
    Voice->PutPosition(0);
    EXPECT_EQ(0, Voice->Position());
    const Samples Heard = Pulled.Pull(5000);
    EXPECT_EQ(Counted(0), Left(Heard, 0));
    EXPECT_EQ(Counted(4999), Left(Heard, 4999));
    EXPECT_EQ(Voice->Duration(), Voice->Position());
}

TEST(SoundVoice, ARepeatAsTheProjectorDoesItPlaysTheFileAgain) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 5000});
    Pulled.Pull(5500);
    Voice->PutPosition(0);
    Voice->Halt();
    EXPECT_FALSE(Voice->IsRunning());
    Voice->Run();
    const Samples Heard = Pulled.Pull(100);
    for (qint64 I = 0; I < 100; ++I) ASSERT_EQ(Counted(I), Left(Heard, static_cast<size_t>(I)));
}

TEST(SoundVoice, APauseHoldsThePlaceAndGoesOnFromThere) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 100000});
    Pulled.Pull(20000);
    Voice->Halt();
    EXPECT_FALSE(Voice->IsRunning());
    const double Place = Voice->Position();
    Pulled.Pull(5000);
    EXPECT_EQ(Place, Voice->Position());
    Voice->Run();
    const Samples Heard = Pulled.Pull(2000);
    // Past the fade-in it is the file again, not a frame lost or doubled.
    for (qint64 I = kFadeFrames; I < 2000; ++I)
        ASSERT_EQ(Counted(20000 + I), Left(Heard, static_cast<size_t>(I)));
}

TEST(SoundVoice, AnythingBeforeTheFirstSampleDoesNotBluntTheAttack) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Constant(0.5F), 10000});
    Voice->Run();
    Voice->Halt();
    Voice->PutPosition(0.1);
    Voice->PutPosition(0);
    Voice->PutVolume(-2000);
    Voice->PutVolume(0);
    Voice->Run();
    EXPECT_EQ(0.5F, Left(Pulled.Pull(1), 0));
}

TEST(SoundVoice, ASecondIsDecodedAheadAndNoMore) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Count(), 500000});
    Pulled.Mixer.Feed();
    EXPECT_GT(Voice->Buffered(), 40000);
    EXPECT_LE(Voice->Buffered(), 44100);
    Voice->PutPosition(3);
    EXPECT_EQ(0, Voice->Buffered());
}

TEST(SoundVoice, WhileDecodingIsLateItWaitsInSilenceAndLosesNothing) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 200000});
    Pulled.Mixer.Feed();
    const int Ready = Voice->Buffered();
    Samples Heard = Pulled.PullUnfed(Ready + 5000);
    const double Place = Voice->Position();
    EXPECT_EQ((Ready - kFadeFrames) / 44100.0, Place);
    EXPECT_EQ(0, Left(Heard, static_cast<size_t>(Ready)));
    EXPECT_LT(LargestStep(Heard), 2.0 / 1048576 + 0.05 / kFadeFrames);
    EXPECT_EQ(0, Peak(Pulled.PullUnfed(1000)));
    EXPECT_EQ(Place, Voice->Position());
    Heard = Pulled.Pull(2000);
    for (qint64 I = kFadeFrames; I < 2000; ++I)
        ASSERT_EQ(Counted(Ready - kFadeFrames + I), Left(Heard, static_cast<size_t>(I)));
}

TEST(SoundVoice, WhatWasDecodedForAnOldPlaceIsNeverHeard) {
    bool Gone = false;
    PulledMixer Pulled;
    TestSound Slow{Count(), 200000};
    Slow.DelayMilliseconds = 30;
    Slow.Gone = &Gone;
    const auto Voice = Pulled.RunningVoice(Slow);
    std::thread Feeder([&] { Voice->Feed(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    Voice->PutPosition(2);
    Feeder.join();
    EXPECT_EQ(0, Voice->Buffered());
    const Samples Heard = Pulled.Pull(1000);
    EXPECT_EQ(Counted(88200 + 999), Left(Heard, 999));
}
