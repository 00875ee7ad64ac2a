// The states of a show, the user's steps and the ticks. What a slide brings to the screen is in
// ShowRunSlides.cpp.
#include "show/ShowRun.h"

#include <cmath>

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

void GiveTo(SlideClock& Slides, ClockCommand Command) {
    if (Command == ClockCommand::Hold) Slides.Hold();
    if (Command == ClockCommand::GoOn) Slides.GoOn();
    if (Command == ClockCommand::Start) Slides.Start();
}

constexpr double ATick = 0.1, HalfAMillisecond = 0.0005;  // seconds

// Whether a slide is followed by another of the same fitted track.
bool GoesOnFitted(const ShowSoundFields& Before, const ShowSoundFields& After) {
    return Before.FitToSong && After.FitToSong && !Before.TrackEndsHere &&
           Before.CurrentSoundFile == After.CurrentSoundFile;
}

// How much too late a slide may come without the next one's being put off by it, so that a long
// show keeps its time; after more than that (the machine was asleep) the show goes on from there.
// Music is followed further than that.
double MostCaughtUp(const ShowSoundFields& Before, const ShowSoundFields& After) {
    constexpr double Most = 1;
    const double Share = Before.SlideInterval;
    return GoesOnFitted(Before, After) ? Share : std::min(Share, Most);
}

}  // namespace

ShowRun::ShowRun(ShowStage& Stage, ShowWorld World)
    : mStage(Stage),
      mWorld(std::move(World)),
      mSlideClock(mWorld.Time),
      mSound(std::make_unique<SilentShowSound>()) {}

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
    try {
        mSound->Release();
    } catch (const Fault&) {
        // a show ends whatever its sound says
    }
    mSound = std::make_unique<SilentShowSound>();
}

void ShowRun::PlayPause() {
    Enter(PlayPauseTransition(mState));
}

void ShowRun::StopRestart() {
    Enter(StopRestartTransition(mState));
}

// Nothing is set going after a slide that could not be shown, which has stopped the show.
void ShowRun::Enter(const ShowTransition& Transition) {
    GiveTo(*mSound, Transition.Sound, mSoundFields.SoundRepeat);
    EnterState(mState, Transition);
    if (Transition.ToStart) GotoFirstSlide();
    const StepCause Cause = Transition.ToStart ? StepCause::Start : StepCause::Restart;
    if (Transition.ShowsSlide && !ShowCurrentSlide(Cause)) return;
    GiveTo(mSlideClock, Transition.Clock);
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
    if (std::exchange(mResumeAfterRestart, false) && IsPaused(mState)) PlayPause();
}

// A slide whose time comes from its track keeps that time; and a show that has been set going or
// stopped in the meantime stays as it is.
void ShowRun::EditPreferences(const std::function<void()>& Edit) {
    const bool Running = mTimer1On;
    if (Running) PlayPause();
    const double Before = mWorld.Place.SlideTimeout;
    Edit();
    if (Before == mSoundFields.SlideInterval)
        mSoundFields.SlideInterval = mWorld.Place.SlideTimeout;
    ReloadEffectSettings();
    if (Running && IsPaused(mState)) PlayPause();
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

// In a pause the slide comes up with its whole time before it, and its sound at its place.
void ShowRun::UserStep(std::int32_t SlideSeq) {
    const bool Paused = IsPaused(mState);
    EnterStep(mState);
    mSlideClock.Start();
    if (Paused) mSlideClock.Hold();
    SetTimer1(!Paused);
    SetTimer2(true);
    mWorld.Place.CurrentSlideSeq = SlideSeq;
    ShowCurrentSlide(StepCause::User);
}

// What nobody catches comes up as a box, and a box must not stand in the way of the next tick.
void ShowRun::Timer1_Timer() {
    if (!mTimer1On) return;
    try {
        Tick();
        if (mTimer1On) TickAtEnd();
    } catch (const Fault& Problem) {
        mStage.Tell(Problem.Text());
    }
}

void ShowRun::Tick() {
    if (TakeLateSound()) return;
    const double Elapsed = mSlideClock.Elapsed();
    if (!SlideClock::IsOver(Elapsed, mSoundFields.SlideInterval)) return SetFadeVolume(Elapsed);
    const ShowSoundFields Before = mSoundFields;
    const double Due = mSlideClock.Due(Before.SlideInterval);
    mSlideClock.Start();
    if (mProgressionMethod != 0 || !AdvanceSlide()) return;
    if (Elapsed - Before.SlideInterval < MostCaughtUp(Before, mSoundFields))
        mSlideClock.StartAt(Due);
}

// The next slide comes up when the time of this one is over, to the millisecond.
void ShowRun::TickAtEnd() {
    const double Left = mSoundFields.SlideInterval - mSlideClock.Elapsed();
    if (mProgressionMethod == 0 && Left > HalfAMillisecond && Left < ATick)
        mStage.TickAfter(static_cast<int>(std::ceil((Left - HalfAMillisecond) * 1000)));
}

// A slide that was up for longer than a fitted track gives it has had its time by now, and no more:
// the music has been put there.
bool ShowRun::TakeLateSound() {
    const double Elapsed = mSlideClock.Elapsed();
    if (!mSound->TakeLate(Elapsed, mSoundFields)) return false;
    const double Interval = mSoundFields.SlideInterval;
    if (Elapsed > Interval) mSlideClock.StartAt(mWorld.Time.Timer() - Interval);
    return true;
}

// Falls with the slide's time, and is silent when that is over: no tick comes in between.
void ShowRun::SetFadeVolume(double Elapsed) {
    const bool Fades =
        mProgressionMethod == 0 && mSoundFields.FadeOnLast && mSoundFields.TrackEndsHere;
    if (!Fades) return mSound->SetVolume(100);
    const bool IsLast = mSoundFields.SlideInterval - Elapsed <= ATick + HalfAMillisecond;
    mSound->SetVolume(IsLast ? 0 : CInt(100 - Elapsed / mSoundFields.SlideInterval * 100));
}

void ShowRun::Timer2_Timer() {
    mSound->CheckRepeat();
}

}  // namespace neb
