// One slide after the other: which one comes up, with its caption, picture, transition and sound.
#include "db/clsDBEngine.h"
#include "db/modAlbumFiles.h"
#include "settings/modNEBSlideShow.h"
#include "show/ShowRun.h"
#include "show/captions/CaptionText.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

constexpr EffectChoice WholeAtOnce{100, 100, {}};  // how the stand-in picture comes up

QString NoSlidePath() {
    return AppPath() + QStringLiteral("NoSlide.bmp");
}

// By the names alone: a look at the folder may hang.
bool IsNoSlide(const QString& Path) {
    const auto Plain = [](QString Name) { return Name.replace(u'\\', u'/'); };
    return Plain(Path).compare(Plain(NoSlidePath()), Qt::CaseInsensitive) == 0;
}

}  // namespace

// As ShowCurrentSlide.
bool ShowRun::AdvanceSlide() {
    ++mWorld.Place.CurrentSlideSeq;
    return ShowCurrentSlide(StepCause::Timer);
}

// True when the slide is up; else the show has stopped.
bool ShowRun::ShowCurrentSlide(StepCause Cause) {
    ShowMemory& Place = mWorld.Place;
    mSoundFields.TrackEndsHere = mSoundFields.FitToSong = mSoundFields.FadeOnLast = false;
    mSoundFields.SlideInterval = Place.SlideTimeout;
    mPictureWanted = false;
    SetTimer2(false);
    if (SlideShowID < 1) return Fail(tr("You must have an active slideshow!"));
    if (SlideShowID != Place.CurrentSlideShowID) {
        Place.CurrentSlideSeq = 0;
        Place.CurrentSlideShowID = SlideShowID;
    }
    clsNEBAlbum* Album = mWorld.Engine ? mWorld.Engine->GetAlbum(AlbumID) : nullptr;
    if (!Album) return Fail(tr("Could not find album."));
    const clsNEBSlideShow* SlideShow = Album->GetSlideShow(SlideShowID);
    if (!SlideShow)
        return Fail(tr("The Active Slide Show does not exist!  Please select a new one!"));
    mSlideShowName = SlideShow->SlideShowName;
    mProgressionMethod = SlideShow->ProgressionMethod;
    mSlideCount = mLastSeq = static_cast<std::int32_t>(SlideShow->Details.size());
    return ShowPlace(*Album, *SlideShow, Cause);
}

bool ShowRun::ShowPlace(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow, StepCause Cause) {
    const ChosenDetail Chosen = ChooseDetail(SlideShow, Memory().CurrentSlideSeq);
    SetCaption(Chosen.Detail ? FixCaptionText(Chosen.Detail->SlideText) : QString());
    const clsNEBSlide* Slide = Chosen.Detail ? Album.GetSlide(Chosen.Detail->SlideID) : nullptr;
    if (!Slide)
        return Fail(tr("Slide #%1 of the current slide show does not exist!").arg(Chosen.Number));
    if (mCaption.isEmpty()) SetCaption(FixCaptionText(Slide->SlideText));
    if (!DisplaySlideFile(Slide->SlideLoc)) return false;
    mWorld.Place.CurrentSlideSeq = Chosen.CurrentSeq;
    const SlideSound Playing = SoundOf(Chosen, *Slide, SlideShow);
    PrefetchNext(Album, SlideShow);
    PlaySound(Playing, Cause);
    return true;
}

void ShowRun::PlaySound(const SlideSound& Playing, StepCause Cause) {
    const bool WatchRepeat = mSound->SoundStep(Playing, Cause, mSoundFields);
    if (WatchRepeat) SetTimer2(true);
}

SlideSound ShowRun::SoundOf(const ChosenDetail& Chosen, const clsNEBSlide& Slide,
                            const clsNEBSlideShow& SlideShow) const {
    const bool HasClip = !Slide.SoundTrackLoc.isEmpty();
    return {AlbumID,
            &SlideShow,
            Chosen.Number,
            Slide.SoundTrackLoc,
            HasClip && Slide.Override,
            HasClip && Slide.Repeat};
}

void ShowRun::SetCaption(const QString& Text) {
    mCaption = Text;
    mStage.ShowCaption(Text);
}

bool ShowRun::Fail(const QString& Message) {
    mStage.Tell(Message);
    StopShow();
    return false;
}

void ShowRun::StopShow() {
    mState.StopCommand = QStringLiteral("Stop");
    StopRestart();
}

QString ShowRun::SlidePath(const QString& SlideLoc) const {
    return HoldsSeparator(SlideLoc) ? SlideLoc
                                    : SlidesFolder(mWorld.Engine->DBPath(), AlbumID) + SlideLoc;
}

// Whether a file is there shows when it is read, which need not be waited for.
bool ShowRun::DisplaySlideFile(const QString& File) {
    const QString Path = SlidePath(File);
    if (!DisplayPicture(Path)) return DisplayStandIn(Path);
    mCurrentFile = Path;
    return true;
}

bool ShowRun::DisplayPicture(const QString& Path) {
    mEffectBefore = mEffects.CurrentEffect;
    const bool Still = mWorld.IsStill && mWorld.IsStill();
    const EffectChoice Choice =
        IsNoSlide(Path) ? WholeAtOnce : ChooseEffect(mEffects, mSettings, Still);
    mPictureWanted = mStage.ShowPicture(Path, Choice);
    if (mPictureWanted) return true;
    mEffects.CurrentEffect = mEffectBefore;
    return false;
}

// A picture that cannot be read counts as a missing one: no single file may halt a show.
bool ShowRun::DisplayStandIn(const QString& Path) {
    if (IsNoSlide(Path)) {
        StopShow();
        return false;
    }
    SetCaption(mCaption + tr(": Current slide missing!"));
    return DisplaySlideFile(NoSlidePath());
}

void ShowRun::PictureLate() {
    if (!mPictureWanted) return;
    mStage.ShowCaption(mCaption + tr(": Current slide still loading!"));
}

bool ShowRun::PictureCame() {
    if (mPictureWanted) mStage.ShowCaption(mCaption);
    return mPictureWanted;
}

void ShowRun::PictureFailed() {
    if (!mPictureWanted) return;
    mEffects.CurrentEffect = mEffectBefore;
    DisplayStandIn(mCurrentFile);
}

// What comes up when the time of this slide is over is made ready in the meantime.
void ShowRun::PrefetchNext(clsNEBAlbum& Album, const clsNEBSlideShow& SlideShow) {
    const ChosenDetail Next = ChooseDetail(SlideShow, Memory().CurrentSlideSeq + 1);
    const clsNEBSlide* Slide = Next.Detail ? Album.GetSlide(Next.Detail->SlideID) : nullptr;
    if (!Slide) return;
    mStage.Prefetch(SlidePath(Slide->SlideLoc));
    mSound->LoadAhead(SoundOf(Next, *Slide, SlideShow));
}

}  // namespace neb
