#include "albums/modLoadShow.h"

#include "db/clsDBEngine.h"
#include "support/Texts.h"

namespace neb {
namespace {

ShowTrack TrackRow(const clsNEBSlideShowSoundTrack& Track) {
    return {static_cast<double>(Track.SlideSeqStart),
            static_cast<double>(Track.SlideSeqEnd),
            Track.Repeat,
            Track.FitToSong,
            Track.Fade,
            Track.SoundTrackLoc.trimmed()};
}

// The first with each number, as a search for it would find it; a show of thousands is not
// searched thousands of times.
template <class Things, class Number>
auto ByNumber(const Things& All, size_t Highest, Number NumberOf) {
    std::vector<decltype(All.front().get())> Found(Highest, nullptr);
    for (const auto& Each : All) {
        const auto Place = static_cast<size_t>(NumberOf(*Each)) - 1;
        if (Place < Highest && !Found[Place]) Found[Place] = Each.get();
    }
    return Found;
}

// A track behind an empty row counts as well: the next save would drop what is not shown.
ShowContent StoredShow(const clsNEBSlideShow& Show, std::int32_t AlbumID) {
    ShowContent Content{.AlbumID = AlbumID,
                        .SlideShowID = Show.SlideShowID,
                        .Name = Show.SlideShowName,
                        .ProgressionMethod = Show.ProgressionMethod};
    const auto SlideSeq = [](const auto& Detail) { return Detail.SlideSeq; };
    for (const auto* Detail : ByNumber(Show.Details, Show.Details.size(), SlideSeq))
        if (Detail) Content.Slides.push_back({Detail->SlideID, Detail->SlideText, {}});
    const auto TrackSeq = [](const auto& Track) { return Track.SoundTrackSeq; };
    for (const auto* Track : ByNumber(Show.SoundTracks, TrackRows, TrackSeq))
        Content.Tracks.push_back(Track ? TrackRow(*Track) : ShowTrack());
    return Content;
}

}  // namespace

Answer<ShowContent> LoadShow(const clsDBEngine& theDB, std::int32_t AlbumID,
                             std::int32_t SlideShowID) {
    if (SlideShowID == 0) return ShowContent{.AlbumID = AlbumID};
    const clsNEBAlbum* Album = theDB.GetAlbum(AlbumID);
    if (!Album) return Refuse(tr("Album not found."));
    const clsNEBSlideShow* Show = Album->GetSlideShow(SlideShowID);
    if (!Show) return Refuse(tr("Slide Show not found."));
    return StoredShow(*Show, AlbumID);
}

}  // namespace neb
