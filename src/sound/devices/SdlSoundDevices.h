// The machine's own loudspeakers and microphone, through the sound library. The program puts one
// into its services at start; making it costs nothing, the device is opened for the first player.
#pragma once

#include <memory>
#include <mutex>

#include "sound/devices/SoundDevices.h"

namespace neb {

class SdlSoundDevices : public SoundDevices {
  public:
    SdlSoundDevices();
    ~SdlSoundDevices() override;  // players that are left go on without sound

    std::unique_ptr<SoundGraph> CreateGraph() override;
    bool RendersAside() const override { return true; }
    std::shared_ptr<void> Hold() override;
    void LoadAhead(const QString& Path) override;
    std::unique_ptr<CaptureDevice> CreateCapture() override;
    // Half a second at most.
    PlaybackState CheckPlayback() override;
    // Throws Fault for a format that PcmDecoder does not know.
    std::unique_ptr<SoundGraph> CreateSoundBuffer(const WaveFormat& Format,
                                                  const QByteArray& Bytes) override;

  private:
    struct Parts;
    Parts& Made();
    std::once_flag mMade;           // the recorder asks on a thread of its own
    std::unique_ptr<Parts> mParts;  // none before the first use
};

}  // namespace neb
