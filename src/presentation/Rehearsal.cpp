#include "presentation/Rehearsal.h"

#include "db/clsDBEngine.h"
#include "presentation/CaptionText.h"
#include "presentation/RehearsalWorld.h"
#include "presentation/modSlideShows.h"
#include "shell/modNEBSlideShow.h"
#include "support/Fault.h"

namespace neb {

// Passes everything on, and tells the rehearsal of each slide.
class Rehearsal::SoundSteps : public ShowSound {
  public:
    SoundSteps(Rehearsal& Owner, std::unique_ptr<ShowSound> Sound)
        : mOwner(Owner), mSound(std::move(Sound)) {}
    void Play(bool Repeat) override { mSound->Play(Repeat); }
    void PauseSound() override { mSound->PauseSound(); }
    void StopSound() override { mSound->StopSound(); }
    void SetVolume(int Value) override { mSound->SetVolume(Value); }
    void CheckRepeat() override { mSound->CheckRepeat(); }
    bool SoundStep(const SlideSound& Slide, ShowSoundFields& Fields) override {
        return mOwner.SlideComesUp(Slide, Fields, *mSound);
    }
    void SyncSoundToSlide(std::int32_t Place, double Interval, bool Force,
                          ShowSoundFields& Fields) override {
        mSound->SyncSoundToSlide(Place, Interval, Force, Fields);
    }

  private:
    Rehearsal& mOwner;
    std::unique_ptr<ShowSound> mSound;
};

// Boxes are answered at once and written down.
class Rehearsal::BoxLog : public MessageBoxes {
  public:
    explicit BoxLog(Rehearsal& Owner) : mOwner(Owner) {}
    BoxAnswer Show(const BoxRequest& Request) override {
        mOwner.Tell(Request.Text);
        return Request.Buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No;
    }

  private:
    Rehearsal& mOwner;
};

Rehearsal::Rehearsal(clsDBEngine& Engine, std::int32_t AlbumID, std::int32_t SlideShowID,
                     RehearsalOptions Options)
    : mOptions(std::move(Options)),
      mBoxes(std::make_unique<BoxLog>(*this)),
      mWorld(std::make_unique<RehearsalWorld>(Engine, mClock, *mBoxes,
                                              [this](std::unique_ptr<ShowSound> Sound) {
                                                  return std::make_unique<SoundSteps>(
                                                      *this, std::move(Sound));
                                              })),
      mSlideShowID(SlideShowID),
      mRun(*this) {
    mRun.AlbumID = AlbumID;
    mRun.Load(SlideShowID);
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
    mRun.ForgetResumePoint();
    Start();
    const RehearsalEnd End = RunRound();
    mOneRound = false;
    return End;
}

RehearsalEnd Rehearsal::RunRound() {
    while (Timer1On() && Now() < LongestRehearsal) {
        Ticking& Next = *NextTimer();
        if (mRun.IsManual() && NextPress() <= Next.Due) {
            AdvanceTo(NextPress());
            TakeStep([this] { mRun.NextSlide(); });
        } else {
            Fire(Next);
        }
        if (mRoundIsOver) return RehearsalEnd::CameRound;
    }
    return Timer1On() ? RehearsalEnd::TooLong : RehearsalEnd::Stopped;
}

// When somebody who leaves each slide its time asks for the next one; in milliseconds.
qint64 Rehearsal::NextPress() const {
    const double At = mLog.Cues.empty() ? 0 : mLog.Cues.back().At;
    return qRound64((At + mRun.SoundFields().SlideInterval) * 1000);
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

void Rehearsal::Fire(Ticking& Timer) {
    AdvanceTo(Timer.Due);
    Timer.Due += Timer.Period;
    TakeStep([&] { (mRun.*Timer.Tick)(); });
}

void Rehearsal::AdvanceTo(qint64 Milliseconds) {
    mClock.AdvanceTo(Milliseconds);
    if (!mLog.Cues.empty()) mLog.Cues.back().Seconds = Now() - mLog.Cues.back().At;
}

// What nobody catches comes up as a box, as in the event loop of the program.
void Rehearsal::TakeStep(const std::function<void()>& Step) {
    try {
        Step();
    } catch (const Fault& Problem) {
        Tell(Problem.Text());
    }
}

bool Rehearsal::ShowPicture(const QString& Path, const EffectChoice& Choice) {
    mEffectDelay = std::clamp(Choice.EffectDelay.value_or(mEffectDelay), 0, 1000);
    mEffectStep = std::clamp(Choice.EffectStep.value_or(mEffectStep), 1, 100);
    if (mOptions.CanReadPicture && !mOptions.CanReadPicture(Path)) return false;
    const int Steps = (100 + mEffectStep - 1) / mEffectStep;
    mNext.Picture = Path;
    mNext.EffectNumber = Choice.EffectNumber.value_or(0);
    mNext.EffectSeconds = Steps * mEffectDelay / 10000.0;
    return true;
}

// The round is over when the show comes back to a place; what that brings is the next round's.
bool Rehearsal::ComesRound(const SlideSound& Slide) const {
    return mOneRound && !mLog.Cues.empty() && Slide.SlideSeq <= mLog.Cues.back().SlideSeq;
}

bool Rehearsal::SlideComesUp(const SlideSound& Slide, ShowSoundFields& Fields, ShowSound& Sound) {
    if (ComesRound(Slide)) {
        mRoundIsOver = true;
        return false;
    }
    mNext.At = Now();
    mNext.SlideSeq = Slide.SlideSeq;
    const auto* Detail = Slide.SlideShow->GetDetail(Slide.SlideSeq);
    mNext.SlideID = Detail ? Detail->SlideID : 0;
    mNext.Caption = ShownCaptionText(mNext.Caption);
    mLog.Cues.push_back(mNext);
    const bool WatchRepeat = Sound.SoundStep(Slide, Fields);
    RehearsalCue& Cue = mLog.Cues.back();
    Cue.SlideInterval = Fields.SlideInterval;
    Cue.FitToSong = Fields.FitToSong;
    return WatchRepeat;
}

void Rehearsal::Tell(const QString& Message) {
    mLog.Boxes.push_back({Now(), PlaceOnItsWay(), Message});
}

std::int32_t Rehearsal::PlaceOnItsWay() const {
    const clsNEBAlbum* Album = DBEngine->GetAlbum(mRun.AlbumID);
    const clsNEBSlideShow* SlideShow = Album ? Album->GetSlideShow(mSlideShowID) : nullptr;
    return SlideShow ? ChooseDetail(*SlideShow, CurrentSlideSeq).Number : 0;
}

}  // namespace neb
