#include "sound/clsDirectSound.h"

#include "sound/VolumeScale.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr char NothingLoaded[] = QT_TR_NOOP("You must first load a sound file to be played.");
constexpr char BadVolume[] = QT_TR_NOOP("Volume must be >0 and <=100");

// A show goes on without its sound rather than stop over a device that has gone.
template <typename Call>
void IgnoringFaults(Call&& Do) {
    try {
        Do();
    } catch (const Fault&) {  // Silence is all that follows.
    }
}

}  // namespace

clsDirectSound::clsDirectSound(SoundDevices* Devices) : mDevices(Devices) {}
clsDirectSound::~clsDirectSound() = default;

bool clsDirectSound::LoadFile(const QString& Path) {
    mLastError.clear();
    // Before the earlier file goes: Path may be a reference to its name.
    const QString NewFile = Path;
    UnloadFile();
    mSoundFile = NewFile;
    if (!HoldDevices()) return false;
    IgnoringFaults([this] {
        std::unique_ptr<SoundGraph> Graph = mDevices->CreateGraph();
        if (Graph) Graph->RenderFile(mSoundFile);
        mGraph = std::move(Graph);
    });
    return mGraph != nullptr;
}

std::unique_ptr<SoundOpening> clsDirectSound::Open(const QString& Path) {
    HoldDevices();
    return std::make_unique<SoundOpening>(mDevices, Path);
}

bool clsDirectSound::TakeFile(const QString& Path, std::unique_ptr<SoundGraph> Graph) {
    mLastError.clear();
    UnloadFile();
    mSoundFile = Path;
    mGraph = std::move(Graph);
    return mGraph != nullptr;
}

void clsDirectSound::UnloadFile() {
    mGraph.reset();
    mSoundFile.clear();
    mRepeatFlag = false;
    mIsStarted = false;
}

int clsDirectSound::GetVolume() {
    if (mGraph) return mGraph->GetVolume();
    mLastError = tr(NothingLoaded);
    return -1;
}

void clsDirectSound::SetVolume(int Value) {
    mLastError.clear();
    if (Value < 0 || Value > 100) {
        mLastError = tr(BadVolume);
    } else if (!mGraph) {
        mLastError = tr(NothingLoaded);
    } else {
        IgnoringFaults([&] { mGraph->PutVolume(HundredthsOfVolume(Value)); });
    }
}

bool clsDirectSound::Play(bool Repeat) {
    mLastError.clear();
    if (!mGraph) {
        mLastError = tr(NothingLoaded);
        return false;
    }
    mGraph->PutRepeat(Repeat);
    IgnoringFaults([this] { mGraph->Run(); });
    mRepeatFlag = Repeat;
    mIsStarted = true;
    return true;
}

bool clsDirectSound::StopSound() {
    if (!mGraph) return true;
    IgnoringFaults([this] { mGraph->PutCurrentPosition(0); });
    IgnoringFaults([this] { mGraph->Stop(); });
    return true;
}

bool clsDirectSound::PauseSound() {
    if (mGraph) IgnoringFaults([this] { mGraph->Pause(); });
    return true;
}

void clsDirectSound::CheckRepeat() {
    if (!IsPlaying() || !mIsStarted || !mRepeatFlag) return;
    // Exact on purpose: a graph that has come to its end stands at its duration.
    if (CurrentPosition() != Duration()) return;
    StopSound();
    Play(mRepeatFlag);
}

double clsDirectSound::Duration() const {
    return mGraph ? mGraph->GetDuration() : 0;
}

double clsDirectSound::CurrentPosition() const {
    return mGraph ? mGraph->GetCurrentPosition() : 0;
}

void clsDirectSound::SetCurrentPosition(double Seconds) {
    if (mGraph) mGraph->PutCurrentPosition(Seconds);
}

bool clsDirectSound::IsPlaying() const {
    return mGraph && mGraph->IsRunning();
}

void clsDirectSound::LoadAhead(const QString& Path) {
    if (HoldDevices()) mDevices->LoadAhead(Path);
}

// False on a machine without sound.
bool clsDirectSound::HoldDevices() {
    if (mDevices && !mHold) mHold = mDevices->Hold();
    return mDevices != nullptr;
}

}  // namespace neb
