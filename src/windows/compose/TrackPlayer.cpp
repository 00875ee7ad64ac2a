#include "windows/compose/TrackPlayer.h"

#include "controls/forms/StandOver.h"
#include "sound/workers/SoundReading.h"
#include "support/Fault.h"

namespace neb {
namespace {

constexpr int PlayerLookMs = 50;

QString WhyNot(const QString& Path) {
    try {
        OpenSound(Path);
        return {};
    } catch (const Fault& Problem) {
        return Problem.Text();
    }
}

}  // namespace

TrackPlayer::TrackPlayer(QWidget* Owner) : QObject(Owner), mOwner(*Owner) {
    mLook.setInterval(PlayerLookMs);
    connect(&mLook, &QTimer::timeout, this, &TrackPlayer::Look);
}

// The file is opened beside the window first: its folder may not answer.
void TrackPlayer::Play(const QString& Path) {
    mSound.UnloadFile();
    mPath = Path;
    mOpening = std::make_unique<Job<QString>>([Path](JobState&) { return WhyNot(Path); });
    mSound.LoadAhead(Path);
    mLook.start();
    Q_EMIT Changed();
}

void TrackPlayer::Stop() {
    mLook.stop();
    mOpening.reset();
    mSound.UnloadFile();
    if (mPath.isEmpty()) return;
    mPath.clear();
    Q_EMIT Changed();
}

// A song goes silent when a show begins or the microphone is opened: its button cannot be
// pressed then.
void TrackPlayer::Look() {
    if (IsOutOfReach(mOwner)) {
        Stop();
    } else if (mOpening) {
        if (mOpening->Wait(0)) Begin();
    } else if (mSound.CurrentPosition() >= mSound.Duration()) {
        Stop();
    }
}

void TrackPlayer::Begin() {
    const QString Why = mOpening->Take();
    mOpening.reset();
    if (Why.isEmpty() && mSound.LoadFile(mPath)) {
        mSound.Play(false);
        return;
    }
    Stop();
    Q_EMIT Failed(Why.isEmpty() ? tr("There is no sound on this machine.") : Why);
}

}  // namespace neb
