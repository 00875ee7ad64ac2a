#include "show/SoundSteps.h"

#include <algorithm>
#include <cmath>

#include "db/clsNEBSlideShow.h"
#include "db/modAlbumFiles.h"
#include "support/Texts.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using Track = clsNEBSlideShowSoundTrack;

constexpr char NoClip[] = QT_TR_NOOP("The Sound Track for this slide does not exist.");
constexpr char NoTrack[] = QT_TR_NOOP("The Sound Track for this group of slides does not exist.");
constexpr char EmptyTrack[] =
    QT_TR_NOOP("The Sound Track for this group of slides appears to be empty.");

// Actions in the making, with the player as it will stand after them.
class Script {
  public:
    explicit Script(const PlayerState& Now) : mNow(Now) {}

    void Tell(const QString& Text) { mActions.push_back(SoundDo::Tell{Text}); }
    void Play(bool Repeat) {
        mActions.push_back(SoundDo::Play{Repeat});
        mNow.IsPlaying = true;
    }
    void PlayUnlessPlaying(bool Repeat) {
        if (!mNow.IsPlaying) Play(Repeat);
    }
    // A start that is followed by a jump is left out: nobody is to hear a snatch of the wrong
    // moment.
    void PlayFrom(double Position, bool Repeat) {
        if (!mActions.empty() && std::holds_alternative<SoundDo::Play>(mActions.back()))
            mActions.pop_back();
        mActions.push_back(SoundDo::SetPosition{Position});
        mNow.CurrentPosition = Position;
        Play(Repeat);
    }
    void Sync(std::int64_t Place, double Interval, bool Force, bool Repeat);

    const PlayerState& Now() const { return mNow; }
    SoundActions Take() { return std::move(mActions); }

  private:
    PlayerState mNow;
    SoundActions mActions;
};

void Script::Sync(std::int64_t Place, double Interval, bool Force, bool Repeat) {
    const std::int64_t Before = Place - 1;
    if (Before <= 0) return PlayFrom(0, Repeat);
    const double Target = static_cast<double>(Before) * Interval;
    const double Slack = Target / 20;
    const double Position = mNow.CurrentPosition;
    if (Force || Target + Slack < Position || Target - Slack > Position)
        return PlayFrom(Target, Repeat);
    PlayUnlessPlaying(Repeat);
}

QString PathIn(const QString& Folder, const QString& Name) {
    return HoldsSeparator(Name) ? Name : Folder + Name;
}

QString ClipPath(const SlideSound& Slide, const QString& DBPath) {
    return PathIn(SlidesFolder(DBPath, Slide.AlbumID), Slide.SoundTrackLoc);
}

QString TrackPath(const SlideSound& Slide, const Track& Found, const QString& DBPath) {
    return PathIn(SoundTracksFolder(DBPath, Slide.AlbumID), Found.SoundTrackLoc);
}

const Track* TrackAt(const SlideSound& Slide) {
    if (!Slide.SlideShow) return nullptr;
    const auto& Tracks = Slide.SlideShow->SoundTracks;
    const auto Found = std::find_if(Tracks.begin(), Tracks.end(), [&](const auto& Each) {
        return Each->SlideSeqStart <= Slide.SlideSeq && Slide.SlideSeq <= Each->SlideSeqEnd;
    });
    return Found == Tracks.end() ? nullptr : Found->get();
}

void NoteTrack(const Track& Found, const SlideSound& Slide, ShowSoundFields& Fields) {
    Fields.FitToSong = Found.FitToSong;
    Fields.FadeOnLast = Found.Fade;
    if (Found.SlideSeqEnd == Slide.SlideSeq) Fields.TrackEndsHere = true;
}

// The slide's, in its track, from 1; wider than the numbers of a track: a hand-made file may hold
// any.
std::int64_t PlaceInTrack(const SoundTurn& At) {
    return std::int64_t{At.Slide.SlideSeq} - At.Order.Track.SlideSeqStart + 1;
}

void EndTrackPath(ShowSoundFields& Fields) {
    Fields.SavedSoundPos = 0;
    Fields.SavedSoundSeq = 0;
    Fields.LastClipSeq = 0;
}

// Only the first of a run of overriding clips saves, so that the track's place survives them all.
void SavePlace(const SoundTurn& At) {
    if (At.Fields.SavedSoundSeq != 0) return;
    At.Fields.SavedSoundPos = At.Before.IsPlaying ? At.Before.CurrentPosition : 0;
    At.Fields.SavedSoundSeq = At.Slide.SlideSeq;
    At.Fields.SavedSoundFile = At.Before.IsPlaying ? At.Before.SoundFile : QString();
}

// Starts what has just been loaded.
void Start(const SoundTurn& At, bool Repeat, Script& Do) {
    At.Fields.CurrentSoundFile = At.Order.Path;
    At.Fields.SoundRepeat = Repeat;
    Do.PlayUnlessPlaying(Repeat);
}

void Fit(const SoundTurn& At) {
    const Track& Found = At.Order.Track;
    const double Slides = static_cast<double>(Found.SlideSeqEnd) - Found.SlideSeqStart + 1;
    if (Found.FitToSong) At.Fields.SlideInterval = At.Now.Duration / Slides;
}

void SyncToPlace(const SoundTurn& At, Script& Do) {
    const bool Force = At.Cause == StepCause::User;
    Do.Sync(PlaceInTrack(At), At.Fields.SlideInterval, Force, At.Fields.SoundRepeat);
}

// Where the sound would be by now that was to begin at From.
double PlaceByNow(const SoundTurn& At, double From, double Late) {
    const bool Rounds = At.Fields.SoundRepeat && At.Now.Duration > 0;
    return Rounds ? std::fmod(From + Late, At.Now.Duration) : From + Late;
}

