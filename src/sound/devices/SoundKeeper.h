// Keeps the mix flowing while somebody plays: into the device, which it opens, watches and opens
// again; and without one by a clock, so that a show goes its way in silence. Exactly one of the two
// pulls at any time. The program's sound devices hold one.
#pragma once

#include <chrono>
#include <memory>

#include "sound/devices/SoundOutput.h"
#include "sound/mixing/SoundMixer.h"
#include "support/work/LeftThread.h"

namespace neb {

struct KeeperTimes {
    using Span = std::chrono::milliseconds;
    Span FirstWait{1000};  // for a device that is being opened, before the clock takes its place
    Span Stall{500};       // without a sign of the device, after which it counts as gone
    Span Retry{1000};      // between two attempts to open it; doubles with each that fails,
    Span MostRetry{5000};  // up to this
    Span Linger{3000};     // that the device stays open for nobody
};

class SoundKeeper {
  public:
    enum class Puller { Nobody, Device, Clock };

    SoundKeeper(std::shared_ptr<SoundMixer> Mixer, std::unique_ptr<SoundOutput> Output,
                KeeperTimes Times = {}, std::function<void()> Rest = {});
    ~SoundKeeper();
    SoundKeeper(const SoundKeeper&) = delete;
    SoundKeeper& operator=(const SoundKeeper&) = delete;

    // The mix flows for as long as one of these lives; they may outlive the keeper. When the last
    // is gone and the device closed, Rest is called.
    std::shared_ptr<void> Hold();
    // Whether there is a device; waits so long at most for one that is being opened, and takes it
    // for ready then.
    PlaybackState Check(std::chrono::milliseconds Most);
    Puller Pulling() const;

  private:
    struct Core;
    std::shared_ptr<Core> mCore;
    LeftThread mThread;
};

}  // namespace neb
