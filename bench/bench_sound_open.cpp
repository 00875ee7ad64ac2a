// Opens an hour of MP3 that does not tell its length, against a plain reading of the file, and
// decodes a minute of 44.1 kHz stereo at 128 kbit/s. Prints the seconds, their ratio, the time of a
// minute of sound, what a jump to another place takes and, of a file of a second and a half, what
// its opening takes; each behind the door, and against the same in this process.
#include <QCoreApplication>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <vector>

#include "sound/workers/SoundsHere.h"
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
    const double Start = Seconds();
    qint64 Left = qint64(Minute) * Sound->Rate();
    while (Left > 0) {
        const qint64 Count = Sound->Read(Samples.data(), std::min<qint64>(4096, Left));
        if (Count == 0) break;
        Left -= Count;
    }
    if (Left > 0) std::puts("the minute is too short");
    return Seconds() - Start;
}

struct Times {
    double Open = 1e9, Jump = 1e9, Decode = 1e9, Small = 1e9;
};

double OpeningSmall() {
    constexpr int Times = 50;
    const double Start = Seconds();
    for (int I = 0; I < Times; ++I)
        OpenSound(QStringLiteral(NEB_SOURCE_DIR "/tests/data/sound/cbr.mp3"));
    return (Seconds() - Start) / Times;
}

Times Measured(SoundReader* By, const QString& Long, const QString& Short) {
    SetSoundReader(By);
    Times Best;
    for (int I = 0; I < Runs; ++I) {
        Best.Open = std::min(Best.Open, Opening(Long));
        Best.Jump = std::min(Best.Jump, Jumping(Long));
        Best.Decode = std::min(Best.Decode, Decoding(Short));
        Best.Small = std::min(Best.Small, OpeningSmall());
    }
    SetSoundReader(nullptr);
    return Best;
}

double FirstOpening(const QString& Path) {
    const double Start = Seconds();
    OpenSound(Path);
    return Seconds() - Start;
}

}  // namespace

int main(int Count, char** Arguments) {
    const QCoreApplication App(Count, Arguments);
    const QTemporaryDir Dir;
    const QString Long = Dir.filePath(QStringLiteral("hour.mp3"));
    const QString Short = Dir.filePath(QStringLiteral("minute.mp3"));
    SoundsHere Here;
    const double First = FirstOpening(QStringLiteral(NEB_SOURCE_DIR "/tests/data/sound/cbr.mp3"));
    const qint64 Bytes = MakeSound(Long, Hour);
    MakeSound(Short, Minute);
    double Reading = 1e9;
    for (int I = 0; I < Runs; ++I) Reading = std::min(Reading, PlainReading(Long));
    const Times Without = Measured(&Here, Long, Short), With = Measured(nullptr, Long, Short);
    std::printf("an hour of MP3 without a length header, %.1f MB\n", double(Bytes) / 1e6);
    std::printf(
        "  opening        %.3f s, %.1f times a plain reading, %.2f times without the door\n",
        With.Open, With.Open / Reading, With.Open / Without.Open);
    std::printf("  worst jump     %.1f ms, %.2f times without the door\n", With.Jump * 1000,
                With.Jump / Without.Jump);
    std::printf("a minute of MP3 at 44.1 kHz, stereo, 128 kbit/s\n");
    std::printf("  decoding       %.2f s, %.2f %% of its length, %.2f times without the door\n",
                With.Decode, With.Decode / Minute * 100, With.Decode / Without.Decode);
    std::printf("a second and a half of MP3\n");
    std::printf("  opening        %.2f ms, %.2f times without the door; %.0f ms the first time\n",
                With.Small * 1000, With.Small / Without.Small, First * 1000);
    return 0;
}
