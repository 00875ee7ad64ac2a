#include "sound/devices/SoundPlayers.h"

#include "MadeUpOutput.h"
#include "harness/ByTheClock.h"
#include "sound/devices/PcmDecoder.h"
#include "support/Fault.h"

using namespace neb;
using namespace neb::sounds;

namespace {

// Files by name: the number of seconds; "none" cannot be played.
struct Files : PluggedPlayers {
    Files() {
        Times.Stall = 10s;
        Times.Linger = 10s;
        Players = std::make_unique<SoundPlayers>(
            DecoderSource{[](const QString& Path) {
                              if (Path == u"none") throw Fault(QStringLiteral("No."), Path);
                              return Decoder({Constant(0.5F), Path.toInt() * 44100});
                          },
                          [this](const QString& Path, std::unique_ptr<SoundDecoder>) {
                              const std::lock_guard Lock(Mutex);
                              Back << Path;
                          }},
            std::make_unique<MadeUpOutput>(Socket), Times);
        Graph = Players->CreateGraph();
    }
    ~Files() {
        Graph.reset();
        Players.reset();
    }
    QStringList GivenBack() {
        const std::lock_guard Lock(Mutex);
        return Back;
    }
    void Render(const char* Path) { Graph->RenderFile(QString::fromLatin1(Path)); }

    std::mutex Mutex;
    QStringList Back;
};

WaveFormat Format(std::uint16_t Bits, std::uint16_t Channels = 1) {
    WaveFormat Made;
    Made.BitsPerSample = Bits;
    Made.Channels = Channels;
    Made.SamplesPerSec = 22050;
    return Made;
}

std::vector<float> All(PcmDecoder& Decoder) {
    std::vector<float> Samples(100);
    Samples.resize(static_cast<size_t>(Decoder.Read(Samples.data(), 10) * Decoder.Channels()));
    return Samples;
}

}  // namespace

TEST(SoundPlayers, AGraphWithoutAFileIsSilentAndHarmless) {
    Files F;
    F.Graph->Run();
    F.Graph->Pause();
    F.Graph->Stop();
    F.Graph->PutCurrentPosition(3);
    EXPECT_FALSE(F.Graph->IsRunning());
    EXPECT_EQ(0, F.Graph->GetDuration());
    EXPECT_EQ(0, F.Graph->GetCurrentPosition());
    F.Graph->PutVolume(-700);
    EXPECT_EQ(-700, F.Graph->GetVolume());
}

TEST(SoundPlayers, AFileIsAtItsStartAndNotRunningWithItsLengthKnown) {
    Files F;
    F.Render("3");
    EXPECT_EQ(3, F.Graph->GetDuration());
    EXPECT_EQ(0, F.Graph->GetCurrentPosition());
    EXPECT_FALSE(F.Graph->IsRunning());
    EXPECT_EQ(0, F.Graph->GetVolume());
}

TEST(SoundPlayers, AnotherFileReplacesTheFirstAndKeepsTheVolume) {
    Files F;
    F.Render("3");
    F.Graph->PutVolume(-1250);
    F.Graph->Run();
    F.Render("5");
    EXPECT_EQ(5, F.Graph->GetDuration());
    EXPECT_FALSE(F.Graph->IsRunning());
    EXPECT_EQ(-1250, F.Graph->GetVolume());
    EXPECT_TRUE(WaitUntil([&] { return F.GivenBack() == QStringList{QStringLiteral("3")}; }));
}

TEST(SoundPlayers, AFileThatCannotBePlayedIsToldOfAndLeavesWhatWasThere) {
    Files F;
    F.Render("3");
    F.Graph->Run();
    EXPECT_THROW(F.Render("none"), Fault);
    EXPECT_EQ(3, F.Graph->GetDuration());
    EXPECT_TRUE(F.Graph->IsRunning());
}

