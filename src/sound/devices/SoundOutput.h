// The way out for the mix: the machine's loudspeakers, or what a test puts there. The keeper of the
// device holds one and opens it again whenever it goes.
#pragma once

#include <functional>

#include "sound/devices/SoundDevices.h"

namespace neb {

class SoundOutput {
  public:
    using Pull = std::function<void(float* Into, int Frames)>;
    using Answer = std::function<void(PlaybackState)>;

    virtual ~SoundOutput() = default;
    // Returns at once; Done is called once, on any thread. When it is Ready, Next is called over
    // and over on a thread of the output's own, for as long as the output lives.
    virtual void Open(Pull Next, Answer Done) = 0;
    // False when the device has gone. Only between a Done of Ready and Close.
    virtual bool IsAlive() const = 0;
    // Returns at once; Next may still be called for a while.
    virtual void Close() = 0;
};

}  // namespace neb
