#include "show/rehearsal/RehearsalNotebook.h"

#include <algorithm>

#include "db/clsDBEngine.h"
#include "support/Fault.h"
#include "support/Grouped.h"
#include "support/Texts.h"
#include "support/files/modHostFiles.h"
#include "support/modFUFL.h"

namespace neb {
namespace {

SoundFacts FactsOf(const QString& Path, const RehearsalOptions& Options) {
    if (!FileExists(Path)) return {SoundState::Missing, 0, tr("is missing: %1").arg(Path)};
    try {
        const double Length = Options.LengthOfSound(Path);
        if (Length > 0) return {SoundState::Sound, Length, {}};
        return {SoundState::Empty, 0, tr("is empty: %1").arg(Path)};
    } catch (const Fault& Problem) {
        return {SoundState::Unplayable, 0,
                tr("cannot be played: %1: %2").arg(Path, Problem.What())};
    }
}

void SortByPlace(std::vector<RehearsalFinding>& Findings) {
    std::stable_sort(Findings.begin(), Findings.end(),
                     [](const auto& A, const auto& B) { return A.SlideSeq < B.SlideSeq; });
}

}  // namespace

QString SecondsText(double Seconds) {
    return Decimal(Seconds, 1) + QStringLiteral(" s");
}

QString SlidesText(std::int32_t First, std::int32_t Last) {
    return First == Last ? tr("slide %1").arg(First) : tr("slides %1 to %2").arg(First).arg(Last);
}

RehearsalNotebook::RehearsalNotebook(const RehearsedShow& Of)
    : Show(Of),
      Album(*Of.Engine.GetAlbum(Of.AlbumID)),
      SlideShow(*Album.GetSlideShow(Of.SlideShowID)),
      IsManual(SlideShow.ProgressionMethod != 0) {
    for (const auto& Detail : SlideShow.Details) {
        if (Details.contains(Detail->SlideSeq)) continue;
        Details.insert(Detail->SlideSeq, Detail.get());
        Places.push_back(Detail->SlideSeq);
    }
    std::sort(Places.begin(), Places.end());
    for (const RehearsalCue& Cue : Of.Log.Cues) mCues.insert(Cue.SlideSeq, &Cue);
}

void RehearsalNotebook::Problem(std::int32_t SlideSeq, const QString& Text) {
    if (IsWanted(SlideSeq)) mFound.Problems.push_back({SlideSeq, Text});
}

void RehearsalNotebook::Note(std::int32_t SlideSeq, const QString& Text) {
    if (IsWanted(SlideSeq)) mFound.Notes.push_back({SlideSeq, Text});
}

bool RehearsalNotebook::IsWanted(std::int32_t SlideSeq) const {
    return SlideSeq == 0 || Show.Options.IsWanted(SlideSeq);
}

void RehearsalNotebook::OfSlide(std::int32_t SlideSeq, const QString& Text) {
    Problem(SlideSeq, tr("slide %1: ").arg(SlideSeq) + Text);
}

void RehearsalNotebook::Explain(std::int32_t SlideSeq, RehearsalBoxFrom From) {
    mExplained.insert({SlideSeq, static_cast<int>(From)});
}

bool RehearsalNotebook::IsExplained(const RehearsalBox& Box) const {
    return mExplained.contains({Box.SlideSeq, static_cast<int>(Box.From)});
}

const clsNEBSlide* RehearsalNotebook::SlideAt(std::int32_t SlideSeq) const {
    const auto* Detail = Details.value(SlideSeq);
    return Detail ? Album.GetSlide(Detail->SlideID) : nullptr;
}

const RehearsalCue* RehearsalNotebook::CueAt(std::int32_t SlideSeq) const {
    return mCues.value(SlideSeq);
}

const clsNEBSlideShowSoundTrack* RehearsalNotebook::TrackAt(std::int32_t SlideSeq) const {
    for (const auto& Track : SlideShow.SoundTracks)
        if (Track->SlideSeqStart <= SlideSeq && SlideSeq <= Track->SlideSeqEnd) return Track.get();
    return nullptr;
}

QString RehearsalNotebook::AlbumFile(QString (*Folder)(const QString&, std::int32_t),
                                     const QString& Loc) const {
    return HoldsSeparator(Loc) ? Loc : Folder(Show.Engine.DBPath(), Show.AlbumID) + Loc;
}

SoundFacts RehearsalNotebook::LookAtSound(const QString& Path) {
    auto Known = mSounds.find(Path);
    if (Known == mSounds.end()) Known = mSounds.insert(Path, FactsOf(Path, Show.Options));
    return *Known;
}

RehearsalFindings RehearsalNotebook::Taken() {
    SortByPlace(mFound.Problems);
    SortByPlace(mFound.Notes);
    return std::move(mFound);
}

}  // namespace neb
