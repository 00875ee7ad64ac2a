// Nothing clicks: what happens to the samples at every jump of a sound.
#include <functional>

#include "PulledVoice.h"

using namespace neb;
using namespace neb::sounds;

namespace {

constexpr double ToneHertz = 40, HalfLoud = 0.5;
constexpr double ToneStep = HalfLoud * 2 * std::numbers::pi * ToneHertz / 44100;
// A ramp adds no more than this to a step. What is heard at once: two tails and the new sound.
constexpr double RampStep = HalfLoud / kFadeFrames;
constexpr double MostStep = 3 * (ToneStep + RampStep);

struct Jump {
    const char* Name;
    std::function<void(PulledMixer&, std::shared_ptr<SoundVoice>&)> Do;
};

std::shared_ptr<SoundVoice> ToneVoice(PulledMixer& Pulled) {
    return Pulled.Voice({Tone(ToneHertz, HalfLoud), 441000});
}

const Jump Jumps[] = {
    {"pause", [](PulledMixer&, auto& V) { V->Halt(); }},
    {"pause and on at once",
     [](PulledMixer&, auto& V) {
         V->Halt();
         V->Run();
     }},
    {"new place", [](PulledMixer&, auto& V) { V->PutPosition(3.00123); }},
    {"back to the start", [](PulledMixer&, auto& V) { V->PutPosition(0); }},
    {"to the end", [](PulledMixer&, auto& V) { V->PutPosition(10); }},
    {"released", [](PulledMixer&, auto& V) { V->Release(); }},
    {"replaced",
     [](PulledMixer& P, auto& V) {
         V->Release();
         V = ToneVoice(P);
         V->Run();
     }},
    {"three places at once",
     [](PulledMixer&, auto& V) {
         for (const double Seconds : {1.0021, 2.0033, 3.0007}) V->PutPosition(Seconds);
     }},
    {"volume down", [](PulledMixer&, auto& V) { V->PutVolume(-10000); }},
    {"volume down and paused",
     [](PulledMixer&, auto& V) {
         V->PutVolume(-2000);
         V->Halt();
     }},
};

}  // namespace

TEST(SoundRamps, NoJumpIsLargerThanTheSoundsOwnStepsAndTheRamps) {
    for (const Jump& Each : Jumps)
        // At every phase of the tone, at its tops too.
        for (int Place = 4000; Place < 5200; Place += 57) {
            PulledMixer Pulled;
            auto Voice = ToneVoice(Pulled);
            Voice->Run();
            Samples Heard = Pulled.Pull(Place);
            Each.Do(Pulled, Voice);
            Append(Heard, Pulled.Pull(100));
            Each.Do(Pulled, Voice);
            Append(Heard, Pulled.Pull(3000));
            ASSERT_LE(LargestStep(Heard), MostStep) << Each.Name << ' ' << Place;
        }
}

TEST(SoundRamps, APauseFadesOutInAStraightLineWithinEightMilliseconds) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Constant(0.5F), 100000});
    Pulled.Pull(3000);
    Voice->Halt();
    const Samples Heard = Pulled.Pull(kFadeFrames + 100);
    for (size_t I = 0; I < kFadeFrames; ++I)
        ASSERT_NEAR(0.5 * (1 - (static_cast<double>(I) + 1) / (kFadeFrames + 1)), Left(Heard, I),
                    1e-6);
    for (size_t I = kFadeFrames; I < kFadeFrames + 100; ++I) ASSERT_EQ(0, Left(Heard, I));
}

TEST(SoundRamps, TheFadingPartIsTheFileAsItWouldHaveGoneOn) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 100000});
    Pulled.Pull(3000);
    Voice->Halt();
    const float Heard = Left(Pulled.Pull(kFadeFrames), kFadeFrames / 2);
    const double Faded = 1 - (kFadeFrames / 2 + 1.0) / (kFadeFrames + 1);
    EXPECT_NEAR(static_cast<double>(Count()(3000 + kFadeFrames / 2, 0)) * Faded, Heard, 1e-7);
}

