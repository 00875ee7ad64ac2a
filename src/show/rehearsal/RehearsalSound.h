// The sound of a rehearsal: silent devices on its clock, and what they were told, written down as
// events and as what becomes of the sound of each slide. Used by Rehearsal alone.
#pragma once

#include <QHash>

#include "show/rehearsal/RehearsalClock.h"
#include "show/rehearsal/RehearsalLog.h"
#include "sound/devices/ClockedSound.h"

namespace neb {

class RehearsalSound {
  public:
    // OnSound, when given, hears of everything as it happens; it may not throw.
    RehearsalSound(const RehearsalClock& Clock, ClockedSoundDevices::LengthOf Length,
                   ClockedSoundDevices::Listener OnSound, RehearsalLog& Log);

    SoundDevices& Devices() { return mDevices; }
    // The time has come to be here: sounds that have come to their ends are noted.
    void Settle();
    // The sound step of the last cue is done. Path: what the slide is to sound like, empty for
    // silence.
    void SlideIsUp(const QString& Path);

  private:
    double Measure(const QString& Path);
    void SettleRounds();
    void Hear(const SoundEvent& Event);
    void TakeState(const SoundEvent& Event);
    void Note(RehearsalSoundKind Kind, double At);
    double EndOfFile() const { return mSince + mNow.Duration - mNow.Position; }
    double PositionNow() const;
    CueSoundKind KindOf(const QString& Path, double Position) const;
    CueSound* Sounding();

    const RehearsalClock& mClock;
    const ClockedSoundDevices::LengthOf mLength;
    const ClockedSoundDevices::Listener mOnSound;
    RehearsalLog& mLog;
    ClockedSoundDevices mDevices;
    QHash<QString, double> mLengths;  // of the files that were opened
    RehearsalSoundEvent mNow;         // the player, as it stood at mSince
    double mSince = 0;
    bool mPlaying = false, mEnded = false;
    bool mRepeats = false;
    bool mLoaded = false, mMoved = false;  // since the last slide came up
};

}  // namespace neb
