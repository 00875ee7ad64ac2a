// What the machine supplies for sound: ways to play a file or a recording, and a microphone. The
// program fills Services::Sound with SdlSoundDevices; tests and rehearsals put their own there.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstdint>
#include <memory>

namespace neb {

// One sound on its way to the ears. All calls come on the window's thread and return at once;
// every jump (pause, new position, release) is a ramp of a few milliseconds, so nothing clicks.
class SoundGraph {
  public:
    virtual ~SoundGraph() = default;
    // Opens a sound file, at its start and not running. Length and position are exact at once.
    // Throws Fault for a file that cannot be played.
    virtual void RenderFile(const QString& Path) = 0;
    virtual void Run() = 0;    // from where it stands
    virtual void Pause() = 0;  // the position stays
    virtual void Stop() = 0;   // the position stays
    // The state, not the sound: still true when the file has come to its end.
    virtual bool IsRunning() const = 0;
    virtual void PutVolume(
        int Hundredths) = 0;  // of a decibel: 0 is the full level, -10000 silence
    virtual int GetVolume() const = 0;
    virtual double GetDuration() const = 0;         // seconds
    virtual double GetCurrentPosition() const = 0;  // seconds; at the end exactly the duration
    // Beyond the end is the end. Throws Fault for what is below 0 or no number.
    virtual void PutCurrentPosition(double Seconds) = 0;
    // Whether its end is followed by its start, without a gap; it has no end then. Not, for a
    // player that cannot do so: it comes to its end.
    virtual void PutRepeat(bool) {}
};

// Uncompressed sound, as the format chunk of a WAV file tells it.
struct WaveFormat {
    std::uint16_t FormatTag = 1;  // PCM
    std::uint16_t Channels = 1;
    std::uint32_t SamplesPerSec = 22050;
    std::uint32_t AvgBytesPerSec = 22050;
    std::uint16_t BlockAlign = 1;
    std::uint16_t BitsPerSample = 8;  // unsigned, 128 is silence
};

// Records into a fixed number of bytes, once; ends by itself when they are full. Released: stops.
class CaptureBuffer {
  public:
    virtual ~CaptureBuffer() = default;
    virtual void Start() = 0;
    virtual void Stop() = 0;                              // nothing is added afterwards
    virtual std::int32_t GetCurrentPosition() const = 0;  // bytes recorded so far
    // Bytes First to First + Count - 1; what is not recorded is silence.
    virtual QByteArray ReadBuffer(std::int32_t First, std::int32_t Count) const = 0;
};

// A microphone.
class CaptureDevice {
  public:
    // Bits of GetCaps.
    static constexpr std::uint32_t Mono8At11025 = 0x01;
    static constexpr std::uint32_t Mono8At22050 = 0x10;

    virtual ~CaptureDevice() = default;
    virtual std::uint32_t GetCaps() const = 0;
    // Null when the device has gone.
    virtual std::unique_ptr<CaptureBuffer> CreateCaptureBuffer(const WaveFormat& Format,
                                                               std::int32_t Bytes) = 0;
};

enum class PlaybackState { Ready, Allocated, Missing };  // Allocated: another program holds it

class SoundDevices {
  public:
    virtual ~SoundDevices() = default;
    // A file's player. Works without any device, too: the sound then runs on in silence.
    virtual std::unique_ptr<SoundGraph> CreateGraph() = 0;
    // Whether a player may render its file on another thread than the one that made it, before
    // anything else is asked of it: a file may take its time.
    virtual bool RendersAside() const { return false; }
    // Whoever will play again and again holds this meanwhile: the device stays open between two
    // sounds, and what was opened ahead stays ready. May be null.
    virtual std::shared_ptr<void> Hold() { return nullptr; }
    // Opens and measures a file in the background, so that rendering it takes no time.
    virtual void LoadAhead(const QString& Path) = 0;
    // The default microphone; null when there is none.
    virtual std::unique_ptr<CaptureDevice> CreateCapture() = 0;
    virtual PlaybackState CheckPlayback() = 0;
    // A recording's player.
    virtual std::unique_ptr<SoundGraph> CreateSoundBuffer(const WaveFormat& Format,
                                                          const QByteArray& Bytes) = 0;
};

}  // namespace neb
