// Into a real sound server, a private one without any hardware, and through its being killed.
#include <QProcess>
#include <QStandardPaths>

#include "SdlRig.h"

using namespace neb;
using namespace neb::sounds;

namespace {

bool HasPrograms() {
    for (const char* Name : {"pulseaudio", "parec"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(Name)).isEmpty()) return false;
    return true;
}

class SoundServer {
  public:
    SoundServer() = default;
    ~SoundServer() { Kill(); }
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    bool Start() {
        QProcessEnvironment Own = QProcessEnvironment::systemEnvironment();
        for (const char* Name :
             {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "PULSE_RUNTIME_PATH"})
            Own.insert(QString::fromLatin1(Name), mFolder.Path());
        Own.remove(QStringLiteral("PULSE_SERVER"));
        mServer.setProcessEnvironment(Own);
        mServer.setStandardErrorFile(QProcess::nullDevice());
        mServer.start(
            QStringLiteral("pulseaudio"),
            {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
             QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--use-pid-file=no"),
             QStringLiteral("-L"),
             QStringLiteral("module-native-protocol-unix socket=%1 auth-anonymous=1").arg(Socket()),
             QStringLiteral("-L"),
             QStringLiteral("module-null-sink sink_name=vsink norewinds=1 rate=44100")});
        return WaitUntil([this] { return QFile::exists(Socket()); });
    }
    void Kill() {
        if (mServer.state() == QProcess::NotRunning) return;
        mServer.kill();
        mServer.waitForFinished();
        QFile::remove(Socket());
    }
    QString Socket() const { return mFolder / QStringLiteral("pulse.sock"); }
    // What comes out of the loudspeakers in so many milliseconds.
    Samples Listen(int Milliseconds) {
        QProcess Recorder;
        Recorder.start(QStringLiteral("parec"),
                       {QStringLiteral("-d"), QStringLiteral("vsink.monitor"),
                        QStringLiteral("--format=float32le"), QStringLiteral("--rate=44100"),
                        QStringLiteral("--channels=2"), QStringLiteral("--raw"),
                        QStringLiteral("--latency-msec=50")});
        QByteArray Bytes;
        const auto Wanted = static_cast<qsizetype>(Milliseconds) * 441 * 8 / 10;
        WaitUntil([&] {
            Recorder.waitForReadyRead(50);
            Bytes += Recorder.readAllStandardOutput();
            return Bytes.size() >= Wanted;
        });
        Recorder.kill();
        Recorder.waitForFinished();
        Samples Heard(static_cast<size_t>(Bytes.size()) / 8 * 2);
        std::memcpy(Heard.data(), Bytes.constData(), Heard.size() * sizeof(float));
        return Heard;
    }

  private:
    harness::TempFolder mFolder;
    QProcess mServer;
};

// Of its last third: recording begins with what was there before.
double LateToneLevel(const Samples& Heard) {
    const auto From = static_cast<std::ptrdiff_t>(Heard.size() / 2 * 2 / 3 / 2 * 2);
    return ToneLevel(Samples(Heard.begin() + From, Heard.end()), 882);
}

// Of the tenth of a second in which it is loudest: on a busy machine the sound has gaps, which take
// from a level and never add to it.
double BestToneLevel(const Samples& Heard) {
    constexpr std::ptrdiff_t Tenth = 4410 * 2;
    double Best = 0;
    for (auto From = Heard.begin(); Heard.end() - From >= Tenth; From += Tenth)
        Best = std::max(Best, ToneLevel(Samples(From, From + Tenth), 882));
    return Best;
}

struct ServerPlayer {
    SoundServer Server;
    EnvironmentValue Driver{"SDL_AUDIODRIVER", "pulseaudio"};
    EnvironmentValue Address{"PULSE_SERVER", "unix:" + Server.Socket().toLocal8Bit()};
    std::unique_ptr<SoundPlayers> Players;
    std::unique_ptr<SoundGraph> Graph;

    void Play() {
        Players =
            std::make_unique<SoundPlayers>(DecoderSource{[](const QString&) {
                                                             return Decoder({Tone(882), 4410000});
                                                         },
                                                         {}},
                                           std::make_unique<SdlOutput>());
        Graph = Players->CreateGraph();
        Graph->RenderFile(QString());
        Graph->Run();
    }
    bool PulledBy(SoundKeeper::Puller Wanted) {
        return WaitUntil([&] { return Players->Keeper().Pulling() == Wanted; });
    }
    double Position() const { return Graph->GetCurrentPosition(); }
    // The tone comes out as loud as it is played, and never louder.
    void ExpectIsHeard() {
        double Level = 0;
        EXPECT_TRUE(WaitUntil([&] {
            Level = BestToneLevel(Server.Listen(600));
            return Level > 0.49;
        })) << Level;
        EXPECT_LT(Level, 0.51);
    }
    void ExpectSilence() {
        double Level = 1;
        EXPECT_TRUE(WaitUntil([&] {
            Level = LateToneLevel(Server.Listen(900));
            return Level < 0.001;
        })) << Level;
    }
};

// Where the player is, and between which two moments it was asked.
struct PlaceInTime {
    using Seconds = std::chrono::duration<double>;
    static Seconds Now() { return std::chrono::steady_clock::now().time_since_epoch(); }

    explicit PlaceInTime(const ServerPlayer& P) : Position(P.Position()) {}
    Seconds Before = Now();
    double Position;
    Seconds After = Now();
};

}  // namespace

TEST(SoundServer, WhatIsPlayedIsHeardThere) {
    if (!HasPrograms()) GTEST_SKIP() << "pulseaudio is not installed";
    ServerPlayer P;
    ASSERT_TRUE(P.Server.Start());
    P.Play();
    ASSERT_TRUE(P.PulledBy(SoundKeeper::Puller::Device));
    P.ExpectIsHeard();
    P.Graph->Pause();
    P.ExpectSilence();
}

TEST(SoundServer, AfterAServerThatDiesTheShowGoesOnAndTheNextOneIsUsed) {
    if (!HasPrograms()) GTEST_SKIP() << "pulseaudio is not installed";
    ServerPlayer P;
    ASSERT_TRUE(P.Server.Start());
    P.Play();
    ASSERT_TRUE(P.PulledBy(SoundKeeper::Puller::Device));
    ASSERT_TRUE(WaitUntil([&] { return P.Position() > 0.2; }));
    P.Server.Kill();
    ASSERT_TRUE(P.PulledBy(SoundKeeper::Puller::Clock));
    const PlaceInTime First(P);
    std::this_thread::sleep_for(500ms);
    const PlaceInTime Second(P);
    EXPECT_GT(Second.Position - First.Position, (Second.Before - First.After).count() - 0.05);
    EXPECT_LT(Second.Position - First.Position, (Second.After - First.Before).count() + 0.05);
    ASSERT_TRUE(P.Server.Start());
    ASSERT_TRUE(P.PulledBy(SoundKeeper::Puller::Device));
    P.ExpectIsHeard();
}
