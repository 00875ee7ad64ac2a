#include "SdlRig.h"
#include "harness/ByTheClock.h"

using namespace neb;
using namespace neb::sounds;

namespace {

// Plays into a file; short waits, so that a test is.
struct DiskPlayer {
    harness::TempFolder Folder;
    const QString File = Folder / QStringLiteral("out.raw");
    EnvironmentValue Driver{"SDL_AUDIODRIVER", "disk"};
    EnvironmentValue Into{"SDL_DISKAUDIOFILE", File.toLocal8Bit()};
    TestSound Sound{Tone(441)};
    KeeperTimes Times;

    std::unique_ptr<SoundPlayers> Players() {
        return std::make_unique<SoundPlayers>(
            DecoderSource{[this](const QString&) { return Decoder(Sound); }, {}},
            std::make_unique<SdlOutput>(), Times);
    }
};

bool DeviceOf(SoundPlayers& Players) {
    return WaitUntil([&] { return Players.Keeper().Pulling() == SoundKeeper::Puller::Device; });
}

}  // namespace

TEST(SdlOutput, APlayedFileComesOutOfTheDeviceSampleForSample) {
    harness::GoByTheClock();
    DiskPlayer Disk;
    Disk.Sound = {Count(), 8000};
    {
        const auto Players = Disk.Players();
        const auto Graph = Players->CreateGraph();
        Graph->RenderFile(QString());
        Graph->Run();
        ASSERT_TRUE(WaitUntil([&] { return Graph->GetCurrentPosition() == 8000 / 44100.0; }));
        EXPECT_TRUE(Graph->IsRunning());
    }
    const Samples Heard = ReadSamples(Disk.File);
    const size_t First = FirstSound(Heard);
    ASSERT_GE(Heard.size() / 2, First + 8000);
    size_t Wrong = 0;
    for (size_t I = 0; I < 8000; ++I) {
        Wrong += Heard[2 * (First + I)] != Count()(static_cast<qint64>(I), 0);
        Wrong += Heard[2 * (First + I) + 1] != Count()(static_cast<qint64>(I), 1);
    }
    EXPECT_EQ(0U, Wrong);
    EXPECT_EQ(0, Peak(Samples(Heard.begin() + 2 * static_cast<std::ptrdiff_t>(First + 8000),
                              Heard.end())));
}

TEST(SdlOutput, TheFirstSampleComesWithinTwoDeviceBuffersOfTheStart) {
    harness::GoByTheClock();
    DiskPlayer Disk;
    size_t Ready = 0;
    {
        const auto Players = Disk.Players();
        const auto Graph = Players->CreateGraph();
        Graph->RenderFile(QString());
        ASSERT_TRUE(DeviceOf(*Players));
        std::this_thread::sleep_for(200ms);
        Ready = ReadSamples(Disk.File).size() / 2;
        Graph->Run();
        ASSERT_TRUE(WaitUntil([&] { return Graph->GetCurrentPosition() > 0.1; }));
    }
    const Samples Heard = ReadSamples(Disk.File);
    EXPECT_GE(FirstSound(Heard), Ready);
    EXPECT_LE(FirstSound(Heard), Ready + 2 * kDeviceFrames);
}

TEST(SdlOutput, PauseJumpReplacementAndReleaseDoNotClick) {
    harness::GoByTheClock();
    DiskPlayer Disk;
    Disk.Sound = {Tone(300), 441000};
    {
        const auto Players = Disk.Players();
        auto Graph = Players->CreateGraph();
        Graph->RenderFile(QString());
        Graph->Run();
        const auto Play = [&] { std::this_thread::sleep_for(70ms); };
        ASSERT_TRUE(WaitUntil([&] { return Graph->GetCurrentPosition() > 0.05; }));
        Graph->Pause();
        Play();
        Graph->Run();
        Play();
        Graph->PutCurrentPosition(5.0123);
        Play();
        Graph->RenderFile(QString());
        Play();
        Graph->Run();
        Play();
        Graph.reset();
        Play();
    }
    const Samples Heard = ReadSamples(Disk.File);
    EXPECT_GT(Peak(Heard), 0.49);
    const double OfTheTone = 0.5 * 2 * std::numbers::pi * 300 / 44100;
    EXPECT_LT(LargestStep(Heard), OfTheTone + 1.0 / kFadeFrames);
}

TEST(SdlOutput, TheDeviceIsClosedWhenNobodyPlaysAndOpenedAgain) {
    harness::GoByTheClock();
    DiskPlayer Disk;
    Disk.Times.Linger = 50ms;
    const auto Players = Disk.Players();
    EXPECT_EQ(SoundKeeper::Puller::Nobody, Players->Keeper().Pulling());
    auto Graph = Players->CreateGraph();
    ASSERT_TRUE(DeviceOf(*Players));
    Graph.reset();
    ASSERT_TRUE(
        WaitUntil([&] { return Players->Keeper().Pulling() == SoundKeeper::Puller::Nobody; }));
    std::this_thread::sleep_for(100ms);
    const qint64 Length = QFile(Disk.File).size();
    EXPECT_GT(Length, 0);
    std::this_thread::sleep_for(100ms);
    EXPECT_EQ(Length, QFile(Disk.File).size());
    Graph = Players->CreateGraph();
    EXPECT_TRUE(DeviceOf(*Players));
}

TEST(SdlOutput, ADeviceThatOnlyKeepsTimeKeepsIt) {
    harness::GoByTheClock();
    const EnvironmentValue Driver("SDL_AUDIODRIVER", "dummy");
    SoundPlayers Players({[](const QString&) {
                              return Decoder({Tone(441), 441000});
                          },
                          {}},
                         std::make_unique<SdlOutput>());
    const auto Graph = Players.CreateGraph();
    Graph->RenderFile(QString());
    ASSERT_TRUE(DeviceOf(Players));
    Graph->Run();
    ASSERT_TRUE(WaitUntil([&] { return Graph->GetCurrentPosition() > 0; }));
    const auto Start = std::chrono::steady_clock::now();
    const double First = Graph->GetCurrentPosition();
    std::this_thread::sleep_for(600ms);
    const std::chrono::duration<double> Gone = std::chrono::steady_clock::now() - Start;
    EXPECT_NEAR(Graph->GetCurrentPosition() - First, Gone.count(), 0.06);
}

TEST(SdlOutput, WithoutAnyDeviceAFileIsPlayedInSilenceAndInTime) {
    harness::GoByTheClock();
    const EnvironmentValue Driver("SDL_AUDIODRIVER", "none-of-them");
    SoundPlayers Players({[](const QString&) {
                              return Decoder({Tone(441), 22050});
                          },
                          {}},
                         std::make_unique<SdlOutput>());
    EXPECT_EQ(PlaybackState::Missing, Players.Keeper().Check(1s));
    const auto Graph = Players.CreateGraph();
    Graph->RenderFile(QString());
    const auto Start = std::chrono::steady_clock::now();
    Graph->Run();
    ASSERT_TRUE(WaitUntil([&] { return Graph->GetCurrentPosition() == 0.5; }));
    const std::chrono::duration<double> Gone = std::chrono::steady_clock::now() - Start;
    EXPECT_NEAR(0.5, Gone.count(), 0.1);
    EXPECT_EQ(SoundKeeper::Puller::Clock, Players.Keeper().Pulling());
}

TEST(SdlOutput, ADeviceThatOpensIsReady) {
    DiskPlayer Disk;
    EXPECT_EQ(PlaybackState::Ready, Disk.Players()->Keeper().Check(1s));
}
