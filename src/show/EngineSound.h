// The sound of a running show, played: takes the rules of SoundSteps to a player of its own. Each
// run of a show gets one from its world. A file that does not open at once does not hold up the
// show: its sound begins when it has come.
#pragma once

#include "show/ShowSound.h"
#include "show/SoundSteps.h"
#include "sound/clsDirectSound.h"

namespace neb {

class clsDBEngine;

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
    bool TakeLate(double Elapsed, ShowSoundFields& Fields) override;
    void LoadAhead(const SlideSound& Next) override;
    void Release() override;

  private:
    // A step whose file has not come yet.
    struct Coming {
        std::unique_ptr<SoundOpening> File;
        SoundOrder Order;
        SlideSound Slide;
        StepCause Cause;
        PlayerState Before;
        double Earlier = 0;  // seconds that it was awaited during earlier slides
        double OfSlide = 0;  // and during this one, as far as is known
    };
    QString DatabaseFolder() const;
    PlayerState Player() const;
    void Await(const SoundTurn& At);
    void Follow(const SoundTurn& At);
    void GoOn(const SoundTurn& At);
    void Unload();
    bool TakeWhatHasCome(int Patience, ShowSoundFields& Fields);
    void CarryOut(const SoundActions& Actions);
    void Do(const SoundDo::Tell& This) { mTell(This.Text); }
    void Do(const SoundDo::SetPosition& This);
    void Do(const SoundDo::Play& This);

    const clsDBEngine* mDatabase;
    const ShowTeller mTell;
    clsDirectSound mEngine;
    std::optional<Coming> mComing;
    std::optional<bool> mPaused;  // in a pause: whether it would be playing
    int mVolume = 100;
    bool mReleased = false;
};

}  // namespace neb