TEST(SoundRamps, AwayFromTheStartASoundFadesIn) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Constant(0.5F), 100000});
    Voice->PutPosition(1);
    Voice->Run();
    const Samples Heard = Pulled.Pull(1000);
    for (size_t I = 0; I < kFadeFrames; ++I)
        ASSERT_NEAR(0.5 * (static_cast<double>(I) + 1) / kFadeFrames, Left(Heard, I), 1e-5);
    EXPECT_EQ(0.5F, Left(Heard, kFadeFrames));
}

TEST(SoundRamps, VolumeIsInHundredthsOfADecibel) {
    for (const int Hundredths : {0, -1, -602, -1250, -2500, -9999}) {
        PulledMixer Pulled;
        const auto Voice = Pulled.Voice({Constant(0.5F), 10000});
        Voice->PutVolume(Hundredths);
        EXPECT_EQ(Hundredths, Voice->Volume());
        Voice->Run();
        EXPECT_NEAR(0.5 * std::pow(10.0, Hundredths / 2000.0), Left(Pulled.Pull(1), 0), 1e-7);
    }
}

TEST(SoundRamps, TheLowestVolumeIsSilence) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Constant(0.5F), 10000});
    Voice->PutVolume(-10000);
    EXPECT_EQ(0, Peak(Pulled.Pull(1000)));
    EXPECT_EQ(1000 / 44100.0, Voice->Position());
}

TEST(SoundRamps, VolumesBeyondTheScaleAreItsEnds) {
    PulledMixer Pulled;
    const auto Voice = Pulled.Voice({Constant(0.5F)});
    Voice->PutVolume(300);
    EXPECT_EQ(0, Voice->Volume());
    Voice->PutVolume(-20000);
    EXPECT_EQ(-10000, Voice->Volume());
}

TEST(SoundRamps, AChangeOfVolumeTakesATenthOfASecond) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Constant(0.5F), 100000});
    Pulled.Pull(1000);
    Voice->PutVolume(-2000);
    const Samples Heard = Pulled.Pull(5000);
    for (size_t I = 0; I < 4410; ++I)
        ASSERT_NEAR(0.5 - 0.45 * (static_cast<double>(I) + 1) / 4410, Left(Heard, I), 2e-5);
    for (size_t I = 4410; I < 5000; ++I) ASSERT_FLOAT_EQ(0.05F, Left(Heard, I));
}

TEST(SoundRamps, AVolumeThatIsSetInAPauseHoldsFromTheFirstSoundOn) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Constant(0.5F), 100000});
    Pulled.Pull(1000);
    Voice->Halt();
    Pulled.Pull(1000);
    Voice->PutVolume(-2000);
    EXPECT_EQ(-2000, Voice->Volume());
    Voice->Run();
    const Samples Heard = Pulled.Pull(1000);
    EXPECT_LE(Peak(Heard), 0.0501F);
    EXPECT_FLOAT_EQ(0.05F, Left(Heard, kFadeFrames));
}

TEST(SoundRamps, AFileShorterThanARampIsPausedAndPlayedToItsEnd) {
    constexpr int Length = kFadeFrames / 2;
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Constant(0.5F), Length});
    Pulled.Pull(50);
    Voice->Halt();
    const Samples Fading = Pulled.Pull(1000);
    EXPECT_GT(Left(Fading, 0), 0.4F);
    EXPECT_LT(Left(Fading, Length - 51), 0.01F);
    EXPECT_EQ(0, Left(Fading, Length - 50));
    EXPECT_EQ(50 / 44100.0, Voice->Position());
    Voice->Run();
    const Samples Rest = Pulled.Pull(1000);
    EXPECT_GT(Left(Rest, Length - 51), 0);
    EXPECT_EQ(0, Left(Rest, Length - 50));
    EXPECT_EQ(Voice->Duration(), Voice->Position());
}

TEST(SoundRamps, BackToFullVolumeTheFileIsUnchangedAgain) {
    PulledMixer Pulled;
    const auto Voice = Pulled.RunningVoice({Count(), 100000});
    Pulled.Pull(1000);
    Voice->PutVolume(-2000);
    Pulled.Pull(5000);
    Voice->PutVolume(0);
    Pulled.Pull(5000);
    EXPECT_EQ(Count()(11000, 0), Left(Pulled.Pull(1), 0));
}
