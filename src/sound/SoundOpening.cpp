#include "sound/SoundOpening.h"

#include <mutex>
#include <set>

#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using Graph = std::unique_ptr<SoundGraph>;

// The paths of those that are under way, as often as they are. Never goes: a thread that is stuck
// may come back while the program ends.
class Underway {
  public:
    static Underway& All() {
        static auto& Instance = *new Underway;
        return Instance;
    }
    // False where it has to wait for its turn.
    bool Enter(const QString& Path) {
        const std::lock_guard Lock(mMutex);
        const bool IsFull = std::ssize(mPaths) >= SoundOpening::Most ||
                            static_cast<int>(mPaths.count(Path)) >= SoundOpening::MostOfOne;
        if (!IsFull) mPaths.insert(Path);
        return !IsFull;
    }
    void Leave(const QString& Path) {
        const std::lock_guard Lock(mMutex);
        mPaths.erase(mPaths.find(Path));
    }

  private:
    std::mutex mMutex;
    std::multiset<QString> mPaths;
};

// One of them, until it has ended.
struct Place {
    ~Place() { Underway::All().Leave(Path); }
    const QString& Path;
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
        const Place Held{Path};
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
    if (!Underway::All().Enter(mPath)) return;
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
