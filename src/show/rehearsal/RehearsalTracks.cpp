// The sound tracks of a rehearsed show: files, reach, overlaps, fades, lengths.
#include <algorithm>
#include <span>

#include "db/modAlbumFiles.h"
#include "show/rehearsal/RehearsalNotebook.h"
#include "support/Texts.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

using Notebook = RehearsalNotebook;
using Track = clsNEBSlideShowSoundTrack;

constexpr double Unnoticed = 0.5;  // seconds of silence or sound that nobody misses

// The places of the show from Start to End.
using Reach = std::span<const std::int32_t>;

Reach ReachOf(const Notebook& Book, std::int32_t Start, std::int32_t End) {
    if (Start > End) return {};
    const auto First = std::lower_bound(Book.Places.begin(), Book.Places.end(), Start);
    return {First, std::upper_bound(First, Book.Places.end(), End)};
}

// One track: its findings begin with its number, its file and its slides.
class TrackCheck {
  public:
    TrackCheck(Notebook& Book, const Track& Of)
        : mBook(Book),
          mTrack(Of),
          mPath(Book.AlbumFile(SoundTracksFolder, Of.SoundTrackLoc)),
          mReach(ReachOf(Book, Of.SlideSeqStart, Of.SlideSeqEnd)),
          mFacts(Book.LookAtSound(mPath)) {
        for (const std::int32_t Place : mReach) TakeCue(Place);
    }

    void Run() {
        if (!mFacts.Problem.isEmpty()) Tell(mFacts.Problem);
        ExplainBoxes();
        if (!HasSlides()) return;
        if (mFacts.State != SoundState::Sound) return;
        if (mTrack.Fade) CheckFade();
        if (mCues.empty()) return;
        if (mTrack.FitToSong) CheckFitted();
        if (mTrack.Repeat) return;  // meant to fill whatever time there is
        if (!mTrack.FitToSong) CheckSilence();
        if (!GoesOnBeyond()) CheckCut();
    }

  private:
    void TakeCue(std::int32_t Place);
    void ExplainBoxes();
    bool HasSlides();
    bool GoesOnBeyond() const;
    void CheckFade();
    QString WhyNoFade() const;
    void CheckFitted();
    void CheckSilence();
    void CheckCut();
    void Tell(const QString& Text) { mBook.Problem(Begins(), Line(Text)); }
    void Note(const QString& Text) { mBook.Note(Begins(), Line(Text)); }
    // Where it is heard first.
    std::int32_t Begins() const {
        const std::int32_t First = mBook.Show.Options.First;
        const bool IsUnderWay = First > 1 && mTrack.SlideSeqEnd >= First;
        return IsUnderWay ? std::max(mTrack.SlideSeqStart, First) : mTrack.SlideSeqStart;
    }
    QString Line(const QString& Text) const {
        return tr("sound track %1 (%2, %3): %4")
            .arg(mTrack.SoundTrackSeq)
            .arg(GetFileName(mPath), SlidesText(mTrack.SlideSeqStart, mTrack.SlideSeqEnd), Text);
    }

    Notebook& mBook;
    const Track& mTrack;
    const QString mPath;
    const Reach mReach;
    const SoundFacts mFacts;
    std::vector<const RehearsalCue*> mCues;  // of the slides on which it was heard or to be heard
};

void TrackCheck::TakeCue(std::int32_t Place) {
    const RehearsalCue* Cue = mBook.CueAt(Place);
    if (Cue && mBook.TrackAt(Place) == &mTrack && Cue->Sound.File == mPath) mCues.push_back(Cue);
}

void TrackCheck::ExplainBoxes() {
    if (mFacts.State == SoundState::Sound) return;
    for (const std::int32_t Place : mReach) mBook.Explain(Place, RehearsalBoxFrom::Sound);
}

bool TrackCheck::HasSlides() {
    if (mTrack.SlideSeqStart > mTrack.SlideSeqEnd)
        mBook.Problem(
            mTrack.SlideSeqStart,
            tr("sound track %1 (%2): it starts at slide %3 and ends at slide "
               "%4, so that it is never heard")
                .arg(QString::number(mTrack.SoundTrackSeq), GetFileName(mPath),
                     QString::number(mTrack.SlideSeqStart), QString::number(mTrack.SlideSeqEnd)));
    else if (mReach.empty())
        Tell(tr("the show has no such slide, so that it is never heard"));
    return !mReach.empty();
}

