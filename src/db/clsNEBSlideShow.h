// A show of an album: its details (places with slides) and its sound tracks, with their sorted
// views. Owned by the album; the show windows and the projector read it.
//
// The views are built on demand and not kept up to date; "array from 1" rows lie at row - 1.
#pragma once

#include <memory>
#include <vector>

#include "db/clsNEBSlideShowDetail.h"
#include "db/clsNEBSlideShowSoundTrack.h"
#include "support/modDEComboUFL.h"

namespace neb {

// A row of a view sorted by a number.
struct SeqIndexEntry {
    std::int32_t Seq = 0;
    std::int32_t ID = 0;
};

class clsNEBSlideShow {
  public:
    std::int32_t SlideShowID = 0;
    QString SlideShowName;
    std::int32_t ProgressionMethod = 0;
    std::vector<std::unique_ptr<clsNEBSlideShowDetail>> Details;
    std::vector<std::unique_ptr<clsNEBSlideShowSoundTrack>> SoundTracks;
    std::vector<SeqIndexEntry> DetailIndex;      // (SlideSeq, SlideID)
    std::vector<SeqIndexEntry> SoundTrackIndex;  // (SoundTrackSeq, SoundTrackSeq)

    // Rebuild the views; with an empty collection the view stays as it was.
    void SortDetails();
    void SortSoundTracks();
    // Clear the list and fill it in sorted order: the number as text, SlideID or the number as
    // data.
    void LoadDetailsCombo(ComboList& cboDetails);
    void LoadSoundTracksCombo(ComboList& cboSoundTracks);

    // The first one with this number, or nullptr.
    clsNEBSlideShowDetail* GetDetail(std::int32_t SlideSeq) const;
    clsNEBSlideShowSoundTrack* GetSoundTrack(std::int32_t SoundTrackSeq) const;

    // Always append, and always succeed: a show is saved by clearing and adding everything afresh.
    bool SaveDetail(std::int32_t SlideID, std::int32_t SlideSeq, const QString& SlideText);
    bool SaveSoundTrack(std::int32_t SoundTrackSeq, const QString& SoundTrackLoc,
                        std::int32_t SlideSeqStart, std::int32_t SlideSeqEnd, bool Repeat,
                        bool FitToSong, bool Fade);
    void ClearDetails();
    void ClearSoundTracks();

    // The show with all that it holds, without the views.
    std::unique_ptr<clsNEBSlideShow> Copy() const;
    // Both collections at once, for the clearing before a transfer; always true.
    bool ClearContents();
};

}  // namespace neb
