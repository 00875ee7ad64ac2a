// The default loudspeakers through the sound library. The program's sound devices hold it.
#pragma once

#include <memory>

#include "sound/devices/SoundOutput.h"

namespace neb {

class SdlOutput : public SoundOutput {
  public:
    SdlOutput();
    // Closed; waits for that a second, no longer.
    ~SdlOutput() override;
    void Open(Pull Next, Answer Done) override;
    bool IsAlive() const override;
    void Close() override;

  private:
    class Device;
    std::shared_ptr<Device> mDevice;  // null when closed
};

}  // namespace neb
