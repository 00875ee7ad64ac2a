// Sound devices over any output and any source of decoders: what players of files and recordings do
// is here, so that a test steers them without a device. The program's own are SdlSoundDevices.
#pragma once

#include <functional>
#include <memory>

#include "sound/decoding/SoundDecoder.h"
#include "sound/devices/SoundDevices.h"
#include "sound/devices/SoundKeeper.h"

namespace neb {

// Where the decoders of files come from and go back to.
struct DecoderSource {
    std::function<std::unique_ptr<SoundDecoder>(const QString& Path)> Take;  // throws Fault
    // These on any thread; may be none.
    std::function<void(const QString& Path, std::unique_ptr<SoundDecoder>)> Put;
    std::function<void()> Rest;  // nobody plays any more, nor has for a while
};

class SoundPlayers {
  public:
    SoundPlayers(DecoderSource Source, std::unique_ptr<SoundOutput> Output, KeeperTimes Times = {});

    std::unique_ptr<SoundGraph> CreateGraph();
    // Over a decoder that is there already.
    std::unique_ptr<SoundGraph> CreateGraph(std::unique_ptr<SoundDecoder> Decoder);
    SoundKeeper& Keeper() { return mKeeper; }

  private:
    DecoderSource mSource;
    std::shared_ptr<SoundMixer> mMixer;
    SoundKeeper mKeeper;
};

}  // namespace neb
