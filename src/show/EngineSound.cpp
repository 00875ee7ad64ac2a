#include "show/EngineSound.h"

#include "db/clsDBEngine.h"
#include "support/files/modHostFiles.h"

namespace neb {

// A player that has been released has nothing loaded, and then these do nothing.
void EngineSound::Play(bool Repeat) {
    mEngine.Play(Repeat);
}
void EngineSound::PauseSound() {
    mEngine.PauseSound();
}
void EngineSound::StopSound() {
    mEngine.StopSound();
}
void EngineSound::SetVolume(int Value) {
    mEngine.SetVolume(Value);
}
void EngineSound::CheckRepeat() {
    mEngine.CheckRepeat();
}

bool EngineSound::SoundStep(const SlideSound& Slide, StepCause Cause, ShowSoundFields& Fields) {
    if (mReleased) return false;
    const std::uint32_t Step = ++mStep;
    const PlayerState Before = Player();
    SoundStage Stage = OpenSoundStep(Slide, DatabaseFolder(), Before, FileExists, Fields);
    CarryOut(Stage.Actions, Step);
    while (Stage.Next && mStep == Step) {
        Stage = Stage.Next({Stage, Slide, Cause, Before, Player(), Fields});
        CarryOut(Stage.Actions, Step);
    }
    return Stage.WatchRepeat && mStep == Step;
}

void EngineSound::SyncSoundToSlide(std::int32_t Place, double Interval, bool Force,
                                   ShowSoundFields& Fields) {
    CarryOut(neb::SyncSoundToSlide(Place, Interval, Force, Fields.SoundRepeat, Player()), mStep);
}

void EngineSound::LoadAhead(const SlideSound& Next) {
    if (mReleased) return;
    const QString Path = SoundPathOf(Next, DatabaseFolder());
    if (Path.isEmpty() || Path == mEngine.SoundFile() || !FileExists(Path)) return;
    mEngine.LoadAhead(Path);
}

void EngineSound::Release() {
    mReleased = true;
    ++mStep;
    mEngine.StopSound();
    mEngine.UnloadFile();
}

QString EngineSound::DatabaseFolder() const {
    return mDatabase ? mDatabase->DBPath() : QString();
}

PlayerState EngineSound::Player() const {
    return {mEngine.IsPlaying(), mEngine.CurrentPosition(), mEngine.Duration(),
            mEngine.SoundFile()};
}

// The slide that the rest of an overtaken step is about has long gone.
void EngineSound::CarryOut(const SoundActions& Actions, std::uint32_t Step) {
    for (const SoundAction& Each : Actions)
        if (mStep == Step) std::visit([this](const auto& This) { Do(This); }, Each);
}

}  // namespace neb
