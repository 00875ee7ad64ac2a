// What playing a sound takes: a minute of MP3, decoded behind the door, converted and mixed as fast
// as it goes, as per cent of a core, and what that is against decoding in this process; how long it
// takes from the start of a file to its first sample, in buffers of the device; and the cost of
// mixing a buffer against that of copying it. ffmpeg makes the songs.
#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>

#include "sound/decoding/SoundFormat.h"
#include "sound/devices/SdlOutput.h"
#include "sound/devices/SoundPlayers.h"
#include "sound/workers/SoundsHere.h"

using namespace neb;

namespace {

constexpr int kSeconds = 60, kRuns = 3, kStarts = 25;
constexpr double kMostPercent = 3, kMostBuffers = 2;
constexpr size_t kSamples = 2 * kDeviceFrames;

// The decoder's processor is another than ours, but we wait for it.
double Seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

bool MakeSong(const QString& Path, int Rate) {
    const QString Sound = QStringLiteral(
                              "sine=440:r=%1:d=%2[a];anoisesrc=r=%1:d=%2:c=pink:a=0.2[b];"
                              "[a][b]amerge=inputs=2")
                              .arg(Rate)
                              .arg(kSeconds);
    QProcess Program;
    Program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    Program.start(QStringLiteral("ffmpeg"),
                  {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-nostdin"),
                   QStringLiteral("-filter_complex"), Sound, QStringLiteral("-b:a"),
                   QStringLiteral("192k"), Path});
    return Program.waitForFinished(-1) && Program.exitCode() == 0;
}

// A song from its start to its end, pulled as fast as it goes.
double PlayingPercent(const QString& Path) {
    const double Start = Seconds();
    SoundMixer Mixer(SoundMixer::Feeding::ByCaller);
    const auto Voice = std::make_shared<SoundVoice>(OpenSound(Path), 0);
    Mixer.Add(Voice);
    Voice->Run();
    std::vector<float> Heard(kSamples);
    while (Voice->Position() < Voice->Duration()) {
        Mixer.Feed();
        Mixer.Fill(Heard.data(), kDeviceFrames);
    }
    return (Seconds() - Start) / Voice->Duration() * 100;
}

template <typename Work>
double Least(Work&& Do) {
    double Best = Do();
    for (int Run = 1; Run < kRuns; ++Run) Best = std::min(Best, Do());
    return Best;
}

// The device, and an ear at it: the buffers that it asked for from a moment on until the one with
// the first sample.
struct Ear {
    std::atomic<int> Buffers = 0;
    std::atomic<bool> Heard = false;
    std::atomic<bool> Asked = false;

    void Listen(const float* Samples, int Frames) {
        Asked = true;
        if (Heard) return;
        ++Buffers;
        Heard = std::any_of(Samples, Samples + 2 * Frames, [](float S) { return S != 0; });
    }
};

class HeardOutput : public SoundOutput {
  public:
    explicit HeardOutput(std::shared_ptr<Ear> At) : mEar(std::move(At)) {}
    void Open(Pull Next, Answer Done) override {
        const Pull Both = [Next, At = mEar](float* Into, int Frames) {
            Next(Into, Frames);
            At->Listen(Into, Frames);
        };
        mDevice.Open(Both, std::move(Done));
    }
    bool IsAlive() const override { return mDevice.IsAlive(); }
    void Close() override { mDevice.Close(); }

  private:
    std::shared_ptr<Ear> mEar;
    SdlOutput mDevice;
};

void SleepMilliseconds(int Count) {
    std::this_thread::sleep_for(std::chrono::milliseconds(Count));
}

// The most of many starts, each right after its file was opened.
int BuffersToFirstSample(const QString& Path) {
    qputenv("SDL_AUDIODRIVER", "dummy");
    const auto At = std::make_shared<Ear>();
    SoundPlayers Players({[](const QString& File) { return OpenSound(File); }, {}},
                         std::make_unique<HeardOutput>(At));
    const auto Keep = Players.CreateGraph();
    while (!At->Asked) SleepMilliseconds(1);
    int Most = 0;
    for (int Start = 0; Start < kStarts; ++Start) {
        const auto Graph = Players.CreateGraph();
        Graph->RenderFile(Path);
        At->Buffers = 0;
        At->Heard = false;
        Graph->Run();
        while (!At->Heard) SleepMilliseconds(1);
        Most = std::max<int>(Most, At->Buffers);
        Graph->Pause();
        SleepMilliseconds(60 + Start);
    }
    return Most;
}

using Nanoseconds = std::chrono::duration<double, std::nano>;

// Of mixing one sound, and of copying as much from a second of sound to the same place.
std::pair<double, double> FillAndCopy(const QString& Path) {
    SoundMixer Mixer(SoundMixer::Feeding::ByCaller);
    const auto Voice = std::make_shared<SoundVoice>(OpenSound(Path), 0);
    Mixer.Add(Voice);
    Voice->Run();
    std::vector<float> Heard(kSamples), Second(43 * kSamples, 0.5F);
    Nanoseconds Filling{0}, Copying{0};
    for (size_t Buffer = 0; Buffer < 2000; ++Buffer) {
        Mixer.Feed();
        const auto Start = std::chrono::steady_clock::now();
        Mixer.Fill(Heard.data(), kDeviceFrames);
        const auto Between = std::chrono::steady_clock::now();
        std::memcpy(Heard.data(), &Second[Buffer % 43 * kSamples], kSamples * sizeof(float));
        const auto End = std::chrono::steady_clock::now();
        Filling += Between - Start;
        Copying += End - Between;
    }
    return {Filling.count() / 2000, Copying.count() / 2000};
}

}  // namespace

int main(int Count, char** Arguments) {
    const QCoreApplication App(Count, Arguments);
    const QTemporaryDir Folder;
    SoundsHere Here;
    bool Good = true;
    for (const int Rate : {44100, 48000}) {
        const QString Song = Folder.filePath(QStringLiteral("%1.mp3").arg(Rate));
        if (!MakeSong(Song, Rate)) {
            std::fprintf(stderr, "bench_sound_play: ffmpeg cannot be run.\n");
            return 1;
        }
        const double Percent = Least([&] { return PlayingPercent(Song); });
        SetSoundReader(&Here);
        const double HerePercent = Least([&] { return PlayingPercent(Song); });
        SetSoundReader(nullptr);
        const int Buffers = BuffersToFirstSample(Song);
        std::printf(
            "MP3 at %5d Hz: %5.2f %% of a core (at most %.0f), %.2f times without the door, "
            "first sample in buffer %d (at most %.0f)\n",
            Rate, Percent, kMostPercent, Percent / HerePercent, Buffers, kMostBuffers);
        Good = Good && Percent <= kMostPercent && Buffers <= kMostBuffers;
        const auto [Fill, Copy] = FillAndCopy(Song);
        std::printf("  a buffer: mixed in %.1f us, copied in %.1f us, %.1f times\n", Fill / 1000,
                    Copy / 1000, Fill / Copy);
    }
    return Good ? 0 : 1;
}
