#include "sound/mixing/SoundVoice.h"

#include <algorithm>
#include <cmath>

#include "sound/decoding/SoundFormat.h"
#include "support/Fault.h"
#include "support/Texts.h"

namespace neb {
namespace {

constexpr int AheadFrames = kMixRate;  // a second
constexpr int PieceFrames = 2048;
// Of a change of volume: as long as a fade takes from one step to the next, so that it has none.
constexpr int VolumeFrames = kMixRate / 10;
constexpr int Silence = -10000;

float GainOf(int Hundredths) {
    return Hundredths <= Silence ? 0 : static_cast<float>(std::pow(10.0, Hundredths / 2000.0));
}

int Within(int Hundredths) {
    return std::clamp(Hundredths, Silence, 0);
}

}  // namespace

SoundVoice::SoundVoice(std::unique_ptr<SoundDecoder> Decoder, int Hundredths, DecoderReturn Return)
    : mReader(std::move(Decoder)),
      mPiece(2 * static_cast<size_t>(PieceFrames)),
      mDuration(mReader.Duration()),
      mReturn(std::move(Return)),
      mRing(AheadFrames),
      mTail(kFadeFrames),
      mGain(GainOf(Within(Hundredths))),
      mRound(mDuration),
      mVolume(Within(Hundredths)),
      mAllFed(mReader.AtEnd()) {}

SoundVoice::~SoundVoice() {
    if (mReturn) mReturn(mReader.TakeDecoder());
}

void SoundVoice::Run() {
    const std::lock_guard Lock(mMutex);
    mRunning = true;
}

void SoundVoice::Halt() {
    const std::lock_guard Lock(mMutex);
    BreakOff();
    mRunning = false;
}

bool SoundVoice::IsRunning() const {
    const std::lock_guard Lock(mMutex);
    return mRunning;
}

void SoundVoice::PutVolume(int Hundredths) {
    const std::lock_guard Lock(mMutex);
    if (std::exchange(mVolume, Within(Hundredths)) == mVolume) return;
    if (mSounding)
        mGain.GlideTo(GainOf(mVolume), VolumeFrames);
    else
        mGain.JumpTo(GainOf(mVolume));
}

int SoundVoice::Volume() const {
    const std::lock_guard Lock(mMutex);
    return mVolume;
}

double SoundVoice::Position() const {
    const std::lock_guard Lock(mMutex);
    return mAtEnd ? mDuration : Place();
}

// Only the end itself is the end: whoever waits for it waits for that very number.
double SoundVoice::Place() const {
    const double Since = mBase + static_cast<double>(mPlayed) / kMixRate;
    return std::min(mRepeat ? std::fmod(Since, mRound) : Since, std::nextafter(mDuration, 0.0));
}

void SoundVoice::PutRepeat(bool On) {
    const std::lock_guard Lock(mMutex);
    if (On == mRepeat || mDuration <= 0) return;
    On ? BeginRounds() : EndRounds();
}

// What was decoded ahead may know no second round: it is decoded anew where nothing of it has been
// heard, and followed by the start where some has.
void SoundVoice::BeginRounds() {
    mRepeat = true;
    mEndsAt.reset();
    if (std::exchange(mAtEnd, false)) return SetPlace(0);
    if (mPlayed == 0) return SetPlace(mBase);
    if (std::exchange(mAllFed, false)) mSeek = 0;
}

// The round that is heard is the last.
void SoundVoice::EndRounds() {
    mBase = Place();
    mPlayed = 0;
    mRepeat = false;
    mEndsAt = std::llround((mRound - mBase) * kMixRate);
    EndWithRound();
}

void SoundVoice::EndWithRound() {
    if (!mEndsAt || mPlayed + mRing.Count() < *mEndsAt) return;
    mRing.Keep(static_cast<int>(std::max<qint64>(0, *mEndsAt - mPlayed)));
    mAllFed = true;
}

void SoundVoice::PutPosition(double Seconds) {
    if (!(Seconds >= 0)) throw Fault(tr("A sound has no place before its start."));
    const std::lock_guard Lock(mMutex);
    const bool IsThere = mPlayed == 0 && !mAtEnd && Seconds == mBase;
    if (!IsThere) SetPlace(std::min(Seconds, mDuration));
}

void SoundVoice::SetPlace(double Seconds) {
    BreakOff();
    mRing.Clear();
    mBase = Seconds;
    mPlayed = 0;
    mEndsAt.reset();
    mAtEnd = Seconds >= mDuration && !mRepeat;
    mAllFed = mAtEnd;
    mSeek = Seconds;
    ++mOrder;
}

void SoundVoice::Release() {
    const std::lock_guard Lock(mMutex);
    BreakOff();
    mRunning = false;
    mReleased = true;
    // Nothing of an abandoned sound is decoded any more.
    mAllFed = true;
}

bool SoundVoice::IsOver() const {
    const std::lock_guard Lock(mMutex);
    return mReleased && mTail.IsOver();
}

int SoundVoice::Buffered() const {
    const std::lock_guard Lock(mMutex);
    return mRing.Count();
}

// The sound goes on for a moment beside whatever comes next, and the place stays.
void SoundVoice::BreakOff() {
    if (!std::exchange(mSounding, false)) return;
    int At = 0;
    mTail.Begin(std::min(kFadeFrames, mRing.Count()), [&](float* Into) {
        const float Level = mGain.Next() * mFade.Next();
        const float* const Frame = mRing.Frame(At++);
        Into[0] = Frame[0] * Level;
        Into[1] = Frame[1] * Level;
    });
}

std::optional<SoundVoice::Order> SoundVoice::NextOrder() {
    const std::lock_guard Lock(mMutex);
    if (mAllFed || mRing.Room() < PieceFrames) return {};
    return Order{mOrder, std::exchange(mSeek, {}), mRepeat};
}

bool SoundVoice::Feed() {
    const std::optional<Order> Next = NextOrder();
    if (!Next) return false;
    mReader.SetRepeat(Next->Repeat);
    if (Next->Seek) mReader.Seek(*Next->Seek);
    Take(*Next, mReader.Read(mPiece.data(), PieceFrames));
    return true;
}

void SoundVoice::Take(const Order& For, int Frames) {
    const std::lock_guard Lock(mMutex);
    if (For.Number != mOrder || mReleased) return;
    mRing.Push(mPiece.data(), Frames);
    if (mReader.Round() > 0) mRound = mReader.Round();
    mAllFed = mReader.AtEnd();
    if (mReader.EndedEarly()) FadeOutEnd();
    // The repeat was asked for while the last of it was read.
    if (mAllFed && mRepeat && !For.Repeat) {
        mAllFed = false;
        mSeek = 0;
    }
    EndWithRound();
}

// A file that is cut off in the middle ends as softly as one that is paused.
void SoundVoice::FadeOutEnd() {
    const int Frames = std::min(kFadeFrames, mRing.Count());
    Ramp Level(1);
    Level.GlideTo(0, Frames);
    for (int I = mRing.Count() - Frames; I < mRing.Count(); ++I) {
        const float Now = Level.Next();
        float* const Frame = mRing.Frame(I);
        Frame[0] *= Now;
        Frame[1] *= Now;
    }
}

// What a fade out would take is kept back until nothing more can be missing.
int SoundVoice::Playable() const {
    return mAllFed ? mRing.Count() : std::max(0, mRing.Count() - kFadeFrames);
}

bool SoundVoice::CanSound() const {
    if (!mRunning || mAtEnd) return false;
    return mSounding || mAllFed || Playable() > 0;
}

// The start of a file is as its maker wanted it; elsewhere it would begin with a click.
void SoundVoice::BeginToSound() {
    mSounding = true;
    mFade.JumpTo(1);
    if (mBase == 0 && mPlayed == 0) return;
    mFade.JumpTo(0);
    mFade.GlideTo(1, kFadeFrames);
}

bool SoundVoice::Mix(float* Into, int Frames) {
    const std::lock_guard Lock(mMutex);
    const bool Fading = mTail.MixInto(Into, Frames);
    if (!CanSound()) return Fading;
    if (!mSounding) BeginToSound();
    const int Part = std::min(Frames, Playable());
    Play(Into, Part);
    if (mAllFed && mRing.Count() == 0) {
        mAtEnd = true;
        mSounding = false;
    } else if (Part < Frames) {
        Starve(Into + 2 * static_cast<std::ptrdiff_t>(Part), Frames - Part);
    }
    return true;
}

// Decoding is late: the sound fades out, waits and goes on from the same place.
void SoundVoice::Starve(float* Into, int Frames) {
    BreakOff();
    mTail.MixInto(Into, Frames);
}

void SoundVoice::Play(float* Into, int Frames) {
    mPlayed += Frames;
    while (Frames > 0) {
        const int Part = std::min(Frames, mRing.Contiguous());
        PlayEven(Into, Part);
        mRing.Drop(Part);
        Into += 2 * static_cast<std::ptrdiff_t>(Part);
        Frames -= Part;
    }
}

void SoundVoice::PlayEven(float* Into, int Frames) {
    const float* From = mRing.Frame(0);
    const float* const End = From + 2 * static_cast<std::ptrdiff_t>(Frames);
    for (; From < End && !(mGain.IsStill() && mFade.IsStill()); From += 2, Into += 2) {
        const float Level = mGain.Next() * mFade.Next();
        Into[0] += From[0] * Level;
        Into[1] += From[1] * Level;
    }
    const float Level = mGain.Level() * mFade.Level();
    for (; From < End; ++From, ++Into) *Into += *From * Level;
}

}  // namespace neb
