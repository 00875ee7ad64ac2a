// One run of a slide show: its states, the user's steps, the clock of the slides, and which
// picture, caption, transition and sound come up when. No window: the projector and the rehearsal
// each give it a stage and a world, and call its ticks.
#pragma once

#include <functional>
#include <memory>

#include "show/DetailChooser.h"
#include "show/EffectChooser.h"
#include "show/ShowStage.h"
#include "show/ShowState.h"
#include "show/ShowWorld.h"
#include "show/SlideClock.h"

namespace neb {

class clsNEBAlbum;
class clsNEBSlide;

class ShowRun {
  public:
    ShowRun(ShowStage& Stage, ShowWorld World);
    ~ShowRun();

    // Set before Load.
    std::int32_t AlbumID = 0;
    std::int32_t SlideShowID = 0;
    // Takes the show's settings and tables, and its sound; nothing is shown yet.
    void Load();
    // The show begins at this place, from 1, wherever it was left, and where it is left then is not
    // kept; 0: where it was left.
    void BeginAt(std::int32_t SlideSeq) { mBeginsAt = SlideSeq; }
    // Stops the sound and the ticks for good.
    void End();

    // The user's commands.
    void PlayPause();
    void StopRestart();
    void NextSlide();
    void PreviousSlide();
    void GotoStart();
    void GotoEnd();
    // To a place from 1 to SlideCount; one that the show does not have leads to its first slide.
    void GotoSlide(std::int32_t SlideSeq);
    // Halts a running show for another window's work, and takes it up again.
    void StopMe();
    void ReStartMe();
    // Halts a running show while Edit changes the settings, and goes on by the new ones.
    void EditPreferences(const std::function<void()>& Edit);
    // The ticks: every 100 ms the clock of the slides, every 1000 ms the loop of the sound.
    void Timer1_Timer();
    void Timer2_Timer();
    // What becomes of a picture that the stage has left on its way: it is late, and announced as
    // such; it has come (false when no slide wants it any more, and it stays away); it cannot be
    // read, and counts as missing.
    void PictureLate();
    bool PictureCame();
    void PictureFailed();

    const ShowState& State() const { return mState; }
    const EffectTables& Effects() const { return mEffects; }
    const EffectSettings& Settings() const { return mSettings; }
    const ShowSoundFields& SoundFields() const { return mSoundFields; }
    const ShowMemory& Memory() const { return mWorld.Place; }
    const QString& CurrentFile() const { return mCurrentFile; }
    const QString& SlideShowName() const { return mSlideShowName; }
    bool IsManual() const { return mProgressionMethod != 0; }
    // Of the show as it stood when the present slide came up; 0 before the first.
    std::int32_t SlideCount() const { return mSlideCount; }
    // Whether the show goes on and is left by the place in the settings, and what that was.
    bool ResumeValid() const { return mResumeValid; }
    std::int32_t ResumeSeq() const { return mResumeSeq; }
    bool Timer1On() const { return mTimer1On; }

  private:
    void InitEffectTables();
    void LoadSettings();
    void ReloadEffectSettings();
    void Enter(const ShowTransition& Transition);
    void GotoFirstSlide();
    void Tick();
    void TickAtEnd();
    bool TakeLateSound();
    void SetTimer1(bool On);
    void SetTimer2(bool On);
    void UserStep(std::int32_t SlideSeq);
    bool AdvanceSlide();
    void SetFadeVolume(double Elapsed);
    bool ShowCurrentSlide(StepCause Cause);
    bool ShowPlace(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow, StepCause Cause);
    void PlaySound(const SlideSound& Playing, StepCause Cause);
    bool Fail(const QString& Message);
    void StopShow();
    void SetCaption(const QString& Text);
    bool DisplaySlideFile(const QString& File);
    bool DisplayPicture(const QString& Path);
    bool DisplayStandIn(const QString& Path);
    QString SlidePath(const QString& SlideLoc) const;
    SlideSound SoundOf(const ChosenDetail& Chosen, const clsNEBSlide& Slide,
                       const clsNEBSlideShow& SlideShow) const;
    void PrefetchNext(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow);

    ShowStage& mStage;
    const ShowWorld mWorld;
    SlideClock mSlideClock;
    std::unique_ptr<ShowSound> mSound;
    ShowSoundFields mSoundFields;
    ShowState mState;
    EffectTables mEffects;
    EffectSettings mSettings;
    QString mSlideShowName;
    QString mCaption;
    QString mCurrentFile;
    std::int32_t mEffectBefore = 0;       // what a picture that fails gives back
    std::int32_t mProgressionMethod = 0;  // 0 automatic, 1 manual
    std::int32_t mSlideCount = 0;
    std::int32_t mLastSeq = 0;
    std::int32_t mBeginsAt = 0;
    std::int32_t mResumeSeq = 0;
    bool mResumeValid = false;
    bool mResumeAfterRestart = false;
    bool mPictureWanted = false;  // the one that was asked for last
    bool mTimer1On = false;
    bool mEnded = false;
};

}  // namespace neb
