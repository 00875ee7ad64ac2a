// Opens an hour of MP3 that does not tell its length, against a plain reading of the file, and
// decodes a minute of 44.1 kHz stereo at 128 kbit/s. Prints the seconds, their ratio, the processor
// time of a minute of sound, and what a jump to another place takes.
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

#include "sound/workers/SoundReading.h"
#include "support/files/modHostFiles.h"

using namespace neb;

namespace {

constexpr int Runs = 5;
constexpr int Hour = 3600, Minute = 60;
constexpr qint64 Block = 1 << 16;

double Seconds() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

double ProcessorSeconds() {
    return double(std::clock()) / CLOCKS_PER_SEC;
}

// The frames of a second and a half, again and again.
qint64 MakeSound(const QString& Path, int Length) {
    const QByteArray Frames =
        ReadFile(QStringLiteral(NEB_SOURCE_DIR "/tests/data/sound/cbr-noheader.mp3"));
    const double Each =
        double(OpenSound(QStringLiteral(NEB_SOURCE_DIR "/tests/data/sound/cbr-noheader.mp3"))
                   ->Frames()) /
        44100;
    HostWriter Writer(Path);
    qint64 Bytes = 0;
    for (double Done = 0; Done < Length; Done += Each, Bytes += Frames.size())
        Writer.Write(Frames.constData(), Frames.size());
    Writer.Close();
    return Bytes;
}

double PlainReading(const QString& Path) {
    const double Start = Seconds();
    HostReader Reader(Path);
    std::vector<char> Bytes(Block);
    while (Reader.Read(Bytes.data(), Block) > 0) {
    }
    return Seconds() - Start;
}

double Opening(const QString& Path) {
    const double Start = Seconds();
    const auto Sound = OpenSound(Path);
    const double Taken = Seconds() - Start;
    if (Sound->Frames() / Sound->Rate() < Hour) std::puts("the hour is too short");
    return Taken;
}

double Jumping(const QString& Path) {
    const auto Sound = OpenSound(Path);
    std::vector<float> Samples(2048);
    double Worst = 0;
    for (int Tenth : {5, 2, 9, 1, 7}) {
        const double Start = Seconds();
        Sound->Seek(Sound->Frames() * Tenth / 10);
        if (Sound->Read(Samples.data(), 1024) != 1024) std::puts("the jump failed");
        Worst = std::max(Worst, Seconds() - Start);
    }
    return Worst;
}

double Decoding(const QString& Path) {
    const auto Sound = OpenSound(Path);
    std::vector<float> Samples(8192);
    const double Start = ProcessorSeconds();
    qint64 Left = qint64(Minute) * Sound->Rate();
    while (Left > 0) {
        const qint64 Count = Sound->Read(Samples.data(), std::min<qint64>(4096, Left));
        if (Count == 0) break;
        Left -= Count;
    }
    if (Left > 0) std::puts("the minute is too short");
    return ProcessorSeconds() - Start;
}

}  // namespace

int main() {
    QTemporaryDir Dir;
    const QString Long = Dir.filePath(QStringLiteral("hour.mp3"));
    const QString Short = Dir.filePath(QStringLiteral("minute.mp3"));
    const qint64 Bytes = MakeSound(Long, Hour);
    MakeSound(Short, Minute);
    double Reading = 1e9, Open = 1e9, Jump = 1e9, Decode = 1e9;
    for (int I = 0; I < Runs; ++I) {
        Reading = std::min(Reading, PlainReading(Long));
        Open = std::min(Open, Opening(Long));
        Jump = std::min(Jump, Jumping(Long));
        Decode = std::min(Decode, Decoding(Short));
    }
    std::printf("an hour of MP3 without a length header, %.1f MB\n", double(Bytes) / 1e6);
    std::printf("  opening        %.3f s, %.1f times a plain reading (%.3f s)\n", Open,
                Open / Reading, Reading);
    std::printf("  worst jump     %.1f ms\n", Jump * 1000);
    std::printf("a minute of MP3 at 44.1 kHz, stereo, 128 kbit/s\n");
    std::printf("  decoding       %.2f s of the processor, %.2f %% of its length\n", Decode,
                Decode / Minute * 100);
    return 0;
}
