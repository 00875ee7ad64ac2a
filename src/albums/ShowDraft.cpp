#include "albums/ShowDraft.h"

#include <algorithm>
#include <unordered_set>

#include "albums/TrackRanges.h"

namespace neb {
namespace {

bool HasOwnCaption(const ShowSlide& Slide) {
    return Slide.SlideText != Slide.OwnText;
}

bool SameSlide(const ShowSlide& One, const ShowSlide& Other) {
    const bool OwnCaption = HasOwnCaption(One);
    return One.SlideID == Other.SlideID && OwnCaption == HasOwnCaption(Other) &&
           (!OwnCaption || One.SlideText == Other.SlideText);
}

bool SameContent(const ShowContent& One, const ShowContent& Other) {
    return One.AlbumID == Other.AlbumID && One.Name == Other.Name &&
           One.ProgressionMethod == Other.ProgressionMethod && One.Tracks == Other.Tracks &&
           std::equal(One.Slides.begin(), One.Slides.end(), Other.Slides.begin(),
                      Other.Slides.end(), &SameSlide);
}

}  // namespace

bool ShowDraft::IsChanged() const {
    return !SameContent(mContent, mAsStored);
}

void ShowDraft::DropSlides(const std::vector<std::int32_t>& SlideIDs) {
    const std::unordered_set<std::int32_t> Gone(SlideIDs.begin(), SlideIDs.end());
    for (ShowContent* Each : {&mContent, &mAsStored}) {
        const SlideOrder Before = OrderOf(Each->Slides);
        std::erase_if(Each->Slides,
                      [&Gone](const ShowSlide& Slide) { return Gone.contains(Slide.SlideID); });
        Each->Tracks = TracksFollowing(Each->Tracks, Before, OrderOf(Each->Slides));
    }
}

}  // namespace neb
