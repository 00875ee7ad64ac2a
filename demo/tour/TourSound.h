// The machine's sound as the tour has it: it knows what plays, for the tour to tell, and its
// microphone hears the sample chime, so that the tour is the same on each machine and listens to
// nobody's room.
#pragma once

#include <functional>

#include "sound/devices/SoundDevices.h"

namespace neb::demo {

class TourSound : public SoundDevices {
  public:
    explicit TourSound(SoundDevices& Machine) : mMachine(Machine) {}

    // The player that runs at the moment: "00000001_1.wav at 0:03"; empty when none does.
    static QString NowPlaying();

    std::unique_ptr<SoundGraph> CreateGraph() override;
    std::shared_ptr<void> Hold() override { return mMachine.Hold(); }
    void LoadAhead(const QString& Path) override { mMachine.LoadAhead(Path); }
    std::unique_ptr<CaptureDevice> CreateCapture() override;
    PlaybackState CheckPlayback() override { return mMachine.CheckPlayback(); }
    std::unique_ptr<SoundGraph> CreateSoundBuffer(const WaveFormat& Format,
                                                  const QByteArray& Bytes) override {
        return mMachine.CreateSoundBuffer(Format, Bytes);
    }

  private:
    SoundDevices& mMachine;
};

}  // namespace neb::demo
