#include "albums/TrackRanges.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <unordered_map>

#include "albums/modSaveShow.h"
#include "support/Texts.h"

namespace neb {
namespace {

using Places = std::vector<int>;  // from 1, ascending

// Where one track goes.
class Follower {
  public:
    Follower(const SlideOrder& Before, const SlideOrder& After, const std::set<std::int32_t>& Moved)
        : mBefore(Before), mMoved(Moved) {
        std::unordered_map<std::int32_t, int> Its;
        for (size_t Place = 0; Place < After.size(); ++Place)
            Its.emplace(After[Place], static_cast<int>(Place) + 1);
        for (const std::int32_t SlideID : Before) {
            mNow.push_back(Its[SlideID]);
            Its.erase(SlideID);  // a second place of a slide is none
        }
    }

    bool IsPlace(double Place) const {
        return Place == std::floor(Place) && Place >= 0 &&
               Place <= static_cast<double>(mBefore.size());
    }

    // Of the slides that stood at these places.
    std::optional<TrackRange> RangeAfter(TrackRange Was) const {
        Places Stayed, Taken;
        for (int Place = std::max(Was.First, 1); Place <= Was.Last; ++Place) {
            const auto Index = static_cast<size_t>(Place) - 1;
            if (mNow[Index] == 0) continue;
            (mMoved.contains(mBefore[Index]) ? Taken : Stayed).push_back(mNow[Index]);
        }
        if (!Stayed.empty()) return Grown(Span(Stayed), std::move(Taken));
        if (Taken.empty()) return {};
        return LongestRun(std::move(Taken));
    }

  private:
    static TrackRange Span(const Places& All) {
        const auto [First, Last] = std::minmax_element(All.begin(), All.end());
        return {*First, *Last};
    }
    // By those that stand right before or behind it now.
    static TrackRange Grown(TrackRange Range, Places By) {
        std::ranges::sort(By);
        const auto Has = [&](int Place) { return std::ranges::binary_search(By, Place); };
        while (Has(Range.First - 1)) --Range.First;
        while (Has(Range.Last + 1)) ++Range.Last;
        return Range;
    }
    static TrackRange LongestRun(Places All) {
        std::sort(All.begin(), All.end());
        TrackRange Longest{All.front(), All.front()}, Run = Longest;
        for (const int Place : All) {
            Run = Place <= Run.Last + 1 ? TrackRange{Run.First, Place} : TrackRange{Place, Place};
            if (Run.Last - Run.First > Longest.Last - Longest.First) Longest = Run;
        }
        return Longest;
    }

    const SlideOrder& mBefore;
    const std::set<std::int32_t>& mMoved;
    Places mNow;  // by the place before; 0: it has left
};

void Follow(ShowTrack& Track, const Follower& Slides) {
    const auto Start = Track.SlideSeqStart, End = Track.SlideSeqEnd;
    for (const auto& Place : {Start, End})
        if (Place && !Slides.IsPlace(*Place)) return;
    if ((!Start && !End) || (Start && End && *Start > *End)) return;
    const auto Range = Slides.RangeAfter({static_cast<int>(Start.value_or(End.value_or(0))),
                                          static_cast<int>(End.value_or(Start.value_or(0)))});
    if (Start) Track.SlideSeqStart = Range ? std::optional<double>(Range->First) : std::nullopt;
    if (End) Track.SlideSeqEnd = Range ? std::optional<double>(Range->Last) : std::nullopt;
}

// The last place of each but the last: where the lengths up to there say, and so that no track is
// without a slide.
Places LastPlaces(const std::vector<double>& Lengths, int SlideCount) {
    const double Whole = std::accumulate(Lengths.begin(), Lengths.end(), 0.0);
    const int Count = static_cast<int>(Lengths.size());
    Places Lasts;
    double SoFar = 0;
    for (int Index = 0; Index < Count; ++Index) {
        SoFar += Lengths[static_cast<size_t>(Index)];
        const int Wanted = static_cast<int>(std::lround(SlideCount * SoFar / Whole));
        Lasts.push_back(std::clamp(Wanted, Index == 0 ? 1 : Lasts.back() + 1,
                                   SlideCount - (Count - 1 - Index)));
    }
    return Lasts;
}

Answer<> CheckFit(const ShowContent& Show, size_t TrackCount) {
    const QString Title = tr("Fit All");
    if (TrackCount == 0)
        return Refuse(tr("Choose the sound files first; all slides are then spread "
                         "over them."),
                      Title);
    if (Show.Slides.size() < TrackCount)
        return Refuse(tr("There are more sound tracks (%1) than slides in the show "
                         "(%2). Each track needs a slide at least.")
                          .arg(TrackCount)
                          .arg(Show.Slides.size()),
                      Title);
    return CheckTrackOptions({.FitToSong = true}, Show.ProgressionMethod);
}

}  // namespace

SlideOrder OrderOf(const std::vector<ShowSlide>& Slides) {
    SlideOrder Order;
    for (const ShowSlide& Each : Slides) Order.push_back(Each.SlideID);
    return Order;
}

std::optional<TrackRange> ProposedRange(const std::vector<ShowTrack>& Tracks, size_t SlideCount) {
    double Last = 0;
    for (const ShowTrack& Each : Tracks) Last = std::max(Last, Each.SlideSeqEnd.value_or(0));
    if (Last >= static_cast<double>(SlideCount)) return {};
    return TrackRange{static_cast<int>(Last) + 1, static_cast<int>(SlideCount)};
}

std::vector<ShowTrack> TracksFollowing(std::vector<ShowTrack> Tracks, const SlideOrder& Before,
                                       const SlideOrder& After,
                                       const std::set<std::int32_t>& Moved) {
    const auto HasPlace = [](const ShowTrack& Each) {
        return Each.SlideSeqStart || Each.SlideSeqEnd;
    };
    if (Before == After || std::ranges::none_of(Tracks, HasPlace)) return Tracks;
    const Follower Slides(Before, After, Moved);
    for (ShowTrack& Each : Tracks) Follow(Each, Slides);
    return Tracks;
}

Answer<std::vector<ShowTrack>> FitAllTracks(const ShowContent& Show,
                                            const std::vector<double>& Seconds) {
    std::vector<ShowTrack> Tracks = Show.Tracks;
    std::vector<size_t> Fitted;  // rows
    std::vector<double> Lengths;
    for (size_t Row = 0; Row < Tracks.size(); ++Row) {
        if (Tracks[Row].SoundTrackLoc.isEmpty()) continue;
        Fitted.push_back(Row);
        Lengths.push_back(Seconds[Row]);
    }
    const Answer<> Fits = CheckFit(Show, Fitted.size());
    if (!Fits) return Fits.Refusal();
    const Places Lasts = LastPlaces(Lengths, static_cast<int>(Show.Slides.size()));
    for (size_t Index = 0; Index < Fitted.size(); ++Index) {
        ShowTrack& Each = Tracks[Fitted[Index]];
        Each.SlideSeqStart = Index == 0 ? 1 : Lasts[Index - 1] + 1;
        Each.SlideSeqEnd = Lasts[Index];
        Each.FitToSong = true;
    }
    return Tracks;
}

}  // namespace neb
