#include "sound/mixing/SoundMixer.h"

#include "PulledVoice.h"
#include "SdlRig.h"
#include "harness/ByTheClock.h"

using namespace neb;
using namespace neb::sounds;

TEST(SoundMixer, TwoSoundsAreHeardTogether) {
    PulledMixer Pulled;
    const auto A = Pulled.RunningVoice({Constant(0.25F), 10000});
    const auto B = Pulled.RunningVoice({Constant(0.5F), 5000});
    const Samples Heard = Pulled.Pull(8000);
    EXPECT_EQ(0.75F, Left(Heard, 0));
    EXPECT_EQ(0.75F, Left(Heard, 4999));
    EXPECT_EQ(0.25F, Left(Heard, 5000));
    EXPECT_LT(A->Position(), A->Duration());
    EXPECT_EQ(B->Duration(), B->Position());
}

TEST(SoundMixer, TheSumStaysWithinFullLevel) {
    PulledMixer Pulled;
    const auto A = Pulled.RunningVoice({Constant(0.75F), 10000});
    const auto B = Pulled.RunningVoice({Constant(0.75F), 10000});
    const auto C = Pulled.RunningVoice({Constant(-0.9F), 5000});
    const Samples Heard = Pulled.Pull(6000);
    // The sum alone is held, not its parts.
    EXPECT_FLOAT_EQ(0.6F, Left(Heard, 0));
    EXPECT_EQ(1, Left(Heard, 5500));
}

TEST(SoundMixer, NorDoesItGoBelow) {
    PulledMixer Pulled;
    const auto A = Pulled.RunningVoice({Constant(-0.75F), 10000});
    const auto B = Pulled.RunningVoice({Constant(-0.75F), 10000});
    EXPECT_EQ(-1, Left(Pulled.Pull(1000), 500));
}

TEST(SoundMixer, APauseOfOneLeavesTheOtherAlone) {
    PulledMixer Pulled;
    const auto A = Pulled.RunningVoice({Count(), 100000});
    const auto B = Pulled.RunningVoice({Constant(0.5F), 100000});
    Pulled.Pull(2000);
    B->Halt();
    Pulled.Pull(1000);
    EXPECT_EQ(Count()(3000, 0), Left(Pulled.Pull(1), 0));
}

TEST(SoundMixer, AReleasedSoundFadesOutAndItsDecoderGoesBack) {
    PulledMixer Pulled;
    bool Back = false;
    auto Voice = std::make_shared<SoundVoice>(
        Decoder({Constant(0.5F), 100000}), 0,
        [&](std::unique_ptr<SoundDecoder> Used) { Back = Used != nullptr; });
    Pulled.Mixer.Add(Voice);
    Voice->Run();
    Pulled.Pull(2000);
    Voice->Release();
    Voice.reset();
    Pulled.Mixer.Feed();
    EXPECT_FALSE(Back);
    EXPECT_GT(Peak(Pulled.Pull(kFadeFrames)), 0.4);
    EXPECT_EQ(0, Peak(Pulled.Pull(kFadeFrames)));
    Pulled.Mixer.Feed();
    EXPECT_TRUE(Back);
}

TEST(SoundMixer, ASlowDecoderDoesNotHoldUpTheDevice) {
    harness::GoByTheClock();
    SoundMixer Mixer;
    TestSound Slow{Constant(0.5F), 1000000};
    Slow.DelayMilliseconds = 300;
    const auto A = std::make_shared<SoundVoice>(Decoder(Slow), 0);
    Mixer.Add(A);
    A->Run();
    std::this_thread::sleep_for(20ms);
    Samples Heard(2 * kDeviceFrames);
    const auto Start = std::chrono::steady_clock::now();
    for (int I = 0; I < 20; ++I) {
        Mixer.Fill(Heard.data(), kDeviceFrames);
        A->PutPosition(I);
        A->PutVolume(-I);
        A->Halt();
        A->Run();
        Mixer.Wake();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - Start, 100ms);
}

TEST(SoundMixer, ItFeedsItselfWhileItIsPulled) {
    harness::GoByTheClock();
    SoundMixer Mixer;
    const auto Voice = std::make_shared<SoundVoice>(Decoder({Count(), 60000}), 0);
    Mixer.Add(Voice);
    Voice->Run();
    ASSERT_TRUE(WaitUntil([&] { return Voice->Buffered() > 40000; }));
    Samples Heard(2 * kDeviceFrames);
    for (int I = 0; I < 200 && Voice->Position() < Voice->Duration(); ++I) {
        Mixer.Fill(Heard.data(), kDeviceFrames);
        std::this_thread::sleep_for(5ms);
    }
    EXPECT_EQ(Voice->Duration(), Voice->Position());
}

TEST(SoundMixer, ADecoderThatHangsDoesNotKeepTheProgramFromEnding) {
    harness::GoByTheClock();
    const auto Start = std::chrono::steady_clock::now();
    {
        SoundMixer Mixer;
        TestSound Hanging{Constant(0.5F), 1000000};
        Hanging.DelayMilliseconds = 2500;
        Mixer.Add(std::make_shared<SoundVoice>(Decoder(Hanging), 0));
        std::this_thread::sleep_for(20ms);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - Start, 1500ms);
    std::this_thread::sleep_for(1700ms);
}

TEST(SoundMixer, ManyThreadsAtOnceAreSafe) {
    SoundMixer Mixer;
    std::atomic<bool> Over = false;
    std::thread Device([&] {
        Samples Heard(2 * kDeviceFrames);
        while (!Over) {
            Mixer.Fill(Heard.data(), kDeviceFrames);
            std::this_thread::sleep_for(1ms);
        }
    });
    for (int I = 0; I < 60; ++I) {
        const auto Voice =
            std::make_shared<SoundVoice>(Decoder({Tone(440), 50000, 48000, 1 + I % 8}), 0);
        Mixer.Add(Voice);
        Voice->Run();
        Voice->PutPosition(I / 100.0);
        Voice->PutVolume(-10 * I);
        std::this_thread::sleep_for(3ms);
        EXPECT_GE(Voice->Position(), I / 100.0);
        Voice->Halt();
        Voice->Release();
        Mixer.Wake();
    }
    Over = true;
    Device.join();
}