// Somebody who takes a part of a show knows that its music is longer.
bool TrackCheck::GoesOnBeyond() const {
    const std::int32_t Last = mBook.Show.Options.Last;
    return Last > 0 && mTrack.SlideSeqEnd > Last;
}

QString TrackCheck::WhyNoFade() const {
    const std::int32_t Last = mTrack.SlideSeqEnd;
    if (GoesOnBeyond()) return {};
    if (mBook.IsManual) return tr("there is no fade in a manual show");
    if (!mBook.Details.contains(Last))
        return tr("it never fades, because the show has no slide %1").arg(Last);
    const RehearsalCue* Cue = mBook.CueAt(Last);
    if (Cue && Cue->Sound.EndVolume == Cue->Sound.Volume)
        return tr("it never fades, because slide %1 does not sound of it").arg(Last);
    return {};
}

void TrackCheck::CheckFade() {
    const QString Why = WhyNoFade();
    if (!Why.isEmpty()) Tell(Why);
}

void TrackCheck::CheckFitted() {
    const double Each = mFacts.Length / (1.0 + mTrack.SlideSeqEnd - mTrack.SlideSeqStart);
    if (Each < 1) Tell(tr("its slides stay up for %1 each").arg(SecondsText(Each)));
    for (const RehearsalCue* Cue : mCues)
        if (Cue->EffectSeconds > Cue->SlideInterval)
            mBook.OfSlide(Cue->SlideSeq,
                          tr("it stays up for %1, but its transition takes %2: %3")
                              .arg(SecondsText(Cue->SlideInterval), SecondsText(Cue->EffectSeconds),
                                   GetFileName(Cue->Picture)));
}

// From where it ends to where its slides end.
void TrackCheck::CheckSilence() {
    const auto Ends = std::find_if(mCues.begin(), mCues.end(),
                                   [](const auto* Cue) { return Cue->Sound.EndsAt >= 0; });
    if (Ends == mCues.end()) return;
    const double Silence = mCues.back()->At + mCues.back()->Seconds - (*Ends)->Sound.EndsAt;
    if (Silence <= Unnoticed) return;
    const QString Text = tr("it is %1 long and falls silent on slide %2, %3 before its "
                            "last slide is over")
                             .arg(SecondsText(mFacts.Length))
                             .arg((*Ends)->SlideSeq)
                             .arg(SecondsText(Silence));
    mBook.IsManual ? Note(Text) : Tell(Text);
}

// Somebody who lets it fade means to cut it.
void TrackCheck::CheckCut() {
    double Heard = 0;
    for (const RehearsalCue* Cue : mCues)
        Heard = std::max(
            Heard, Cue->Sound.EndsAt >= 0 ? mFacts.Length : Cue->Sound.Position + Cue->Seconds);
    if (Heard >= mFacts.Length - Unnoticed) return;
    const QString Text = tr("it is cut off when its slides end, after %1 of its %2")
                             .arg(SecondsText(Heard), SecondsText(mFacts.Length));
    const bool Wasted = Heard < mFacts.Length / 2 && !mTrack.Fade && !mBook.IsManual;
    Wasted ? Tell(Text) : Note(Text);
}

void CheckOverlap(Notebook& Book, const Track& First, const Track& Second) {
    const Reach Both = ReachOf(Book, std::max(First.SlideSeqStart, Second.SlideSeqStart),
                               std::min(First.SlideSeqEnd, Second.SlideSeqEnd));
    if (Both.empty()) return;
    Book.Problem(
        Both.front(),
        tr("%1: sound track %2 (%3) and sound track %4 (%5) overlap; number %2 is heard")
            .arg(SlidesText(Both.front(), Both.back()), QString::number(First.SoundTrackSeq),
                 GetFileName(First.SoundTrackLoc), QString::number(Second.SoundTrackSeq),
                 GetFileName(Second.SoundTrackLoc)));
}

}  // namespace

void CheckTracks(RehearsalNotebook& Book) {
    const auto& Tracks = Book.SlideShow.SoundTracks;
    for (auto First = Tracks.begin(); First != Tracks.end(); ++First) {
        TrackCheck(Book, **First).Run();
        for (auto Second = std::next(First); Second != Tracks.end(); ++Second)
            CheckOverlap(Book, **First, **Second);
    }
}

}  // namespace neb
