// Which place of a show comes up: by number, with the way round at its end, and where the user's
// steps lead. The projector asks it for every slide.
#pragma once

#include <cstdint>

namespace neb {

class clsNEBSlideShow;
class clsNEBSlideShowDetail;

struct ChosenDetail {
    const clsNEBSlideShowDetail* Detail = nullptr;  // nullptr: the show has nothing to offer
    std::int32_t Number = 1;      // what messages and the sound step call the place
    std::int32_t CurrentSeq = 1;  // the current place once it is on the screen
};

// A number below 1 or without a slide is the first place: so a show comes round.
ChosenDetail ChooseDetail(const clsNEBSlideShow& SlideShow, std::int32_t SlideSeq);

constexpr std::int32_t SeqAfter(std::int32_t SlideSeq, std::int32_t SlideCount) {
    return SlideSeq < SlideCount ? SlideSeq + 1 : 1;
}
constexpr std::int32_t SeqBefore(std::int32_t SlideSeq, std::int32_t SlideCount) {
    return SlideSeq >= 2 ? SlideSeq - 1 : SlideCount;
}

}  // namespace neb
