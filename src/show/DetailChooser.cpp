#include "show/DetailChooser.h"

#include "db/clsNEBSlideShow.h"

namespace neb {

ChosenDetail ChooseDetail(const clsNEBSlideShow& SlideShow, std::int32_t SlideSeq) {
    const clsNEBSlideShowDetail* There = SlideSeq < 1 ? nullptr : SlideShow.GetDetail(SlideSeq);
    if (There) return {There, SlideSeq, SlideSeq};
    return {SlideShow.GetDetail(1), 1, 1};
}

}  // namespace neb
