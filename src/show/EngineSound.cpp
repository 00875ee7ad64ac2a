#include "show/EngineSound.h"

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowBox.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

QString DatabaseFolder() {
    return DBEngine ? DBEngine->DBPath() : QString();
}

}  // namespace

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

bool EngineSound::SoundStep(const SlideSound& Slide, ShowSoundFields& Fields) {
    if (mReleased) return false;
    const PlayerState Before = Player();
    SoundStage Stage = OpenSoundStep(Slide, DatabaseFolder(), Before, FileExists, Fields);
    CarryOut(Stage.Actions);
    while (Stage.Sequel != SoundSequel::None && !mReleased) {
        Stage = NextSoundStage(Stage, Slide, Before, Player(), Fields);
        CarryOut(Stage.Actions);
    }
    return Stage.WatchRepeat && !mReleased;
}

void EngineSound::SyncSoundToSlide(std::int32_t Place, double Interval, bool Force,
                                   ShowSoundFields& Fields) {
    CarryOut(neb::SyncSoundToSlide(Place, Interval, Force, Fields.SoundRepeat, Player()));
}

void EngineSound::LoadAhead(const SlideSound& Next) {
    if (mReleased) return;
    const QString Path = SoundPathOf(Next, DatabaseFolder());
    if (Path.isEmpty() || Path == mEngine.SoundFile() || !FileExists(Path)) return;
    mEngine.LoadAhead(Path);
}

void EngineSound::Release() {
    mReleased = true;
    mEngine.StopSound();
    mEngine.UnloadFile();
}

PlayerState EngineSound::Player() const {
    return {mEngine.IsPlaying(), mEngine.CurrentPosition(), mEngine.Duration(),
            mEngine.SoundFile()};
}

void EngineSound::CarryOut(const SoundActions& Actions) {
    for (const SoundAction& Each : Actions)
        if (!mReleased) Do(Each);
}

void EngineSound::Do(const SoundAction& Action) {
    using Deed = void (*)(clsDirectSound&, const SoundAction&);
    // In the order of SoundAction::Kind.
    static constexpr Deed Deeds[] = {
        [](clsDirectSound&, const SoundAction& This) { TellOnce(This.Text); },
        [](clsDirectSound& Engine, const SoundAction& This) { Engine.LoadFile(This.Text); },
        [](clsDirectSound& Engine, const SoundAction&) { Engine.UnloadFile(); },
        [](clsDirectSound& Engine, const SoundAction& This) {
            Engine.SetCurrentPosition(This.Position);
        },
        [](clsDirectSound& Engine, const SoundAction& This) { Engine.Play(This.Repeat); },
    };
    Deeds[static_cast<size_t>(Action.What)](mEngine, Action);
}

ShowSoundMaker& TheShowSoundMaker() {
    static ShowSoundMaker Maker = [] { return std::make_unique<EngineSound>(); };
    return Maker;
}

}  // namespace neb
