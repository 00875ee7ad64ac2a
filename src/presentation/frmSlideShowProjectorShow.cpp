// The running show: its states, the user's steps, one slide after the other, and the ticks.
#include <QTimer>

#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "platform/XShow.h"
#include "presentation/CaptionText.h"
#include "presentation/frmSlideShowProjector.h"
#include "presentation/modSlideShows.h"
#include "shell/modNEBSlideShow.h"
#include "support/Fault.h"
#include "support/modFUFL.h"
#include "support/modHostFiles.h"
#include "support/modNumbers.h"
#include "ui_frmSlideShowProjector.h"

namespace neb {
namespace {

constexpr float SecondsOfDay = 86400;
constexpr EffectChoice WholeAtOnce{100, 100, {}};  // how the stand-in picture comes up

float NowInSeconds() {
    return static_cast<float>(TheServices().Time->Timer());
}

QString NoSlidePath() {
    return AppPath() + QStringLiteral("NoSlide.bmp");
}

bool IsNoSlide(const QString& Path) {
    return ResolvePath(Path) == ResolvePath(NoSlidePath());
}

void GiveTo(ShowSound& Sound, SoundCommand Command, bool Repeat) {
    if (Command == SoundCommand::Pause) Sound.PauseSound();
    if (Command == SoundCommand::Play) Sound.Play(Repeat);
    if (Command == SoundCommand::Stop) Sound.StopSound();
}

void SetSpeed(XShow& Show, const EffectChoice& Choice) {
    if (Choice.EffectDelay) Show.SetEffectDelay(*Choice.EffectDelay);
    if (Choice.EffectStep) Show.SetEffectStep(*Choice.EffectStep);
    Show.SetShowOptionD(true);
}

}  // namespace

void frmSlideShowProjector::PlayPause() {
    Enter(PlayPauseTransition(mState));
}

void frmSlideShowProjector::StopRestart() {
    Enter(StopRestartTransition(mState));
}

// A slide that could not be shown has stopped the show: nothing is set going after it.
void frmSlideShowProjector::Enter(const ShowTransition& Transition) {
    GiveTo(*mSound, Transition.Sound, mSoundFields.SoundRepeat);
    EnterState(mState, Transition);
    if (Transition.ToStart) GotoFirstSlide();
    if (Transition.ShowsSlide && !ShowCurrentSlide()) return;
    if (Transition.RestartsClock) mSlideStartTime = NowInSeconds();
    SetTimers(Transition.Timer1, Transition.Timer2);
}

void frmSlideShowProjector::GotoFirstSlide() {
    CurrentSlideSeq = 1;
    if (mResumeSeq >= 1 && mResumeValid) {
        CurrentSlideSeq = mResumeSeq;
        CurrentSlideShowID = mSlideShowID;
    }
    mSoundFields.Reposition = true;
}

void frmSlideShowProjector::SetTimers(bool Timer1On, bool Timer2On) {
    if (!IsLoaded()) Timer1On = Timer2On = false;
    Timer1On ? Timer1->start() : Timer1->stop();
    Timer2On ? Timer2->start() : Timer2->stop();
}

void frmSlideShowProjector::ResetSlideClock() {
    mSlideStartTime = NowInSeconds();
    SetTimers(true, true);
}

void frmSlideShowProjector::NextSlide() {
    UserStep(SeqAfter(CurrentSlideSeq, mSlideCount));
}

void frmSlideShowProjector::PreviousSlide() {
    UserStep(SeqBefore(CurrentSlideSeq, mSlideCount));
}

void frmSlideShowProjector::GotoStart() {
    UserStep(1);
}

void frmSlideShowProjector::GotoEnd() {
    UserStep(mLastSeq);
}

void frmSlideShowProjector::UserStep(std::int32_t SlideSeq) {
    ResetSlideClock();
    CurrentSlideSeq = SlideSeq;
    if (mSoundFields.FitToSong)
        mSound->SyncSoundToSlide(SlideSeq, mSoundFields.SlideInterval, true, mSoundFields);
    mSoundFields.Reposition = true;
    ShowCurrentSlide();
}

void frmSlideShowProjector::AdvanceSlide() {
    ++CurrentSlideSeq;
    ShowCurrentSlide();
}

// False when the show has been stopped instead.
bool frmSlideShowProjector::ShowCurrentSlide() {
    mSoundFields.TrackEndsHere = mSoundFields.FitToSong = mSoundFields.FadeOnLast = false;
    mSoundFields.SlideInterval = SlideTimeout;
    Timer2->stop();
    if (mSlideShowID < 1) return Fail(QStringLiteral("You must have an active slideshow!"));
    if (mSlideShowID != CurrentSlideShowID) {
        CurrentSlideSeq = 0;
        CurrentSlideShowID = mSlideShowID;
    }
    clsNEBAlbum* Album = DBEngine ? DBEngine->GetAlbum(AlbumID) : nullptr;
    if (!Album) return Fail(QStringLiteral("Could not find album."));
    const clsNEBSlideShow* SlideShow = Album->GetSlideShow(mSlideShowID);
    if (!SlideShow)
        return Fail(
            QStringLiteral("The Active Slide Show does not exist!  Please select a new one!"));
    mSlideShowName = SlideShow->SlideShowName;
    mProgressionMethod = SlideShow->ProgressionMethod;
    mSlideCount = mLastSeq = static_cast<std::int32_t>(SlideShow->Details.size());
    return ShowPlace(*Album, *SlideShow);
}

bool frmSlideShowProjector::ShowPlace(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow) {
    const ChosenDetail Chosen = ChooseDetail(SlideShow, CurrentSlideSeq);
    mUi->lblCaption->setText(Chosen.Detail ? FixCaptionText(Chosen.Detail->SlideText) : QString());
    const clsNEBSlide* Slide = Chosen.Detail ? Album.GetSlide(Chosen.Detail->SlideID) : nullptr;
    if (!Slide)
        return Fail(QStringLiteral("Slide #%1 of the current slide show does not exist!")
                        .arg(Chosen.Number));
    if (mUi->lblCaption->text().isEmpty())
        mUi->lblCaption->setText(FixCaptionText(Slide->SlideText));
    if (!DisplaySlideFile(Slide->SlideLoc)) return false;
    const bool HasClip = !Slide->SoundTrackLoc.isEmpty();
    CurrentSlideSeq = Chosen.CurrentSeq;
    const SlideSound Playing{AlbumID,
                             &SlideShow,
                             Chosen.Number,
                             Slide->SoundTrackLoc,
                             HasClip && Slide->Override,
                             HasClip && Slide->Repeat};
    PrefetchNext(Album, SlideShow);
    const auto Held = mSound;  // a box in the sound step may outlive the show
    if (Held->SoundStep(Playing, mSoundFields)) Timer2->start();
    return true;
}

bool frmSlideShowProjector::Fail(const QString& Message) {
    ResizeControls();
    mSoundFields.Reposition = false;
    MsgBox(Message);
    StopShow();
    return false;
}

void frmSlideShowProjector::StopShow() {
    mState.StopCommand = QStringLiteral("Stop");
    StopRestart();
}

QString frmSlideShowProjector::SlidePath(const QString& SlideLoc) const {
    return HoldsSeparator(SlideLoc) ? SlideLoc
                                    : SlidesFolder(DBEngine->DBPath(), AlbumID) + SlideLoc;
}

// A picture that cannot be read counts as a missing one: no single file may halt a show.
bool frmSlideShowProjector::DisplaySlideFile(const QString& File) {
    const QString Path = SlidePath(File);
    if (FileExists(Path) && DisplayPicture(Path)) {
        mCurrentFile = Path;
        return true;
    }
    if (IsNoSlide(Path)) {
        StopShow();
        return false;
    }
    mUi->lblCaption->setText(mUi->lblCaption->text() + QStringLiteral(": Current slide missing!"));
    return DisplaySlideFile(NoSlidePath());
}

bool frmSlideShowProjector::DisplayPicture(const QString& Path) {
    XShow& Show = *mUi->Show1;
    if (Show.IsRunning()) Show.StopEffect();
    ResizeControls();
    const std::int32_t Before = mEffects.CurrentEffect;
    const EffectChoice Choice = IsNoSlide(Path) ? WholeAtOnce : ChooseEffect(mEffects, mSettings);
    SetSpeed(Show, Choice);
    try {
        Show.LoadPicture(Path);
    } catch (const Fault&) {
        mEffects.CurrentEffect = Before;
        return false;
    }
    if (Choice.EffectNumber) Show.SetEffectNumber(*Choice.EffectNumber);
    Show.RunEffect();
    return true;
}

// The picture that comes up when the time of this one is over is made ready in the meantime.
void frmSlideShowProjector::PrefetchNext(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow) {
    const ChosenDetail Next = ChooseDetail(SlideShow, CurrentSlideSeq + 1);
    const clsNEBSlide* Slide = Next.Detail ? Album.GetSlide(Next.Detail->SlideID) : nullptr;
    if (Slide) mUi->Show1->Prefetch(SlidePath(Slide->SlideLoc));
}

void frmSlideShowProjector::Timer1_Timer() {
    float Now = NowInSeconds();
    if (Now < mSlideStartTime) Now += SecondsOfDay;
    const float Elapsed = Now - mSlideStartTime;
    if (static_cast<float>(mSoundFields.SlideInterval) > Elapsed) return SetFadeVolume(Elapsed);
    mSlideStartTime = NowInSeconds();
    if (mProgressionMethod == 0) AdvanceSlide();
}

void frmSlideShowProjector::SetFadeVolume(float Elapsed) {
    const bool Fades =
        mProgressionMethod == 0 && mSoundFields.FadeOnLast && mSoundFields.TrackEndsHere;
    mSound->SetVolume(Fades ? CInt(100 - Elapsed / mSoundFields.SlideInterval * 100) : 100);
}

void frmSlideShowProjector::Timer2_Timer() {
    mSound->CheckRepeat();
}

}  // namespace neb
