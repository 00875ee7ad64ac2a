#include "albums/modLoadShow.h"

#include <algorithm>
#include <cmath>

#include "db/clsNEBSlideShow.h"
#include "support/FlagText.h"
#include "support/modNumbers.h"

namespace neb {
namespace {

ShowTrack TrackCells(const clsNEBSlideShowSoundTrack& Track) {
    return {QString::number(Track.SlideSeqStart),
            QString::number(Track.SlideSeqEnd),
            FlagText(Track.Repeat),
            FlagText(Track.FitToSong),
            FlagText(Track.Fade),
            Track.SoundTrackLoc};
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

bool HasOwnCaption(const ShowSlide& Slide) {
    return Slide.SlideText != Slide.OwnText;
}

// A caption that comes from the slide may have changed there: that is no change of the show.
bool SameSlide(const ShowSlide& One, const ShowSlide& Other) {
    const bool OwnCaption = HasOwnCaption(One);
    return One.SlideID == Other.SlideID && OwnCaption == HasOwnCaption(Other) &&
           (!OwnCaption || One.SlideText == Other.SlideText);
}

}  // namespace

// A track behind an empty row counts as well: the next save would drop what is not shown.
ShowContent StoredShow(const clsNEBSlideShow& Show) {
    ShowContent Content{.SlideShowID = Show.SlideShowID,
                        .Name = Show.SlideShowName,
                        .ProgressionMethod = Show.ProgressionMethod};
    const auto SlideSeq = [](const auto& Detail) { return Detail.SlideSeq; };
    for (const auto* Detail : ByNumber(Show.Details, Show.Details.size(), SlideSeq))
        if (Detail) Content.Slides.push_back({Detail->SlideID, Detail->SlideText, {}});
    const auto TrackSeq = [](const auto& Track) { return Track.SoundTrackSeq; };
    for (const auto* Track : ByNumber(Show.SoundTracks, TrackRows, TrackSeq))
        Content.Tracks.push_back(Track ? TrackCells(*Track) : ShowTrack());
    return Content;
}

bool SameContent(const ShowContent& One, const ShowContent& Other) {
    return One.AlbumID == Other.AlbumID && One.SlideShowID == Other.SlideShowID &&
           One.Name == Other.Name && One.ProgressionMethod == Other.ProgressionMethod &&
           One.Tracks == Other.Tracks &&
           std::equal(One.Slides.begin(), One.Slides.end(), Other.Slides.begin(),
                      Other.Slides.end(), &SameSlide);
}

std::optional<int> TypedPlace(const QString& Text, int Rows) {
    bool IsNumber = false;
    const double Number = Text.trimmed().toDouble(&IsNumber);
    if (!IsNumber || !std::isfinite(Number)) return {};
    const std::int32_t Place = CInt(Number);
    if (Place < 1 || Place > Rows) return {};
    return Place - 1;
}

}  // namespace neb