TEST(SoundPlayers, PauseAndStopHoldThePlace) {
    Files F;
    F.Render("3");
    F.Graph->PutCurrentPosition(1.25);
    F.Graph->Run();
    EXPECT_TRUE(F.Graph->IsRunning());
    F.Graph->Pause();
    EXPECT_FALSE(F.Graph->IsRunning());
    F.Graph->Run();
    F.Graph->Stop();
    EXPECT_FALSE(F.Graph->IsRunning());
    EXPECT_EQ(1.25, F.Graph->GetCurrentPosition());
}

TEST(SoundPlayers, ADecoderGoesBackOnceItsSoundIsOver) {
    Files F;
    F.Render("3");
    F.Graph.reset();
    EXPECT_TRUE(WaitUntil([&] { return F.GivenBack().size() == 1; }));
}

TEST(SoundPlayers, NoCallOfTheWindowsThreadWaits) {
    harness::GoByTheClock();
    Files F;
    F.Render("100");
    ASSERT_TRUE(F.Opened(1));
    const auto Start = std::chrono::steady_clock::now();
    for (int I = 0; I < 50; ++I) {
        F.Render("100");
        F.Graph->PutCurrentPosition(I);
        F.Graph->Run();
        F.Graph->PutVolume(-I);
        F.Graph->Pause();
        F.Graph->Stop();
    }
    EXPECT_LT(std::chrono::steady_clock::now() - Start, 500ms);
}

TEST(PcmDecoder, BytesAreUnsignedWithTheirMiddleAsSilence) {
    PcmDecoder Decoder(Format(8), QByteArray("\x00\x80\xff\x40", 4));
    EXPECT_EQ(22050, Decoder.Rate());
    EXPECT_EQ(4, Decoder.Frames());
    EXPECT_EQ((std::vector<float>{-1, 0, 127 / 128.F, -0.5F}), All(Decoder));
    EXPECT_TRUE(All(Decoder).empty());
    Decoder.Seek(3);
    EXPECT_EQ((std::vector<float>{-0.5F}), All(Decoder));
}

TEST(PcmDecoder, TwoBytesAreSignedTheLowOneFirst) {
    PcmDecoder Decoder(Format(16, 2), QByteArray("\x00\x80\xff\x7f\x00\x00\x00\x40\x01", 9));
    EXPECT_EQ(2, Decoder.Frames());
    EXPECT_EQ((std::vector<float>{-1, 32767 / 32768.F, 0, 0.5F}), All(Decoder));
}

TEST(PcmDecoder, OtherKindsAreRefused) {
    EXPECT_THROW(PcmDecoder(Format(24), {}), Fault);
    EXPECT_THROW(PcmDecoder(Format(8, 0), {}), Fault);
    EXPECT_THROW(PcmDecoder(Format(8, 9), {}), Fault);
    WaveFormat Other = Format(8);
    Other.SamplesPerSec = 199;
    EXPECT_THROW(PcmDecoder(Other, {}), Fault);
    Other = Format(8);
    Other.FormatTag = 3;
    EXPECT_THROW(PcmDecoder(Other, {}), Fault);
    Other = Format(8);
    Other.SamplesPerSec = 0;
    EXPECT_THROW(PcmDecoder(Other, {}), Fault);
}

TEST(SoundPlayers, ARecordingIsPlayedToItsEnd) {
    Files F;
    auto Graph =
        F.Players->CreateGraph(std::make_unique<PcmDecoder>(Format(8), QByteArray(2205, '\xc0')));
    EXPECT_EQ(0.1, Graph->GetDuration());
    ASSERT_TRUE(F.Opened(1));
    Graph->Run();
    std::this_thread::sleep_for(30ms);
    const Samples Heard = F.Socket->Pull(4500);
    EXPECT_NEAR(0.5, Left(Heard, 2000), 1e-4);
    EXPECT_EQ(0, Left(Heard, 4499));
    EXPECT_EQ(0.1, Graph->GetCurrentPosition());
    EXPECT_TRUE(Graph->IsRunning());
}
