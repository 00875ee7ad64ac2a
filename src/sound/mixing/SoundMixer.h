// Adds all voices up to what the device is handed, and decodes ahead for them on a thread of its
// own. One for all that the program plays; a test that pulls hears what the device would.
#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

#include "sound/mixing/SoundVoice.h"
#include "support/work/LeftThread.h"

namespace neb {

class SoundMixer {
  public:
    enum class Feeding { ByItself, ByCaller };

    explicit SoundMixer(Feeding Way = Feeding::ByItself);
    ~SoundMixer();
    SoundMixer(const SoundMixer&) = delete;
    SoundMixer& operator=(const SoundMixer&) = delete;

    // Decoding ahead for it begins at once. It is kept until it is over.
    void Add(std::shared_ptr<SoundVoice> Voice);
    // After every call to a voice that may leave something to decode.
    void Wake();
    // The next frames of two samples, -1 to 1. On any one thread at a time.
    void Fill(float* Into, int Frames);
    // Decodes all that there is room for; for callers that feed.
    void Feed();

  private:
    struct Core;
    std::shared_ptr<Core> mCore;
    std::unique_ptr<LeftThread> mFeeder;
};

}  // namespace neb
