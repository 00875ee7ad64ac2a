#include "sound/devices/SdlSoundDevices.h"

#include "sound/devices/PcmDecoder.h"
#include "sound/devices/SdlCapture.h"
#include "sound/devices/SdlOutput.h"
#include "sound/devices/SoundPlayers.h"
#include "sound/devices/SoundShelf.h"

namespace neb {
namespace {

constexpr std::chrono::milliseconds CheckWait{500};

DecoderSource SourceOf(const std::shared_ptr<SoundShelf>& Shelf) {
    return {[Shelf](const QString& Path) { return Shelf->Take(Path); },
            [Shelf](const QString& Path, std::unique_ptr<SoundDecoder> Used) {
                Shelf->Put(Path, std::move(Used));
            },
            [Shelf] { Shelf->Clear(); }};
}

}  // namespace

struct SdlSoundDevices::Parts {
    // Players that are left when the devices go hold it, too.
    std::shared_ptr<SoundShelf> Shelf = std::make_shared<SoundShelf>();
    SoundPlayers Players{SourceOf(Shelf), std::make_unique<SdlOutput>()};
};

SdlSoundDevices::SdlSoundDevices() = default;

SdlSoundDevices::~SdlSoundDevices() = default;

SdlSoundDevices::Parts& SdlSoundDevices::Made() {
    std::call_once(mMade, [this] { mParts = std::make_unique<Parts>(); });
    return *mParts;
}

std::unique_ptr<SoundGraph> SdlSoundDevices::CreateGraph() {
    return Made().Players.CreateGraph();
}

std::shared_ptr<void> SdlSoundDevices::Hold() {
    return Made().Players.Keeper().Hold();
}

void SdlSoundDevices::LoadAhead(const QString& Path) {
    Made().Shelf->Prepare(Path);
}

std::unique_ptr<CaptureDevice> SdlSoundDevices::CreateCapture() {
    return OpenSdlCapture();
}

PlaybackState SdlSoundDevices::CheckPlayback() {
    return Made().Players.Keeper().Check(CheckWait);
}

std::unique_ptr<SoundGraph> SdlSoundDevices::CreateSoundBuffer(const WaveFormat& Format,
                                                               const QByteArray& Bytes) {
    return Made().Players.CreateGraph(std::make_unique<PcmDecoder>(Format, Bytes));
}

}  // namespace neb
