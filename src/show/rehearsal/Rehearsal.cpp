#include "show/rehearsal/Rehearsal.h"

#include "db/clsDBEngine.h"
#include "effects/EffectSteps.h"
#include "pictures/formats/PictureSniff.h"
#include "show/EngineSound.h"
#include "show/captions/CaptionText.h"
#include "sound/workers/SoundReading.h"
#include "support/Fault.h"
#include "support/files/modHostFiles.h"

namespace neb {

// The player's own steps, and the rehearsal hears of each slide.
class Rehearsal::SoundSteps : public EngineSound {
  public:
    // What it tells needs no answer: it is written down.
    explicit SoundSteps(Rehearsal& Owner)
        : EngineSound(&Owner.mEngine, &Owner.mSound.Devices(),
                      [&Owner](const QString& Message) {
                          Owner.NoteBox(RehearsalBoxFrom::Sound, Message);
                      }),
          mOwner(Owner) {}
    bool SoundStep(const SlideSound& Slide, StepCause Cause, ShowSoundFields& Fields) override {
        if (!mOwner.SlideComesUp(Slide)) return false;
        const bool WatchRepeat = EngineSound::SoundStep(Slide, Cause, Fields);
        mOwner.SlideIsUp(Slide, Fields);
        return WatchRepeat;
    }

