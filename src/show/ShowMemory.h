// What outlasts a show: the slide that was on the screen, and how long slides stay up.
#pragma once

#include <cstdint>

namespace neb {

extern std::int32_t CurrentSlideSeq;     // place of the slide on the screen; 0: none yet
extern std::int32_t CurrentSlideShowID;  // the show that CurrentSlideSeq belongs to
extern double SlideTimeout;              // seconds that a slide stays up by default

}  // namespace neb
