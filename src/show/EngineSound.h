// The sound of a running show, played: takes the rules of SoundSteps to a player of its own. The
// projector makes one a run, through TheShowSoundMaker.
#pragma once

#include "show/ShowSound.h"
#include "show/SoundSteps.h"
#include "sound/clsDirectSound.h"

namespace neb {

// The boxes of a step run the event loop: other steps may run meanwhile, and the show may end.
// Whoever calls SoundStep therefore holds on to the object until it returns.
class EngineSound : public ShowSound {
  public:
    void Play(bool Repeat) override;
    void PauseSound() override;
    void StopSound() override;
    void SetVolume(int Value) override;
    void CheckRepeat() override;
    bool SoundStep(const SlideSound& Slide, ShowSoundFields& Fields) override;
    void SyncSoundToSlide(std::int32_t Place, double Interval, bool Force,
                          ShowSoundFields& Fields) override;
    void LoadAhead(const SlideSound& Next) override;
    void Release() override;

  private:
    PlayerState Player() const;
    void CarryOut(const SoundActions& Actions);
    void Do(const SoundAction& Action);

    clsDirectSound mEngine;
    bool mReleased = false;
};

}  // namespace neb
