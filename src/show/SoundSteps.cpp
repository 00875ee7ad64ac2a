#include "show/SoundSteps.h"

#include <algorithm>

#include "db/clsNEBSlideShow.h"
#include "db/modAlbumFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using Track = clsNEBSlideShowSoundTrack;

const auto NoClip = QStringLiteral("The Sound Track for this slide does not exist.");
const auto NoTrack = QStringLiteral("The Sound Track for this group of slides does not exist.");
const auto EmptyTrack =
    QStringLiteral("The Sound Track for this group of slides appears to be empty.");

// Actions in the making, with the player as it will stand after them.
class Script {
  public:
    explicit Script(const PlayerState& Now) : mNow(Now) {}

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
    return std::int64_t{At.Slide.SlideSeq} - At.Stage.Track.SlideSeqStart + 1;
}

// A stage that ends the step; CheckRepeat is wanted as before.
SoundStage Ending(const SoundTurn& At, SoundActions Actions = {}) {
    return {std::move(Actions), nullptr, At.Stage.Path, At.Stage.Track, At.Stage.WatchRepeat};
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
    At.Fields.CurrentSoundFile = At.Stage.Path;
    At.Fields.SoundRepeat = Repeat;
    Do.PlayUnlessPlaying(Repeat);
}

void Fit(const SoundTurn& At) {
    const Track& Found = At.Stage.Track;
    const double Slides = static_cast<double>(Found.SlideSeqEnd) - Found.SlideSeqStart + 1;
    if (Found.FitToSong) At.Fields.SlideInterval = At.Now.Duration / Slides;
}

void SyncToPlace(const SoundTurn& At, Script& Do) {
    Do.Sync(PlaceInTrack(At), At.Fields.SlideInterval, false, At.Fields.SoundRepeat);
}

SoundStage AfterOverridingClip(const SoundTurn& At) {
    Script Do(At.Now);
    Start(At, At.Slide.Repeat, Do);
    SavePlace(At);
    At.Fields.LastClipSeq = At.Slide.SlideSeq;
    return Ending(At, Do.Take());
}

// The track picks up where an overriding clip cut it off.
void PickUp(const SoundTurn& At, Script& Do) {
    const ShowSoundFields& Saved = At.Fields;
    if (Saved.SavedSoundSeq > 0 && Saved.SavedSoundPos > 0 &&
        At.Now.SoundFile == Saved.SavedSoundFile)
        Do.PlayFrom(Saved.SavedSoundPos, Saved.SoundRepeat);
}

SoundStage AfterStartTrack(const SoundTurn& At) {
    Script Do(At.Now);
    Start(At, At.Stage.Track.Repeat, Do);
    if (At.Stage.Track.FitToSong)
        SyncToPlace(At, Do);
    else
        PickUp(At, Do);
    EndTrackPath(At.Fields);
    return Ending(At, Do.Take());
}

SoundStage AfterNewTrack(const SoundTurn& At) {
    SoundStage Then = At.Stage;
    Then.Next = AfterStartTrack;
    Then.Actions.clear();
    if (At.Now.Duration > 0)
        Fit(At);
    else if (At.Stage.Track.FitToSong)
        Then.Actions = {SoundDo::Tell{EmptyTrack}};
    return Then;
}

// A plain advance inside a group leaves the sound alone.
void GoOnPlaying(const SoundTurn& At, Script& Do) {
    if (PlaceInTrack(At) == 1) {
        if (!At.Fields.SoundRepeat) Do.PlayFrom(0, At.Fields.SoundRepeat);
    } else if (Repositions(At.Cause) && At.Stage.Track.FitToSong) {
        SyncToPlace(At, Do);
    }
}

void StartAgain(const SoundTurn& At, Script& Do) {
    Do.Play(At.Fields.SoundRepeat);
    if (At.Stage.Track.FitToSong) SyncToPlace(At, Do);
}

SoundStage AfterSameTrack(const SoundTurn& At) {
    Script Do(At.Now);
    if (At.Now.Duration > 0) {
        Fit(At);
        At.Fields.SoundRepeat = At.Stage.Track.Repeat;
        (At.Now.IsPlaying ? GoOnPlaying : StartAgain)(At, Do);
    }
    EndTrackPath(At.Fields);
    return Ending(At, Do.Take());
}

SoundStage AfterClip(const SoundTurn& At) {
    Script Do(At.Now);
    Start(At, At.Slide.Repeat, Do);
    EndTrackPath(At.Fields);
    return Ending(At, Do.Take());
}

SoundStage AfterSilence(const SoundTurn& At) {
    EndTrackPath(At.Fields);
    return Ending(At);
}

using Sequel = SoundStage (*)(const SoundTurn& At);

// A clip in either of its two places.
SoundStage OpenClip(const QString& Path, const FileTest& Exists, Sequel Loaded, Sequel Missing) {
    if (Exists(Path)) return {{SoundDo::LoadFile{Path}}, Loaded, Path, {}, false};
    // Loaded all the same: whatever sounded before is over.
    return {{SoundDo::Tell{NoClip}, SoundDo::LoadFile{Path}}, Missing, Path, {}, false};
}

SoundStage OpenTrack(const Track& Found, const QString& Path, const PlayerState& Before,
                     const FileTest& Exists) {
    if (Path == Before.SoundFile) return {{}, AfterSameTrack, Path, Found, true};
    if (Exists(Path)) return {{SoundDo::LoadFile{Path}}, AfterNewTrack, Path, Found, true};
    return {{SoundDo::Tell{NoTrack}, SoundDo::LoadFile{Path}}, AfterSilence, Path, Found, true};
}

}  // namespace

SoundStage OpenSoundStep(const SlideSound& Slide, const QString& DBPath, const PlayerState& Before,
                         const FileTest& Exists, ShowSoundFields& Fields) {
    // A missing clip leaves what an earlier one has saved.
    if (Slide.Override)
        return OpenClip(ClipPath(Slide, DBPath), Exists, AfterOverridingClip, nullptr);
    if (const Track* Found = TrackAt(Slide)) {
        NoteTrack(*Found, Slide, Fields);
        return OpenTrack(*Found, TrackPath(Slide, *Found, DBPath), Before, Exists);
    }
    if (!Slide.SoundTrackLoc.isEmpty())
        return OpenClip(ClipPath(Slide, DBPath), Exists, AfterClip, AfterSilence);
    return {{SoundDo::UnloadFile{}}, AfterSilence, {}, {}, false};
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
