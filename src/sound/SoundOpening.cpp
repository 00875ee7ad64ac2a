#include "sound/SoundOpening.h"

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using Graph = std::unique_ptr<SoundGraph>;

std::atomic<int> Underway = 0;

// One of those that are under way, until it has ended.
struct Place {
    ~Place() { --Underway; }
};

Graph NewGraph(SoundDevices* Devices) {
    try {
        return Devices ? Devices->CreateGraph() : nullptr;
    } catch (const Fault&) {  // silence is all that follows
        return nullptr;
    }
}

OpenedSound Open(Graph Player, const QString& Path) {
    const bool Exists = FileExists(Path);
    try {
        if (Player) Player->RenderFile(Path);
    } catch (const Fault&) {
        Player.reset();
    }
    return {Exists, std::move(Player)};
}

using Work = std::function<OpenedSound(JobState&)>;

Work Aside(Graph Player, const QString& Path) {
    return [Its = std::make_shared<Graph>(std::move(Player)), Path](JobState&) {
        const Place Held;
        return Open(std::move(*Its), Path);
    };
}

}  // namespace

SoundOpening::SoundOpening(SoundDevices* Devices, const QString& Path)
    : mDevices(Devices), mPath(Path) {
    if (IsAside()) Begin();
}

bool SoundOpening::IsAside() const {
    return !mDevices || mDevices->RendersAside();
}

// Players are made on the thread of whoever asks; only their files are opened elsewhere.
void SoundOpening::Begin() {
    if (++Underway > Most) {
        --Underway;
        return;
    }
    mJob = std::make_unique<Job<OpenedSound>>(Aside(NewGraph(mDevices), mPath));
}

bool SoundOpening::Wait(int Milliseconds) {
    if (!IsAside()) return true;
    if (!mJob) Begin();
    return mJob && mJob->Wait(Milliseconds);
}

OpenedSound SoundOpening::Take() {
    if (!IsAside()) return Open(NewGraph(mDevices), mPath);
    return mJob ? mJob->Take() : OpenedSound();
}

}  // namespace neb
