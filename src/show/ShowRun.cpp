// The states of a show, the user's steps and the ticks. What a slide brings to the screen is in
// ShowRunSlides.cpp.
#include "show/ShowRun.h"

#include <cmath>

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowMemory.h"
#include "show/ShowSettings.h"
#include "support/Fault.h"
#include "support/Services.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

constexpr double SecondsOfDay = 86400;

void GiveTo(ShowSound& Sound, SoundCommand Command, bool Repeat) {
    if (Command == SoundCommand::Pause) Sound.PauseSound();
    if (Command == SoundCommand::Play) Sound.Play(Repeat);
    if (Command == SoundCommand::Stop) Sound.StopSound();
}

// Whether a slide is followed by another of the same fitted track.
bool GoesOnFitted(const ShowSoundFields& Before, const ShowSoundFields& After) {
    return Before.FitToSong && After.FitToSong && !Before.TrackEndsHere &&
           Before.CurrentSoundFile == After.CurrentSoundFile;
}

}  // namespace

ShowRun::ShowRun(ShowStage& Stage) : mStage(Stage), mSound(std::make_shared<SilentShowSound>()) {}

ShowRun::~ShowRun() = default;

void ShowRun::Load(std::int32_t SlideShowID) {
    mSlideShowID = SlideShowID;
    InitEffectTables();
    mSound = TheShowSoundMaker()();
    LoadSettings();
}

void ShowRun::InitEffectTables() {
    mEffects = EffectTables();
    if (DBEngine) DBEngine->ClassifyEffects(mEffects.EffectLevels, EffectPlaces);
}

void ShowRun::LoadSettings() {
    CurrentSlideShowID = 0;
    CurrentSlideSeq = 0;
    const clsSettings Settings = OpenSettings();
    const ShowSettings Read = ReadShowSettings(Settings, AlbumID, mSlideShowID);
    mResumeSeq = Read.ResumeSeq;
    mResumeValid = Read.ResumeValid;
    SlideTimeout = Read.SlideTimeout;
    mSettings = ReadEffectSettings(Settings, SettingReader::Show);
    ReadEffectSelections(Settings, mEffects);
    mSoundFields.SlideInterval = SlideTimeout;
}

void ShowRun::ReloadEffectSettings() {
    const clsSettings Settings = OpenSettings();
    mSettings = ReadEffectSettings(Settings, SettingReader::Preferences);
    ReadEffectSelections(Settings, mEffects);
}

void ShowRun::End() {
    SetTimer1(false);
    SetTimer2(false);
    mEnded = true;
    try {
        mSound->Release();
    } catch (const Fault&) {
        // a show ends whatever its sound says
    }
    mSound = std::make_shared<SilentShowSound>();
}

void ShowRun::PlayPause() {
    Enter(PlayPauseTransition(mState));
}

void ShowRun::StopRestart() {
    Enter(StopRestartTransition(mState));
}

// A slide that could not be shown has stopped the show: nothing is set going after it.
void ShowRun::Enter(const ShowTransition& Transition) {
    GiveTo(*mSound, Transition.Sound, mSoundFields.SoundRepeat);
    EnterState(mState, Transition);
    if (Transition.ToStart) GotoFirstSlide();
    if (Transition.ShowsSlide && !ShowCurrentSlide()) return;
    if (Transition.RestartsClock) StartSlideClock(TheServices().Time->Timer());
    SetTimer1(Transition.Timer1);
    SetTimer2(Transition.Timer2);
}

void ShowRun::GotoFirstSlide() {
    CurrentSlideSeq = 1;
    if (mResumeSeq >= 1 && mResumeValid) {
        CurrentSlideSeq = mResumeSeq;
        CurrentSlideShowID = mSlideShowID;
    }
    mSoundFields.Reposition = true;
}

void ShowRun::SetTimer1(bool On) {
    mTimer1On = On && !mEnded;
    mStage.SetTimer1(mTimer1On);
}

void ShowRun::SetTimer2(bool On) {
    mStage.SetTimer2(On && !mEnded);
}

void ShowRun::StopMe() {
    mResumeAfterRestart = mTimer1On;
    if (mResumeAfterRestart) PlayPause();
}

void ShowRun::ReStartMe() {
    if (std::exchange(mResumeAfterRestart, false)) PlayPause();
}

// A slide whose time comes from its track keeps that time.
void ShowRun::EditPreferences(const std::function<void()>& Edit) {
    const bool Running = mTimer1On;
    if (Running) PlayPause();
    const double Before = SlideTimeout;
    Edit();
    if (Before == mSoundFields.SlideInterval) mSoundFields.SlideInterval = SlideTimeout;
    ReloadEffectSettings();
    if (Running) PlayPause();
}

void ShowRun::NextSlide() {
    UserStep(SeqAfter(CurrentSlideSeq, mSlideCount));
}

void ShowRun::PreviousSlide() {
    UserStep(SeqBefore(CurrentSlideSeq, mSlideCount));
}

void ShowRun::GotoStart() {
    UserStep(1);
}

void ShowRun::GotoEnd() {
    UserStep(mLastSeq);
}

void ShowRun::UserStep(std::int32_t SlideSeq) {
    ResetSlideClock();
    CurrentSlideSeq = SlideSeq;
    if (mSoundFields.FitToSong)
        mSound->SyncSoundToSlide(SlideSeq, mSoundFields.SlideInterval, true, mSoundFields);
    mSoundFields.Reposition = true;
    ShowCurrentSlide();
}

void ShowRun::ResetSlideClock() {
    StartSlideClock(TheServices().Time->Timer());
    SetTimer1(true);
    SetTimer2(true);
}

// The start is kept in full and rounded anew for each slide, so that roundings do not add up. As
// the ticks see it, it never lies ahead of the clock: that would read as midnight having passed.
void ShowRun::StartSlideClock(double Start) {
    mSlideStart = std::fmod(Start, SecondsOfDay);
    const double Now = TheServices().Time->Timer();
    const double Ahead = std::fmod(mSlideStart - Now + SecondsOfDay, SecondsOfDay);
    const bool JustAhead = Ahead > 0 && Ahead < 1;
    mSlideStartTime = static_cast<float>(JustAhead ? Now : mSlideStart);
}

void ShowRun::Timer1_Timer() {
    const double Now = TheServices().Time->Timer();
    float Elapsed = static_cast<float>(Now) - mSlideStartTime;
    if (Elapsed < 0) Elapsed += static_cast<float>(SecondsOfDay);
    if (static_cast<float>(mSoundFields.SlideInterval) > Elapsed) return SetFadeVolume(Elapsed);
    const ShowSoundFields Before = mSoundFields;
    const double Due = mSlideStart + Before.SlideInterval;
    StartSlideClock(Now);
    if (mProgressionMethod != 0) return;
    const double Started = mSlideStart;
    AdvanceSlide();
    // Behind a box other slides may have come up, each with a time of its own.
    if (mSlideStart != Started) return;
    // Within a fitted track the slides keep to the music: what a tick came late is not lost.
    if (GoesOnFitted(Before, mSoundFields) && Elapsed < 2 * Before.SlideInterval)
        StartSlideClock(Due);
}

void ShowRun::SetFadeVolume(float Elapsed) {
    const bool Fades =
        mProgressionMethod == 0 && mSoundFields.FadeOnLast && mSoundFields.TrackEndsHere;
    mSound->SetVolume(Fades ? CInt(100 - Elapsed / mSoundFields.SlideInterval * 100) : 100);
}

void ShowRun::Timer2_Timer() {
    mSound->CheckRepeat();
}

}  // namespace neb