void StartAt(const SoundTurn& At, double From, Script& Do) {
    const double Place = PlaceByNow(At, From, At.Late.OfSound);
    if (Place > 0) Do.PlayFrom(Place, At.Fields.SoundRepeat);
}

SoundActions AfterOverridingClip(const SoundTurn& At) {
    Script Do(At.Now);
    Start(At, At.Slide.Repeat, Do);
    StartAt(At, 0, Do);
    SavePlace(At);
    At.Fields.LastClipSeq = At.Slide.SlideSeq;
    return Do.Take();
}

// Where an overriding clip cut the track off.
double PlaceOfCut(const SoundTurn& At) {
    const ShowSoundFields& Saved = At.Fields;
    const bool IsIt = Saved.SavedSoundSeq > 0 && At.Now.SoundFile == Saved.SavedSoundFile;
    return IsIt ? Saved.SavedSoundPos : 0;
}

// A slide that was up for longer than its share while the music was awaited has had it.
void StartFitted(const SoundTurn& At, Script& Do) {
    if (At.Late.OfSlide <= 0) return SyncToPlace(At, Do);
    const double Share = At.Fields.SlideInterval;
    const double From = static_cast<double>(PlaceInTrack(At) - 1) * Share;
    Do.PlayFrom(PlaceByNow(At, From, std::min(At.Late.OfSlide, Share)), At.Fields.SoundRepeat);
}

SoundActions AfterNewTrack(const SoundTurn& At) {
    Script Do(At.Now);
    if (At.Now.Duration > 0)
        Fit(At);
    else if (At.Order.Track.FitToSong)
        Do.Tell(tr(EmptyTrack));
    Start(At, At.Order.Track.Repeat, Do);
    if (At.Order.Track.FitToSong)
        StartFitted(At, Do);
    else
        StartAt(At, PlaceOfCut(At), Do);
    EndTrackPath(At.Fields);
    return Do.Take();
}

// A plain advance inside a group leaves the sound alone; a step of the user's moves a fitted track
// exactly to its slide.
void GoOnPlaying(const SoundTurn& At, Script& Do) {
    const bool Fitted = At.Order.Track.FitToSong;
    const bool First = PlaceInTrack(At) == 1;
    if (Fitted && (At.Cause == StepCause::User || (!First && Repositions(At.Cause))))
        return SyncToPlace(At, Do);
    if (First && !At.Fields.SoundRepeat) Do.PlayFrom(0, At.Fields.SoundRepeat);
}

void StartAgain(const SoundTurn& At, Script& Do) {
    Do.Play(At.Fields.SoundRepeat);
    if (At.Order.Track.FitToSong) SyncToPlace(At, Do);
}

SoundActions AfterSameTrack(const SoundTurn& At) {
    Script Do(At.Now);
    if (At.Now.Duration > 0) {
        Fit(At);
        At.Fields.SoundRepeat = At.Order.Track.Repeat;
        (At.Now.IsPlaying ? GoOnPlaying : StartAgain)(At, Do);
    }
    EndTrackPath(At.Fields);
    return Do.Take();
}

SoundActions AfterClip(const SoundTurn& At) {
    Script Do(At.Now);
    Start(At, At.Slide.Repeat, Do);
    StartAt(At, 0, Do);
    EndTrackPath(At.Fields);
    return Do.Take();
}

SoundActions AfterSilence(const SoundTurn& At) {
    EndTrackPath(At.Fields);
    return {};
}

// A missing overriding clip leaves what an earlier one has saved.
SoundActions WithoutOverridingClip(const SoundTurn&) {
    return {SoundDo::Tell{tr(NoClip)}};
}

SoundActions WithoutClip(const SoundTurn& At) {
    EndTrackPath(At.Fields);
    return {SoundDo::Tell{tr(NoClip)}};
}

SoundActions WithoutTrack(const SoundTurn& At) {
    EndTrackPath(At.Fields);
    return {SoundDo::Tell{tr(NoTrack)}};
}

using Kind = SoundOrder::Kind;

SoundOrder OrderTrack(const Track& Found, const QString& Path, const PlayerState& Before) {
    if (Path == Before.SoundFile) return {Kind::GoOn, Path, Found, true, AfterSameTrack, nullptr};
    return {Kind::Load, Path, Found, true, AfterNewTrack, WithoutTrack};
}

}  // namespace

SoundOrder OrderSound(const SlideSound& Slide, const QString& DBPath, const PlayerState& Before,
                      ShowSoundFields& Fields) {
    const QString Clip = ClipPath(Slide, DBPath);
    if (Slide.Override)
        return {Kind::Load, Clip, {}, false, AfterOverridingClip, WithoutOverridingClip};
    if (const Track* Found = TrackAt(Slide)) {
        NoteTrack(*Found, Slide, Fields);
        return OrderTrack(*Found, TrackPath(Slide, *Found, DBPath), Before);
    }
    if (!Slide.SoundTrackLoc.isEmpty())
        return {Kind::Load, Clip, {}, false, AfterClip, WithoutClip};
    return {Kind::Unload, {}, {}, false, AfterSilence, nullptr};
}

SoundActions SyncSoundToSlide(std::int32_t Place, double Interval, bool Force, bool SoundRepeat,
                              const PlayerState& Now) {
    Script Do(Now);
    Do.Sync(Place, Interval, Force, SoundRepeat);
    return Do.Take();
}

QString SoundPathOf(const SlideSound& Slide, const QString& DBPath) {
    const Track* Found = Slide.Override ? nullptr : TrackAt(Slide);
    if (Found) return TrackPath(Slide, *Found, DBPath);
    return Slide.SoundTrackLoc.isEmpty() ? QString() : ClipPath(Slide, DBPath);
}

}  // namespace neb
