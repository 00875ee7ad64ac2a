#include "show/EngineSound.h"

#include "db/clsDBEngine.h"

namespace neb {
namespace {

// What is on a disk of the machine's own comes within this, and all is as if it had been there;
// what takes longer may take for ever.
constexpr int PatienceMs = 40;
// So little is not made up for: the attack of a song is worth more. Seconds.
constexpr double Unnoticed = 0.25;

double Noticed(double Late) {
    return Late < Unnoticed ? 0 : Late;
}

}  // namespace

// A player that has been released has nothing loaded, and then these do nothing.
void EngineSound::Play(bool Repeat) {
    mPaused.reset();
    mEngine.Play(Repeat);
}
void EngineSound::PauseSound() {
    if (!mPaused) mPaused = mEngine.IsPlaying();
    mEngine.PauseSound();
}
void EngineSound::StopSound() {
    mComing.reset();
    mPaused.reset();
    mEngine.StopSound();
}
void EngineSound::SetVolume(int Value) {
    mVolume = Value;
    mEngine.SetVolume(Value);
}
void EngineSound::CheckRepeat() {
    if (!mPaused) mEngine.CheckRepeat();
}

bool EngineSound::SoundStep(const SlideSound& Slide, StepCause Cause, ShowSoundFields& Fields) {
    if (mReleased) return false;
    const PlayerState Before = Player();
    const SoundOrder Order = OrderSound(Slide, DatabaseFolder(), Before, Fields);
    const SoundTurn At{Order, Slide, Cause, Before, Before, Fields};
    if (Order.What == SoundOrder::Kind::Load)
        Await(At);
    else if (Order.What == SoundOrder::Kind::GoOn && mComing)
        Follow(At);
    else
        GoOn(At);
    return Order.WatchRepeat;
}

// Whatever sounded before is over.
void EngineSound::Await(const SoundTurn& At) {
    Unload();
    mComing = Coming{mEngine.Open(At.Order.Path), At.Order, At.Slide, At.Cause, At.Before};
    TakeWhatHasCome(PatienceMs, At.Fields);
}

// The track is still on its way, and this slide is another of its.
void EngineSound::Follow(const SoundTurn& At) {
    mComing->Earlier += std::exchange(mComing->OfSlide, 0);
    mComing->Order.Track = At.Order.Track;
    mComing->Slide = At.Slide;
    mComing->Cause = At.Cause;
}

void EngineSound::GoOn(const SoundTurn& At) {
    if (At.Order.What == SoundOrder::Kind::Unload) Unload();
    CarryOut(At.Order.Then(At));
}

void EngineSound::Unload() {
    mComing.reset();
    mEngine.UnloadFile();
    if (mPaused) mPaused = false;
}

bool EngineSound::TakeLate(double Elapsed, ShowSoundFields& Fields) {
    if (!mComing) return false;
    mComing->OfSlide = Elapsed;
    return TakeWhatHasCome(0, Fields);
}

bool EngineSound::TakeWhatHasCome(int Patience, ShowSoundFields& Fields) {
    if (!mComing->File->Wait(Patience)) return false;
    const Coming Of = std::move(*mComing);
    mComing.reset();
    OpenedSound Found = Of.File->Take();
    mEngine.TakeFile(Of.Order.Path, Found.Exists ? std::move(Found.Graph) : nullptr);
    mVolume = 100;
    const PlayerState Now = Player();
    const SoundSequel Sequel = Found.Exists ? Of.Order.Then : Of.Order.Without;
    const SoundDelay Late{Noticed(Of.OfSlide), Noticed(Of.Earlier + Of.OfSlide)};
    CarryOut(Sequel({Of.Order, Of.Slide, Of.Cause, Of.Before, Now, Fields, Late}));
    return true;
}

// What does not open ahead is met when it is wanted.
void EngineSound::LoadAhead(const SlideSound& Next) {
    if (mReleased) return;
    const QString Path = SoundPathOf(Next, DatabaseFolder());
    if (!Path.isEmpty() && Path != Player().SoundFile) mEngine.LoadAhead(Path);
}

void EngineSound::Release() {
    mReleased = true;
    StopSound();
    mEngine.UnloadFile();
}

QString EngineSound::DatabaseFolder() const {
    return mDatabase ? mDatabase->DBPath() : QString();
}

// As if nothing were paused: a step in a pause leads to where it would have led.
PlayerState EngineSound::Player() const {
    if (mComing) return {false, 0, 0, mComing->Order.Path};
    return {mPaused.value_or(mEngine.IsPlaying()), mEngine.CurrentPosition(), mEngine.Duration(),
            mEngine.SoundFile()};
}

void EngineSound::CarryOut(const SoundActions& Actions) {
    for (const SoundAction& Each : Actions)
        std::visit([this](const auto& This) { Do(This); }, Each);
}

// What is taken up elsewhere begins at the full level, behind a fade too.
void EngineSound::Do(const SoundDo::SetPosition& This) {
    mEngine.SetCurrentPosition(This.Seconds);
    if (mVolume != 100) SetVolume(100);
}

void EngineSound::Do(const SoundDo::Play& This) {
    if (mPaused)
        mPaused = true;
    else
        mEngine.Play(This.Repeat);
}

}  // namespace neb
