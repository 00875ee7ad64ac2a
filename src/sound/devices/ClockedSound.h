// Sound that runs on a clock without making any: lengths, positions and states are
// those that a listener would get. For rehearsals of a show, which tell what sounds when, and
// tests.
#pragma once

#include <functional>

#include "sound/devices/SoundDevices.h"

namespace neb {

// What a player was asked, and when.
struct SoundEvent {
    enum class Kind { LoadedAhead, Loaded, Run, Paused, Stopped, Moved, Volume, Released };
    Kind What = Kind::Loaded;
    QString Path;          // of the file that is loaded
    double Position = 0;   // seconds: where the sound stands then
    int Hundredths = 0;    // of a decibel: the volume then
    double Ticks = 0;      // milliseconds of the clock
    bool Repeats = false;  // its end is followed by its start
};

class Clock;

class ClockedSoundDevices : public SoundDevices {
  public:
    // A file's length in seconds; throws Fault for a file that cannot be played.
    using LengthOf = std::function<double(const QString& Path)>;
    using Listener = std::function<void(const SoundEvent& Event)>;

    // OnEvent, when given, hears of everything; it may not throw. The players live on when the
    // devices go, but not without the clock.
    ClockedSoundDevices(const Clock& Time, LengthOf Length, Listener OnEvent = {});

    std::unique_ptr<SoundGraph> CreateGraph() override;
    void LoadAhead(const QString& Path) override;
    std::unique_ptr<CaptureDevice> CreateCapture() override { return nullptr; }
    PlaybackState CheckPlayback() override { return PlaybackState::Missing; }
    std::unique_ptr<SoundGraph> CreateSoundBuffer(const WaveFormat&, const QByteArray&) override {
        return nullptr;
    }

  private:
    const Clock& mTime;
    LengthOf mLength;
    Listener mOnEvent;
};

}  // namespace neb