  private:
    Rehearsal& mOwner;
};

bool BeginsLikePicture(const QString& Path) {
    constexpr qint64 HeadBytes = 4096;
    try {
        return LooksLikePicture(ReadFileHead(Path, HeadBytes));
    } catch (const Fault&) {
        return false;
    }
}

double LengthOfSoundFile(const QString& Path) {
    const auto Decoder = OpenSound(Path);
    return static_cast<double>(Decoder->Frames()) / Decoder->Rate();
}

Rehearsal::Rehearsal(clsDBEngine& Engine, std::int32_t AlbumID, std::int32_t SlideShowID,
                     RehearsalOptions Options)
    : mOptions(std::move(Options)),
      mSound(mClock, mOptions.LengthOfSound, mOptions.OnSound, mLog),
      mEngine(Engine),
      mRun(*this,
           {&Engine, mClock,
            [this](const ShowTeller&) { return std::make_unique<SoundSteps>(*this); }, mMemory}) {
    mRun.AlbumID = AlbumID;
    mRun.SlideShowID = SlideShowID;
    mRun.Load();
}

Rehearsal::~Rehearsal() {
    mRun.End();
}

void Rehearsal::Start() {
    TakeStep([this] { mRun.PlayPause(); });
}

void Rehearsal::RunUntil(double Seconds) {
    const qint64 End = qRound64(Seconds * 1000);
    for (Ticking* Next = NextTimer(); Next && Next->Due <= End; Next = NextTimer()) Fire(*Next);
    AdvanceTo(End);
}

RehearsalEnd Rehearsal::RunWhole() {
    mOneRound = true;
    mRun.BeginAt(mOptions.First);
    Start();
    const RehearsalEnd End = RunRound();
    mOneRound = false;
    return End;
}

RehearsalEnd Rehearsal::RunRound() {
    while (!mRoundIsOver && Timer1On() && Now() < LongestRehearsal) {
        Ticking& Next = *NextTimer();
        if (mRun.IsManual() && NextPress() <= Next.Due) {
            AdvanceTo(NextPress());
            mPressed = mClock.Milliseconds();
            TakeStep([this] { mRun.NextSlide(); });
        } else {
            Fire(Next);
        }
        if (!mRoundIsOver && !GoesOn()) return RehearsalEnd::GivenUp;
    }
    if (mRoundIsOver) return RehearsalEnd::CameRound;
    if (Timer1On()) return RehearsalEnd::TooLong;
    return IsRoundOver(PlaceOnItsWay()) ? RehearsalEnd::CameRound : RehearsalEnd::Stopped;
}

bool Rehearsal::GoesOn() const {
    return !mOptions.GoesOn || mOptions.GoesOn(mLog.Cues.empty() ? 0 : mLog.Cues.back().SlideSeq);
}

// When somebody who leaves each slide its time asks for the next one; in milliseconds.
qint64 Rehearsal::NextPress() const {
    constexpr qint64 Quickest = 100;
    const qint64 Interval = qRound64(mRun.SoundFields().SlideInterval * 1000);
    return std::max(mPressed, mCueBegan) + std::max(Quickest, Interval);
}

Rehearsal::Ticking* Rehearsal::NextTimer() {
    Ticking* Next = nullptr;
    for (Ticking& Timer : mTimers)
        if (Timer.On &&
            (!Next || std::pair(Timer.Due, Timer.Started) < std::pair(Next->Due, Next->Started)))
            Next = &Timer;
    return Next;
}

void Rehearsal::SetTimer(Ticking& Timer, bool On) {
    Timer.On = On;
    Timer.Due = mClock.Milliseconds() + Timer.Period;
    Timer.Started = ++mStarts;
}

void Rehearsal::TickAfter(int Milliseconds) {
    SetTimer(mTimers[2], true);
    mTimers[2].Due += Milliseconds;
}

void Rehearsal::Fire(Ticking& Timer) {
    AdvanceTo(Timer.Due);
    Timer.Due += Timer.Period;
    Timer.On = Timer.Period > 0;
    TakeStep([&] { (mRun.*Timer.Tick)(); });
}

void Rehearsal::AdvanceTo(qint64 Milliseconds) {
    mClock.AdvanceTo(Milliseconds);
    mSound.Settle();
    if (!mLog.Cues.empty())
        mLog.Cues.back().Seconds = static_cast<double>(mClock.Milliseconds() - mCueBegan) / 1000;
}

// What nobody catches comes up as a box, as in the event loop of the program.
void Rehearsal::TakeStep(const std::function<void()>& Step) {
    try {
        Step();
    } catch (const Fault& Problem) {
        NoteBox(RehearsalBoxFrom::Fault, Problem.Text());
    }
}

bool Rehearsal::ShowPicture(const QString& Path, const EffectChoice& Choice) {
    mEffectDelay = std::clamp(Choice.EffectDelay.value_or(mEffectDelay), 0, 1000);
    mEffectStep = std::clamp(Choice.EffectStep.value_or(mEffectStep), 1, 100);
    if (!mOptions.CanReadPicture(Path)) return false;
    const int Steps = EffectStepCount(mEffectStep);
    mNext.Picture = Path;
    mNext.EffectNumber = Choice.EffectNumber.value_or(0);
    mNext.EffectDelay = mEffectDelay;
    mNext.EffectStep = mEffectStep;
    mNext.EffectSeconds = Steps * mEffectDelay / 10000.0;
    return true;
}

// The round is over when the show comes back to a place, or leaves the part of it that is wanted;
// what that brings is the next round's.
bool Rehearsal::IsRoundOver(std::int32_t SlideSeq) const {
    if (!mOneRound) return false;
    const bool ComesRound = !mLog.Cues.empty() && SlideSeq <= mLog.Cues.back().SlideSeq;
    return ComesRound || !mOptions.IsWanted(SlideSeq);
}

// False when it is no longer the rehearsal's to tell.
bool Rehearsal::SlideComesUp(const SlideSound& Slide) {
    mRoundIsOver = IsRoundOver(Slide.SlideSeq);
    if (mRoundIsOver) return false;
    mNext.At = Now();
    mCueBegan = mClock.Milliseconds();
    mNext.SlideSeq = Slide.SlideSeq;
    const auto* Detail = Slide.SlideShow->GetDetail(Slide.SlideSeq);
    mNext.SlideID = Detail ? Detail->SlideID : 0;
    mNext.Caption = ShownCaptionText(mNext.Caption);
    mLog.Cues.push_back(mNext);
    if (mOptions.OnSlide) mOptions.OnSlide(mNext);
    return true;
}

void Rehearsal::SlideIsUp(const SlideSound& Slide, const ShowSoundFields& Fields) {
    RehearsalCue& Cue = mLog.Cues.back();
    Cue.SlideInterval = Fields.SlideInterval;
    Cue.FitToSong = Fields.FitToSong;
    mSound.SlideIsUp(SoundPathOf(Slide, mEngine.DBPath()));
}

void Rehearsal::NoteBox(RehearsalBoxFrom From, const QString& Text) {
    const std::int32_t Place = PlaceOnItsWay();
    mRoundIsOver = mRoundIsOver || (mOneRound && !mOptions.IsWanted(Place));
    if (!mRoundIsOver) mLog.Boxes.push_back({Now(), Place, Text, From});
}

std::int32_t Rehearsal::PlaceOnItsWay() const {
    const clsNEBAlbum* Album = mEngine.GetAlbum(mRun.AlbumID);
    const clsNEBSlideShow* SlideShow = Album ? Album->GetSlideShow(mRun.SlideShowID) : nullptr;
    return SlideShow ? ChooseDetail(*SlideShow, mMemory.CurrentSlideSeq).Number : 0;
}

}  // namespace neb
