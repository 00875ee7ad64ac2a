#include "TourSound.h"

#include <algorithm>
#include <cmath>

#include "demo/music/Music.h"
#include "support/Services.h"
#include "support/modFUFL.h"

namespace neb::demo {
namespace {

class ToldGraph;
ToldGraph* Latest = nullptr;

// Passes everything on and keeps the name of the file.
class ToldGraph : public SoundGraph {
  public:
    explicit ToldGraph(std::unique_ptr<SoundGraph> Real) : mReal(std::move(Real)) {}
    ~ToldGraph() override {
        if (Latest == this) Latest = nullptr;
    }
    void RenderFile(const QString& Path) override {
        mReal->RenderFile(Path);
        mPath = Path;
        Latest = this;
    }
    void Run() override { mReal->Run(); }
    void Pause() override { mReal->Pause(); }
    void Stop() override { mReal->Stop(); }
    bool IsRunning() const override { return mReal->IsRunning(); }
    void PutVolume(int Hundredths) override { mReal->PutVolume(Hundredths); }
    int GetVolume() const override { return mReal->GetVolume(); }
    double GetDuration() const override { return mReal->GetDuration(); }
    double GetCurrentPosition() const override { return mReal->GetCurrentPosition(); }
    void PutCurrentPosition(double Seconds) override { mReal->PutCurrentPosition(Seconds); }
    void PutRepeat(bool On) override { mReal->PutRepeat(On); }
    const QString& Path() const { return mPath; }

  private:
    std::unique_ptr<SoundGraph> mReal;
    QString mPath;
};

// The chime as bytes of 8 bits, at the rate that the recorder asks for; silence after it.
QByteArray ChimeBytes(std::uint32_t Rate) {
    Tune Chime = AllTunes().back();
    Chime.Rate = static_cast<int>(Rate);
    QByteArray Bytes;
    for (const double Sample : Render(Chime).Left)
        Bytes.append(static_cast<char>(std::lround(128 + Sample * 127)));
    return Bytes;
}

class ChimeBuffer : public CaptureBuffer {
  public:
    ChimeBuffer(const WaveFormat& Format, std::int32_t Bytes)
        : mSound(ChimeBytes(Format.SamplesPerSec).leftJustified(Bytes, '\x80', true)),
          mBytesPerMs(Format.AvgBytesPerSec / 1000.0) {}

    void Start() override {
        mStart = TheServices().Time->Ticks();
        mRecording = true;
    }
    void Stop() override {
        mRecorded = GetCurrentPosition();
        mRecording = false;
    }
    std::int32_t GetCurrentPosition() const override {
        if (!mRecording) return mRecorded;
        const double Heard = (TheServices().Time->Ticks() - mStart) * mBytesPerMs;
        return static_cast<std::int32_t>(std::min(Heard, static_cast<double>(mSound.size())));
    }
    QByteArray ReadBuffer(std::int32_t First, std::int32_t Count) const override {
        return mSound.mid(First, std::min(Count, GetCurrentPosition() - First))
            .leftJustified(Count, '\x80');
    }

  private:
    QByteArray mSound;
    double mBytesPerMs;
    double mStart = 0;
    bool mRecording = false;
    std::int32_t mRecorded = 0;
};

class ChimeMicrophone : public CaptureDevice {
  public:
    std::uint32_t GetCaps() const override { return Mono8At22050; }
    std::unique_ptr<CaptureBuffer> CreateCaptureBuffer(const WaveFormat& Format,
                                                       std::int32_t Bytes) override {
        return std::make_unique<ChimeBuffer>(Format, Bytes);
    }
};

QString Level(int Hundredths) {
    return Hundredths < 0 ? QStringLiteral(", %1 dB").arg(Hundredths / 100.0, 0, 'f', 1)
                          : QString();
}

}  // namespace

QString TourSound::NowPlaying() {
    if (!Latest || !Latest->IsRunning()) return {};
    const int Seconds = static_cast<int>(Latest->GetCurrentPosition());
    return QStringLiteral("%1 at %2:%3%4")
        .arg(GetFileName(Latest->Path()))
        .arg(Seconds / 60)
        .arg(Seconds % 60, 2, 10, QLatin1Char('0'))
        .arg(Level(Latest->GetVolume()));
}

std::unique_ptr<SoundGraph> TourSound::CreateGraph() {
    return std::make_unique<ToldGraph>(mMachine.CreateGraph());
}

std::unique_ptr<CaptureDevice> TourSound::CreateCapture() {
    return std::make_unique<ChimeMicrophone>();
}

}  // namespace neb::demo
