#include "db/clsNEBSlideShow.h"

#include "db/modExchangeSort.h"

namespace neb {
namespace {

void SortBySeq(std::vector<SeqIndexEntry>& Index) {
    ExchangeSort(Index,
                 [](const SeqIndexEntry& A, const SeqIndexEntry& B) { return A.Seq < B.Seq; });
}

void FillWithNumbers(ComboList& Combo, const std::vector<SeqIndexEntry>& Index) {
    for (const SeqIndexEntry& Row : Index) Combo.AddItem(QString::number(Row.Seq), Row.ID);
}

}  // namespace

void clsNEBSlideShow::SortDetails() {
    if (Details.empty()) return;
    DetailIndex.clear();
    for (const auto& Detail : Details) DetailIndex.push_back({Detail->SlideSeq, Detail->SlideID});
    SortBySeq(DetailIndex);
}

void clsNEBSlideShow::SortSoundTracks() {
    if (SoundTracks.empty()) return;
    SoundTrackIndex.clear();
    for (const auto& Track : SoundTracks)
        SoundTrackIndex.push_back({Track->SoundTrackSeq, Track->SoundTrackSeq});
    SortBySeq(SoundTrackIndex);
}

void clsNEBSlideShow::LoadDetailsCombo(ComboList& cboDetails) {
    cboDetails.Clear();
    SortDetails();
    if (!Details.empty()) FillWithNumbers(cboDetails, DetailIndex);
}

void clsNEBSlideShow::LoadSoundTracksCombo(ComboList& cboSoundTracks) {
    cboSoundTracks.Clear();
    SortSoundTracks();
    if (!SoundTracks.empty()) FillWithNumbers(cboSoundTracks, SoundTrackIndex);
}

clsNEBSlideShowDetail* clsNEBSlideShow::GetDetail(std::int32_t SlideSeq) const {
    for (const auto& Detail : Details)
        if (Detail->SlideSeq == SlideSeq) return Detail.get();
    return nullptr;
}

clsNEBSlideShowSoundTrack* clsNEBSlideShow::GetSoundTrack(std::int32_t SoundTrackSeq) const {
    for (const auto& Track : SoundTracks)
        if (Track->SoundTrackSeq == SoundTrackSeq) return Track.get();
    return nullptr;
}

bool clsNEBSlideShow::SaveDetail(std::int32_t SlideID, std::int32_t SlideSeq,
                                 const QString& SlideText) {
    Details.push_back(std::make_unique<clsNEBSlideShowDetail>(
        clsNEBSlideShowDetail{SlideID, SlideSeq, SlideText}));
    return true;
}

bool clsNEBSlideShow::SaveSoundTrack(std::int32_t SoundTrackSeq, const QString& SoundTrackLoc,
                                     std::int32_t SlideSeqStart, std::int32_t SlideSeqEnd,
                                     bool Repeat, bool FitToSong, bool Fade) {
    SoundTracks.push_back(std::make_unique<clsNEBSlideShowSoundTrack>(clsNEBSlideShowSoundTrack{
        SoundTrackSeq, SoundTrackLoc, SlideSeqStart, SlideSeqEnd, Repeat, FitToSong, Fade}));
    return true;
}

void clsNEBSlideShow::ClearDetails() {
    Details.clear();
}

void clsNEBSlideShow::ClearSoundTracks() {
    SoundTracks.clear();
}

std::unique_ptr<clsNEBSlideShow> clsNEBSlideShow::Copy() const {
    auto Made = std::make_unique<clsNEBSlideShow>();
    Made->SlideShowID = SlideShowID;
    Made->SlideShowName = SlideShowName;
    Made->ProgressionMethod = ProgressionMethod;
    for (const auto& Each : Details)
        Made->Details.push_back(std::make_unique<clsNEBSlideShowDetail>(*Each));
    for (const auto& Each : SoundTracks)
        Made->SoundTracks.push_back(std::make_unique<clsNEBSlideShowSoundTrack>(*Each));
    return Made;
}

bool clsNEBSlideShow::ClearContents() {
    ClearDetails();
    ClearSoundTracks();
    return true;
}

}  // namespace neb
