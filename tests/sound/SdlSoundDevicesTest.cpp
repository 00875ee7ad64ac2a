#include "sound/devices/SdlSoundDevices.h"

#include <QDataStream>

#include "SdlRig.h"
#include "harness/ByTheClock.h"
#include "support/Fault.h"

using namespace neb;
using namespace neb::sounds;

namespace {

struct DiskDevices {
    harness::TempFolder Folder;
    const QString Heard = Folder / QStringLiteral("out.raw");
    const QString File = Folder / QStringLiteral("sound.wav");
    EnvironmentValue Driver{"SDL_AUDIODRIVER", "disk"};
    EnvironmentValue Into{"SDL_DISKAUDIOFILE", Heard.toLocal8Bit()};
};

// 16 bits, two channels, the mixer's rate: the left channel counts up, the right one down.
QByteArray CountingSamples(int Frames) {
    QByteArray Bytes;
    QDataStream To(&Bytes, QIODevice::WriteOnly);
    To.setByteOrder(QDataStream::LittleEndian);
    for (int I = 1; I <= Frames; ++I) To << static_cast<qint16>(I) << static_cast<qint16>(-I);
    return Bytes;
}

void WriteWave(const QString& Path, const QByteArray& Data) {
    QFile File(Path);
    ASSERT_TRUE(File.open(QIODevice::WriteOnly));
    QDataStream To(&File);
    To.setByteOrder(QDataStream::LittleEndian);
    const auto Size = static_cast<quint32>(Data.size());
    To.writeRawData("RIFF", 4);
    To << Size + 36;
    To.writeRawData("WAVEfmt ", 8);
    To << 16U << quint16(1) << quint16(2) << 44100U << 176400U << quint16(4) << quint16(16);
    To.writeRawData("data", 4);
    To << Size;
    To.writeRawData(Data.constData(), static_cast<int>(Data.size()));
}

}  // namespace

TEST(SdlSoundDevices, AWaveFileIsHeardSampleForSampleToItsExactEnd) {
    DiskDevices Disk;
    WriteWave(Disk.File, CountingSamples(5000));
    {
        SdlSoundDevices Devices;
        Devices.LoadAhead(Disk.File);
        const auto Graph = Devices.CreateGraph();
        Graph->RenderFile(Disk.File);
        EXPECT_EQ(5000 / 44100.0, Graph->GetDuration());
        Graph->Run();
        ASSERT_TRUE(WaitUntil([&] { return Graph->GetCurrentPosition() == Graph->GetDuration(); }));
        std::this_thread::sleep_for(30ms);
    }
    const Samples Heard = ReadSamples(Disk.Heard);
    const size_t First = FirstSound(Heard);
    ASSERT_GE(Heard.size() / 2, First + 5000);
    for (size_t I = 0; I < 5000; ++I) {
        ASSERT_EQ(static_cast<float>(I + 1) / 32768, Heard[2 * (First + I)]);
        ASSERT_EQ(-static_cast<float>(I + 1) / 32768, Heard[2 * (First + I) + 1]);
    }
}

TEST(SdlSoundDevices, AFileThatIsNoneIsToldOf) {
    DiskDevices Disk;
    SdlSoundDevices Devices;
    const auto Graph = Devices.CreateGraph();
    EXPECT_THROW(Graph->RenderFile(Disk.File), Fault);
}

TEST(SdlSoundDevices, ARecordingIsHeardAndCanBePlayedAgain) {
    DiskDevices Disk;
    {
        SdlSoundDevices Devices;
        const auto Graph = Devices.CreateSoundBuffer(WaveFormat{}, QByteArray(2205, '\xc0'));
        for (int Time = 0; Time < 2; ++Time) {
            EXPECT_EQ(0, Graph->GetCurrentPosition());
            Graph->Run();
            ASSERT_TRUE(WaitUntil([&] { return Graph->GetCurrentPosition() == 0.1; }));
            std::this_thread::sleep_for(30ms);
            Graph->Stop();
            Graph->PutCurrentPosition(0);
        }
    }
    const Samples Heard = ReadSamples(Disk.Heard);
    EXPECT_NEAR(2 * 4410,
                std::count_if(Heard.begin(), Heard.end(),
                              [](float S) { return std::abs(S - 0.5F) < 0.1F; }) /
                    2,
                40);
}

TEST(SdlSoundDevices, ThePlaybackCheckAnswersForTheMachine) {
    {
        DiskDevices Disk;
        EXPECT_EQ(PlaybackState::Ready, SdlSoundDevices().CheckPlayback());
    }
    const EnvironmentValue Driver("SDL_AUDIODRIVER", "none-of-them");
    EXPECT_EQ(PlaybackState::Missing, SdlSoundDevices().CheckPlayback());
}

TEST(SdlSoundDevices, MakingThemAndLettingThemGoIsQuick) {
    harness::GoByTheClock();
    const auto Start = std::chrono::steady_clock::now();
    for (int I = 0; I < 100; ++I) SdlSoundDevices();
    EXPECT_LT(std::chrono::steady_clock::now() - Start, 50ms);
}
