// A show in the real window, with the real timers and the real player, and a sound device that
// writes every sample to a file.
#pragma once

#include <cmath>
#include <cstring>

#include "harness/SoundFiles.h"
#include "settings/modNEBSlideShow.h"
#include "sound/devices/SdlSoundDevices.h"
#include "support/files/modHostFiles.h"
#include "windows/show/ProjectorRig.h"

namespace neb::test {

using Projector = frmSlideShowProjector;

constexpr int HeardRate = 44100;

// What came out of the device, the left side of it.
class Heard {
  public:
    explicit Heard(const QByteArray& Raw) {
        const size_t Frames = static_cast<size_t>(Raw.size()) / (2 * sizeof(float));
        std::vector<float> Both(Frames * 2);
        std::memcpy(Both.data(), Raw.constData(), Both.size() * sizeof(float));
        for (size_t I = 0; I < Frames; ++I) mLeft.push_back(Both[2 * I]);
    }
    size_t size() const { return mLeft.size(); }
    float operator[](size_t Frame) const { return mLeft[Frame]; }
    // The first frame from From on that is louder than a whisper; size() where there is none.
    size_t FirstSound(size_t From = 0) const {
        while (From < size() && std::abs(mLeft[From]) < 0.001F) ++From;
        return From;
    }
    // The first frame from From on after which it stays silent for a tenth of a second.
    size_t FirstSilence(size_t From) const {
        size_t Quiet = 0;
        for (size_t I = From; I < size(); ++I) {
            Quiet = std::abs(mLeft[I]) < 0.001F ? Quiet + 1 : 0;
            if (Quiet == HeardRate / 10) return I + 1 - Quiet;
        }
        return size();
    }
    // The level over 20 ms: 1 for the full level of the test tone.
    double Level(size_t Middle) const {
        double Sum = 0;
        const size_t First = Middle - HeardRate / 100, Last = Middle + HeardRate / 100;
        for (size_t I = First; I < Last && I < size(); ++I)
            Sum += static_cast<double>(mLeft[I]) * static_cast<double>(mLeft[I]);
        return std::sqrt(Sum * 2 / (HeardRate / 50)) / harness::ToneLevel;
    }

  private:
    std::vector<float> mLeft;
};

class HeardShow : public ProjectorRig {
  protected:
    HeardShow() {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", RawPath().toLocal8Bit());
        mDevices = std::make_unique<SdlSoundDevices>();
        TheServices().Sound = mDevices.get();
        TheServices().Time = mBefore.Time;
        Maker = DesktopShowWorld().Sound;
        Put("Timeout", QStringLiteral("1"));
        AddSlides(3);
    }
    ~HeardShow() override {
        TheServices().Sound = nullptr;
        qunsetenv("SDL_AUDIODRIVER");
        qunsetenv("SDL_DISKAUDIOFILE");
    }

    void AddTrack(const std::vector<float>& Samples, int First, int Last, bool Repeat, bool Fade) {
        const QString Name = QStringLiteral("track%1.wav").arg(SlideShow->SoundTracks.size());
        MakeDirs(Sounds());
        WriteFile(Sounds() + Name, harness::WaveBytes(Samples, HeardRate));
        SlideShow->SaveSoundTrack(static_cast<std::int32_t>(SlideShow->SoundTracks.size()) + 1,
                                  Name, First, Last, Repeat, false, Fade);
    }
    // Runs the show for a while; what was heard.
    Heard Listen(int Milliseconds, const Action& Do = {}) {
        Run([&](Projector& Window) {
            if (Do) Do(Window);
            Spin(Milliseconds);
        });
        mDevices.reset();  // the last of it is on the disk
        TheServices().Sound = nullptr;
        return Heard(ReadFile(RawPath()));
    }
    QString Sounds() const {
        return Folder / QStringLiteral("db/Albums/%1/SoundTracks/").arg(Album);
    }
    QString RawPath() const { return Folder / QStringLiteral("heard.raw"); }

    std::unique_ptr<SdlSoundDevices> mDevices;
};

}  // namespace neb::test
