#include "show/rehearsal/RehearsalSound.h"

#include <algorithm>
#include <cmath>

#include "sound/VolumeScale.h"
#include "support/Fault.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"

namespace neb {
namespace {

using Heard = SoundEvent::Kind;
using Noted = RehearsalSoundKind;

// As what an event is noted; opening ahead is not.
constexpr std::pair<Heard, Noted> Names[] = {
    {Heard::Loaded, Noted::Loaded},     {Heard::Run, Noted::Playing},
    {Heard::Paused, Noted::Paused},     {Heard::Stopped, Noted::Stopped},
    {Heard::Moved, Noted::Moved},       {Heard::Volume, Noted::Volume},
    {Heard::Released, Noted::Released},
};

Noted NameOf(Heard Event) {
    return std::find_if(std::begin(Names), std::end(Names),
                        [=](const auto& Row) { return Row.first == Event; })
        ->second;
}

}  // namespace

RehearsalSound::RehearsalSound(const RehearsalClock& Clock, ClockedSoundDevices::LengthOf Length,
                               ClockedSoundDevices::Listener OnSound, RehearsalLog& Log)
    : mClock(Clock),
      mLength(std::move(Length)),
      mOnSound(std::move(OnSound)),
      mLog(Log),
      mDevices(
          Clock, [this](const QString& Path) { return Measure(Path); },
          [this](const SoundEvent& Event) { Hear(Event); }) {}

double RehearsalSound::Measure(const QString& Path) {
    mNow = {mClock.Seconds(), Noted::Failed, Path};
    mPlaying = false;
    const auto Known = mLengths.constFind(Path);
    if (Known != mLengths.cend()) return *Known;
    try {
        if (!FileExists(Path)) throw Fault(tr("There is no such file."), Path);
        return *mLengths.insert(Path, std::max(0.0, mLength(Path)));
    } catch (const Fault&) {
        Note(Noted::Failed, mClock.Seconds());
        throw;
    }
}

// A start that falls on the moment itself is yet to be heard: it belongs to the slide that may come
// up now.
void RehearsalSound::SettleRounds() {
    const double Since = mClock.Seconds() - mSince + mNow.Position;
    const auto Rounds = static_cast<int>(std::ceil(Since / mNow.Duration)) - 1;
    if (Rounds < 1) return;
    mSince += Rounds * mNow.Duration - mNow.Position;
    mNow.Position = 0;
    Note(Noted::Playing, mSince);
    if (CueSound* Sound = Sounding()) Sound->Loops += Rounds;
}

void RehearsalSound::Settle() {
    if (mPlaying && mRepeats && mNow.Duration > 0) return SettleRounds();
    if (!mPlaying || mEnded || EndOfFile() > mClock.Seconds()) return;
    const double End = EndOfFile();
    mEnded = true;
    mNow.Position = mNow.Duration;
    mSince = End;
    Note(Noted::Ended, End);
    if (CueSound* Sound = Sounding()) Sound->EndsAt = End;
}

void RehearsalSound::Hear(const SoundEvent& Event) {
    if (mOnSound) mOnSound(Event);
    if (Event.What == Heard::LoadedAhead) return;
    Settle();
    const int Before = mNow.Volume;
    TakeState(Event);
    if (Event.What != Heard::Volume || mNow.Volume != Before)
        Note(NameOf(Event.What), mClock.Seconds());
    if (CueSound* Sound = Sounding()) {
        Sound->Volume = std::max(Sound->Volume, mNow.Volume);
        Sound->EndVolume = mNow.Volume;
    }
}

void RehearsalSound::TakeState(const SoundEvent& Event) {
    mNow.Volume = VolumeOfHundredths(Event.Hundredths);
    if (Event.What == Heard::Volume) return;  // all else is as it was, rounds and all
    mNow.File = Event.Path;
    mNow.Position = Event.Position;
    mNow.Duration = mLengths.value(Event.Path);
    mSince = mClock.Seconds();
    if (Event.What == Heard::Loaded) mLoaded = true;
    if (Event.What == Heard::Moved) mMoved = true;
    mRepeats = Event.Repeats;
    if (Event.What == Heard::Run) mPlaying = true;
    if (Event.What != Heard::Run && Event.What != Heard::Moved && Event.What != Heard::Volume)
        mPlaying = false;
    mEnded = mPlaying && mNow.Position >= mNow.Duration && mEnded;
}

void RehearsalSound::Note(Noted Kind, double At) {
    mNow.Kind = Kind;
    mNow.At = At;
    mLog.SoundEvents.push_back(mNow);
    if (Kind == Noted::Volume) mLog.SoundEvents.back().Position = PositionNow();
}

double RehearsalSound::PositionNow() const {
    const double Since = mPlaying ? mNow.Position + mClock.Seconds() - mSince : mNow.Position;
    return mRepeats && Since == mNow.Duration ? 0 : std::min(Since, mNow.Duration);
}

// The sound of the slide that is up, where there is one.
CueSound* RehearsalSound::Sounding() {
    if (mLog.Cues.empty() || mLog.Cues.back().Sound.Kind == CueSoundKind::Silent) return nullptr;
    return &mLog.Cues.back().Sound;
}

CueSoundKind RehearsalSound::KindOf(const QString& Path, double Position) const {
    if (Path.isEmpty()) return CueSoundKind::Silent;
    if (mNow.Kind == Noted::Failed) return CueSoundKind::Unplayed;
    if (mEnded) return CueSoundKind::Over;
    if (Position == 0) return CueSoundKind::Starts;
    if (mLoaded) return CueSoundKind::Resumes;
    return mMoved ? CueSoundKind::Moves : CueSoundKind::GoesOn;
}

void RehearsalSound::SlideIsUp(const QString& Path) {
    Settle();
    const double Position = PositionNow();
    CueSound Sound;
    Sound.Kind = KindOf(Path, Position);
    if (Sound.Kind != CueSoundKind::Silent) Sound.File = Path;
    if (Sound.Kind != CueSoundKind::Silent && Sound.Kind != CueSoundKind::Unplayed) {
        Sound.Position = Position;
        Sound.Duration = mNow.Duration;
        Sound.Volume = Sound.EndVolume = mNow.Volume;
    }
    mLog.Cues.back().Sound = Sound;
    mLoaded = mMoved = false;
}

}  // namespace neb
