// The sound of a running show, played: takes the rules of SoundSteps to a player of its own. Each
// run of a show gets one from its world.
#pragma once

#include "show/ShowSound.h"
#include "show/SoundSteps.h"
#include "sound/clsDirectSound.h"

namespace neb {

class clsDBEngine;

// Telling runs the event loop: other steps may run meanwhile, and the show may end. Whoever calls
// SoundStep therefore holds on to the object until it returns.
class EngineSound : public ShowSound {
  public:
    // Engine tells where the files lie; null: nowhere. Devices may be null: a show in silence.
    EngineSound(const clsDBEngine* Engine, SoundDevices* Devices, ShowTeller Tell)
        : mDatabase(Engine), mTell(std::move(Tell)), mEngine(Devices) {}

    void Play(bool Repeat) override;
    void PauseSound() override;
    void StopSound() override;
    void SetVolume(int Value) override;
    void CheckRepeat() override;
    bool SoundStep(const SlideSound& Slide, StepCause Cause, ShowSoundFields& Fields) override;
    void SyncSoundToSlide(std::int32_t Place, double Interval, bool Force,
                          ShowSoundFields& Fields) override;
    void LoadAhead(const SlideSound& Next) override;
    void Release() override;

  private:
    QString DatabaseFolder() const;
    PlayerState Player() const;
    void CarryOut(const SoundActions& Actions, std::uint32_t Step);
    void Do(const SoundDo::Tell& This) { mTell(This.Text); }
    void Do(const SoundDo::LoadFile& This) { mEngine.LoadFile(This.Path); }
    void Do(const SoundDo::UnloadFile&) { mEngine.UnloadFile(); }
    void Do(const SoundDo::SetPosition& This) { mEngine.SetCurrentPosition(This.Seconds); }
    void Do(const SoundDo::Play& This) { mEngine.Play(This.Repeat); }

    const clsDBEngine* mDatabase;
    const ShowTeller mTell;
    clsDirectSound mEngine;
    std::uint32_t mStep = 0;  // the newest; the end of the show counts as one
    bool mReleased = false;
};

}  // namespace neb
