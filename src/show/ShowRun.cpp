// The states of a show, the user's steps and the ticks. What a slide brings to the screen is in
// ShowRunSlides.cpp.
#include "show/ShowRun.h"

#include "db/clsDBEngine.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowSettings.h"
#include "support/Fault.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

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

ShowRun::ShowRun(ShowStage& Stage, ShowWorld World)
    : mStage(Stage),
      mWorld(std::move(World)),
      mSlideClock(mWorld.Time),
      mSound(std::make_shared<SilentShowSound>()) {}

ShowRun::~ShowRun() = default;

void ShowRun::Load() {
    InitEffectTables();
    mSound = mWorld.Sound([this](const QString& Message) { mStage.Tell(Message); });
    LoadSettings();
}

void ShowRun::InitEffectTables() {
    mEffects = EffectTables();
    if (mWorld.Engine) mWorld.Engine->ClassifyEffects(mEffects.EffectLevels, EffectPlaces);
}

void ShowRun::LoadSettings() {
    mWorld.Place.CurrentSlideShowID = 0;
    mWorld.Place.CurrentSlideSeq = 0;
    const clsSettings Settings = OpenSettings();
    const ShowSettings Read = ReadShowSettings(Settings, AlbumID, SlideShowID);
    mResumeSeq = Read.ResumeSeq;
    mResumeValid = Read.ResumeValid && mBeginsAt < 1;
    mWorld.Place.SlideTimeout = Read.SlideTimeout;
    mSettings = ReadEffectSettings(Settings, SettingReader::Show);
    ReadEffectSelections(Settings, mEffects);
    mSoundFields.SlideInterval = mWorld.Place.SlideTimeout;
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
    ++mRunNumber;
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

// Nothing is set going after a slide that could not be shown, which has stopped the show, nor after
// one that has been overtaken.
void ShowRun::Enter(const ShowTransition& Transition) {
    ++mRunNumber;
    GiveTo(*mSound, Transition.Sound, mSoundFields.SoundRepeat);
    EnterState(mState, Transition);
    if (Transition.ToStart) GotoFirstSlide();
    const StepCause Cause = Transition.ToStart ? StepCause::Start : StepCause::Restart;
    if (Transition.ShowsSlide && !ShowCurrentSlide(Cause)) return;
    if (Transition.RestartsClock) mSlideClock.Start();
    SetTimer1(Transition.Timer1);
    SetTimer2(Transition.Timer2);
}

void ShowRun::GotoFirstSlide() {
    const std::int32_t Left = mResumeValid ? mResumeSeq : 0;
    const std::int32_t First = mBeginsAt > 0 ? mBeginsAt : Left;
    mWorld.Place.CurrentSlideSeq = 1;
    if (First < 1) return;
    mWorld.Place.CurrentSlideSeq = First;
    mWorld.Place.CurrentSlideShowID = SlideShowID;
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
    const double Before = mWorld.Place.SlideTimeout;
    Edit();
    if (Before == mSoundFields.SlideInterval)
        mSoundFields.SlideInterval = mWorld.Place.SlideTimeout;
    ReloadEffectSettings();
    if (Running) PlayPause();
}

void ShowRun::NextSlide() {
    UserStep(SeqAfter(Memory().CurrentSlideSeq, mSlideCount));
}

void ShowRun::PreviousSlide() {
    UserStep(SeqBefore(Memory().CurrentSlideSeq, mSlideCount));
}

void ShowRun::GotoStart() {
    UserStep(1);
}

void ShowRun::GotoEnd() {
    UserStep(mLastSeq);
}

void ShowRun::GotoSlide(std::int32_t SlideSeq) {
    UserStep(SlideSeq);
}

void ShowRun::UserStep(std::int32_t SlideSeq) {
    ++mRunNumber;
    ResetSlideClock();
    mWorld.Place.CurrentSlideSeq = SlideSeq;
    if (mSoundFields.FitToSong)
        mSound->SyncSoundToSlide(SlideSeq, mSoundFields.SlideInterval, true, mSoundFields);
    ShowCurrentSlide(StepCause::User);
}

void ShowRun::ResetSlideClock() {
    mSlideClock.Start();
    SetTimer1(true);
    SetTimer2(true);
}

void ShowRun::Timer1_Timer() {
    const double Elapsed = mSlideClock.Elapsed();
    if (!SlideClock::IsOver(Elapsed, mSoundFields.SlideInterval)) return SetFadeVolume(Elapsed);
    const ShowSoundFields Before = mSoundFields;
    const double Due = mSlideClock.Due(Before.SlideInterval);
    mSlideClock.Start();
    if (mProgressionMethod != 0 || !AdvanceSlide()) return;
    // Within a fitted track the slides keep to the music: what a tick came late is not lost.
    if (GoesOnFitted(Before, mSoundFields) && Elapsed < 2 * Before.SlideInterval)
        mSlideClock.StartAt(Due);
}

void ShowRun::SetFadeVolume(double Elapsed) {
    const bool Fades =
        mProgressionMethod == 0 && mSoundFields.FadeOnLast && mSoundFields.TrackEndsHere;
    mSound->SetVolume(Fades ? CInt(100 - Elapsed / mSoundFields.SlideInterval * 100) : 100);
}

void ShowRun::Timer2_Timer() {
    mSound->CheckRepeat();
}

}  // namespace neb
